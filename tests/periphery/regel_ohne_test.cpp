// The rule document's window without its plug-in: it says so, and the user may take the system's viewer.
#include "core/pfad.h"
#include "mainwindow/frmMDI.h"
#include "periphery/frmBrowser.h"
#include "periphery/spielregel.h"
#include "periphery/uebergabe.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/rundgang.h"
#include "tests/periphery/zusatzordner.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QUrl>

class RegelOhneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { UebergabeErsetzen({}); }
    void theWindowSaysSoAndAButtonHandsTheDocumentOver();
    void aSystemWithoutAViewerIsSaidToo();
    void onlyDocumentsAreHandedOver();
};

void RegelOhneTest::theWindowSaysSoAndAButtonHandsTheDocumentOver() {
    const Zusatzordner zusatz(QStringLiteral("/nirgendwo"));
    const Programm programm;
    const Dialogfolge dialoge;
    QStringList draussen;
    UebergabeErsetzen([&](const std::string& adresse) {
        draussen.append(QString::fromStdString(adresse));
        return true;
    });
    SpielregelZeigen();
    QVERIFY(BrowserOffen()->isVisible());
    QCOMPARE(Finden<QLabel>(BrowserOffen(), QStringLiteral("lblStand"))->text(),
             QStringLiteral(" Ich kann hier leider keine PDF-Datei zeigen."));
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("leisteSeiten"))->isVisible());
    QVERIFY(draussen.isEmpty()); // nothing opens by itself
    QCOMPARE(rundgang::Maengel(*BrowserOffen()), QStringList());
    BildVon(programm.haupt(), QStringLiteral("frmBrowser_ohne"));
    QTest::mouseClick(Finden(BrowserOffen(), QStringLiteral("cmdSystemleser")), Qt::LeftButton);
    QCOMPARE(draussen.size(), 1);
    QCOMPARE(QUrl(draussen.first()).toLocalFile(), NativerPfad(SpielregelPfad()));
}

void RegelOhneTest::aSystemWithoutAViewerIsSaidToo() {
    const Zusatzordner zusatz(QStringLiteral("/nirgendwo"));
    const Programm programm;
    UebergabeErsetzen([](const std::string&) { return false; });
    SpielregelZeigen();
    QTest::mouseClick(Finden(BrowserOffen(), QStringLiteral("cmdSystemleser")), Qt::LeftButton);
    QCOMPARE(Finden<QLabel>(BrowserOffen(), QStringLiteral("lblStand"))->text(),
             QStringLiteral(" Auf diesem Rechner finde ich kein Programm, das PDF-Dateien zeigt."));
}

void RegelOhneTest::onlyDocumentsAreHandedOver() {
    bool gefragt = false;
    UebergabeErsetzen([&](const std::string&) { return gefragt = true; });
    QVERIFY(!DokumentUebergeben(QStringLiteral("/tmp/programm.exe")));
    QVERIFY(!gefragt);
    QVERIFY(DokumentUebergeben(QStringLiteral("/tmp/Regel.PDF")));
    QVERIFY(gefragt);
}

QTEST_MAIN(RegelOhneTest)
#include "regel_ohne_test.moc"
