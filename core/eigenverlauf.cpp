// The undo of a single text box.
#include "core/textfeld.h"

#include <QKeyEvent>
#include <QTextDocument>

namespace {

enum class Taste { Keine, Zurueck, Vor };

// The same keys everywhere, whatever the desktop takes for the usual ones.
Taste TasteVon(const QKeyEvent& ereignis) {
    const QKeyCombination tasten(ereignis.modifiers(), static_cast<Qt::Key>(ereignis.key()));
    if (tasten == QKeyCombination(Qt::CTRL, Qt::Key_Z)) {
        return Taste::Zurueck;
    }
    const bool vor = tasten == QKeyCombination(Qt::CTRL, Qt::Key_Y) ||
                     tasten == QKeyCombination(Qt::CTRL | Qt::SHIFT, Qt::Key_Z);
    return vor ? Taste::Vor : Taste::Keine;
}

// True when the event is settled. A key that the box has no use for is left to the menus.
bool TasteBehandelt(QEvent& ereignis, Eigenverlauf& feld, bool zurueck, bool vor) {
    const bool frage = ereignis.type() == QEvent::ShortcutOverride;
    if (!frage && ereignis.type() != QEvent::KeyPress) {
        return false;
    }
    const Taste taste = TasteVon(static_cast<QKeyEvent&>(ereignis));
    if (taste == Taste::Keine) {
        return false;
    }
    ereignis.setAccepted(taste == Taste::Zurueck ? zurueck : vor);
    if (!frage && ereignis.isAccepted()) {
        taste == Taste::Zurueck ? feld.EigenesZurueck() : feld.EigenesVor();
    }
    return true;
}

} // namespace

bool Textfeld::event(QEvent* ereignis) {
    const bool schreibbar = !isReadOnly();
    return TasteBehandelt(*ereignis, *this, schreibbar && (ganzeDatei_ || document()->isUndoAvailable()),
                          schreibbar && (ganzeDatei_ || document()->isRedoAvailable())) ||
           QPlainTextEdit::event(ereignis);
}

bool Textfeld::EigenesZurueck() {
    const bool da = document()->isUndoAvailable();
    undo();
    return da;
}

bool Textfeld::EigenesVor() {
    const bool da = EigenesKommt();
    redo();
    return da;
}

bool Textfeld::EigenesKommt() const {
    return document()->isRedoAvailable();
}

void Textfeld::EigenesVergessen() {
    if (!ganzeDatei_) {
        document()->clearUndoRedoStacks();
    }
}

bool Textzeile::event(QEvent* ereignis) {
    return TasteBehandelt(*ereignis, *this, isUndoAvailable(), isRedoAvailable()) ||
           QLineEdit::event(ereignis);
}

bool Textzeile::EigenesZurueck() {
    const bool da = isUndoAvailable();
    undo();
    return da;
}

bool Textzeile::EigenesVor() {
    const bool da = EigenesKommt();
    redo();
    return da;
}

bool Textzeile::EigenesKommt() const {
    return isRedoAvailable();
}

// The toolkit forgets with a text that is set only.
void Textzeile::EigenesVergessen() {
    if (isUndoAvailable() || isRedoAvailable()) {
        const int stelle = cursorPosition();
        const int anfang = selectionStart();
        const auto laenge = static_cast<int>(selectedText().size());
        setText(text());
        setCursorPosition(stelle);
        if (anfang >= 0) {
            setSelection(anfang, laenge);
        }
    }
}
