// Undo and redo of the test form in the real windows.
#include "core/formularfenster.h"
#include "forms/verlauf.h"
#include "tests/forms/verlaufhilfe.h"
#include "tests/testform/testhilfe.h"

namespace {

// All that the form shows.
QStringList Gezeigt(const frmHBFragen* form) {
    QStringList texte{form->titel.panel->caption(),
                      form->fach.panel->caption(),
                      form->lblGruppe->text(),
                      form->pnlPunktkontrolle->caption(),
                      form->pnlGesamtpunkte->caption(),
                      Finden<Panel>(Hauptfenster(), QStringLiteral("pnlHBPun"))->caption()};
    for (std::size_t n = 1; n <= anzahlTestfragen; ++n) {
        texte << Anzeige(form->txtFrage.at(n)->text()) << Anzeige(form->txtAntwort.at(n)->text())
              << form->pnlPunkte.at(n)->caption() << Grund(form->txtFrage.at(n)).name();
    }
    return texte;
}

QString Zeile(const frmHBFragen* form) {
    return Gezeigt(form).join(QLatin1Char('|'));
}

frmHBFragen* MitZweiFragen(Programm& programm) {
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 1, "Frage 1", "Antwort 1");
    Fuellen(form, 2, "Frage 2", "Antwort 2");
    FormularWechselt();
    FormStatusSetzen(false);
    return form;
}

} // namespace

class VerlaufTestformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsAreSteps();
    void pointsAndTheirTotalAreSteps();
    void clicksOnOneSpinControlAreOneStep();
    void theHeadIsAStep();
    void aMoveComesBackWithTheRowThatItEmptied();
    void blankedAnswersAndPointsComeBack();
};

void VerlaufTestformTest::textsAreSteps() {
    Programm programm;
    const frmHBFragen* form = MitZweiFragen(programm);
    const QString vorher = Zeile(form);
    Betreten(form->txtFrage.at(3));
    maus::Tippen(QStringLiteral("drei"));
    Betreten(form->txtAntwort.at(3));
    maus::Tippen(QStringLiteral("vier"));
    Betreten(form->txtFrage.at(4));
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Antwort eingeben | (Wiederholen)"));
    QVERIFY(Rot());
    const QString nachher = Zeile(form);
    Zurueck();
    QTRY_COMPARE(HB_Antwort(3), std::string());
    Zurueck();
    QTRY_COMPARE(Zeile(form), vorher);
    QVERIFY(Gruen());
    Vor();
    Vor();
    QTRY_COMPARE(Zeile(form), nachher);
    QVERIFY(Rot());
}

void VerlaufTestformTest::pointsAndTheirTotalAreSteps() {
    Programm programm;
    frmHBFragen* form = MitZweiFragen(programm);
    const QString vorher = Zeile(form);
    Drehen(form, 1, "hoch");
    Drehen(form, 2, "hoch");
    QCOMPARE(Summenfeld(programm), QStringLiteral("2"));
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Punkte ändern | (Wiederholen)"));
    RueckgaengigMachen();
    QCOMPARE(Summenfeld(programm), QStringLiteral("1"));
    QCOMPARE(HBForm.HBGesamtpunkte, std::int16_t(1));
    RueckgaengigMachen();
    QCOMPARE(Zeile(form), vorher);
    QCOMPARE(HBForm.HBGesamtpunkte, std::int16_t(0));
    QVERIFY(Gruen());
    Wiederholen();
    Wiederholen();
    QCOMPARE(Summenfeld(programm), QStringLiteral("2"));
}

void VerlaufTestformTest::clicksOnOneSpinControlAreOneStep() {
    Programm programm;
    frmHBFragen* form = MitZweiFragen(programm);
    const QString vorher = Zeile(form);
    Drehen(form, 1, "hoch", 5);
    QCOMPARE(form->pnlPunkte.at(1)->caption(), QStringLiteral("5"));
    RueckgaengigMachen();
    QCOMPARE(Zeile(form), vorher);
}

void VerlaufTestformTest::theHeadIsAStep() {
    Programm programm;
    const frmHBFragen* form = MitZweiFragen(programm);
    const QString vorher = Zeile(form);
    QTest::mouseClick(form->fach.taste, Qt::LeftButton);
    QTRY_VERIFY(form->fach.liste->view()->isVisible());
    form->fach.liste->view()->setCurrentIndex(form->fach.liste->model()->index(2, 0));
    QTest::keyClick(form->fach.liste->view(), Qt::Key_Return);
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Kopf wählen | (Wiederholen)"));
    QVERIFY(Zeile(form) != vorher);
    Zurueck();
    QTRY_COMPARE(Zeile(form), vorher);
    QVERIFY(Gruen());
}

void VerlaufTestformTest::aMoveComesBackWithTheRowThatItEmptied() {
    Programm programm;
    const frmHBFragen* form = MitZweiFragen(programm);
    const QString vorher = Zeile(form);
    maus::Ziehen(form->txtFrage.at(1)->viewport(), form->txtFrage.at(5)->viewport(), Qt::ShiftModifier);
    QTRY_COMPARE(HB_Frage(5), std::string("Frage 1"));
    QCOMPARE(HB_Frage(1), std::string());
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Frage verschieben | (Wiederholen)"));
    Zurueck();
    QTRY_COMPARE(Zeile(form), vorher);
}

void VerlaufTestformTest::blankedAnswersAndPointsComeBack() {
    Programm programm;
    frmHBFragen* form = MitZweiFragen(programm);
    Drehen(form, 1, "hoch", 3);
    const QString vorher = Zeile(form);
    {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        Druecken(programm, QStringLiteral("cmdHBALoeschen"));
        Druecken(programm, QStringLiteral("cmdHBPLoeschen"));
    }
    QCOMPARE(form->pnlPunkte.at(1)->caption(), QString());
    QCOMPARE(HB_Antwort(2), std::string());
    QCOMPARE(Rueckschritt(), std::string("Punkte löschen"));
    RueckgaengigMachen();
    QCOMPARE(form->pnlPunkte.at(1)->caption(), QStringLiteral("3"));
    QCOMPARE(Rueckschritt(), std::string("Antworten löschen"));
    RueckgaengigMachen();
    QCOMPARE(Zeile(form), vorher);
}

QTEST_MAIN(VerlaufTestformTest)
#include "verlauf_testform_test.moc"
