#include "core/laufzeitfehler.h"

#include <limits>

Laufzeitfehler::Laufzeitfehler(Fehler fehler, int zeile)
    : art_(fehler), zeile_(zeile), text_(FehlerText(fehler)) {}

std::string FehlerText(Fehler fehler) {
    switch (fehler) {
    case Fehler::Ueberlauf:
        return "Überlauf";
    case Fehler::SpeicherVoll:
        return "Nicht genügend Speicher";
    case Fehler::IndexBereich:
        return "Index außerhalb des gültigen Bereichs";
    case Fehler::TeilungDurchNull:
        return "Teilung durch Null";
    case Fehler::DateinameFalsch:
        return "Dateiname oder -nummer falsch";
    case Fehler::DateiNichtGefunden:
        return "Datei nicht gefunden";
    case Fehler::DateiOffen:
        return "Datei bereits geöffnet";
    case Fehler::GeraetEA:
        return "Ein-/Ausgabefehler des Geräts";
    case Fehler::DateiVorhanden:
        return "Datei existiert bereits";
    case Fehler::DatentraegerVoll:
        return "Datenträger voll";
    case Fehler::DateiZuEnde:
        return "Eingabe hinter dem Dateiende";
    case Fehler::GeraetFehlt:
        return "Gerät nicht verfügbar";
    case Fehler::ZugriffVerweigert:
        return "Zugriff verweigert";
    case Fehler::LaufwerkNichtBereit:
        return "Laufwerk nicht bereit";
    case Fehler::MediumFehler:
        return "Fehler auf dem Datenträger";
    case Fehler::PfadZugriff:
        return "Fehler beim Zugriff auf Pfad oder Datei";
    case Fehler::PfadNichtGefunden:
        return "Pfad nicht gefunden";
    }
    return "Unbekannter Fehler";
}

std::int16_t Zaehler(long long wert) {
    using Grenzen = std::numeric_limits<std::int16_t>;
    if (wert < Grenzen::min() || wert > Grenzen::max()) {
        throw Laufzeitfehler(Fehler::Ueberlauf);
    }
    return static_cast<std::int16_t>(wert);
}
