// A folder of the test's own, seen as the program sees it, and the number of the error that a call ends in.
#pragma once

#include "core/laufzeitfehler.h"
#include "core/pfad.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <string>

class Windowsordner {
public:
    // The path in the program's own notation.
    [[nodiscard]] std::string eigen(const std::string& name) const {
        return EigenerPfad(nativ(QString::fromStdString(name)));
    }
    [[nodiscard]] QString nativ(const QString& name) const { return ordner_.filePath(name); }
    void schreiben(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(nativ(name)).path());
        QFile datei(nativ(name));
        if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size()) {
            qFatal("Can't write %s", qPrintable(datei.fileName()));
        }
    }
    [[nodiscard]] std::string lesen(const QString& name) const {
        QFile datei(nativ(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll().toStdString() : "nothing there";
    }
    // Sorted, hidden ones too.
    [[nodiscard]] QStringList namen(const QString& darunter = {}) const {
        QStringList namen =
            QDir(nativ(darunter))
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        namen.sort();
        return namen;
    }

private:
    QTemporaryDir ordner_;
};

// 0 for none.
template <typename Tun>
int FehlerVon(Tun tun) {
    try {
        tun();
        return 0;
    } catch (const Laufzeitfehler& fehler) {
        return fehler.nummer();
    }
}
