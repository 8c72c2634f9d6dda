#include "sheets/karten.h"

#include "core/meldungstext.h"
#include "printing/feldwert.h"
#include "printing/texte.h"
#include "quizform/quizformular.h"
#include "sheets/farbreihe.h"
#include "sheets/texte.h"
#include "sheets/textsatz.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

// Both kinds are wider than high. kante: along which the paper is turned, so that left and right change.
struct Kartenmasse {
    bool quer = false;
    Wenden kante = Wenden::LangeKante;
    int spalten = 0, zeilen = 0;
    Schriftpunkte titel, kopf, text, kleinste;
    Millimeter innen; // free around what is printed: printers turn paper a little askew
};
constexpr std::array<Kartenmasse, 2> masse{
    {{false, Wenden::LangeKante, 2, 4, 24_pt, 11_pt, 16_pt, 6_pt, 5_mm},
     {true, Wenden::KurzeKante, 4, 4, 17_pt, 9_pt, 12_pt, 5_pt, 4_mm}}};

constexpr Stift duenn{2_dp, {128, 128, 128}};

struct Karte {
    int n = 0;
    std::size_t gebiet = 0;
    const FKDruckfeld* feld = nullptr;
    const Artzeile* art = nullptr;
    std::string titel; // "" for none
};

std::string Titel(const FKDruckdaten& daten, std::size_t gebiet) {
    const std::string& titel = daten.gebiete.at(gebiet).titel;
    return titel == drucktexte::keinTitel ? std::string() : titel;
}

std::vector<Karte> KartenVon(const FKDruckdaten& daten) {
    std::vector<Karte> karten;
    for (int n = 1; n <= anzahlFelder; ++n) {
        const FKDruckfeld& feld = daten.felder.at(static_cast<std::size_t>(n));
        if (feld.frageSichtbar) {
            const auto gebiet = static_cast<std::size_t>(GebietVon(n));
            karten.push_back({n, gebiet, &feld, Feldart(feld), Titel(daten, gebiet)});
        }
    }
    return karten;
}

Flaeche Eingerueckt(const Flaeche& f, Millimeter um) {
    return {f.x + um, f.y + um, f.breite - 2.0F * um, f.hoehe - 2.0F * um};
}

std::string Punktetext(const std::string& wert) {
    return wert == "1" ? std::string(blatttexte::einPunkt) : Einsetzen(blatttexte::mehrPunkte, {wert});
}

// The pages of a set of cards.
class Kartensatz {
public:
    Kartensatz(const FKDruckdaten& daten, const Kartenmasse& m, const Schriftmass& mass)
        : daten_(daten),
          m_(m),
          mass_(mass),
          breite_(((m.quer ? a4Lang : a4Kurz) - 2.0F * schnittrand) / static_cast<float>(m.spalten)),
          hoehe_(((m.quer ? a4Kurz : a4Lang) - 2.0F * schnittrand) / static_cast<float>(m.zeilen)) {}

    [[nodiscard]] Blattsatz Blaetter() {
        blatt_.quer = m_.quer;
        blatt_.wenden = m_.kante;
        const std::vector<Karte> karten = KartenVon(daten_);
        const auto jeSeite = static_cast<std::size_t>(m_.spalten) * static_cast<std::size_t>(m_.zeilen);
        for (std::size_t erste = 0; erste < karten.size(); erste += jeSeite) {
            const std::span<const Karte> teil(karten.data() + erste,
                                              std::min(jeSeite, karten.size() - erste));
            VornZeichnen(teil);
            HintenZeichnen(teil);
        }
        return std::move(blatt_);
    }

private:
    [[nodiscard]] Flaeche Platz(std::size_t i, bool gespiegelt) const {
        const auto spalten = static_cast<std::size_t>(m_.spalten);
        const std::size_t spalte = gespiegelt ? spalten - 1 - i % spalten : i % spalten;
        const std::size_t zeile = i / spalten;
        return {schnittrand + static_cast<float>(spalte) * breite_,
                schnittrand + static_cast<float>(zeile) * hoehe_, breite_, hoehe_};
    }

    // The lines to cut along are in front only: behind they would stand beside them.
    void SchnittlinienZeichnen(Zeichnung& seite) const {
        constexpr Millimeter hinaus = 4_mm;
        const Millimeter rechts = schnittrand + static_cast<float>(m_.spalten) * breite_;
        const Millimeter unten = schnittrand + static_cast<float>(m_.zeilen) * hoehe_;
        for (int i = 0; i <= m_.spalten; ++i) {
            const Millimeter x = schnittrand + static_cast<float>(i) * breite_;
            seite.emplace_back(Strich{x, schnittrand - hinaus, x, unten + hinaus, duenn});
        }
        for (int i = 0; i <= m_.zeilen; ++i) {
            const Millimeter y = schnittrand + static_cast<float>(i) * hoehe_;
            seite.emplace_back(Strich{schnittrand - hinaus, y, rechts + hinaus, y, duenn});
        }
    }

    void VornZeichnen(std::span<const Karte> karten) {
        Zeichnung& seite = blatt_.seiten.emplace_back();
        SchnittlinienZeichnen(seite);
        for (std::size_t i = 0; i < karten.size(); ++i) {
            VorderseiteZeichnen(seite, karten[i], Platz(i, false));
        }
    }
    void VorderseiteZeichnen(Zeichnung& seite, const Karte& karte, const Flaeche& platz) {
        const Flaeche innen = Eingerueckt(platz, m_.innen);
        const Gebietsfarben farben = FarbenVon(karte.gebiet);
        const Flaeche kopf{innen.x, innen.y, innen.breite, innen.hoehe * 0.34F};
        const Flaeche rest{innen.x, kopf.y + kopf.hoehe, innen.breite, innen.hoehe - kopf.hoehe};
        seite.emplace_back(Rechteck{rest.x, rest.y, rest.breite, rest.hoehe, duenn, farben.feld});
        seite.emplace_back(Rechteck{kopf.x, kopf.y, kopf.breite, kopf.hoehe, duenn, farben.kopf});
        Setzen(seite, karte, Teil::Gebiet, karte.titel, Eingerueckt(kopf, 1.5_mm),
               {Schriftart::Arial, m_.titel, true});
        const Druckschrift zahl{Schriftart::Arial, Schriftpunkte(rest.hoehe.zahl() * 2.0F), true};
        TextZentriert(seite, mass_, rest.x + rest.breite / 2.0F, rest.y + rest.hoehe / 2.0F, zahl,
                      std::to_string(ZeileVon(karte.n)));
    }

    void HintenZeichnen(std::span<const Karte> karten) {
        Zeichnung& seite = blatt_.seiten.emplace_back();
        for (std::size_t i = 0; i < karten.size(); ++i) {
            RueckseiteZeichnen(seite, karten[i], Eingerueckt(Platz(i, true), m_.innen));
        }
    }
    void RueckseiteZeichnen(Zeichnung& seite, const Karte& karte, const Flaeche& innen) {
        const Druckschrift kopf{Schriftart::Arial, m_.kopf, true};
        const Millimeter kopfhoehe = mass_.Hoehe(kopf) + 1_mm;
        KopfZeichnen(seite, karte, innen, kopf);
        seite.emplace_back(
            Strich{innen.x, innen.y + kopfhoehe, innen.x + innen.breite, innen.y + kopfhoehe, duenn});
        const Flaeche rest{innen.x, innen.y + kopfhoehe + 1_mm, innen.breite, innen.hoehe - kopfhoehe - 1_mm};
        if (HatWort(karte.art)) {
            const std::string wort = std::string(karte.art->druckWort).append("\n").append(Wert(karte));
            Setzen(seite, karte, Teil::Frage, wort, rest, {Schriftart::Arial, m_.titel, true});
            return;
        }
        TexteSetzen(seite, karte, rest);
    }

    // "Natur 3" on the left, "Glück, 10 Punkte" on the right of a special field.
    void KopfZeichnen(Zeichnung& seite, const Karte& karte, const Flaeche& innen,
                      const Druckschrift& schrift) {
        std::string rechts;
        if (karte.art != nullptr && !HatWort(karte.art)) {
            rechts = std::string(karte.art->name).append(", ").append(Wert(karte));
        }
        const Millimeter rechtsBreite = mass_.Breite(rechts, schrift);
        if (!rechts.empty()) {
            seite.emplace_back(Textstelle{innen.x + innen.breite - rechtsBreite, innen.y, schrift, rechts});
        }
        std::string links = karte.titel.empty()
                                ? Einsetzen(blatttexte::gebiet, {std::to_string(karte.gebiet)}).append(",")
                                : karte.titel;
        links.append(" ").append(std::to_string(ZeileVon(karte.n)));
        const Textsatz satz = Einpassen(links, innen.breite - rechtsBreite - (rechts.empty() ? 0_mm : 3_mm),
                                        mass_.Hoehe(schrift), schrift, m_.kleinste, mass_);
        VonObenSetzen(seite, satz, innen, mass_);
    }

    // Question above, answer below, each with as much of the room as its length asks for.
    void TexteSetzen(Zeichnung& seite, const Karte& karte, const Flaeche& rest) {
        const bool antwort = karte.feld->antwortSichtbar && !karte.feld->antwort.empty();
        const std::string& text = karte.feld->antwort;
        const float anteil = !antwort ? 0.0F : text.size() > karte.feld->frage.size() ? 0.5F : 0.34F;
        const Millimeter fuge = antwort ? 1_mm : 0_mm;
        const Flaeche oben{rest.x, rest.y, rest.breite, rest.hoehe * (1.0F - anteil) - fuge};
        Setzen(seite, karte, Teil::Frage, karte.feld->frage, oben, {Schriftart::Arial, m_.text, false});
        if (antwort) {
            const Flaeche unten{rest.x, rest.y + rest.hoehe - rest.hoehe * anteil + fuge, rest.breite,
                                rest.hoehe * anteil - fuge};
            seite.emplace_back(
                Strich{unten.x, unten.y - fuge, unten.x + unten.breite, unten.y - fuge, duenn});
            Setzen(seite, karte, Teil::Antwort, text, unten, {Schriftart::Arial, m_.text, true});
        }
    }

    [[nodiscard]] std::string Wert(const Karte& karte) const {
        return Punktetext(Feldwert(karte.art, daten_.punkte, ZeileVon(karte.n)));
    }

    void Setzen(Zeichnung& seite, const Karte& karte, Teil teil, std::string_view text, const Flaeche& kasten,
                const Druckschrift& schrift) {
        const Textsatz satz = Einpassen(text, kasten.breite, kasten.hoehe, schrift, m_.kleinste, mass_);
        MittigSetzen(seite, satz, kasten, mass_);
        if (!satz.passt) {
            const int nummer = teil == Teil::Gebiet ? static_cast<int>(karte.gebiet) : karte.n;
            blatt_.ueberhaenge.push_back({blatt_.seiten.size() - 1, kasten,
                                          Befundsatz({Formart::Quiz, teil, nummer}, blatttexte::ohnePlatz)});
        }
    }

    const FKDruckdaten& daten_;
    const Kartenmasse& m_;
    const Schriftmass& mass_;
    Millimeter breite_, hoehe_; // of a card
    Blattsatz blatt_;
};

} // namespace

Blattsatz KartenBlaetter(const FKDruckdaten& daten, Kartenzahl zahl, const Schriftmass& mass) {
    return Kartensatz(daten, masse.at(static_cast<std::size_t>(zahl)), mass).Blaetter();
}
