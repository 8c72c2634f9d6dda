#include "tests/printing/formularsoll.h"

#include <cmath>
#include <map>
#include <optional>
#include <sstream>

namespace {

struct Masse {
    double links, oben, massstab, luecke, breite, hoehe, kopf, kopfLuecke, gebiet, einzug, textOben, rahmen,
        frageAnteil;
    int strichKopf, strichFeld;
};

Masse MasseVon(Papier papier, double abstand) {
    if (papier == Papier::A4Quer) {
        return {10, 25, 1.0 - abstand / 50, abstand, 277, 175, 12, 3, 9, 8.5, 1.5, 1.0, 0.65, 11, 9};
    }
    return {6, 20, 0.7 - abstand / 50, abstand * 0.7, 198, 122, 8.4, 2.1, 6.3, 5.95, 0.875, 0.35, 0.7, 9, 7};
}

struct Kind {
    std::string grund, linie, wort;
};
const std::map<std::string, Kind> kinds{{"J", {"255,255,191", "159,159,0", "Joker"}},
                                        {"E", {"255,223,191", "255,127,0", "Ereignis"}},
                                        {"R", {"255,223,223", "255,0,0", ""}},
                                        {"G", {"223,255,223", "0,255,0", ""}},
                                        {"A", {"223,223,255", "0,0,255", ""}}};

// Ascent and descent of a line of Arial's metrics, for a size in points.
double Zeilenhoehe(double punkte) {
    return punkte * (0.905273 + 0.212402) * 25.4 / 72.0;
}

class Rechner {
public:
    Rechner(const FKDruckdaten& daten, Papier papier, double abstand)
        : daten_(daten),
          m_(MasseVon(papier, abstand)),
          spalte_((m_.breite - 5 * m_.luecke) / 6),
          zeile_((m_.hoehe - m_.kopf - m_.kopfLuecke - m_.gebiet - 5 * m_.luecke) / 5),
          frage_(zeile_ * m_.frageAnteil),
          nummer_(7 * m_.massstab) {}

    SollSeite Rechnen() {
        Kopf();
        for (int a = 0; a < 6; ++a) {
            Gebiet(a);
            for (int r = 0; r < 5; ++r) {
                Feld(a, r);
            }
        }
        return soll_;
    }

private:
    void Kasten(double x, double y, double b, double h, int punkte, const std::string& linie,
                const std::string& fuellung) {
        soll_.pfade.push_back({x, y, x + b, y + h, 4, punkte * 25.4 / 600, linie, fuellung});
    }
    void Linie(double x1, double y1, double x2, double y2) {
        soll_.pfade.push_back({x1, y1, x2, y2, 2, 5 * 25.4 / 600, "0,0,0", ""});
    }
    // The first word at the left edge, the others on the same height.
    void Zeile(double x, double y, const std::string& text, double punkte) {
        std::istringstream strom(text);
        std::string wort;
        bool erstes = true;
        while (strom >> wort) {
            soll_.worte.push_back(
                {wort, erstes ? SollWort::Halt::Links : SollWort::Halt::NurHoehe, x, y, Zeilenhoehe(punkte)});
            erstes = false;
        }
    }
    void Zeilen(double x, double y, const std::string& text, double punkte) {
        std::istringstream strom(text);
        std::string zeile;
        while (std::getline(strom, zeile)) {
            Zeile(x, y, zeile, punkte);
            y += Zeilenhoehe(punkte);
        }
    }
    void Mitte(double x, double y, const std::string& wort, double punkte) {
        if (!wort.empty()) {
            soll_.worte.push_back(
                {wort, SollWort::Halt::Mitte, x, y - Zeilenhoehe(punkte) / 2, Zeilenhoehe(punkte)});
        }
    }

    [[nodiscard]] double X(int a) const { return m_.links + a * (spalte_ + m_.luecke); }

    void Kopf() {
        Kasten(m_.links, m_.oben, m_.breite, m_.kopf, m_.strichKopf, "0,0,0",
               daten_.titelGrau ? "255,255,191" : "");
        Zeile(m_.links + 3 * m_.massstab, m_.oben + 2 * m_.massstab, "FELDKRANZ!", 20 * m_.massstab);
        const double y = m_.oben + 4.5 * m_.massstab;
        Zeile(X(3), y, "Datum :  " + daten_.datum, 11 * m_.massstab);
        Zeile(X(4), y, "Zeit :  " + daten_.zeit, 11 * m_.massstab);
        Zeile(X(5), y, "Nr :  " + daten_.nummer, 11 * m_.massstab);
    }

    void Gebiet(int a) {
        const double y = m_.oben + m_.kopf + m_.kopfLuecke;
        Kasten(X(a), y, spalte_, m_.gebiet, m_.strichFeld, "0,0,0", daten_.gebieteGrau ? "223,223,223" : "");
        const FKDruckgebiet& gebiet = daten_.gebiete[static_cast<std::size_t>(a) + 1];
        if (!daten_.blanko && gebiet.benutzbar && gebiet.titel != "Wissen") {
            Mitte(X(a) + spalte_ / 2, y + m_.gebiet / 2, gebiet.titel, 14 * m_.massstab);
        }
    }

    void Feld(int a, int r) {
        const FKDruckfeld& feld = daten_.felder[static_cast<std::size_t>(5 * a + r) + 1];
        const double x = X(a);
        const double y = m_.oben + m_.kopf + m_.kopfLuecke + m_.gebiet + m_.luecke + r * (zeile_ + m_.luecke);
        const auto kind = feld.frageSichtbar ? kinds.find(feld.spezial) : kinds.end();
        Kasten(x, y, spalte_, zeile_, 5, "0,0,0", "");
        if (kind != kinds.end()) {
            Kasten(x + m_.rahmen, y + m_.rahmen, spalte_ - 2 * m_.rahmen, zeile_ - 2 * m_.rahmen - 0.1,
                   m_.strichFeld, daten_.rahmenFarbig ? kind->second.linie : "0,0,0",
                   daten_.spezialFarbig ? kind->second.grund : "");
        }
        if (kind != kinds.end() && !kind->second.wort.empty()) {
            Mitte(x + spalte_ / 2, y + zeile_ / 2, kind->second.wort, 18 * m_.massstab);
        } else {
            if (kind != kinds.end()) {
                Kasten(x, y, spalte_, zeile_, 5, "0,0,0", "");
            }
            Linie(x + nummer_, y + frage_, x + spalte_, y + frage_);
            Linie(x + nummer_, y, x + nummer_, y + zeile_);
            Texte(feld, x, y);
        }
        if (feld.frageSichtbar) {
            Mitte(x + nummer_ / 2, y + frage_ / 2, Nummer(feld.spezial, r + 1), 12 * m_.massstab);
        }
    }

    void Texte(const FKDruckfeld& feld, double x, double y) {
        if (feld.frageSichtbar) {
            Zeilen(x + m_.einzug, y + m_.textOben, feld.frage, 8 * m_.massstab);
            if (!feld.spezial.empty()) {
                Mitte(x + nummer_ / 2, y + frage_ + (zeile_ - frage_) / 2, feld.spezial, 12 * m_.massstab);
            }
        }
        if (feld.antwortSichtbar) {
            Zeilen(x + m_.einzug, y + frage_ + m_.textOben, feld.antwort, 8 * m_.massstab);
        }
    }

    [[nodiscard]] std::string Nummer(const std::string& spezial, int r) const {
        const auto wahl = [&](bool gilt, int punkte, const std::string& sonst) {
            return gilt ? std::to_string(punkte) : sonst;
        };
        const std::string zeile = std::to_string(r);
        if (spezial == "J") {
            return wahl(daten_.punkte[Spezialart::Joker] > 0, daten_.punkte[Spezialart::Joker], zeile);
        }
        if (spezial == "E") {
            return wahl(daten_.punkte[Spezialart::Joker] > 0, daten_.punkte[Spezialart::Ereignis], zeile);
        }
        if (spezial == "R") {
            return wahl(daten_.punkte[Spezialart::Risiko] > 0, daten_.punkte[Spezialart::Risiko], "?");
        }
        if (spezial == "G") {
            return wahl(daten_.punkte[Spezialart::Glueck] > 0, daten_.punkte[Spezialart::Glueck], zeile);
        }
        return spezial == "A"
                   ? wahl(daten_.punkte[Spezialart::Aktion] > 0, daten_.punkte[Spezialart::Aktion], zeile)
                   : zeile;
    }

    const FKDruckdaten& daten_;
    Masse m_;
    double spalte_, zeile_, frage_, nummer_;
    SollSeite soll_;
};

bool Nah(double a, double b, double mm) {
    return std::abs(a - b) <= mm;
}

bool Gleich(const Pfad& a, const Pfad& b) {
    return a.ecken == b.ecken && a.linie == b.linie && a.fuellung == b.fuellung &&
           Nah(a.strich, b.strich, 0.01) && Nah(a.links, b.links, 0.02) && Nah(a.oben, b.oben, 0.02) &&
           Nah(a.rechts, b.rechts, 0.02) && Nah(a.unten, b.unten, 0.02);
}

bool Gleich(const SollWort& soll, const Wort& ist) {
    const double x = soll.halt == SollWort::Halt::Mitte ? (ist.links + ist.rechts) / 2 : ist.links;
    return soll.text == ist.text && Nah(soll.oben, ist.oben, 0.1) &&
           Nah(soll.hoehe, ist.unten - ist.oben, 0.03) &&
           (soll.halt == SollWort::Halt::NurHoehe || Nah(soll.x, x, 0.1));
}

std::string Text(const Pfad& p) {
    std::ostringstream strom;
    strom << p.ecken << " corners " << p.links << " " << p.oben << " " << p.rechts << " " << p.unten
          << " line " << p.strich << " " << p.linie << " fill " << p.fuellung << "\n";
    return strom.str();
}
std::string Text(const SollWort& w) {
    std::ostringstream strom;
    strom << "'" << w.text << "' at " << w.x << " " << w.oben << "\n";
    return strom.str();
}
std::string Text(const Wort& w) {
    std::ostringstream strom;
    strom << "'" << w.text << "' at " << w.links << " (centre " << (w.links + w.rechts) / 2 << ") " << w.oben
          << "\n";
    return strom.str();
}

// Strikes out each thing that should be there; what is left on either side is the difference.
template <typename Soll, typename Ist>
std::string Abstreichen(const std::vector<Soll>& soll, std::vector<Ist> ist) {
    std::string unterschied;
    for (const Soll& s : soll) {
        bool gefunden = false;
        for (std::size_t i = 0; i < ist.size() && !gefunden; ++i) {
            if (Gleich(s, ist[i])) {
                ist.erase(ist.begin() + static_cast<std::ptrdiff_t>(i));
                gefunden = true;
            }
        }
        unterschied += gefunden ? "" : "missing: " + Text(s);
    }
    for (const Ist& i : ist) {
        unterschied += "too much: " + Text(i);
    }
    return unterschied;
}

} // namespace

SollSeite FormularSoll(const FKDruckdaten& daten, Papier papier, double zwischenabstand) {
    return Rechner(daten, papier, zwischenabstand).Rechnen();
}

std::string Unterschied(const SollSeite& soll, const PdfSeite& ist) {
    return ist.fehler + Abstreichen(soll.pfade, ist.pfade) + Abstreichen(soll.worte, ist.worte);
}
