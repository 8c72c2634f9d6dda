// What the history and the journal of a full quiz form cost: one step of work kept, one taken back, and a key
// press while the journal is being written, against one without it.
#include "forms/verlauf.h"
#include "benchmarks/kennzahl.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "forms/formularjournal.h"
#include "forms/oeffnen.h"
#include "forms/schrittfolge.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "tests/hilfe/programmordner.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <iostream>
#include <vector>

namespace {

constexpr int schritte = 200;
constexpr int tasten = 2000;

// One step: the form taken off its window and put behind the others.
double SchrittKosten() {
    Schrittfolge folge;
    folge.Beginnen(FormularstandJetzt());
    std::vector<double> zeiten;
    for (int i = 0; i < schritte; ++i) {
        FKFragenOffen()->txtFrage.at(1)->setText("Schritt " + std::to_string(i));
        zeiten.push_back(Dauer([&] { folge.Merken("Schritt", FormularstandJetzt()); }));
    }
    std::cout << schritte << " steps take " << folge.bytes() / 1024 << " KiB\n";
    return Median(zeiten);
}

double RueckwegKosten() {
    std::vector<double> zeiten;
    for (int i = 0; i < 20; ++i) {
        FKFragenOffen()->txtFrage.at(1)->setText("Rueckweg " + std::to_string(i));
        FormStatusSetzen(true);
        zeiten.push_back(Dauer([] { RueckgaengigMachen(); }));
    }
    return Median(zeiten);
}

// The time that all but one in a hundred key presses stay under, from the key to the end of all it causes.
double Tastendruck(bool journal) {
    Textfeld* feld = FKFragenOffen()->txtFrage.at(2);
    feld->setFocus();
    std::vector<double> zeiten;
    for (int i = 0; i < tasten; ++i) {
        if (i % 40 == 0) {
            feld->setText("");
        }
        zeiten.push_back(Dauer([&] {
            for (const QEvent::Type art : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent taste(art, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
                QApplication::sendEvent(feld, &taste);
            }
            QApplication::processEvents();
        }));
        if (!journal) {
            FormularjournalBeenden(); // before it is due
        }
    }
    const auto stelle = zeiten.begin() + tasten * 99 / 100;
    std::ranges::nth_element(zeiten, stelle);
    return *stelle;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    const Programmordner ordner;
    OberflaecheEinrichten();
    HauptfensterZeigen();
    if (!FormularErsetzen(Stand.AppPfad + "\\KRANZ\\Bibelabend.FKR")) {
        std::cerr << "The form wasn't opened\n";
        return 1;
    }
    QApplication::processEvents();
    Einzelwert("verlauf_schritt", SchrittKosten(), "ms");
    Einzelwert("verlauf_zurueck", RueckwegKosten(), "ms");
    const Paar taste = Abwechselnd(
        5, [] { return Tastendruck(true); }, [] { return Tastendruck(false); });
    Verhaeltnis("journal_taste", taste.unser, taste.schlicht, "ms");
    FormularjournalBeenden();
    return 0;
}
