#include "core/plattform.h"
#include "core/plattform_windows.h"

#include <QDir>
#include <QProcess>

// These need windows.h ahead of them.
#include <mmsystem.h>
#include <shellapi.h>

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

std::vector<Argument> Argumente(int /*anzahl*/, const char* const* /*argumente*/) {
    // The ones that main is given hold the characters of one code page only.
    std::vector<Argument> alle;
    int anzahl = 0;
    wchar_t** const zeilen = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    for (int i = 1; zeilen != nullptr && i < anzahl; ++i) {
        const QString argument = QString::fromWCharArray(zeilen[i]);
        alle.push_back({QDir::fromNativeSeparators(argument), argument.toStdString()});
    }
    ::LocalFree(zeilen);
    return alle;
}

QString Anschluss(const QString& name) {
    return name; // a pipe: the system keeps them apart from files, and open to its maker only
}

} // namespace plattform
