// What the tests of the list of forms share: the running program with forms of known numbers in its two
// folders, the list on the screen, and the real mouse on its rows.
#pragma once

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "testform/testformular.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

// A quiz form with a text in its first cell, of a board of that shape.
inline QByteArray Quizdatei(const QByteArray& frage, int gesamt = 30, int jeGebiet = 5, int gebiete = 6) {
    QByteArray bytes = "\"Feldkranz\"\r\n\"FK\"\r\n\"[FKINI]\"\r\n\"FK\"\r\n" + QByteArray::number(gesamt) +
                       "\r\n" + QByteArray::number(jeGebiet) + "\r\n" + QByteArray::number(gebiete) +
                       "\r\n\"\"\r\n\"[FRAGEN]\"\r\n";
    for (int gebiet = 1; gebiet <= 6; ++gebiet) {
        bytes += "\"Wissen\"\r\n";
        for (int reihe = 1; reihe <= 5; ++reihe) {
            bytes += '"' + (gebiet == 1 && reihe == 1 ? frage : QByteArray()) + "\"\r\n\"\"\r\n\"\"\r\n";
        }
    }
    return bytes;
}

inline QByteArray Testdatei(const QByteArray& frage) {
    QByteArray bytes =
        "\"Feldkranz\"\r\n\"Test\"\r\n\"[HB-ALLGEMEINES]\"\r\n\" TEST  HFZ\"\r\n\" Fach\"\r\n\"\"\r\n"
        "\"[HB-FRAGEN]\"\r\n\" Fach\"\r\n";
    for (int reihe = 1; reihe <= 10; ++reihe) {
        bytes += '"' + (reihe == 1 ? frage : QByteArray()) + "\"\r\n\"\"\r\n0\r\n";
    }
    return bytes + "0\r\n";
}

inline QString Vorschau(int gesamt, int gebiete, int jeGebiet) {
    return QStringLiteral("Fragen gesamt    : %1\nWissensgebiete  :   %2\nFragen je WG     :   %3")
        .arg(gesamt)
        .arg(gebiete)
        .arg(jeGebiet);
}

class Listenlauf {
public:
    // The program with its list as at the start, KRANZ and TEST emptied first.
    Listenlauf() {
        for (const char* name : {"KRANZ", "TEST"}) {
            QDir ordner(programm_.ordner().nativ(QLatin1String(name)));
            for (const QString& datei : ordner.entryList(QDir::Files)) {
                ordner.remove(datei);
            }
        }
        (void)WartenBis([] { return Namen().isEmpty(); });
    }

    [[nodiscard]] Programm& programm() { return programm_; }
    [[nodiscard]] static frmFKformulare* Fenster() { return FormularlisteOffen(); }
    [[nodiscard]] static QListWidget* Liste() {
        return Finden<QListWidget>(Fenster(), QStringLiteral("filDateiliste"));
    }
    [[nodiscard]] static QString Info() {
        return Finden<QLabel>(Fenster(), QStringLiteral("lblDateiInfo"))->text();
    }
    [[nodiscard]] static QWidget* Taste(const char* name) { return Finden(Fenster(), QLatin1String(name)); }
    [[nodiscard]] static QString Status() {
        return Finden(MDIFenster(), QStringLiteral("pnlHilfe"))->property("caption").toString();
    }
    [[nodiscard]] static QStringList Namen() {
        QStringList namen;
        for (int i = 0; i < Liste()->count(); ++i) {
            namen << Liste()->item(i)->text();
        }
        return namen;
    }
    [[nodiscard]] static QString Markiert() {
        const auto markierte = Liste()->selectedItems();
        return markierte.isEmpty() ? QString() : markierte.first()->text();
    }

    // Writes a file beneath the program folder and waits until the list shows what it should.
    void Schreiben(const QString& darunter, const QByteArray& bytes) const {
        programm_.ordner().schreiben(darunter, bytes);
    }
    void Anlegen(const QString& darunter, const QByteArray& bytes, Stelle stelle = Stelle::hier()) const {
        Schreiben(darunter, bytes);
        const QString name = darunter.section(QLatin1Char('/'), -1);
        if (!WartenBis([&name] { return Namen().contains(name); })) {
            Versagen(name + QStringLiteral(" never came into the list"), stelle);
        }
    }
    [[nodiscard]] QByteArray Lesen(const QString& darunter) const {
        return programm_.ordner().lesen(darunter);
    }

    // Where a name stands in the list, for the mouse.
    [[nodiscard]] static QPoint Ort(const QString& name, Stelle stelle = Stelle::hier()) {
        const auto treffer = Liste()->findItems(name, Qt::MatchExactly);
        if (treffer.size() != 1) {
            VersagenUndEnde(name + QStringLiteral(" isn't in the list"), stelle);
        }
        Liste()->scrollToItem(treffer.first());
        return Liste()->visualItemRect(treffer.first()).center();
    }
    // Folded, because it lay over the form, the list comes up by its title.
    static void Aufklappen(Stelle stelle = Stelle::hier()) {
        QCoreApplication::processEvents();
        if (!Fenster()->isVisible()) {
            maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdListentitel")), Qt::NoModifier, {}, stelle);
            if (!WartenBis([] { return Fenster()->isActiveWindow(); })) {
                Versagen(QStringLiteral("The list didn't come up"), stelle);
            }
        }
    }
    static void Anklicken(const QString& name, Stelle stelle = Stelle::hier()) {
        Aufklappen(stelle);
        maus::Klicken(Liste()->viewport(), Qt::NoModifier, Ort(name, stelle), stelle);
    }
    static void Doppelklicken(const QString& name, Stelle stelle = Stelle::hier()) {
        Aufklappen(stelle);
        maus::DoppeltDruecken(Liste()->viewport(), Ort(name, stelle), stelle);
    }
    static void Druecken(const char* name, Stelle stelle = Stelle::hier()) {
        Aufklappen(stelle);
        QWidget* taste = Taste(name);
        // On the mark of a choice: behind its caption a click would go astray.
        const bool wahl = QString::fromLatin1(name).startsWith(QStringLiteral("opt"));
        maus::Klicken(taste, Qt::NoModifier, wahl ? QPoint(8, taste->height() / 2) : taste->rect().center(),
                      stelle);
    }

private:
    Programm programm_;
};
