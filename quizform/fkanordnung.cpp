// Where the controls of the quiz form stand, in which order Tab visits them and what they tell about
// themselves.
#include "core/oberflaeche.h"
#include "quizform/fkereignisse.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/texte.h"
#include "rules/spezialfelder.h"
#include "tooltips/hinweise.h"

#include <algorithm>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void FeldAnordnen(frmFKFragen& form, int n, const FormMasse& masse) {
    const int x = FormMasse::links + (GebietVon(n) - 1) * masse.SpaltenRaster();
    const int y = masse.RasterOben() + (ZeileVon(n) - 1) * masse.ZeilenRaster();
    const int textLinks = x + masse.punkteBreite + masse.textAbstand;
    TwipsGeometrie(form.pnlPunkte.at(Stelle(n)), x, y, masse.punkteBreite, masse.frageHoehe);
    TwipsGeometrie(form.pnlSpezial.at(Stelle(n)), x, y + masse.frageHoehe, masse.punkteBreite,
                   masse.antwortHoehe - 15);
    TwipsGeometrie(form.txtFrage.at(Stelle(n)), textLinks, y, masse.frageBreite, masse.frageHoehe);
    TwipsGeometrie(form.txtAntwort.at(Stelle(n)), textLinks, y + masse.frageHoehe - 15, masse.frageBreite,
                   masse.antwortHoehe);
    TwipsGeometrie(form.shpFrage.at(Stelle(n)), textLinks - 15, y - 15, masse.frageBreite + 45,
                   masse.frageHoehe + masse.antwortHoehe + 30);
}

// The label stands at the left of its panel, the box takes the rest.
void KopfzeileEinpassen(Panel* panel, QWidget* zeile, const QFont& schrift) {
    panel->setFont(schrift);
    zeile->setFont(schrift);
    const int beschriftung = QFontMetrics(schrift).horizontalAdvance(panel->caption()) + 8;
    zeile->setGeometry(beschriftung, 2, panel->width() - beschriftung - 3, panel->height() - 4);
}

} // namespace

void frmFKFragen::Anordnen(const FormMasse& masse) {
    setFixedSize(Pixel(masse.InnenBreite()), Pixel(masse.InnenHoehe()));
    const int raster = masse.SpaltenRaster();
    TwipsGeometrie(pnlKranz, FormMasse::links, FormMasse::kopfOben, 2 * raster - masse.spaltenAbstand,
                   masse.kopfHoehe);
    int spalte = 2;
    for (QWidget* teil : std::initializer_list<QWidget*>{pnlDatum, pnlZeit, pnlNr, cmdFKSchliessen}) {
        TwipsGeometrie(teil, FormMasse::links + spalte++ * raster, FormMasse::kopfOben, masse.TitelBreite(),
                       masse.kopfHoehe);
    }
    const QFont schrift = Schrift(masse.schrift);
    pnlKranz->setFont(Schrift(12, true));
    cmdFKSchliessen->setFont(schrift);
    KopfzeileEinpassen(pnlDatum, txtDatum, schrift);
    KopfzeileEinpassen(pnlZeit, txtZeit, schrift);
    KopfzeileEinpassen(pnlNr, txtNr, schrift);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        Panel* titel = pnlWissen.at(Stelle(a));
        TwipsGeometrie(titel, FormMasse::links + (a - 1) * raster, masse.TitelOben(), masse.TitelBreite(),
                       masse.titelHoehe);
        titel->setFont(schrift);
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        FeldAnordnen(*this, n, masse);
        for (QWidget* teil :
             std::initializer_list<QWidget*>{txtFrage.at(Stelle(n)), txtAntwort.at(Stelle(n)),
                                             pnlPunkte.at(Stelle(n)), pnlSpezial.at(Stelle(n))}) {
            teil->setFont(schrift);
        }
        // Two lines of an answer fit its box only without the toolkit's own margin.
        txtFrage.at(Stelle(n))->document()->setDocumentMargin(1);
        txtAntwort.at(Stelle(n))->document()->setDocumentMargin(1);
    }
    cmbWissen->setFont(schrift);
    cmbSpezial->setFont(schrift);
}

QPoint frmFKFragen::Platz(QSize mitRahmen, QPoint wieGeoeffnet) const {
    const int breite = HolAuflösungX();
    if (breite == 800) {
        return {0, 0};
    }
    if (breite < 1280) {
        return wieGeoeffnet;
    }
    // On a low screen the rule would put the title bar out of reach.
    const int oben = HolAuflösungY() / 2 - mitRahmen.height() / 2 - Pixel(930);
    return {std::max(0, (breite - mitRahmen.width()) / 2), std::max(0, oben)};
}

void frmFKFragen::TabfolgeSetzen() {
    QWidget* davor = txtDatum;
    const auto weiter = [&davor](QWidget* naechstes) {
        setTabOrder(davor, naechstes);
        davor = naechstes;
    };
    weiter(txtZeit);
    weiter(txtNr);
    weiter(cmdFKSchliessen);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        weiter(pnlWissen.at(Stelle(a)));
        for (int r = 1; r <= fragenJeGebiet; ++r) {
            const auto n = Stelle(Feldnummer(a, r));
            weiter(txtFrage.at(n));
            weiter(txtAntwort.at(n));
            weiter(pnlSpezial.at(n));
        }
    }
}

void frmFKFragen::HinweiseSetzen() {
    const auto setzen = [](QWidget* teil, const fktexte::Hinweis& hinweis) {
        HinweisSetzen(teil, hinweis.tipp, "Feldkranz", hinweis.status);
    };
    setzen(pnlKranz, fktexte::kopf);
    setzen(cmdFKSchliessen, fktexte::schliessen);
    setzen(cmbWissen, fktexte::wissenListe);
    setzen(cmbSpezial, fktexte::spezialListe);
    setzen(pnlDatum, fktexte::datum);
    setzen(txtDatum, fktexte::datum);
    setzen(pnlZeit, fktexte::zeit);
    setzen(txtZeit, fktexte::zeit);
    setzen(pnlNr, fktexte::nr);
    setzen(txtNr, fktexte::nr);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        setzen(pnlWissen.at(Stelle(a)), fktexte::wissen);
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        setzen(txtFrage.at(Stelle(n)), fktexte::frage);
        setzen(txtAntwort.at(Stelle(n)), fktexte::antwort);
        setzen(pnlPunkte.at(Stelle(n)), fktexte::punkte);
    }
    SpezialTippsErneuern();
}

void frmFKFragen::SpezialTippsErneuern() {
    const std::string tipp = SpezialTipp(Spiel);
    for (int n = 1; n <= anzahlFelder; ++n) {
        HinweisSetzen(pnlSpezial.at(Stelle(n)), tipp, "Feldkranz", fktexte::spezialStatus);
    }
}
