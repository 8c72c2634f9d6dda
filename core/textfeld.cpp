#include "core/textfeld.h"

#include "core/cp1252.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/wertgrammatik.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <QValidator>

#include <algorithm>

namespace {

bool Zeilenwechsel(char32_t zeichen) {
    return zeichen == QChar::ParagraphSeparator || zeichen == QChar::LineSeparator;
}

// True for what nearly every character is, and may stay.
bool Gewoehnlich(QChar zeichen) {
    return (zeichen.unicode() > 0 && zeichen.unicode() < 0x80) ||
           (zeichen.unicode() >= 0xA0 && zeichen.unicode() <= 0xFF) || Zeilenwechsel(zeichen.unicode());
}

// What of a text may stay: the same text, or with equivalents for what code page 1252 can't hold. The first
// character that had to stay outside without an equivalent, or got one, is named in draussen. A form file
// keeps zero bytes; ohneNull leaves them outside as well.
QString Erlaubt(const QString& text, QString& draussen, bool ohneNull = false) {
    if (std::ranges::all_of(text, Gewoehnlich)) {
        return text;
    }
    QString erlaubt;
    erlaubt.reserve(text.size());
    for (const char32_t zeichen : text.toUcs4()) {
        if (Zeilenwechsel(zeichen) || (InCp1252(zeichen) && !(ohneNull && zeichen == 0))) {
            erlaubt += QString::fromUcs4(&zeichen, 1);
            continue;
        }
        if (draussen.isEmpty()) {
            draussen = QString::fromUcs4(&zeichen, 1);
        }
        erlaubt += QString::fromStdString(Ersatzzeichen(zeichen));
    }
    return erlaubt;
}

// The focus goes to a menu or another window and comes back, and with it the place where the user types: to
// select the text then would make the next key, or a paste from the box's own menu, overwrite it all.
bool NurUnterbrochen(const QFocusEvent& ereignis) {
    const Qt::FocusReason grund = ereignis.reason();
    return grund == Qt::PopupFocusReason || grund == Qt::MenuBarFocusReason ||
           grund == Qt::ActiveWindowFocusReason;
}

void ZeichenMelden(const QString& zeichen) {
    HilfeText((QStringLiteral(" Das Zeichen  ") + zeichen +
               QStringLiteral("  kann ich nicht speichern, es musste draußen bleiben."))
                  .toStdString());
}

constexpr int grenze = static_cast<int>(laengsterText);

// Bytes in a file that are more than a form file's reader takes for one text.
int Ueberlaenge(const QTextDocument& text) {
    const int zeilenenden = text.blockCount() - 1; // CR LF there, one character here
    return text.characterCount() - 1 + zeilenenden - grenze;
}

bool HatLangeZeile(const QTextCursor& neues) {
    QTextBlock zeile = neues.document()->findBlock(neues.selectionStart());
    while (zeile.isValid() && zeile.position() <= neues.selectionEnd() && zeile.length() - 1 <= grenze) {
        zeile = zeile.next();
    }
    return zeile.isValid() && zeile.position() <= neues.selectionEnd();
}

// New text in which no line becomes longer than the limit, together with what stands around it.
QString ZeilenGekuerzt(const QString& erlaubt, const QTextCursor& neues) {
    const QTextDocument& text = *neues.document();
    const QTextBlock erste = text.findBlock(neues.selectionStart());
    const QTextBlock letzte = text.findBlock(neues.selectionEnd());
    QStringList zeilen = erlaubt.split(QChar(QChar::ParagraphSeparator));
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        const int davor = i == 0 ? neues.selectionStart() - erste.position() : 0;
        const bool zuletzt = i + 1 == zeilen.size();
        const int danach = zuletzt ? letzte.position() + letzte.length() - 1 - neues.selectionEnd() : 0;
        zeilen[i].truncate(std::max(0, grenze - davor - danach));
    }
    return zeilen.join(QChar(QChar::ParagraphSeparator));
}

class Zeichenpruefer : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& eingabe, int& stelle) const override {
        QString draussen;
        const QString davor = Erlaubt(eingabe.left(stelle), draussen);
        const QString danach = Erlaubt(eingabe.mid(stelle), draussen);
        if (!draussen.isEmpty()) {
            eingabe = davor + danach;
            stelle = static_cast<int>(davor.size());
            ZeichenMelden(draussen);
        }
        return Acceptable;
    }
};

} // namespace

void Eintrittsklick::Betreten(QWidget* feld, Qt::FocusReason grund) {
    betreten_ = grund == Qt::MouseFocusReason;
    if (betreten_) {
        QMetaObject::invokeMethod(
            feld, [this] { betreten_ = false; }, Qt::QueuedConnection);
    }
}

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

// The new text, which the cursor has selected, without what is beyond the limit.
QString Textfeld::Gekuerzt(const QString& erlaubt, const QTextCursor& neues) const {
    if (ganzeDatei_) {
        return HatLangeZeile(neues) ? ZeilenGekuerzt(erlaubt, neues) : erlaubt;
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
    QString draussen;
    const QString ganz = Erlaubt(cursor.selectedText(), draussen, ganzeDatei_);
    const QString erlaubt = Gekuerzt(ganz, cursor);
    const bool zuLang = erlaubt.size() < ganz.size();
    if (draussen.isEmpty() && !zuLang) {
        return;
    }
    // The document is in the middle of the change; the mending joins it as soon as it is over.
    QMetaObject::invokeMethod(
        this,
        [this, cursor, erlaubt]() mutable {
            cursor.setKeepPositionOnInsert(false);
            cursor.joinPreviousEditBlock();
            cursor.insertText(erlaubt);
            cursor.endEditBlock();
        },
        Qt::QueuedConnection);
    if (zuLang) {
        HilfeText(" Der Text ist mir zu lang, sein Ende musste draußen bleiben.");
    } else {
        ZeichenMelden(draussen);
    }
}

Textzeile::Textzeile(QWidget* eltern, const QString& name) : QLineEdit(eltern) {
    setObjectName(name);
    setValidator(new Zeichenpruefer(this));
}

std::string Textzeile::wert() const {
    return Modelltext(text());
}

void Textzeile::setWert(std::string_view text) {
    const QString neu = Anzeige(text);
    if (neu != this->text()) {
        setText(neu);
    }
}

void Textzeile::focusInEvent(QFocusEvent* ereignis) {
    QLineEdit::focusInEvent(ereignis);
    eintritt_.Betreten(this, ereignis->reason());
    if (!NurUnterbrochen(*ereignis)) {
        TextMarkieren(this);
    }
}

void Textzeile::mousePressEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton) {
        eintritt_.Gedrueckt(hasSelectedText());
    }
    QLineEdit::mousePressEvent(ereignis);
}

void Textzeile::mouseReleaseEvent(QMouseEvent* ereignis) {
    QLineEdit::mouseReleaseEvent(ereignis);
    if (eintritt_.Losgelassen() && !hasSelectedText()) {
        TextMarkieren(this);
    }
}

void TextMarkieren(QLineEdit* zeile) {
    zeile->selectAll();
}

void TextMarkieren(QPlainTextEdit* feld) {
    feld->selectAll();
}
