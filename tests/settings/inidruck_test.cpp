// What is chosen in the settings dialog is on the next sheet, also when the dialog has been cancelled: gap,
// paper, shading and frames, measured on the printed page. The system knows no printer here.
#include "tests/printing/pdfleser.h"
#include "tests/settings/inihilfe.h"

#include <algorithm>
#include <cmath>

namespace {

const std::string gelb = "255,255,191";
const std::string grau = "223,223,223";
const std::string orange = "255,223,191";

// Measures of the sheet in mm that a gap doesn't change.
struct Blatt {
    int option; // index of its option
    double breite, hoehe;
    double links, oben;   // corner of the frame
    double nutz, gitter;  // width of six columns, height of the whole
    double kopf, gebiet;  // heights of strip and heads
    double kopfLuecke;    // below the strip
    double lueckenfaktor; // on the gap
    QString wort;         // the second line of the question
};
const Blatt a4{1,   297, 210, 10, 25, 277,
               175, 12,  9,   3,  1,  QStringLiteral("auf DIN A4 quer (blattfüllend) aus !")};
const Blatt a5{0,   210, 297, 6,
               20,  198, 122, 8.4,
               6.3, 2.1, 0.7, QStringLiteral("auf DIN A4 hochkant (oberer Bereich für A5 quer) aus !")};

PdfSeite Drucken(const Programm& programm, const Blatt& blatt) {
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Formular drucken"),
                  QStringLiteral("Ich drucke das Formular für Feldkranz\n") + blatt.wort, 1);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDruckenFK"), 2), Qt::LeftButton);
    return PdfLesen(programm.ordner().nativ(QStringLiteral("KRANZ/Feldkranz.pdf")));
}

// How many boxes stand in that place.
int Kaesten(const PdfSeite& seite, double links, double oben, double breite, double hoehe) {
    const auto nahe = [](double ist, double soll) { return std::abs(ist - soll) <= 0.05; };
    return static_cast<int>(std::count_if(seite.pfade.begin(), seite.pfade.end(), [&](const Pfad& p) {
        return p.ecken == 4 && nahe(p.links, links) && nahe(p.oben, oben) &&
               nahe(p.rechts - p.links, breite) && nahe(p.unten - p.oben, hoehe);
    }));
}

// Line and filling of the first box with that corner, "none" where there is no such box.
QString Aussehen(const PdfSeite& seite, double links, double oben) {
    for (const Pfad& p : seite.pfade) {
        if (p.ecken == 4 && std::abs(p.links - links) <= 0.05 && std::abs(p.oben - oben) <= 0.05) {
            return QString::fromStdString(p.linie + "/" + p.fuellung);
        }
    }
    return QStringLiteral("none");
}

// Clicks in the dialog, which is then cancelled.
void Umschalten(const Programm& programm, int tab, const QString& name) {
    MitAbbrechen(programm, [&](const QDialog& dialog, const Dialogfolge&) {
        Register(dialog, tab);
        DruckeWahl(dialog, name);
    });
}

} // namespace

class IniDruckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }
    void gapAndPaperActOnTheNextSheet_data();
    void gapAndPaperActOnTheNextSheet();
    void theShadingOfTheStripAndTheTitlesActsOnTheNextSheet();
    void theShadingOfTheJokersGovernsTheEventsToo();
    void theColouredFramesActOnTheNextSheet();
};

void IniDruckTest::gapAndPaperActOnTheNextSheet_data() {
    QTest::addColumn<int>("option");
    QTest::addColumn<double>("abstand");
    const std::array<double, 5> abstaende{0.0, 1.0, 1.5, 2.0, 2.5};
    for (int i = 4; i >= 0; --i) { // never the one that the file has
        QTest::addRow("%.1f mm", abstaende.at(Nr(i))) << i << abstaende.at(Nr(i));
    }
}

void IniDruckTest::gapAndPaperActOnTheNextSheet() {
    QFETCH(int, option);
    QFETCH(double, abstand);
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Zwischenabstand = 0.7F;
    Umschalten(programm, 1, QStringLiteral("optZwischen(%1)").arg(option));
    for (const Blatt& blatt : {a5, a4}) {
        Umschalten(programm, 4, QStringLiteral("optDrucken(%1)").arg(blatt.option));
        const PdfSeite seite = Drucken(programm, blatt);
        QCOMPARE(seite.fehler, std::string());
        QVERIFY(std::abs(seite.breite - blatt.breite) < 0.2 && std::abs(seite.hoehe - blatt.hoehe) < 0.2);
        const double luecke = abstand * blatt.lueckenfaktor;
        const double spalte = (blatt.nutz - 5 * luecke) / 6;
        const double zeile = (blatt.gitter - blatt.kopf - blatt.kopfLuecke - blatt.gebiet - 5 * luecke) / 5;
        QCOMPARE(Kaesten(seite, blatt.links, blatt.oben, blatt.nutz, blatt.kopf), 1);
        const double gebiete = blatt.oben + blatt.kopf + blatt.kopfLuecke;
        for (int a = 0; a < 6; ++a) {
            const double x = blatt.links + a * (spalte + luecke);
            QCOMPARE(Kaesten(seite, x, gebiete, spalte, blatt.gebiet), 1);
            for (int r = 0; r < 5; ++r) {
                const double y = gebiete + blatt.gebiet + luecke + r * (zeile + luecke);
                QCOMPARE(Kaesten(seite, x, y, spalte, zeile), 1);
            }
        }
    }
}

void IniDruckTest::theShadingOfTheStripAndTheTitlesActsOnTheNextSheet() {
    Programm programm;
    programm.NeuesQuizformular();
    const QString schwarz = QStringLiteral("0,0,0/");
    const auto pruefen = [&](const std::string& kopf, const std::string& gebiet) {
        const PdfSeite seite = Drucken(programm, a4);
        QCOMPARE(Aussehen(seite, 10, 25), schwarz + QString::fromStdString(kopf));
        for (int a = 0; a < 6; ++a) {
            QCOMPARE(Aussehen(seite, 10 + a * 277.0 / 6, 40), schwarz + QString::fromStdString(gebiet));
        }
    };
    pruefen(gelb, grau);
    Umschalten(programm, 1, QStringLiteral("chkTitel"));
    pruefen("", grau);
    Umschalten(programm, 1, QStringLiteral("chkWissen"));
    pruefen("", "");
    Umschalten(programm, 1, QStringLiteral("chkTitel"));
    pruefen(gelb, "");
}

// Cell 1 is a Joker, cell 2 an event; their inner boxes stand 1 mm inside.
void IniDruckTest::theShadingOfTheJokersGovernsTheEventsToo() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 1, 1);
    SpezialWaehlen(form, 2, 5);
    const auto fuellungen = [&] {
        const PdfSeite seite = Drucken(programm, a4);
        return QStringList{Aussehen(seite, 11, 50).section(u'/', 1),
                           Aussehen(seite, 11, 80.2).section(u'/', 1)};
    };
    const QStringList farbig{QString::fromStdString(gelb), QString::fromStdString(orange)};
    QCOMPARE(fuellungen(), farbig);
    Umschalten(programm, 1, QStringLiteral("chkEreignis")); // changes nothing
    QCOMPARE(fuellungen(), farbig);
    Umschalten(programm, 1, QStringLiteral("chkJoker"));
    QCOMPARE(fuellungen(), (QStringList{QString(), QString()}));
}

void IniDruckTest::theColouredFramesActOnTheNextSheet() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 1, 1);
    SpezialWaehlen(form, 2, 5);
    const auto linien = [&] {
        const PdfSeite seite = Drucken(programm, a4);
        return QStringList{Aussehen(seite, 11, 50).section(u'/', 0, 0),
                           Aussehen(seite, 11, 80.2).section(u'/', 0, 0)};
    };
    QCOMPARE(linien(), (QStringList{QStringLiteral("159,159,0"), QStringLiteral("255,127,0")}));
    Umschalten(programm, 1, QStringLiteral("chkRahmen"));
    QCOMPARE(linien(), (QStringList{QStringLiteral("0,0,0"), QStringLiteral("0,0,0")}));
}

QTEST_MAIN(IniDruckTest)
#include "inidruck_test.moc"
