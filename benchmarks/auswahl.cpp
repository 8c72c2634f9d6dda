// 100,000 questions picked up by the selection dialog, from the sub-theme's file on the disk into its four
// lists until a question can be picked, against one stock combo box that is given the questions as texts.
#include "catalogue/auswahl.h"
#include "benchmarks/kennzahl.h"
#include "catalogue/frmAuswahl.h"
#include "catalogue/themen.h"
#include "core/oberflaeche.h"
#include "tests/hilfe/programmordner.h"

#include <QApplication>
#include <QComboBox>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <utility>
#include <vector>

namespace {

constexpr int fragen = 100'000;
constexpr int laeufe = 15;

QString Frage(int nr) {
    return QStringLiteral("Welches Tier hört man in Nacht %1 am Fluß rufen ?").arg(nr);
}

QByteArray Fragendatei() {
    QString text = QStringLiteral("Fragen\r\n");
    for (int nr = 1; nr <= fragen; ++nr) {
        text +=
            QStringLiteral("%1\r\n%2\r\nDie Eule Nummer %1\r\n10\r\n").arg(QString::number(nr), Frage(nr));
    }
    return text.toLatin1();
}

QComboBox& Liste(const char* name) {
    auto* liste = static_cast<QWidget*>(AuswahlOffen())->findChild<QComboBox*>(QLatin1String(name));
    if (liste == nullptr) {
        std::cerr << "No list " << name << '\n';
        std::exit(1);
    }
    return *liste;
}

// Theme and sub-theme are picked already: the same sub-theme once more reads its file again.
double Auswahl() {
    const double dauer = Dauer([] {
        Q_EMIT Liste("cmbUnter").activated(0);
        QApplication::processEvents();
    });
    for (const char* name : {"cmbNr", "cmbFrage", "cmbAntwort", "cmbPunkte"}) {
        if (Liste(name).count() != fragen) {
            std::cerr << "Not all questions in " << name << '\n';
            std::exit(1);
        }
    }
    return dauer;
}

double Klappliste() {
    Liste("cmbFrage").setCurrentIndex(fragen / 2);
    const double dauer = Dauer([] {
        Liste("cmbFrage").showPopup();
        QApplication::processEvents();
    });
    Liste("cmbFrage").hidePopup();
    QApplication::processEvents();
    return dauer;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    const Programmordner ordner;
    OberflaecheEinrichten();
    const Thema& thema = *ThemaSuchen("Land");
    const Unterthema& unterthema = thema.unterthemen.front();
    const QString datei =
        QStringLiteral("WISSEN/%1/%2").arg(Anzeige(thema.ordner), Anzeige(unterthema.datei));
    ordner.schreiben(datei, Fragendatei());
    AuswahlZeigen();
    QApplication::processEvents();
    Liste("cmbThemen").setCurrentText(Anzeige(thema.name));
    Liste("cmbUnter").setCurrentText(Anzeige(unterthema.name));
    QApplication::processEvents();

    QStringList texte;
    for (int nr = 1; nr <= fragen; ++nr) {
        texte << Frage(nr);
    }
    QWidget fenster;
    QComboBox schlicht(&fenster);
    schlicht.setGeometry(10, 10, 300, 24);
    fenster.show();
    QApplication::processEvents();
    const auto fuellen = [&] {
        schlicht.clear();
        return Dauer([&] {
            schlicht.addItems(texte);
            QApplication::processEvents();
        });
    };
    const Paar zeiten = Abwechselnd(laeufe, Auswahl, fuellen);
    Verhaeltnis("auswahl_fuellen", zeiten.unser, zeiten.schlicht, "ms");

    std::vector<double> oeffnen(laeufe);
    std::generate(oeffnen.begin(), oeffnen.end(), Klappliste);
    std::cout << "Opening the list of questions: " << Median(std::move(oeffnen)) << " ms\n";
    return 0;
}
