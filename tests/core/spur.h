// Runs speichern_probe under strace: lists the system calls of a save, and lets one of them fail or kills the
// process there.
#pragma once

#include "tests/core/probeordner.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

#include <map>
#include <set>
#include <string>
#include <vector>

// What a file holds before a save and after it.
inline constexpr int laengeAlt = 9000;
inline constexpr int laengeNeu = 7000;
inline const std::string alt(laengeAlt, 'a');
inline const std::string neu(laengeNeu, 'n');

struct Systemaufruf {
    std::string name;
    int wievielter = 0;  // among the calls of that name since the process began, from 1
    std::string zeile{}; // as the trace shows it
};

struct Spur {
    int ergebnis = abgestuerzt; // the probe's exit code
    bool getoetet = false;
    int marken = 0;                    // 1: ended inside the save, 2: behind it
    std::vector<Systemaufruf> aufrufe; // those of the save that have to do with files
};

// Memory and locks of the process: their failing says nothing about the file, and how often they are asked
// for differs from one run to the next.
inline bool OhneDatei(const std::string& aufruf) {
    return std::set<std::string>{"brk", "mmap", "munmap", "mremap", "madvise", "futex", "rt_sigaction"}
        .contains(aufruf);
}

// What strace is to put in at exactly that call.
inline std::string Eingriff(const Systemaufruf& aufruf, const std::string& womit) {
    return aufruf.name + ":" + womit + ":when=" + std::to_string(aufruf.wievielter);
}

// Starts a program and gives its exit code; abgestuerzt for a signal or no such program.
inline int Starten(const QString& programm, const QStringList& argumente, bool ohneRechte = false) {
    QProcess prozess;
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert("ASAN_OPTIONS", "detect_leaks=0"); // the leak check can't run in a traced process
    umgebung.insert("TMPDIR", "/tmp");
    prozess.setProcessEnvironment(umgebung);
    prozess.setProcessChannelMode(QProcess::ForwardedChannels);
    if (ohneRechte) {
        prozess.setChildProcessModifier([] {
            if (!OhneRechte()) {
                ::_exit(keinUnterschied);
            }
        });
    }
    prozess.start(programm, argumente);
    const bool beendet = prozess.waitForFinished(60000) && prozess.exitStatus() == QProcess::NormalExit;
    return beendet ? prozess.exitCode() : abgestuerzt;
}

// Why no save can be traced here, "" where it can.
inline std::string SpurHindernis() {
#ifdef __SANITIZE_ADDRESS__
    return "a sanitizer makes system calls of its own: not tested";
#else
    const bool moeglich = Starten("strace", {"-f", "-o", "/dev/null", "true"}) == 0;
    return moeglich ? "" : "strace is missing, or no process may trace another here: not tested";
#endif
}

inline Spur SpurLesen(const std::string& bytes) {
    static const QRegularExpression aufruf("^\\d+\\s+([a-z_0-9]+)\\(");
    Spur spur;
    std::map<std::string, int> gezaehlt;
    for (const QString& zeile : QString::fromStdString(bytes).split('\n')) {
        spur.getoetet = spur.getoetet || zeile.contains("+++ killed by SIGKILL");
        const QRegularExpressionMatch treffer = aufruf.match(zeile);
        if (!treffer.hasMatch()) {
            continue;
        }
        const std::string name = treffer.captured(1).toStdString();
        const int wievielter = ++gezaehlt[name];
        if (name == "getppid") {
            ++spur.marken;
        } else if (spur.marken == 1 && !OhneDatei(name)) {
            spur.aufrufe.push_back({name, wievielter, zeile.toStdString()});
        }
    }
    return spur;
}

// Saves bytes times the letter to a path, with what strace is to put in ("write:error=EIO:when=2"; "" for
// nothing).
inline Spur Speichern(const Probeordner& ordner, const std::string& pfad, char buchstabe, int bytes,
                      const std::string& eingriff, bool ohneRechte = false) {
    ordner.schreiben("spur/liste", "");
    std::filesystem::permissions(ordner.nativ("spur/liste"), std::filesystem::perms(0666));
    QStringList argumente{"-f", "-o", QString::fromStdString(ordner.nativ("spur/liste"))};
    if (!eingriff.empty()) {
        argumente << "-e" << QString::fromStdString("inject=" + eingriff);
    }
    // A copy of the probe beside the file serves users who can't reach the build folder.
    const std::string kopie = ordner.nativ("probe");
    const std::string probe = std::filesystem::exists(kopie) ? kopie : SPEICHERN_PROBE;
    argumente << QString::fromStdString(probe) << QString::fromStdString(pfad)
              << QString(QLatin1Char(buchstabe)) << QString::number(bytes);
    const int ergebnis = Starten("strace", argumente, ohneRechte);
    Spur spur = SpurLesen(ordner.lesen("spur/liste"));
    spur.ergebnis = ergebnis;
    return spur;
}
