// What the tests of the window that fills a form share: opening it as a user does, and reading its picture of
// the form.
#pragma once

#include "core/formularfenster.h"
#include "core/oberflaeche.h"
#include "filling/vorschlagfeld.h"
#include "search/fragendienst.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include <optional>
#include <string>

inline const QString fuellfenster = QStringLiteral("frmFuellen");

// By its key; comes back when the catalogue is read.
inline QWidget* FuellenOeffnen() {
    maus::Taste(QStringLiteral("ctrl+b"));
    QWidget* fenster = FensterAbwarten(fuellfenster);
    [fenster] { QTRY_VERIFY(Finden(fenster, QStringLiteral("cmdVorschlag"))->isEnabled()); }();
    return fenster;
}

inline void Druecken(QWidget* fenster, const char* taste) {
    maus::Klicken(Finden(fenster, QLatin1String(taste)));
}

inline QString Ergebnis(const QWidget* fenster) {
    return Finden<QLabel>(fenster, QStringLiteral("lblErgebnis"))->text();
}

inline Vorschlagfeld* Bildfeld(const QWidget* fenster, int n) {
    return Finden<Vorschlagfeld>(fenster, QStringLiteral("picVorschlag"), n);
}

inline int Vorgeschlagene(const QWidget* fenster) {
    int anzahl = 0;
    for (const Vorschlagfeld* feld : fenster->findChildren<Vorschlagfeld*>()) {
        anzahl += int(feld->inhalt().art == Vorschlagfeld::Art::Vorgeschlagen);
    }
    return anzahl;
}

// The question of that text in the catalogue.
inline std::optional<Katalogfrage> Katalogeintrag(const std::string& frage) {
    const auto& bestand = *Fragen().bestand();
    for (std::size_t nr = 0; nr < bestand.anzahl(); ++nr) {
        if (bestand.frage(nr).frage == frage) {
            return bestand.frage(nr);
        }
    }
    return std::nullopt;
}
