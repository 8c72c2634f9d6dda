// The list of forms with 2000 of them: from the command to the painted window, the reading of the folder with
// it, against a bare list that is given the same names; and how many previews a walk through it makes.
#include "benchmarks/kennzahl.h"
#include "core/oberflaeche.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "persistence/formulardatei.h"
#include "quizform/quizformular.h"
#include "tests/hilfe/programmordner.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QVBoxLayout>

#include <cstdlib>
#include <iostream>

namespace {

constexpr int formulare = 2000;
constexpr int laeufe = 21;

QString Name(int nr) {
    return QStringLiteral("Abend %1 im Zeltlager.FKR").arg(nr, 4, 10, QLatin1Char('0'));
}

// A full board, as a leader's forms are.
QByteArray Formular() {
    FKForm.WissenTitel.fill("Länder und Flüsse");
    FKForm.FrageText.fill("Welcher Fluss fließt durch die Stadt, in der das große Lager war ?");
    FKForm.AntwortText.fill("Die Weser");
    return QByteArray::fromStdString(FormularBytes("FKFragen"));
}

// Sees when a window has painted itself with all it holds.
class Maler : public QObject {
public:
    explicit Maler(const QWidget* fenster) : fenster_(fenster) { qApp->installEventFilter(this); }
    void BisGemalt() const {
        QElapsedTimer uhr;
        uhr.start();
        while (!gemalt_ && uhr.elapsed() < 10000) {
            QApplication::processEvents();
        }
        if (!gemalt_) {
            std::cerr << "The window was never painted\n";
            std::exit(1);
        }
    }

protected:
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override {
        gemalt_ = gemalt_ || (ereignis->type() == QEvent::Paint && empfaenger == fenster_);
        return false;
    }

private:
    const QObject* fenster_;
    bool gemalt_ = false;
};

QListWidget* Liste() {
    return FormularlisteOffen()->findChild<QListWidget*>(QStringLiteral("filDateiliste"));
}

double ListeOeffnen() {
    const double dauer = Dauer([] {
        FormularlisteZeigen();
        const Maler maler(FormularlisteOffen());
        maler.BisGemalt();
    });
    if (Liste()->count() != formulare) {
        std::cerr << "Not all forms are listed\n";
        std::exit(1);
    }
    delete FormularlisteOffen();
    QApplication::processEvents();
    return dauer;
}

// A tool window as ours, with nothing but the names and a few controls.
double SchlichtOeffnen(const QStringList& namen) {
    QWidget* fenster = nullptr;
    const double dauer = Dauer([&] {
        fenster = new QWidget(MDIFenster(), Qt::Tool);
        auto* spalte = new QVBoxLayout(fenster);
        auto* liste = new QListWidget(fenster);
        liste->addItems(namen);
        spalte->addWidget(liste);
        fenster->resize(400, 132);
        fenster->show();
        const Maler maler(fenster);
        maler.BisGemalt();
    });
    delete fenster;
    QApplication::processEvents();
    return dauer;
}

// Every form marked once, its numbers read and shown before the next.
double Durchgehen() {
    FormularlisteZeigen();
    QApplication::processEvents();
    auto* info = FormularlisteOffen()->findChild<QLabel*>(QStringLiteral("lblDateiInfo"));
    const double dauer = Dauer([&] {
        for (int zeile = 0; zeile < formulare; ++zeile) {
            info->clear();
            Liste()->setCurrentRow(zeile);
            while (info->text().isEmpty()) {
                QApplication::processEvents();
            }
        }
    });
    return formulare / dauer * 1000.0;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const Programmordner ordner;
    OberflaecheEinrichten();
    HauptfensterZeigen();
    delete FormularlisteOffen();
    for (const QString& alt : QDir(ordner.nativ(QStringLiteral("KRANZ"))).entryList(QDir::Files)) {
        QFile::remove(ordner.nativ(QStringLiteral("KRANZ/") + alt));
    }
    const QByteArray bytes = Formular();
    QStringList namen;
    for (int nr = 1; nr <= formulare; ++nr) {
        namen << Name(nr);
        ordner.schreiben(QStringLiteral("KRANZ/") + Name(nr), bytes);
    }
    const Paar zeiten = Abwechselnd(laeufe, ListeOeffnen, [&namen] { return SchlichtOeffnen(namen); });
    Verhaeltnis("liste_oeffnen", zeiten.unser, zeiten.schlicht, "ms");
    Einzelwert("liste_vorschau", Durchgehen(), "1/s");
    return 0;
}
