// What the window tests of the editor share: the running program with its catalogue, the editor opened by its
// button, short ways to its controls and its dialogs.
#pragma once

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "editor/editor.h"
#include "editor/editordaten.h"
#include "editor/frmEditor.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/hbformular.h"
#include "tests/hilfe/dateidialoghilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <memory>

inline const QString titelOeffnen = QStringLiteral("Öffnen");
inline const QString titelSpeichernUnter = QStringLiteral("Speichern unter ...");
inline const QByteArray knoten = "Knoten\r\n1\r\nWas h\xE4lt fest?\r\nPalstek\r\n10\r\n";

class Editorlauf {
public:
    // The state as at the start of the program, no form and no editor open.
    void Vorbereiten() {
        if (programm_ == nullptr) {
            programm_ = std::make_unique<Programm>(false);
        }
        EditorEntladen();
        FormStatusSetzen(false);
        FK_Entladen();
        HB_Entladen();
        ZustandZuruecksetzen();
        ModusHaupt();
        QGuiApplication::clipboard()->clear();
    }
    // Goes before the application does.
    void Beenden() { programm_.reset(); }

    [[nodiscard]] Programm& programm() const { return *programm_; }
    [[nodiscard]] frmMDI* haupt() const { return programm_->haupt(); }

    // Opens the editor by its button.
    frmEditor* Oeffnen() const {
        QTest::mouseClick(Finden<QAbstractButton>(haupt(), QStringLiteral("cmdEdit")), Qt::LeftButton);
        return qobject_cast<frmEditor*>(FensterAbwarten(QStringLiteral("frmEditor")));
    }

    // A file beneath WISSEN, and its path as the program has it after its file dialog chose it.
    void Schreiben(const QString& name, const QByteArray& bytes) const {
        programm_->ordner().schreiben(QStringLiteral("WISSEN/") + name, bytes);
    }
    [[nodiscard]] QByteArray Lesen(const QString& name) const {
        return programm_->ordner().lesen(QStringLiteral("WISSEN/") + name);
    }
    [[nodiscard]] std::string Pfad(const std::string& name) const {
        return Grossschreiben(Stand.AppPfad + "\\WISSEN\\" + name);
    }

private:
    std::unique_ptr<Programm> programm_;
};

inline QAbstractButton* Taste(const frmEditor* editor, const QString& name) {
    return Finden<QAbstractButton>(editor, name);
}

// A click on a button that must be in reach.
inline void Druecken(const frmEditor* editor, const QString& name, Stelle stelle = Stelle::hier()) {
    QAbstractButton* taste = Taste(editor, name);
    if (!taste->isVisible() || !taste->isEnabled()) {
        Versagen(name + QStringLiteral(" is out of reach"), stelle);
    }
    QTest::mouseClick(taste, Qt::LeftButton);
}

inline void GespeichertErwarten(Dialogfolge& dialoge, const QString& name, Stelle stelle = Stelle::hier()) {
    dialoge.meldung(QStringLiteral("Fragen sind gespeichert unter\n[ %1 ] !").arg(name),
                    QStringLiteral("Ganz große Klasse"), stelle);
}

inline void SpeichernFrageErwarten(Dialogfolge& dialoge, int antwort, Stelle stelle = Stelle::hier()) {
    dialoge.frage(QStringLiteral("Text speichern !"),
                  QStringLiteral("Soll der aktuelle Text gespeichert werden ?"), antwort, stelle);
}

// Loads a file beneath WISSEN by the button and the file dialog.
inline void Laden(const frmEditor* editor, const QString& name, Stelle stelle = Stelle::hier()) {
    Dialogfolge dialoge(stelle);
    DateidialogErwarten(dialoge, titelOeffnen, name, QStringLiteral("cmdLaden"), stelle);
    Druecken(editor, QStringLiteral("cmdDatei(1)"), stelle);
}

// Saves without a dialog, under the name that the editor has.
inline void Sichern(const frmEditor* editor, const QString& name, Stelle stelle = Stelle::hier()) {
    Dialogfolge dialoge(stelle);
    GespeichertErwarten(dialoge, name, stelle);
    Druecken(editor, QStringLiteral("cmdDatei(0)"), stelle);
}

inline QString Text(const frmEditor* editor) {
    return editor->txtNotiz->toPlainText();
}

// Types text; a line feed is the return key.
inline void Tippen(const frmEditor* editor, const QString& text) {
    for (const QChar zeichen : text) {
        if (zeichen == QLatin1Char('\n')) {
            QTest::keyClick(editor->txtNotiz, Qt::Key_Return);
        } else {
            QTest::keyClicks(editor->txtNotiz, zeichen);
        }
    }
}

// Selects with the keyboard, from a place on.
inline void Markieren(const frmEditor* editor, int ab, int laenge) {
    QTest::keyClick(editor->txtNotiz, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < ab; ++i) {
        QTest::keyClick(editor->txtNotiz, Qt::Key_Right);
    }
    for (int i = 0; i < laenge; ++i) {
        QTest::keyClick(editor->txtNotiz, Qt::Key_Right, Qt::ShiftModifier);
    }
}

inline QString Copy(int index) {
    return QStringLiteral("cmdCopy(%1)").arg(index);
}

// The members of cmdCopy that are in use, as "01...7".
inline QString Benutzbar(const frmEditor* editor) {
    QString ziffern;
    for (int i = 0; i < 8; ++i) {
        if (Taste(editor, Copy(i))->isEnabled()) {
            ziffern += QString::number(i);
        }
    }
    return ziffern;
}

inline void RahmenSchliessen(const frmEditor* editor) {
    editor->parentWidget()->close();
}

// True while the lamp for unsaved changes shows, and the other one doesn't.
inline bool IstRot(const frmEditor* editor) {
    return Taste(editor, QStringLiteral("cmdTexteingabeRot"))->isVisible() &&
           !Taste(editor, QStringLiteral("cmdTexteingabeGruen"))->isVisible();
}
inline bool IstGruen(const frmEditor* editor) {
    return !Taste(editor, QStringLiteral("cmdTexteingabeRot"))->isVisible() &&
           Taste(editor, QStringLiteral("cmdTexteingabeGruen"))->isVisible();
}

inline const QString cmdDatei0 = QStringLiteral("cmdDatei(0)");
inline const QString cmdDatei1 = QStringLiteral("cmdDatei(1)");
inline const QString cmdDatei2 = QStringLiteral("cmdDatei(2)");
inline const QString laden = QStringLiteral("cmdLaden");
inline const QString speichern = QStringLiteral("cmdSpeichern");
inline const QString abbrechen = QStringLiteral("cmdAbbrechen");

// What the field shows of the file with the knots.
inline const QString knotenText = QStringLiteral("1\nWas hält fest?\nPalstek\n10\n");

inline void UeberschreibenErwarten(Dialogfolge& dialoge, const QString& name, int antwort,
                                   Stelle stelle = Stelle::hier()) {
    dialoge.frage(QStringLiteral(" Speichern unter ..."),
                  QStringLiteral("Die Datei\n[ %1 ]\nist bereits vorhanden !\nSoll ich diese Datei "
                                 "überschreiben ?")
                      .arg(name),
                  antwort, stelle);
}

inline void FehlerErwarten(Dialogfolge& dialoge, const QString& text,
                           const QString& taste = QStringLiteral("Grrr.. *~§§°"),
                           Stelle stelle = Stelle::hier()) {
    dialoge.meldung(QStringLiteral("Notiz : cmdDatei :\n") + text, taste, stelle);
}

// A test with the editor open, and none of the files that tests write.
class Editortest : public QObject {
protected:
    Editorlauf lauf;
    frmEditor* editor = nullptr;

    void Anfangen() {
        lauf.Vorbereiten();
        for (const char* name : {"KN.TXT", "KN.BAK", "kn.txt", "NEU.TXT", "neu.TXT", "neu.txt", "zwei.TXT"}) {
            QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/") + QLatin1String(name)));
        }
        editor = lauf.Oeffnen();
        QVERIFY(editor != nullptr);
        QTRY_VERIFY(editor->txtNotiz->hasFocus());
    }
    void Aufraeumen() {
        EditorEntladen();
        editor = nullptr;
    }
    void Geladen(const QString& name = QStringLiteral("KN.TXT"), const QByteArray& bytes = knoten) {
        lauf.Schreiben(name, bytes);
        Laden(editor, name);
    }
    // The window as it was, with its text unsaved: nothing that failed may change it.
    void Unveraendert(const QString& text, const QString& name) const {
        QCOMPARE(Text(editor), text);
        QCOMPARE(editor->pnlDatei->caption(), name);
        QVERIFY(IstRot(editor));
        QVERIFY(Stand.EditorGeaendert);
    }
};
