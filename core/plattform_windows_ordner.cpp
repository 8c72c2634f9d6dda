#include "core/plattform.h"
#include "core/plattform_windows.h"

#include <algorithm>
#include <array>

namespace plattform {

namespace {

// Seconds since 1970; the system counts tenths of microseconds since 1601.
[[nodiscard]] std::int64_t SeitSiebzig(FILETIME zeit) {
    constexpr std::int64_t jeSekunde = 10'000'000;
    constexpr std::int64_t bisSiebzig = 11'644'473'600;
    const std::int64_t zaehler = (static_cast<std::int64_t>(zeit.dwHighDateTime) << 32) |
                                 static_cast<std::int64_t>(zeit.dwLowDateTime);
    return zaehler / jeSekunde - bisSiebzig;
}

[[nodiscard]] std::int64_t Zahl(DWORD hoch, DWORD niedrig) {
    return (static_cast<std::int64_t>(hoch) << 32) | static_cast<std::int64_t>(niedrig);
}

class Suche {
public:
    Suche(const std::wstring& muster, WIN32_FIND_DATAW& eintrag)
        : griff_(::FindFirstFileExW(muster.c_str(), FindExInfoBasic, &eintrag, FindExSearchNameMatch, nullptr,
                                    FIND_FIRST_EX_LARGE_FETCH)) {}
    ~Suche() {
        if (gefunden()) {
            ::FindClose(griff_);
        }
    }
    Suche(const Suche&) = delete;
    Suche& operator=(const Suche&) = delete;
    Suche(Suche&&) = delete;
    Suche& operator=(Suche&&) = delete;

    [[nodiscard]] bool gefunden() const noexcept { return griff_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] bool Weiter(WIN32_FIND_DATAW& eintrag) { return ::FindNextFileW(griff_, &eintrag) != 0; }

private:
    HANDLE griff_;
};

// Calls tun with each entry of the folder but "." and "..".
template <typename Tun>
void JederEintrag(const QString& ordner, Tun tun) {
    const std::wstring pfad = Systempfad(ordner);
    if (const DWORD attribute = ::GetFileAttributesW(pfad.c_str());
        attribute == INVALID_FILE_ATTRIBUTES || (attribute & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        throw Schreibfehler(attribute == INVALID_FILE_ATTRIBUTES ? ::GetLastError() : ERROR_DIRECTORY);
    }
    WIN32_FIND_DATAW eintrag{};
    Suche suche(pfad + (pfad.ends_with(L'\\') ? L"*" : L"\\*"), eintrag);
    bool da = suche.gefunden();
    while (da) {
        if (const std::wstring_view name(&eintrag.cFileName[0]); name != L"." && name != L"..") {
            tun(eintrag);
        }
        da = suche.Weiter(eintrag);
    }
    // The root of an empty drive holds nothing at all, not even itself.
    if (const DWORD ende = ::GetLastError(); ende != ERROR_NO_MORE_FILES && ende != ERROR_FILE_NOT_FOUND) {
        throw Schreibfehler(ende);
    }
}

[[nodiscard]] QString Name(const WIN32_FIND_DATAW& eintrag) {
    return QString::fromWCharArray(&eintrag.cFileName[0]);
}

// A drive letter that a user knows: its disk is there. A share of the network isn't looked at, it might take
// long to say no.
[[nodiscard]] bool MitDatentraeger(const std::wstring& wurzel) {
    const UINT art = ::GetDriveTypeW(wurzel.c_str());
    if (art == DRIVE_REMOVABLE || art == DRIVE_CDROM) {
        return ::GetVolumeInformationW(wurzel.c_str(), nullptr, 0, nullptr, nullptr, nullptr, nullptr, 0) !=
               0;
    }
    return art == DRIVE_FIXED || art == DRIVE_REMOTE || art == DRIVE_RAMDISK;
}

[[nodiscard]] wchar_t Systemlaufwerk() {
    std::array<wchar_t, MAX_PATH> ordner{};
    return ::GetWindowsDirectoryW(ordner.data(), static_cast<UINT>(ordner.size())) > 0 ? ordner[0] : L'C';
}

} // namespace

Befund Befragen(const std::wstring& pfad) {
    WIN32_FILE_ATTRIBUTE_DATA kurz{};
    if (::GetFileAttributesExW(pfad.c_str(), GetFileExInfoStandard, &kurz) == 0) {
        throw Lesefehler(::GetLastError());
    }
    if ((kurz.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return {kurz.dwFileAttributes, Zahl(kurz.nFileSizeHigh, kurz.nFileSizeLow),
                SeitSiebzig(kurz.ftLastWriteTime)};
    }
    const Griff ziel(::CreateFileW(pfad.c_str(), FILE_READ_ATTRIBUTES, allesTeilen, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION lang{};
    if (!ziel.offen() || ::GetFileInformationByHandle(ziel.griff(), &lang) == 0) {
        throw Lesefehler(::GetLastError());
    }
    return {lang.dwFileAttributes, Zahl(lang.nFileSizeHigh, lang.nFileSizeLow),
            SeitSiebzig(lang.ftLastWriteTime)};
}

Art ArtVon(const QString& pfad) noexcept {
    try {
        return Nachsehen(pfad).art;
    } catch (const std::exception&) {
        return Art::Nichts; // what can't be reached isn't there for the caller
    }
}

Dateizustand Nachsehen(const QString& pfad) {
    const Befund befund = Befragen(Systempfad(pfad));
    return {befund.ordner() ? Art::Ordner : Art::Datei, befund.groesse, befund.geaendert};
}

std::vector<QString> NamenLesen(const QString& ordner) {
    std::vector<QString> namen;
    JederEintrag(ordner, [&](const WIN32_FIND_DATAW& eintrag) { namen.push_back(Name(eintrag)); });
    return namen;
}

std::vector<Eintrag> OrdnerLesen(const QString& ordner) {
    std::vector<Eintrag> eintraege;
    JederEintrag(ordner, [&](const WIN32_FIND_DATAW& eintrag) {
        if ((eintrag.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) == 0) {
            eintraege.push_back({Name(eintrag), (eintrag.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
        }
    });
    return eintraege;
}

void Loeschen(const QString& datei) {
    const std::wstring pfad = Systempfad(datei);
    // A name that isn't there is the file's fault here, not the folder's.
    const Befund befund = Befragen(pfad);
    if (befund.ordner()) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    if (befund.schreibgeschuetzt()) {
        throw Laufzeitfehler(Fehler::ZugriffVerweigert);
    }
    if (::DeleteFileW(pfad.c_str()) == 0) {
        const DWORD fehler = ::GetLastError();
        throw fehler == ERROR_FILE_NOT_FOUND ? Lesefehler(fehler) : Schreibfehler(fehler);
    }
}

void OrdnerAnlegen(const QString& ordner) {
    if (::CreateDirectoryW(Systempfad(ordner).c_str(), nullptr) == 0) {
        throw Schreibfehler(::GetLastError());
    }
}

void OrdnerLoeschen(const QString& ordner) {
    if (::RemoveDirectoryW(Systempfad(ordner).c_str()) == 0) {
        throw Schreibfehler(::GetLastError());
    }
}

std::vector<QString> Wurzeln() {
    std::vector<QString> wurzeln;
    const wchar_t system = Systemlaufwerk();
    for (wchar_t buchstabe = L'A'; buchstabe <= L'Z'; ++buchstabe) {
        const std::wstring wurzel{buchstabe, L':', L'\\'};
        if (MitDatentraeger(wurzel)) {
            const auto stelle = buchstabe == system ? wurzeln.begin() : wurzeln.end();
            wurzeln.insert(stelle, QString(QChar(buchstabe)) + QStringLiteral(":/"));
        }
    }
    return wurzeln;
}

} // namespace plattform
