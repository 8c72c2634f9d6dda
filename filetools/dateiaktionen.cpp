#include "filetools/dateiaktionen.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/plattform.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/fehlerkasten.h"
#include "filetools/kopiername.h"

#include <algorithm>

namespace {

using namespace dateitexte;

// A question whose Ja destroys something.
bool JaAuf(const NachrichtText& frage, const std::string& name) {
    return Nachricht(frage, {name}) == Antwort::Ja;
}

void NamensfehlerMelden(Namensfehler art) {
    if (art == Namensfehler::Zeichen) {
        Fehlerkasten(Laufzeitfehler(Fehler::DateinameFalsch));
    } else {
        Meldung(namensfehler.at(static_cast<std::size_t>(art)));
    }
}

// The new name without extension, asked for until it is good; "" ends the command.
std::string NeuerName() {
    for (;;) {
        std::string name = Eingabe(kopierBild, kopierTitel, kopierFrage, "").value_or("");
        const auto fehler = KopiernamePruefen(name);
        for (const Namensfehler art : fehler) {
            NamensfehlerMelden(art);
        }
        if (fehler.empty() || name.empty()) {
            return name;
        }
    }
}

} // namespace

std::string Dateiort::pfad() const {
    return PfadVerbinden(ordner, name);
}

QString Dateiort::nativ() const {
    const QString genau = NativerPfad(ordner) + QLatin1Char('/') + QString::fromStdString(name);
    return plattform::ArtVon(genau) != plattform::Art::Nichts ? genau : NativerPfad(pfad());
}

void DateiKopierenMitFrage(const Dateiort& ort, const Aktualisieren& aktualisieren) {
    if (NichtsGewaehlt(ort.name)) {
        Systemkasten(Kastenart::Schlicht, hinweisTitel, nichtsSelektiert);
        return;
    }
    Meldung(kopierQuelle, {ort.pfad()});
    const std::string name = NeuerName();
    if (name.empty()) {
        return;
    }
    const Dateiort ziel{ort.ordner, name + Dateiendung(ort.name)};
    const bool kopiertWorden = Versuchen([&] {
        if (DateiDa(ziel.pfad()) && !JaAuf(kopieUeberschreiben, ziel.name)) {
            NamensfehlerMelden(Namensfehler::Leer);
            return false;
        }
        DateiKopieren(ort.pfad(), ziel.pfad());
        return true;
    });
    if (kopiertWorden) {
        aktualisieren(ziel.name);
        Meldung(kopiert, {ziel.pfad()});
    }
}

void DateiLoeschenMitFrage(const Dateiort& ort, const Aktualisieren& aktualisieren) {
    if (NichtsGewaehlt(ort.name)) {
        Meldung(nichtLoeschbar, {ort.name});
        return;
    }
    if (!JaAuf(dateiLoeschen, ort.name) || !JaAuf(dateiWirklichLoeschen, ort.name)) {
        Meldung(keineGeloescht);
        return;
    }
    const bool geloescht = Versuchen([&] {
        DateiLoeschen(ort.pfad());
        return true;
    });
    if (geloescht) {
        aktualisieren(ort.name);
        Meldung(dateiGeloescht, {ort.name});
    }
}

void DateiEditieren(const Dateiort& ort) {
    if (NichtsGewaehlt(ort.name)) {
        Systemkasten(Kastenart::Schlicht, hinweisTitel, nichtsSelektiert);
        return;
    }
    Versuchen([&] {
        if (!plattform::TexteditorStarten(NativerPfad(ort.pfad()))) {
            throw Laufzeitfehler(Fehler::DateiNichtGefunden);
        }
        return true;
    });
}

void PfadAnzeigen(const std::string& pfad) {
    const PfadTeile teile = PfadZerlegen(pfad);
    Systemkasten(Kastenart::Schlicht, pfadTitel,
                 Einsetzen(pfadZeilen, {teile.laufwerk, teile.ordner, teile.name, teile.endung}));
    Versuchen([&] {
        Systemkasten(Kastenart::Schlicht, pfadTitel, DateiDatum(pfad));
        return true;
    });
}
