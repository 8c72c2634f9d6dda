#include "tests/zufall/gehege.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <pwd.h>
#include <unistd.h>

namespace {

QStringList Draussen() {
    const QDir eigener(QDir::tempPath());
    QStringList ordner{QStringLiteral("/"),
                       QStringLiteral("/tmp"),
                       QStringLiteral("/var/tmp"),
                       QStringLiteral("/dev/shm"),
                       QCoreApplication::applicationDirPath(),
                       QStringLiteral(FELDKRANZ_QUELLEN),
                       QStringLiteral(FELDKRANZ_QUELLEN "/data"),
                       QDir::cleanPath(eigener.filePath(QStringLiteral("..")))};
    if (const passwd* wer = getpwuid(getuid()); wer != nullptr) {
        ordner.append(QString::fromLocal8Bit(wer->pw_dir));
    }
    ordner.append(QStringLiteral("/root"));
    return ordner;
}

} // namespace

QStringList OffeneTueren() {
    QStringList offen;
    const QString eigener = QDir(QDir::tempPath()).canonicalPath();
    for (const QString& ordner : Draussen()) {
        const QString dort = QDir(ordner).canonicalPath();
        if (dort == eigener || dort.startsWith(eigener + u'/')) {
            offen.append(dort + QStringLiteral(" is the own folder"));
            continue;
        }
        QFile probe(ordner + QStringLiteral("/.zufall_%1").arg(getpid()));
        if (probe.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            probe.remove();
            offen.append(ordner);
        }
    }
    return offen;
}
