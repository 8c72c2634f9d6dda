// The one door through which an address or a document leaves the program for the system: a mail for its mail
// program, a web page for its browser, a document for its viewer. Whether anything starts there is the
// system's business, and nothing is reported.
#pragma once

#include <QString>

#include <functional>
#include <string>
#include <string_view>

// Hands over an address with the scheme mailto, http or https; any other is refused. The text goes out as it
// is. The toolkit writes blanks and umlauts of it as %20 and the like when it passes it to the desktop, which
// mail programs turn back. False where the system took nothing.
bool AnSystemUebergeben(std::string_view adresse);

// Hands over a PDF file of the file system for the system's own viewer; anything else is refused.
bool DokumentUebergeben(const QString& datei);

// What takes the addresses instead of the system; an empty one puts the system back. For tests.
void UebergabeErsetzen(std::function<bool(const std::string& adresse)> empfaenger);
