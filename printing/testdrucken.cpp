#include "printing/testdrucken.h"

#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "dialogs/meldung.h"
#include "printing/blattplatz.h"
#include "printing/druckauftrag.h"
#include "printing/druckseite.h"
#include "printing/testseite.h"
#include "printing/testtexte.h"
#include "printing/texte.h"

#include <QString>

#include <algorithm>

namespace {

std::string OhneRand(const std::string& text) {
    return QString::fromStdString(text).trimmed().toStdString();
}

// False when something is missing or the user wants to add it first.
bool Vollstaendig(const Testdruckdaten& daten) {
    if (OhneRand(daten.fach) == testdrucktexte::keinFach) {
        Meldung(testdrucktexte::fachFehlt);
        return false;
    }
    if (OhneRand(daten.gruppe) == testdrucktexte::keineGruppe) {
        Meldung(testdrucktexte::gruppeFehlt);
        return false;
    }
    // Asked once for each such row.
    return std::ranges::all_of(daten.zeilen, [](const Testdruckzeile& zeile) {
        return zeile.frage.empty() || !zeile.punkte.empty() || Bestaetigt(testdrucktexte::punkteFehlen);
    });
}

bool Gefragt(int anzahl) {
    return anzahl == 0 ? Bestaetigt(testdrucktexte::leer)
                       : Bestaetigt(testdrucktexte::mitFragen, {std::to_string(anzahl)});
}

bool AntwortenGewuenscht(const Testdruckdaten& daten) {
    const bool vorhanden =
        std::ranges::any_of(daten.zeilen, [](const Testdruckzeile& zeile) { return !zeile.antwort.empty(); });
    return vorhanden && Nachricht(testdrucktexte::antworten) == Antwort::Ja;
}

} // namespace

Testdruckdaten TestdruckdatenAus(const Testblatt& blatt, int gesamtpunkte, const std::string& datei) {
    Testdruckdaten daten;
    daten.titel = blatt.titel;
    daten.fach = blatt.fach;
    daten.gruppenwort = blatt.gruppenwort;
    daten.gruppe = blatt.gruppe;
    daten.name = blatt.name;
    daten.dateiname = OhneRand(NurDateiname(datei));
    daten.gesamtpunkte = gesamtpunkte;
    for (std::size_t i = 1; i < daten.zeilen.size(); ++i) {
        const Testblatt::Zeile& zeile = blatt.zeilen[i];
        daten.zeilen[i] = {zeile.frage, zeile.antwort, zeile.punkte};
    }
    return daten;
}

void TestFormularDrucken(const Testblatt& blatt, int gesamtpunkte, const std::string& datei) {
    Testdruckdaten daten = TestdruckdatenAus(blatt, gesamtpunkte, datei);
    if (!Vollstaendig(daten)) {
        return;
    }
    AuftragAusfuehren([&]() -> std::string {
        const int anzahl = AnzahlTestfragen(daten);
        if (!Gefragt(anzahl)) {
            return {};
        }
        Druckseite seite(QPageLayout::Portrait, Blattplatz(Formart::Test, datei),
                         Blatttitel(Formart::Test, datei));
        // Meant: the measures of the page come up at every print of a test.
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, SeitenmasseText(seite.masse()));
        daten.mitAntworten = AntwortenGewuenscht(daten);
        const Testgeometrie geometrie = TestGeometrieRechnen(anzahl, seite.masse().links, seite.masse().oben);
        FortschrittSchritt(4);
        return seite.Drucken(TestZeichnen(daten, geometrie, seite.schriftmass()),
                             [] { FortschrittSchritt(1); });
    });
}
