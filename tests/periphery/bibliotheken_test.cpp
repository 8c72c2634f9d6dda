// Which libraries the program has loaded, and when: the large ones only once a window needs them.
#include "mainwindow/frmMDI.h"
#include "periphery/frmBrowser.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/zusatzordner.h"

#include <QAbstractButton>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTest>

#include <array>

namespace {

constexpr std::array grosse{"Qt6WebEngine", "Qt6Pdf",        "Qt6Multimedia", "Qt6Quick",
                            "Qt6Qml",       "Qt6WebChannel", "libfeldkranz_"};

// File names of the libraries in a process.
QSet<QString> Bibliotheken(qint64 prozess) {
    QFile karte(QStringLiteral("/proc/%1/maps").arg(prozess));
    QSet<QString> namen;
    if (karte.open(QIODevice::ReadOnly)) {
        for (const QString& zeile : QString::fromUtf8(karte.readAll()).split(u'\n')) {
            const QString name = zeile.section(u'/', -1);
            if (name.contains(QLatin1String(".so"))) {
                namen.insert(name);
            }
        }
    }
    return namen;
}

QStringList Grosse(qint64 prozess) {
    QStringList gefunden;
    for (const QString& name : Bibliotheken(prozess)) {
        for (const char* gross : grosse) {
            if (name.contains(QLatin1String(gross))) {
                gefunden.append(name);
            }
        }
    }
    return gefunden;
}

// Sends events to whatever window stands on the virtual screen.
QByteArray Xdotool(const QStringList& befehle) {
    QProcess prozess;
    prozess.start(QStringLiteral("xdotool"), befehle);
    prozess.waitForFinished();
    return prozess.readAllStandardOutput();
}

} // namespace

class BibliothekenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theStartedProgramHasLoadedNoneOfTheLargeOnes();
    void theRuleDocumentLoadsItsOwnAndNoOther();
};

void BibliothekenTest::theStartedProgramHasLoadedNoneOfTheLargeOnes() {
    QProcess programm;
    programm.setProcessChannelMode(QProcess::ForwardedChannels);
    programm.start(QStringLiteral(FELDKRANZ_PROGRAMM "/feldkranz"), QStringList());
    QVERIFY(programm.waitForStarted());
    const QString nummer = QString::number(programm.processId());
    const auto fenster = [&](const QString& titel) {
        return !Xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--all"),
                         QStringLiteral("--pid"), nummer, QStringLiteral("--name"), titel})
                    .isEmpty();
    };
    QTRY_VERIFY(fenster(QStringLiteral("Am Start")));
    QVERIFY(!Bibliotheken(programm.processId()).isEmpty());
    QCOMPARE(Grosse(programm.processId()), QStringList());
    Xdotool({QStringLiteral("key"), QStringLiteral("Return")});
    QTRY_VERIFY(fenster(QStringLiteral("Feldkranz! 2008")));
    QCOMPARE(Grosse(programm.processId()), QStringList());
    programm.kill();
    programm.waitForFinished();
}

void BibliothekenTest::theRuleDocumentLoadsItsOwnAndNoOther() {
#ifndef FELDKRANZ_MIT_PDF
    QSKIP("built without the plug-in for documents");
#endif
    const Zusatzordner zusatz;
    const Programm programm;
    const qint64 eigener = QCoreApplication::applicationPid();
    QCOMPARE(Grosse(eigener), QStringList());
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdSpielregel"))->click();
    QVERIFY(BrowserOffen() != nullptr);
    const QStringList geladen = Grosse(eigener);
    QVERIFY2(geladen.filter(QStringLiteral("Qt6Pdf")).size() == 1, qPrintable(geladen.join(u' ')));
    QCOMPARE(geladen.filter(QStringLiteral("WebEngine")), QStringList());
    QCOMPARE(geladen.filter(QStringLiteral("Quick")), QStringList());
}

QTEST_MAIN(BibliothekenTest)
#include "bibliotheken_test.moc"
