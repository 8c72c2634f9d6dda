#include "quizform/feldbild.h"

#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"

FeldBild FeldBildFuer(std::string_view buchstabe, bool leer, bool einzeln) {
    FeldBild bild;
    if (const auto art = ArtVon(buchstabe)) {
        const Artzeile& zeile = ArtzeileVon(*art);
        bild.spezialGrund = zeile.spezial.grund;
        bild.spezialSchrift = zeile.spezial.schrift;
        bild.miniatur = zeile.miniatur;
        bild.rahmen = einzeln ? zeile.rahmenEinzeln : zeile.rahmen;
        bild.textGrund = zeile.text;
        bild.zentriert = zeile.zentriert;
        bild.frageMarke = zeile.frageMarke;
        bild.antwortMarke = zeile.antwortMarke;
    } else if (!leer) {
        bild.miniatur = farbeWeiss;
        bild.textGrund = farbeWeiss;
    }
    return bild;
}
