// A leader's evening without a mouse, on a screen of 1024 by 600: theme, question, special field, blank,
// save, print, open. Only keys reach the program; where the test asks the windows, it looks.
#include "catalogue/auswahl.h"
#include "catalogue/frmAuswahl.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/quizform/formhilfe.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QMdiArea>
#include <QMenu>

namespace {

// Tab until a control has the focus; each one on the way could be left again.
void Hin(const QWidget* ziel) {
    for (int i = 0; i < 400 && QApplication::focusWidget() != ziel; ++i) {
        maus::Taste(QStringLiteral("Tab"));
    }
    QCOMPARE(QApplication::focusWidget(), ziel);
}

bool ImBild(const QWidget* element) {
    const QWidget* sicht = MDIFenster()->findChild<QMdiArea*>()->viewport();
    return sicht->rect().contains(QRect(element->mapTo(sicht, QPoint(0, 0)), element->size()));
}

// A menu by its letter and an entry by its own. An open menu has the keyboard to itself, and keys from
// outside don't reach it.
void Menue(const QString& menue, Qt::Key eintrag) {
    maus::Taste(QStringLiteral("alt+") + menue);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), eintrag);
}

// The space bar opens a list over a panel, arrows and Enter choose.
void ListeUeber(const QWidget* panel, const QComboBox* liste, int stelle) {
    Hin(panel);
    QVERIFY(ImBild(panel));
    maus::Taste(QStringLiteral("space"));
    QTRY_VERIFY(liste->view()->isVisible());
    QTest::keyClick(liste->view(), Qt::Key_Home);
    for (int i = 0; i < stelle; ++i) {
        QTest::keyClick(liste->view(), Qt::Key_Down);
    }
    QTest::keyClick(liste->view(), Qt::Key_Return);
    QTRY_VERIFY(!liste->view()->isVisible());
}

// Down to an entry of a list that has the focus.
void Hinunter(const QComboBox* liste, const QString& text) {
    for (int i = 0; i < 40 && liste->currentText() != text; ++i) {
        maus::Taste(QStringLiteral("Down"));
    }
    QCOMPARE(liste->currentText(), text);
}

// From window to window by F6 until it is the form's turn.
void ZumFormular() {
    const auto da = [] {
        const QWidget* fokus = QApplication::focusWidget();
        return fokus != nullptr && FKFragenOffen()->isAncestorOf(fokus);
    };
    for (int i = 0; i < 5 && !da(); ++i) {
        maus::Taste(QStringLiteral("F6"));
        (void)QTest::qWaitFor(da, 1000);
    }
    QVERIFY(da());
}

// The dialog gets these keys and is gone behind the last one.
ErwarteterDialog Tasten(const char* name, const QStringList& tasten, const QString& text = {}) {
    return {QLatin1String(name), std::nullopt, std::nullopt, {}, [text, tasten](QDialog&) {
                if (!text.isEmpty()) {
                    maus::Tippen(text);
                }
                for (const QString& taste : tasten) {
                    maus::Taste(taste);
                }
            }};
}

} // namespace

class Tastenabend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromAnEmptyFormToPaperAndBackWithoutAMouse();

private:
    static void Anlegen();
    static void FrageHolen();
    static void Blanko();
    static void Ablegen();
    static void WiederOeffnen();
};

void Tastenabend::fromAnEmptyFormToPaperAndBackWithoutAMouse() {
    const Programm programm;
    QTRY_VERIFY(MDIFenster()->isActiveWindow());
    Anlegen();
    ListeUeber(FKFragenOffen()->pnlWissen.at(2), FKFragenOffen()->cmbWissen, 3);
    const QString titel = FKFragenOffen()->cmbWissen->itemText(3);
    QTRY_COMPARE(FKFragenOffen()->pnlWissen.at(2)->caption(), titel);
    FrageHolen();
    ListeUeber(FKFragenOffen()->pnlSpezial.at(9), FKFragenOffen()->cmbSpezial, 1);
    QTRY_COMPARE(FK_Frage(9), std::string("----- Joker ! -----\r\n"));
    Blanko();
    Ablegen();
    QVERIFY(QFile::exists(programm.ordner().nativ(QStringLiteral("KRANZ/TASTEN.FKR"))));
    QTRY_VERIFY(QFile::exists(programm.ordner().nativ(QStringLiteral("KRANZ/TASTEN.pdf"))));
    WiederOeffnen();
    QCOMPARE(FKFragenOffen()->pnlWissen.at(2)->caption(), titel);
    QCOMPARE(FKForm.FeldSpezial.at(9), std::string("J"));
    QCOMPARE(FKForm.FrageText.at(30), std::string("Von Hand getippt?"));
    QVERIFY(!FKForm.FrageText.at(8).empty());
    QVERIFY(!FKForm.AntwortText.at(8).empty());
}

void Tastenabend::Anlegen() {
    Dialogfolge dialoge;
    dialoge.erwarte(Tasten("frmNachricht", {QStringLiteral("Return")}));
    maus::Taste(QStringLiteral("ctrl+n"));
    QTRY_VERIFY(FKFragenOffen() != nullptr && FKFragenOffen()->isVisible());
    QTRY_VERIFY(MDIFenster()->isActiveWindow());
}

// Out of the catalogue into a cell, and a typed one into the last.
void Tastenabend::FrageHolen() {
    Menue(QStringLiteral("f"), Qt::Key_A);
    QTRY_VERIFY(AuswahlOffen() != nullptr && AuswahlOffen()->isActiveWindow());
    for (const auto& [name, text] : {std::pair{"cmbThemen", "Tiere"}, {"cmbUnter", "Haustiere"}}) {
        const auto* liste = Finden<QComboBox>(AuswahlOffen(), QLatin1String(name));
        Hin(liste);
        Hinunter(liste, QLatin1String(text));
    }
    const auto* fragen = Finden<QComboBox>(AuswahlOffen(), QStringLiteral("cmbFrage"));
    Hin(fragen);
    Hinunter(fragen, fragen->itemText(2));
    Hin(Finden(AuswahlOffen(), QStringLiteral("txtFrage")));
    maus::Taste(QStringLiteral("Return"));
    ZumFormular();
    const Textfeld* ziel = FKFragenOffen()->txtFrage.at(8);
    Hin(ziel);
    QVERIFY(ImBild(ziel));
    maus::Taste(QStringLiteral("F8"));
    QTRY_VERIFY(!FK_Frage(8).empty());
    Hin(FKFragenOffen()->txtFrage.at(30));
    QVERIFY(ImBild(FKFragenOffen()->txtFrage.at(30)));
    maus::Tippen(QStringLiteral("Von Hand getippt?"));
}

// Blanked and brought back.
void Tastenabend::Blanko() {
    const std::string frage = FK_Frage(8);
    Dialogfolge dialoge;
    dialoge.erwarte(Tasten("frmNachricht", {QStringLiteral("Return")}));
    Menue(QStringLiteral("f"), Qt::Key_F);
    QTRY_VERIFY(FKFragenOffen()->txtFrage.at(8)->toPlainText().isEmpty());
    QVERIFY(dialoge.fertig());
    Menue(QStringLiteral("f"), Qt::Key_E);
    QTRY_COMPARE(FK_Frage(8), frage);
}

void Tastenabend::Ablegen() {
    Dialogfolge dialoge;
    dialoge.erwarte(Tasten("frmDatei", {QStringLiteral("Return")}, QStringLiteral("TASTEN")));
    dialoge.erwarte(Tasten("frmMeldung", {QStringLiteral("Return")}));
    maus::Taste(QStringLiteral("ctrl+s"));
    QTRY_VERIFY(dialoge.fertig());
    dialoge.erwarte(Tasten("frmNachricht", {QStringLiteral("Return")}));
    maus::Taste(QStringLiteral("ctrl+p"));
    QTRY_VERIFY(dialoge.fertig());
}

void Tastenabend::WiederOeffnen() {
    Dialogfolge dialoge;
    dialoge.erwarte(Tasten("frmNachricht", {QStringLiteral("Return")}));
    Menue(QStringLiteral("f"), Qt::Key_Z);
    QTRY_VERIFY(FKFragenOffen() == nullptr);
    dialoge.erwarte(Tasten("frmDatei", {QStringLiteral("Return")}, QStringLiteral("TASTEN.FKR")));
    maus::Taste(QStringLiteral("ctrl+o"));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QTRY_VERIFY(dialoge.fertig());
}

QTEST_MAIN(Tastenabend)
#include "tastenabend_test.moc"
