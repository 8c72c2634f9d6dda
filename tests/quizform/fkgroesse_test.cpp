// The quiz form in other sizes, by its keys and by the size of the main window.
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/ziehen.h"
#include "forms/verlauf.h"
#include "quizform/fkereignisse.h"
#include "tests/core/groessenhilfe.h"
#include "tests/quizform/formhilfe.h"

namespace {

const std::string langerText =
    "eins zwei drei vier fünf sechs sieben acht neun zehn elf zwölf dreizehn vierzehn "
    "fünfzehn sechzehn siebzehn achtzehn neunzehn zwanzig einundzwanzig "
    "zweiundzwanzig dreiundzwanzig vierundzwanzig fünfundzwanzig sechsundzwanzig "
    "siebenundzwanzig achtundzwanzig neunundzwanzig dreißig";

// A form with texts, which counts as saved and whose history begins with it.
frmFKFragen* Gefuellt(Programm& programm) {
    frmFKFragen* form = programm.NeuesQuizformular();
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n));
        form->txtAntwort.at(Nr(n))->setText("Antwort " + std::to_string(n));
    }
    form->txtFrage.at(1)->setText(langerText);
    form->pnlSpezial.at(8)->setCaption(QStringLiteral("G"));
    FK_Merken();
    FK_SpezialZaehlen();
    FK_FelderFaerben();
    FormularWechselt();
    FormStatusSetzen(false);
    return form;
}

// Frames may touch: they lie behind the cells.
QList<QWidget*> Teile(const frmFKFragen* form) {
    QList<QWidget*> teile{form->pnlKranz, form->pnlDatum, form->pnlZeit, form->pnlNr, form->cmdFKSchliessen};
    for (int a = 1; a <= anzahlGebiete; ++a) {
        teile << form->pnlWissen.at(Nr(a));
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        teile << form->pnlPunkte.at(Nr(n)) << form->pnlSpezial.at(Nr(n)) << form->txtFrage.at(Nr(n));
    }
    return teile;
}

std::string ObersteZeile(const Textfeld* feld) {
    const QTextCursor stelle = feld->cursorForPosition(QPoint(0, 4));
    return feld->text().substr(
        0, static_cast<std::size_t>(feld->toPlainText().left(stelle.position()).toUtf8().size()));
}

} // namespace

class FkGroesseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFormThatFitsStandsInItsOriginalSize();
    void aFormThatDoesNotFitIsMadeAsLargeAsFits_data();
    void aFormThatDoesNotFitIsMadeAsLargeAsFits();
    void theFormFollowsTheMainWindowAndComesBackToItsPlace();
    void belowTheSmallestSizeTheAreaScrolls();
    void theKeysStepAndTheFormFollowsNoMore();
    void theOriginalSizeIsTheSameToThePixel();
    void atEverySizeNothingLiesOnAnything();
    void twoLinesOfAnAnswerNeedNoScrollBar_data();
    void twoLinesOfAnAnswerNeedNoScrollBar();
    void cellsAreClickedAndTypedInto_data();
    void cellsAreClickedAndTypedInto();
    void aQuestionIsDraggedBetweenSmallCells();
    void theListOfLettersOpensAtItsCellAndGoesWithIt();
    void theListOfTitlesLiesOnItsTitle();
    void neitherTextNorHistoryNorFocusKnowsOfTheSize();
    void theTopLineOfAScrolledBoxStays();
    void aFormThatWasMovedByHandKeepsItsPlace();
    void theCellBeingWorkedInStaysInSight();
    void twoDigitsOfPointsFitAtEverySize();
};

void FkGroesseTest::aFormThatFitsStandsInItsOriginalSize() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QCOMPARE(Prozent(form), 100);
    QCOMPARE(form->size(), QSize(1229, 726));
    QCOMPARE(Rahmen(form)->pos(), form->Platz(Rahmen(form)->size(), QPoint()));
    QVERIFY(Groesseneintrag(programm, 13)->isChecked());
}

void FkGroesseTest::aFormThatDoesNotFitIsMadeAsLargeAsFits_data() {
    QTest::addColumn<QSize>("haupt");
    QTest::newRow("the common laptop") << QSize(1366, 728);
    QTest::newRow("narrow") << QSize(1000, 1000);
    QTest::newRow("low") << QSize(1500, 640);
}

void FkGroesseTest::aFormThatDoesNotFitIsMadeAsLargeAsFits() {
    QFETCH(QSize, haupt);
    Programm programm;
    HauptfensterGroesse(programm, haupt);
    const frmFKFragen* form = programm.NeuesQuizformular();
    QVERIFY(Prozent(form) < 100);
    QVERIFY(GanzZuSehen(programm, form));
    QVERIFY(form->rect().contains(form->txtAntwort.at(30)->geometry()));
    const QSize rand = Rahmen(form)->size() - form->size();
    const QSize frei = programm.haupt()->Kindflaeche()->size();
    const Massstab naechster(Prozent(form) + 1);
    QVERIFY(naechster.Kante(1229) + rand.width() > frei.width() ||
            naechster.Kante(726) + rand.height() > frei.height());
    QVERIFY(Groesseneintrag(programm, 13)->isChecked());
}

void FkGroesseTest::theFormFollowsTheMainWindowAndComesBackToItsPlace() {
    Programm programm;
    HauptfensterGroesse(programm, QSize(1500, 1000));
    const frmFKFragen* form = programm.NeuesQuizformular();
    const QPoint platz = Rahmen(form)->pos();
    const QStringList anfangs = Anordnung(form);
    HauptfensterGroesse(programm, QSize(1300, 700));
    QVERIFY(Prozent(form) < 90);
    QVERIFY(GanzZuSehen(programm, form));
    HauptfensterGroesse(programm, QSize(900, 620));
    QVERIFY(Prozent(form) < 75);
    QVERIFY(GanzZuSehen(programm, form));
    HauptfensterGroesse(programm, QSize(1500, 1000));
    QCOMPARE(Prozent(form), 100);
    QCOMPARE(Rahmen(form)->pos(), platz);
    QCOMPARE(Anordnung(form), anfangs);
}

void FkGroesseTest::belowTheSmallestSizeTheAreaScrolls() {
    Programm programm;
    HauptfensterGroesse(programm, QSize(700, 450));
    const frmFKFragen* form = programm.NeuesQuizformular();
    QCOMPARE(Prozent(form), 60);
    QCOMPARE(form->size(), QSize(737, 436));
    QVERIFY(!GanzZuSehen(programm, form));
}

void FkGroesseTest::theKeysStepAndTheFormFollowsNoMore() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    maus::Taste(QStringLiteral("ctrl+minus"));
    QTRY_COMPARE(Prozent(form), 90);
    QCOMPARE(Hilfezeile(programm), QStringLiteral(" Das Formular ist jetzt auf 90 % seiner Größe. "));
    QVERIFY(!Groesseneintrag(programm, 13)->isChecked());
    maus::Taste(QStringLiteral("ctrl+plus"));
    QTRY_COMPARE(Prozent(form), 100);
    maus::Taste(QStringLiteral("ctrl+equal"));
    QTRY_COMPARE(Prozent(form), 110);
    QCOMPARE(form->size(), QSize(1352, 799));
    HauptfensterGroesse(programm, QSize(1000, 700));
    QCOMPARE(Prozent(form), 110); // it doesn't follow
    maus::Taste(QStringLiteral("ctrl+0"));
    QTRY_COMPARE(Prozent(form), 100);
    QVERIFY(!Groesseneintrag(programm, 13)->isChecked());
    Groesseneintrag(programm, 13)->trigger();
    QVERIFY(Groesseneintrag(programm, 13)->isChecked());
    QTRY_VERIFY(GanzZuSehen(programm, form));
    const int angepasst = Prozent(form);
    QVERIFY(angepasst < 100);
    QCOMPARE(
        Hilfezeile(programm),
        QStringLiteral(" Das Formular richtet sich jetzt nach dem Fenster und ist auf %1 % seiner Größe. ")
            .arg(angepasst));
    Groesseneintrag(programm, 13)->trigger(); // let go, it stays as it is
    QCOMPARE(Prozent(form), angepasst);
    QVERIFY(!Groesseneintrag(programm, 13)->isChecked());
}

void FkGroesseTest::theOriginalSizeIsTheSameToThePixel() {
    Programm programm;
    const frmFKFragen* form = Gefuellt(programm);
    const QStringList anfangs = Anordnung(form);
    const QRect rahmen = Rahmen(form)->geometry();
    QVERIFY(anfangs.size() > 160);
    for (const int prozent : {60, 150}) {
        Stellen(form, prozent);
        const QStringList jetzt = Anordnung(form);
        for (qsizetype i = 0; i < anfangs.size(); ++i) {
            QVERIFY2(jetzt.at(i) != anfangs.at(i), qPrintable(anfangs.at(i))); // nothing is left behind
        }
        maus::Taste(QStringLiteral("ctrl+0"));
        QTRY_COMPARE(Prozent(form), 100);
        QCOMPARE(Anordnung(form), anfangs);
        QCOMPARE(Rahmen(form)->geometry(), rahmen);
    }
}

void FkGroesseTest::atEverySizeNothingLiesOnAnything() {
    for (const QSize schirm : {QSize(1024, 768), QSize(1600, 1200)}) {
        Programm programm;
        BildschirmgroesseVorgeben(schirm);
        frmFKFragen* form = programm.NeuesQuizformular();
        for (int prozent = Massstab::kleinster; prozent <= Massstab::groesster; ++prozent) {
            form->MassstabSetzen(Massstab(prozent));
            QCOMPARE(Ueberdeckungen(form, Teile(form)), QStringList());
            for (std::size_t n = 1; n <= anzahlFelder; ++n) {
                const QRect rahmen = form->shpFrage.at(n)->geometry();
                const QRect frage = form->txtFrage.at(n)->geometry();
                const QRect antwort = form->txtAntwort.at(n)->geometry();
                QVERIFY(rahmen.contains(frage.adjusted(-1, -1, 1, 0)));
                QVERIFY(rahmen.contains(antwort.adjusted(-1, 0, 1, 1)));
                QVERIFY(antwort.top() <= frage.bottom() + 1 && antwort.bottom() > frage.bottom());
                QCOMPARE(form->pnlSpezial.at(n)->y(), form->pnlPunkte.at(n)->geometry().bottom() + 1);
            }
        }
        BildschirmgroesseVorgeben(QSize());
    }
}

void FkGroesseTest::twoLinesOfAnAnswerNeedNoScrollBar_data() {
    QTest::addColumn<QSize>("schirm");
    QTest::addColumn<int>("ab"); // below it the smallest legible font is too large
    QTest::newRow("small class") << QSize(1024, 768) << 78;
    QTest::newRow("large class") << QSize(1600, 1200) << 60;
}

void FkGroesseTest::twoLinesOfAnAnswerNeedNoScrollBar() {
    QFETCH(QSize, schirm);
    QFETCH(int, ab);
    Programm programm;
    BildschirmgroesseVorgeben(schirm);
    frmFKFragen* form = programm.NeuesQuizformular();
    for (int prozent = ab; prozent <= Massstab::groesster; ++prozent) {
        form->MassstabSetzen(Massstab(prozent));
        for (std::size_t n = 1; n <= fragenJeGebiet; ++n) {
            form->txtAntwort.at(n)->setText(prozent % 2 == 0 ? "Der Bär\r\nUnd der Igel" : "Der Igel\r\nj");
            QVERIFY2(form->txtAntwort.at(n)->verticalScrollBar()->maximum() == 0,
                     qPrintable(QStringLiteral("%1 % in row %2").arg(prozent).arg(n)));
        }
    }
}

void FkGroesseTest::cellsAreClickedAndTypedInto_data() {
    QTest::addColumn<int>("prozent");
    QTest::newRow("small") << 60;
    QTest::newRow("large") << 150;
}

void FkGroesseTest::cellsAreClickedAndTypedInto() {
    QFETCH(int, prozent);
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Stellen(form, prozent);
    for (Textfeld* feld : {form->txtFrage.at(1), form->txtAntwort.at(8)}) {
        maus::Klicken(feld);
        QTRY_VERIFY(feld->hasFocus());
        maus::Tippen(QStringLiteral("neu"));
        QTRY_COMPARE(feld->text(), std::string("neu"));
    }
    maus::Klicken(form->txtFrage.at(2));
    QTRY_COMPARE(FKForm.FrageText.at(1), std::string("neu"));
    QCOMPARE(FKForm.AntwortText.at(8), std::string("neu"));
}

void FkGroesseTest::aQuestionIsDraggedBetweenSmallCells() {
    Programm programm;
    frmFKFragen* form = Gefuellt(programm);
    FK_FeldLeeren(9);
    FK_Merken();
    Stellen(form, 60);
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(9), Qt::ShiftModifier,
                 [] { return AktuellesZiehBild() == ZiehBild::Ablegen; });
    QTRY_COMPARE(FK_Frage(9), std::string("Frage 2"));
    QCOMPARE(FK_Antwort(9), std::string("Antwort 2"));
    QCOMPARE(FK_Frage(2), std::string());
}

void FkGroesseTest::theListOfLettersOpensAtItsCellAndGoesWithIt() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Stellen(form, 60);
    SpezialWaehlen(form, 12, 3);
    QCOMPARE(form->pnlSpezial.at(12)->caption(), QStringLiteral("R"));
    for (const int n : {1, 30}) {
        maus::Klicken(form->pnlSpezial.at(Nr(n)));
        QTRY_VERIFY(form->cmbSpezial->view()->isVisible());
        const auto steht = [&] {
            const QRect liste = form->cmbSpezial->geometry();
            return liste.top() == form->pnlSpezial.at(Nr(n))->y() && form->rect().contains(liste) &&
                   liste.intersects(form->pnlSpezial.at(Nr(n))->geometry());
        };
        QVERIFY(steht());
        form->cmbSpezial->hidePopup();
        Stellen(form, 80);
        QVERIFY(form->cmbSpezial->isVisible());
        QVERIFY(form->cmbSpezial->hasFocus());
        QVERIFY(steht());
        Stellen(form, 60);
        QVERIFY(steht());
        ListenSchliessen(*form);
    }
}

void FkGroesseTest::theListOfTitlesLiesOnItsTitle() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Stellen(form, 150);
    maus::Klicken(form->pnlWissen.at(2));
    QTRY_VERIFY(form->cmbWissen->view()->isVisible());
    QCOMPARE(form->cmbWissen->geometry(), form->pnlWissen.at(2)->geometry());
    QCOMPARE(form->cmbWissen->font().pixelSize(), 19);
    form->cmbWissen->hidePopup();
}

void FkGroesseTest::neitherTextNorHistoryNorFocusKnowsOfTheSize() {
    Programm programm;
    frmFKFragen* form = Gefuellt(programm);
    maus::Klicken(form->txtFrage.at(7));
    QTRY_VERIFY(form->txtFrage.at(7)->hasFocus());
    maus::Tippen(QStringLiteral("getippt"));
    QTRY_COMPARE(FK_Frage(7), std::string("getippt"));
    maus::Klicken(form->txtAntwort.at(7));
    QTRY_VERIFY(Stand.FormGeaendert);
    FormStatusSetzen(false); // as a save does
    QTRY_COMPARE(Rueckschritt(), std::string("Frage eingeben"));
    const Quizformular gezeigt = FK_Ablesen();
    const Quizformular gemerkt = FKForm;
    for (const int prozent : {60, 150, 100}) {
        Stellen(form, prozent);
        QVERIFY(FK_Ablesen() == gezeigt);
        QVERIFY(FKForm == gemerkt);
        QCOMPARE(Rueckschritt(), std::string("Frage eingeben"));
        QCOMPARE(Vorschritt(), std::string());
        QVERIFY(!Stand.FormGeaendert);
        QVERIFY(form->txtAntwort.at(7)->hasFocus());
        QCOMPARE(form->txtAntwort.at(7)->textCursor().selectedText(), QStringLiteral("Antwort 7"));
    }
    Stellen(form, 60);
    maus::Taste(QStringLiteral("ctrl+z"));
    QTRY_COMPARE(FK_Frage(7), std::string("Frage 7"));
    QCOMPARE(Prozent(form), 60); // a step back is none of the size
}

void FkGroesseTest::theTopLineOfAScrolledBoxStays() {
    Programm programm;
    frmFKFragen* form = Gefuellt(programm);
    Textfeld* feld = form->txtFrage.at(1);
    feld->setFocus();
    QTRY_VERIFY(feld->verticalScrollBar()->isVisible());
    QVERIFY(feld->verticalScrollBar()->maximum() > 3);
    feld->verticalScrollBar()->setValue(3);
    const std::string davor = ObersteZeile(feld);
    QVERIFY(!davor.empty());
    for (const int prozent : {70, 130, 60, 100}) {
        Stellen(form, prozent);
        const std::string jetzt = ObersteZeile(feld);
        QVERIFY2(davor.starts_with(jetzt), jetzt.c_str()); // the same character is in the top line
    }
    QCOMPARE(feld->verticalScrollBar()->value(), 3);
    QCOMPARE(Anzeige(ObersteZeile(feld)), Anzeige(davor));
}

void FkGroesseTest::aFormThatWasMovedByHandKeepsItsPlace() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Rahmen(form)->move(5, 9);
    Stellen(form, 90);
    QCOMPARE(Rahmen(form)->y(), 9);
    const int mitte = Rahmen(form)->geometry().center().x();
    QVERIFY(std::abs(mitte - (5 + 1237 / 2)) <= 2);
    Stellen(form, 100);
    QCOMPARE(Rahmen(form)->y(), 9);
    QVERIFY(std::abs(Rahmen(form)->x() - 5) <= 1);
}

void FkGroesseTest::theCellBeingWorkedInStaysInSight() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    for (const Textfeld* feld : {form->txtFrage.at(1), form->txtAntwort.at(30)}) {
        maus::Taste(QStringLiteral("ctrl+0"));
        QTRY_COMPARE(Prozent(form), 100);
        maus::Klicken(feld);
        QTRY_VERIFY(feld->hasFocus());
        for (int prozent = 110; prozent <= Massstab::groesster; prozent += 10) {
            Stellen(form, prozent);
            QTRY_COMPARE(feld->visibleRegion().boundingRect(), feld->rect());
        }
    }
}

void FkGroesseTest::twoDigitsOfPointsFitAtEverySize() {
    for (const QSize schirm : {QSize(1024, 768), QSize(1600, 1200)}) {
        Programm programm;
        BildschirmgroesseVorgeben(schirm);
        frmFKFragen* form = programm.NeuesQuizformular();
        for (int prozent = Massstab::kleinster; prozent <= Massstab::groesster; ++prozent) {
            form->MassstabSetzen(Massstab(prozent));
            for (const std::size_t n : {std::size_t(1), std::size_t(26)}) {
                Panel* punkte = form->pnlPunkte.at(n);
                punkte->setCaption(QStringLiteral("10"));
                const QImage zahl = punkte->grab().toImage();
                punkte->setCaption(QStringLiteral("\u2026")); // as it would look without room
                QVERIFY2(punkte->grab().toImage() != zahl, qPrintable(QString::number(prozent)));
            }
        }
        BildschirmgroesseVorgeben(QSize());
    }
}

QTEST_MAIN(FkGroesseTest)
#include "fkgroesse_test.moc"
