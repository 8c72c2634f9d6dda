// Run-time errors as values: a number with the system's text. A routine may throw one inside itself and the
// routines it calls; the routine that handles it reports it or passes over it. Says nothing to the user:
// that is FehlerMelden in dialogs/meldung.h.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

// Numbers of the run-time errors that the program knows by name.
enum class Fehler : std::int16_t {
    Ueberlauf = 6,
    SpeicherVoll = 7,
    IndexBereich = 9,
    TeilungDurchNull = 11,
    DateinameFalsch = 52,
    DateiNichtGefunden = 53,
    DateiOffen = 55,
    GeraetEA = 57,
    DateiVorhanden = 58,
    DatentraegerVoll = 61,
    DateiZuEnde = 62,
    GeraetFehlt = 68,
    ZugriffVerweigert = 70,
    LaufwerkNichtBereit = 71,
    MediumFehler = 72,
    PfadZugriff = 75,
    PfadNichtGefunden = 76,
};

class Laufzeitfehler : public std::exception {
public:
    // zeile: line of the file at which a reader stood, counted from 1; 0 where there is none.
    explicit Laufzeitfehler(Fehler fehler, int zeile = 0);

    [[nodiscard]] Fehler art() const noexcept { return art_; }
    [[nodiscard]] int nummer() const noexcept { return static_cast<int>(art_); }
    [[nodiscard]] int zeile() const noexcept { return zeile_; }
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

private:
    Fehler art_;
    int zeile_;
    std::string text_;
};

// The system's text for an error, in German, as UTF-8.
[[nodiscard]] std::string FehlerText(Fehler fehler);

// A counter's value, or run-time error 6 where it doesn't fit 16 bits; never a wrap.
[[nodiscard]] std::int16_t Zaehler(long long wert);
