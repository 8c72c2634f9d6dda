#include "core/plattform_posix.h"

#include "core/plattform.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>
#include <array>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace plattform {

namespace {

// Editors of the usual desktops; the last one leaves the choice to the desktop.
constexpr std::array texteditoren{"gnome-text-editor", "gedit",   "kate",    "kwrite",
                                  "mousepad",          "xed",     "pluma",   "lxqt-featherpad",
                                  "featherpad",        "leafpad", "xdg-open"};

struct Spieler {
    const char* programm;
    const char* schalter; // ahead of the file, "" for none
};
constexpr std::array klangspieler{Spieler{"paplay", ""}, Spieler{"pw-play", ""}, Spieler{"aplay", "-q"}};

} // namespace

bool TexteditorStarten(const QString& datei) {
    return std::ranges::any_of(texteditoren, [&](const char* name) {
        const QString programm = QStandardPaths::findExecutable(QString::fromLatin1(name));
        return !programm.isEmpty() && QProcess::startDetached(programm, {datei});
    });
}

bool ProzesseAbschirmbar() {
    if (::geteuid() == 0) {
        return false;
    }
#ifdef Q_OS_LINUX
    // Only trying tells: distributions and containers forbid it in many ways.
    static const bool moeglich = [] {
        const pid_t kind = ::fork();
        if (kind == 0) {
            ::_exit(::unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
        }
        int ende = 1;
        return kind > 0 && ::waitpid(kind, &ende, 0) == kind && ende == 0;
    }();
    return moeglich;
#else
    return true;
#endif
}

bool KlangAbspielen(const QString& datei) {
    constexpr int hoechstdauer = 20000; // milliseconds; a player that hangs must not take the program with it
    if (ArtVon(datei) != Art::Datei) {
        return false;
    }
    const QDeadlineTimer frist(hoechstdauer);
    return std::ranges::any_of(klangspieler, [&](const Spieler& spieler) {
        const QString programm = QStandardPaths::findExecutable(QString::fromLatin1(spieler.programm));
        if (programm.isEmpty() || frist.hasExpired()) {
            return false;
        }
        QStringList argumente{datei};
        if (*spieler.schalter != '\0') {
            argumente.prepend(QString::fromLatin1(spieler.schalter));
        }
        QProcess prozess;
        prozess.setStandardOutputFile(QProcess::nullDevice());
        prozess.setStandardErrorFile(QProcess::nullDevice());
        prozess.start(programm, argumente, QIODevice::NotOpen);
        const bool beendet = prozess.waitForFinished(static_cast<int>(frist.remainingTime()));
        if (!beendet) {
            prozess.kill();
            prozess.waitForFinished(1000);
        }
        return beendet && prozess.exitStatus() == QProcess::NormalExit && prozess.exitCode() == 0;
    });
}

std::vector<Argument> Argumente(int anzahl, const char* const* argumente) {
    std::vector<Argument> alle;
    for (int i = 1; i < anzahl; ++i) {
        alle.push_back({AusPfadbytes(argumente[i]), argumente[i]});
    }
    return alle;
}

QString Anschluss(const QString& name) {
    // Only the person gets into this folder, and it goes when he logs out.
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return ordner.isEmpty() ? QString() : ordner + QLatin1Char('/') + name;
}

} // namespace plattform
