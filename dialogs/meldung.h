// The message service: tell (Meldung), ask (Nachricht), report a run-time error (FehlerMelden), play a sound
// (SoundSpielen), and the few stock message boxes. All are modal and come back with the user's answer.
// Texts are UTF-8 with CR LF line ends and come from the callers' tables; nothing is decided here.
#pragma once

#include "core/laufzeitfehler.h"
#include "core/meldungstext.h"

#include <cstdint>
#include <string_view>

// Shows a message with one button. The values take the places of the {} in its text.
void Meldung(const MeldungsText& meldung, std::initializer_list<std::string_view> werte = {});

// Asks. beimSchliessen is the answer of a question that is closed by its frame: a caller whose Ja destroys
// something leaves it at Abbrechen.
Antwort Nachricht(const NachrichtText& frage, std::initializer_list<std::string_view> werte = {},
                  Antwort beimSchliessen = Antwort::Abbrechen);

// Asks until the answer is Ja or Nein; closing the question by its frame, or Abbrechen, asks again.
bool NachrichtJaNein(const NachrichtText& frage, std::initializer_list<std::string_view> werte = {});

// Asks whether a question that stands there may be replaced, until the answer is Ja or Abbrechen.
bool ErsetzenErlaubt(const NachrichtText& frage);

// True unless the answer is Abbrechen.
bool Bestaetigt(const NachrichtText& frage, std::initializer_list<std::string_view> werte = {});

// Reports a run-time error; ort is "<source unit> : <procedure>".
void FehlerMelden(std::string_view ort, const Laufzeitfehler& fehler);

// Plays the sound of that name if the table has it, and waits for its end. No caller's name is in the table:
// the program is silent, and that is meant.
void SoundSpielen(std::string_view name);

enum class Kastenart : std::uint8_t { Schlicht, Frage, Ausruf };

// A stock message box. abbrechen adds a second button. True when OK was pressed.
bool Systemkasten(Kastenart art, std::string_view titel, std::string_view text, bool abbrechen = false);
