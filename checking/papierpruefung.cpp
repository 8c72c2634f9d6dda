#include "checking/papierpruefung.h"

#include "checking/papierkasten.h"
#include "checking/texte.h"
#include "printing/druckdaten.h"
#include "printing/feldlayout.h"
#include "printing/testseite.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

// --- Quiz form ---

// A quiz form's sheet of which one text at a time is laid out.
class Quizblatt {
public:
    Quizblatt(const FKDruckdaten& daten, const Druckgeometrie& g, const Schriftmass& mass,
              Papierbefunde& befunde)
        : daten_(daten), g_(g), mass_(mass), sammler_(befunde) {
        einzeln_.punkte = daten.punkte;
    }

    void KopfPruefen() {
        FKDruckdaten nur;
        nur.datum = daten_.datum;
        nur.zeit = daten_.zeit;
        nur.nummer = daten_.nummer;
        const std::vector<Textstelle> texte =
            Texte(FormularZeichnen(nur, g_, mass_),
                  [this](const Textstelle& text) { return text.schrift.groesse == 11_pt * g_.Massstab; });
        const Millimeter ende = g_.RandLinks + 6.0F * g_.SpaltenRaster - g_.LueckeX;
        constexpr std::array teile{Teil::Datum, Teil::Zeit, Teil::Nr};
        for (std::size_t i = 0; i < std::min(texte.size(), teile.size()); ++i) {
            const Millimeter grenze = i + 1 < texte.size() ? texte.at(i + 1).x : ende;
            const Flaeche kasten = Kasten({texte.at(i)}, mass_);
            sammler_.Ueberstand({Formart::Quiz, teile.at(i), 0}, pruefungtexte::kopfHinaus,
                                RechterRand(kasten) - grenze, kasten);
        }
    }

    void GebietPruefen(int gebiet) {
        const auto a = static_cast<std::size_t>(gebiet);
        FKDruckdaten nur;
        nur.gebiete.at(a) = daten_.gebiete.at(a);
        const std::vector<Textstelle> texte =
            Texte(FormularZeichnen(nur, g_, mass_),
                  [this](const Textstelle& text) { return text.schrift.groesse == 14_pt * g_.Massstab; });
        const Millimeter links = g_.RandLinks + static_cast<float>(gebiet - 1) * g_.SpaltenRaster;
        for (const Textstelle& text : texte) { // one, if any
            sammler_.Ueberstand({Formart::Quiz, Teil::Gebiet, gebiet}, pruefungtexte::titelHinaus,
                                links - text.x, Kasten({text}, mass_));
        }
    }

    void FeldPruefen(int n) {
        const auto stelle = static_cast<std::size_t>(n);
        einzeln_.felder.at(stelle) = daten_.felder.at(stelle);
        Zeichnung zeichnung;
        FelderZeichnen(zeichnung, einzeln_, g_, mass_);
        einzeln_.felder.at(stelle) = {};
        const Millimeter oben = g_.ZeilenOben + static_cast<float>(ZeileVon(n) - 1) * g_.ZeilenRaster;
        TeilPruefen(zeichnung, {Formart::Quiz, Teil::Frage, n}, oben + g_.FrageHoehe);
        TeilPruefen(zeichnung, {Formart::Quiz, Teil::Antwort, n}, oben + g_.FrageHoehe + g_.AntwortHoehe);
    }

private:
    void TeilPruefen(const Zeichnung& zeichnung, const Befundort& ort, Millimeter unten) {
        const bool antwort = ort.teil == Teil::Antwort;
        const std::vector<Textstelle> zeilen = Texte(zeichnung, [this, antwort](const Textstelle& text) {
            return text.schrift == Druckschrift{Schriftart::Arial, 8_pt * g_.Massstab, antwort};
        });
        const Millimeter rechts = g_.RandLinks +
                                  static_cast<float>(GebietVon(ort.nummer) - 1) * g_.SpaltenRaster +
                                  g_.SpaltenBreite;
        const Flaeche kasten = Kasten(zeilen, mass_);
        sammler_.Ueberstand(ort, pruefungtexte::untenHinaus, UntererRand(kasten) - unten, kasten);
        sammler_.Ueberstand(ort, pruefungtexte::rechtsHinaus, RechterRand(kasten) - rechts, kasten);
    }

    const FKDruckdaten& daten_;
    const Druckgeometrie& g_;
    const Schriftmass& mass_;
    Sammler sammler_;
    FKDruckdaten einzeln_; // no cell is in play but the one looked at
};

// --- Test form ---

// The lines of the first row of a test's sheet, without its number.
std::vector<Textstelle> Zeilen(const Testdruckdaten& daten, const Testgeometrie& g, const Schriftmass& mass) {
    const Millimeter links = g.TestRandLinks + g.TestNummerSpalte + g.TestTextEinzug;
    return Texte(TestZeichnen(daten, g, mass), [&](const Textstelle& text) {
        return text.x == links && text.y >= g.TestFragenOben && text.schrift.groesse == 10_pt;
    });
}

class Testblattpruefung {
public:
    Testblattpruefung(const Testgeometrie& g, const Schriftmass& mass, Papierbefunde& befunde)
        : g_(g), mass_(mass), sammler_(befunde) {}

    // teil: where the text stands in the sheet's values; rechts: from the frame's left edge.
    void KopfPruefen(Teil teil, std::string Testdruckdaten::*wert, const std::string& text,
                     Millimeter rechts) {
        Testdruckdaten nur;
        nur.*wert = text;
        const std::vector<Textstelle> texte = Texte(
            TestZeichnen(nur, g_, mass_), [&text](const Textstelle& stelle) { return stelle.text == text; });
        const Flaeche kasten = Kasten(texte, mass_);
        sammler_.Ueberstand({Formart::Test, teil, 0}, pruefungtexte::kopfHinaus,
                            RechterRand(kasten) - g_.TestRandLinks - rechts, kasten);
    }

    // reihe: from 0, of the rows that are printed.
    void FragePruefen(int i, int reihe, const std::string& frage, bool mitAntwort) {
        Testdruckdaten nur;
        nur.zeilen[1].frage = frage;
        const Millimeter hoehe = mitAntwort ? g_.TestZeile / 2.0F : g_.TestZeile;
        Pruefen({Formart::Test, Teil::Frage, i}, reihe, Zeilen(nur, g_, mass_), hoehe,
                mitAntwort ? pruefungtexte::inDieAntwort : pruefungtexte::untenHinaus);
    }

    void AntwortPruefen(int i, int reihe, const std::string& antwort) {
        Testdruckdaten nur;
        nur.zeilen[1] = {"?", antwort, ""}; // no answer is printed without a question
        nur.mitAntworten = true;
        std::vector<Textstelle> zeilen = Zeilen(nur, g_, mass_);
        std::erase_if(zeilen, [this](const Textstelle& zeile) { return zeile.y == g_.TestFragenOben; });
        Pruefen({Formart::Test, Teil::Antwort, i}, reihe, zeilen, g_.TestZeile, pruefungtexte::untenHinaus);
    }

private:
    void Pruefen(const Befundort& ort, int reihe, const std::vector<Textstelle>& zeilen, Millimeter hoehe,
                 std::string_view untenText) {
        const Millimeter links = g_.TestRandLinks + g_.TestNummerSpalte + g_.TestTextEinzug;
        const Flaeche kasten = Kasten(zeilen, mass_);
        Flaeche platz = kasten; // it was laid out as the first row
        platz.y += static_cast<float>(reihe) * g_.TestRaster;
        sammler_.Ueberstand(ort, untenText, UntererRand(kasten) - g_.TestFragenOben - hoehe, platz);
        sammler_.Ueberstand(ort, pruefungtexte::rechtsHinaus, RechterRand(kasten) - links - g_.TestTextBreite,
                            platz);
    }

    const Testgeometrie& g_;
    const Schriftmass& mass_;
    Sammler sammler_;
};

// The findings without their places.
Befunde Ohne(Papierbefunde befunde) {
    Befunde ohne;
    ohne.reserve(befunde.size());
    for (Papierbefund& befund : befunde) {
        ohne.push_back(std::move(befund.befund));
    }
    return ohne;
}

} // namespace

Papierbefunde Ueberstaende(const Quizformular& form, const Spielwerte& spiel, bool blanko,
                           const Druckursprung& ursprung, const Schriftmass& mass) {
    Papierbefunde befunde;
    const std::optional<Papier> papier = PapierAus(spiel.Papierformat);
    if (!papier) {
        return befunde;
    }
    const Druckgeometrie g =
        GeometrieRechnen(*papier, Millimeter(spiel.Zwischenabstand), ursprung.links, ursprung.oben);
    const FKDruckdaten daten = DruckdatenAus(form, spiel, blanko);
    Quizblatt blatt(daten, g, mass, befunde);
    blatt.KopfPruefen();
    for (int a = 1; a <= anzahlGebiete && !blanko; ++a) {
        blatt.GebietPruefen(a);
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        blatt.FeldPruefen(n);
    }
    return befunde;
}

Papierbefunde Ueberstaende(const Testformular& form, bool mitAntworten, const Druckursprung& ursprung,
                           const Schriftmass& mass) {
    Papierbefunde befunde;
    const auto anzahl =
        std::ranges::count_if(form.HBFrageText, [](const auto& text) { return !text.empty(); });
    const Testgeometrie g = TestGeometrieRechnen(static_cast<int>(anzahl), ursprung.links, ursprung.oben);
    Testblattpruefung blatt(g, mass, befunde);
    constexpr Millimeter bisStrich = 140_mm; // in front of the right part of the head
    blatt.KopfPruefen(Teil::Titel, &Testdruckdaten::titel, form.HBKopf1, bisStrich);
    blatt.KopfPruefen(Teil::Fach, &Testdruckdaten::fach, form.HBKopf2, bisStrich);
    blatt.KopfPruefen(Teil::Gruppe, &Testdruckdaten::gruppe, form.HBKopf3, g.TestBreite);
    int reihe = 0;
    for (int i = 1; i <= anzahlTestfragen; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        if (form.HBFrageText.at(stelle).empty()) {
            continue; // nothing of the row is printed
        }
        const std::string& antwort = form.HBAntwortText.at(stelle);
        const bool mitAntwort = mitAntworten && !antwort.empty();
        blatt.FragePruefen(i, reihe, form.HBFrageText.at(stelle), mitAntwort);
        if (mitAntwort) {
            blatt.AntwortPruefen(i, reihe, antwort);
        }
        ++reihe;
    }
    return befunde;
}

Befunde PapierPruefen(const Quizformular& form, const Spielwerte& spiel, const Schriftmass& mass) {
    return Ohne(Ueberstaende(form, spiel, false, {}, mass));
}

Befunde PapierPruefen(const Testformular& form, const Schriftmass& mass) {
    return Ohne(Ueberstaende(form, true, {}, mass));
}

std::string Millimetertext(Millimeter laenge) {
    const long zehntel = std::lround(laenge.zahl() * 10.0F);
    return std::to_string(zehntel / 10) + ',' + std::to_string(zehntel % 10);
}
