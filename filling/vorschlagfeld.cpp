#include "filling/vorschlagfeld.h"

#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "filling/texte.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr int textSaum = 3;     // pixels between frame and text
constexpr int eckenAbstand = 4; // from the texts
constexpr QColor frageFarbe(0, 0, 0);
constexpr QColor antwortFarbe(0, 0, 160);
constexpr QColor besetztFarbe(80, 80, 80);
constexpr QColor warnFarbe(160, 0, 0);
constexpr QColor warnGrund(255, 231, 231);

// As many lines as have room, the last of them shortened; returns the height that they take.
int Zeilen(QPainter& maler, const QRect& flaeche, const QString& text) {
    const QFontMetrics mass(maler.font());
    const int moeglich = std::max(1, flaeche.height() / mass.lineSpacing());
    QString satz = text.simplified();
    QTextLayout umbruch(satz, maler.font());
    umbruch.beginLayout();
    int zeilen = 0;
    int anfang = 0;
    for (QTextLine zeile = umbruch.createLine(); zeile.isValid() && zeilen < moeglich;
         zeile = umbruch.createLine(), ++zeilen) {
        zeile.setLineWidth(flaeche.width());
        const bool letzte = zeilen + 1 == moeglich;
        anfang = zeile.textStart();
        const QString stueck = letzte ? satz.mid(anfang) : satz.mid(anfang, zeile.textLength());
        maler.drawText(flaeche.left(), flaeche.top() + zeilen * mass.lineSpacing() + mass.ascent(),
                       mass.elidedText(stueck.trimmed(), Qt::ElideRight, flaeche.width()));
    }
    umbruch.endLayout();
    return zeilen * mass.lineSpacing();
}

QString Bildname(const Vorschlagfeld::Inhalt& inhalt, const QString& ort) {
    const QString texte =
        inhalt.antwort.isEmpty() ? inhalt.frage : inhalt.frage + QStringLiteral(" - ") + inhalt.antwort;
    const std::string_view name = fuelltexte::feldnamen.at(static_cast<std::size_t>(inhalt.art));
    return Anzeige(Einsetzen(name, {Modelltext(ort), Modelltext(texte.simplified())}));
}

} // namespace

Vorschlagfeld::Vorschlagfeld(QWidget* eltern, const QString& name) : QAbstractButton(eltern) {
    setObjectName(name);
    setFont(Schrift(7.5_pt));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Vorschlagfeld::Zeigen(const Inhalt& inhalt, const QString& ort) {
    setAccessibleName(Bildname(inhalt, ort));
    if (inhalt == inhalt_) {
        return;
    }
    inhalt_ = inhalt;
    setEnabled(inhalt.art != Art::Geschlossen);
    setCursor(inhalt.art == Art::Geschlossen || inhalt.art == Art::Besetzt ? Qt::ArrowCursor
                                                                           : Qt::PointingHandCursor);
    update();
}

QSize Vorschlagfeld::sizeHint() const {
    return {150, 3 * fontMetrics().lineSpacing() + 2 * textSaum + 2};
}

// A line for the question and one for the answer.
QSize Vorschlagfeld::minimumSizeHint() const {
    return {90, 2 * fontMetrics().lineSpacing() + 2 * textSaum};
}

QColor Vorschlagfeld::Grund() const {
    switch (inhalt_.art) {
    case Art::Geschlossen:
    case Art::Besetzt:
        return Systemflaeche();
    case Art::OhneFrage:
        return warnGrund;
    case Art::Leer:
    case Art::Vorgeschlagen:
        break;
    }
    return inhalt_.grund ? Qfarbe(*inhalt_.grund) : QColor(Qt::white);
}

// The letter or the points at the right, and the width that they take.
int Vorschlagfeld::EckeMalen(QPainter& maler, const QRect& flaeche) const {
    if (inhalt_.ecke.isEmpty()) {
        return 0;
    }
    const QFont fett = Schrift(7.5_pt, true);
    maler.setFont(fett);
    maler.setPen(inhalt_.art == Art::Besetzt ? besetztFarbe : frageFarbe);
    maler.drawText(flaeche, Qt::AlignRight | Qt::AlignTop, inhalt_.ecke);
    maler.setFont(font());
    return QFontMetrics(fett).horizontalAdvance(inhalt_.ecke) + eckenAbstand;
}

void Vorschlagfeld::TexteMalen(QPainter& maler, QRect flaeche) const {
    if (inhalt_.art == Art::OhneFrage) {
        maler.setPen(warnFarbe);
        Zeilen(maler, flaeche, Anzeige(fuelltexte::keineFrage));
        return;
    }
    const int zeile = fontMetrics().lineSpacing();
    const QRect oben = inhalt_.antwort.isEmpty() ? flaeche : flaeche.adjusted(0, 0, 0, -zeile);
    maler.setPen(inhalt_.art == Art::Besetzt ? besetztFarbe : frageFarbe);
    const int hoehe = inhalt_.frage.isEmpty() ? 0 : Zeilen(maler, oben, inhalt_.frage);
    if (!inhalt_.antwort.isEmpty()) {
        maler.setPen(inhalt_.art == Art::Besetzt ? besetztFarbe : antwortFarbe);
        Zeilen(maler, flaeche.adjusted(0, hoehe, 0, 0), inhalt_.antwort);
    }
}

void Vorschlagfeld::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.fillRect(rect(), Grund());
    const bool zu = inhalt_.art == Art::Geschlossen;
    maler.setPen(zu ? palette().midlight().color() : palette().dark().color());
    maler.drawRect(rect().adjusted(0, 0, -1, -1));
    if (zu) {
        return;
    }
    const QRect flaeche = rect().adjusted(textSaum + 1, textSaum - 1, -textSaum - 1, -textSaum + 1);
    TexteMalen(maler, flaeche.adjusted(0, 0, -EckeMalen(maler, flaeche), 0));
    if (inhalt_.art == Art::Besetzt) { // stands on the form already: a bar at the left edge
        maler.fillRect(QRect(0, 0, textSaum, height()), besetztFarbe);
    }
    if (hasFocus()) {
        maler.setPen(QPen(palette().highlight().color(), 2));
        maler.drawRect(rect().adjusted(1, 1, -1, -1));
    } else if (underMouse() && inhalt_.art != Art::Besetzt) {
        maler.setPen(palette().highlight().color());
        maler.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Vorschlagfeld::keyPressEvent(QKeyEvent* ereignis) {
    switch (ereignis->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        return;
    case Qt::Key_Left:
        Q_EMIT weiter(-1, 0);
        return;
    case Qt::Key_Right:
        Q_EMIT weiter(1, 0);
        return;
    case Qt::Key_Up:
        Q_EMIT weiter(0, -1);
        return;
    case Qt::Key_Down:
        Q_EMIT weiter(0, 1);
        return;
    default:
        QAbstractButton::keyPressEvent(ereignis);
    }
}
