#include "tests/hilfe/programmordner.h"

#include "core/programmstand.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <filesystem>
#include <system_error>

namespace {

const QStringList unterordner{QStringLiteral("BITMAP"), QStringLiteral("CONFIG"), QStringLiteral("KRANZ"),
                              QStringLiteral("REGEL"),  QStringLiteral("SOUND"),  QStringLiteral("TEST"),
                              QStringLiteral("WISSEN")};

void Kopieren(const QString& quelle, const QString& ziel) {
    QDir().mkpath(ziel);
    QDirIterator lauf(quelle, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                      QDirIterator::Subdirectories);
    while (lauf.hasNext()) {
        lauf.next();
        const QString dort = ziel + QLatin1Char('/') + QDir(quelle).relativeFilePath(lauf.filePath());
        if (lauf.fileInfo().isDir()) {
            QDir().mkpath(dort);
        } else if (lauf.fileName() != QLatin1String(".gitkeep")) {
            QDir().mkpath(QFileInfo(dort).path());
            // The toolkit's copy waits for the disk at each of some hundred files.
            std::error_code fehler;
            std::filesystem::copy_file(lauf.filePath().toStdString(), dort.toStdString(), fehler);
            if (fehler) {
                qFatal("Can't copy %s", qPrintable(lauf.filePath()));
            }
            // A read-only checkout mustn't make the copies read-only.
            QFile::setPermissions(dort, QFile::permissions(dort) | QFile::WriteOwner | QFile::ReadOwner);
        }
    }
}

// The path in the program's own notation, done here so that the helper doesn't lean on what it helps to test.
std::string MitRueckstrichen(QString pfad) {
    return pfad.replace(QLatin1Char('/'), QLatin1Char('\\')).toStdString();
}

} // namespace

Programmordner::Programmordner() : vorher_(Stand.AppPfad) {
    if (!ordner_.isValid()) {
        qFatal("No temporary folder: %s", qPrintable(ordner_.errorString()));
    }
    for (const QString& name : unterordner) {
        Kopieren(QStringLiteral(FELDKRANZ_DATEN "/") + name, ordner_.filePath(name));
    }
    Stand.AppPfad = MitRueckstrichen(ordner_.path());
}

Programmordner::~Programmordner() {
    Stand.AppPfad = vorher_;
}

void Programmordner::schreiben(const QString& darunter, const QByteArray& bytes) const {
    QFile datei(nativ(darunter));
    QDir().mkpath(QFileInfo(datei).path());
    if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size()) {
        qFatal("Can't write %s: %s", qPrintable(datei.fileName()), qPrintable(datei.errorString()));
    }
}

QByteArray Programmordner::lesen(const QString& darunter) const {
    QFile datei(nativ(darunter));
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

bool Programmordner::vorhanden(const QString& darunter) const {
    return QFileInfo::exists(nativ(darunter));
}
