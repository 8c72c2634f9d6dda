#include "core/plattform.h"
#include "core/plattform_posix.h"

#include <QFile>
#include <QList>

#include <algorithm>
#include <array>
#include <memory>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plattform {

namespace {

[[nodiscard]] Art ArtAus(mode_t modus) noexcept {
    return S_ISREG(modus) ? Art::Datei : S_ISDIR(modus) ? Art::Ordner : Art::Anderes;
}

// The kind of a directory entry; links are followed, and a link to nowhere is Nichts.
[[nodiscard]] Art EintragsArt(DIR* ordner, const dirent& eintrag) {
    if (eintrag.d_type == DT_REG || eintrag.d_type == DT_DIR) {
        return eintrag.d_type == DT_REG ? Art::Datei : Art::Ordner;
    }
    struct stat zustand {};
    const char* name = &eintrag.d_name[0];
    return ::fstatat(::dirfd(ordner), name, &zustand, 0) == 0 ? ArtAus(zustand.st_mode) : Art::Nichts;
}

struct OrdnerSchliesser {
    void operator()(DIR* ordner) const noexcept { ::closedir(ordner); }
};

// Calls tun with the open folder and each entry but "." and "..".
template <typename Tun>
void JederEintrag(const QString& ordner, Tun tun) {
    const std::string bytes = GueltigerPfad(ordner);
    const std::unique_ptr<DIR, OrdnerSchliesser> offen(::opendir(bytes.c_str()));
    if (!offen) {
        throw Schreibfehler(errno);
    }
    errno = 0;
    while (const dirent* eintrag = ::readdir(offen.get())) {
        const std::string_view name(&eintrag->d_name[0]);
        if (name != "." && name != "..") {
            tun(offen.get(), *eintrag);
        }
        errno = 0;
    }
    if (errno != 0) {
        throw Schreibfehler(errno);
    }
}

// A mount point as the table of mounts writes it: blanks and their like as a backslash and three octal
// digits.
[[nodiscard]] QByteArray Entschluesselt(const QByteArray& feld) {
    QByteArray ergebnis;
    for (qsizetype i = 0; i < feld.size(); ++i) {
        bool oktal = false;
        const char zeichen =
            feld.at(i) == '\\' ? static_cast<char>(feld.mid(i + 1, 3).toUInt(&oktal, 8)) : feld.at(i);
        ergebnis += oktal ? zeichen : feld.at(i);
        i += oktal ? 3 : 0;
    }
    return ergebnis;
}

// A disk or a share of the network, not what the system mounts for itself. Looks at no network share, which
// might hang.
[[nodiscard]] bool FuerBenutzer(const QByteArray& geraet, const QByteArray& ort, const QByteArray& art) {
    constexpr std::array netz{"nfs", "nfs4", "cifs", "smb3", "fuse.sshfs", "9p", "davfs"};
    constexpr std::array system{"/boot", "/snap", "/var", "/etc", "/usr", "/run/", "/proc", "/sys", "/dev"};
    if (ort.startsWith("/run/media/")) {
        return true;
    }
    if (std::ranges::any_of(system, [&](const char* anfang) { return ort.startsWith(anfang); })) {
        return false;
    }
    if (std::ranges::any_of(netz, [&](const char* name) { return art == name; })) {
        return true;
    }
    return geraet.startsWith("/dev/") && art != "squashfs" &&
           ArtVon(AusPfadbytes({ort.constData(), static_cast<std::size_t>(ort.size())})) == Art::Ordner;
}

} // namespace

Art ArtVon(const QString& pfad) noexcept {
    try {
        return Nachsehen(pfad).art;
    } catch (const std::exception&) {
        return Art::Nichts; // what can't be reached isn't there for the caller
    }
}

Dateizustand Nachsehen(const QString& pfad) {
    const std::string bytes = GueltigerPfad(pfad);
    struct stat zustand {};
    if (Wiederholt([&] { return ::stat(bytes.c_str(), &zustand); }) != 0) {
        throw Lesefehler(errno);
    }
    return {ArtAus(zustand.st_mode), zustand.st_size, zustand.st_mtime};
}

std::vector<QString> NamenLesen(const QString& ordner) {
    std::vector<QString> namen;
    JederEintrag(ordner,
                 [&](DIR*, const dirent& eintrag) { namen.push_back(AusPfadbytes(&eintrag.d_name[0])); });
    return namen;
}

std::vector<Eintrag> OrdnerLesen(const QString& ordner) {
    std::vector<Eintrag> eintraege;
    JederEintrag(ordner, [&](DIR* offen, const dirent& eintrag) {
        const Art art = EintragsArt(offen, eintrag);
        if (art == Art::Datei || art == Art::Ordner) {
            eintraege.push_back({AusPfadbytes(&eintrag.d_name[0]), art == Art::Ordner});
        }
    });
    return eintraege;
}

void Loeschen(const QString& datei) {
    const std::string bytes = GueltigerPfad(datei);
    if (::unlink(bytes.c_str()) != 0) {
        // A name that isn't there is the file's fault here, not the folder's.
        throw errno == ENOENT ? Lesefehler(errno) : Schreibfehler(errno);
    }
}

void OrdnerAnlegen(const QString& ordner) {
    const std::string bytes = GueltigerPfad(ordner);
    if (::mkdir(bytes.c_str(), 0777) != 0) {
        throw Schreibfehler(errno);
    }
}

void OrdnerLoeschen(const QString& ordner) {
    const std::string bytes = GueltigerPfad(ordner);
    if (::rmdir(bytes.c_str()) != 0) {
        throw Schreibfehler(errno);
    }
}

std::vector<QString> Wurzeln() {
    std::vector<QString> wurzeln{QStringLiteral("/")};
    QFile tabelle(QStringLiteral("/proc/self/mounts"));
    if (!tabelle.open(QIODevice::ReadOnly)) {
        return wurzeln; // no such table on this system
    }
    const QList<QByteArray> zeilen = tabelle.readAll().split('\n');
    for (const QByteArray& zeile : zeilen) {
        const QList<QByteArray> felder = zeile.split(' ');
        if (felder.size() < 3) {
            continue;
        }
        const QByteArray ort = Entschluesselt(felder.at(1));
        const QString wurzel = AusPfadbytes({ort.constData(), static_cast<std::size_t>(ort.size())});
        if (FuerBenutzer(felder.at(0), ort, felder.at(2)) &&
            std::ranges::find(wurzeln, wurzel) == wurzeln.end()) {
            wurzeln.push_back(wurzel);
        }
    }
    return wurzeln;
}

} // namespace plattform
