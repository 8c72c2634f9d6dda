// A question file of 20 MB in the editor, from the command to the painted window and back to the disk, and
// keys typed into it, against a bare text field that reads and writes the same file.
#include "editor/editor.h"
#include "benchmarks/kennzahl.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "editor/editordateien.h"
#include "editor/frmEditor.h"
#include "mainwindow/frmMDI.h"
#include "tests/hilfe/programmordner.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QPlainTextEdit>

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int laeufe = 3;
constexpr qsizetype dateigroesse = 20'000'000;
constexpr int tasten = 200;

QByteArray Fragendatei() {
    QByteArray bytes = "Fragen\r\n";
    for (int i = 1; bytes.size() < dateigroesse; ++i) {
        bytes +=
            QByteArray::number(i) + "\r\nWelches Tier h\xF6rt man in dieser Nacht am Flu\xDF rufen ?\r\n";
        bytes += "Die Eule\r\n10\r\n";
    }
    return bytes;
}

[[noreturn]] void Abbrechen(const char* grund) {
    std::cerr << grund << '\n';
    std::exit(1);
}

void Malen(QWidget* feld) {
    feld->repaint();
    QApplication::processEvents();
}

double Tippen(QPlainTextEdit* feld) {
    feld->moveCursor(QTextCursor::End);
    return Dauer([feld] {
        for (int i = 0; i < tasten; ++i) {
            QKeyEvent druck(QEvent::KeyPress, Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
            QApplication::sendEvent(feld, &druck);
            QApplication::processEvents();
        }
    });
}

// --- The bare field

class Schlicht {
public:
    explicit Schlicht(QString datei) : datei_(std::move(datei)) {
        feld_.resize(1000, 800);
        feld_.show();
        QApplication::processEvents();
    }
    double Oeffnen() {
        return Dauer([this] {
            QFile datei(datei_);
            if (!datei.open(QFile::ReadOnly)) {
                Abbrechen("The file can't be read");
            }
            feld_.setPlainText(QString::fromLatin1(datei.readAll()));
            Malen(&feld_);
        });
    }
    // As durably as a save must: a new file, forced to the disk, renamed.
    double Speichern() {
        return Dauer([this] {
            const QByteArray bytes = feld_.toPlainText().toLatin1();
            QFile neu(datei_ + QStringLiteral(".neu"));
            if (!neu.open(QFile::WriteOnly) || neu.write(bytes) != bytes.size() || !neu.flush() ||
                ::fsync(neu.handle()) != 0) {
                Abbrechen("The file can't be written");
            }
            neu.close();
            QFile::remove(datei_);
            neu.rename(datei_);
        });
    }
    QPlainTextEdit* feld() { return &feld_; }

private:
    QString datei_;
    QPlainTextEdit feld_;
};

// --- The editor

// Chooses the file in the file dialog, and confirms every message.
bool Antworten(QDialog& dialog) {
    if (dialog.objectName() == QStringLiteral("frmDatei")) {
        Stand.DateiName = Stand.AppPfad + "\\WISSEN\\GROSS.TXT";
    }
    dialog.accept();
    return true;
}

double Oeffnen() {
    frmEditor* editor = EditorFenster();
    const double dauer = Dauer([editor] {
        KatalogLaden(*editor);
        Malen(editor->txtNotiz);
    });
    if (editor->txtNotiz->document()->characterCount() < dateigroesse / 2) {
        Abbrechen("The editor didn't load the file");
    }
    return dauer;
}

double Speichern() {
    return Dauer([] {
        if (!KatalogSpeichern(*EditorFenster(), 0)) {
            Abbrechen("The editor didn't save");
        }
    });
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    const Programmordner ordner;
    OberflaecheEinrichten();
    ordner.schreiben(QStringLiteral("WISSEN/GROSS.TXT"), Fragendatei());
    ordner.schreiben(QStringLiteral("WISSEN/SCHLICHT.TXT"), Fragendatei());
    ModalHandlerSetzen(Antworten);
    HauptfensterZeigen();
    EditorZeigen();
    QApplication::processEvents();
    Schlicht schlicht(ordner.nativ(QStringLiteral("WISSEN/SCHLICHT.TXT")));

    const Paar oeffnen = Abwechselnd(laeufe, Oeffnen, [&] { return schlicht.Oeffnen(); });
    Verhaeltnis("editor_oeffnen", oeffnen.unser, oeffnen.schlicht, "ms");
    const Paar tippen = Abwechselnd(
        laeufe, [] { return Tippen(EditorFenster()->txtNotiz); }, [&] { return Tippen(schlicht.feld()); });
    Verhaeltnis("editor_tippen", tippen.unser, tippen.schlicht, "ms");
    Einzelwert("editor_taste", tippen.unser / tasten, "ms");
    const Paar speichern = Abwechselnd(laeufe, Speichern, [&] { return schlicht.Speichern(); });
    Verhaeltnis("editor_speichern", speichern.unser, speichern.schlicht, "ms");
    EditorEntladen();
    return 0;
}
