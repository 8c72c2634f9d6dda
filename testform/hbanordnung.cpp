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

void ZeileAnordnen(frmHBFragen& form, int n, const TestMasse& masse) {
    const auto i = Stelle(n);
    const int y = masse.ZeileOben(n);
    form.pnlNr.at(i)->setGeometry(TestMasse::rand, y, masse.nummerBreite, masse.zeilenHoehe);
    form.txtFrage.at(i)->setGeometry(masse.FrageLinks(), y, masse.frageBreite, masse.zeilenHoehe);
    form.txtAntwort.at(i)->setGeometry(masse.AntwortLinks(), y, masse.antwortBreite, masse.zeilenHoehe);
    form.pnlPunkte.at(i)->setGeometry(masse.PunkteLinks(), y, masse.punkteBreite, masse.zeilenHoehe);
    form.spnPunkte.at(i)->setGeometry(masse.DrehLinks(), y, masse.drehBreite, masse.zeilenHoehe);
    const QFont schrift = Schrift(masse.schrift);
    form.pnlNr.at(i)->setFont(schrift);
    form.txtFrage.at(i)->setFont(schrift);
    form.txtAntwort.at(i)->setFont(schrift);
    form.pnlPunkte.at(i)->setFont(Schrift(masse.schrift, true));
}

// The panel with its button at the right, the list in the panel's place.
void WahlAnordnen(const Kopfwahl& wahl, QRect platz, const QFont& schrift) {
    constexpr int tastenBreite = 24;
    wahl.panel->setGeometry(platz.adjusted(0, 0, -tastenBreite, 0));
    wahl.taste->setGeometry(platz.right() + 1 - tastenBreite, platz.y(), tastenBreite, platz.height());
    wahl.liste->setGeometry(wahl.panel->geometry());
    wahl.panel->setFont(schrift);
    wahl.liste->setFont(schrift);
}

} // namespace

void frmHBFragen::Anordnen(const TestMasse& masse) {
    setFixedSize(masse.Breite(), masse.Hoehe());
    KopfAnordnen(masse);
    UeberschriftenBauen(masse);
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        ZeileAnordnen(*this, n, masse);
    }
    FussAnordnen(masse);
}

// As on paper: title and subject at the left, number and group at the right of them, the name below.
void frmHBFragen::KopfAnordnen(const TestMasse& masse) {
    const int rechts = masse.AntwortLinks();
    const int linksBreite = rechts - TestMasse::rand - TestMasse::luecke;
    const int rechtsBreite = masse.Breite() - TestMasse::rand - rechts;
    const QFont gross = Schrift(masse.kopfSchrift, true);
    const QFont klein = Schrift(masse.schrift);
    WahlAnordnen(titel, {TestMasse::rand, masse.KopfOben(0), linksBreite, masse.kopfHoehe}, gross);
    WahlAnordnen(fach, {TestMasse::rand, masse.KopfOben(1), linksBreite, masse.kopfHoehe}, gross);
    WahlAnordnen(gruppe, {rechts, masse.KopfOben(1), rechtsBreite, masse.kopfHoehe}, klein);
    pnlTest->setGeometry(rechts, masse.KopfOben(0), rechtsBreite, masse.kopfHoehe);
    pnlName->setGeometry(TestMasse::rand, masse.KopfOben(2), masse.Breite() - 2 * TestMasse::rand,
                         masse.kopfHoehe);
    pnlTest->setFont(klein);
    pnlName->setFont(klein);
    lblGruppe->setFont(gross);
    const int beschriftung = QFontMetrics(klein).horizontalAdvance(gruppe.panel->caption()) + 8;
    lblGruppe->setGeometry(beschriftung, 2, gruppe.panel->width() - beschriftung - 3, masse.kopfHoehe - 4);
}

void frmHBFragen::UeberschriftenBauen(const TestMasse& masse) {
    struct Spalte {
        const char* name;
        const char* wort;
        int links;
    };
    for (const auto& [name, wort, links] : {Spalte{"lblFrage", "Frage", masse.FrageLinks()},
                                            Spalte{"lblAntwort", "Antwort", masse.AntwortLinks()},
                                            Spalte{"lblPunkte", "Punkte", masse.PunkteLinks()}}) {
        auto* ueberschrift = new QLabel(QString::fromUtf8(wort), this);
        ueberschrift->setObjectName(QLatin1String(name));
        ueberschrift->setFont(Schrift(8));
        ueberschrift->setGeometry(links, masse.KopfOben(3) - 2, 54, TestMasse::ueberschrift);
    }
}

// The lines that are filled in by hand, and the total below the points.
void frmHBFragen::FussAnordnen(const TestMasse& masse) {
    const std::array<Panel*, 4> fuss{pnlGesamtpunkte, pnlNote, pnlBewertet, pnlPunktkontrolle};
    const int breite = masse.Breite() - 2 * TestMasse::rand;
    const int raster = (breite + TestMasse::luecke) / static_cast<int>(fuss.size());
    int x = TestMasse::rand;
    for (Panel* panel : fuss) {
        const bool letztes = panel == fuss.back();
        panel->setGeometry(x, masse.FussOben(),
                           letztes ? TestMasse::rand + breite - x : raster - TestMasse::luecke,
                           masse.kopfHoehe);
        panel->setFont(Schrift(masse.schrift, panel == pnlPunktkontrolle));
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
