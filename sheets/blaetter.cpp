#include "sheets/blaetter.h"

#include "printing/druckdaten.h"
#include "sheets/antwortbogen.h"
#include "sheets/karten.h"
#include "sheets/spielbrett.h"

#include <utility>

namespace {

void UeberhaengeAus(Blattsatz& blatt, const Papierbefunde& befunde) {
    for (const Papierbefund& papier : befunde) {
        blatt.ueberhaenge.push_back({0, papier.kasten, Befundsatz(papier.befund.ort, papier.befund.text)});
    }
}

Blattsatz Bogen(const Quizvorlage& quiz, bool ohneTitel, const Druckursprung& ursprung,
                const Schriftmass& mass) {
    Blattsatz blatt;
    const std::optional<Papier> papier = PapierAus(quiz.spiel.Papierformat);
    if (!papier) {
        return blatt;
    }
    blatt.quer = *papier == Papier::A4Quer;
    const Druckgeometrie g =
        GeometrieRechnen(*papier, Millimeter(quiz.spiel.Zwischenabstand), ursprung.links, ursprung.oben);
    blatt.seiten.push_back(FormularZeichnen(DruckdatenAus(quiz.form, quiz.spiel, ohneTitel), g, mass));
    UeberhaengeAus(blatt, Ueberstaende(quiz.form, quiz.spiel, ohneTitel, ursprung, mass));
    return blatt;
}

Blattsatz Bogen(const Testvorlage& test, bool mitAntworten, const Druckursprung& ursprung,
                const Schriftmass& mass) {
    Blattsatz blatt;
    Testdruckdaten daten = test.druck;
    daten.mitAntworten = mitAntworten;
    const Testgeometrie g = TestGeometrieRechnen(AnzahlTestfragen(daten), ursprung.links, ursprung.oben);
    blatt.seiten.push_back(TestZeichnen(daten, g, mass));
    UeberhaengeAus(blatt, Ueberstaende(test.form, mitAntworten, ursprung, mass));
    return blatt;
}

// From the sheets' corners to the printable origin.
Blattsatz AbUrsprung(Blattsatz blatt, const Druckursprung& ursprung) {
    for (Zeichnung& seite : blatt.seiten) {
        for (Element& element : seite) {
            element = Verschoben(std::move(element), -ursprung.links, -ursprung.oben);
        }
    }
    for (Ueberhang& ueberhang : blatt.ueberhaenge) {
        ueberhang.kasten.x += -ursprung.links;
        ueberhang.kasten.y += -ursprung.oben;
    }
    return blatt;
}

Blattsatz WeiteresBlatt(const Quizvorlage& quiz, Blattart blatt, const Schriftmass& mass) {
    const FKDruckdaten daten = DruckdatenAus(quiz.form, quiz.spiel, false);
    switch (blatt) {
    case Blattart::Antwortbogen:
        return AntwortBlaetter(daten, mass);
    case Blattart::Karten8:
        return KartenBlaetter(daten, Kartenzahl::Acht, mass);
    case Blattart::Karten16:
        return KartenBlaetter(daten, Kartenzahl::Sechzehn, mass);
    default:
        return BrettBlaetter(daten, blatt, mass);
    }
}

} // namespace

bool BlattQuer(const Blattvorlage& vorlage, Blattart blatt) {
    switch (blatt) {
    case Blattart::Bogen: {
        const auto* quiz = std::get_if<Quizvorlage>(&vorlage);
        return quiz != nullptr && PapierAus(quiz->spiel.Papierformat) != Papier::A5Quer;
    }
    case Blattart::Antwortbogen:
    case Blattart::Karten8:
        return false;
    case Blattart::Karten16:
        return true;
    default:
        return KachelnVon(blatt).quer;
    }
}

Blattsatz BlattMachen(const Blattvorlage& vorlage, const Blattwunsch& wunsch, const Druckursprung& ursprung,
                      const Schriftmass& mass) {
    const auto* quiz = std::get_if<Quizvorlage>(&vorlage);
    if (wunsch.blatt == Blattart::Bogen) {
        return quiz != nullptr ? Bogen(*quiz, wunsch.ohneTitel, ursprung, mass)
                               : Bogen(std::get<Testvorlage>(vorlage), wunsch.mitAntworten, ursprung, mass);
    }
    return AbUrsprung(quiz != nullptr ? WeiteresBlatt(*quiz, wunsch.blatt, mass)
                                      : AntwortBlaetter(std::get<Testvorlage>(vorlage).druck, mass),
                      ursprung);
}
