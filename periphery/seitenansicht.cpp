#include "periphery/seitenansicht.h"

#include "core/laenge.h"

#include <QFile>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double meisteBildpunkte = 24e6; // of one page's picture; a larger page is drawn from a coarser one
constexpr double stufe = 1.1;             // of the wheel
constexpr int zeile = 24;                 // step of the arrow keys, in pixels

} // namespace

Seitenansicht::Seitenansicht(QWidget* eltern)
    : QAbstractScrollArea(eltern), dokument_(nullptr), suche_(nullptr) {
    suche_.setDocument(&dokument_);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that the width doesn't hang on the length
    verticalScrollBar()->setSingleStep(zeile);
    horizontalScrollBar()->setSingleStep(zeile);
    viewport()->setBackgroundRole(QPalette::Mid);
    setFocusPolicy(Qt::StrongFocus);
}

Seitenansicht::~Seitenansicht() {
    suche_.setDocument(nullptr);
}

bool Seitenansicht::Lesen(const QString& datei) {
    dokument_.close();
    quelle_.close();
    QFile leser(datei);
    if (!leser.open(QIODevice::ReadOnly)) {
        return false;
    }
    bytes_ = leser.readAll();
    quelle_.setBuffer(&bytes_);
    quelle_.open(QIODevice::ReadOnly);
    dokument_.load(&quelle_); // at once, since all of it is there
    return dokument_.status() == QPdfDocument::Status::Ready;
}

bool Seitenansicht::Laden(const QString& datei) {
    Suchen({});
    bilder_.clear();
    masse_.clear();
    if (Lesen(datei)) {
        for (int seite = 0; seite < dokument_.pageCount(); ++seite) {
            // A page that can't be read keeps its place, as an empty sheet.
            const QSizeF mass = dokument_.pagePointSize(seite);
            masse_.push_back(mass.width() >= 1 && mass.height() >= 1 ? mass : QSizeF(595, 842));
        }
    }
    Anordnen();
    SeiteZeigen(1);
    Melden();
    return !masse_.empty();
}

int Seitenansicht::Seite() const {
    // The page that fills the upper part of the control is the one that is read.
    return lage_.SeiteBei(verticalScrollBar()->value() + viewport()->height() / 3) + 1;
}

void Seitenansicht::SeiteZeigen(int seite) {
    if (masse_.empty()) {
        return;
    }
    const auto stelle = static_cast<std::size_t>(std::clamp(seite, 1, Seiten()) - 1);
    verticalScrollBar()->setValue(lage_.plaetze.at(stelle).top() - seitenabstand);
}

double Seitenansicht::Groesse() const {
    const int seite = Seite() - 1;
    if (seite < 0) {
        return groesse_;
    }
    const auto stelle = static_cast<std::size_t>(seite);
    return lage_.plaetze.at(stelle).width() / (masse_.at(stelle).width() * pixelJeSchriftpunkt);
}

void Seitenansicht::Einpassen(Passung passung) {
    passung_ = passung;
    Anordnen();
}

void Seitenansicht::GroesseSetzen(double groesse) {
    groesse_ = std::clamp(groesse, kleinsteGroesse, groessteGroesse);
    Einpassen(Passung::Frei);
}

void Seitenansicht::Anordnen() {
    const int seite = std::max(Seite() - 1, 0);
    const QRect alt = seite < static_cast<int>(lage_.plaetze.size())
                          ? lage_.plaetze.at(static_cast<std::size_t>(seite))
                          : QRect(0, 0, 1, 1);
    const double anteil = (verticalScrollBar()->value() - alt.top()) / static_cast<double>(alt.height());
    lage_ = SeitenLegen(masse_, viewport()->size(), passung_, groesse_);
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setRange(0, std::max(0, lage_.gesamt.height() - viewport()->height()));
    horizontalScrollBar()->setRange(0, std::max(0, lage_.gesamt.width() - viewport()->width()));
    if (seite < static_cast<int>(lage_.plaetze.size())) {
        const QRect& neu = lage_.plaetze.at(static_cast<std::size_t>(seite));
        verticalScrollBar()->setValue(static_cast<int>(std::lround(neu.top() + anteil * neu.height())));
        horizontalScrollBar()->setValue((lage_.gesamt.width() - viewport()->width()) / 2);
    }
    bilder_.clear();
    viewport()->update();
    Melden();
}

void Seitenansicht::Melden() const {
    if (wechsel_) {
        wechsel_();
    }
}

QPoint Seitenansicht::Verschiebung() const {
    return {-horizontalScrollBar()->value(), -verticalScrollBar()->value()};
}

const QImage& Seitenansicht::Bild(int seite, QSize groesse) {
    QImage& bild = bilder_[seite];
    const double aufloesung = viewport()->devicePixelRatioF();
    const double punkte = groesse.width() * aufloesung * groesse.height() * aufloesung;
    const double faktor = aufloesung * std::min(1.0, std::sqrt(meisteBildpunkte / punkte));
    const QSize soll = (QSizeF(groesse) * faktor).toSize();
    if (bild.size() != soll && !soll.isEmpty()) {
        bild = QImage(soll, QImage::Format_RGB32);
        bild.fill(Qt::white);
        const QImage gemalt = dokument_.render(seite, soll);
        QPainter(&bild).drawImage(0, 0, gemalt); // nothing where the page can't be drawn
    }
    return bild;
}

void Seitenansicht::SeiteMalen(QPainter& maler, int seite) {
    const QRect platz = lage_.plaetze.at(static_cast<std::size_t>(seite)).translated(Verschiebung());
    maler.setPen(palette().color(QPalette::Dark));
    maler.setBrush(Qt::NoBrush);
    maler.drawRect(platz.adjusted(-1, -1, 0, 0));
    maler.drawImage(platz, Bild(seite, platz.size()));
    FundeMalen(maler, seite, platz);
}

void Seitenansicht::paintEvent(QPaintEvent* ereignis) {
    QPainter maler(viewport());
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect sicht = ereignis->rect().translated(-Verschiebung());
    const QRect allesSichtbare(-Verschiebung(), viewport()->size());
    for (int seite = 0; seite < Seiten(); ++seite) {
        const QRect& platz = lage_.plaetze.at(static_cast<std::size_t>(seite));
        if (platz.adjusted(-1, -1, 1, 1).intersects(sicht)) {
            SeiteMalen(maler, seite);
        } else if (!platz.intersects(allesSichtbare)) {
            bilder_.erase(seite);
        }
    }
}

void Seitenansicht::resizeEvent(QResizeEvent* ereignis) {
    QAbstractScrollArea::resizeEvent(ereignis);
    Anordnen();
}

void Seitenansicht::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy);
    Melden();
}

void Seitenansicht::keyPressEvent(QKeyEvent* ereignis) {
    const bool strg = ereignis->modifiers().testFlag(Qt::ControlModifier);
    switch (ereignis->key()) {
    case Qt::Key_Home:
        SeiteZeigen(1);
        break;
    case Qt::Key_End:
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (strg) {
            SeiteZeigen(Seite() + (ereignis->key() == Qt::Key_PageDown ? 1 : -1));
        } else {
            QAbstractScrollArea::keyPressEvent(ereignis);
        }
        break;
    case Qt::Key_Space:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(ereignis);
    }
}

void Seitenansicht::wheelEvent(QWheelEvent* ereignis) {
    if (!ereignis->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(ereignis);
        return;
    }
    GroesseSetzen(Groesse() * (ereignis->angleDelta().y() > 0 ? stufe : 1 / stufe));
    ereignis->accept();
}
