#include "sheets/antwortbogen.h"

#include "core/meldungstext.h"
#include "printing/feldwert.h"
#include "printing/texte.h"
#include "quizform/quizformular.h"
#include "sheets/texte.h"
#include "sheets/textfluss.h"

#include <initializer_list>
#include <utility>

namespace {

// The texts that are there, with a point between them.
std::string Verbunden(std::initializer_list<std::string> texte) {
    std::string ganzes;
    for (const std::string& text : texte) {
        if (!text.empty()) {
            ganzes.append(ganzes.empty() ? "" : " · ").append(text);
        }
    }
    return ganzes;
}

std::string MitWort(std::string_view muster, const std::string& wert) {
    return wert.empty() ? std::string() : Einsetzen(muster, {wert});
}

// Captions of a test stand behind a blank.
std::string OhneRand(const std::string& text) {
    const std::size_t von = text.find_first_not_of(" \r\n");
    return von == std::string::npos ? std::string()
                                    : text.substr(von, text.find_last_not_of(" \r\n") - von + 1);
}

Flusszeile FeldZeile(const FKDruckdaten& daten, int n) {
    const FKDruckfeld& feld = daten.felder.at(static_cast<std::size_t>(n));
    const Artzeile* art = Feldart(feld);
    Flusszeile zeile;
    zeile.nummer = std::to_string(ZeileVon(n));
    zeile.punkte = Feldwert(art, daten.punkte, ZeileVon(n));
    if (HatWort(art)) {
        zeile.frage = art->druckWort;
        return zeile;
    }
    zeile.frage = feld.frage;
    zeile.antwort = feld.antwortSichtbar ? feld.antwort : std::string();
    if (art != nullptr) {
        zeile.punkte.append("\n").append(art->name);
    }
    return zeile;
}

} // namespace

Blattsatz AntwortBlaetter(const FKDruckdaten& daten, const Schriftmass& mass) {
    Textfluss fluss;
    fluss.kopf = blatttexte::antwortbogen;
    fluss.unterkopf = {Verbunden({MitWort(blatttexte::nummer, daten.nummer), daten.datum, daten.zeit})};
    for (int a = 1; a <= anzahlGebiete; ++a) {
        Flussabschnitt abschnitt;
        const std::string& titel = daten.gebiete.at(static_cast<std::size_t>(a)).titel;
        abschnitt.titel = titel.empty() || titel == drucktexte::keinTitel
                              ? Einsetzen(blatttexte::gebiet, {std::to_string(a)})
                              : titel;
        for (int r = 1; r <= fragenJeGebiet; ++r) {
            const int n = Feldnummer(a, r);
            if (daten.felder.at(static_cast<std::size_t>(n)).frageSichtbar) {
                abschnitt.zeilen.push_back(FeldZeile(daten, n));
            }
        }
        fluss.abschnitte.push_back(std::move(abschnitt));
    }
    return Fliessen(fluss, mass);
}

Blattsatz AntwortBlaetter(const Testdruckdaten& daten, const Schriftmass& mass) {
    Textfluss fluss;
    fluss.kopf = blatttexte::antwortbogen;
    const std::string gruppe = OhneRand(daten.gruppe);
    fluss.unterkopf = {
        Verbunden({OhneRand(daten.titel), OhneRand(daten.fach),
                   gruppe.empty() ? std::string() : OhneRand(daten.gruppenwort).append(" ").append(gruppe),
                   daten.dateiname})};
    Flussabschnitt abschnitt;
    for (const Testdruckzeile& zeile : daten.zeilen) {
        if (!zeile.frage.empty()) {
            const std::string nummer = std::to_string(abschnitt.zeilen.size() + 1) + '.';
            abschnitt.zeilen.push_back({nummer, zeile.frage, zeile.antwort, zeile.punkte});
        }
    }
    fluss.abschnitte.push_back(std::move(abschnitt));
    fluss.schluss = Einsetzen(blatttexte::gesamt, {std::to_string(daten.gesamtpunkte)});
    return Fliessen(fluss, mass);
}
