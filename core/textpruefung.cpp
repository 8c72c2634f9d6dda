#include "core/textpruefung.h"

#include "core/cp1252.h"

#include <QTextBlock>

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

bool HatLangeZeile(const QTextCursor& neues) {
    QTextBlock zeile = neues.document()->findBlock(neues.selectionStart());
    while (zeile.isValid() && zeile.position() <= neues.selectionEnd() && zeile.length() - 1 <= textgrenze) {
        zeile = zeile.next();
    }
    return zeile.isValid() && zeile.position() <= neues.selectionEnd();
}

} // namespace

QString Erlaubt(const QString& text, Zeichenbefund& befund, bool ohneNull) {
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
        const std::string ersatz = Ersatzzeichen(zeichen);
        befund.Notieren(zeichen, ersatz);
        erlaubt += QString::fromStdString(ersatz);
    }
    return erlaubt;
}

int Ueberlaenge(const QTextDocument& text) {
    const int zeilenenden = text.blockCount() - 1; // CR LF there, one character here
    return text.characterCount() - 1 + zeilenenden - textgrenze;
}

QString ZeilenGekuerzt(const QString& erlaubt, const QTextCursor& neues) {
    if (!HatLangeZeile(neues)) {
        return erlaubt;
    }
    const QTextDocument& text = *neues.document();
    const QTextBlock erste = text.findBlock(neues.selectionStart());
    const QTextBlock letzte = text.findBlock(neues.selectionEnd());
    QStringList zeilen = erlaubt.split(QChar(QChar::ParagraphSeparator));
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        const int davor = i == 0 ? neues.selectionStart() - erste.position() : 0;
        const bool zuletzt = i + 1 == zeilen.size();
        const int danach = zuletzt ? letzte.position() + letzte.length() - 1 - neues.selectionEnd() : 0;
        zeilen[i].truncate(std::max(0, textgrenze - davor - danach));
    }
    return zeilen.join(QChar(QChar::ParagraphSeparator));
}

bool NurUnterbrochen(const QFocusEvent& ereignis) {
    const Qt::FocusReason grund = ereignis.reason();
    return grund == Qt::PopupFocusReason || grund == Qt::MenuBarFocusReason ||
           grund == Qt::ActiveWindowFocusReason;
}
