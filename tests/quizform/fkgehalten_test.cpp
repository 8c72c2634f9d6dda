// A question held by key: what is dropped is what its source shows by then, and a form takes along what was
// held of it.
#include "core/hauptfenster.h"
#include "core/ziehen.h"
#include "forms/oeffnen.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/quizform/formhilfe.h"

namespace {

void ZelleFuellen(frmFKFragen* form, int n, const char* frage, const char* antwort) {
    form->txtFrage.at(Nr(n))->setText(frage);
    form->txtAntwort.at(Nr(n))->setText(antwort);
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(false);
}

QString Hilfe(const Programm& programm) {
    return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption();
}

} // namespace

class FkGehaltenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anotherFormLetsGoOfWhatWasHeldOfTheFirst();
    void textTypedMeanwhileComesAlong();
    void anotherQuestionOfTheDialogComesWithItsOwnAnswer();
    void aQuestionThatIsGoneIsSaid();
    void aParkedQuestionStaysHeldWhenTheFormGoes();
};

void FkGehaltenTest::anotherFormLetsGoOfWhatWasHeldOfTheFirst() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    ZelleFuellen(form, 1, "Frage aus A", "Antwort aus A");
    form->txtFrage.at(1)->setFocus();
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_F8, Qt::ShiftModifier);
    QVERIFY(OhneMausGehalten());
    FormularLaden(Stand.AppPfad + "\\KRANZ\\NATURABEND.FKR");
    QCOMPARE(FKFragenOffen(), form); // the window stays, its form is another
    QVERIFY(!OhneMausGehalten());
    const std::string erste = FK_Frage(1);
    QVERIFY(!erste.empty());
    form->txtFrage.at(30)->setFocus();
    QTest::keyClick(form->txtFrage.at(30), Qt::Key_F8);
    QCOMPARE(FK_Frage(1), erste);
    QVERIFY(!Stand.FormGeaendert);
}

void FkGehaltenTest::textTypedMeanwhileComesAlong() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    ZelleFuellen(form, 1, "Wer?", "Ich");
    form->txtFrage.at(1)->setFocus();
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_F8, Qt::ShiftModifier);
    Tippen(form->txtFrage.at(1), QStringLiteral("Wer denn?"));
    Tippen(form->txtAntwort.at(1), QStringLiteral("Du"));
    form->txtFrage.at(9)->setFocus();
    QTest::keyClick(form->txtFrage.at(9), Qt::Key_F8);
    QCOMPARE(FK_Frage(9), std::string("Wer denn?"));
    QCOMPARE(FK_Antwort(9), std::string("Du"));
    QCOMPARE(FK_Frage(1), std::string());
}

void FkGehaltenTest::anotherQuestionOfTheDialogComesWithItsOwnAnswer() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* auswahl = AuswahlOeffnen(programm, QStringLiteral("cmdAuswahl(0)"), Ecke::Oben, true);
    auto* frage = Finden<Textfeld>(auswahl, QStringLiteral("txtFrage"));
    QTest::keyClick(frage, Qt::Key_Return);
    QVERIFY(OhneMausGehalten());
    auto* fragen = Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"));
    ListeWaehlen(fragen, fragen->itemText(3));
    const std::string antwort = Finden<Textfeld>(auswahl, QStringLiteral("txtAntwort"))->text();
    QTest::keyClick(form->txtFrage.at(5), Qt::Key_F8);
    QCOMPARE(FK_Frage(5), Modelltext(fragen->itemText(3)));
    QCOMPARE(FK_Antwort(5), antwort);
}

void FkGehaltenTest::aQuestionThatIsGoneIsSaid() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    ZelleFuellen(form, 1, "Wer?", "Ich");
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_F8, Qt::ControlModifier);
    QVERIFY(OhneMausGehalten());
    FK_FeldLeeren(1);
    QTest::keyClick(form->txtFrage.at(2), Qt::Key_F8);
    QCOMPARE(FK_Frage(2), std::string());
    QVERIFY(!OhneMausGehalten());
    QCOMPARE(Hilfe(programm), QStringLiteral(" Die Frage, die ich halten sollte, steht dort nicht mehr. "));
}

void FkGehaltenTest::aParkedQuestionStaysHeldWhenTheFormGoes() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    ZelleFuellen(form, 1, "Wer?", "Ich");
    auto* ablage = Finden<Panel>(programm.haupt(), QStringLiteral("pnlCopyF"));
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_F8, Qt::ControlModifier);
    QTest::keyClick(ablage, Qt::Key_F8);
    QCOMPARE(Modelltext(ablage->caption()), std::string("Wer?"));
    QTest::keyClick(ablage, Qt::Key_F8, Qt::ShiftModifier);
    QVERIFY(OhneMausGehalten());
    FormularLaden(Stand.AppPfad + "\\KRANZ\\NATURABEND.FKR");
    QVERIFY(OhneMausGehalten());
    OhneMausLoslassen();
}

QTEST_MAIN(FkGehaltenTest)
#include "fkgehalten_test.moc"
