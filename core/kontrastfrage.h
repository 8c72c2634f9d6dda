// Whether the desktop is set to high contrast. Asked without waiting for the answer, which may never come.
#pragma once

#include <functional>

// sagen is called with each answer: soon, where the desktop says anything at all, and again when the program
// comes to the front. changes.
void KontrastBeobachten(std::function<void(bool hoch)> sagen);
