#include "tests/zufall/lauf.h"

#include "core/ziehen.h"
#include "mainwindow/frmMDI.h"
#include "tests/hilfe/programm.h"
#include "tests/zufall/pruefung.h"
#include "tests/zufall/ziele.h"

#include <QApplication>
#include <QLabel>
#include <QWindow>

#include <cstdio>
#include <ctime>
#include <utility>

#include <unistd.h>

namespace {

constexpr double hoechstdauer = 3;        // seconds of work for one stroke
constexpr int wartegrenze = 250;          // milliseconds until the windows must have come to rest
constexpr int dialoggrenze = 400;         // steps after which a dialog should have been left
constexpr long speicherzuwachs = 200'000; // kilobytes

// The work of this thread, so that a machine with other work beside it changes nothing.
double Rechenzeit() {
    timespec zeit{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &zeit);
    return static_cast<double>(zeit.tv_sec) + static_cast<double>(zeit.tv_nsec) / 1e9;
}

long SpeicherKilobyte() {
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return statm.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

// What a dialog says, in one line.
QString Inschrift(const QWidget& dialog) {
    QStringList texte{dialog.windowTitle()};
    for (const QLabel* schrift : dialog.findChildren<QLabel*>()) {
        if (schrift->isVisible() && !schrift->text().isEmpty()) {
            texte.append(schrift->text().simplified().left(120));
        }
    }
    return texte.join(QStringLiteral(" | "));
}

// All windows are painted, and a key would meet one of them.
bool Ruhig() {
    const QList<QWidget*> fenster = ErreichbareFenster();
    for (const QWidget* eines : fenster) {
        if (eines->windowHandle() == nullptr || !eines->windowHandle()->isExposed()) {
            return false;
        }
    }
    const QWidget* dialog = QApplication::activeModalWidget();
    const QWindow* fokus = QGuiApplication::focusWindow();
    return !fenster.isEmpty() && fokus != nullptr && (dialog == nullptr || dialog->windowHandle() == fokus);
}

} // namespace

Lauf::Lauf(Auftrag auftrag) : auftrag_(std::move(auftrag)), wuerfel_(auftrag_.saat) {
    uhr_.setSingleShot(true);
    connect(&uhr_, &QTimer::timeout, this, &Lauf::Takt);
    if (!protokoll_.open(auftrag_.protokoll, QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qFatal("No protocol");
    }
}

void Lauf::Notiz(const QString& zeile) {
    protokoll_.write(zeile.toUtf8() + '\n');
}

void Lauf::Mangel(const QString& satz) {
    const QString ganz =
        QStringLiteral("# MANGEL after step %1 of seed %2: %3").arg(schritt_).arg(auftrag_.saat).arg(satz);
    Notiz(ganz);
    std::fputs(qPrintable(ganz + u'\n'), stderr);
    std::_Exit(1);
}

void Lauf::ausfuehren() {
    while (!ende_) {
        const Programm programm;
        uhr_.start(0);
        QCoreApplication::exec();
        uhr_.stop();
        wache_.Takt();
    }
}

void Lauf::Takt() {
    wache_.Takt();
    if (const double dauer = Rechenzeit() - cpu_; cpu_ > 0 && dauer > hoechstdauer) {
        Mangel(QStringLiteral("the step took %1 s").arg(dauer));
    }
    cpu_ = 0;
    if (haende_.fertig() && !Ruhig() && unruhe_.isValid() && unruhe_.elapsed() < wartegrenze) {
        uhr_.start(2);
        return;
    }
    if (haende_.fertig()) {
        Pruefen();
        Naechster();
    }
    if (ende_) {
        return;
    }
    unruhe_.start();
    uhr_.start(0); // before the stroke, which may run a loop of its own
    if (!haende_.fertig()) {
        cpu_ = Rechenzeit();
        haende_.strich();
    }
}

void Lauf::Pruefen() {
    QStringList maengel = FormularMaengel() + DialogMaengel();
    if (QApplication::activeModalWidget() == nullptr && QApplication::activePopupWidget() == nullptr &&
        AktuellesZiehBild() == ZiehBild::Keins) {
        maengel += AnzeigeMaengel();
    }
    if (!maengel.isEmpty()) {
        Mangel(maengel.join(QStringLiteral("; ")));
    }
    DialogZaehlen();
    SpeicherMessen();
    if (frmMDI* haupt = MDIFenster(); haupt != nullptr && ErreichbareFenster().isEmpty()) {
        haupt->showMaximized(); // it was put into the tray or the taskbar, and somebody gets it out again
    }
}

void Lauf::DialogZaehlen() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && (dialog != dialog_ || dialogschritte_ == 0)) {
        Notiz(QStringLiteral("# %1: %2").arg(Fenstername(*dialog), Inschrift(*dialog)));
    }
    dialogschritte_ = dialog != nullptr && dialog == dialog_ ? dialogschritte_ + 1 : 0;
    dialog_ = dialog;
    if (dialogschritte_ > dialoggrenze) {
        Mangel(QStringLiteral("no way out of %1").arg(Fenstername(*dialog)));
    }
}

void Lauf::SpeicherMessen() {
    if (schritt_ == auftrag_.schritte / 10) {
        speicherAnfang_ = SpeicherKilobyte();
    }
    if (schritt_ != auftrag_.schritte || speicherAnfang_ == 0) {
        return;
    }
    const long jetzt = SpeicherKilobyte();
    const long anfang = std::exchange(speicherAnfang_, 0); // only once
    Notiz(QStringLiteral("# memory: %1 kB after a tenth, %2 kB at the end").arg(anfang).arg(jetzt));
    if (jetzt > anfang * 2 + speicherzuwachs) {
        Mangel(QStringLiteral("the memory grew from %1 to %2 kB").arg(anfang).arg(jetzt));
    }
}

// The steps are done, or the next one begins anew: what is open must be left first, since a question that
// the end of the event loop answers would ask again and again.
bool Lauf::Aufbruch() const {
    if (schritt_ >= auftrag_.schritte) {
        return true;
    }
    return !auftrag_.liste.empty() &&
           auftrag_.liste.at(static_cast<std::size_t>(schritt_)).was == Handlung::Neustart;
}

void Lauf::Naechster() {
    const bool offen =
        QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
    if (schritt_ >= auftrag_.schritte && !offen) {
        ende_ = true;
        QCoreApplication::exit(0);
        return;
    }
    if (Aufbruch() && offen) {
        Tun(wuerfel_.Ausgang());
        return;
    }
    const auto stelle = static_cast<std::size_t>(schritt_++);
    Tun(auftrag_.liste.empty() ? wuerfel_.Wurf() : auftrag_.liste.at(stelle));
}

void Lauf::Tun(const Handgriff& schritt) {
    Notiz(Worte(schritt));
    haende_.beginnen(schritt);
}
