// What the tests of the test form share: filling rows, reading colours, the texts of its questions.
#pragma once

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QTest>

inline const QString neuTitel = QStringLiteral("Neues Test-Formular");
inline const QString neuFrage = QStringLiteral("Ich besorge dir ein neues Test-Formular !");
inline const QString neuSpeichernFrage =
    QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?");
inline const QString schliessenTitel = QStringLiteral("Formular schließen");

inline std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

// A row with its texts, merged; the form counts as saved.
inline void Fuellen(frmHBFragen* form, int n, const char* frage, const char* antwort) {
    form->txtFrage.at(Nr(n))->setText(frage);
    form->txtAntwort.at(Nr(n))->setText(antwort);
    HB_Merken();
    FormStatusSetzen(false);
}

inline QColor Grund(const Textfeld* feld) {
    return feld->palette().color(QPalette::Base);
}

inline QString Summenfeld(const Programm& programm) {
    return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHBPun"))->caption();
}

// Presses a button of the main window that must be in reach.
inline void Druecken(const Programm& programm, const QString& name) {
    auto* taste = Finden<QAbstractButton>(programm.haupt(), name);
    QVERIFY2(taste->isVisible() && taste->isEnabled(), qPrintable(name));
    QTest::mouseClick(taste, Qt::LeftButton);
}

// Clicks one of the two halves of a row's spin control.
inline void Drehen(frmHBFragen* form, int n, const char* richtung, int oft = 1) {
    auto* taste = form->spnPunkte.at(Nr(n))->findChild<QAbstractButton*>(QLatin1String(richtung));
    QVERIFY(taste != nullptr);
    for (int i = 0; i < oft; ++i) {
        QTest::mouseClick(taste, Qt::LeftButton);
    }
}

// Opens a list of the head by its button or its panel and chooses an entry with the keyboard.
inline void KopfWaehlen(const Kopfwahl& wahl, const QString& text, bool mitTaste) {
    QTest::mouseClick(mitTaste ? static_cast<QWidget*>(wahl.taste) : wahl.panel, Qt::LeftButton);
    QTRY_VERIFY(wahl.liste->view()->isVisible());
    QVERIFY(!wahl.panel->isVisible());
    const int stelle = wahl.liste->findText(text);
    QVERIFY2(stelle >= 0, qPrintable(text));
    wahl.liste->view()->setCurrentIndex(wahl.liste->model()->index(stelle, 0));
    QTest::keyClick(wahl.liste->view(), Qt::Key_Return);
    QTRY_VERIFY(!wahl.liste->isVisible());
    QVERIFY(wahl.panel->isVisible());
}
