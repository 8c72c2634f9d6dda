// The preview: opened, following a change, and drawn anew, against the same page drawn straight into a
// picture of the same size; and a poster of 16 pages as a PDF against 16 sheets of the form.
#include "sheets/vorschau.h"
#include "benchmarks/kennzahl.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "dialogs/modal.h"
#include "forms/quizformulare.h"
#include "mainwindow/frmMDI.h"
#include "printing/druckseite.h"
#include "printing/zeichnungmalen.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "sheets/frmVorschau.h"
#include "tests/hilfe/programmordner.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QGraphicsView>
#include <QImage>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPrintPreviewWidget>

#include <array>
#include <cstdlib>
#include <iostream>

namespace {

constexpr int laeufe = 25;

[[noreturn]] void Aufgeben(const char* warum) {
    std::cerr << warum << '\n';
    std::exit(1);
}

// Sees when the view has painted itself.
class Maler : public QObject {
public:
    explicit Maler(QObject* sicht) : sicht_(sicht) { qApp->installEventFilter(this); }
    void Abwarten() const {
        QElapsedTimer uhr;
        uhr.start();
        while (!gemalt_ && uhr.elapsed() < 10000) {
            QApplication::processEvents();
        }
        if (!gemalt_) {
            Aufgeben("The preview was never painted");
        }
    }

protected:
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override {
        gemalt_ = gemalt_ || (ereignis->type() == QEvent::Paint && empfaenger == sicht_);
        return false;
    }

private:
    QObject* sicht_;
    bool gemalt_ = false;
};

frmVorschau* Vorschau() {
    for (QWidget* kandidat : QApplication::allWidgets()) {
        if (auto* vorschau = qobject_cast<frmVorschau*>(kandidat); vorschau != nullptr) {
            return vorschau;
        }
    }
    Aufgeben("There is no preview");
}

QWidget* Sicht() {
    return Vorschau()->findChild<QGraphicsView*>()->viewport();
}

double Oeffnen() {
    const double dauer = Dauer([] {
        VorschauZeigen();
        Maler(Sicht()).Abwarten();
    });
    return dauer;
}

void Schliessen() {
    Vorschau()->parentWidget()->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// From the changed text to the painted page.
double Folgen(frmFKFragen& form) {
    static int nr = 0;
    return Dauer([&form] {
        const Maler maler(Sicht());
        form.txtAntwort.at(30)->setText("das Mittelmeer " + std::to_string(++nr));
        maler.Abwarten();
    });
}

double Auffrischen() {
    return Dauer([] {
        const Maler maler(Sicht());
        Vorschau()->Auffrischen();
        maler.Abwarten();
    });
}

// The sheet from the form's value into a picture as large as the preview shows it.
double Zeichnen() {
    const auto vorlage = VorlageJetzt();
    const auto* ansicht = Vorschau()->findChild<QPrintPreviewWidget*>();
    const double zoll = ansicht->zoomFactor() * ansicht->logicalDpiX();
    QImage bild(static_cast<int>(297 / 25.4 * zoll), static_cast<int>(210 / 25.4 * zoll),
                QImage::Format_RGB32);
    bild.setDotsPerMeterX(static_cast<int>(zoll / 0.0254));
    bild.setDotsPerMeterY(static_cast<int>(zoll / 0.0254));
    return Dauer([&] {
        bild.fill(Qt::white);
        const Fertigblatt fertig = BlattFertigen(*vorlage, {});
        const Druckschriften schriften(bild);
        QPainter maler(&bild);
        ZeichnungMalen(maler, fertig.blatt.seiten.front(), schriften, fertig.masse.links, fertig.masse.oben);
    });
}

double Drucken(const Programmordner& ordner, const Blattvorlage& vorlage, Blattart art, std::size_t seiten) {
    return Dauer([&] {
        const std::string ziel = EigenerPfad(ordner.nativ(QStringLiteral("Messung.pdf")));
        Druckseite seite(Druckziel{BlattQuer(vorlage, art) ? QPageLayout::Landscape : QPageLayout::Portrait,
                                   ziel, "Messung", Wenden::Nicht, false, false});
        Blattsatz blatt;
        while (blatt.seiten.size() < seiten) {
            Blattsatz weiteres = BlattMachen(vorlage, {art, false, false}, {}, seite.schriftmass());
            std::ranges::move(weiteres.seiten, std::back_inserter(blatt.seiten));
        }
        if (blatt.seiten.size() != seiten || seite.SeitenDrucken(blatt.seiten, {}) != ziel) {
            Aufgeben("No sheet");
        }
    });
}

bool JaSagen(QDialog& dialog) {
    if (auto* ja = dialog.findChild<QAbstractButton*>(QStringLiteral("cmdAntwort(0)")); ja != nullptr) {
        ja->click();
    }
    dialog.accept();
    return true;
}

// A board as a leader fills it: questions of two to four lines, eight special fields.
void Fuellen() {
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        FKForm.WissenTitel.at(a) = "Gewässer " + std::to_string(a);
    }
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        FKForm.FrageText.at(n) =
            "Welches Meer liegt zwischen Europa und Afrika, und wie heißt die Meerenge " + std::to_string(n) +
            " im Westen ?";
        FKForm.AntwortText.at(n) = "das Mittelmeer, Gibraltar";
    }
    constexpr std::array<const char*, 8> arten{"J", "G", "R", "A", "E", "J", "G", "R"};
    for (std::size_t i = 0; i < arten.size(); ++i) {
        FKForm.FeldSpezial.at(3 * i + 2) = arten.at(i);
    }
    Spiel.Papierformat = "A4 quer";
    FK_FormularZeigen();
    FormularWechselt();
    FormStatusSetzen(false);
}

std::vector<double> Mal(int anzahl, const std::function<double()>& arbeit) {
    std::vector<double> zeiten;
    zeiten.reserve(static_cast<std::size_t>(anzahl));
    for (int i = 0; i < anzahl; ++i) {
        zeiten.push_back(arbeit());
    }
    return zeiten;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); // no printer, whatever the machine has
    const QApplication anwendung(argc, argv);
    const Programmordner ordner;
    OberflaecheEinrichten();
    ModalHandlerSetzen(JaSagen);
    HauptfensterZeigen();
    FK_Neu();
    Fuellen();
    QApplication::processEvents();

    std::vector<double> geoeffnet;
    for (int i = 0; i < laeufe; ++i) {
        geoeffnet.push_back(Oeffnen());
        if (i == 0) {
            std::cout << "first time: " << geoeffnet.front() << " ms\n";
        }
        Schliessen();
    }
    Einzelwert("vorschau_oeffnen", *std::ranges::max_element(geoeffnet), "ms");
    Oeffnen();
    Einzelwert("vorschau_folgen", Median(Mal(laeufe, [] { return Folgen(*FKFragenOffen()); })), "ms");
    const Paar bild = Abwechselnd(laeufe, Auffrischen, Zeichnen);
    Verhaeltnis("vorschau_bild", bild.unser, bild.schlicht, "ms");
    const Blattvorlage vorlage = *VorlageJetzt();
    const Paar poster = Abwechselnd(
        11, [&] { return Drucken(ordner, vorlage, Blattart::BrettA0, 16); },
        [&] { return Drucken(ordner, vorlage, Blattart::Bogen, 16); });
    Verhaeltnis("poster", poster.unser, poster.schlicht, "ms");
    return 0;
}
