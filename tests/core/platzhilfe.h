// What a window shows: whether all of it can be seen, and nothing lies over anything.
#pragma once

#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTest>

// Controls that a user works with or reads, and that aren't part of another such control.
inline QList<QWidget*> Steuerelemente(const QWidget* fenster) {
    QList<QWidget*> teile;
    for (auto* w : fenster->findChildren<QWidget*>()) {
        const auto* schild = qobject_cast<QLabel*>(w);
        const bool art =
            qobject_cast<QAbstractButton*>(w) != nullptr || qobject_cast<QComboBox*>(w) != nullptr ||
            qobject_cast<QAbstractSpinBox*>(w) != nullptr || qobject_cast<QLineEdit*>(w) != nullptr ||
            qobject_cast<QAbstractItemView*>(w) != nullptr ||
            (schild != nullptr && !schild->text().trimmed().isEmpty());
        bool darin = false; // a spin box's line, a list's header, what scrolls
        for (const QWidget* v = w->parentWidget(); v != nullptr && v != fenster; v = v->parentWidget()) {
            darin = darin || qobject_cast<const QAbstractScrollArea*>(v) != nullptr ||
                    qobject_cast<const QComboBox*>(v) != nullptr ||
                    qobject_cast<const QAbstractSpinBox*>(v) != nullptr;
        }
        if (art && !darin && w->isVisible() && w->window() == fenster->window() &&
            !w->objectName().startsWith(QStringLiteral("qt_"))) {
            teile << w;
        }
    }
    return teile;
}

inline QByteArray Bezeichnet(const QWidget* teil) {
    const auto* taste = qobject_cast<const QAbstractButton*>(teil);
    const auto* schild = qobject_cast<const QLabel*>(teil);
    const QString text = taste != nullptr ? taste->text() : schild != nullptr ? schild->text() : QString();
    return (QLatin1String(teil->metaObject()->className()) + u' ' + teil->objectName() + u' ' + text)
        .toUtf8();
}

// A caption has the room that it asks for.
inline bool GanzZuLesen(const QWidget* teil) {
    const auto* taste = qobject_cast<const QAbstractButton*>(teil);
    if (taste != nullptr && !taste->text().isEmpty()) {
        const QString text = QString(taste->text()).remove(u'&').trimmed();
        return taste->fontMetrics().horizontalAdvance(text) <= taste->width();
    }
    const auto* schild = qobject_cast<const QLabel*>(teil);
    return schild == nullptr || schild->wordWrap() ||
           schild->fontMetrics().size(Qt::TextExpandTabs, QString(schild->text()).remove(u'&')).width() <=
               schild->width() + 1;
}

// The part of the window that a control fills; of a label it is the text.
inline QRect Gefuellt(const QWidget* teil, const QWidget* fenster) {
    QRect ort = teil->rect();
    if (const auto* schild = qobject_cast<const QLabel*>(teil); schild != nullptr) {
        ort = teil->style()->itemTextRect(schild->fontMetrics(), ort, static_cast<int>(schild->alignment()),
                                          true, QString(schild->text()).remove(u'&'));
    }
    return ort.translated(teil->mapTo(fenster, QPoint(0, 0)));
}

inline void NichtsVerdeckt(const QWidget* fenster, const QStringList& duerfenKuerzen = {}) {
    const QRect schirm = QRect(QPoint(0, 0), fenster->screen()->size());
    const QRect ort(fenster->mapToGlobal(QPoint(0, 0)), fenster->size());
    QVERIFY2(schirm.contains(ort), qPrintable(QStringLiteral("%1 at %2,%3 is %4 x %5")
                                                  .arg(fenster->objectName())
                                                  .arg(ort.x())
                                                  .arg(ort.y())
                                                  .arg(ort.width())
                                                  .arg(ort.height())));
    const QList<QWidget*> teile = Steuerelemente(fenster);
    QVERIFY(!teile.isEmpty());
    for (const QWidget* teil : teile) {
        const QRect hier = Gefuellt(teil, fenster);
        if (!teil->isEnabled() && !fenster->rect().intersects(hier)) {
            continue; // an answer that isn't offered
        }
        QVERIFY2(fenster->rect().contains(hier), Bezeichnet(teil));
        QVERIFY2(GanzZuLesen(teil) || duerfenKuerzen.contains(teil->objectName()), Bezeichnet(teil));
        for (const QWidget* anderes : teile) {
            const QRect dort = Gefuellt(anderes, fenster);
            QVERIFY2(teil == anderes || teil->isAncestorOf(anderes) || anderes->isAncestorOf(teil) ||
                         !hier.intersects(dort),
                     Bezeichnet(teil) + " / " + Bezeichnet(anderes));
        }
    }
}
