// What the tests of the settings dialog share: the dialog opened from the toolbar over the real quiz form and
// left by one of its buttons, and short ways to its controls.
#pragma once

#include "core/panel.h"
#include "dialogs/meldung.h"
#include "settings/frmIni.h"
#include "tests/quizform/formhilfe.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <functional>

inline const QString verwerfenTitel = QStringLiteral("Vorgaben für Feldkranz");
inline const QString verwerfenFrage =
    QStringLiteral("Evtl. veränderte Vorgaben werden wieder verworfen.\nIst das so in Ordnung ?");

using Arbeit = std::function<void(QDialog&, Dialogfolge&)>;

// Opens the dialog, does the work on it, and presses the buttons named.
inline void ImDialog(const Programm& programm, const Arbeit& arbeit, const QStringList& tasten,
                     Stelle stelle = Stelle::hier()) {
    Dialogfolge dialoge(stelle);
    dialoge.erwarte({QStringLiteral("frmIni"), QStringLiteral(" Vorgaben"), std::nullopt, tasten,
                     [&](QDialog& dialog) { arbeit(dialog, dialoge); }},
                    stelle);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdIni")), Qt::LeftButton);
    QVERIFY(dialoge.fertig());
}

inline void MitOK(const Programm& programm, const Arbeit& arbeit, Stelle stelle = Stelle::hier()) {
    ImDialog(programm, arbeit, {QStringLiteral("cmdEinOK")}, stelle);
}

// Cancelled, and the question about it answered Ja.
inline void MitAbbrechen(const Programm& programm, const Arbeit& arbeit, Stelle stelle = Stelle::hier()) {
    ImDialog(
        programm,
        [&](QDialog& dialog, Dialogfolge& dialoge) {
            arbeit(dialog, dialoge);
            dialoge.frage(verwerfenTitel, verwerfenFrage, 6, stelle);
        },
        {QStringLiteral("cmdAbbrechen")}, stelle);
}

inline void Druecke(const QDialog& dialog, const char* name) {
    QTest::mouseClick(Finden(&dialog, QLatin1String(name)), Qt::LeftButton);
}

inline void DruckeWahl(const QDialog& dialog, const QString& name) {
    auto* wahl = Finden<QAbstractButton>(&dialog, name);
    // The mark itself: behind the caption a click would go astray.
    QTest::mouseClick(wahl, Qt::LeftButton, {}, QPoint(8, wahl->height() / 2));
}

inline void Drehe(const QDialog& dialog, const QString& spin, int art, bool hoch) {
    QTest::mouseClick(Finden<QToolButton>(Finden(&dialog, spin, art),
                                          hoch ? QStringLiteral("hoch") : QStringLiteral("runter")),
                      Qt::LeftButton);
}

inline QString Zahl(const QDialog& dialog, const QString& panel) {
    return Finden<Panel>(&dialog, panel)->caption();
}

// The five numbers of a row of panels.
inline QStringList Zahlen(const QDialog& dialog, const QString& feld) {
    QStringList zahlen;
    for (int art = 0; art < 5; ++art) {
        zahlen << Finden<Panel>(&dialog, feld, art)->caption();
    }
    return zahlen;
}

inline void Register(const QDialog& dialog, int index) {
    QTabBar* reiter = Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"))->tabBar();
    QTest::mouseClick(reiter, Qt::LeftButton, {}, reiter->tabRect(index).center());
    QVERIFY(Finden(&dialog, QStringLiteral("pnlIni"), index)->isVisible());
}

// A board full of questions and answers, merged.
inline void BrettFuellen(frmFKFragen* form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n));
        form->txtAntwort.at(Nr(n))->setText("Antwort " + std::to_string(n));
    }
    FK_Merken();
    FK_FelderFaerben();
}

inline void Form(int fragen, int wissen, bool maxFelder, bool maxWissen) {
    Spiel.FragenProWissen = static_cast<std::int16_t>(fragen);
    Spiel.AnzahlWissen = static_cast<std::int16_t>(wissen);
    Spiel.OptionMaxFelder = maxFelder;
    Spiel.OptionMaxWissen = maxWissen;
}
