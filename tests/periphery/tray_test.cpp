// Putting the main window away: on a desktop without a tray, and with a real one that this test starts.
#include "catalogue/auswahl.h"
#include "catalogue/frmAuswahl.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "filetools/formularliste.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/programmende.h"
#include "periphery/tray.h"
#include "quizform/frmFKFragen.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/frist.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/mausbote.h"
#include "tests/hilfe/programm.h"

#include <QElapsedTimer>
#include <QMdiArea>
#include <QProcess>
#include <QSystemTrayIcon>
#include <QTest>

#include <functional>

namespace {

// A tray at the lower edge of the virtual screen.
class Ablageleiste {
public:
    Ablageleiste() {
        prozess_.start(QStringLiteral("trayer"),
                       {QStringLiteral("--edge"), QStringLiteral("bottom"), QStringLiteral("--align"),
                        QStringLiteral("right"), QStringLiteral("--widthtype"), QStringLiteral("request"),
                        QStringLiteral("--height"), QStringLiteral("32")});
        da_ = prozess_.waitForStarted() && WartenBis(QSystemTrayIcon::isSystemTrayAvailable, 15000);
    }
    ~Ablageleiste() {
        prozess_.terminate();
        prozess_.waitForFinished();
    }
    Ablageleiste(const Ablageleiste&) = delete;
    Ablageleiste& operator=(const Ablageleiste&) = delete;
    [[nodiscard]] bool da() const { return da_; }

private:
    QProcess prozess_;
    bool da_ = false;
};

// The window may be hidden before the release of the second click.
void HintergrundDoppelklicken(const Programm& programm) {
    maus::DoppeltDruecken(programm.haupt()->Kindflaeche()->viewport());
}

QSystemTrayIcon* Zeichen(const Programm& programm) {
    return programm.haupt()->findChild<QSystemTrayIcon*>(QStringLiteral("traySymbol"));
}

// The icon as a window of its own in the tray; nullptr while it isn't there.
QWidget* ZeichenFenster() {
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
        if (fenster->inherits("QSystemTrayIconSys") && fenster->isVisible() && fenster->width() > 1) {
            return fenster;
        }
    }
    return nullptr;
}

// The tray moves an icon while it makes room for it, and the program learns of it late: the server knows
// where the window is, and a click that missed is made again.
void ZeichenKlicken(const char* knopf, const std::function<bool()>& gewirkt) {
    QElapsedTimer seit; // the last click was done
    bool unterwegs = false;
    QVERIFY(WartenBis(
        [&] {
            if (gewirkt()) {
                return !unterwegs; // the callback below must not outlive the flag that it sets
            }
            const QWidget* zeichen = ZeichenFenster();
            if (zeichen != nullptr && !unterwegs && (!seit.isValid() || seit.elapsed() > 3000)) {
                unterwegs = true;
                Senden({QStringLiteral("mousemove"), QStringLiteral("--window"),
                        QString::number(zeichen->winId()), QString::number(zeichen->width() / 2),
                        QString::number(zeichen->height() / 2), QStringLiteral("click"),
                        QLatin1String(knopf)},
                       Stelle::hier(), [&] {
                           unterwegs = false;
                           seit.start();
                       });
            }
            return false;
        },
        wartefrist));
}

} // namespace

class TrayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutATrayTheWindowIsMinimisedAndNotHidden();
    void onlyTheBackgroundItselfIsDoubleClicked();
    void aDoubleClickOnTheBackgroundHidesTheWindowAndAddsTheIcon();
    void aLeftClickOnTheIconShowsTheWindowAndRemovesTheIcon();
    void aRightClickLeavesAHiddenWindowHidden();
    void anyOtherMessageDoesNothing();
    void nothingTypedIsLostAndTheToolWindowsGoAlong();
    void aListThatIsFoldedStaysSo();
    void theEndRemovesTheIconInAnyCase();
};

void TrayTest::withoutATrayTheWindowIsMinimisedAndNotHidden() {
    QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
    const Programm programm;
    HintergrundDoppelklicken(programm);
    QTRY_VERIFY(programm.haupt()->isMinimized());
    QVERIFY(programm.haupt()->isVisible());
    QVERIFY(Zeichen(programm) == nullptr);
    programm.haupt()->showMaximized();
    QTRY_VERIFY(programm.haupt()->isActiveWindow());
}

void TrayTest::onlyTheBackgroundItselfIsDoubleClicked() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    // The gap between the cells belongs to the form.
    QTest::mouseDClick(form, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseDClick(form->parentWidget(), Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseDClick(Finden(programm.haupt(), QStringLiteral("pnlHilfe")), Qt::LeftButton);
    QTest::mouseDClick(programm.haupt()->Kindflaeche()->viewport(), Qt::RightButton, {},
                       QPoint(programm.haupt()->Kindflaeche()->viewport()->width() - 3, 3));
    QVERIFY(!programm.haupt()->isMinimized());
    QVERIFY(programm.haupt()->isVisible());
}

void TrayTest::aDoubleClickOnTheBackgroundHidesTheWindowAndAddsTheIcon() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    const Programm programm;
    HintergrundDoppelklicken(programm);
    QTRY_VERIFY(!programm.haupt()->isVisible());
    QVERIFY(Zeichen(programm) != nullptr);
    QVERIFY(Zeichen(programm)->isVisible());
    QCOMPARE(Zeichen(programm)->toolTip(), QStringLiteral(" Feldkranz! "));
    QVERIFY(!Zeichen(programm)->icon().isNull());
    QTRY_VERIFY(ZeichenFenster() != nullptr);
    BildVomBildschirm(QStringLiteral("tray"));
}

void TrayTest::aLeftClickOnTheIconShowsTheWindowAndRemovesTheIcon() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    const Programm programm;
    const QRect vorher = programm.haupt()->geometry();
    for (int mal = 0; mal < 2; ++mal) { // and again
        HintergrundDoppelklicken(programm);
        QTRY_VERIFY(ZeichenFenster() != nullptr);
        QVERIFY(!programm.haupt()->isVisible());
        ZeichenKlicken("1", [&] { return programm.haupt()->isVisible(); });
        QTRY_VERIFY(Zeichen(programm) == nullptr);
        QVERIFY(ZeichenFenster() == nullptr);
        QTRY_VERIFY(programm.haupt()->isActiveWindow());
        QVERIFY(programm.haupt()->isMaximized());
        QTRY_COMPARE(programm.haupt()->geometry(), vorher);
    }
}

void TrayTest::aRightClickLeavesAHiddenWindowHidden() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    const Programm programm;
    HintergrundDoppelklicken(programm);
    QTRY_VERIFY(ZeichenFenster() != nullptr);
    int gemeldet = 0;
    QObject::connect(
        Zeichen(programm), &QSystemTrayIcon::activated, programm.haupt(), [&] { ++gemeldet; },
        Qt::QueuedConnection); // behind the program's own
    ZeichenKlicken("3", [&] { return gemeldet > 0; });
    QVERIFY(!programm.haupt()->isVisible());
    QVERIFY(Zeichen(programm)->isVisible());
    // A window that is there is raised, and the icon stays.
    programm.haupt()->show();
    TrayNachricht(517);
    QVERIFY(programm.haupt()->isVisible());
    QTRY_VERIFY(programm.haupt()->isActiveWindow());
    QVERIFY(Zeichen(programm)->isVisible());
}

void TrayTest::anyOtherMessageDoesNothing() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    const Programm programm;
    HintergrundDoppelklicken(programm);
    QTRY_VERIFY(Zeichen(programm) != nullptr);
    for (const int nummer : {0, 1, 512, 514, 515, 516, 518, 519}) {
        TrayNachricht(nummer);
    }
    for (const auto grund :
         {QSystemTrayIcon::Unknown, QSystemTrayIcon::DoubleClick, QSystemTrayIcon::MiddleClick}) {
        Q_EMIT Zeichen(programm)->activated(grund);
    }
    QCoreApplication::processEvents();
    QVERIFY(!programm.haupt()->isVisible());
    QVERIFY(Zeichen(programm)->isVisible());
}

void TrayTest::nothingTypedIsLostAndTheToolWindowsGoAlong() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    AuswahlZeigen();
    QTRY_VERIFY(AuswahlOffen()->isActiveWindow());
    FormularlisteZeigen();
    QWidget* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    QTRY_VERIFY(liste->isActiveWindow());
    AuswahlOffen()->move(800, 600);                // clear of the cell
    liste->move(300, MDIFenster()->height() - 60); // clear of the form, over which it would fold
    QTRY_VERIFY(liste->y() > MDIFenster()->height() - 80);
    maus::Klicken(form->txtFrage.at(7));
    QTRY_VERIFY(form->txtFrage.at(7)->hasFocus());
    const QRect platz = AuswahlOffen()->geometry();
    maus::Tippen(QStringLiteral("halb getippt"));
    AbInDenTray();
    QVERIFY(!programm.haupt()->isVisible());
    QVERIFY(!AuswahlOffen()->isVisible());
    QVERIFY(!liste->isVisible());
    QTRY_VERIFY(ZeichenFenster() != nullptr);
    ZeichenKlicken("1", [&] { return programm.haupt()->isVisible(); });
    QTRY_VERIFY(AuswahlOffen() != nullptr && AuswahlOffen()->isVisible());
    QTRY_COMPARE(AuswahlOffen()->geometry(), platz);
    QTRY_VERIFY(liste->isVisible());
    QCOMPARE(form->txtFrage.at(7)->toPlainText(), QStringLiteral("halb getippt"));
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(form->isVisible());
}

void TrayTest::aListThatIsFoldedStaysSo() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FormularlisteZeigen();
    QWidget* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    QTRY_VERIFY(liste->isActiveWindow());
    liste->move(form->txtFrage.at(1)->mapToGlobal(QPoint(0, 0)));
    maus::Klicken(form->txtFrage.at(30));
    QTRY_VERIFY(!liste->isVisible());
    AbInDenTray();
    QTRY_VERIFY(!programm.haupt()->isVisible());
    QTRY_VERIFY(ZeichenFenster() != nullptr);
    QVERIFY(!liste->isVisible());
    ZeichenKlicken("1", [&] { return programm.haupt()->isVisible(); });
    QTRY_VERIFY(Finden(programm.haupt(), QStringLiteral("cmdListentitel"))->isVisible());
    QVERIFY(!liste->isVisible());
}

void TrayTest::theEndRemovesTheIconInAnyCase() {
    const Ablageleiste leiste;
    QVERIFY2(leiste.da(), "trayer doesn't run");
    const Programm programm;
    bool beendet = false;
    ProgrammBeendenDurch([&] { beendet = true; });
    for (const bool imTray : {false, true}) {
        beendet = false;
        if (imTray) {
            AbInDenTray();
            QVERIFY(Zeichen(programm) != nullptr);
        }
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Feldkranz! beenden - Ini-Datei speichern !"),
                      QStringLiteral("Sollen die aktuellen Einstellungen\ngespeichert werden ?"), 6);
        dialoge.frage(QStringLiteral("ENDE"),
                      QStringLiteral("FELDKRANZ! beendet hiermit seine\nTätigkeit !  -  OK ?"), 6);
        ProgrammEnde();
        QVERIFY(dialoge.fertig());
        QVERIFY(beendet);
        QTRY_VERIFY(Zeichen(programm) == nullptr);
        QVERIFY(ZeichenFenster() == nullptr);
    }
    ProgrammBeendenDurch({});
}

QTEST_MAIN(TrayTest)
#include "tray_test.moc"
