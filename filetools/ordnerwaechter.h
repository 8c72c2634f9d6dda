// Tells when the content of a folder changes, when the folder goes and when it comes back. Reads no name:
// that is the listener's affair.
#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <functional>

class Ordnerwaechter : public QObject {
public:
    // The listener runs once for a burst of changes, a moment after the first of them.
    Ordnerwaechter(QObject* eltern, std::function<void()> geaendert);

    // The one folder to look at from now on, in the file system's notation; it need not exist.
    void Beobachten(const QString& ordner);

private:
    void Nachziehen();
    void Gemeldet(const QString& pfad);

    QFileSystemWatcher waechter_;
    QTimer sammeln_;
    QString ordner_;
};
