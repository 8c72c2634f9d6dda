// The start window while it makes the person's program folder.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "start/einrichtungsbalken.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/start/einrichtungshilfe.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

// What is delivered, with the real start picture, and AppPfad where it is to go.
struct Start {
    Start() {
        QApplication::setQuitOnLastWindowClosed(false);
        OberflaecheEinrichten();
        ZustandZuruecksetzen();
        inhalt = ersteFassung;
        inhalt["BITMAP/FK_START.bmp"] = daten.lesen(QStringLiteral("BITMAP/FK_START.bmp")).toStdString();
        inhalt["BITMAP/FK_MELDUNG.bmp"] = daten.lesen(QStringLiteral("BITMAP/FK_MELDUNG.bmp")).toStdString();
        for (int i = 0; i < 100; ++i) {
            inhalt["WISSEN/LAND/X_" + std::to_string(i) + ".TXT"] = std::string(500, 'x');
        }
        probe.Liefern(inhalt);
        Stand.AppPfad = probe.ordner.eigen("heim/daten/Feldkranz");
    }
    ~Start() {
        delete FensterOderNichts(QStringLiteral("frmStart"));
        delete MDIFenster();
        Stand.AppPfad.clear();
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    QPointer<frmStart> Zeigen() const {
        auto* fenster = new frmStart(probe.ordner.eigen("lieferung"));
        fenster->show();
        return fenster;
    }

    Programmordner daten;
    Lieferprobe probe;
    Lieferprobe::Inhalt inhalt;
};

} // namespace

class StartfensterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBarShowsHowFarTheFolderIsAndTheButtonWaits();
    void theUsualStartShowsNoBar();
    void aWindowClosedHalfwayIsMadeGoodByTheNext();
    void whatFailsIsToldAndTheProgramGoesOn();
    void whatLiesBesideIsToldOnceInTheMainWindow();
};

void StartfensterTest::aBarShowsHowFarTheFolderIsAndTheButtonWaits() {
    const Start start;
    const auto fenster = start.Zeigen();
    auto* balken = Finden<Panel>(fenster, QStringLiteral("pnlEinrichten"));
    auto* taste = Finden<QPushButton>(fenster, QStringLiteral("cmdStart"));
    QVERIFY(balken->isVisible() && !taste->isEnabled());
    QCOMPARE(taste->text(), QStringLiteral("Ich richte deinen Programmordner ein ..."));
    QVERIFY(!Finden<QLabel>(fenster, QStringLiteral("lblVersion"))->isVisible());
    QTRY_VERIFY(balken->value() > 0.0);
    QTRY_VERIFY(!balken->isVisible());
    QCOMPARE(balken->value(), 100.0);
    QCOMPARE(taste->text(), QStringLiteral("Mit Grüßen von Tarvo und Brennek - weiter !"));
    QVERIFY(taste->isEnabled() && Finden<QLabel>(fenster, QStringLiteral("lblVersion"))->isVisible());
    QVERIFY(start.probe.Da() == start.inhalt);
}

void StartfensterTest::theUsualStartShowsNoBar() {
    const Start start;
    QCOMPARE(start.probe.Einrichten(), 0);
    const auto fenster = start.Zeigen();
    QVERIFY(fenster->findChild<Panel*>(QStringLiteral("pnlEinrichten")) == nullptr);
    QVERIFY(Finden<QPushButton>(fenster, QStringLiteral("cmdStart"))->isEnabled());
}

void StartfensterTest::aWindowClosedHalfwayIsMadeGoodByTheNext() {
    const Start start;
    QPointer<frmStart> fenster = start.Zeigen();
    QTRY_VERIFY(Finden<Panel>(fenster, QStringLiteral("pnlEinrichten"))->value() > 0.0);
    fenster->close();
    QTRY_VERIFY(fenster.isNull());
    fenster = start.Zeigen();
    QTRY_VERIFY(Finden<QPushButton>(fenster, QStringLiteral("cmdStart"))->isEnabled());
    QVERIFY(start.probe.Da() == start.inhalt);
}

void StartfensterTest::whatFailsIsToldAndTheProgramGoesOn() {
    const Start start;
    start.probe.ordner.schreiben("heim/daten/Feldkranz/SOUND", "a file in the place of a folder");
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Deinen Programmordner konnte ich nicht fertig einrichten !\n[ ") +
                        QString::fromStdString(Stand.AppPfad) +
                        QStringLiteral("\\SOUND ]\nFehler beim Zugriff auf Pfad oder Datei\n"
                                       "Beim nächsten Start versuche ich es noch einmal."),
                    QStringLiteral("Dann schaue ich mal nach"));
    const auto fenster = start.Zeigen();
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(Finden<QPushButton>(fenster, QStringLiteral("cmdStart"))->isEnabled());
}

void StartfensterTest::whatLiesBesideIsToldOnceInTheMainWindow() {
    const Start start;
    start.probe.Schreiben("WISSEN/LAND/W_1.TXT", "meins");
    QCOMPARE(start.probe.Einrichten(), 0);
    HauptfensterZeigen();
    QTRY_COMPARE(
        QString::fromStdString(HilfeStand()).trimmed(),
        QStringLiteral("[ WISSEN\\LAND\\W_1.TXT ] hast du geändert. Die neue Fassung habe ich als .NEU "
                       "danebengelegt."));
    HilfeText("");
    DanebenliegendesMelden();
    QCOMPARE(QString::fromStdString(HilfeStand()).trimmed(), QString());
}

QTEST_MAIN(StartfensterTest)
#include "startfenster_test.moc"
