#include "search/trefferweg.h"

#include "catalogue/auswahl.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "forms/einsetzen.h"
#include "quizform/feldregeln.h"
#include "quizform/fkformular.h"
#include "search/texte.h"
#include "search/zielfeld.h"
#include "testform/hbformular.h"
#include "testform/texte.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

// The places of the open form that are in play and empty. A marker is a text as well.
std::vector<bool> LeereFelder(Formart art) {
    std::vector<bool> leer{false};
    if (art == Formart::Test) {
        for (int n = 1; n <= anzahlTestfragen; ++n) {
            const std::string frage = HB_Frage(n);
            leer.push_back(frage.empty() || frage == hbtexte::platzhalter);
        }
        return leer;
    }
    const Feldsichten sichten = BrettSichten(Spiel);
    for (int n = 1; n <= anzahlFelder; ++n) {
        leer.push_back(sichten.at(static_cast<std::size_t>(n)).frage && FK_Frage(n).empty());
    }
    return leer;
}

} // namespace

Ziehwert Trefferwert(const Katalogfrage& frage) {
    return {Zugart::Auswahl, Formart::Keine, 0, std::string(frage.frage), std::string(frage.antwort)};
}

void TrefferEinsetzen(const Katalogfrage& frage) {
    const Formart art = OffeneArt();
    if (art == Formart::Keine) {
        HilfeText(suchtexte::keinFormular);
        return;
    }
    const int ziel = Zielfeld(LeereFelder(art), ZuletztBesucht());
    if (ziel == 0) {
        HilfeText(suchtexte::allesVoll);
        return;
    }
    const bool test = art == Formart::Test;
    test ? HB_Ablegen(ziel, Trefferwert(frage)) : FK_Ablegen(ziel, Trefferwert(frage));
    HilfeText(
        Einsetzen(suchtexte::eingesetzt, {test ? Zeilenname(ziel, "Frage") : Zellenname(ziel, "Frage")}));
}

void TrefferKopieren(const Katalogfrage& frage) {
    QGuiApplication::clipboard()->setText(Anzeige(frage.frage) + QLatin1Char('\n') + Anzeige(frage.antwort));
    HilfeText(suchtexte::kopiert);
}

void TrefferZeigen(const Fragenbestand& bestand, std::size_t nr) {
    const Katalogfrage frage = bestand.frage(nr);
    AuswahlFrageZeigen(frage.thema, frage.unterthema, frage.frage, bestand.ort(nr).frage);
}
