#include "tests/catalogue/katalogpruefung.h"

#include "catalogue/fragenliste.h"
#include "catalogue/katalogdatei.h"
#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

// Runs what may fail at a file, so that the failure names it and the others are looked at all the same.
void Versuchen(const std::string& pfad, const std::function<void()>& arbeit) {
    try {
        arbeit();
    } catch (const Laufzeitfehler& fehler) {
        ADD_FAILURE() << pfad << ": run-time error " << fehler.nummer();
    }
}

std::vector<Katalogdatei> DateienLesen() {
    std::vector<Katalogdatei> dateien;
    for (const Thema& thema : Themen()) {
        for (const Unterthema& unterthema : thema.unterthemen) {
            const std::string pfad = std::string(thema.ordner) + "\\" + std::string(unterthema.datei);
            Versuchen(pfad, [&] { dateien.push_back({&thema, unterthema.name, pfad, Katalogbytes(pfad)}); });
        }
    }
    return dateien;
}

std::vector<Katalogsatz> AlleFragenLesen() {
    std::vector<Katalogsatz> fragen;
    for (const Katalogdatei& datei : Katalogdateien()) {
        Fragenliste liste;
        Versuchen(datei.pfad, [&] { FragenLesen(datei.bytes, datei.thema->kommentarzeilen, liste); });
        for (std::size_t i = 0; i < liste.anzahl(); ++i) {
            const auto wert = [&](Spalte spalte) { return std::string(liste.wert(i, spalte)); };
            fragen.push_back({&datei, i + 1, wert(Spalte::Nr), wert(Spalte::Frage), wert(Spalte::Antwort),
                              wert(Spalte::Punkte)});
        }
    }
    return fragen;
}

} // namespace

std::string Katalogordner() {
    return EigenerPfad(QStringLiteral(FELDKRANZ_DATEN "/WISSEN"));
}

std::string Katalogbytes(std::string_view pfad) {
    return DateiLesen(PfadVerbinden(Katalogordner(), pfad));
}

std::vector<std::string_view> Zeilen(std::string_view bytes) {
    std::vector<std::string_view> zeilen;
    while (!bytes.empty()) {
        const std::size_t ende = bytes.find("\r\n");
        zeilen.push_back(bytes.substr(0, ende));
        bytes = ende == std::string_view::npos ? std::string_view() : bytes.substr(ende + 2);
    }
    return zeilen;
}

const std::vector<Katalogdatei>& Katalogdateien() {
    static const std::vector<Katalogdatei> dateien = DateienLesen();
    return dateien;
}

const std::vector<Katalogsatz>& Katalogfragen() {
    static const std::vector<Katalogsatz> fragen = AlleFragenLesen();
    return fragen;
}

std::vector<const Katalogsatz*> FragenVon(const Katalogdatei& datei) {
    std::vector<const Katalogsatz*> fragen;
    for (const Katalogsatz& frage : Katalogfragen()) {
        if (frage.datei == &datei) {
            fragen.push_back(&frage);
        }
    }
    return fragen;
}

std::string Fundort(const Katalogsatz& frage) {
    return frage.datei->pfad + " Nr " + std::to_string(frage.platz) + " \"" + frage.frage + "\" - \"" +
           frage.antwort + "\"";
}
