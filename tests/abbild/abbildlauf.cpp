#include "abbildlauf.h"

#include "abbildschritte.h"
#include "mainwindow/frmMDI.h"
#include "quizform/frmFKFragen.h"
#include "testform/frmHBFragen.h"
#include "tests/hilfe/finden.h"

#include <QAbstractButton>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QTest>

namespace {

constexpr QSize hauptgroesse(1280, 940);
constexpr int listenplaetze = 20;

// Lists as the catalogue's folder holds them: a header and twenty places.
QByteArray Liste(const QString& kopf, const QStringList& namen) {
    QStringList zeilen{kopf};
    zeilen << namen;
    while (zeilen.size() <= listenplaetze) {
        zeilen << QString();
    }
    return (zeilen.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toLatin1();
}

QByteArray Unterliste(const QString& kopf, const QStringList& namen) {
    QStringList zeilen;
    for (const QString& name : namen) {
        zeilen << u'"' + name + u'"';
    }
    while (zeilen.size() < listenplaetze) {
        zeilen << QStringLiteral("\"\"");
    }
    return Liste(kopf, zeilen);
}

const QStringList themen{
    QStringLiteral("A-Z"),        QStringLiteral("Aktuelles"),      QStringLiteral("Altes Testament"),
    QStringLiteral("Geschichte"), QStringLiteral("Häuptlingsbuch"), QStringLiteral("Land"),
    QStringLiteral("Natur"),      QStringLiteral("Sprüche"),        QStringLiteral("Tiere")};

const QByteArray haustiere = "Haustiere\r\n1\r\nWer f\xE4ngt M\xE4use?\r\nDie Katze\r\n1\r\n"
                             "2\r\nWelches Tier bewacht den Hof und bellt, wenn Fremde kommen?\r\n"
                             "Der Hund\r\n2\r\n3\r\nWer gibt Milch?\r\nKuh, Ziege und Schaf\r\n3\r\n";

// Waits until the window manager has given the size and no longer takes it back.
void Festlegen(QWidget* haupt) {
    constexpr int dauer = 6; // looks in a row
    int still = 0;
    haupt->showNormal();
    const bool fest = WartenBis([&] {
        const bool steht = !haupt->isMaximized() && haupt->size() == hauptgroesse;
        still = steht ? still + 1 : 0;
        if (!steht) {
            haupt->resize(hauptgroesse);
        }
        return still > dauer;
    });
    if (!fest) {
        VersagenUndEnde(QStringLiteral("The main window never took its size"), Stelle::hier());
    }
}

} // namespace

Abbildlauf::Abbildlauf() {
    QCursor::setPos(haupt()->screen()->geometry().bottomRight());
    DateienTauschen();
    Festlegen(haupt());
}

QWidget* Abbildlauf::haupt() const {
    return programm_.haupt();
}

// What is delivered may change; what these tests show may not.
void Abbildlauf::DateienTauschen() const {
    const Programmordner& ordner = programm_.ordner();
    QDir(ordner.nativ(QStringLiteral("WISSEN"))).removeRecursively();
    for (const char* name : {"KRANZ", "TEST"}) { // the folders stay: the list of forms watches them
        QDir formulare(ordner.nativ(QLatin1String(name)));
        for (const QString& datei : formulare.entryList(QDir::Files)) {
            formulare.remove(datei);
        }
    }
    ordner.schreiben(QStringLiteral("WISSEN/WISSEN.TXT"), Liste(QStringLiteral("Wissensgebiete"), themen));
    ordner.schreiben(
        QStringLiteral("WISSEN/TIERE/W_TIERE.TXT"),
        Unterliste(QStringLiteral("Tiere"), {QStringLiteral("Haustiere"), QStringLiteral("Vögel")}));
    ordner.schreiben(QStringLiteral("WISSEN/TIERE/TI_HAUS.TXT"), haustiere);
    ordner.schreiben(
        QStringLiteral("WISSEN/HB/W_HB.TXT"),
        Unterliste(QStringLiteral("HB"),
                   {QStringLiteral("Andacht"), QStringLiteral("Erste Hilfe"), QStringLiteral("Knoten")}));
    for (const auto& [datei, ziel] :
         {std::pair{"Bibelabend", "KRANZ"}, std::pair{"Kurzabend", "KRANZ"}, std::pair{"Naturabend", "KRANZ"},
          std::pair{"Erste-Hilfe", "TEST"}, std::pair{"Lagerleben", "TEST"}}) {
        const QString name = QLatin1String(datei) + QStringLiteral(".FKR");
        QFile quelle(QStringLiteral(ABBILD_ORDNER "/formulare/") + name);
        if (!quelle.open(QIODevice::ReadOnly)) {
            VersagenUndEnde(quelle.fileName() + QStringLiteral(" isn't there"), Stelle::hier());
        }
        ordner.schreiben(QLatin1String(ziel) + u'/' + name, quelle.readAll());
    }
}

QWidget* Abbildlauf::NeuesQuizformular() {
    return programm_.NeuesQuizformular();
}

QWidget* Abbildlauf::NeuesTestformular() {
    return programm_.NeuesTestformular();
}

QWidget* Abbildlauf::QuizformularOeffnen(const QString& name) {
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, {}, name, QStringLiteral("cmdLaden"));
    Druecken(QStringLiteral("cmdLaden"));
    return FensterAbwarten(QStringLiteral("frmFKFragen"));
}

QWidget* Abbildlauf::TestformularOeffnen(const QString& name) {
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, {}, QStringLiteral("TEST"), name, QStringLiteral("cmdLaden"));
    Druecken(QStringLiteral("cmdLaden"));
    return FensterAbwarten(QStringLiteral("frmHBFragen"));
}

void Abbildlauf::Druecken(const QString& name) const {
    Druecken(haupt(), name);
}

void Abbildlauf::Druecken(const QWidget* fenster, const QString& name) {
    auto* taste = Finden<QAbstractButton>(fenster, name);
    if (!taste->isVisible() || !taste->isEnabled()) {
        Versagen(name + QStringLiteral(" is out of reach"), Stelle::hier());
    }
    taste->click();
}
