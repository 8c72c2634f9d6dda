#include "printing/druckdaten.h"

#include "quizform/feldregeln.h"

FKDruckdaten DruckdatenAus(const Quizformular& form, const Spielwerte& spiel, bool blanko) {
    FKDruckdaten daten;
    daten.datum = form.FormDatum;
    daten.zeit = form.FormZeit;
    daten.nummer = form.FormNr;
    for (std::size_t a = 1; a < daten.gebiete.size(); ++a) {
        daten.gebiete[a] = {form.WissenTitel[a], GebietOffen(spiel, static_cast<int>(a))};
    }
    const Feldsichten sichten = BrettSichten(spiel);
    for (std::size_t n = 1; n < daten.felder.size(); ++n) {
        daten.felder[n] = {form.FrageText[n], form.AntwortText[n], form.FeldSpezial[n], sichten[n].frage,
                           sichten[n].antwort};
    }
    daten.punkte = spiel.Punkte;
    daten.titelGrau = spiel.OptionTitel;
    daten.gebieteGrau = spiel.OptionWissen;
    daten.spezialFarbig = spiel.OptionJoker;
    daten.rahmenFarbig = spiel.OptionRahmen;
    daten.blanko = blanko;
    return daten;
}
