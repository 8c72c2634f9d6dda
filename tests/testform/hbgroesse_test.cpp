// The test form in other sizes.
#include "core/formularfenster.h"
#include "core/insbild.h"
#include "core/ziehen.h"
#include "tests/core/groessenhilfe.h"
#include "tests/testform/testhilfe.h"

namespace {

QList<QWidget*> Teile(const frmHBFragen* form) {
    QList<QWidget*> teile{form->titel.panel, form->titel.taste,  form->fach.panel,
                          form->fach.taste,  form->gruppe.panel, form->gruppe.taste,
                          form->pnlTest,     form->pnlName,      form->pnlGesamtpunkte,
                          form->pnlNote,     form->pnlBewertet,  form->pnlPunktkontrolle};
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        teile << form->pnlNr.at(i) << form->txtFrage.at(i) << form->txtAntwort.at(i) << form->pnlPunkte.at(i)
              << form->spnPunkte.at(i);
    }
    for (const char* name : {"lblFrage", "lblAntwort", "lblPunkte"}) {
        teile << form->findChild<QWidget*>(QLatin1String(name));
    }
    return teile;
}

} // namespace

class HbGroesseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFormThatDoesNotFitIsMadeAsLargeAsFits();
    void theOriginalSizeIsTheSameToThePixel();
    void atEverySizeNothingLiesOnAnythingAndWordsFit();
    void rowsAreTypedIntoAndPointsStepped_data();
    void rowsAreTypedIntoAndPointsStepped();
    void theKeysOfTheSizeChangeNoPoints();
    void aQuestionIsDraggedBetweenSmallRows();
    void theListsOfTheHeadLieOnTheirPanels();
    void neitherTextNorPointsKnowOfTheSize();
};

void HbGroesseTest::aFormThatDoesNotFitIsMadeAsLargeAsFits() {
    Programm programm;
    HauptfensterGroesse(programm, QSize(1366, 728));
    const frmHBFragen* form = programm.NeuesTestformular();
    QVERIFY(Prozent(form) < 100);
    QVERIFY(GanzZuSehen(programm, form));
    HauptfensterGroesse(programm, QSize(800, 600));
    QVERIFY(GanzZuSehen(programm, form));
    HauptfensterGroesse(programm, QSize(1400, 1000));
    QCOMPARE(Prozent(form), 100);
    QCOMPARE(form->size(), form->Originalgroesse());
}

void HbGroesseTest::theOriginalSizeIsTheSameToThePixel() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    const QStringList anfangs = Anordnung(form);
    const QRect rahmen = Rahmen(form)->geometry();
    QVERIFY(anfangs.size() > 60);
    for (const int prozent : {60, 150}) {
        Stellen(form, prozent);
        QVERIFY(Anordnung(form) != anfangs);
        maus::Taste(QStringLiteral("ctrl+0"));
        QTRY_COMPARE(Prozent(form), 100);
        QCOMPARE(Anordnung(form), anfangs);
        QCOMPARE(Rahmen(form)->geometry(), rahmen);
    }
}

void HbGroesseTest::atEverySizeNothingLiesOnAnythingAndWordsFit() {
    for (const QSize schirm : {QSize(1024, 768), QSize(1600, 1200)}) {
        Programm programm;
        BildschirmgroesseVorgeben(schirm);
        frmHBFragen* form = programm.NeuesTestformular();
        for (int prozent = Massstab::kleinster; prozent <= Massstab::groesster; ++prozent) {
            form->MassstabSetzen(Massstab(prozent));
            QCOMPARE(Ueberdeckungen(form, Teile(form)), QStringList());
            for (const char* name : {"lblFrage", "lblAntwort", "lblPunkte"}) {
                const auto* wort = form->findChild<QLabel*>(QLatin1String(name));
                QVERIFY(wort->width() >= wort->fontMetrics().horizontalAdvance(wort->text()));
            }
            for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
                QCOMPARE(form->spnPunkte.at(i)->x(), form->pnlPunkte.at(i)->geometry().right() + 1);
            }
            QVERIFY(form->gruppe.panel->rect().contains(form->lblGruppe->geometry()));
        }
        BildschirmgroesseVorgeben(QSize());
    }
}

void HbGroesseTest::rowsAreTypedIntoAndPointsStepped_data() {
    QTest::addColumn<int>("prozent");
    QTest::newRow("small") << 60;
    QTest::newRow("large") << 150;
}

void HbGroesseTest::rowsAreTypedIntoAndPointsStepped() {
    QFETCH(int, prozent);
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Stellen(form, prozent);
    for (Textfeld* feld : {form->txtFrage.at(1), form->txtAntwort.at(4)}) {
        maus::Klicken(feld);
        QTRY_VERIFY(feld->hasFocus());
        maus::Tippen(QStringLiteral("neu"));
        QTRY_COMPARE(feld->text(), std::string("neu"));
    }
    for (const char* taste : {"hoch", "hoch", "runter"}) {
        InsBild(*form->spnPunkte.at(2));
        maus::Klicken(form->spnPunkte.at(2)->findChild<QWidget*>(QLatin1String(taste)));
    }
    QTRY_COMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("1"));
}

void HbGroesseTest::theKeysOfTheSizeChangeNoPoints() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    form->spnPunkte.at(1)->setFocus();
    QTRY_VERIFY(form->spnPunkte.at(1)->hasFocus());
    const QString punkte = form->pnlPunkte.at(1)->caption();
    Stellen(form, 60);
    maus::Taste(QStringLiteral("ctrl+minus")); // the end of the sizes is none of the points' affair
    QTRY_VERIFY(Hilfezeile(programm).startsWith(QStringLiteral(" Kleiner mache ich")));
    QCOMPARE(form->pnlPunkte.at(1)->caption(), punkte);
    QVERIFY(!Stand.FormGeaendert);
}

void HbGroesseTest::aQuestionIsDraggedBetweenSmallRows() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 2, "Frage zwei", "Antwort zwei");
    Stellen(form, 60);
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(9), Qt::ShiftModifier,
                 [] { return AktuellesZiehBild() == ZiehBild::Ablegen; });
    QTRY_COMPARE(HB_Frage(9), std::string("Frage zwei"));
    QCOMPARE(HB_Antwort(9), std::string("Antwort zwei"));
    QCOMPARE(HB_Frage(2), std::string());
}

void HbGroesseTest::theListsOfTheHeadLieOnTheirPanels() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    for (const int prozent : {60, 150}) {
        Stellen(form, prozent);
        for (const Kopfwahl* wahl : {&form->titel, &form->gruppe}) {
            InsBild(*wahl->taste);
            maus::Klicken(wahl->taste);
            QTRY_VERIFY(wahl->liste->view()->isVisible());
            QCOMPARE(wahl->liste->geometry(), wahl->panel->geometry());
            QCOMPARE(wahl->taste->x(), wahl->panel->geometry().right() + 1);
            QTest::keyClick(wahl->liste->view(), Qt::Key_Escape);
            QTRY_VERIFY(!wahl->liste->isVisible());
        }
    }
    KopfWaehlen(form->gruppe, QStringLiteral("III"), true);
    QCOMPARE(form->lblGruppe->text(), QStringLiteral(" III"));
}

void HbGroesseTest::neitherTextNorPointsKnowOfTheSize() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 1, "Frage eins", "Antwort eins");
    Drehen(form, 1, "hoch", 3);
    FormularWechselt();
    FormStatusSetzen(false);
    maus::Klicken(form->txtAntwort.at(1));
    QTRY_VERIFY(form->txtAntwort.at(1)->hasFocus());
    const Testformular gezeigt = HB_Ablesen();
    const Punktanzeige punkte = HB_PunkteAblesen();
    for (const int prozent : {60, 150, 100}) {
        Stellen(form, prozent);
        QVERIFY(HB_Ablesen() == gezeigt);
        QVERIFY(HB_PunkteAblesen() == punkte);
        QVERIFY(!Stand.FormGeaendert);
        QVERIFY(form->txtAntwort.at(1)->hasFocus());
    }
}

QTEST_MAIN(HbGroesseTest)
#include "hbgroesse_test.moc"
