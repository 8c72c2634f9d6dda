#include "core/textfeld.h"

#include "core/anfuehrung.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/textpruefung.h"

#include <QFocusEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocument>

#include <algorithm>
#include <array>

Textfeld::Textfeld(QWidget* eltern, const QString& name) : QPlainTextEdit(eltern) {
    setObjectName(name);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int stelle, int, int neu) { NurErlaubteZeichen(stelle, neu); });
    connect(this, &QPlainTextEdit::textChanged, this, &Textfeld::TextVergleichen);
}

// The toolkit also speaks of a change when only the look has changed, or when an undo has led back to the
// same text.
void Textfeld::TextVergleichen() {
    if (ganzeDatei_) {
        Q_EMIT textAnders(); // its text is long
        return;
    }
    QString jetzt = document()->toRawText();
    if (jetzt != bisher_) {
        bisher_ = std::move(jetzt);
        Q_EMIT textAnders();
    }
}

std::string Textfeld::text() const {
    // Not toPlainText: that turns protected blanks into plain ones.
    QString roh = document()->toRawText();
    roh.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    roh.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
    return Modelltext(roh);
}

void Textfeld::setText(std::string_view text) {
    if (this->text() != text) {
        setPlainText(Anzeige(text));
    }
}

void Textfeld::setGrund(const QColor& farbe) {
    const QColor grund = farbe.isValid() ? farbe : Systemflaeche();
    if (palette().color(QPalette::Base) == grund) {
        return;
    }
    QPalette farben = palette();
    farben.setColor(QPalette::Base, grund);
    setPalette(farben);
}

void Textfeld::setZentriert(bool zentriert) {
    QTextOption option = document()->defaultTextOption();
    const Qt::Alignment ausrichtung = zentriert ? Qt::AlignHCenter : Qt::AlignLeft;
    if (option.alignment() != ausrichtung) {
        option.setAlignment(ausrichtung);
        document()->setDefaultTextOption(option);
    }
}

void Textfeld::focusInEvent(QFocusEvent* ereignis) {
    QPlainTextEdit::focusInEvent(ereignis);
    eintritt_.Betreten(this, ereignis->reason());
    if (!drin_ || !NurUnterbrochen(*ereignis)) {
        Betreten();
    }
}

void Textfeld::Betreten() {
    // Where the focus moved while another window was in front, nobody told the box that it left.
    for (Textfeld* anderes : window()->findChildren<Textfeld*>()) {
        if (anderes != this && anderes->drin_) {
            anderes->Verlassen();
        }
    }
    drin_ = true;
    Q_EMIT fokusErhalten();
}

void Textfeld::Verlassen() {
    drin_ = false;
    Q_EMIT fokusVerloren();
    if (!ganzeDatei_) { // the buttons of an editor work on what is selected
        AuswahlAufheben();
    }
}

void Textfeld::focusOutEvent(QFocusEvent* ereignis) {
    QPlainTextEdit::focusOutEvent(ereignis);
    if (NurUnterbrochen(*ereignis)) {
        Q_EMIT fokusUnterbrochen();
    } else {
        Verlassen();
    }
}

void Textfeld::AuswahlAufheben() {
    QTextCursor stelle = textCursor();
    stelle.clearSelection();
    setTextCursor(stelle);
}

// A press on selected text would begin the toolkit's own drag and carry the text off, whatever keys are held;
// with Shift alone it extends the selection.
void Textfeld::mousePressEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton) {
        // A whole file isn't selected on entering: what is selected there is a part, and all would be too
        // much.
        eintritt_.Gedrueckt(!ganzeDatei_ && textCursor().hasSelection());
        if (ereignis->modifiers() != Qt::ShiftModifier) {
            AuswahlAufheben();
        }
    }
    QPlainTextEdit::mousePressEvent(ereignis);
}

void Textfeld::mouseReleaseEvent(QMouseEvent* ereignis) {
    QPlainTextEdit::mouseReleaseEvent(ereignis);
    // Who has drawn a selection of his own meanwhile keeps it.
    if (eintritt_.Losgelassen() && !textCursor().hasSelection()) {
        TextMarkieren(this);
    }
}

// The toolkit looks at the first format without asking whether there is any, and another program may offer
// none.
void Textfeld::insertFromMimeData(const QMimeData* daten) {
    if (daten != nullptr && !daten->formats().isEmpty()) {
        QPlainTextEdit::insertFromMimeData(daten);
    }
}

// The new text, which the cursor has selected, without what is beyond the limit.
QString Textfeld::Gekuerzt(const QString& erlaubt, const QTextCursor& neues) const {
    if (ganzeDatei_) {
        return ZeilenGekuerzt(erlaubt, neues);
    }
    return erlaubt.chopped(std::clamp<qsizetype>(Ueberlaenge(*document()), 0, erlaubt.size()));
}

void Textfeld::NurErlaubteZeichen(int stelle, int neu) {
    const int ende = std::min(stelle + neu, document()->characterCount() - 1);
    if (ende <= stelle || ungeprueft_) {
        return;
    }
    QTextCursor cursor(document());
    cursor.setPosition(stelle);
    cursor.setPosition(ende, QTextCursor::KeepAnchor);
    cursor.setKeepPositionOnInsert(true); // what is typed behind it meanwhile stays
    Zeichenbefund befund;
    const QString ganz = Erlaubt(cursor.selectedText(), befund, ganzeDatei_);
    const QString erlaubt = Gekuerzt(ganz, cursor);
    const bool zuLang = erlaubt.size() < ganz.size();
    if (befund.leer() && !zuLang) {
        return;
    }
    // The document is in the middle of the change; the mending joins it as soon as it is over.
    QMetaObject::invokeMethod(
        this,
        [cursor, erlaubt]() mutable {
            cursor.setKeepPositionOnInsert(false);
            cursor.joinPreviousEditBlock();
            cursor.insertText(erlaubt);
            cursor.endEditBlock();
        },
        Qt::QueuedConnection);
    if (zuLang) {
        HilfeText(" Der Text ist mir zu lang, sein Ende musste draußen bleiben.");
    } else {
        HilfeText(ZeichenHinweis(befund));
    }
}

void AnfuehrungMelden(QWidget* feld, std::string_view text, const std::string& wo) {
    if (!HatAnfuehrung(text)) {
        return;
    }
    // The control that gets the focus speaks first.
    QMetaObject::invokeMethod(
        feld, [wo] { HilfeText(AnfuehrungHinweis(std::array{wo})); }, Qt::QueuedConnection);
}

void TextMarkieren(QLineEdit* zeile) {
    zeile->selectAll();
}

void TextMarkieren(QPlainTextEdit* feld) {
    feld->selectAll();
}
