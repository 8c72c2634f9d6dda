// What the tests of the preview share: the window by its key, its parts, its picture, a form for it.
#pragma once

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "forms/formulare.h"
#include "persistence/extrasdatei.h"
#include "printing/drucker.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/checking/pruefformular.h"
#include "tests/forms/verlaufhilfe.h"
#include "tests/hilfe/bild.h"
#include "tests/printing/pdfleser.h"
#include "tests/quizform/formhilfe.h"
#include "tests/settings/inihilfe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QToolButton>

inline const QString name = QStringLiteral("frmVorschau");
inline const QString inOrdnung = QStringLiteral("Alles hat seinen Platz.");

inline void Rufen() {
    maus::Taste(QStringLiteral("ctrl+shift+p"));
}

template <class T>
T* Bauteil(const char* was) {
    return Finden<T>(Fenster(name), QLatin1String(was));
}
inline QComboBox* Blatt() {
    return Bauteil<QComboBox>("cmbBlatt");
}
inline QString Hinweis() {
    return Bauteil<QLabel>("lblBlattHinweis")->text();
}
inline QPrintPreviewWidget* Ansicht() {
    return Bauteil<QPrintPreviewWidget>("picBlatt");
}
inline QPushButton* Drucken() {
    return Bauteil<QPushButton>("cmdDrucken");
}

// What of the sheet the window shows, as it is on the screen.
inline QImage Bild() {
    return Ansicht()->grab().toImage();
}

// Dots of the lines that the preview adds: red around what sticks out, blue along the printer's margins.
inline int Farbtupfer(const QImage& bild, bool (*gesucht)(QRgb)) {
    int anzahl = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            anzahl += gesucht(bild.pixel(x, y)) ? 1 : 0;
        }
    }
    return anzahl;
}
inline bool IstRot(QRgb punkt) {
    return qRed(punkt) > qGreen(punkt) + 100 && qRed(punkt) > qBlue(punkt) + 100;
}
inline bool IstBlau(QRgb punkt) {
    return qBlue(punkt) > qRed(punkt) + 15;
}

inline frmFKFragen* GutesQuiz(Programm& programm) {
    frmFKFragen* form = programm.NeuesQuizformular();
    FKForm = GutesFormular();
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        FKForm.WissenTitel.at(a) = "Titel" + std::to_string(a);
    }
    FK_FormularZeigen();
    FormularWechselt();
    FormStatusSetzen(false);
    Spiel.Papierformat = "A4 quer";
    return form;
}

// A page as another program reads it: its words and lines in their places.
inline QStringList Inhalt(const QString& datei) {
    const PdfSeite seite = PdfLesen(datei);
    QStringList inhalt;
    for (const Wort& wort : seite.worte) {
        inhalt << QStringLiteral("%1 %2 %3")
                      .arg(QString::fromStdString(wort.text))
                      .arg(wort.links, 0, 'f', 2)
                      .arg(wort.oben, 0, 'f', 2);
    }
    for (const Pfad& pfad : seite.pfade) {
        inhalt << QStringLiteral("%1 %2 %3 %4")
                      .arg(pfad.links, 0, 'f', 2)
                      .arg(pfad.oben, 0, 'f', 2)
                      .arg(pfad.rechts, 0, 'f', 2)
                      .arg(pfad.unten, 0, 'f', 2);
    }
    return inhalt;
}
