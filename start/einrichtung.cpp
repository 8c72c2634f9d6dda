#include "start/einrichtung.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/plattform.h"

#include <QByteArrayView>
#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::string_view lieferliste = "LIEFERUNG"; // made as the program is installed
constexpr std::string_view marke = ".ausgeliefert";
// Each is there, also where nothing is delivered into it.
constexpr std::array<std::string_view, 7> unterordner{"BITMAP", "CONFIG", "KRANZ", "REGEL",
                                                      "SOUND",  "TEST",   "WISSEN"};

[[nodiscard]] std::string Pruefsumme(std::string_view bytes) {
    const QByteArrayView ansicht(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return QCryptographicHash::hash(ansicht, QCryptographicHash::Sha256).toHex().toStdString();
}

// Nothing for a file that isn't there; what can't be read just now is the caller's.
[[nodiscard]] Lieferstand StandLesen(const std::string& pfad) {
    try {
        return LieferstandLesen(DateiLesen(pfad));
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.art() != Fehler::DateiNichtGefunden) {
            throw;
        }
        return {};
    }
}

// As start/lieferung.h wants it. Only a file that is sure to be missing counts as missing.
[[nodiscard]] std::optional<std::string> SummeVon(const std::string& pfad) {
    try {
        return Pruefsumme(DateiLesen(pfad));
    } catch (const Laufzeitfehler& fehler) {
        return fehler.art() == Fehler::DateiNichtGefunden ? std::nullopt : std::optional(std::string());
    }
}

// Makes a folder and those above it that are missing.
void OrdnerSichern(const QString& ordner) {
    if (ordner.isEmpty() || plattform::ArtVon(ordner) == plattform::Art::Ordner) {
        return;
    }
    OrdnerSichern(ordner.left(ordner.lastIndexOf(QLatin1Char('/'))));
    try {
        plattform::OrdnerAnlegen(ordner);
    } catch (const Laufzeitfehler&) {
        if (plattform::ArtVon(ordner) != plattform::Art::Ordner) { // another start was faster
            throw;
        }
    }
}

} // namespace

Einrichtung::Einrichtung(std::string lieferung, std::string programmordner)
    : lieferung_(std::move(lieferung)), ordner_(std::move(programmordner)) {
    try {
        Planen();
    } catch (const Laufzeitfehler& grund) {
        Merken(std::string(marke), grund);
        planbar_ = fertig_ = false;
    }
}

std::string Einrichtung::Ziel(const std::string& pfad) const {
    return PfadVerbinden(ordner_, pfad);
}

void Einrichtung::Merken(std::string pfad, const Laufzeitfehler& grund) {
    if (!fehler_) {
        std::ranges::replace(pfad, '/', '\\');
        fehler_ = {Ziel(pfad), grund};
    }
}

void Einrichtung::Planen() {
    const Lieferliste liste = StandLesen(PfadVerbinden(lieferung_, lieferliste)).geliefert;
    const Lieferstand vorher = StandLesen(Ziel(std::string(marke)));
    const auto da = [this](const auto& stueck) {
        return GehoertDerPerson(stueck.first) || DateiDa(Ziel(stueck.first));
    };
    const bool ordnerDa =
        std::ranges::all_of(unterordner, [this](auto name) { return OrdnerDa(Ziel(std::string(name))); });
    if (ordnerDa && Ausgeliefert(liste, vorher) && std::ranges::all_of(liste, da)) {
        return; // the usual start reads nothing but the two lists
    }
    plan_ = LieferplanMachen(liste, vorher, [this](const std::string& pfad) { return SummeVon(Ziel(pfad)); });
    for (const std::string& pfad : plan_.ungelesen) {
        Merken(pfad, Laufzeitfehler(Fehler::DateinameFalsch));
    }
    fertig_ = false;
}

void Einrichtung::Schritt() {
    const bool kopie = getan_ < plan_.schritte.size();
    try {
        if (kopie) {
            Kopieren(plan_.schritte[getan_]);
        } else if (planbar_) {
            Abschliessen();
        }
    } catch (const Laufzeitfehler& grund) {
        Merken(kopie ? plan_.schritte[getan_].ziel : std::string(marke), grund);
    }
    fertig_ = !kopie;
    ++getan_;
}

void Einrichtung::Kopieren(const Lieferschritt& schritt) {
    const std::string bytes = DateiLesen(PfadVerbinden(lieferung_, schritt.quelle));
    const std::string ziel = Ziel(schritt.ziel);
    OrdnerSichern(NativerPfad(ziel.substr(0, ziel.find_last_of("\\/"))));
    DateiSchreiben(ziel, bytes);
    // While the system is being upgraded, a file may be newer than the list: what was copied counts.
    plan_.Getan(schritt, Pruefsumme(bytes));
}

void Einrichtung::Abschliessen() {
    for (const std::string_view name : unterordner) {
        try {
            OrdnerSichern(NativerPfad(Ziel(std::string(name))));
        } catch (const Laufzeitfehler& grund) {
            Merken(std::string(name), grund);
            return;
        }
    }
    DateiSchreiben(Ziel(std::string(marke)), LieferstandBytes(plan_.danach));
}

double Einrichtung::prozent() const {
    const auto alle = static_cast<double>(plan_.schritte.size() + 1);
    return fertig_ ? 100.0 : 100.0 * static_cast<double>(getan_) / alle;
}

std::vector<std::string> UngemeldetesHolen(const std::string& programmordner) {
    const std::string pfad = PfadVerbinden(programmordner, marke);
    std::vector<std::string> pfade;
    try {
        Lieferstand stand = StandLesen(pfad);
        pfade = std::exchange(stand.ungemeldet, {});
        if (!pfade.empty()) {
            DateiSchreiben(pfad, LieferstandBytes(stand));
        }
    } catch (const Laufzeitfehler&) {
        // What can't be read is told later, and what can't be written is told twice.
    }
    return pfade;
}
