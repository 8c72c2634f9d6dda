// What the tests of the file dialog share: a folder with three forms, the dialog on the screen, and short
// ways to its controls.
#pragma once

#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "filetools/dateidialog.h"
#include "filetools/frmDatei.h"
#include "filetools/laufwerksfeld.h"
#include "persistence/formulardatei.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programmordner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTextStream>

#include <memory>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

inline const QByteArray formular =
    "\"Feldkranz\"\r\n\"FK\"\r\n\"[FKINI]\"\r\n\"FK\"\r\n24\r\n4\r\n6\r\n\"\"\r\n";
inline const QByteArray testformular =
    "\"Feldkranz\"\r\n\"Test\"\r\n\"[HB-ALLGEMEINES]\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";

inline Dateiauswahl Auswahl(const std::string& titel) {
    return {titel,
            titel != "Öffnen",
            {"Feldkranz-Formular (*.FKR)", "Feldkranz-Formular (*.BAK)", "Alle Dateien (*.*)"},
            {"*.fkr", "*.bak", "*.ini", "*.*"},
            "*.FKR",
            Stand.AppPfad + "\\KRANZ",
            ""};
}

inline QString Text(std::string_view utf8) {
    return Anzeige(utf8);
}

class Dateifenster : public QObject {
protected:
    std::unique_ptr<Programmordner> programm_;
    std::unique_ptr<frmDatei> fenster_;

    void Zeigen(const std::string& titel = "Öffnen") { Zeigen(Auswahl(titel)); }
    void Zeigen(const Dateiauswahl& auswahl) {
        fenster_ = std::make_unique<frmDatei>(auswahl);
        fenster_->show();
        QVERIFY(QTest::qWaitForWindowExposed(fenster_.get()));
    }
    [[nodiscard]] QListWidget* Dateien() const {
        return Finden<QListWidget>(fenster_.get(), QStringLiteral("filDateiliste"));
    }
    [[nodiscard]] QListWidget* Ordner() const {
        return Finden<QListWidget>(fenster_.get(), QStringLiteral("dirVerzeichnisliste"));
    }
    [[nodiscard]] QLineEdit* Name() const {
        return Finden<QLineEdit>(fenster_.get(), QStringLiteral("txtDateiname"));
    }
    // The path chosen, "" for none.
    [[nodiscard]] std::string Gewaehlt() const { return fenster_->gewaehlt().value_or(""); }
    [[nodiscard]] QString Schild(const char* name) const {
        return Finden<QLabel>(fenster_.get(), QLatin1String(name))->text();
    }
    [[nodiscard]] QPushButton* Taste(const char* name) const {
        return Finden<QPushButton>(fenster_.get(), QLatin1String(name));
    }
    void Druecken(const char* name) const { QTest::mouseClick(Taste(name), Qt::LeftButton); }
    [[nodiscard]] static QStringList Eintraege(const QListWidget* liste) {
        QStringList texte;
        for (int i = 0; i < liste->count(); ++i) {
            texte << liste->item(i)->text();
        }
        return texte;
    }
    void Anklicken(QListWidget* liste, const QString& text, bool doppelt = false) const {
        const auto treffer = liste->findItems(text, Qt::MatchExactly);
        QCOMPARE(treffer.size(), 1);
        liste->scrollToItem(treffer.first());
        const QPoint stelle = liste->visualItemRect(treffer.first()).center();
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, stelle);
        if (doppelt) {
            QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, stelle);
        }
    }
    [[nodiscard]] QString Pfad(const QString& name) const {
        return Text(Stand.AppPfad) + QStringLiteral("\\KRANZ\\") + name;
    }

    void Einrichten() {
        OberflaecheEinrichten();
        programm_ = std::make_unique<Programmordner>();
    }
    void Anfangen() {
        QTRY_VERIFY(QDir(programm_->nativ(QStringLiteral("KRANZ"))).removeRecursively());
        programm_->schreiben(QStringLiteral("KRANZ/Abend.fkr"), formular);
        programm_->schreiben(QStringLiteral("KRANZ/LAGER.FKR"), formular);
        programm_->schreiben(QStringLiteral("KRANZ/ALT.BAK"), formular);
        Spiel.OptionDatei = false;
        Stand.FormTyp = Formart::Keine;
        Spiel.FelderGesamt = 30;
        Spiel.FragenProWissen = 5;
        Spiel.AnzahlWissen = 6;
    }
    void Aufraeumen() { fenster_.reset(); }
    void Beenden() { programm_.reset(); }
};
