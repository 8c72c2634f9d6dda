// The ways of saving: under the old name, under a new one, and the questions about unsaved changes. The bytes
// come from persistence/formulardatei.h, the writing from core/datei.h.
#pragma once

#include "core/formart.h"

#include <cstdint>

enum class Speicherart : std::uint8_t { Ini, Formular };

// Saves the open form under its own name, or asks for one. A failure is reported here. False when nothing was
// saved.
bool Speichern();
// Asks for a name and saves; art decides the extension that is added. False when nothing was saved.
bool SpeichernUnter(Speicherart art);

// The question about unsaved changes before a file is opened or the program ends. False when the user
// cancelled or the save did not come about.
[[nodiscard]] bool AuswertungSpeichernFragen();

// The closing check of a form of that kind: false when it stays open.
[[nodiscard]] bool SchliessenPruefen(Formart art);
