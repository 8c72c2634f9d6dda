#include "editor/editor.h"

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "editor/editordateien.h"
#include "editor/editordaten.h"
#include "editor/editorjournal.h"
#include "editor/editorpfad.h"
#include "editor/frmEditor.h"
#include "editor/texte.h"

#include <QMdiSubWindow>
#include <QPointer>
#include <QTextDocument>

#include <algorithm>
#include <new>

namespace {

QPointer<frmEditor> fenster;

// As large as the child area allows, but not wider than lines are read with ease.
void Platzieren(QMdiSubWindow& rahmen) {
    constexpr int hoechsteBreite = 1100; // pixels
    constexpr int luft = 16;
    const QSize flaeche = rahmen.parentWidget()->size();
    const int breite = std::min(hoechsteBreite, flaeche.width() - luft);
    const int hoehe = flaeche.height() - luft;
    rahmen.setGeometry((flaeche.width() - breite) / 2, luft / 2, breite, hoehe);
}

void Oeffnen() {
    EditorpfadVergessen(); // an empty text belongs to no file
    Editor.BemerkungMarke.clear();
    fenster = new frmEditor; // owned by the child window that takes it
    QObject::connect(fenster, &frmEditor::geschlossen, fenster, [] {
        fenster = nullptr;
        EditorpfadVergessen();
        EditorjournalBeenden();
    });
    QMdiSubWindow* rahmen = KindfensterAufnehmen(fenster);
    if (rahmen != nullptr) {
        Platzieren(*rahmen);
    }
    fenster->txtNotiz->document()->clearUndoRedoStacks(); // what gave the field its looks counts as an edit
    EditorStatusSetzen(false);
}

} // namespace

void EditorZeigen() {
    if (fenster.isNull()) {
        try {
            Oeffnen();
        } catch (const std::bad_alloc&) {
            Meldung(editortexte::formfehler);
            return;
        }
    }
    fenster->show();
    KindNachVorn(fenster);
    if (fenster->txtNotiz->isEnabled()) {
        fenster->txtNotiz->setFocus();
    }
}

frmEditor* EditorFenster() {
    return fenster;
}

bool EditorTextGesichert() {
    return fenster.isNull() || TextGesichert(*fenster);
}

void EditorEntladen() {
    if (fenster.isNull()) {
        return;
    }
    QWidget* rahmen = fenster->parentWidget();
    QWidget* alt = qobject_cast<QMdiSubWindow*>(rahmen) != nullptr ? rahmen : fenster.data();
    fenster->disconnect();
    EditorpfadVergessen();
    EditorjournalBeenden();
    Stand.EditorGeaendert = false;
    delete alt;
}

void EditorLampenZeigen(bool rot) {
    if (!fenster.isNull()) {
        fenster->LampenZeigen(rot);
    }
}
