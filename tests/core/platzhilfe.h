// What a window shows: whether all of it can be seen, and nothing lies over anything.
#pragma once

#include "mainwindow/frmMDI.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTabWidget>
#include <QTest>

#include <functional>

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

// A row a window of the Extras menu: the entry that opens it, and its name.
inline void ExtrasfensterZeilen() {
    QTest::addColumn<QString>("befehl");
    QTest::addColumn<QString>("name");
    QTest::newRow("search") << QStringLiteral("mExtra(4)") << QStringLiteral("frmSuche");
    QTest::newRow("filling") << QStringLiteral("mExtra(5)") << QStringLiteral("frmFuellen");
    QTest::newRow("check") << QStringLiteral("mExtra(6)") << QStringLiteral("frmPruefung");
    QTest::newRow("preview") << QStringLiteral("mExtra(8)") << QStringLiteral("frmVorschau");
}

// Opens the one of the present row over a new quiz form.
inline QWidget* ExtrasfensterOeffnen(Programm& programm) {
    QFETCH(const QString, befehl);
    QFETCH(const QString, name);
    programm.NeuesQuizformular();
    MDIFenster()->findChild<QAction*>(befehl)->trigger();
    return FensterAbwarten(name);
}

// Opens the settings over a new quiz form and shows each page once.
inline void VorgabenAnsehen(const std::function<void(QDialog&)>& ansehen) {
    Programm programm;
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmIni"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdEinOK")},
                     [&ansehen](QDialog& dialog) {
                         auto* blatt = Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"));
                         for (int i = 0; i < blatt->count(); ++i) {
                             blatt->setCurrentIndex(i);
                             ansehen(dialog);
                         }
                     }});
    Finden<QAbstractButton>(MDIFenster(), QStringLiteral("cmdIni"))->click();
    QVERIFY(dialoge.fertig());
}
