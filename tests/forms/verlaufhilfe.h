// What the tests of undo share: its keys, its menu entries, and what the form shows as one text.
#pragma once

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAction>
#include <QTest>

inline QAction* Eintrag(int nummer) {
    return Finden<QAction>(Hauptfenster(), QStringLiteral("mExtra"), nummer);
}

// The entries as the menu shows them; one out of use in brackets.
inline QString Extras() {
    QStringList texte;
    for (const int nummer : {1, 2}) {
        const QAction* eintrag = Eintrag(nummer);
        QString text = eintrag->text();
        text.remove(QLatin1Char('&'));
        texte << (eintrag->isEnabled() ? text : QLatin1Char('(') + text + QLatin1Char(')'));
    }
    return texte.join(QStringLiteral(" | "));
}

inline void Zurueck() {
    maus::Taste(QStringLiteral("ctrl+z"));
}

inline void Vor() {
    maus::Taste(QStringLiteral("ctrl+y"));
}

inline bool Rot() {
    const bool rot = Finden(Hauptfenster(), QStringLiteral("picEingabeFlagRot"))->isVisible();
    const bool gruen = Finden(Hauptfenster(), QStringLiteral("picEingabeFlagGruen"))->isVisible();
    return rot && !gruen && Stand.FormGeaendert;
}

inline bool Gruen() {
    const bool rot = Finden(Hauptfenster(), QStringLiteral("picEingabeFlagRot"))->isVisible();
    const bool gruen = Finden(Hauptfenster(), QStringLiteral("picEingabeFlagGruen"))->isVisible();
    return gruen && !rot && !Stand.FormGeaendert;
}

// Enters a box as a user does, by a click.
inline void Betreten(QWidget* feld) {
    maus::Klicken(feld);
    QTRY_VERIFY(feld->hasFocus());
}
