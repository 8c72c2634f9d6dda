#include "editor/editorablage.h"

#include "core/hauptfenster.h"
#include "dialogs/meldung.h"
#include "editor/frmEditor.h"
#include "editor/texte.h"

#include <QClipboard>
#include <QGuiApplication>

#include <array>
#include <new>

namespace {

bool IstMarkiert(const frmEditor& editor) {
    return editor.txtNotiz->textCursor().hasSelection();
}

void Kopieren(frmEditor& editor) {
    if (IstMarkiert(editor)) {
        QGuiApplication::clipboard()->setText(editor.txtNotiz->Markiert());
    }
}

void Anhaengen(frmEditor& editor) {
    if (IstMarkiert(editor)) {
        QClipboard* ablage = QGuiApplication::clipboard();
        ablage->setText(ablage->text() + editor.txtNotiz->Markiert());
    }
}

void Ausschneiden(frmEditor& editor, void (*vorher)(frmEditor&)) {
    EditorStatusSetzen(true);
    if (IstMarkiert(editor)) {
        vorher(editor);
        editor.txtNotiz->Ersetzen(QString());
    }
}

void Einfuegen(frmEditor& editor) {
    EditorStatusSetzen(true);
    editor.txtNotiz->Ersetzen(QGuiApplication::clipboard()->text());
}

// The text becomes what stands ahead of the selection and what stands behind it, with the cursor between. Not
// by way of a new text for the field: what was deleted can be taken back.
void Loeschen(frmEditor& editor) {
    EditorStatusSetzen(true);
    editor.txtNotiz->Ersetzen(QString());
}

void AblageLeeren(frmEditor&) {
    if (NachrichtJaNein(editortexte::ablageLeeren)) {
        QGuiApplication::clipboard()->clear();
    }
}

// Counts as a change also when the question is answered Nein: it is meant.
void TextLeeren(frmEditor& editor) {
    EditorStatusSetzen(true);
    if (NachrichtJaNein(editortexte::textLeeren)) {
        editor.txtNotiz->selectAll();
        editor.txtNotiz->Ersetzen(QString());
    }
}

constexpr std::array<void (*)(frmEditor&), 8> befehle{
    Kopieren,
    Anhaengen,
    [](frmEditor& editor) { Ausschneiden(editor, Kopieren); },
    [](frmEditor& editor) { Ausschneiden(editor, Anhaengen); },
    Einfuegen,
    Loeschen,
    AblageLeeren,
    TextLeeren,
};

} // namespace

void AblageBefehl(frmEditor& editor, std::size_t index) {
    try {
        befehle.at(index)(editor);
    } catch (const std::bad_alloc&) {
        FehlerMelden(editortexte::ortAblage, Laufzeitfehler(Fehler::SpeicherVoll));
    }
    editor.TastenFreigeben();
    if (editor.txtNotiz->isEnabled()) {
        editor.txtNotiz->setFocus(); // the user types on where he was
    }
}
