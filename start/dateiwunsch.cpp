#include "start/dateiwunsch.h"

#include "core/hauptfenster.h"
#include "core/pfad.h"
#include "core/ziehen.h"
#include "forms/oeffnen.h"
#include "periphery/tray.h"
#include "periphery/traydaten.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <deque>

namespace {

constexpr int wartezeit = 100; // ms between two looks

std::deque<QString> wuensche;
QPointer<QTimer> uhr; // goes with the application
bool oeffnend = false;

// Nobody is asked anything, chooses in a menu or drags a question.
[[nodiscard]] bool Frei() {
    return !oeffnend && Hauptfenster() != nullptr && QApplication::activeModalWidget() == nullptr &&
           QApplication::activePopupWidget() == nullptr && AktuellesZiehBild() == ZiehBild::Keins;
}

void Oeffnen(const QString& nativ) {
    const std::string pfad = EigenerPfad(nativ);
    AuswahlMerken(pfad, nativ); // exactly this file, whatever else is written alike
    GelistetesOeffnen(pfad);
}

struct Oeffnungszeit {
    Oeffnungszeit() { oeffnend = true; }
    ~Oeffnungszeit() { oeffnend = false; }
    Oeffnungszeit(const Oeffnungszeit&) = delete;
    Oeffnungszeit& operator=(const Oeffnungszeit&) = delete;
};

void Hervorholen(QWidget* fenster) {
    fenster->setWindowState(fenster->windowState() & ~Qt::WindowMinimized);
    fenster->raise();
    fenster->activateWindow();
}

} // namespace

void DateiWuenschen(const QString& nativ) {
    wuensche.push_back(nativ);
    if (uhr.isNull()) {
        uhr = new QTimer(qApp);
        QObject::connect(uhr, &QTimer::timeout, uhr, [] {
            if (WuenscheErfuellen()) {
                uhr->stop();
            }
        });
    }
    uhr->start(wartezeit);
}

void NachVornHolen() {
    QWidget* haupt = Hauptfenster();
    if (haupt != nullptr && !haupt->isVisible()) {
        TrayNachricht(linkeTasteGedrueckt);
    }
    if (haupt != nullptr) {
        Hervorholen(haupt);
    }
    // A question stands above the main window; before there is one, the start window is all there is.
    QWidget* davor = QApplication::activeModalWidget();
    if (davor == nullptr && haupt == nullptr && !QApplication::topLevelWidgets().isEmpty()) {
        const QWidgetList alle = QApplication::topLevelWidgets();
        const auto sichtbar = std::ranges::find_if(alle, [](const QWidget* f) { return f->isVisible(); });
        davor = sichtbar == alle.end() ? nullptr : *sichtbar;
    }
    if (davor != nullptr) {
        Hervorholen(davor);
    }
}

bool WuenscheErfuellen() {
    while (!wuensche.empty() && Frei()) {
        const Oeffnungszeit jetzt;
        const QString nativ = wuensche.front();
        wuensche.pop_front();
        Oeffnen(nativ);
    }
    return wuensche.empty();
}
