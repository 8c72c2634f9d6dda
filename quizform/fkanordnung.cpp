// Where the controls of the quiz form stand, in which order Tab visits them and what they tell about
// themselves.
#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "quizform/fkereignisse.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/texte.h"
#include "rules/spezialfelder.h"
#include "tooltips/hinweise.h"

#include <QFontMetricsF>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int saum = 1; // two lines of an answer fit its box only without the toolkit's own margin

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

// Two lines of an answer may lack a pixel or three in another size, and then their box would scroll; its
// question spares them.
FormMasse MitZweiZeilen(FormMasse masse, Massstab massstab, const QFont& schrift) {
    constexpr int hoechstens = 3;
    constexpr int drumherum = 2 + 2 * saum + 1; // frame, margins, and one that the toolkit wants to see free
    const int noetig = 2 * qCeil(QFontMetricsF(schrift).lineSpacing()) + drumherum;
    const Twips hoehe = TwipsAus(noetig) * Massstab::original / massstab.prozent();
    const Twips fehlt = hoehe - masse.antwortHoehe;
    if (!massstab.istOriginal() && fehlt > 0_tw && fehlt * massstab <= TwipsAus(hoechstens)) {
        masse.antwortHoehe += fehlt;
        masse.frageHoehe += -fehlt;
    }
    return masse;
}

void FeldAnordnen(frmFKFragen& form, int n, const FormMasse& masse, Massstab massstab) {
    const Twips x = FormMasse::links + (GebietVon(n) - 1) * masse.SpaltenRaster();
    const Twips y = masse.RasterOben() + (ZeileVon(n) - 1) * masse.ZeilenRaster();
    const Twips textLinks = x + masse.punkteBreite + masse.textAbstand;
    TwipsGeometrie(form.pnlPunkte.at(Stelle(n)), x, y, masse.punkteBreite, masse.frageHoehe, massstab);
    TwipsGeometrie(form.pnlSpezial.at(Stelle(n)), x, y + masse.frageHoehe, masse.punkteBreite,
                   masse.antwortHoehe - 15_tw, massstab);
    TwipsGeometrie(form.txtFrage.at(Stelle(n)), textLinks, y, masse.frageBreite, masse.frageHoehe, massstab);
    TwipsGeometrie(form.txtAntwort.at(Stelle(n)), textLinks, y + masse.frageHoehe - 15_tw, masse.frageBreite,
                   masse.antwortHoehe, massstab);
    // The frame sticks out on all sides, at every size.
    const int davor = massstab.Strich(Pixel(15_tw));
    const int dahinter = massstab.Strich(Pixel(30_tw));
    form.shpFrage.at(Stelle(n))->setGeometry(form.txtFrage.at(Stelle(n))
                                                 ->geometry()
                                                 .united(form.txtAntwort.at(Stelle(n))->geometry())
                                                 .adjusted(-davor, -davor, dahinter, dahinter));
}

// The label stands at the left of its panel, the box takes the rest.
void KopfzeileEinpassen(Panel* panel, QWidget* zeile, Massstab massstab) {
    const int links = panel->fontMetrics().horizontalAdvance(panel->caption()) + massstab.Kante(8);
    const int oben = std::min(massstab.Strich(2), 2);
    zeile->setGeometry(links, oben, panel->width() - links - oben - 1, panel->height() - 2 * oben);
}

} // namespace

QSize frmFKFragen::Originalgroesse() const {
    return {Pixel(masse_->InnenBreite()), Pixel(masse_->InnenHoehe())};
}

void frmFKFragen::KopfAnordnen(Massstab massstab) {
    const FormMasse& masse = *masse_;
    const Twips raster = masse.SpaltenRaster();
    TwipsGeometrie(pnlKranz, FormMasse::links, FormMasse::kopfOben, 2 * raster - masse.spaltenAbstand,
                   masse.kopfHoehe, massstab);
    int spalte = 2;
    for (QWidget* teil : std::initializer_list<QWidget*>{pnlDatum, pnlZeit, pnlNr, cmdFKSchliessen}) {
        TwipsGeometrie(teil, FormMasse::links + spalte++ * raster, FormMasse::kopfOben, masse.TitelBreite(),
                       masse.kopfHoehe, massstab);
    }
    pnlKranz->setFont(Schrift(12_pt, true, massstab));
    KopfzeileEinpassen(pnlDatum, txtDatum, massstab);
    KopfzeileEinpassen(pnlZeit, txtZeit, massstab);
    KopfzeileEinpassen(pnlNr, txtNr, massstab);
    cmdFKSchliessen->setIconSize(QSize(tastenbildKante, tastenbildKante) * massstab.prozent() /
                                 Massstab::original);
}

void frmFKFragen::Anordnen(Massstab massstab) {
    const QFont schrift = Schrift(masse_->schrift, false, massstab);
    const FormMasse masse = MitZweiZeilen(*masse_, massstab, schrift);
    const QSize groesse = Originalgroesse();
    setFixedSize(massstab.Kante(groesse.width()), massstab.Kante(groesse.height()));
    setFont(schrift);
    KopfAnordnen(massstab);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        Panel* titel = pnlWissen.at(Stelle(a));
        TwipsGeometrie(titel, FormMasse::links + (a - 1) * masse.SpaltenRaster(), masse.TitelOben(),
                       masse.TitelBreite(), masse.titelHoehe, massstab);
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        FeldAnordnen(*this, n, masse, massstab);
        txtFrage.at(Stelle(n))->document()->setDocumentMargin(saum);
        txtAntwort.at(Stelle(n))->document()->setDocumentMargin(saum);
    }
    OffeneListeStellen(*this);
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
    const int oben = HolAuflösungY() / 2 - mitRahmen.height() / 2 - Pixel(930_tw);
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
