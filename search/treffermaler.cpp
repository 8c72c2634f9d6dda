#include "search/treffermaler.h"

#include "core/oberflaeche.h"
#include "search/treffermodell.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace {

const QColor marke(255, 224, 102);

bool Durchsucht(Trefferspalte spalte) {
    return spalte != Trefferspalte::Punkte && spalte != Trefferspalte::Benutzt;
}

// The parts of the text that the request found, as the toolkit counts letters; beyond hoechstens there is no
// text on the screen.
QList<QTextLayout::FormatRange> Marken(const QString& text, const Suchanfrage& anfrage,
                                       qsizetype hoechstens) {
    QList<QTextLayout::FormatRange> marken;
    const QByteArray utf8 = text.toUtf8();
    QTextCharFormat format;
    format.setBackground(marke);
    format.setForeground(Qt::black);
    for (const Textbereich& fund :
         Fundstellen({utf8.data(), static_cast<std::size_t>(utf8.size())}, anfrage)) {
        const auto vor = QString::fromUtf8(utf8.left(static_cast<qsizetype>(fund.von))).size();
        const auto bis = QString::fromUtf8(utf8.left(static_cast<qsizetype>(fund.bis))).size();
        if (vor < hoechstens) {
            marken.append({static_cast<int>(vor), static_cast<int>(std::min(bis, hoechstens) - vor), format});
        }
    }
    return marken;
}

} // namespace

void Treffermaler::paint(QPainter* maler, const QStyleOptionViewItem& option,
                         const QModelIndex& stelle) const {
    const auto* modell = dynamic_cast<const Treffermodell*>(stelle.model());
    if (modell == nullptr || !Durchsucht(static_cast<Trefferspalte>(stelle.column()))) {
        QStyledItemDelegate::paint(maler, option, stelle);
        return;
    }
    QStyleOptionViewItem zelle = option;
    initStyleOption(&zelle, stelle);
    const QString text = std::exchange(zelle.text, QString()).simplified();
    const QStyle* stil = zelle.widget == nullptr ? QApplication::style() : zelle.widget->style();
    stil->drawControl(QStyle::CE_ItemViewItem, &zelle, maler, zelle.widget);

    const QRect platz = stil->subElementRect(QStyle::SE_ItemViewItemText, &zelle, zelle.widget)
                            .adjusted(3, 0, -3, 0); // as the style keeps text off the edges
    const QString gekuerzt = zelle.fontMetrics.elidedText(text, Qt::ElideRight, platz.width());
    const qsizetype ganz = gekuerzt == text ? text.size() : gekuerzt.size() - 1;
    QTextLayout zeile(gekuerzt, zelle.font);
    zeile.setFormats(Marken(text, modell->anfrage(), ganz));
    zeile.beginLayout();
    QTextLine einzige = zeile.createLine();
    zeile.endLayout();
    maler->save();
    maler->setClipRect(platz);
    const bool gewaehlt = zelle.state.testFlag(QStyle::State_Selected);
    const auto gruppe = zelle.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    maler->setPen(zelle.palette.color(gruppe, gewaehlt ? QPalette::HighlightedText : QPalette::Text));
    zeile.draw(maler, QPointF(platz.left(), platz.top() + (platz.height() - einzige.height()) / 2.0));
    maler->restore();
}
