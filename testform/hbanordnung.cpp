// Where the controls of the test form stand, in which order Tab visits them and what they tell about
// themselves.
#include "core/oberflaeche.h"
#include "testform/frmHBFragen.h"
#include "testform/texte.h"
#include "tooltips/hinweise.h"

#include <algorithm>
#include <utility>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void ZeileAnordnen(frmHBFragen& form, int n, const TestMasse& masse, Massstab massstab) {
    const auto i = Stelle(n);
    const int y = masse.ZeileOben(n);
    const auto setzen = [&](QWidget* teil, int x, int breite, bool fett) {
        PixelGeometrie(teil, {x, y, breite, masse.zeilenHoehe}, massstab);
        teil->setFont(Schrift(masse.schrift, fett, massstab));
    };
    setzen(form.pnlNr.at(i), TestMasse::rand, masse.nummerBreite, false);
    setzen(form.txtFrage.at(i), masse.FrageLinks(), masse.frageBreite, false);
    setzen(form.txtAntwort.at(i), masse.AntwortLinks(), masse.antwortBreite, false);
    setzen(form.pnlPunkte.at(i), masse.PunkteLinks(), masse.punkteBreite, true);
    PixelGeometrie(form.spnPunkte.at(i), {masse.DrehLinks(), y, masse.drehBreite, masse.zeilenHoehe},
                   massstab);
}

// The panel with its button at the right, the list in the panel's place.
void WahlAnordnen(const Kopfwahl& wahl, QRect platz, const QFont& schrift, Massstab massstab) {
    constexpr int tastenBreite = 24;
    PixelGeometrie(wahl.panel, platz.adjusted(0, 0, -tastenBreite, 0), massstab);
    PixelGeometrie(wahl.taste, {platz.right() + 1 - tastenBreite, platz.y(), tastenBreite, platz.height()},
                   massstab);
    wahl.liste->setGeometry(wahl.panel->geometry());
    wahl.panel->setFont(schrift);
    wahl.liste->setFont(schrift);
}

// Behind the words on its panel.
void GruppeAnordnen(const frmHBFragen& form, Massstab massstab) {
    const Panel& panel = *form.gruppe.panel;
    const int links = QFontMetrics(panel.font()).horizontalAdvance(panel.caption()) + massstab.Kante(8);
    const int oben = std::min(massstab.Strich(2), 2);
    form.lblGruppe->setGeometry(links, oben, panel.width() - links - oben - 1, panel.height() - 2 * oben);
}

} // namespace

QSize frmHBFragen::Originalgroesse() const {
    return {masse_->Breite(), masse_->Hoehe()};
}

void frmHBFragen::Anordnen(Massstab massstab) {
    setFixedSize(massstab.Kante(masse_->Breite()), massstab.Kante(masse_->Hoehe()));
    KopfAnordnen(massstab);
    UeberschriftenAnordnen(massstab);
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        ZeileAnordnen(*this, n, *masse_, massstab);
    }
    FussAnordnen(massstab);
}

// As on paper: title and subject at the left, number and group at the right of them, the name below.
void frmHBFragen::KopfAnordnen(Massstab massstab) {
    const TestMasse& masse = *masse_;
    const int rechts = masse.AntwortLinks();
    const int linksBreite = rechts - TestMasse::rand - TestMasse::luecke;
    const int rechtsBreite = masse.Breite() - TestMasse::rand - rechts;
    const QFont gross = Schrift(masse.kopfSchrift, true, massstab);
    const QFont klein = Schrift(masse.schrift, false, massstab);
    WahlAnordnen(titel, {TestMasse::rand, masse.KopfOben(0), linksBreite, masse.kopfHoehe}, gross, massstab);
    WahlAnordnen(fach, {TestMasse::rand, masse.KopfOben(1), linksBreite, masse.kopfHoehe}, gross, massstab);
    WahlAnordnen(gruppe, {rechts, masse.KopfOben(1), rechtsBreite, masse.kopfHoehe}, klein, massstab);
    PixelGeometrie(pnlTest, {rechts, masse.KopfOben(0), rechtsBreite, masse.kopfHoehe}, massstab);
    PixelGeometrie(
        pnlName, {TestMasse::rand, masse.KopfOben(2), masse.Breite() - 2 * TestMasse::rand, masse.kopfHoehe},
        massstab);
    pnlTest->setFont(klein);
    pnlName->setFont(klein);
    lblGruppe->setFont(gross);
    GruppeAnordnen(*this, massstab);
}

void frmHBFragen::UeberschriftenAnordnen(Massstab massstab) {
    for (const auto& [name, links] :
         {std::pair{"lblFrage", masse_->FrageLinks()}, std::pair{"lblAntwort", masse_->AntwortLinks()},
          std::pair{"lblPunkte", masse_->PunkteLinks()}}) {
        auto* ueberschrift = findChild<QWidget*>(QLatin1String(name));
        ueberschrift->setFont(Schrift(8_pt, false, massstab));
        PixelGeometrie(ueberschrift, {links, masse_->KopfOben(3) - 2, 54, TestMasse::ueberschrift}, massstab);
        ueberschrift->resize(std::max(ueberschrift->width(), ueberschrift->sizeHint().width()),
                             ueberschrift->height());
    }
}

// The lines that are filled in by hand, and the total below the points.
void frmHBFragen::FussAnordnen(Massstab massstab) {
    const std::array<Panel*, 4> fuss{pnlGesamtpunkte, pnlNote, pnlBewertet, pnlPunktkontrolle};
    const int breite = masse_->Breite() - 2 * TestMasse::rand;
    const int raster = (breite + TestMasse::luecke) / static_cast<int>(fuss.size());
    int x = TestMasse::rand;
    for (Panel* panel : fuss) {
        const int ende = panel == fuss.back() ? TestMasse::rand + breite : x + raster - TestMasse::luecke;
        PixelGeometrie(panel, {x, masse_->FussOben(), ende - x, masse_->kopfHoehe}, massstab);
        panel->setFont(Schrift(masse_->schrift, panel == pnlPunktkontrolle, massstab));
        x += raster;
    }
}

QPoint frmHBFragen::Platz(QSize mitRahmen, QPoint wieGeoeffnet) const {
    const QSize schirm = Bildschirmgroesse(this);
    if (schirm.width() < 1280) {
        return wieGeoeffnet;
    }
    constexpr int leisten = 62; // what stands above the child area
    return {std::max(0, (schirm.width() - mitRahmen.width()) / 2),
            std::max(0, (schirm.height() - mitRahmen.height()) / 2 - leisten)};
}

void frmHBFragen::TabfolgeSetzen() {
    QWidget* davor = titel.taste;
    const auto weiter = [&davor](QWidget* naechstes) {
        setTabOrder(davor, naechstes);
        davor = naechstes;
    };
    for (QWidget* teil :
         std::initializer_list<QWidget*>{titel.liste, fach.taste, fach.liste, gruppe.taste, gruppe.liste}) {
        weiter(teil);
    }
    for (std::size_t i = 1; i < txtFrage.size(); ++i) {
        weiter(txtFrage.at(i));
        weiter(txtAntwort.at(i));
        weiter(spnPunkte.at(i));
    }
}

void frmHBFragen::HinweiseSetzen() {
    const auto setzen = [](QWidget* teil, const hbtexte::Hinweis& hinweis) {
        HinweisSetzen(teil, hinweis.tipp, hbtexte::tipptitel, hinweis.status);
    };
    struct Wahltipp {
        const Kopfwahl& wahl;
        const hbtexte::Hinweis& hinweis;
    };
    for (const auto& [wahl, hinweis] :
         {Wahltipp{titel, hbtexte::tippTitel}, Wahltipp{fach, hbtexte::tippFach},
          Wahltipp{gruppe, hbtexte::tippGruppe}}) {
        setzen(wahl.panel, hinweis);
        setzen(wahl.taste, hinweis);
        setzen(wahl.liste, hinweis);
    }
    for (const auto& [name, hinweis] :
         {std::pair{"lblFrage", &hbtexte::tippFragen}, std::pair{"lblAntwort", &hbtexte::tippAntworten},
          std::pair{"lblPunkte", &hbtexte::tippPunkte}}) {
        setzen(findChild<QWidget*>(QLatin1String(name)), *hinweis);
    }
    setzen(pnlTest, hbtexte::tippNummer);
    setzen(pnlName, hbtexte::tippName);
    setzen(pnlBewertet, hbtexte::tippBewertet);
    setzen(pnlNote, hbtexte::tippNote);
    setzen(pnlGesamtpunkte, hbtexte::tippSumme);
    setzen(pnlPunktkontrolle, hbtexte::tippSumme);
    for (std::size_t i = 1; i < txtFrage.size(); ++i) {
        setzen(pnlNr.at(i), hbtexte::tippZeile);
        setzen(txtFrage.at(i), hbtexte::tippFrage);
        setzen(txtAntwort.at(i), hbtexte::tippAntwort);
        setzen(pnlPunkte.at(i), hbtexte::tippPunkte);
        setzen(spnPunkte.at(i), hbtexte::tippDreh);
    }
}
