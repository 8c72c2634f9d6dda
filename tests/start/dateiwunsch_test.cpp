// Files opened from outside, in the real main window: each kind, what is no form, and when they have to wait.
#include "start/dateiwunsch.h"

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "dialogs/eingabe.h"
#include "formlauf.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "testform/testformular.h"
#include "tests/hilfe/finden.h"

#include <QMenu>
#include <QTest>

namespace {

const QString fehlerTitel = QStringLiteral("Fehler beim Laden !");

QString Frage1() {
    return QString::fromStdString(FK_Frage(1));
}

} // namespace

class DateiwunschTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanup() { QTRY_VERIFY(WuenscheErfuellen()); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aQuizFormOpensWhateverItsPathIsMadeOf();
    void exactlyThisFileIsOpenedAndNotOneThatIsWrittenAlike();
    void aTestFormOpens();
    void aFormOfTheOtherKindIsRefusedAsEver();
    void whatIsNoFormIsToldAsByTheFileDialog();
    void aFileThatHasGoneLeadsToTheFileDialog();
    void unsavedWorkIsAskedAboutFirst();
    void itWaitsUntilAnOpenDialogHasBeenAnswered();
    void itWaitsUntilAMenuHasGone();
    void severalAreOpenedOneAfterTheOther();
    void theMainWindowComesBackFromBeingMinimised();

private:
    [[nodiscard]] QString Nativ(const QString& name) const {
        return lauf.programm().ordner().nativ(QStringLiteral("KRANZ/") + name);
    }
    Formlauf lauf;
};

void DateiwunschTest::aQuizFormOpensWhateverItsPathIsMadeOf() {
    const QString name = QStringLiteral("LÄGER im Schnee/Übung & Spaß 'eins'.fkr");
    lauf.Schreiben(name, Formlauf::Quiz("Herbst"));
    DateiWuenschen(Nativ(name));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QTRY_COMPARE(Frage1(), QStringLiteral("Herbst 1"));
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral("Übung & Spaß 'eins'.fkr "));
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Spiel.Datei[0], Stand.FKDateiName);
}

void DateiwunschTest::exactlyThisFileIsOpenedAndNotOneThatIsWrittenAlike() {
    lauf.Schreiben(QStringLiteral("ABEND.FKR"), Formlauf::Quiz("Gross"));
    lauf.Schreiben(QStringLiteral("Abend.fkr"), Formlauf::Quiz("Klein"));
    for (const auto& [name, wort] : {std::pair{"Abend.fkr", "Klein 1"}, std::pair{"ABEND.FKR", "Gross 1"}}) {
        DateiWuenschen(Nativ(QString::fromLatin1(name)));
        QTRY_COMPARE(Frage1(), QString::fromLatin1(wort));
    }
}

void DateiwunschTest::aTestFormOpens() {
    lauf.Schreiben(QStringLiteral("Knoten.FKR"), Formlauf::Test("Knoten"));
    DateiWuenschen(Nativ(QStringLiteral("Knoten.FKR")));
    QTRY_VERIFY(HBFragenOffen() != nullptr);
    QCOMPARE(HBForm.HBFrageText[1], std::string("Knoten"));
    QCOMPARE(Stand.FormTyp, Formart::Test);
}

void DateiwunschTest::aFormOfTheOtherKindIsRefusedAsEver() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Schreiben(QStringLiteral("T.FKR"), Formlauf::Test("Knoten"));
    DateiWuenschen(Nativ(QStringLiteral("A.FKR")));
    QTRY_COMPARE(Frage1(), QStringLiteral("Eins 1"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich kann jetzt kein Testformular laden.\nDu mußt erst das "
                                   "Feldkranzformular schließen."),
                    QStringLiteral("Den Gefallen kann ich dir tun !"));
    DateiWuenschen(Nativ(QStringLiteral("T.FKR")));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(Frage1(), QStringLiteral("Eins 1"));
}

void DateiwunschTest::whatIsNoFormIsToldAsByTheFileDialog() {
    lauf.Schreiben(QStringLiteral("BRIEF.TXT"), "Liebe Oma,\r\n");
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    DateiWuenschen(Nativ(QStringLiteral("BRIEF.TXT")));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
}

void DateiwunschTest::aFileThatHasGoneLeadsToTheFileDialog() {
    Dialogfolge dialoge;
    dialoge.kasten(fehlerTitel, QStringLiteral("Fehler Nummer 53 occurred at line 0"), QStringLiteral("OK"));
    dialoge.kasten(fehlerTitel, QStringLiteral("Mit dem Dateinamen stimmt etwas nicht !"),
                   QStringLiteral("OK"));
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QString(), QStringLiteral("cmdAbbrechen"));
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    DateiWuenschen(Nativ(QStringLiteral("Weg damit.FKR")));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
}

void DateiwunschTest::unsavedWorkIsAskedAboutFirst() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.NeuesFormular(QStringLiteral("Neu"));
    const QString frage = QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?");
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Auswertung speichern !"), frage, 2);
    DateiWuenschen(Nativ(QStringLiteral("A.FKR")));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(WuenscheErfuellen());
    QCOMPARE(Frage1(), QStringLiteral("Neu"));

    dialoge.frage(QStringLiteral("Auswertung speichern !"), frage, 7);
    dialoge.meldung(QStringLiteral("Formular wird nicht gespeichert !"),
                    QStringLiteral("Das will ich auch meinen"));
    DateiWuenschen(Nativ(QStringLiteral("A.FKR")));
    QTRY_COMPARE(Frage1(), QStringLiteral("Eins 1"));
    QVERIFY(dialoge.fertig());
}

void DateiwunschTest::itWaitsUntilAnOpenDialogHasBeenAnswered() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    bool wartete = false;
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(2)")}, [&](QDialog& dialog) {
             DateiWuenschen(Nativ(QStringLiteral("A.FKR")));
             NachVornHolen();
             UhrenAbwarten(300);
             wartete = FKFragenOffen() == nullptr && dialog.isActiveWindow();
         }});
    lauf.Druecken(QStringLiteral("cmdNeuFK"));
    QVERIFY(wartete);
    QTRY_COMPARE(Frage1(), QStringLiteral("Eins 1"));
    QVERIFY(dialoge.fertig());
}

void DateiwunschTest::itWaitsUntilAMenuHasGone() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    QMenu menue(lauf.programm().haupt());
    menue.addAction(QStringLiteral("etwas"));
    menue.popup(lauf.programm().haupt()->mapToGlobal(QPoint(50, 50)));
    QTRY_VERIFY(menue.isVisible());
    DateiWuenschen(Nativ(QStringLiteral("A.FKR")));
    UhrenAbwarten(300);
    QVERIFY(FKFragenOffen() == nullptr);
    menue.close();
    QTRY_COMPARE(Frage1(), QStringLiteral("Eins 1"));
}

void DateiwunschTest::severalAreOpenedOneAfterTheOther() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Schreiben(QStringLiteral("B.FKR"), Formlauf::Quiz("Zwei"));
    DateiWuenschen(Nativ(QStringLiteral("A.FKR")));
    DateiWuenschen(Nativ(QStringLiteral("B.FKR")));
    QTRY_COMPARE(Frage1(), QStringLiteral("Zwei 1"));
    QVERIFY(QString::fromStdString(Spiel.Datei[1]).endsWith(QStringLiteral("A.FKR")));
}

void DateiwunschTest::theMainWindowComesBackFromBeingMinimised() {
    QWidget* haupt = lauf.programm().haupt();
    haupt->showMinimized();
    QTRY_VERIFY(haupt->isMinimized());
    NachVornHolen();
    QTRY_VERIFY(!haupt->isMinimized());
    QTRY_VERIFY(haupt->isActiveWindow());
    QVERIFY(haupt->isMaximized());
}

QTEST_MAIN(DateiwunschTest)
#include "dateiwunsch_test.moc"
