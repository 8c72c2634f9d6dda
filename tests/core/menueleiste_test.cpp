// The menu bar by the keyboard: each letter belongs to one menu, whichever form is in front.
#include "forms/formulare.h"
#include "mainwindow/frmMDI.h"
#include "quizform/frmFKFragen.h"
#include "testform/frmHBFragen.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace {

struct Taste {
    char buchstabe;
    const char* menue;
};

// Presses each letter once, and no letter twice: the first press has to open the right menu.
void EinmalDruecken(const Programm& programm, QWidget* feld, std::initializer_list<Taste> tasten) {
    for (const Taste& taste : tasten) {
        if (feld != nullptr) {
            feld->setFocus();
        }
        QTRY_VERIFY(programm.haupt()->isActiveWindow());
        maus::Taste(QStringLiteral("alt+%1").arg(QLatin1Char(taste.buchstabe)));
        QTRY_VERIFY2(QApplication::activePopupWidget() != nullptr, taste.menue);
        QCOMPARE(QApplication::activePopupWidget()->objectName(), QLatin1String(taste.menue));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); // the real one would reach nobody
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    }
}

// The letters of the menus that are in the bar, in its order.
QString Buchstaben(const Programm& programm) {
    QString buchstaben;
    for (const QAction* menue : programm.haupt()->menuBar()->actions()) {
        buchstaben += menue->text().at(menue->text().indexOf(u'&') + 1);
    }
    return buchstaben;
}

} // namespace

class MenueleisteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAFormEachLetterOpensItsMenuAtTheFirstPress();
    void overAQuizFormEachLetterOpensItsMenuAtTheFirstPress();
    void overATestFormEachLetterOpensItsMenuAtTheFirstPress();
    void theBarHoldsOneMenuALetterInTheirOrderWhateverComesAndGoes();
};

void MenueleisteTest::withoutAFormEachLetterOpensItsMenuAtTheFirstPress() {
    const Programm programm;
    EinmalDruecken(programm, nullptr,
                   {{'d', "mDateien"},
                    {'a', "mFragen"},
                    {'o', "mOptionen"},
                    {'i', "mInfo"},
                    {'e', "mEditor"},
                    {'x', "mExtras"},
                    {'h', "mHilfe"}});
}

void MenueleisteTest::overAQuizFormEachLetterOpensItsMenuAtTheFirstPress() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    EinmalDruecken(programm, form->txtFrage.at(1),
                   {{'d', "mDateienFK"},
                    {'f', "mFormularFK"},
                    {'a', "mFragen"},
                    {'o', "mOptionen"},
                    {'i', "mInfo"},
                    {'e', "mEditor"},
                    {'x', "mExtras"},
                    {'h', "mHilfe"}});
}

void MenueleisteTest::overATestFormEachLetterOpensItsMenuAtTheFirstPress() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    EinmalDruecken(programm, form->txtFrage.at(1),
                   {{'d', "mDateienHB"},
                    {'f', "mFormularHB"},
                    {'a', "mFragen"},
                    {'o', "mOptionen"},
                    {'i', "mInfo"},
                    {'e', "mEditor"},
                    {'x', "mExtras"},
                    {'h', "mHilfe"}});
}

void MenueleisteTest::theBarHoldsOneMenuALetterInTheirOrderWhateverComesAndGoes() {
    Programm programm;
    QCOMPARE(Buchstaben(programm), QStringLiteral("DAOIExH"));
    programm.NeuesQuizformular();
    QCOMPARE(Buchstaben(programm), QStringLiteral("DFAOIExH"));
    programm.NeuesQuizformular();
    QCOMPARE(Buchstaben(programm), QStringLiteral("DFAOIExH"));
    FormulareEntladen();
    QTRY_COMPARE(Buchstaben(programm), QStringLiteral("DAOIExH"));
}

QTEST_MAIN(MenueleisteTest)
#include "menueleiste_test.moc"
