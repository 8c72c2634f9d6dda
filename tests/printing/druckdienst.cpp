#include "tests/printing/druckdienst.h"

#include "tests/printing/pdfleser.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include <functional>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace {

constexpr int frist = 30000; // ms
const char* const beschreibung = "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd";
const char* const rueckseite = "/usr/lib/cups/backend/cups-pdf";

bool Schreiben(const QString& datei, const QByteArray& bytes) {
    QFile ziel(datei);
    return ziel.open(QIODevice::WriteOnly) && ziel.write(bytes) == bytes.size();
}

bool Warten(const std::function<bool()>& bedingung) {
    const QDeadlineTimer ende(frist);
    while (!bedingung()) {
        if (ende.hasExpired()) {
            return false;
        }
        QThread::msleep(50);
    }
    return true;
}

// Where the queue puts the files of the user.
QString Ablage() {
    return QDir::homePath() + QStringLiteral("/PDF");
}

// The server is not on the path of an ordinary user.
QString Programm(const QString& name) {
    return QStandardPaths::findExecutable(
        name, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"), QStringLiteral("/sbin")});
}

// The description of the queue with margins on A4, in points from the lower left corner.
QByteArray MitRaendern(QByteArray ppd) {
    const qsizetype zeile = ppd.indexOf("*ImageableArea A4/");
    const qsizetype beginn = ppd.indexOf('"', zeile) + 1;
    if (zeile < 0) {
        return {};
    }
    return ppd.replace(beginn, ppd.indexOf('"', beginn) - beginn, "14 17 581 819");
}

} // namespace

Druckdienst::~Druckdienst() {
    beenden();
    if (ablageNeu_) {
        QDir().rmdir(Ablage()); // only while it is empty
    }
}

bool Druckdienst::konfigurieren() const {
    // The filters run as another user and must get in.
    QFile::setPermissions(ordner_.path(), QFile::permissions(ordner_.path()) | QFile::ReadGroup |
                                              QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    for (const char* const name : {"conf", "spool/tmp", "cache", "state", "log"}) {
        if (!QDir(ordner_.path()).mkpath(QLatin1String(name))) {
            return false;
        }
    }
    const QByteArray o = ordner_.path().toUtf8();
    QFile ppd(QString::fromLatin1(beschreibung));
    if (!ppd.open(QIODevice::ReadOnly)) {
        return false;
    }
    return Schreiben(ordner_.filePath(QStringLiteral("queue.ppd")), MitRaendern(ppd.readAll())) &&
           Schreiben(
               ordner_.filePath(QStringLiteral("conf/cupsd.conf")),
               "Listen " + o +
                   "/sock\nLogLevel warn\nWebInterface No\nBrowsing Off\n"
                   "DefaultAuthType None\n<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
                   "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n") &&
           Schreiben(ordner_.filePath(QStringLiteral("conf/cups-files.conf")),
                     "ServerRoot " + o + "/conf\nRequestRoot " + o + "/spool\nCacheDir " + o +
                         "/cache\nStateDir " + o + "/state\nTempDir " + o + "/spool/tmp\nAccessLog " + o +
                         "/log/access\nErrorLog " + o + "/log/error\nPageLog " + o + "/log/page\n");
}

QString Druckdienst::starten() {
    const QString server = Programm(QStringLiteral("cupsd"));
    if (server.isEmpty() || !QFile::exists(QString::fromLatin1(rueckseite)) || !konfigurieren()) {
        return QStringLiteral("CUPS or its PDF queue is not installed");
    }
    ablageNeu_ = ablageNeu_ || !QFile::exists(Ablage());
    const QString sockel = ordner_.filePath(QStringLiteral("sock"));
    QFile::remove(sockel);
    qputenv("CUPS_SERVER", sockel.toUtf8());
#ifdef Q_OS_LINUX
    // The server goes even when the test program is killed.
    dienst_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    dienst_.setProcessChannelMode(QProcess::MergedChannels);
    dienst_.start(server, {QStringLiteral("-f"), QStringLiteral("-c"),
                           ordner_.filePath(QStringLiteral("conf/cupsd.conf")), QStringLiteral("-s"),
                           ordner_.filePath(QStringLiteral("conf/cups-files.conf"))});
    if (!dienst_.waitForStarted(frist) ||
        !Warten([&] { return QFile::exists(sockel) || dienst_.waitForFinished(1); }) ||
        dienst_.state() != QProcess::Running) {
        return QStringLiteral("cupsd doesn't start: ") + QString::fromUtf8(dienst_.readAll());
    }
    const QString name = QString::fromLatin1(warteschlange);
    if (!befehl(QStringLiteral("lpadmin"),
                {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                 QStringLiteral("cups-pdf:/"), QStringLiteral("-P"),
                 ordner_.filePath(QStringLiteral("queue.ppd"))}) ||
        !befehl(QStringLiteral("lpadmin"), {QStringLiteral("-d"), name})) {
        return QStringLiteral("the queue can't be made");
    }
    return {};
}

void Druckdienst::beenden() {
    if (dienst_.state() == QProcess::NotRunning) {
        return;
    }
    dienst_.terminate();
    if (!dienst_.waitForFinished(10000)) {
        dienst_.kill();
        dienst_.waitForFinished(10000);
    }
}

bool Druckdienst::befehl(const QString& programm, const QStringList& argumente) const {
    QProcess lauf;
    lauf.start(Programm(programm), argumente);
    const bool fertig = lauf.waitForFinished(frist);
    if (!fertig) {
        lauf.kill();
        lauf.waitForFinished(1000);
    }
    return fertig && lauf.exitStatus() == QProcess::NormalExit && lauf.exitCode() == 0;
}

QString Druckdienst::warten(const QString& auftrag, int seiten) {
    const QStringList ordner{Ablage(), QStringLiteral("/var/spool/cups-pdf/ANONYMOUS")};
    QString datei;
    Warten([&] {
        for (const QString& stelle : ordner) {
            const QStringList namen =
                QDir(stelle).entryList({auftrag + QStringLiteral("*.pdf")}, QDir::Files);
            if (!namen.isEmpty()) {
                datei = stelle + QLatin1Char('/') + namen.first();
                return PdfSeitenzahl(datei) == seiten;
            }
        }
        return false;
    });
    return datei;
}
