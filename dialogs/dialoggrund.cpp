#include "dialogs/dialoggrund.h"

#include "core/bilder.h"
#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "dialogs/fehlertexte.h"
#include "dialogs/meldung.h"

#include <QPainter>
#include <QScreen>
#include <QTextDocument>
#include <QTextOption>

#include <set>
#include <string>

namespace {

QPixmap BildLaden(const std::string& pfad) {
    const std::string bytes = DateiLesen(pfad);
    QPixmap bild;
    if (!bild.loadFromData(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())))) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    return bild;
}

QTextOption Umbruch(Qt::Alignment ausrichtung) {
    QTextOption option(ausrichtung & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

Dialoggrund::Dialoggrund(const QString& name, double breite, double hoehe, Qt::WindowFlags art)
    : QDialog(nullptr, art) {
    setObjectName(name);
    setModal(true);
    setFixedSize(Pixel(breite), Pixel(hoehe));
}

void Dialoggrund::HintergrundLaden(std::string_view name) {
    try {
        const std::string pfad = Stand.AppPfad + "\\BITMAP\\FK_" + std::string(name);
        grund_ = Feinbild(BildLaden(pfad), pfad, devicePixelRatioF());
    } catch (const Laufzeitfehler& fehler) {
        bildfehler_ = fehler;
    }
}

void Dialoggrund::Zentrieren(double hoehe, double tiefer) {
    const QSize schirm = Bildschirmgroesse(this);
    const QPoint ort((schirm.width() - width()) / 2, schirm.height() / 2 - Pixel(hoehe) / 2 + Pixel(tiefer));
    const QPoint ecke = screen() != nullptr ? screen()->geometry().topLeft() : QPoint();
    if (pos() != ecke + ort) {
        move(ecke + ort);
    }
}

void Dialoggrund::paintEvent(QPaintEvent* ereignis) {
    if (grund_.isNull()) {
        QDialog::paintEvent(ereignis);
        return;
    }
    QPainter maler(this);
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    maler.drawPixmap(rect(), grund_);
}

void BildfehlerMelden(std::string_view name, const std::optional<Laufzeitfehler>& fehler) {
    static std::set<std::string, std::less<>> gemeldet;
    if (!fehler || !gemeldet.emplace(name).second) {
        return;
    }
    if (fehler->art() == Fehler::DateiNichtGefunden) {
        Meldung(bildNichtGefunden, {name});
    } else {
        Meldung(bildProblem);
    }
}

Textschild::Textschild(QWidget* eltern, const QString& name) : QLabel(eltern) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFont(Schrift(9));
}

void Textschild::setText(const QString& text) {
    QLabel::setText(text);
    setAccessibleName(text);
    QTextDocument ganz(text);
    ganz.setDocumentMargin(0);
    ganz.setDefaultFont(font());
    ganz.setDefaultTextOption(Umbruch(alignment()));
    ganz.setTextWidth(width());
    if (grundtipp_.isNull()) {
        grundtipp_ = toolTip();
    }
    // What is cut at the edge can still be read in the tip.
    setToolTip(ganz.size().height() > height() ? text : grundtipp_);
    setAccessibleDescription(toolTip());
}

void Textschild::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setPen(palette().color(QPalette::WindowText));
    maler.drawText(QRectF(rect()), text(), Umbruch(alignment()));
}

void Textschild::mouseDoubleClickEvent(QMouseEvent*) {
    setScaledContents(!hasScaledContents());
}
