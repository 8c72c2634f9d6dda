#include "filetools/ordnerwaechter.h"

#include <QFileInfo>

#include <utility>

namespace {

constexpr int sammelzeit = 80; // milliseconds

} // namespace

Ordnerwaechter::Ordnerwaechter(QObject* eltern, std::function<void()> geaendert) : QObject(eltern) {
    sammeln_.setSingleShot(true);
    sammeln_.setInterval(sammelzeit);
    connect(&waechter_, &QFileSystemWatcher::directoryChanged, this, &Ordnerwaechter::Gemeldet);
    connect(&sammeln_, &QTimer::timeout, this, [this, hoerer = std::move(geaendert)] {
        Nachziehen(); // once more: what came back meanwhile isn't watched yet
        hoerer();
    });
}

void Ordnerwaechter::Beobachten(const QString& ordner) {
    if (ordner == ordner_) {
        Nachziehen();
        return;
    }
    ordner_ = ordner;
    if (const QStringList bisher = waechter_.directories(); !bisher.isEmpty()) {
        waechter_.removePaths(bisher);
    }
    Nachziehen();
}

// The folder above tells when this one comes back.
void Ordnerwaechter::Nachziehen() {
    const QStringList beobachtet = waechter_.directories();
    for (const QString& pfad : {QFileInfo(ordner_).path(), ordner_}) {
        if (!beobachtet.contains(pfad) && QFileInfo(pfad).isDir()) {
            waechter_.addPath(pfad); // without a watch the list is read anew when its window is activated
        }
    }
}

void Ordnerwaechter::Gemeldet(const QString& pfad) {
    if (pfad != ordner_) {
        waechter_.removePath(ordner_); // it may be another folder of that name by now
    }
    Nachziehen();
    if (!sammeln_.isActive()) {
        sammeln_.start();
    }
}
