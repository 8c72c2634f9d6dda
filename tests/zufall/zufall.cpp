// Random hands at the real windows: seeded clicks, drags, keys and texts, and after each what must hold. Runs
// only through zufall.sh, which shuts it into a folder of its own, since the file dialog reaches the whole
// disk.
#include "core/laufzeitfehler.h"
#include "periphery/uebergabe.h"
#include "tests/zufall/gehege.h"
#include "tests/zufall/lauf.h"

#include <QApplication>
#include <QCommandLineParser>

#include <array>
#include <csignal>
#include <cstdio>

#include <execinfo.h>
#include <unistd.h>

namespace {

constexpr int nichtSicher = 77; // tells CTest that the test couldn't run

Lauf* derLauf = nullptr;

class Anwendung : public QApplication {
public:
    using QApplication::QApplication;

    // The program would report it and go on; here it is something that a handler should have caught.
    bool notify(QObject* empfaenger, QEvent* ereignis) override {
        try {
            return QApplication::notify(empfaenger, ereignis);
        } catch (const Laufzeitfehler& fehler) {
            derLauf->Mangel(QStringLiteral("nobody handled the run-time error %1").arg(fehler.nummer()));
        }
    }
};

void Mitschreiben(QtMsgType /*art*/, const QMessageLogContext& /*ort*/, const QString& text) {
    if (derLauf != nullptr) {
        derLauf->Notiz(QStringLiteral("# ") + text);
    } else {
        std::fputs(qPrintable(text + u'\n'), stderr);
    }
}

// Where the program crashed; addr2line tells the lines. The sanitizers have a report of their own.
[[maybe_unused]] void Absturz(int signal) {
    std::array<void*, 60> stapel{};
    const int tiefe = backtrace(stapel.data(), static_cast<int>(stapel.size()));
    backtrace_symbols_fd(stapel.data(), tiefe, STDERR_FILENO);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void AbsturzMelden() {
#ifndef __SANITIZE_ADDRESS__
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS}) {
        std::signal(signal, Absturz);
    }
#endif
}

Auftrag AuftragAus(const QCoreApplication& anwendung) {
    QCommandLineParser zeile;
    zeile.addOptions({{QStringLiteral("saat"), {}, QStringLiteral("zahl"), QStringLiteral("1")},
                      {QStringLiteral("schritte"), {}, QStringLiteral("zahl"), QStringLiteral("2000")},
                      {QStringLiteral("liste"), {}, QStringLiteral("datei")},
                      {QStringLiteral("protokoll"), {}, QStringLiteral("nummer"), QStringLiteral("1")}});
    zeile.process(anwendung);
    Auftrag auftrag{zeile.value(QStringLiteral("saat")).toUInt(),
                    zeile.value(QStringLiteral("schritte")).toInt(),
                    {},
                    zeile.value(QStringLiteral("protokoll")).toInt()};
    if (!zeile.isSet(QStringLiteral("liste"))) {
        return auftrag;
    }
    QFile datei(zeile.value(QStringLiteral("liste")));
    if (!datei.open(QIODevice::ReadOnly)) {
        qFatal("Can't read %s", qPrintable(datei.fileName()));
    }
    while (!datei.atEnd()) {
        if (const auto schritt = SchrittAus(QString::fromUtf8(datei.readLine())); schritt) {
            auftrag.liste.push_back(*schritt);
        }
    }
    auftrag.schritte = static_cast<int>(auftrag.liste.size());
    return auftrag;
}

} // namespace

int main(int argc, char** argv) {
    const Anwendung anwendung(argc, argv);
    const Auftrag auftrag = AuftragAus(anwendung);
    if (const QStringList offen = OffeneTueren(); !offen.isEmpty()) {
        std::fprintf(stderr, "Not run: files can be made in %s\n", qPrintable(offen.join(u' ')));
        return nichtSicher;
    }
    AbsturzMelden();
    UebergabeErsetzen([](const std::string&) { return true; }); // neither mail nor browser
    Lauf lauf(auftrag);
    derLauf = &lauf;
    qInstallMessageHandler(Mitschreiben);
    lauf.ausfuehren();
    qInstallMessageHandler(nullptr);
    derLauf = nullptr;
    std::printf("%d steps of seed %u, nothing wrong\n", auftrag.schritte, auftrag.saat);
    return 0;
}
