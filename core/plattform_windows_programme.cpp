#include "core/plattform.h"
#include "core/plattform_windows.h"

#include <QDir>
#include <QProcess>

// mmsystem.h needs windows.h ahead of it.
#include <mmsystem.h>

namespace plattform {

bool TexteditorStarten(const QString& datei) {
    return QProcess::startDetached(QStringLiteral("notepad.exe"), {QDir::toNativeSeparators(datei)});
}

bool ProzesseAbschirmbar() {
    return true;
}

bool KlangAbspielen(const QString& datei) {
    if (ArtVon(datei) != Art::Datei) {
        return false;
    }
    // The system's player waits for nobody, and a file of ours ends in time. It knows no paths with the
    // prefix for long ones.
    const std::wstring pfad = QDir::toNativeSeparators(datei).toStdWString();
    return ::PlaySoundW(pfad.c_str(), nullptr, SND_FILENAME | SND_SYNC | SND_NODEFAULT) != 0;
}

} // namespace plattform
