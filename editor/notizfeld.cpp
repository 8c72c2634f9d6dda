#include "editor/notizfeld.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"

#include <QMimeData>
#include <QScopeGuard>

namespace {

// Characters that go into the field at once; a text of no more goes without the progress bar.
constexpr qsizetype stueck = qsizetype{1} << 18;

// The progress bar is full at this value.
constexpr float voll = 38.0F;

} // namespace

Notizfeld::Notizfeld(QWidget* eltern) : Textfeld(eltern, QStringLiteral("txtNotiz")) {
    setGanzeDatei();
}

void Notizfeld::Fuellen(std::string_view text, std::string_view meldung) {
    const QString zeilen = Anzeige(text);
    const bool lang = zeilen.size() > stueck;
    setUngeprueft(true);
    const auto danach = qScopeGuard([this, lang] {
        setUndoRedoEnabled(true);
        setUngeprueft(false);
        moveCursor(QTextCursor::Start);
        setUpdatesEnabled(true);
        if (lang) {
            FortschrittEnde();
        }
    });
    if (lang) {
        FortschrittStart(meldung);
    }
    clear();
    setUndoRedoEnabled(false);
    QTextCursor ende(document());
    for (qsizetype stelle = 0; stelle < zeilen.size(); stelle += stueck) {
        ende.movePosition(QTextCursor::End);
        ende.insertText(zeilen.mid(stelle, stueck));
        if (lang) {
            StueckZeigen(stelle, zeilen.size());
        }
    }
}

// The bar moves on. The beginning of the text shows at once, the rest only when it is whole.
void Notizfeld::StueckZeigen(qsizetype stelle, qsizetype groesse) {
    if (stelle == 0) {
        moveCursor(QTextCursor::Start);
        viewport()->repaint();
        setUpdatesEnabled(false);
    }
    FortschrittSchritt(voll * static_cast<float>(stueck) / static_cast<float>(groesse));
}

QString Notizfeld::Markiert() const {
    QString text = textCursor().selectedText();
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    text.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
    return text;
}

void Notizfeld::Ersetzen(const QString& text) {
    textCursor().insertText(text);
    ensureCursorVisible();
}

QMimeData* Notizfeld::createMimeDataFromSelection() const {
    auto* daten = new QMimeData; // owned by whoever asked for it
    daten->setText(Markiert());
    return daten;
}
