#include "tests/stoerung/platte.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Welche = bool (*)(const Aufruf&);

// Every call of a kind fails, wherever it goes.
std::function<Regel(const std::string&)> Immer(Welche welche, int fehlernummer) {
    return [=](const std::string&) -> Regel {
        return [=](const Aufruf& aufruf) { return welche(aufruf) ? fehlernummer : 0; };
    };
}

bool Jeder(const Aufruf& /*aufruf*/) {
    return true;
}
bool Schreibt(const Aufruf& aufruf) {
    return aufruf.name == "write";
}
bool Anlegt(const Aufruf& aufruf) {
    return aufruf.anlegend;
}
bool Aendert(const Aufruf& aufruf) {
    return aufruf.aendernd;
}
bool OeffnetAltes(const Aufruf& aufruf) {
    return aufruf.name == "openat" && aufruf.aendernd && !aufruf.anlegend;
}
bool Sperrt(const Aufruf& aufruf) {
    return aufruf.name == "flock";
}

QString Beiseite(const Speicherfall& fall) {
    return fall.ordner + QStringLiteral(".weg");
}
void OrdnerWeg(const Speicherfall& fall) {
    QVERIFY(QDir().rename(fall.ordner, Beiseite(fall)));
}
void OrdnerZurueck(const Speicherfall& fall) {
    QVERIFY(QDir().rename(Beiseite(fall), fall.ordner));
}
QString ImOrdnerBeiseite(const Speicherfall& fall) {
    return QDir(Beiseite(fall)).filePath(fall.name);
}

QString DateiBeiseite(const Speicherfall& fall) {
    return fall.pfad() + QStringLiteral(".weg");
}
void OrdnerStattDatei(const Speicherfall& fall) {
    QVERIFY(QFile::rename(fall.pfad(), DateiBeiseite(fall)) && QDir().mkdir(fall.pfad()));
}
void DateiZurueck(const Speicherfall& fall) {
    QVERIFY(QDir().rmdir(fall.pfad()) && QFile::rename(DateiBeiseite(fall), fall.pfad()));
}

// A process that holds every lock on the file that the system knows. It makes system calls only: its parent
// has threads and a window.
pid_t sperrer = -1;

[[noreturn]] void SperrenUndWarten(const char* pfad, int bereit) {
    const int datei = ::open(pfad, O_RDWR | O_CLOEXEC);
    struct flock bereich {};
    bereich.l_type = F_WRLCK;
    bereich.l_whence = SEEK_SET;
    const bool gesperrt =
        datei >= 0 && ::flock(datei, LOCK_EX) == 0 && ::fcntl(datei, F_SETLK, &bereich) == 0;
    const char zeichen = gesperrt ? 'j' : 'n';
    (void)!::write(bereit, &zeichen, 1);
    while (gesperrt && ::pause() != 0) {
        // until it is killed
    }
    ::_exit(1);
}

void Sperren(const Speicherfall& fall) {
    const std::string pfad = fall.pfad().toStdString();
    std::array<int, 2> rohr{};
    QCOMPARE(::pipe(rohr.data()), 0);
    sperrer = ::fork();
    QVERIFY(sperrer >= 0);
    if (sperrer == 0) {
        SperrenUndWarten(pfad.c_str(), rohr[1]);
    }
    char zeichen = 'n';
    QCOMPARE(::read(rohr[0], &zeichen, 1), 1);
    QCOMPARE(zeichen, 'j');
    ::close(rohr[0]);
    ::close(rohr[1]);
}

void Freigeben(const Speicherfall& /*fall*/) {
    QCOMPARE(::kill(sperrer, SIGKILL), 0);
    QCOMPARE(::waitpid(sperrer, nullptr, 0), sperrer);
}

void Erwarten(Dialogfolge& dialoge, const Speicherfall& fall, const Meldungserwartung& meldung,
              bool unlesbar = false) {
    if (fall.frage) {
        fall.frage(dialoge);
    }
    if (unlesbar) {
        dialoge.frage(unlesbarTitel, fall.fremdfrage.unlesbar(), 6);
    }
    if (!meldung.text.isEmpty()) {
        dialoge.meldung(meldung.text, meldung.taste);
    }
}

// A save without a fault; the file's bytes then.
QByteArray Gesichert(const Speicherfall& fall) {
    Dialogfolge dialoge;
    Erwarten(dialoge, fall, fall.gelungen);
    fall.speichern();
    return dialoge.fertig() ? Dateibytes(fall.pfad()) : QByteArray();
}

} // namespace

Regel Verschlossen(const std::string& ordner) {
    return [ordner](const Aufruf& aufruf) {
        const bool eintrag = aufruf.anlegend || aufruf.name == "renameat" || aufruf.name == "unlinkat";
        return eintrag && aufruf.pfad.starts_with(ordner) ? EACCES : 0;
    };
}

const std::vector<Platte>& Platten() {
    static const std::vector<Platte> platten{
        {"full", ENOSPC, Immer(Schreibt, ENOSPC)},
        {"without room for another file", ENOSPC, Immer(Anlegt, ENOSPC)},
        {"beyond the user's share", EDQUOT, Immer(Schreibt, EDQUOT)},
        {"mounted for reading only", EROFS, Immer(Aendert, EROFS)},
        {"with a folder that takes nothing", 0, Verschlossen},
        {"with a file that is executed", ETXTBSY, Immer(OeffnetAltes, ETXTBSY)},
        {"busy", EBUSY, Immer(Aendert, EBUSY)},
        {.name = "pulled out", .fehlernummer = ENODEV, .regel = Immer(Jeder, ENODEV), .unlesbar = true},
        {.name = "broken", .fehlernummer = EIO, .regel = Immer(Jeder, EIO), .unlesbar = true},
        {"that locks every new file", 0, Immer(Sperrt, EWOULDBLOCK)},
        {"with the file locked by another process", 0, {}, Sperren, Freigeben},
        {"without the folder", ENOENT, {}, OrdnerWeg, OrdnerZurueck, ImOrdnerBeiseite},
        {"with a folder in place of the file", EISDIR, {}, OrdnerStattDatei, DateiZurueck, DateiBeiseite},
    };
    return platten;
}

void PlattenEintragen() {
    QTest::addColumn<int>("platte");
    for (std::size_t i = 0; i < Platten().size(); ++i) {
        QTest::newRow(Platten()[i].name) << static_cast<int>(i);
    }
}

void PlatteErproben(const Speicherfall& fall, const Platte& platte) {
    const QByteArray neu = Gesichert(fall);
    fall.Anfang();
    const QString inhalt = fall.inhalt();
    if (platte.stoeren) {
        platte.stoeren(fall);
    }
    {
        const Stoerung stoerung({fall.ordner.toStdString(), "/var/tmp"},
                                platte.regel ? platte.regel(fall.ordner.toStdString()) : Regel());
        Dialogfolge dialoge;
        Erwarten(dialoge, fall,
                 platte.fehlernummer == 0 ? fall.gelungen
                                          : fall.gescheitert(Schreibgrund(platte.fehlernummer)),
                 platte.unlesbar);
        fall.speichern();
        QVERIFY(dialoge.fertig());
    }
    const bool gelungen = platte.fehlernummer == 0;
    QCOMPARE(Dateibytes(platte.alterOrt ? platte.alterOrt(fall) : fall.pfad()), gelungen ? neu : fall.alt);
    QVERIFY(!fall.ungesichert || fall.ungesichert() != gelungen);
    QCOMPARE(fall.inhalt(), inhalt);
    QCOMPARE(Lebensklage(), QString());
    if (platte.heilen) {
        platte.heilen(fall);
    }
    fall.aendern();
    QCOMPARE(Gesichert(fall), neu);
    QVERIFY(!fall.ungesichert || !fall.ungesichert());
    fall.bedienen();
    QVERIFY(fall.inhalt() != inhalt);
    QVERIFY(Gesichert(fall) != neu);
    // The journal's thread may be writing just now.
    const auto reste = [&fall] {
        return QDir(fall.ordner)
            .entryList({QStringLiteral(".feldkranz-*")}, QDir::Files | QDir::Hidden)
            .join(QLatin1Char(' '));
    };
    QTRY_COMPARE(reste(), QString());
}

QStringList OhneUhr(const Aufruf& aufruf) {
    const QCursor* zeiger = QGuiApplication::overrideCursor();
    const bool liste = aufruf.name == "opendir" || aufruf.name == "readdir" ||
                       (aufruf.name == "stat" && QFileInfo(QString::fromStdString(aufruf.pfad)).isDir());
    return liste || (zeiger != nullptr && zeiger->shape() == Qt::WaitCursor)
               ? QStringList()
               : QStringList(QString::fromLatin1(aufruf.name.data()));
}

void LangsamErproben(const Speicherfall& fall) {
    const QByteArray neu = Gesichert(fall);
    fall.Anfang();
    int aufrufe = 0;
    {
        const Stoerung stoerung({fall.ordner.toStdString()});
        (void)Gesichert(fall);
        aufrufe = static_cast<int>(stoerung.aufrufe().size());
    }
    QVERIFY(aufrufe > 0);
    fall.Anfang();
    QStringList ohneUhr;
    const Regel langsam = [&](const Aufruf& aufruf) {
        ohneUhr += OhneUhr(aufruf);
        // The slowness itself: a second for the whole save.
        std::this_thread::sleep_for(std::chrono::milliseconds(1000 / aufrufe));
        return 0;
    };
    {
        const Stoerung stoerung({fall.ordner.toStdString()}, langsam);
        QCOMPARE(Gesichert(fall), neu);
        for (const std::string_view ruf : {"write", "fsync"}) {
            QVERIFY(std::ranges::find(stoerung.aufrufe(), ruf, &Aufruf::name) != stoerung.aufrufe().end());
        }
    }
    QVERIFY2(ohneUhr.isEmpty(), qPrintable(ohneUhr.join(QLatin1Char(' '))));
    QVERIFY(!fall.ungesichert || !fall.ungesichert());
    QCOMPARE(Lebensklage(), QString());
    const QString inhalt = fall.inhalt();
    fall.bedienen();
    QVERIFY(fall.inhalt() != inhalt);
}
