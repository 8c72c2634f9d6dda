#include "filetools/pfadschild.h"

#include "core/oberflaeche.h"
#include "core/pfadname.h"

#include <QPainter>
#include <QTextDocument>
#include <QTextOption>

namespace {

QTextOption Umbruch(const QLabel& schild) {
    QTextOption umbruch(schild.alignment() & Qt::AlignHorizontal_Mask);
    umbruch.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return umbruch;
}

} // namespace

QString Pfadschild::gezeigt() const {
    QTextDocument probe;
    probe.setDocumentMargin(0);
    probe.setDefaultFont(font());
    probe.setDefaultTextOption(Umbruch(*this));
    probe.setTextWidth(width());
    return Anzeige(PfadGekuerzt(text().toStdString(), [&](std::string_view pfad) {
        probe.setPlainText(Anzeige(pfad));
        return probe.size().height() <= height();
    }));
}

void Pfadschild::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setPen(palette().color(QPalette::WindowText));
    maler.drawText(QRectF(rect()), gezeigt(), Umbruch(*this));
}
