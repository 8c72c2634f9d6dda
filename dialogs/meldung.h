// The message service: tell (Meldung), ask (Nachricht), report a run-time error (FehlerMelden), play a sound
// (SoundSpielen), and the few stock message boxes. All are modal and come back after the user's answer.
// Texts are UTF-8 with CR LF line ends and come from the callers' tables; nothing is decided here.
#pragma once

#include "core/laufzeitfehler.h"
#include "dialogs/texte.h"

#include <cstdint>
#include <string>
#include <string_view>

// State of the dialogs, written by the services and read by the windows.
inline std::int16_t MeldungBild = 0;
inline std::string MeldungNummer;
inline std::int16_t NachrichtBild = 0;
inline std::int16_t NachrichtTasten = 0;
inline std::string NachrichtNummer; // kept, shown nowhere
// The answer: 1 OK, 2 Abbrechen, 6 Ja, 7 Nein. Closing a question by its frame leaves it as it was, so a
// caller whose Ja destroys something sets it to 2 before asking.
inline std::int16_t NachrichtAntwort = 0;

// Never set by the program; with 1 every sound is four beeps.
inline std::int16_t SoundSignal = 0;

// Shows a message with one button. flag is ignored, callers pass 0.
void Meldung(int flag, int bildNr, std::string_view text, std::string_view nummer,
             std::string_view antwortText);
void Meldung(const MeldungsText& meldung);
// The same with values for the {} of the text.
void Meldung(const MeldungsText& meldung, std::initializer_list<std::string_view> werte);

// Asks; the answer stands in NachrichtAntwort afterwards and is the result as well.
int Nachricht(int bildNr, std::string_view titel, std::string_view text, int tastenArt, int nummer);
int Nachricht(const NachrichtText& frage);
int Nachricht(const NachrichtText& frage, std::initializer_list<std::string_view> werte);

// Reports a run-time error; ort is "<source unit> : <procedure>".
void FehlerMelden(std::string_view ort, const Laufzeitfehler& fehler);

// Plays the sound of that name if the table has it, and waits for its end. No caller's name is in the table:
// the program is silent, and that is meant.
void SoundSpielen(std::string_view name);

enum class Kastenart { Schlicht, Frage, Ausruf };

// A stock message box. abbrechen adds a second button. True when OK was pressed.
bool Systemkasten(Kastenart art, std::string_view titel, std::string_view text, bool abbrechen = false);
