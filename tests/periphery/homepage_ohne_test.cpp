// The homepage's window without its plug-in: nothing is reported, and the user may take his own browser.
#include "mainwindow/frmMDI.h"
#include "periphery/frmHomepage.h"
#include "periphery/uebergabe.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/rundgang.h"
#include "tests/periphery/zusatzordner.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

class HomepageOhneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutThePlugInNothingIsReported();
    void aDamagedPlugInIsNone();
    void theWindowIsInSightBesideTheEditor();
};

void HomepageOhneTest::withoutThePlugInNothingIsReported() {
    const Zusatzordner zusatz(QStringLiteral("/nirgendwo"));
    const Programm programm;
    const Dialogfolge dialoge;
    QStringList draussen;
    UebergabeErsetzen([&](const std::string& adresse) {
        draussen.append(QString::fromStdString(adresse));
        return true;
    });
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    QVERIFY(HomepageOffen()->isVisible());
    QVERIFY(draussen.isEmpty()); // nothing opens by itself
    auto* cmdBrowser = Finden<QAbstractButton>(HomepageOffen(), QStringLiteral("cmdBrowser"));
    QVERIFY(cmdBrowser->isVisible());
    BildVon(programm.haupt(), QStringLiteral("frmHomepage_ohne"));
    QTest::mouseClick(cmdBrowser, Qt::LeftButton);
    QCOMPARE(draussen, QStringList{QStringLiteral("https://www.feldkranz.example/modules.php?op=modload&name="
                                                  "Downloads&file=index&req=viewsdownload&sid=18")});
    UebergabeErsetzen({});
}

void HomepageOhneTest::aDamagedPlugInIsNone() {
    const QTemporaryDir ordner;
    QFile datei(ordner.filePath(QStringLiteral("libfeldkranz_web.so")));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(QByteArray(5000, 'x'));
    datei.close();
    const Zusatzordner zusatz(ordner.path());
    const Programm programm;
    const Dialogfolge dialoge;
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    QVERIFY(Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible());
    QCOMPARE(rundgang::Maengel(*HomepageOffen()), QStringList());
}

void HomepageOhneTest::theWindowIsInSightBesideTheEditor() {
    const Zusatzordner zusatz(QStringLiteral("/nirgendwo"));
    const Programm programm;
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdEdit"))->click();
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    const QWidget* kind = HomepageOffen()->parentWidget();
    QTRY_VERIFY(kind->isVisible());
    QVERIFY(kind->parentWidget()->rect().contains(kind->geometry()));
}

QTEST_MAIN(HomepageOhneTest)
#include "homepage_ohne_test.moc"
