#include "core/plattform_windows.h"

#include "core/plattform.h"
#include "core/windowsname.h"

#include <QDir>

#include <algorithm>
#include <vector>

namespace plattform {

namespace {

// A drive without a disk is an error of the call that met it, not a box of the system's in front of the
// program.
[[maybe_unused]] const UINT fehlerOhneKasten = ::SetErrorMode(SEM_FAILCRITICALERRORS);

constexpr std::wstring_view langerPfad = L"\\\\?\\";
constexpr std::wstring_view langerNetzpfad = L"\\\\?\\UNC\\";

[[nodiscard]] bool IstLaufwerk(const QString& teil) {
    return teil.size() == 2 && teil.at(0).isLetter() && teil.at(0).unicode() < 128 &&
           teil.at(1) == QLatin1Char(':');
}

[[nodiscard]] bool TeileErlaubt(const QString& pfad) {
    constexpr qsizetype laengster = 255; // that any file system takes
    const QStringList teile = pfad.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < teile.size(); ++i) {
        const QString& teil = teile.at(i);
        const bool laufwerk = i == 0 && IstLaufwerk(teil);
        if (!laufwerk && teil != QLatin1String(".") && teil != QLatin1String("..") &&
            (teil.size() > laengster || !WindowsnameErlaubt(teil.toStdString()))) {
            return false;
        }
    }
    return true;
}

// The path from its drive or server on, with "." and ".." gone.
[[nodiscard]] std::wstring Vollstaendig(const std::wstring& pfad) {
    std::wstring ganz(MAX_PATH, L'\0');
    DWORD laenge = ::GetFullPathNameW(pfad.c_str(), static_cast<DWORD>(ganz.size()), ganz.data(), nullptr);
    if (laenge > ganz.size()) {
        ganz.resize(laenge);
        laenge = ::GetFullPathNameW(pfad.c_str(), static_cast<DWORD>(ganz.size()), ganz.data(), nullptr);
    }
    if (laenge == 0 || laenge > ganz.size()) {
        throw Laufzeitfehler(Fehler::DateinameFalsch);
    }
    ganz.resize(laenge);
    return ganz;
}

// Opens a regular file for reading. What else stands there isn't opened at all.
[[nodiscard]] Griff RegulaereOeffnen(const std::wstring& pfad) {
    if (Befragen(pfad).ordner()) {
        throw Laufzeitfehler(Fehler::DateinameFalsch);
    }
    Griff datei(::CreateFileW(pfad.c_str(), GENERIC_READ, allesTeilen, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!datei.offen()) {
        throw Lesefehler(::GetLastError());
    }
    if (::GetFileType(datei.griff()) != FILE_TYPE_DISK) {
        throw Laufzeitfehler(Fehler::DateinameFalsch);
    }
    return datei;
}

// Reads on until the end or until the room is full; returns the bytes read.
[[nodiscard]] std::size_t Auffuellen(const Griff& datei, char* ziel, std::size_t raum) {
    constexpr std::size_t stueck = std::size_t{1} << 24U;
    std::size_t gelesen = 0;
    while (gelesen < raum) {
        DWORD anzahl = 0;
        const auto wunsch = static_cast<DWORD>(std::min(raum - gelesen, stueck));
        if (::ReadFile(datei.griff(), ziel + gelesen, wunsch, &anzahl, nullptr) == 0) {
            throw Lesefehler(::GetLastError());
        }
        if (anzahl == 0) {
            break;
        }
        gelesen += anzahl;
    }
    return gelesen;
}

} // namespace

Griff& Griff::operator=(Griff&& anderer) noexcept {
    if (this != &anderer) {
        Schliessen();
        griff_ = std::exchange(anderer.griff_, INVALID_HANDLE_VALUE);
    }
    return *this;
}

void Griff::Schliessen() noexcept {
    if (offen()) {
        ::CloseHandle(std::exchange(griff_, INVALID_HANDLE_VALUE));
    }
}

std::wstring Systempfad(const QString& pfad) {
    QString eigen = QDir::toNativeSeparators(pfad);
    if (eigen.startsWith(QString::fromWCharArray(langerNetzpfad.data(), langerNetzpfad.size()))) {
        eigen = QStringLiteral("\\\\") + eigen.mid(static_cast<qsizetype>(langerNetzpfad.size()));
    } else if (eigen.startsWith(QString::fromWCharArray(langerPfad.data(), langerPfad.size()))) {
        eigen = eigen.mid(static_cast<qsizetype>(langerPfad.size()));
    }
    if (eigen.isEmpty() || eigen.contains(QChar()) || !TeileErlaubt(eigen)) {
        throw Laufzeitfehler(Fehler::DateinameFalsch);
    }
    if (IstLaufwerk(eigen)) {
        eigen += QLatin1Char('\\'); // or it would be the folder that is the current one there
    }
    const std::wstring ganz = Vollstaendig(eigen.toStdWString());
    return ganz.starts_with(L"\\\\") ? std::wstring(langerNetzpfad) + ganz.substr(2)
                                     : std::wstring(langerPfad) + ganz;
}

std::string Lesen(const QString& datei, std::size_t grenze) {
    const Griff offen = RegulaereOeffnen(Systempfad(datei));
    LARGE_INTEGER groesse{};
    if (::GetFileSizeEx(offen.griff(), &groesse) == 0) {
        throw Lesefehler(::GetLastError());
    }
    // The size is a hint only: the file may grow meanwhile. One byte more than expected shows the end.
    const auto erwartet = static_cast<std::size_t>(groesse.QuadPart);
    std::size_t raum = std::max<std::size_t>(erwartet, 4095) + 1;
    std::string bytes;
    for (std::size_t gelesen = 0; erwartet <= grenze; raum *= 2) {
        bytes.resize(raum);
        gelesen += Auffuellen(offen, bytes.data() + gelesen, raum - gelesen);
        if (gelesen > grenze) {
            break;
        }
        if (gelesen < raum) {
            bytes.resize(gelesen);
            return bytes;
        }
    }
    throw Laufzeitfehler(Fehler::SpeicherVoll);
}

} // namespace plattform
