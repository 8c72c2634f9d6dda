// The list of forms never lies over the form that the user works in.
#include "core/hauptfenster.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "tests/quizform/formhilfe.h"

#include <QMdiSubWindow>
#include <QMenuBar>
#include <QToolButton>

namespace {

QToolButton* Titel() {
    return Finden<QToolButton>(MDIFenster(), QStringLiteral("cmdListentitel"));
}

// The list lies over the form's first cells, and has the focus.
frmFKformulare* ListeUeber(const frmFKFragen* form) {
    FormularlisteZeigen();
    frmFKformulare* liste = FormularlisteOffen();
    [&] { QTRY_VERIFY(liste->isActiveWindow()); }();
    liste->move(form->txtFrage.at(1)->mapToGlobal(QPoint(0, 0)));
    [&] {
        QTRY_VERIFY(liste->frameGeometry().contains(form->txtFrage.at(1)->mapToGlobal(QPoint(40, 40))));
    }();
    return liste;
}

frmFKformulare* Gefaltet(const frmFKFragen* form) {
    frmFKformulare* liste = ListeUeber(form);
    maus::Klicken(form->txtFrage.at(30));
    [&] {
        QTRY_VERIFY(!liste->isVisible());
        QTRY_VERIFY(Titel()->isVisible());
    }();
    return liste;
}

} // namespace

class ListenfalteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aListOverTheFormFoldsToItsTitleAsSoonAsTheFormIsWorkedIn();
    void aListThatCoversNothingStays();
    void aClickOnTheTitleBringsItBack();
    void f6BringsItBackToo();
    void theFormGoneItComesUpByItselfAndTakesNoFocus();
    void aFormThatBecomesSmallerLetsItComeUp();
    void closedItLeavesNoTitle();
};

void ListenfalteTest::aListOverTheFormFoldsToItsTitleAsSoonAsTheFormIsWorkedIn() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    const int leiste = MDIFenster()->menuBar()->height();
    QVERIFY(!Titel()->isVisible());
    frmFKformulare* liste = ListeUeber(form);
    QVERIFY(liste->isVisible()); // while it is used it lies over the form
    maus::Klicken(form->txtFrage.at(30));
    QTRY_VERIFY(!liste->isVisible());
    QTRY_VERIFY(Titel()->isVisible());
    QCOMPARE(FormularlisteOffen(), liste);
    QCOMPARE(Titel()->text(), QStringLiteral("Dateiliste"));
    QCOMPARE(MDIFenster()->menuBar()->height(), leiste);
    QVERIFY(MDIFenster()->menuBar()->rect().contains(Titel()->geometry()));
    QTRY_VERIFY(form->txtFrage.at(30)->hasFocus());
}

void ListenfalteTest::aListThatCoversNothingStays() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    frmFKformulare* liste = ListeUeber(form);
    liste->move(0, MDIFenster()->height() - 60); // over the status line and beside the form
    QTRY_VERIFY(liste->y() > MDIFenster()->height() - 80);
    maus::Klicken(form->txtFrage.at(30));
    QTRY_VERIFY(form->txtFrage.at(30)->hasFocus());
    QVERIFY(liste->isVisible());
    QVERIFY(!Titel()->isVisible());
}

void ListenfalteTest::aClickOnTheTitleBringsItBack() {
    Programm programm;
    frmFKformulare* liste = Gefaltet(programm.NeuesQuizformular());
    maus::Klicken(Titel());
    QTRY_VERIFY(liste->isVisible());
    QTRY_VERIFY(liste->isActiveWindow());
    QTRY_VERIFY(!Titel()->isVisible());
    QCOMPARE(FormularlisteOffen(), liste);
}

void ListenfalteTest::f6BringsItBackToo() {
    Programm programm;
    frmFKformulare* liste = Gefaltet(programm.NeuesQuizformular());
    maus::Taste(QStringLiteral("F6"));
    QTRY_VERIFY(liste->isActiveWindow());
    QTRY_VERIFY(!Titel()->isVisible());
}

void ListenfalteTest::theFormGoneItComesUpByItselfAndTakesNoFocus() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    frmFKformulare* liste = Gefaltet(form);
    FormStatusSetzen(false);
    form->parentWidget()->close();
    QTRY_VERIFY(liste->isVisible());
    QTRY_VERIFY(!Titel()->isVisible());
    QTRY_VERIFY(MDIFenster()->isActiveWindow());
}

void ListenfalteTest::aFormThatBecomesSmallerLetsItComeUp() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FormularlisteZeigen();
    frmFKformulare* liste = FormularlisteOffen();
    QTRY_VERIFY(liste->isActiveWindow());
    liste->move(form->mapToGlobal(QPoint(form->width() - 20, 40))); // over the right edge alone
    maus::Klicken(form->txtFrage.at(1));
    QTRY_VERIFY(!liste->isVisible());
    maus::Taste(QStringLiteral("ctrl+minus"));
    maus::Taste(QStringLiteral("ctrl+minus"));
    QTRY_VERIFY(liste->isVisible());
    QTRY_VERIFY(!Titel()->isVisible());
}

void ListenfalteTest::closedItLeavesNoTitle() {
    Programm programm;
    frmFKformulare* liste = Gefaltet(programm.NeuesQuizformular());
    liste->close();
    QTRY_VERIFY(FormularlisteOffen() == nullptr);
    QTRY_VERIFY(!Titel()->isVisible());
}

QTEST_MAIN(ListenfalteTest)
#include "listenfalte_test.moc"
