// From window to window by keyboard, and cells that the keyboard comes to are seen.
#include "catalogue/auswahl.h"
#include "catalogue/frmAuswahl.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "tests/quizform/formhilfe.h"

#include <QMdiArea>
#include <QScrollBar>

namespace {

void F6() {
    maus::Taste(QStringLiteral("F6"));
}
void Zurueck() {
    maus::Taste(QStringLiteral("shift+F6"));
}

bool FokusIn(const QWidget* bereich) {
    const QWidget* fokus = QApplication::focusWidget();
    return fokus != nullptr && (fokus == bereich || bereich->isAncestorOf(fokus));
}

QWidget* Ablage() {
    return Finden(MDIFenster(), QStringLiteral("pnlCopyF"));
}

bool ImBild(const QWidget* element) {
    const QWidget* sicht = MDIFenster()->findChild<QMdiArea*>()->viewport();
    return sicht->rect().contains(QRect(element->mapTo(sicht, QPoint(0, 0)), element->size()));
}

} // namespace

class StationenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void f6GoesRoundWhatIsOpenAndShiftF6GoesBack();
    void theFormIsComeBackToWhereOneLeftIt();
    void withoutAFormTheListAndThePanelsAreStops();
    void aCellThatTabComesToIsScrolledIntoSight();
    void aClickScrollsNothing();
};

void StationenTest::f6GoesRoundWhatIsOpenAndShiftF6GoesBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FormularlisteZeigen();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
    F6();
    QTRY_VERIFY(FokusIn(Ablage()));
    F6();
    QTRY_VERIFY(FokusIn(form));
    F6();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
    AuswahlZeigen();
    QTRY_VERIFY(FokusIn(AuswahlOffen()));
    Zurueck();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
    F6();
    QTRY_VERIFY(FokusIn(AuswahlOffen()));
    F6();
    QTRY_VERIFY(FokusIn(Ablage()));
    Zurueck();
    QTRY_VERIFY(FokusIn(AuswahlOffen()));
}

void StationenTest::theFormIsComeBackToWhereOneLeftIt() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FormularlisteZeigen();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
    maus::Klicken(form->txtAntwort.at(12));
    QTRY_VERIFY(form->txtAntwort.at(12)->hasFocus());
    F6();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
    Zurueck();
    QTRY_VERIFY(form->txtAntwort.at(12)->hasFocus());
}

void StationenTest::withoutAFormTheListAndThePanelsAreStops() {
    const Programm programm;
    FormularlisteZeigen();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
    F6();
    QTRY_VERIFY(FokusIn(Ablage()));
    F6();
    QTRY_VERIFY(FokusIn(FormularlisteOffen()));
}

void StationenTest::aCellThatTabComesToIsScrolledIntoSight() {
    Programm programm;
    MDIFenster()->showNormal();
    MDIFenster()->resize(640, 400);
    const frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(ImBild(form->txtFrage.at(1)));
    int besucht = 0;
    for (int i = 0; i < 300 && !form->txtAntwort.at(30)->hasFocus(); ++i) {
        maus::Taste(QStringLiteral("Tab"));
        if (QWidget* fokus = QApplication::focusWidget(); fokus != nullptr && form->isAncestorOf(fokus)) {
            QVERIFY2(ImBild(fokus), qPrintable(fokus->objectName()));
            ++besucht;
        }
    }
    QVERIFY(form->txtAntwort.at(30)->hasFocus());
    QVERIFY(besucht >= 59);
}

void StationenTest::aClickScrollsNothing() {
    Programm programm;
    MDIFenster()->showNormal();
    MDIFenster()->resize(640, 400);
    const frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setFocus(Qt::TabFocusReason);
    const QScrollBar* leiste = MDIFenster()->findChild<QMdiArea*>()->verticalScrollBar();
    const int vorher = leiste->value();
    // A cell of which only a part is seen.
    for (const int n : {2, 3, 4, 5}) {
        const Textfeld* feld = form->txtFrage.at(Nr(n));
        const QWidget* sicht = MDIFenster()->findChild<QMdiArea*>()->viewport();
        if (!ImBild(feld) && sicht->rect().contains(feld->mapTo(sicht, QPoint(20, 6)))) {
            maus::Klicken(feld, Qt::NoModifier, QPoint(20, 6));
            QTRY_VERIFY(feld->hasFocus());
            QCOMPARE(leiste->value(), vorher);
            return;
        }
    }
    QSKIP("no cell is cut by the edge");
}

QTEST_MAIN(StationenTest)
#include "stationen_test.moc"
