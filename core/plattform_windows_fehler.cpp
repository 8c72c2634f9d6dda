#include "core/plattform_windows.h"

#include <algorithm>
#include <array>

namespace plattform {

namespace {

struct Fehlerzeile {
    DWORD fehlercode;
    Fehler lesen;
    Fehler schreiben;
};

// Codes that the compiler's headers don't know yet.
constexpr DWORD fehlerVirus = 225;
constexpr DWORD fehlerGeraetUnbekannt = 433;
constexpr DWORD fehlerLinkInDerMitte = 681;
constexpr DWORD fehlerKontingent = 1295;

// Reasons that come with several codes each.
constexpr std::pair nichtDa{Fehler::DateiNichtGefunden, Fehler::PfadNichtGefunden};
constexpr std::pair andersArtig{Fehler::DateinameFalsch, Fehler::PfadZugriff};
constexpr std::pair verboten{Fehler::DateinameFalsch, Fehler::ZugriffVerweigert};
constexpr std::pair unmoeglich{Fehler::DateinameFalsch, Fehler::DateinameFalsch};
constexpr std::pair voll{Fehler::GeraetEA, Fehler::DatentraegerVoll};
constexpr std::pair keinSpeicher{Fehler::SpeicherVoll, Fehler::SpeicherVoll};
constexpr std::pair geraetFort{Fehler::GeraetFehlt, Fehler::GeraetFehlt};
constexpr std::pair nichtBereit{Fehler::LaufwerkNichtBereit, Fehler::LaufwerkNichtBereit};
constexpr std::pair beschaedigt{Fehler::MediumFehler, Fehler::MediumFehler};

constexpr Fehlerzeile Zeile(DWORD fehlercode, std::pair<Fehler, Fehler> grund) {
    return {fehlercode, grund.first, grund.second};
}

// Lasting reasons first, then what another try may mend. What the table doesn't know, and what is known as a
// failure of the device, is 57, which leaves the user the choice to try again or to leave off.
constexpr std::array fehlertabelle{
    Zeile(ERROR_FILE_NOT_FOUND, nichtDa),
    Zeile(ERROR_PATH_NOT_FOUND, nichtDa),
    Zeile(ERROR_INVALID_DRIVE, nichtDa),
    Zeile(ERROR_DIRECTORY, nichtDa), // a file where a folder should be
    Zeile(ERROR_ALREADY_EXISTS, andersArtig),
    Zeile(ERROR_FILE_EXISTS, andersArtig),
    Zeile(ERROR_DIR_NOT_EMPTY, andersArtig),
    Zeile(ERROR_CURRENT_DIRECTORY, andersArtig),
    Zeile(ERROR_ACCESS_DENIED, verboten),
    Zeile(ERROR_WRITE_PROTECT, verboten),
    Zeile(ERROR_SHARING_VIOLATION, verboten),
    Zeile(ERROR_LOCK_VIOLATION, verboten),
    Zeile(ERROR_USER_MAPPED_FILE, verboten),
    Zeile(ERROR_NETWORK_ACCESS_DENIED, verboten),
    Zeile(ERROR_PRIVILEGE_NOT_HELD, verboten),
    Zeile(ERROR_LOGON_FAILURE, verboten),
    Zeile(ERROR_CANT_ACCESS_FILE, verboten),
    Zeile(ERROR_FILE_READ_ONLY, verboten),
    Zeile(fehlerVirus, verboten),
    Zeile(ERROR_INVALID_NAME, unmoeglich),
    Zeile(ERROR_BAD_PATHNAME, unmoeglich),
    Zeile(ERROR_FILENAME_EXCED_RANGE, unmoeglich),
    Zeile(ERROR_BUFFER_OVERFLOW, unmoeglich), // a name longer than any file system takes
    Zeile(ERROR_INVALID_PARAMETER, unmoeglich),
    Zeile(ERROR_CANT_RESOLVE_FILENAME, unmoeglich),
    Zeile(fehlerLinkInDerMitte, unmoeglich),
    Zeile(ERROR_NO_UNICODE_TRANSLATION, unmoeglich),
    Zeile(ERROR_DISK_FULL, voll),
    Zeile(ERROR_HANDLE_DISK_FULL, voll),
    Zeile(fehlerKontingent, voll),
    Fehlerzeile{ERROR_FILE_TOO_LARGE, Fehler::SpeicherVoll, Fehler::DatentraegerVoll},
    Zeile(ERROR_NOT_ENOUGH_MEMORY, keinSpeicher),
    Zeile(ERROR_OUTOFMEMORY, keinSpeicher),
    Zeile(ERROR_NO_SYSTEM_RESOURCES, keinSpeicher),
    Zeile(ERROR_BAD_UNIT, geraetFort),
    Zeile(ERROR_DEV_NOT_EXIST, geraetFort),
    Zeile(ERROR_DEVICE_NOT_CONNECTED, geraetFort),
    Zeile(ERROR_DEVICE_REMOVED, geraetFort),
    Zeile(fehlerGeraetUnbekannt, geraetFort),
    Zeile(ERROR_FILE_INVALID, geraetFort), // the volume was changed behind an open file
    Zeile(ERROR_REM_NOT_LIST, geraetFort),
    Zeile(ERROR_BAD_NETPATH, geraetFort),
    Zeile(ERROR_BAD_NET_NAME, geraetFort),
    Zeile(ERROR_BAD_DEV_TYPE, geraetFort),
    Zeile(ERROR_NETNAME_DELETED, geraetFort),
    Zeile(ERROR_NETWORK_BUSY, geraetFort),
    Zeile(ERROR_UNEXP_NET_ERR, geraetFort),
    Zeile(ERROR_SEM_TIMEOUT, geraetFort),
    Zeile(ERROR_NETWORK_UNREACHABLE, geraetFort),
    Zeile(ERROR_HOST_UNREACHABLE, geraetFort),
    Zeile(ERROR_CONNECTION_ABORTED, geraetFort),
    Zeile(ERROR_NOT_READY, nichtBereit),
    Zeile(ERROR_NO_MEDIA_IN_DRIVE, nichtBereit),
    Zeile(ERROR_MEDIA_CHANGED, nichtBereit),
    Zeile(ERROR_WRONG_DISK, nichtBereit),
    Zeile(ERROR_DRIVE_LOCKED, nichtBereit),
    Zeile(ERROR_BUSY, nichtBereit),
    Zeile(ERROR_FILE_CORRUPT, beschaedigt),
    Zeile(ERROR_DISK_CORRUPT, beschaedigt),
    Zeile(ERROR_UNRECOGNIZED_VOLUME, beschaedigt),
    Zeile(ERROR_UNRECOGNIZED_MEDIA, beschaedigt),
};

[[nodiscard]] Laufzeitfehler Uebersetzt(DWORD fehlercode, Fehler Fehlerzeile::*spalte) {
    const auto zeile = std::ranges::find(fehlertabelle, fehlercode, &Fehlerzeile::fehlercode);
    return Laufzeitfehler(zeile == fehlertabelle.end() ? Fehler::GeraetEA : (*zeile).*spalte);
}

} // namespace

Laufzeitfehler Lesefehler(DWORD fehlercode) {
    return Uebersetzt(fehlercode, &Fehlerzeile::lesen);
}

Laufzeitfehler Schreibfehler(DWORD fehlercode) {
    return Uebersetzt(fehlercode, &Fehlerzeile::schreiben);
}

} // namespace plattform
