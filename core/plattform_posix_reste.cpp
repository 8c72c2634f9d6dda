#include "core/plattform.h"
#include "core/plattform_posix_ziel.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plattform {

namespace {

constexpr std::string_view anfang = ".feldkranz-";
constexpr std::string_view endung = ".neu";

// A scrap is locked before it goes, so that its maker, who comes for the lock too, sees that it has gone.
void VerwaistenLoeschen(int ordner, const std::string& name) {
    const Deskriptor datei(Wiederholt([&] {
        return ::openat(ordner, name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    }));
    struct stat zustand {};
    if (datei.offen() && ::fstat(datei.nummer(), &zustand) == 0 && S_ISREG(zustand.st_mode) &&
        Wiederholt([&] { return ::flock(datei.nummer(), LOCK_EX | LOCK_NB); }) == 0) {
        ::unlinkat(ordner, name.c_str(), 0);
    }
}

} // namespace

std::string Restname(std::string_view nummer) {
    return std::string(anfang).append(nummer).append(endung);
}

bool IstRestname(std::string_view name) {
    constexpr std::size_t laengste = 16;
    if (!name.starts_with(anfang) || !name.ends_with(endung) ||
        name.size() <= anfang.size() + endung.size()) {
        return false;
    }
    name.remove_prefix(anfang.size());
    name.remove_suffix(endung.size());
    return name.size() <= laengste && name.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

void ResteLoeschen(const QString& ordner) {
    try {
        const Deskriptor offener = OrdnerOeffnen(GueltigerPfad(ordner));
        for (const QString& name : NamenLesen(ordner)) {
            if (const std::string bytes = Pfadbytes(name); IstRestname(bytes)) {
                VerwaistenLoeschen(offener.nummer(), bytes);
            }
        }
    } catch (const Laufzeitfehler&) {
        // A folder that can't be read keeps what it has.
    }
}

} // namespace plattform
