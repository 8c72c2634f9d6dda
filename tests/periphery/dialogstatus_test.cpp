// The status line around dialogs: one that opens by itself says nothing there, the pointer and the keys of
// the person do, and when it has gone the line shows what it showed before.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "dialogs/meldung.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QMdiArea>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>

namespace {

constexpr NachrichtText frage{1, "Frage", "Soll ich ?", 4, 1};

class Buehne {
public:
    Buehne() { maus::Bewegen(programm.haupt()->Kindflaeche(), QPoint(20, 300)); }

    [[nodiscard]] QString Status() const {
        return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption();
    }

    Programm programm;
};

// A question that opens by itself and is answered Ja after something was done in it.
ErwarteterDialog Frage(std::function<void(QDialog&)> vorher) {
    return {QStringLiteral("frmNachricht"),
            std::nullopt,
            std::nullopt,
            {QStringLiteral("cmdAntwort(0)")},
            std::move(vorher)};
}

} // namespace

class DialogstatusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aDialogThatOpensByItselfSaysNothing();
    void aDialogOpenedByAKeySaysNothing();
    void theSecondOpeningOfADialogAnsweredByAKeySaysNothing();
    void thePrintingStandsInTheLineWhileItsQuestionIsOpen();
    void whatThePointerSaysInADialogGoesWithIt();
    void aTabInADialogSpeaksAndGoesWithIt();
    void anEventOfThePointerWithoutAMoveSaysNothing();
    void theLoadingOfTheSettingsGoesWithTheirDialog();
    void aLineThatWasEmptyIsEmptyAgain();
};

void DialogstatusTest::initTestCase() {
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock");
}

void DialogstatusTest::aDialogThatOpensByItselfSaysNothing() {
    const Buehne buehne;
    HilfeText(" Vorher");
    Dialogfolge dialoge;
    dialoge.erwarte(Frage([&](QDialog&) { QCOMPARE(buehne.Status(), QStringLiteral(" Vorher ")); }));
    QCOMPARE(Nachricht(frage), Antwort::Ja);
    QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
}

void DialogstatusTest::aDialogOpenedByAKeySaysNothing() {
    Buehne buehne;
    const frmFKFragen* form = buehne.programm.NeuesQuizformular();
    QWidget* feld = form->txtFrage.at(1);
    feld->setFocus();
    HilfeText(" Vorher");
    Dialogfolge dialoge;
    ErwarteterDialog neu = Frage([&](QDialog&) { QCOMPARE(buehne.Status(), QStringLiteral(" Vorher ")); });
    neu.tasten = {QStringLiteral("cmdAntwort(2)")};
    dialoge.erwarte(neu);
    QTest::keyClick(feld, Qt::Key_N, Qt::ControlModifier);
    QVERIFY(dialoge.fertig());
    QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
}

void DialogstatusTest::theSecondOpeningOfADialogAnsweredByAKeySaysNothing() {
    const Buehne buehne;
    HilfeText(" Vorher");
    for (int mal = 0; mal < 2; ++mal) {
        Dialogfolge dialoge;
        ErwarteterDialog mitTaste = Frage([&](QDialog& dialog) {
            QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
            QTest::keyClick(Finden(&dialog, QStringLiteral("cmdAntwort(0)")), Qt::Key_Return);
        });
        mitTaste.tasten.clear();
        dialoge.erwarte(mitTaste);
        QCOMPARE(Nachricht(frage), Antwort::Ja);
        QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
    }
}

void DialogstatusTest::thePrintingStandsInTheLineWhileItsQuestionIsOpen() {
    Buehne buehne;
    buehne.programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    Dialogfolge dialoge;
    ErwarteterDialog drucken = Frage(
        [&](QDialog&) { QCOMPARE(buehne.Status(), QStringLiteral(" Ich drucke das Fragenformular ... ")); });
    drucken.tasten = {QStringLiteral("cmdAntwort(4)")};
    dialoge.erwarte(drucken);
    Finden<QAbstractButton>(buehne.programm.haupt(), QStringLiteral("cmdDruckenFK(2)"))->click();
    QVERIFY(dialoge.fertig());
    QVERIFY2(buehne.Status().contains(QStringLiteral("Feldkranz.pdf")), qPrintable(buehne.Status()));
}

void DialogstatusTest::whatThePointerSaysInADialogGoesWithIt() {
    const Buehne buehne;
    HilfeText(" Vorher");
    Dialogfolge dialoge;
    dialoge.erwarte(Frage([&](QDialog& dialog) {
        maus::Bewegen(Finden(&dialog, QStringLiteral("cmdAntwort(2)")));
        QTRY_COMPARE(buehne.Status(), QStringLiteral(" Vorgang abbrechen "));
    }));
    QCOMPARE(Nachricht(frage), Antwort::Ja);
    QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
}

void DialogstatusTest::aTabInADialogSpeaksAndGoesWithIt() {
    const Buehne buehne;
    HilfeText(" Vorher");
    Dialogfolge dialoge;
    dialoge.erwarte(Frage([&](QDialog& dialog) {
        QTRY_VERIFY(Finden(&dialog, QStringLiteral("cmdAntwort(0)"))->hasFocus());
        maus::Taste(QStringLiteral("Tab"));
        QTRY_COMPARE(buehne.Status(), QStringLiteral(" Vorgang abbrechen "));
    }));
    QCOMPARE(Nachricht(frage), Antwort::Ja);
    QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
}

// As the toolkit makes them for a window that comes up under the pointer or goes away from under it.
void DialogstatusTest::anEventOfThePointerWithoutAMoveSaysNothing() {
    const Buehne buehne;
    HilfeText(" Vorher");
    Dialogfolge dialoge;
    dialoge.erwarte(Frage([&](QDialog& dialog) {
        QWidget* taste = Finden(&dialog, QStringLiteral("cmdAntwort(2)"));
        QMouseEvent ruht(QEvent::MouseMove, QPointF(3, 3), QPointF(3, 3), QCursor::pos(), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(taste, &ruht);
        QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
    }));
    QCOMPARE(Nachricht(frage), Antwort::Ja);
}

void DialogstatusTest::theLoadingOfTheSettingsGoesWithTheirDialog() {
    Buehne buehne;
    buehne.programm.NeuesQuizformular();
    HilfeText(" Vorher");
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmIni"), {}, {}, {QStringLiteral("cmdEinOK")}, [&buehne](const QDialog&) {
             QCOMPARE(buehne.Status(),
                      QStringLiteral(" Ich lade das Register für die Voreinstellungen ... "));
         }});
    Finden<QAbstractButton>(buehne.programm.haupt(), QStringLiteral("cmdIni"))->click();
    QVERIFY(dialoge.fertig());
    QCOMPARE(buehne.Status(), QStringLiteral(" Vorher "));
}

void DialogstatusTest::aLineThatWasEmptyIsEmptyAgain() {
    const Buehne buehne;
    Finden<Panel>(buehne.programm.haupt(), QStringLiteral("pnlHilfe"))->setCaption(QString());
    Dialogfolge dialoge;
    dialoge.erwarte(Frage([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Tab); }));
    QCOMPARE(Nachricht(frage), Antwort::Ja);
    QCOMPARE(buehne.Status(), QString());
}

QTEST_MAIN(DialogstatusTest)
#include "dialogstatus_test.moc"
