// A new quiz form, from the command to the painted window, against a bare child window with four stock
// controls for each of 30 cells.
#include "benchmarks/kennzahl.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "tests/hilfe/programmordner.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QScreen>

#include <iostream>
#include <memory>

namespace {

constexpr int felder = 30;

// Sees when a window has painted itself with all it holds.
class Maler : public QObject {
public:
    explicit Maler(QObject* fenster) : fenster_(fenster) { qApp->installEventFilter(this); }
    [[nodiscard]] bool gemalt() const { return gemalt_; }

protected:
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Paint && empfaenger == fenster_) {
            gemalt_ = true;
        }
        return false;
    }

private:
    QObject* fenster_;
    bool gemalt_ = false;
};

// Runs the loop until the child window is painted and the pixels are on their way to the screen.
void BisGemalt(QObject* fenster) {
    const Maler maler(fenster);
    QElapsedTimer uhr;
    uhr.start();
    while (!maler.gemalt() && uhr.elapsed() < 10000) {
        QApplication::processEvents();
    }
    if (!maler.gemalt()) {
        std::cerr << "The window was never painted\n";
        std::exit(1);
    }
}

double NeuesFormular() {
    const double dauer = Dauer([] {
        FK_Neu();
        QWidget* fenster = nullptr;
        for (QWidget* kandidat : QApplication::allWidgets()) {
            if (kandidat->objectName() == QStringLiteral("frmFKFragen")) {
                fenster = kandidat;
            }
        }
        BisGemalt(fenster);
    });
    FK_Entladen();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    return dauer;
}

QWidget* SchlichtesFormular() {
    auto* fenster = new QWidget;
    auto* gitter = new QGridLayout(fenster);
    for (int feld = 0; feld < felder; ++feld) {
        const int zeile = 2 * (feld % 5);
        const int spalte = 2 * (feld / 5);
        gitter->addWidget(new QPlainTextEdit(fenster), zeile, spalte);
        gitter->addWidget(new QLabel(QStringLiteral("J"), fenster), zeile, spalte + 1);
        gitter->addWidget(new QPlainTextEdit(fenster), zeile + 1, spalte);
        gitter->addWidget(new QLabel(QStringLiteral("100"), fenster), zeile + 1, spalte + 1);
    }
    return fenster;
}

double NeuesSchlichtes(QMdiArea* flaeche) {
    QMdiSubWindow* kind = nullptr;
    const double dauer = Dauer([&] {
        QWidget* fenster = SchlichtesFormular();
        kind = flaeche->addSubWindow(fenster);
        kind->showMaximized();
        BisGemalt(fenster);
    });
    delete kind;
    QApplication::processEvents();
    return dauer;
}

// Says yes to the question with which the command begins.
bool JaSagen(QDialog& dialog) {
    if (auto* ja = dialog.findChild<QAbstractButton*>(QStringLiteral("cmdAntwort(0)")); ja != nullptr) {
        ja->click();
    }
    dialog.accept();
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    const Programmordner ordner;
    OberflaecheEinrichten();
    ModalHandlerSetzen(JaSagen);
    HauptfensterZeigen();
    QMainWindow schlicht;
    auto* flaeche = new QMdiArea(&schlicht);
    schlicht.setCentralWidget(flaeche);
    schlicht.resize(MDIFenster()->size());
    schlicht.show();
    QApplication::processEvents();

    const Paar zeiten = Abwechselnd(25, NeuesFormular, [flaeche] { return NeuesSchlichtes(flaeche); });
    Verhaeltnis("neues_formular", zeiten.unser, zeiten.schlicht, "ms");
    return 0;
}
