#include "core/textfeld.h"

#include "core/cp1252.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "persistence/wertgrammatik.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <QValidator>

namespace {

// What of a text may stay: the same text, or with equivalents for what code page 1252 can't hold. The first
// character that had to stay outside without an equivalent, or got one, is named in draussen.
QString Erlaubt(const QString& text, QString& draussen) {
    QString erlaubt;
    erlaubt.reserve(text.size());
    for (const char32_t zeichen : text.toUcs4()) {
        if (zeichen == QChar::ParagraphSeparator || zeichen == QChar::LineSeparator || InCp1252(zeichen)) {
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

// Bytes in a file that are more than a form file's reader takes for one text.
int Ueberlaenge(const QTextDocument& text) {
    const int zeilenenden = text.blockCount() - 1; // CR LF there, one character here
    return text.characterCount() - 1 + zeilenenden - static_cast<int>(laengsterText);
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

Textfeld::Textfeld(QWidget* eltern, const QString& name) : QPlainTextEdit(eltern) {
    setObjectName(name);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int stelle, int, int neu) { NurErlaubteZeichen(stelle, neu); });
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
    if (!NurUnterbrochen(*ereignis)) {
        Q_EMIT fokusErhalten();
    }
}

void Textfeld::focusOutEvent(QFocusEvent* ereignis) {
    QPlainTextEdit::focusOutEvent(ereignis);
    if (NurUnterbrochen(*ereignis)) {
        Q_EMIT fokusUnterbrochen();
    } else {
        Q_EMIT fokusVerloren();
    }
}

// Otherwise a press on selected text would begin the toolkit's own drag and carry the text off.
void Textfeld::mousePressEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton && ereignis->modifiers() == Qt::NoModifier) {
        QTextCursor stelle = textCursor();
        stelle.clearSelection();
        setTextCursor(stelle);
    }
    QPlainTextEdit::mousePressEvent(ereignis);
}

void Textfeld::NurErlaubteZeichen(int stelle, int neu) {
    const int ende = std::min(stelle + neu, document()->characterCount() - 1);
    if (ende <= stelle) {
        return;
    }
    QTextCursor cursor(document());
    cursor.setPosition(stelle);
    cursor.setPosition(ende, QTextCursor::KeepAnchor);
    cursor.setKeepPositionOnInsert(true); // what is typed behind it meanwhile stays
    QString draussen;
    QString erlaubt = Erlaubt(cursor.selectedText(), draussen);
    const int zuviel = Ueberlaenge(*document());
    if (draussen.isEmpty() && zuviel <= 0) {
        return;
    }
    erlaubt.chop(std::max(zuviel, 0));
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
    if (zuviel > 0) {
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
    if (!NurUnterbrochen(*ereignis)) {
        TextMarkieren(this);
    }
}

void TextMarkieren(QLineEdit* zeile) {
    zeile->selectAll();
}

void TextMarkieren(QPlainTextEdit* feld) {
    feld->selectAll();
}
