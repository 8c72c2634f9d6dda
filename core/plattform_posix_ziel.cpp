#include "core/plattform_posix_ziel.h"

#include <array>

#include <fcntl.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

namespace plattform {

namespace {

[[nodiscard]] std::string Ordnerteil(const std::string& pfad) {
    const auto trenner = pfad.rfind('/');
    return trenner == std::string::npos ? "./" : pfad.substr(0, trenner + 1);
}

// The path behind the links that its last part may consist of; the target need not exist.
[[nodiscard]] std::string LinksFolgen(std::string pfad) {
    constexpr int hoechstzahl = 40; // as the system itself counts
    for (int i = 0; i < hoechstzahl; ++i) {
        std::array<char, 4096> puffer{};
        const ssize_t laenge = ::readlink(pfad.c_str(), puffer.data(), puffer.size());
        if (laenge < 0) {
            return pfad; // no link; any other reason shows again at the next call
        }
        const std::string verweis(puffer.data(), static_cast<std::size_t>(laenge));
        pfad = verweis.starts_with('/') ? std::string() : Ordnerteil(pfad);
        pfad += verweis;
    }
    throw Schreibfehler(ELOOP);
}

// Access lists and the user's own attributes; a file system without them has none to keep.
void AttributeUebernehmen([[maybe_unused]] const std::string& alt, [[maybe_unused]] int neu) {
#ifdef Q_OS_LINUX
    std::array<char, 4096> namen{};
    const ssize_t laenge = ::listxattr(alt.c_str(), namen.data(), namen.size());
    std::string_view rest(namen.data(), laenge > 0 ? static_cast<std::size_t>(laenge) : 0);
    while (!rest.empty()) {
        const std::string name(rest.substr(0, rest.find('\0')));
        rest.remove_prefix(name.size() + 1);
        std::array<char, 4096> wert{};
        const ssize_t groesse = ::getxattr(alt.c_str(), name.c_str(), wert.data(), wert.size());
        if (groesse >= 0 && (name.starts_with("user.") || name == "system.posix_acl_access")) {
            static_cast<void>(
                ::fsetxattr(neu, name.c_str(), wert.data(), static_cast<std::size_t>(groesse), 0));
        }
    }
#endif
}

} // namespace

Deskriptor OrdnerOeffnen(const std::string& pfad) {
    int nummer = ::open(pfad.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
#ifdef O_PATH
    if (nummer < 0 && errno == EACCES) {
        nummer = ::open(pfad.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); // entered but not listed
    }
#endif
    if (nummer < 0) {
        throw Schreibfehler(errno);
    }
    return Deskriptor(nummer);
}

Deskriptor ZumSchreibenOeffnen(int ordner, const std::string& name) {
    Deskriptor datei(Wiederholt(
        [&] { return ::openat(ordner, name.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    struct stat zustand {};
    if (!datei.offen() || ::fstat(datei.nummer(), &zustand) != 0) {
        throw Schreibfehler(errno);
    }
    if (!S_ISREG(zustand.st_mode)) {
        throw Schreibfehler(EISDIR);
    }
    return datei;
}

Zielort ZielFinden(const QString& ziel) {
    Zielort ort;
    ort.pfad = LinksFolgen(GueltigerPfad(ziel));
    const std::string ordner = Ordnerteil(ort.pfad);
    ort.name = ort.pfad.substr(ort.pfad.rfind('/') + 1); // npos + 1 is 0
    if (ort.name.empty()) {
        throw Schreibfehler(EISDIR);
    }
    ort.ordner = OrdnerOeffnen(ordner);
    if (::fstatat(ort.ordner.nummer(), ort.name.c_str(), &ort.zustand, 0) == 0) {
        if (!S_ISREG(ort.zustand.st_mode)) {
            throw Schreibfehler(EISDIR); // asked before it is opened: opening a device may do something
        }
        static_cast<void>(ZumSchreibenOeffnen(ort.ordner.nummer(), ort.name));
        ort.vorhanden = true;
    } else if (errno != ENOENT) {
        throw Schreibfehler(errno);
    }
    return ort;
}

void EigenschaftenUebernehmen(const Zielort& ort, int neu) {
    const struct stat& alt = ort.zustand;
    mode_t modus = alt.st_mode & 0777U;
    struct stat jetzt {};
    const bool eigen = ::fstat(neu, &jetzt) == 0 && jetzt.st_uid == alt.st_uid && jetzt.st_gid == alt.st_gid;
    constexpr auto unveraendert = static_cast<uid_t>(-1);
    if (!eigen && ::fchown(neu, alt.st_uid, alt.st_gid) != 0 &&
        ::fchown(neu, unveraendert, alt.st_gid) != 0) {
        modus = (modus & 0707U) | ((modus & 07U) << 3U); // another group must not gain by the save
    }
    static_cast<void>(::fchmod(neu, modus)); // fails where the file system knows no permissions
    AttributeUebernehmen(ort.pfad, neu);
}

} // namespace plattform
