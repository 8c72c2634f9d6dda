#include "sheets/spielbrett.h"

#include "core/meldungstext.h"
#include "printing/texte.h"
#include "quizform/quizformular.h"
#include "sheets/farbreihe.h"
#include "sheets/texte.h"
#include "sheets/textsatz.h"

#include <algorithm>
#include <utility>

namespace {

constexpr Stift rand{6_dp, {96, 96, 96}};

bool ImSpiel(const FKDruckdaten& daten, int gebiet, int zeile) {
    return daten.felder.at(static_cast<std::size_t>(Feldnummer(gebiet, zeile))).frageSichtbar;
}

// Areas and rows with a cell in play: what is closed takes no room.
struct Gestalt {
    std::vector<int> gebiete, zeilen;
};
Gestalt GestaltVon(const FKDruckdaten& daten) {
    Gestalt gestalt;
    for (int a = 1; a <= anzahlGebiete; ++a) {
        for (int r = 1; r <= fragenJeGebiet; ++r) {
            if (!ImSpiel(daten, a, r)) {
                continue;
            }
            if (gestalt.gebiete.empty() || gestalt.gebiete.back() != a) {
                gestalt.gebiete.push_back(a);
            }
            if (std::ranges::find(gestalt.zeilen, r) == gestalt.zeilen.end()) {
                gestalt.zeilen.push_back(r);
            }
        }
    }
    std::ranges::sort(gestalt.zeilen);
    return gestalt;
}

// Measures of a board; everything follows from its size.
struct Brettmasse {
    Millimeter luecke, spalte, kopf, zeile;

    Brettmasse(const Gestalt& gestalt, Millimeter breite, Millimeter hoehe) : luecke(breite * 0.012F) {
        const auto spalten = static_cast<float>(gestalt.gebiete.size());
        const auto zeilen = static_cast<float>(gestalt.zeilen.size());
        spalte = (breite - (spalten - 1.0F) * luecke) / spalten;
        kopf = hoehe * 0.16F;
        zeile = (hoehe - kopf - zeilen * luecke) / zeilen;
    }
    [[nodiscard]] Millimeter X(std::size_t i) const { return static_cast<float>(i) * (spalte + luecke); }
    [[nodiscard]] Millimeter Y(std::size_t i) const {
        return kopf + luecke + static_cast<float>(i) * (zeile + luecke);
    }
};

// Titles are all of one size, that of the longest: a board is read from afar as a whole.
std::vector<Textsatz> Titelsaetze(const FKDruckdaten& daten, const Gestalt& gestalt, const Brettmasse& m,
                                  const Schriftmass& mass) {
    const Millimeter breite = m.spalte * 0.92F;
    const Millimeter hoehe = m.kopf * 0.86F;
    Druckschrift schrift{Schriftart::Arial, Schriftpunkte(m.kopf.zahl() * 1.1F), true};
    constexpr Schriftpunkte kleinste = 6_pt;
    for (int durchgang = 0; durchgang < 2; ++durchgang) { // the second one sets all in the size found
        std::vector<Textsatz> saetze;
        for (const int a : gestalt.gebiete) {
            const std::string& titel = daten.gebiete.at(static_cast<std::size_t>(a)).titel;
            saetze.push_back(Einpassen(titel == drucktexte::keinTitel ? std::string_view() : titel, breite,
                                       hoehe, schrift, kleinste, mass));
        }
        const auto kleinster = std::ranges::min_element(
            saetze, {}, [](const Textsatz& satz) { return satz.schrift.groesse.zahl(); });
        if (durchgang == 1 || saetze.empty()) {
            return saetze;
        }
        schrift.groesse = kleinster->schrift.groesse;
    }
    return {};
}

void SpalteZeichnen(Zeichnung& zeichnung, const FKDruckdaten& daten, const Gestalt& gestalt, std::size_t i,
                    const Brettmasse& m, const Textsatz& titel, const Schriftmass& mass) {
    const int gebiet = gestalt.gebiete.at(i);
    const Gebietsfarben farben = FarbenVon(static_cast<std::size_t>(gebiet));
    const Flaeche kopf{m.X(i), 0_mm, m.spalte, m.kopf};
    zeichnung.emplace_back(Rechteck{kopf.x, kopf.y, kopf.breite, kopf.hoehe, rand, farben.kopf});
    MittigSetzen(zeichnung, titel, kopf, mass);
    const Druckschrift zahl{Schriftart::Arial, Schriftpunkte(std::min(m.zeile, m.spalte).zahl() * 1.7F),
                            true};
    for (std::size_t k = 0; k < gestalt.zeilen.size(); ++k) {
        if (!ImSpiel(daten, gebiet, gestalt.zeilen.at(k))) {
            continue;
        }
        const Millimeter y = m.Y(k);
        zeichnung.emplace_back(Rechteck{m.X(i), y, m.spalte, m.zeile, rand, farben.feld});
        TextZentriert(zeichnung, mass, m.X(i) + m.spalte / 2.0F, y + m.zeile / 2.0F, zahl,
                      std::to_string(gestalt.zeilen.at(k)));
    }
}

bool Beruehrt(const Flaeche& a, const Flaeche& b) {
    return a.x <= b.x + b.breite && b.x <= a.x + a.breite && a.y <= b.y + b.hoehe && b.y <= a.y + a.hoehe;
}

// Two short lines at each corner, outside of what stays.
void MarkenZeichnen(Zeichnung& zeichnung, const Flaeche& kachel) {
    constexpr Stift stift{3_dp, farbeSchwarz};
    constexpr Millimeter abstand = 1_mm;
    constexpr Millimeter laenge = 4_mm;
    for (const float unten : {0.0F, 1.0F}) {
        for (const float rechts : {0.0F, 1.0F}) {
            const Millimeter x = kachel.x + rechts * kachel.breite;
            const Millimeter y = kachel.y + unten * kachel.hoehe;
            const float nachRechts = 2.0F * rechts - 1.0F;
            const float nachUnten = 2.0F * unten - 1.0F;
            zeichnung.emplace_back(
                Strich{x + nachRechts * abstand, y, x + nachRechts * (abstand + laenge), y, stift});
            zeichnung.emplace_back(
                Strich{x, y + nachUnten * abstand, x, y + nachUnten * (abstand + laenge), stift});
        }
    }
}

// A board on its way onto pages.
class Zerschnitt {
public:
    Zerschnitt(Blattart brett, Zeichnung zeichnung, const Schriftmass& mass)
        : brett_(brett), kacheln_(KachelnVon(brett)), zeichnung_(std::move(zeichnung)), mass_(mass) {
        for (const Element& element : zeichnung_) {
            umrisse_.push_back(Umriss(element, mass_));
        }
    }

    // zeile, spalte: from 0; kachel: what the page shows of the board.
    [[nodiscard]] Zeichnung Seite(int zeile, int spalte, const Flaeche& kachel) const {
        const Flaeche platz{schnittrand, schnittrand, kachel.breite, kachel.hoehe};
        Zeichnung seite;
        const bool mehrere = kacheln_.spalten * kacheln_.zeilen > 1;
        if (mehrere) {
            seite.emplace_back(Zuschnitt{platz});
        }
        for (std::size_t i = 0; i < zeichnung_.size(); ++i) {
            if (Beruehrt(umrisse_.at(i), kachel)) {
                seite.push_back(Verschoben(zeichnung_.at(i), platz.x - kachel.x, platz.y - kachel.y));
            }
        }
        if (mehrere) {
            seite.emplace_back(Zuschnitt{});
            MarkenZeichnen(seite, platz);
            Beschriften(seite, zeile, spalte, platz);
        }
        return seite;
    }

private:
    void Beschriften(Zeichnung& seite, int zeile, int spalte, const Flaeche& platz) const {
        const Druckschrift schrift{Schriftart::Arial, 7_pt, false};
        const int anzahl = kacheln_.spalten * kacheln_.zeilen;
        const std::string text =
            Einsetzen(blatttexte::kachel,
                      {Blattname(brett_), std::to_string(zeile * kacheln_.spalten + spalte + 1),
                       std::to_string(anzahl), std::to_string(zeile + 1), std::to_string(spalte + 1)});
        seite.emplace_back(Textstelle{platz.x + 8_mm, platz.y + platz.hoehe + 1_mm, schrift, text});
    }

    Blattart brett_;
    Kacheln kacheln_;
    Zeichnung zeichnung_;
    std::vector<Flaeche> umrisse_;
    const Schriftmass& mass_;
};

} // namespace

Kacheln KachelnVon(Blattart brett) {
    switch (brett) {
    case Blattart::BrettA3:
        return {false, 2, 1};
    case Blattart::BrettA2:
        return {true, 2, 2};
    case Blattart::BrettA1:
        return {false, 4, 2};
    case Blattart::BrettA0:
        return {true, 4, 4};
    default:
        return {};
    }
}

Spielbrett BrettZeichnen(const FKDruckdaten& daten, Millimeter breite, Millimeter hoehe,
                         const Schriftmass& mass) {
    Spielbrett brett;
    const Gestalt gestalt = GestaltVon(daten);
    if (gestalt.gebiete.empty()) {
        return brett;
    }
    const Brettmasse masse(gestalt, breite, hoehe);
    const std::vector<Textsatz> titel = Titelsaetze(daten, gestalt, masse, mass);
    for (std::size_t i = 0; i < gestalt.gebiete.size(); ++i) {
        SpalteZeichnen(brett.zeichnung, daten, gestalt, i, masse, titel.at(i), mass);
        if (!titel.at(i).passt) {
            const Befundort ort{Formart::Quiz, Teil::Gebiet, gestalt.gebiete.at(i)};
            brett.ueberhaenge.push_back(
                {0, {masse.X(i), 0_mm, masse.spalte, masse.kopf}, Befundsatz(ort, blatttexte::titelZuLang)});
        }
    }
    return brett;
}

Blattsatz BrettBlaetter(const FKDruckdaten& daten, Blattart brett, const Schriftmass& mass) {
    const Kacheln kacheln = KachelnVon(brett);
    const Millimeter breite = (kacheln.quer ? a4Lang : a4Kurz) - 2.0F * schnittrand;
    const Millimeter hoehe = (kacheln.quer ? a4Kurz : a4Lang) - 2.0F * schnittrand;
    Spielbrett ganzes = BrettZeichnen(daten, static_cast<float>(kacheln.spalten) * breite,
                                      static_cast<float>(kacheln.zeilen) * hoehe, mass);
    const Zerschnitt zerschnitt(brett, std::move(ganzes.zeichnung), mass);
    Blattsatz blatt;
    blatt.quer = kacheln.quer;
    for (Ueberhang& titel : ganzes.ueberhaenge) { // all titles stand on the uppermost pages
        const int spalte = static_cast<int>(titel.kasten.x / breite);
        titel.seite = static_cast<std::size_t>(spalte);
        titel.kasten.x += schnittrand - static_cast<float>(spalte) * breite;
        titel.kasten.y += schnittrand;
        blatt.ueberhaenge.push_back(std::move(titel));
    }
    for (int zeile = 0; zeile < kacheln.zeilen; ++zeile) {
        for (int spalte = 0; spalte < kacheln.spalten; ++spalte) {
            blatt.seiten.push_back(zerschnitt.Seite(
                zeile, spalte,
                {static_cast<float>(spalte) * breite, static_cast<float>(zeile) * hoehe, breite, hoehe}));
        }
    }
    return blatt;
}
