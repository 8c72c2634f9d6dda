// A random session at the real windows that somebody else kills: writes down after each change when it was
// and what the form was then. abwuergen.py kills it and looks at what is left. Usage, under
// mit_bildschirm.sh: abwuergen log seed
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "forms/formularpfad.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "persistence/formulardatei.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QTest>

#include <array>
#include <random>

namespace {

class Sitzung {
public:
    Sitzung(const QString& protokoll, unsigned saat) : wuerfel_(saat) {
        protokoll_.setFileName(protokoll);
        if (!protokoll_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            qFatal("no log");
        }
        form_ = programm_.NeuesQuizformular();
        FormularpfadMerken(Formart::Quiz, Stand.AppPfad + "\\KRANZ\\SITZUNG.FKR");
        FormStatusSetzen(false); // where its journal belongs
        Zeile(QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
              programm_.ordner().nativ(QStringLiteral("KRANZ")).toUtf8());
        Protokollieren();
    }

    void Weiter() {
        static constexpr std::array<void (Sitzung::*)(), 10> taten{
            &Sitzung::Tippen,  &Sitzung::Tippen,  &Sitzung::Tippen,     &Sitzung::Tippen, &Sitzung::Ablegen,
            &Sitzung::Ablegen, &Sitzung::Zurueck, &Sitzung::Wiederholt, &Sitzung::Leeren, &Sitzung::Sichern};
        (this->*taten.at(static_cast<std::size_t>(Zahl(0, 9))))();
        QTest::qWait(Zahl(1, 250)); // people pause, and the program works meanwhile
    }

private:
    int Zahl(int von, int bis) { return std::uniform_int_distribution(von, bis)(wuerfel_); }

    void Zeile(const QByteArray& zeile) { protokoll_.write(zeile + '\n'); }

    void Protokollieren() {
        const std::string bytes = FormularBytes(FK_Ablesen(), Spiel);
        const QByteArray summe = QCryptographicHash::hash(
            QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())), QCryptographicHash::Sha1);
        Zeile(QByteArray::number(QDateTime::currentMSecsSinceEpoch()) + ' ' + summe.toHex());
    }

    void Tippen() {
        Textfeld* feld = form_->txtFrage.at(static_cast<std::size_t>(Zahl(1, anzahlFelder)));
        feld->setFocus();
        Protokollieren(); // what was typed before reaches the stored copy
        for (int i = Zahl(1, 8); i > 0; --i) {
            QTest::keyClick(feld, static_cast<char>('a' + Zahl(0, 25)));
            Protokollieren();
        }
    }
    void Ablegen() {
        const int n = Zahl(1, anzahlFelder);
        if (FK_Frage(n).empty()) {
            FK_Ablegen(n, {Zugart::Auswahl, Formart::Keine, 0, "Frage " + std::to_string(Zahl(1, 999)), "A"});
            Protokollieren();
        }
    }
    void Zurueck() {
        RueckgaengigMachen();
        Protokollieren();
    }
    void Wiederholt() {
        Wiederholen();
        Protokollieren();
    }
    void Leeren() {
        FK_FragenLoeschen();
        Protokollieren();
        FK_FragenEinfuegen();
        Protokollieren();
    }
    void Sichern() {
        if (Zahl(0, 3) > 0) {
            return;
        }
        Dialogfolge dialoge;
        dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ SITZUNG.FKR ]"), QStringLiteral("Schön"));
        QTest::mouseClick(Finden(programm_.haupt(), QStringLiteral("cmdDateiFK(3)")), Qt::LeftButton);
        Protokollieren();
    }

    std::mt19937 wuerfel_;
    QFile protokoll_;
    Programm programm_;
    frmFKFragen* form_ = nullptr;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    if (argc < 3) {
        return 2;
    }
    Sitzung sitzung(QString::fromLocal8Bit(argv[1]), QByteArray(argv[2]).toUInt());
    for (;;) {
        sitzung.Weiter();
    }
}
