#include "sheets/textfluss.h"

#include "core/meldungstext.h"
#include "sheets/texte.h"
#include "sheets/textsatz.h"

#include <algorithm>
#include <array>

namespace {

constexpr Druckschrift gross{Schriftart::Arial, 18_pt, true};
constexpr Druckschrift mittel{Schriftart::Arial, 12_pt, true};
constexpr Druckschrift normal{Schriftart::Arial, 10_pt, false};
constexpr Druckschrift fett{Schriftart::Arial, 10_pt, true};
constexpr Druckschrift klein{Schriftart::Arial, 8_pt, false};
constexpr Stift linie{2_dp, {160, 160, 160}};
constexpr Farbe grund{232, 232, 232};

constexpr Millimeter links = 15_mm;
constexpr Millimeter rechts = a4Kurz - 15_mm;
constexpr Millimeter oben = 14_mm;
constexpr Millimeter unten = a4Lang - 18_mm;
constexpr Millimeter luft = 1.2_mm; // above and below the texts of a row

// The columns: number, question, answer, points.
struct Spalte {
    Millimeter x, breite;
    Druckschrift schrift;
};
constexpr std::array<Spalte, 4> spalten{
    {{16_mm, 9_mm, normal}, {26_mm, 88_mm, normal}, {118_mm, 55_mm, fett}, {177_mm, 17_mm, normal}}};

using Zellen = std::array<std::vector<std::string_view>, spalten.size()>;

class Flussgang {
public:
    Flussgang(const Textfluss& fluss, const Schriftmass& mass) : fluss_(fluss), mass_(mass) {}

    Blattsatz Blaetter() {
        NeueSeite();
        KopfSetzen();
        for (const Flussabschnitt& abschnitt : fluss_.abschnitte) {
            AbschnittSetzen(abschnitt);
        }
        if (!fluss_.schluss.empty()) {
            Platzschaffen(mass_.Hoehe(fett) + 3_mm);
            Text(links + 1_mm, y_ + 3_mm, fett, fluss_.schluss);
        }
        SeitenzahlenSetzen();
        return std::move(blatt_);
    }

private:
    void NeueSeite() {
        blatt_.seiten.emplace_back();
        y_ = oben;
    }
    // True when a new page was needed.
    bool Platzschaffen(Millimeter hoehe) {
        if (y_ + hoehe <= unten) {
            return false;
        }
        NeueSeite();
        return true;
    }
    void Text(Millimeter x, Millimeter y, const Druckschrift& schrift, std::string_view text) {
        if (!text.empty()) {
            blatt_.seiten.back().emplace_back(Textstelle{x, y, schrift, std::string(text)});
        }
    }
    void Linie(Millimeter y) { blatt_.seiten.back().emplace_back(Strich{links, y, rechts, y, linie}); }

    void ZeilenSetzen(std::string_view text, const Druckschrift& schrift) {
        for (const std::string_view zeile : Zeilen(text, rechts - links, schrift, mass_)) {
            Platzschaffen(mass_.Hoehe(schrift));
            Text(links, y_, schrift, zeile);
            y_ += mass_.Hoehe(schrift);
        }
    }
    void KopfSetzen() {
        ZeilenSetzen(fluss_.kopf, gross);
        for (const std::string& zeile : fluss_.unterkopf) {
            ZeilenSetzen(zeile, normal);
        }
        y_ += 3_mm;
        constexpr std::array<std::string_view, spalten.size()> namen{
            "", blatttexte::spalteFrage, blatttexte::spalteAntwort, blatttexte::spaltePunkte};
        for (std::size_t i = 0; i != spalten.size(); ++i) {
            Text(spalten.at(i).x, y_, klein, namen.at(i));
        }
        y_ += mass_.Hoehe(klein) + 0.5_mm;
        Linie(y_);
    }

    void TitelSetzen(std::string_view titel) {
        if (titel.empty()) {
            return;
        }
        const Millimeter hoehe = mass_.Hoehe(mittel) + 2_mm;
        y_ += y_ > oben ? 2_mm : 0_mm;
        blatt_.seiten.back().emplace_back(Rechteck{links, y_, rechts - links, hoehe, linie, grund});
        const Textsatz satz = Einpassen(titel, rechts - links - 2_mm, hoehe - 2_mm, mittel, 6_pt, mass_);
        VonObenSetzen(blatt_.seiten.back(), satz, {links + 1_mm, y_ + 1_mm, rechts - links - 2_mm, hoehe},
                      mass_);
        y_ += hoehe;
    }

    void AbschnittSetzen(const Flussabschnitt& abschnitt) {
        const Millimeter titelhoehe = abschnitt.titel.empty() ? 0_mm : mass_.Hoehe(mittel) + 4_mm;
        for (std::size_t i = 0; i < abschnitt.zeilen.size(); ++i) {
            const Zellen zellen = ZellenVon(abschnitt.zeilen.at(i));
            const bool neu = Platzschaffen(Zeilenhoehe(Tiefste(zellen)) + (i == 0 ? titelhoehe : 0_mm));
            if (i == 0) {
                TitelSetzen(abschnitt.titel);
            } else if (neu && !abschnitt.titel.empty()) {
                TitelSetzen(Einsetzen(blatttexte::weiter, {abschnitt.titel}));
            }
            ZeileSetzen(zellen);
        }
    }

    [[nodiscard]] Zellen ZellenVon(const Flusszeile& zeile) const {
        const std::array<const std::string*, spalten.size()> texte{&zeile.nummer, &zeile.frage,
                                                                   &zeile.antwort, &zeile.punkte};
        Zellen zellen;
        for (std::size_t i = 0; i != spalten.size(); ++i) {
            zellen.at(i) = Zeilen(*texte.at(i), spalten.at(i).breite, spalten.at(i).schrift, mass_);
        }
        return zellen;
    }
    [[nodiscard]] static std::size_t Tiefste(const Zellen& zellen) {
        std::size_t tiefste = 1;
        for (const auto& zelle : zellen) {
            tiefste = std::max(tiefste, zelle.size());
        }
        return tiefste;
    }
    [[nodiscard]] Millimeter Zeilenhoehe(std::size_t zeilen) const {
        return static_cast<float>(zeilen) * mass_.Hoehe(normal) + 2.0F * luft;
    }

    // A row longer than a page goes on on the next one.
    void ZeileSetzen(const Zellen& zellen) {
        const std::size_t anzahl = Tiefste(zellen);
        for (std::size_t von = 0; von < anzahl;) {
            const float frei = (unten - y_ - 2.0F * luft) / mass_.Hoehe(normal);
            if (frei < 1.0F) {
                NeueSeite();
                continue;
            }
            const std::size_t bis = std::min(anzahl, von + static_cast<std::size_t>(frei + 0.001F));
            for (std::size_t i = 0; i != spalten.size(); ++i) {
                ZelleSetzen(spalten.at(i), zellen.at(i), von, bis);
            }
            y_ += Zeilenhoehe(bis - von);
            Linie(y_);
            von = bis;
        }
    }
    void ZelleSetzen(const Spalte& spalte, const std::vector<std::string_view>& zeilen, std::size_t von,
                     std::size_t bis) {
        for (std::size_t k = von; k < std::min(bis, zeilen.size()); ++k) {
            Text(spalte.x, y_ + luft + static_cast<float>(k - von) * mass_.Hoehe(normal), spalte.schrift,
                 zeilen.at(k));
        }
    }

    void SeitenzahlenSetzen() {
        const std::size_t anzahl = blatt_.seiten.size();
        for (std::size_t i = 0; anzahl > 1 && i < anzahl; ++i) {
            TextZentriert(blatt_.seiten.at(i), mass_, a4Kurz / 2.0F, a4Lang - 12_mm, klein,
                          Einsetzen(blatttexte::seite, {std::to_string(i + 1), std::to_string(anzahl)}));
        }
    }

    const Textfluss& fluss_;
    const Schriftmass& mass_;
    Blattsatz blatt_;
    Millimeter y_; // where the next thing goes
};

} // namespace

Blattsatz Fliessen(const Textfluss& fluss, const Schriftmass& mass) {
    return Flussgang(fluss, mass).Blaetter();
}
