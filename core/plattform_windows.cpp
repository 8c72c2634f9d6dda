#include "core/plattform.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSaveFile>

#include <windows.h>
// mmsystem.h needs windows.h ahead of it.
#include <mmsystem.h>

namespace plattform {

namespace {

// The run-time error for the system's last error, on reading or on writing.
[[nodiscard]] Laufzeitfehler Systemfehler(bool lesen) {
    switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
        return Laufzeitfehler(Fehler::DateiNichtGefunden);
    case ERROR_PATH_NOT_FOUND:
        return Laufzeitfehler(lesen ? Fehler::DateiNichtGefunden : Fehler::PfadNichtGefunden);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return Laufzeitfehler(lesen ? Fehler::DateinameFalsch : Fehler::ZugriffVerweigert);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return Laufzeitfehler(Fehler::DatentraegerVoll);
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS:
    case ERROR_DIR_NOT_EMPTY:
        return Laufzeitfehler(Fehler::PfadZugriff);
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return Laufzeitfehler(Fehler::DateinameFalsch);
    case ERROR_NOT_READY:
        return Laufzeitfehler(Fehler::LaufwerkNichtBereit);
    case ERROR_BAD_UNIT:
    case ERROR_DEV_NOT_EXIST:
        return Laufzeitfehler(Fehler::GeraetFehlt);
    case ERROR_CRC:
    case ERROR_FILE_CORRUPT:
        return Laufzeitfehler(Fehler::MediumFehler);
    default:
        return Laufzeitfehler(Fehler::GeraetEA);
    }
}

void Gelungen(bool gelungen) {
    if (!gelungen) {
        throw Systemfehler(false);
    }
}

void Fuellen(QFileDevice& datei, std::string_view bytes) {
    const auto laenge = static_cast<qint64>(bytes.size());
    Gelungen(datei.write(bytes.data(), laenge) == laenge && datei.flush());
}

// Forces to the disk what the system still holds of a file.
void Erzwingen(const QString& pfad) {
    const std::wstring name = QDir::toNativeSeparators(pfad).toStdWString();
    const HANDLE datei = ::CreateFileW(name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
    Gelungen(datei != INVALID_HANDLE_VALUE);
    const bool erzwungen = ::FlushFileBuffers(datei) != 0;
    ::CloseHandle(datei);
    Gelungen(erzwungen);
}

} // namespace

Art ArtVon(const QString& pfad) noexcept {
    const QFileInfo info(pfad);
    return info.isDir()    ? Art::Ordner
           : info.isFile() ? Art::Datei
           : info.exists() ? Art::Anderes
                           : Art::Nichts;
}

Dateizustand Nachsehen(const QString& pfad) {
    const QFileInfo info(pfad);
    if (!info.exists()) {
        throw Laufzeitfehler(Fehler::DateiNichtGefunden);
    }
    return {ArtVon(pfad), info.size(), info.lastModified().toSecsSinceEpoch()};
}

std::vector<Eintrag> OrdnerLesen(const QString& ordner) {
    if (ArtVon(ordner) != Art::Ordner) {
        throw Laufzeitfehler(Fehler::PfadNichtGefunden);
    }
    std::vector<Eintrag> eintraege;
    QDirIterator lauf(ordner, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (lauf.hasNext()) {
        lauf.next();
        eintraege.push_back({lauf.fileName(), lauf.fileInfo().isDir()});
    }
    return eintraege;
}

std::vector<QString> NamenLesen(const QString& ordner) {
    std::vector<QString> namen;
    for (const Eintrag& eintrag : OrdnerLesen(ordner)) {
        namen.push_back(eintrag.name);
    }
    return namen;
}

std::string Lesen(const QString& datei, std::size_t grenze) {
    QFile offen(datei);
    const Art art = ArtVon(datei);
    if (art != Art::Datei) {
        throw Laufzeitfehler(art == Art::Nichts ? Fehler::DateiNichtGefunden : Fehler::DateinameFalsch);
    }
    if (!offen.open(QIODevice::ReadOnly)) {
        throw Systemfehler(true);
    }
    const QByteArray bytes = offen.read(static_cast<qint64>(grenze) + 1);
    if (offen.error() != QFileDevice::NoError) {
        throw Systemfehler(true);
    }
    if (static_cast<std::size_t>(bytes.size()) > grenze) {
        throw Laufzeitfehler(Fehler::SpeicherVoll);
    }
    return bytes.toStdString();
}

bool DauerhaftErsetzen(const QString& ziel, std::string_view bytes) {
    const Art art = ArtVon(ziel);
    if (art == Art::Ordner || art == Art::Anderes) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    if (art == Art::Datei) {
        QFile probe(ziel);
        Gelungen(probe.open(QIODevice::ReadWrite)); // a write-protected file must not be replaced
    }
    QSaveFile neu(ziel); // commit forces the bytes to the disk ahead of the renaming
    if (!neu.open(QIODevice::WriteOnly)) {
        if (art == Art::Datei && ::GetLastError() == ERROR_ACCESS_DENIED) {
            return false;
        }
        throw Systemfehler(false);
    }
    Fuellen(neu, bytes);
    Gelungen(neu.commit());
    return true;
}

void ResteLoeschen(const QString& /*ordner*/) {
    // The names of QSaveFile's own new files can't be told from those of a user's.
}

void AnOrtUeberschreiben(const QString& ziel, std::string_view bytes) {
    QFile datei(ziel);
    Gelungen(datei.open(QIODevice::ReadWrite));
    Fuellen(datei, bytes);
    Gelungen(datei.resize(static_cast<qint64>(bytes.size())));
    datei.close();
    Erzwingen(ziel);
}

QString KopieAblegen(const QString& ziel, std::string_view bytes) {
    const QString name = QStringLiteral("Feldkranz-") + QFileInfo(ziel).fileName().left(60) +
                         QLatin1Char('-') + QString::number(QRandomGenerator::system()->generate64(), 16);
    const QString pfad = QDir::temp().filePath(name);
    QSaveFile kopie(pfad);
    Gelungen(kopie.open(QIODevice::WriteOnly));
    Fuellen(kopie, bytes);
    Gelungen(kopie.commit());
    return pfad;
}

void Loeschen(const QString& datei) {
    Gelungen(QFile::remove(datei));
}

void OrdnerAnlegen(const QString& ordner) {
    Gelungen(QDir().mkdir(ordner));
}

void OrdnerLoeschen(const QString& ordner) {
    Gelungen(QDir().rmdir(ordner));
}

std::vector<QString> Wurzeln() {
    std::vector<QString> wurzeln;
    for (const QFileInfo& laufwerk : QDir::drives()) {
        wurzeln.push_back(laufwerk.absolutePath());
    }
    return wurzeln;
}

bool TexteditorStarten(const QString& datei) {
    return QProcess::startDetached(QStringLiteral("notepad.exe"), {QDir::toNativeSeparators(datei)});
}

bool ProzesseAbschirmbar() {
    return true;
}

bool KlangAbspielen(const QString& datei) {
    const std::wstring pfad = QDir::toNativeSeparators(datei).toStdWString();
    return ::sndPlaySoundW(pfad.c_str(), SND_SYNC) != 0;
}

} // namespace plattform
