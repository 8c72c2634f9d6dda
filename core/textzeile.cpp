#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "core/textpruefung.h"

#include <QMouseEvent>
#include <QValidator>

namespace {

class Zeichenpruefer : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& eingabe, int& stelle) const override {
        Zeichenbefund befund;
        const QString davor = Erlaubt(eingabe.left(stelle), befund);
        const QString danach = Erlaubt(eingabe.mid(stelle), befund);
        if (!befund.leer()) {
            eingabe = davor + danach;
            stelle = static_cast<int>(davor.size());
            HilfeText(ZeichenHinweis(befund));
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
