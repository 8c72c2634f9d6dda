#include "abbildzeile.h"

#include "abbildinhalt.h"
#include "tooltips/hinweise.h"

#include <QCursor>
#include <QFrame>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <array>
#include <utility>

namespace {

using abbild::Gefasst;

const QWidget* Umgebung(const QWidget& teil, bool wurzel) {
    return wurzel || teil.isWindow() ? nullptr : teil.parentWidget();
}

QString Schriftart(const QFont& schrift) {
    QString text = QStringLiteral("%1,%2px").arg(schrift.family()).arg(schrift.pixelSize());
    text += schrift.bold() ? QStringLiteral(",bold") : QString();
    text += schrift.italic() ? QStringLiteral(",italic") : QString();
    if (schrift.wordSpacing() != 0.0) {
        text += QStringLiteral(",words%1").arg(schrift.wordSpacing(), 0, 'f', 2);
    }
    return text;
}

QString Focusart(Qt::FocusPolicy art) {
    switch (art) {
    case Qt::NoFocus:
        return {};
    case Qt::TabFocus:
        return QStringLiteral("tab");
    case Qt::ClickFocus:
        return QStringLiteral("click");
    case Qt::StrongFocus:
        return QStringLiteral("strong");
    case Qt::WheelFocus:
        return QStringLiteral("wheel");
    }
    return QStringLiteral("?");
}

void Zustand(const QWidget& teil, QStringList& worte) {
    if (teil.isHidden()) {
        worte << QStringLiteral("hidden");
    }
    if (!teil.isEnabled()) {
        worte << QStringLiteral("disabled");
    }
    if (teil.acceptDrops()) {
        worte << QStringLiteral("drop");
    }
    if (const QString focus = Focusart(teil.focusPolicy()); !focus.isEmpty()) {
        worte << QStringLiteral("focus=") + focus;
    }
    if (teil.focusProxy() != nullptr) {
        worte << QStringLiteral("proxy=") + abbild::Benannt(*teil.focusProxy());
    }
    if (teil.testAttribute(Qt::WA_SetCursor)) {
        worte << QStringLiteral("cursor=%1").arg(static_cast<int>(teil.cursor().shape()));
    }
    if (const auto* rahmen = qobject_cast<const QFrame*>(&teil);
        rahmen != nullptr && rahmen->frameShape() != QFrame::NoFrame) {
        worte << QStringLiteral("frame=%1").arg(rahmen->frameStyle());
    }
}

// What the pointer and a screen reader are told.
void Auskunft(QWidget& teil, QStringList& worte) {
    if (HinweisstelleVon(&teil).element == &teil) {
        worte << QStringLiteral("tip=") + Gefasst(teil.toolTip());
        worte << QStringLiteral("title=") + Gefasst(Hinweistitel(teil));
        worte << QStringLiteral("status=") + Gefasst(Hinweisstatus(teil));
    }
    if (!teil.statusTip().isEmpty()) {
        worte << QStringLiteral("statustip=") + Gefasst(teil.statusTip());
    }
    if (!teil.accessibleName().isEmpty()) {
        worte << QStringLiteral("says=") + Gefasst(teil.accessibleName());
    }
    if (teil.accessibleDescription() != teil.toolTip()) {
        worte << QStringLiteral("describes=") + Gefasst(teil.accessibleDescription());
    } else if (!teil.toolTip().isEmpty()) {
        worte << QStringLiteral("describes=tip");
    }
}

// The colours of a window in use, whether it has the keyboard just now or not.
void Aussehen(const QWidget& teil, bool wurzel, QStringList& worte) {
    const QWidget* umgebung = Umgebung(teil, wurzel);
    if (umgebung == nullptr || Schriftart(umgebung->font()) != Schriftart(teil.font())) {
        worte << QStringLiteral("font=") + Schriftart(teil.font());
    }
    constexpr std::array rollen{std::pair{QPalette::Window, "window"}, std::pair{QPalette::Base, "base"},
                                std::pair{QPalette::Text, "text"},
                                std::pair{QPalette::WindowText, "windowtext"}};
    for (const auto& [rolle, name] : rollen) {
        const QColor farbe = teil.palette().color(QPalette::Active, rolle);
        if (umgebung == nullptr || umgebung->palette().color(QPalette::Active, rolle) != farbe) {
            worte << QStringLiteral("%1=%2").arg(QLatin1String(name), farbe.name());
        }
    }
}

// A window of the desktop stands where the window manager likes.
QString Platz(const QWidget& teil) {
    const QString groesse = abbild::Groesse(teil.size());
    return teil.isWindow() ? groesse : QStringLiteral("%1,%2 %3").arg(teil.x()).arg(teil.y()).arg(groesse);
}

} // namespace

namespace abbild {

QString Zeile(QWidget& teil, bool wurzel) {
    QStringList worte{QLatin1String(teil.metaObject()->className()),
                      teil.objectName().isEmpty() ? QStringLiteral("-") : teil.objectName(), Platz(teil)};
    Zustand(teil, worte);
    worte << Inhalt(teil);
    Auskunft(teil, worte);
    Aussehen(teil, wurzel, worte);
    return worte.join(u' ');
}

QString Gefasst(const QString& text) {
    QString gefasst(u'"');
    for (const QChar zeichen : text) {
        if (zeichen == u'\n') {
            gefasst += QStringLiteral("\\n");
        } else if (!zeichen.isPrint() || (zeichen.isSpace() && zeichen != u' ')) {
            gefasst += QStringLiteral("\\u%1").arg(zeichen.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            gefasst += zeichen;
        }
    }
    return gefasst + u'"';
}

QString Bild(const QPixmap& bild) {
    if (bild.isNull()) {
        return QStringLiteral("none");
    }
    const QImage punkte = bild.toImage().convertToFormat(QImage::Format_ARGB32);
    const QByteArrayView bytes(punkte.constBits(), punkte.sizeInBytes());
    return Groesse(bild.size()) + u'#' + QStringLiteral("%1").arg(qChecksum(bytes), 4, 16, QLatin1Char('0'));
}

// An oblong one is a word that the program has drawn itself, with whatever smoothing the machine likes.
QString Bild(const QIcon& zeichen, QSize groesse) {
    const QPixmap bild = zeichen.pixmap(groesse, 1.0);
    return bild.width() == bild.height() ? Bild(bild) : Groesse(bild.size());
}

QString Groesse(QSize groesse) {
    return QStringLiteral("%1x%2").arg(groesse.width()).arg(groesse.height());
}

QString Benannt(const QObject& objekt) {
    return objekt.objectName().isEmpty() ? u'<' + QLatin1String(objekt.metaObject()->className()) + u'>'
                                         : objekt.objectName();
}

} // namespace abbild
