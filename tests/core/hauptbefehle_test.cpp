// What the main window's frame and its lasting entries do: the real end, the folder it works in, the entries
// that come and go with a form.
#include "core/panel.h"
#include "core/programmstand.h"
#include "mainwindow/ablage.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

void EndeErwarten(Dialogfolge& dialoge) {
    dialoge.frage(QStringLiteral("Feldkranz! beenden - Ini-Datei speichern !"),
                  QStringLiteral("Sollen die aktuellen Einstellungen\ngespeichert werden ?"), 6);
    dialoge.frage(QStringLiteral("ENDE"),
                  QStringLiteral("FELDKRANZ! beendet hiermit seine\nTätigkeit !  -  OK ?"), 6);
}

// Runs the program's own event loop from a command to its end; 0 where the program has really ended.
int BisZumEnde(const std::function<void()>& befehl) {
    QTimer::singleShot(0, qApp, befehl);
    QTimer frist;
    frist.setSingleShot(true);
    QObject::connect(&frist, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    frist.start(30000);
    return QCoreApplication::exec();
}

} // namespace

class HauptbefehleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theEndByItsOwnButtonTakesTheWindowAway();
    void theEndFromTheFormsMenuTakesTheFormWithItUnasked();
    void theEndIsInTheMenuOnlyWhileNoFormIsOpen();
    void theFolderOfTheFormsIsTheCurrentOne();
    void aMissingFolderOfFormsIsPassedOver();
    void thePictureOfTheTrayIsOutOfSight();
    void theDeleteKeyEmptiesTheClipboardPanels();
};

void HauptbefehleTest::theEndByItsOwnButtonTakesTheWindowAway() {
    Programm programm;
    const QPointer<frmMDI> haupt = programm.haupt();
    Dialogfolge dialoge;
    EndeErwarten(dialoge);
    QCOMPARE(BisZumEnde([&haupt] { maus::Klicken(Finden(haupt, QStringLiteral("cmdEnde"))); }), 0);
    QVERIFY(dialoge.fertig());
    QVERIFY(haupt.isNull());
}

void HauptbefehleTest::theEndFromTheFormsMenuTakesTheFormWithItUnasked() {
    Programm programm;
    const QPointer<frmMDI> haupt = programm.haupt();
    const QPointer<frmFKFragen> form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setFocus();
    QTest::keyClicks(form->txtFrage.at(1), QStringLiteral("weg"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Auswertung speichern !"),
                  QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 7);
    dialoge.meldung(QStringLiteral("Formular wird nicht gespeichert !"),
                    QStringLiteral("Das will ich auch meinen"));
    EndeErwarten(dialoge);
    QCOMPARE(BisZumEnde([&form] { QTest::keyClick(form->txtFrage.at(1), Qt::Key_Q, Qt::ControlModifier); }),
             0);
    QVERIFY(dialoge.fertig());
    QVERIFY(haupt.isNull());
    QVERIFY(form.isNull());
}

void HauptbefehleTest::theEndIsInTheMenuOnlyWhileNoFormIsOpen() {
    Programm programm;
    const auto* ende = Finden<QAction>(programm.haupt(), QStringLiteral("mDatei(6)"));
    QVERIFY(ende->isVisible());
    programm.NeuesQuizformular();
    QVERIFY(!ende->isVisible());
    FK_Entladen();
    QVERIFY(ende->isVisible());
}

void HauptbefehleTest::theFolderOfTheFormsIsTheCurrentOne() {
    const Programm programm;
    QCOMPARE(QDir::current(), QDir(programm.ordner().nativ(QStringLiteral("KRANZ"))));
}

void HauptbefehleTest::aMissingFolderOfFormsIsPassedOver() {
    const Programmordner ordner;
    QVERIFY(QDir(ordner.nativ(QStringLiteral("KRANZ"))).removeRecursively());
    const Dialogfolge dialoge; // no word about it
    HauptfensterZeigen();
    QVERIFY(MDIFenster()->isVisible());
    delete MDIFenster();
}

void HauptbefehleTest::thePictureOfTheTrayIsOutOfSight() {
    const Programm programm;
    QVERIFY(!Finden(Finden(programm.haupt(), QStringLiteral("pnlHilfe")), QStringLiteral("picSystray"))
                 ->isVisible());
}

void HauptbefehleTest::theDeleteKeyEmptiesTheClipboardPanels() {
    const Programm programm;
    auto* frage = Finden<Panel>(programm.haupt(), QStringLiteral("pnlCopyF"));
    frage->setCaption(QStringLiteral("F"));
    Finden<Panel>(programm.haupt(), QStringLiteral("pnlCopyA"))->setCaption(QStringLiteral("A"));
    frage->setFocus();
    QTest::keyClick(frage, Qt::Key_Delete);
    QCOMPARE(AblageFrage(), std::string());
    QCOMPARE(AblageAntwort(), std::string());
}

QTEST_MAIN(HauptbefehleTest)
#include "hauptbefehle_test.moc"
