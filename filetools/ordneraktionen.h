// Making and deleting a folder from within the file dialog, with the questions and messages that belong to
// it. The dialog itself keeps its lists up to date.
#pragma once

#include <functional>
#include <string>

// Asks for a name, again while such a folder exists, and makes the folder. aktualisieren runs before the
// message that it is there. True when it was made.
bool OrdnerAnlegenMitFrage(const std::string& ordner, const std::function<void()>& aktualisieren);

// Asks twice and removes the folder. aktualisieren runs before the message that it is gone.
bool OrdnerLoeschenMitFrage(const std::string& ordner, const std::function<void()>& aktualisieren);
