#include "abbildinhalt.h"

#include "abbildzeile.h"
#include "core/oberflaeche.h"
#include "core/panel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextOption>
#include <QToolButton>

#include <algorithm>

namespace {

using abbild::Gefasst;

constexpr int hoechstensEintraege = 25;
constexpr int laengsteZeile = 32767; // the toolkit's own limit of a line

// One kind of control after the other; a control may be several of them.
template <class Art, class Schreiber>
void Falls(const QWidget& teil, const Schreiber& schreiber) {
    if (const auto* art = qobject_cast<const Art*>(&teil); art != nullptr) {
        schreiber(*art);
    }
}

QString Ausrichtung(Qt::Alignment ausrichtung) {
    return QStringLiteral("align=%1").arg(static_cast<int>(ausrichtung));
}

void Taste(const QAbstractButton& taste, QStringList& worte) {
    worte << QStringLiteral("text=") + Gefasst(taste.text());
    if (!taste.icon().isNull()) {
        worte << QStringLiteral("icon=") + abbild::Bild(taste.icon(), taste.iconSize());
    }
    if (taste.isCheckable()) {
        worte << (taste.isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked"));
    }
    if (!taste.shortcut().isEmpty()) {
        worte << QStringLiteral("key=") + taste.shortcut().toString();
    }
    if (taste.autoRepeat()) {
        worte << QStringLiteral("repeats");
    }
}

void Druckknopf(const QPushButton& taste, QStringList& worte) {
    if (taste.isDefault()) {
        worte << QStringLiteral("default");
    }
    if (taste.autoDefault()) {
        worte << QStringLiteral("autodefault");
    }
}

void Werkzeugknopf(const QToolButton& taste, QStringList& worte) {
    worte << QStringLiteral("style=%1").arg(static_cast<int>(taste.toolButtonStyle()));
    if (taste.arrowType() != Qt::NoArrow) {
        worte << QStringLiteral("arrow=%1").arg(static_cast<int>(taste.arrowType()));
    }
    if (taste.autoRaise()) {
        worte << QStringLiteral("flat");
    }
}

void Schild(const QLabel& schild, QStringList& worte) {
    worte << QStringLiteral("text=") + Gefasst(schild.text()) << Ausrichtung(schild.alignment());
    if (schild.wordWrap()) {
        worte << QStringLiteral("wraps");
    }
    if (const QPixmap bild = schild.pixmap(Qt::ReturnByValue); !bild.isNull()) {
        worte << QStringLiteral("picture=") + abbild::Bild(bild);
    }
    if (schild.buddy() != nullptr) {
        worte << QStringLiteral("buddy=") + abbild::Benannt(*schild.buddy());
    }
}

void Zeilenfeld(const QLineEdit& zeile, QStringList& worte) {
    worte << QStringLiteral("text=") + Gefasst(zeile.text()) << Ausrichtung(zeile.alignment());
    if (!zeile.placeholderText().isEmpty()) {
        worte << QStringLiteral("placeholder=") + Gefasst(zeile.placeholderText());
    }
    if (zeile.isReadOnly()) {
        worte << QStringLiteral("readonly");
    }
    if (zeile.hasSelectedText()) {
        worte << QStringLiteral("selection=%1").arg(zeile.selectionLength());
    }
    if (zeile.maxLength() != laengsteZeile) {
        worte << QStringLiteral("length=%1").arg(zeile.maxLength());
    }
}

void Mehrzeilenfeld(const QPlainTextEdit& feld, QStringList& worte) {
    worte << QStringLiteral("text=") + Gefasst(feld.toPlainText())
          << Ausrichtung(feld.document()->defaultTextOption().alignment())
          << QStringLiteral("margin=%1").arg(feld.document()->documentMargin())
          << QStringLiteral("wrap=%1").arg(static_cast<int>(feld.lineWrapMode()));
    if (!feld.placeholderText().isEmpty()) {
        worte << QStringLiteral("placeholder=") + Gefasst(feld.placeholderText());
    }
    if (feld.isReadOnly()) {
        worte << QStringLiteral("readonly");
    }
    if (const QTextCursor stelle = feld.textCursor(); stelle.hasSelection()) {
        worte << QStringLiteral("selection=%1").arg(stelle.selectionEnd() - stelle.selectionStart());
    }
    if (feld.tabChangesFocus()) {
        worte << QStringLiteral("tabmoves");
    }
}

void Flaeche(const Panel& panel, QStringList& worte) {
    worte << QStringLiteral("caption=") + Gefasst(panel.caption());
    if (panel.value() >= 0.0) {
        worte << QStringLiteral("value=%1").arg(panel.value(), 0, 'f', 1);
    }
    if (panel.grund() != Systemflaeche()) {
        worte << QStringLiteral("back=") + panel.grund().name(QColor::HexArgb);
    }
    if (panel.schrift() != panel.palette().color(QPalette::ButtonText)) {
        worte << QStringLiteral("front=") + panel.schrift().name();
    }
}

// The entries of a list or a table, the first ones of a long one.
QString Eintraege(const QAbstractItemModel& modell, const QModelIndex& wurzel, int spalte, int spalten) {
    QStringList texte;
    const int zeilen = modell.rowCount(wurzel);
    for (int zeile = 0; zeile < std::min(zeilen, hoechstensEintraege); ++zeile) {
        QStringList zellen;
        for (int i = spalte; i < spalte + spalten; ++i) {
            zellen << Gefasst(modell.index(zeile, i, wurzel).data().toString());
        }
        texte << zellen.join(u'|');
    }
    return QStringLiteral("entries=%1[%2]").arg(zeilen).arg(texte.join(u','));
}

void Klappliste(const QComboBox& liste, QStringList& worte) {
    worte << QStringLiteral("current=%1").arg(liste.currentIndex())
          << QStringLiteral("text=") + Gefasst(liste.currentText())
          << QStringLiteral("shows=%1").arg(liste.maxVisibleItems())
          << Eintraege(*liste.model(), liste.rootModelIndex(), liste.modelColumn(), 1);
    if (liste.isEditable()) {
        worte << QStringLiteral("editable");
    }
}

void Liste(const QAbstractItemView& liste, QStringList& worte) {
    if (liste.model() == nullptr || qobject_cast<const QHeaderView*>(&liste) != nullptr) {
        return;
    }
    worte << QStringLiteral("current=%1").arg(liste.currentIndex().row())
          << QStringLiteral("selected=%1").arg(liste.selectionModel()->selectedRows().size())
          << Eintraege(*liste.model(), liste.rootIndex(), 0, liste.model()->columnCount(liste.rootIndex()));
}

void Register(const QTabWidget& seiten, QStringList& worte) {
    QStringList reiter;
    for (int i = 0; i < seiten.count(); ++i) {
        reiter << Gefasst(seiten.tabText(i)) + (seiten.isTabEnabled(i) ? QString() : QStringLiteral("(off)"))
               << QStringLiteral("tip=") + Gefasst(seiten.tabToolTip(i));
    }
    worte << QStringLiteral("current=%1").arg(seiten.currentIndex())
          << QStringLiteral("tabs=%1[%2]").arg(seiten.count()).arg(reiter.join(u','));
}

} // namespace

namespace abbild {

QStringList Inhalt(const QWidget& teil) {
    QStringList worte;
    Falls<QAbstractButton>(teil, [&](const auto& art) { Taste(art, worte); });
    Falls<QPushButton>(teil, [&](const auto& art) { Druckknopf(art, worte); });
    Falls<QToolButton>(teil, [&](const auto& art) { Werkzeugknopf(art, worte); });
    Falls<QLabel>(teil, [&](const auto& art) { Schild(art, worte); });
    Falls<QLineEdit>(teil, [&](const auto& art) { Zeilenfeld(art, worte); });
    Falls<QPlainTextEdit>(teil, [&](const auto& art) { Mehrzeilenfeld(art, worte); });
    Falls<Panel>(teil, [&](const auto& art) { Flaeche(art, worte); });
    Falls<QComboBox>(teil, [&](const auto& art) { Klappliste(art, worte); });
    Falls<QAbstractItemView>(teil, [&](const auto& art) { Liste(art, worte); });
    Falls<QTabWidget>(teil, [&](const auto& art) { Register(art, worte); });
    Falls<QGroupBox>(teil, [&](const auto& art) { worte << QStringLiteral("text=") + Gefasst(art.title()); });
    return worte;
}

bool InSichGeschlossen(const QWidget& teil) {
    return qobject_cast<const QAbstractItemView*>(&teil) != nullptr ||
           qobject_cast<const QComboBox*>(&teil) != nullptr ||
           qobject_cast<const QLineEdit*>(&teil) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&teil) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&teil) != nullptr;
}

} // namespace abbild
