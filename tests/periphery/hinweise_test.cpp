// Real pointer and keyboard on the real windows: what a control tells, and when its tip comes and goes.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "dialogs/eingabe.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "quizform/frmFKFragen.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/tippbeobachter.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltipps.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>

namespace {

class Buehne {
public:
    Buehne() { Wegfahren(); } // the last test may have left the pointer where this one points to

    [[nodiscard]] QWidget* Teil(const char* name) const {
        return Finden(programm.haupt(), QLatin1String(name));
    }
    [[nodiscard]] QString Status() const {
        return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption();
    }
    // Nobody speaks in the middle of the child area.
    void Wegfahren() const { maus::Bewegen(programm.haupt()->Kindflaeche(), QPoint(20, 300)); }

    Programm programm;
};

// The tip of a control's window, whether it stands or not.
const clsToolTipDeluxe& Objekt(QWidget* element) {
    return Tippobjekt(*element);
}

void TippAbwarten(QWidget* element, const QString& titel, const QString& text) {
    QTRY_VERIFY(Objekt(element).sichtbar());
    QCOMPARE(Objekt(element).tippfenster()->text(), text);
    QCOMPARE(Objekt(element).tippfenster()->aussehen().titel, titel);
    QVERIFY(element->screen()->geometry().contains(Objekt(element).tippfenster()->geometry()));
}

const QString neuTipp = QStringLiteral("Neues Formular für Feldkranz anlegen.");

// A tip goes by itself after 16 seconds: what takes it away has to do so before.
constexpr int vorAblauf = 10000;

// As long as a tip waits, and more.
void WartezeitAbwarten(QWidget* element) {
    UhrenAbwarten(2 * Objekt(element).wartezeit());
}

} // namespace

class HinweiseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointingShowsTipTitleAndStatusText();
    void theTipWaitsAndGoesAfterItsTime();
    void theClosingButtonWarnsInRed();
    void severalLinesStandAsTheyAreWritten();
    void theColourKeyStandsOnEachCellOfTheMiniature();
    void aControlOutOfUseTellsAllTheSame();
    void theStatusTextStaysWhenTheControlIsLeft();
    void aControlWithoutAStatusTextLeavesTheLastOneStanding();
    void eachMoveOnTheControlSetsTheStatusTextAnew();
    void aPressTakesTheTipAwayUntilAnotherControlIsReached();
    void aKeyTakesTheTipAway();
    void anotherWindowInFrontTakesTheTipAway();
    void byTabTheTipStandsBelowTheControl();
    void theFocusThatAClickBringsShowsNoTip();
    void insideABoxItsTipIsTold();
    void aLabelTellsWhatItsListTells();
    void atTheEdgesOfTheScreenTheTipStaysOnIt();
    void inTheCornersOfEveryScreenTheTipStaysOnThatOne();
    void theButtonOfTheFileListRunsTheStandardStyle();
    void aWindowThatThePointerComesBackToHasItsOwnTitleAgain();
    void aMenuEntrySetsTheStatusTextByMouseAndByKey();
    void aModalDialogTellsInTheMainWindow();
    void theInputDialogWarnsAtItsCancelButton();
    void aTipGoesWithItsControl();
    void theToolkitsOwnTipNeverComes();
    void movingOverTheStartWindowSetsTheStandardStyle();
};

void HinweiseTest::pointingShowsTipTitleAndStatusText() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Feldkranz vorbereiten ")); // a blank ahead, one behind
    TippAbwarten(buehne.Teil("cmdNeuFK"), QStringLiteral("Feldkranz-Formular"), neuTipp);
    const tipp::Stil stil = Objekt(buehne.Teil("cmdNeuFK")).tippfenster()->aussehen().stil;
    QVERIFY(stil == (tipp::Stil{{255, 255, 223}, {0, 0, 0}, 1}));
    BildVomBildschirm(QStringLiteral("tipp-gewoehnlich"));
}

void HinweiseTest::theTipWaitsAndGoesAfterItsTime() {
    const Buehne buehne;
    clsToolTipDeluxe& objekt = Tippobjekt(*buehne.programm.haupt());
    objekt.VisibleTime(1500);
    buehne.Wegfahren();
    const Tippbeobachter beobachter;
    QElapsedTimer uhr;
    uhr.start();
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_VERIFY(beobachter.kam());
    QVERIFY2(uhr.elapsed() >= 190, qPrintable(QString::number(uhr.elapsed()))); // timers may be 5% early
    QTRY_VERIFY(beobachter.standzeit().has_value());
    QVERIFY2(*beobachter.standzeit() >= 1400, qPrintable(QString::number(*beobachter.standzeit())));
    QVERIFY(!objekt.sichtbar());
    maus::Bewegen(buehne.Teil("cmdNeuFK"), QPoint(5, 5)); // it has been told, it doesn't come again
    WartezeitAbwarten(buehne.Teil("cmdNeuFK"));
    QVERIFY(!objekt.sichtbar());
}

void HinweiseTest::theClosingButtonWarnsInRed() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdEnde"));
    TippAbwarten(buehne.Teil("cmdEnde"), QStringLiteral("Schließen !"),
                 QStringLiteral("Feldkranz verlassen."));
    QCOMPARE(buehne.Status(), QStringLiteral(" Feldkranz beenden "));
    const Tippfenster* tipp = Objekt(buehne.Teil("cmdEnde")).tippfenster();
    QVERIFY(tipp->aussehen().stil == (tipp::Stil{{255, 0, 0}, {255, 255, 255}, 2}));
    BildVomBildschirm(QStringLiteral("tipp-schliessen"));
}

void HinweiseTest::severalLinesStandAsTheyAreWritten() {
    Buehne buehne;
    buehne.programm.NeuesQuizformular();
    maus::Bewegen(buehne.Teil("cmdAuswahl(0)"));
    TippAbwarten(buehne.Teil("cmdAuswahl(0)"), QStringLiteral("Hinweis"),
                 QStringLiteral("Dialogbox für die Auswahl der :\n- Themen (Wissensgebiete)\n"
                                "- Unterthemen\n- Fragen und Antworten\naufrufen."));
    QCOMPARE(buehne.Status(), QStringLiteral(" Fragenauswahl laden "));
    BildVomBildschirm(QStringLiteral("tipp-mehrzeilig"));
}

void HinweiseTest::theColourKeyStandsOnEachCellOfTheMiniature() {
    Buehne buehne;
    buehne.programm.NeuesQuizformular();
    const QString farben = QStringLiteral("Verteilung der Fragen und Spezialfelder :\n- weiß : Frage\n"
                                          "- gelb : Joker\n- grün : Glücksfrage\n- rot : Risiko\n"
                                          "- blau : Aufgabe\n- orange : Ereignis");
    for (const char* name : {"picJoker(30)", "picSpezial"}) {
        maus::Bewegen(buehne.Teil(name), qstrcmp(name, "picSpezial") == 0 ? QPoint(1, 1) : QPoint(2, 1));
        QTRY_COMPARE(buehne.Status(), QStringLiteral(" Verteilung der Fragen und Spezialfelder "));
        TippAbwarten(buehne.Teil(name), QStringLiteral("Feldkranz"), farben);
    }
    BildVomBildschirm(QStringLiteral("tipp-farbschluessel"));
}

void HinweiseTest::aControlOutOfUseTellsAllTheSame() {
    const Buehne buehne;
    QWidget* taste = buehne.Teil("cmdNeuHB");
    taste->setEnabled(false);
    maus::Bewegen(taste);
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Test vorbereiten "));
    TippAbwarten(taste, QStringLiteral("Testformular"), QStringLiteral("Neues Testformular anlegen."));
}

void HinweiseTest::theStatusTextStaysWhenTheControlIsLeft() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdLaden"));
    TippAbwarten(buehne.Teil("cmdLaden"), QStringLiteral("Formular"),
                 QStringLiteral("Vorhandenes Formular für Feldkranz oder Test laden."));
    buehne.Wegfahren();
    QTRY_VERIFY_WITH_TIMEOUT(!Objekt(buehne.Teil("cmdLaden")).sichtbar(), vorAblauf);
    QCOMPARE(buehne.Status(), QStringLiteral(" Formular für Feldkranz oder Test laden "));
}

void HinweiseTest::aControlWithoutAStatusTextLeavesTheLastOneStanding() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Feldkranz vorbereiten "));
    maus::Bewegen(buehne.Teil("cmdSpielregel"));
    TippAbwarten(buehne.Teil("cmdSpielregel"), QStringLiteral("Hiiiilfee"),
                 QStringLiteral("Spielregel für Feldkranz! aufrufen."));
    QCOMPARE(buehne.Status(), QStringLiteral(" Feldkranz vorbereiten "));
    QWidget* leiste = buehne.Teil("picKranz");
    maus::Bewegen(leiste, QPoint(leiste->width() / 2, leiste->height() - 2));
    TippAbwarten(leiste, QStringLiteral("Feldkranz! 2008"), QStringLiteral("Formulare anlegen und laden."));
    QCOMPARE(buehne.Status(), QStringLiteral(" Feldkranz vorbereiten "));
}

void HinweiseTest::eachMoveOnTheControlSetsTheStatusTextAnew() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Feldkranz vorbereiten "));
    HilfeText(" etwas anderes");
    QCOMPARE(buehne.Status(), QStringLiteral(" etwas anderes "));
    maus::Bewegen(buehne.Teil("cmdNeuFK"), QPoint(6, 6));
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Feldkranz vorbereiten "));
}

void HinweiseTest::aPressTakesTheTipAwayUntilAnotherControlIsReached() {
    const Buehne buehne;
    QWidget* panel = buehne.Teil("pnlCopyA");
    maus::Bewegen(panel);
    QTRY_VERIFY(Objekt(panel).sichtbar());
    maus::Klicken(panel);
    QTRY_VERIFY_WITH_TIMEOUT(!Objekt(panel).sichtbar(), vorAblauf);
    maus::Bewegen(panel, QPoint(5, 5));
    WartezeitAbwarten(panel);
    QVERIFY(!Objekt(panel).sichtbar());
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    TippAbwarten(buehne.Teil("cmdNeuFK"), QStringLiteral("Feldkranz-Formular"), neuTipp);
}

void HinweiseTest::aKeyTakesTheTipAway() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_VERIFY(Objekt(buehne.Teil("cmdNeuFK")).sichtbar());
    maus::Taste(QStringLiteral("F5"));
    QTRY_VERIFY_WITH_TIMEOUT(!Objekt(buehne.Teil("cmdNeuFK")).sichtbar(), vorAblauf);
}

void HinweiseTest::anotherWindowInFrontTakesTheTipAway() {
    const Buehne buehne;
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_VERIFY(Objekt(buehne.Teil("cmdNeuFK")).sichtbar());
    QWidget anderes;
    anderes.setGeometry(500, 500, 200, 100);
    anderes.show();
    anderes.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&anderes));
    QVERIFY(!Objekt(buehne.Teil("cmdNeuFK")).sichtbar());
}

void HinweiseTest::byTabTheTipStandsBelowTheControl() {
    const Buehne buehne;
    buehne.Wegfahren();
    buehne.programm.haupt()->activateWindow();
    buehne.Teil("cmdNeuFK")->setFocus();
    QTRY_VERIFY(buehne.Teil("cmdNeuFK")->hasFocus());
    maus::Taste(QStringLiteral("Tab"));
    QWidget* taste = buehne.Teil("cmdNeuHB");
    QTRY_VERIFY(taste->hasFocus());
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Test vorbereiten "));
    TippAbwarten(taste, QStringLiteral("Testformular"), QStringLiteral("Neues Testformular anlegen."));
    QCOMPARE(Objekt(taste).tippfenster()->pos(), taste->mapToGlobal(QPoint(0, taste->height() + 2)));
    maus::Taste(QStringLiteral("Tab"));
    TippAbwarten(buehne.Teil("cmdLaden"), QStringLiteral("Formular"),
                 QStringLiteral("Vorhandenes Formular für Feldkranz oder Test laden."));
}

void HinweiseTest::theFocusThatAClickBringsShowsNoTip() {
    Buehne buehne;
    const frmFKFragen* form = buehne.programm.NeuesQuizformular();
    maus::Klicken(form->txtNr);
    QTRY_VERIFY(form->txtNr->hasFocus());
    WartezeitAbwarten(form->txtNr);
    QVERIFY(!Objekt(form->txtNr).sichtbar());
}

void HinweiseTest::insideABoxItsTipIsTold() {
    Buehne buehne;
    const frmFKFragen* form = buehne.programm.NeuesQuizformular();
    QWidget* feld = form->txtFrage.at(1);
    maus::Bewegen(feld);
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Frage "));
    TippAbwarten(feld, QStringLiteral("Feldkranz"),
                 QStringLiteral("Eine Frage :\n- kann ausgewählt werden oder\n"
                                "- kann in das Textfeld eingegeben werden\n\n"
                                "- mit [Shift]+Linksklick Frage verschieben\n"
                                "   (Antwort wird mit verschoben)\n"
                                "- mit [Strg]+Linksklick Frage kopieren\n   (Antwort wird mit kopiert)"));
    BildVomBildschirm(QStringLiteral("tipp-frage"));
}

void HinweiseTest::aLabelTellsWhatItsListTells() {
    const Buehne buehne;
    AuswahlZeigen();
    QWidget* fenster = FensterAbwarten(QStringLiteral("frmAuswahl"));
    maus::Bewegen(Finden(fenster, QStringLiteral("lblFragen")));
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Frage auswählen "));
    TippAbwarten(fenster, QStringLiteral("Fragen"), Finden(fenster, QStringLiteral("cmbFrage"))->toolTip());
    BildVomBildschirm(QStringLiteral("tipp-auswahl"));
}

void HinweiseTest::atTheEdgesOfTheScreenTheTipStaysOnIt() {
    Buehne buehne;
    buehne.programm.NeuesQuizformular();
    for (const char* name : {"pnlFKFelder", "pnlCopyF", "pnlHilfe"}) { // at the bottom
        QWidget* panel = buehne.Teil(name);
        const bool rechts = qstrcmp(name, "pnlFKFelder") == 0;
        maus::Bewegen(panel, QPoint(rechts ? panel->width() - 2 : 30, panel->height() - 3));
        QTRY_VERIFY(Objekt(panel).sichtbar());
        QTRY_COMPARE(Objekt(panel).tippfenster()->text(), panel->toolTip());
        const QRect tipp = Objekt(panel).tippfenster()->geometry();
        QVERIFY(panel->screen()->geometry().contains(tipp));
        QVERIFY(!tipp.contains(QCursor::pos()));
        if (rechts) {
            BildVomBildschirm(QStringLiteral("tipp-rand"));
        }
    }
}

void HinweiseTest::inTheCornersOfEveryScreenTheTipStaysOnThatOne() {
    QWidget fenster(nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    fenster.setObjectName(QStringLiteral("frmProbe"));
    fenster.resize(40, 20);
    HinweisSetzen(&fenster, "Ein Tipp, der breiter ist als der Rest des Bildschirms.", "Hinweis", "");
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    for (const QScreen* schirm : QGuiApplication::screens()) {
        const QRect ganz = schirm->geometry();
        for (const QPoint ecke : {ganz.topLeft(), ganz.topRight() - QPoint(39, 0),
                                  ganz.bottomLeft() - QPoint(0, 19), ganz.bottomRight() - QPoint(39, 19)}) {
            fenster.move(ecke);
            QTRY_COMPARE(fenster.pos(), ecke);
            maus::Bewegen(&fenster);
            QTRY_VERIFY(Objekt(&fenster).sichtbar());
            const QRect tipp = Objekt(&fenster).tippfenster()->geometry();
            QVERIFY(ganz.contains(tipp));
            QVERIFY(!tipp.contains(QCursor::pos()));
            maus::Bewegen(&fenster, QPoint(3, 3));
            QTest::mouseClick(&fenster, Qt::LeftButton); // the tip goes
            QTRY_VERIFY_WITH_TIMEOUT(!Objekt(&fenster).sichtbar(), vorAblauf);
            HinweisSetzen(&fenster, Modelltext(fenster.toolTip()) + ".", "Hinweis", ""); // told anew
        }
    }
}

void HinweiseTest::theButtonOfTheFileListRunsTheStandardStyle() {
    const Buehne buehne;
    QWidget fenster;
    clsToolTipDeluxe anderes(&fenster);
    ToolTip = &anderes;
    ToolTipSchliessen();
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    TippAbwarten(buehne.Teil("cmdNeuFK"), QStringLiteral("Feldkranz-Formular"), neuTipp);
    QCOMPARE(anderes.aussehen().titel, QStringLiteral("Schließen")); // the main window has its own
    maus::Bewegen(buehne.Teil("cmdDateiliste"));
    TippAbwarten(buehne.Teil("cmdDateiliste"), QStringLiteral("Hinweis"),
                 QStringLiteral("Liste der vorhandenen Formulare einblenden."));
    QCOMPARE(anderes.aussehen().titel, QStringLiteral("Hinweis"));
}

void HinweiseTest::aWindowThatThePointerComesBackToHasItsOwnTitleAgain() {
    Buehne buehne;
    const frmFKFragen* form = buehne.programm.NeuesQuizformular();
    AuswahlZeigen(); // its object is the current one now
    QWidget* fenster = FensterAbwarten(QStringLiteral("frmAuswahl"));
    QCOMPARE(ToolTip.data(), &Tippobjekt(*fenster));
    maus::Bewegen(Finden(fenster, QStringLiteral("cmdAbbruch")));
    TippAbwarten(fenster, QStringLiteral("Schließen"), QStringLiteral("Auswahldialog ausblenden."));
    BildVomBildschirm(QStringLiteral("tipp-schliessen-auswahl"));
    maus::Bewegen(form->pnlWissen.at(1));
    TippAbwarten(form->pnlWissen.at(1), QStringLiteral("Feldkranz"),
                 QStringLiteral("Wissensgebiet nach Linksklick auswählen."));
}

void HinweiseTest::aMenuEntrySetsTheStatusTextByMouseAndByKey() {
    const Buehne buehne;
    auto* menue = Finden<QMenu>(buehne.programm.haupt(), QStringLiteral("mDateien"));
    QMenuBar* leiste = buehne.programm.haupt()->menuBar();
    maus::Klicken(leiste, Qt::NoModifier, leiste->actionGeometry(menue->menuAction()).center());
    QTRY_VERIFY(menue->isVisible());
    const auto* oeffnen = Finden<QAction>(buehne.programm.haupt(), QStringLiteral("mDatei(4)"));
    maus::Bewegen(menue, menue->actionGeometry(const_cast<QAction*>(oeffnen)).center()); // NOLINT
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Formular für Feldkranz oder Test laden "));
    maus::Taste(QStringLiteral("Down"));
    QTRY_COMPARE(buehne.Status(), QStringLiteral(" Feldkranz beenden "));
    QTest::keyClick(menue, Qt::Key_Escape); // a real key's release would reach nobody
    QTRY_VERIFY(!menue->isVisible());
    QCOMPARE(buehne.Status(), QStringLiteral(" Feldkranz beenden "));
}

void HinweiseTest::aModalDialogTellsInTheMainWindow() {
    Buehne buehne;
    buehne.programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmIni"),
         std::nullopt,
         std::nullopt,
         {QStringLiteral("cmdEinOK")},
         [&buehne](QDialog& dialog) {
             maus::Bewegen(Finden(&dialog, QStringLiteral("cmdAbsolut")));
             QTRY_COMPARE(buehne.Status(), QStringLiteral(" Punktvorgaben nach Spielregel eintragen "));
             TippAbwarten(&dialog, QStringLiteral("Hinweis"),
                          QStringLiteral("Anzahl der Spezialfelder und Punkte nach Vorgabe für 30 Felder."));
             maus::Bewegen(Finden(&dialog, QStringLiteral("cmdHilfe")));
             TippAbwarten(&dialog, QStringLiteral("Hiiiilfee !"),
                          QStringLiteral("Wenn erforderlich, wird hier ein Hilfesystem implementiert."));
             BildVomBildschirm(QStringLiteral("tipp-dialog"));
         }});
    Finden<QAbstractButton>(buehne.programm.haupt(), QStringLiteral("cmdIni"))->click();
    QVERIFY(dialoge.fertig());
}

void HinweiseTest::theInputDialogWarnsAtItsCancelButton() {
    const Buehne buehne;
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmInput"),
         std::nullopt,
         std::nullopt,
         {QStringLiteral("cmdOK")},
         [&buehne](QDialog& dialog) {
             const auto stil = [&dialog] { return Objekt(&dialog).aussehen().stil; };
             maus::Bewegen(Finden(&dialog, QStringLiteral("cmdAbbruch")));
             TippAbwarten(&dialog, QStringLiteral("Schließen"), QStringLiteral("Eingabe abbrechen."));
             QVERIFY(stil() == tipp::stilSchliessen);
             QCOMPARE(buehne.Status(), QStringLiteral(" Eingabe abbrechen "));
             maus::Bewegen(Finden(&dialog, QStringLiteral("cmdHilfe")));
             TippAbwarten(&dialog, QStringLiteral("Hiiiilfee !"),
                          QStringLiteral("Wenn erforderlich, wird hier ein Hilfesystem implementiert."));
             QVERIFY(stil() == tipp::stilHilfe);
         }});
    Eingabe(1, "Titel", "Text", "Vorgabe");
    QVERIFY(dialoge.fertig());
}

void HinweiseTest::aTipGoesWithItsControl() {
    const Buehne buehne;
    auto* taste = new QWidget(buehne.Teil("pnlKranz"));
    taste->setGeometry(400, 2, 80, 25);
    HinweisSetzen(taste, "Bin gleich weg.", "Hinweis", "");
    taste->show();
    maus::Bewegen(taste);
    QTRY_VERIFY(Objekt(taste).sichtbar());
    const clsToolTipDeluxe& objekt = Objekt(taste);
    delete taste;
    QTRY_VERIFY_WITH_TIMEOUT(!objekt.sichtbar(), vorAblauf);
}

void HinweiseTest::theToolkitsOwnTipNeverComes() {
    const Buehne buehne;
    const Tippbeobachter beobachter;
    maus::Bewegen(buehne.Teil("cmdNeuFK"));
    QTRY_VERIFY(Objekt(buehne.Teil("cmdNeuFK")).sichtbar());
    QTRY_VERIFY(beobachter.werkzeugtippGefragt()); // it stands as soon as it is asked for
    int tipps = 0;
    for (const QWidget* fenster : QApplication::topLevelWidgets()) {
        tipps += fenster->isVisible() && fenster->windowType() == Qt::ToolTip ? 1 : 0;
    }
    QCOMPARE(tipps, 1);
}

void HinweiseTest::movingOverTheStartWindowSetsTheStandardStyle() {
    const Programmordner ordner;
    frmStart fenster;
    fenster.setAttribute(Qt::WA_DeleteOnClose, false);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    QWidget* taste = Finden(&fenster, QStringLiteral("cmdStart"));
    maus::Bewegen(taste);
    TippAbwarten(taste, QStringLiteral("Hinweis"), QStringLiteral("Weiter zum Programm !"));
    ToolTipSchliessen();
    maus::Bewegen(&fenster, QPoint(20, 20));
    QTRY_COMPARE(ToolTip->aussehen().titel, QStringLiteral("Hinweis"));
    QVERIFY(!ToolTip->sichtbar()); // the window itself has no tip
}

QTEST_MAIN(HinweiseTest)
#include "hinweise_test.moc"
