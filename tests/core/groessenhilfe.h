// What the tests of the forms' sizes share: a main window of a size, the geometry of a form as a list, where
// a form lies in the child area.
#pragma once

#include "core/massfenster.h"
#include "core/panel.h"
#include "core/textfeld.h"
#include "mainwindow/frmMDI.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTest>

// Waits until the window manager has given the size and no longer takes it back.
inline void HauptfensterGroesse(const Programm& programm, QSize groesse) {
    frmMDI* haupt = programm.haupt();
    int still = 0;
    haupt->showNormal();
    QVERIFY(WartenBis([&] {
        const bool steht = !haupt->isMaximized() && haupt->size() == groesse;
        still = steht ? still + 1 : 0;
        if (!steht) {
            haupt->resize(groesse);
        }
        return still > 3;
    }));
}

inline int Prozent(const Massfenster* form) {
    return form->massstab().prozent();
}

inline QWidget* Rahmen(const QWidget* form) {
    return qobject_cast<QMdiSubWindow*>(form->parentWidget());
}

// The whole frame lies in the child area, which then needs no scroll bars.
inline bool GanzZuSehen(const Programm& programm, const QWidget* form) {
    const QMdiArea* flaeche = programm.haupt()->Kindflaeche();
    return flaeche->viewport()->rect().contains(Rahmen(form)->geometry()) &&
           flaeche->horizontalScrollBar()->maximum() == flaeche->horizontalScrollBar()->minimum() &&
           flaeche->verticalScrollBar()->maximum() == flaeche->verticalScrollBar()->minimum();
}

// Place, size and font of each control with a name, one line each.
inline QStringList Anordnung(const QWidget* form) {
    QStringList zeilen;
    QList<const QWidget*> teile{form};
    for (const QWidget* teil : form->findChildren<QWidget*>()) {
        teile << teil;
    }
    for (const QWidget* teil : std::as_const(teile)) {
        if (!teil->objectName().isEmpty() && !teil->objectName().startsWith(QStringLiteral("qt_"))) {
            const QRect ort = teil->geometry();
            zeilen << QStringLiteral("%1 %2,%3 %4x%5 %6")
                          .arg(teil->objectName())
                          .arg(teil == form ? 0 : ort.x())
                          .arg(teil == form ? 0 : ort.y())
                          .arg(ort.width())
                          .arg(ort.height())
                          .arg(teil->font().toString());
        }
    }
    return zeilen;
}

inline QAction* Groesseneintrag(const Programm& programm, int nummer) {
    return Finden<QAction>(programm.haupt(), QStringLiteral("mExtra"), nummer);
}

inline QString Hilfezeile(const Programm& programm) {
    return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption();
}

// Steps by the key until the form has that size, a full ten.
inline void Stellen(const Massfenster* form, int prozent) {
    for (int i = 0; i < 20 && Prozent(form) != prozent; ++i) {
        const int davor = Prozent(form);
        maus::Taste(davor < prozent ? QStringLiteral("ctrl+plus") : QStringLiteral("ctrl+minus"));
        QTRY_VERIFY(Prozent(form) != davor);
    }
    QCOMPARE(Prozent(form), prozent);
}

// The parts that lie on another one, or stick out of the form, of those that show and are made to lie apart.
inline QStringList Ueberdeckungen(const QWidget* form, const QList<QWidget*>& teile) {
    QStringList worte;
    for (qsizetype i = 0; i < teile.size(); ++i) {
        if (!form->rect().contains(teile.at(i)->geometry()) || teile.at(i)->geometry().isEmpty()) {
            worte << teile.at(i)->objectName() + QStringLiteral(" out of the form");
        }
        for (qsizetype k = 0; k < i; ++k) {
            if (teile.at(i)->geometry().intersects(teile.at(k)->geometry())) {
                worte << teile.at(i)->objectName() + QStringLiteral(" on ") + teile.at(k)->objectName();
            }
        }
    }
    return worte;
}
