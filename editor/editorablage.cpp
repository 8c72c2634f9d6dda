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

// Asks until the answer is Ja or Nein.
bool Bejaht(const NachrichtText& frage) {
    do {
        NachrichtAntwort = antwortAbbrechen; // closing the question by its frame asks again
        Nachricht(frage);
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortNein);
    return NachrichtAntwort == antwortJa;
}

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
    EditorStatusSetzen(1);
    if (IstMarkiert(editor)) {
        vorher(editor);
        editor.txtNotiz->Ersetzen(QString());
    }
}

void Einfuegen(frmEditor& editor) {
    EditorStatusSetzen(1);
    editor.txtNotiz->Ersetzen(QGuiApplication::clipboard()->text());
}

// The text becomes what stands ahead of the selection and what stands behind it, with the cursor between. Not
// by way of a new text for the field: what was deleted can be taken back.
void Loeschen(frmEditor& editor) {
    EditorStatusSetzen(1);
    editor.txtNotiz->Ersetzen(QString());
}

void AblageLeeren(frmEditor& /*editor*/) {
    if (Bejaht(editortexte::ablageLeeren)) {
        QGuiApplication::clipboard()->clear();
    }
}

// Counts as a change also when the question is answered Nein: it is meant.
void TextLeeren(frmEditor& editor) {
    EditorStatusSetzen(1);
    if (Bejaht(editortexte::textLeeren)) {
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
