// What the tests of the quiz form's window share: reading its cells, choosing in its lists, typing.
#pragma once

#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spezialfelder.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractItemView>
#include <QTest>

#include <vector>

inline std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

inline std::vector<int> SichtbareZellen(const frmFKFragen* form) {
    std::vector<int> zellen;
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (form->txtFrage.at(Nr(n))->isVisible()) {
            zellen.push_back(n);
        }
    }
    return zellen;
}

// Clicks the panel and chooses the entry in the open list with the keyboard, as a user would.
inline void SpezialWaehlen(frmFKFragen* form, int n, int eintrag) {
    QTest::mouseClick(form->pnlSpezial.at(Nr(n)), Qt::LeftButton);
    QTRY_VERIFY(form->cmbSpezial->isVisible());
    QAbstractItemView* liste = form->cmbSpezial->view();
    QTRY_VERIFY(liste->isVisible());
    liste->setCurrentIndex(form->cmbSpezial->model()->index(eintrag, 0));
    QTest::keyClick(liste, Qt::Key_Return);
    QTRY_VERIFY(!form->cmbSpezial->isVisible());
}

inline void Tippen(Textfeld* feld, const QString& text) {
    feld->setFocus();
    QTRY_VERIFY(feld->hasFocus());
    QTest::keyClicks(feld, text);
}

inline QColor Grund(const Textfeld* feld) {
    return feld->palette().color(QPalette::Base);
}

inline QColor Miniatur(const Programm& programm, int n) {
    return Finden(programm.haupt(), QStringLiteral("picJoker"), n)->palette().color(QPalette::Window);
}
