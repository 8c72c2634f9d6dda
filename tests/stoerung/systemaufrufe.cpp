// The system calls that a save or a load may make, asked of the Stoerung that lives before they are done.
#include "tests/stoerung/stoerung.h"

#include <cerrno>
#include <cstdarg>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

// What a rule does itself is let through and not asked about: the lock behind LaufendeStoerung is held
// already.
thread_local bool inDerRegel = false;

// Does the work with the Stoerung that lives; what there is without one is the result's default.
template <typename Arbeit>
auto MitStoerung(const Arbeit& arbeit) {
    using Ergebnis = decltype(arbeit(std::declval<Stoerung&>()));
    if (inDerRegel) {
        return Ergebnis();
    }
    const LaufendeStoerung laufende;
    return laufende.get() == nullptr ? Ergebnis() : arbeit(*laufende.get());
}

// The library's own call of that name.
template <typename Funktion>
Funktion* Echt(const char* name) {
    return reinterpret_cast<Funktion*>(::dlsym(RTLD_NEXT, name));
}

// True, with errno set, when the call is to fail.
bool Versagt(Aufruf aufruf) {
    const int fehlernummer = MitStoerung([&](Stoerung& stoerung) {
        inDerRegel = true;
        const int nummer = stoerung.Entscheiden(std::move(aufruf));
        inDerRegel = false;
        return nummer;
    });
    if (fehlernummer != 0) {
        errno = fehlernummer;
    }
    return fehlernummer != 0;
}

std::string Pfad(int deskriptor) {
    return MitStoerung([=](Stoerung& stoerung) { return stoerung.Pfad(deskriptor); });
}

// The path of a name in an open folder.
std::string Pfad(int ordner, const char* name) {
    if (*name == '/') {
        return name;
    }
    const std::string unter = Pfad(ordner);
    return unter.empty() ? std::string() : unter + (unter.ends_with('/') ? "" : "/") + name;
}

bool Versagt(const char* name, std::string pfad, bool aendernd = false) {
    return Versagt({.name = name, .pfad = std::move(pfad), .aendernd = aendernd});
}

bool OeffnenVersagt(const char* name, std::string pfad, int schalter) {
    const bool anlegend = (schalter & O_CREAT) != 0;
    const bool aendernd = anlegend || (schalter & O_ACCMODE) != O_RDONLY;
    return Versagt({.name = name, .pfad = std::move(pfad), .aendernd = aendernd, .anlegend = anlegend});
}

int Gemerkt(int deskriptor, const std::string& pfad) {
    if (deskriptor >= 0 && !pfad.empty()) {
        MitStoerung([&](Stoerung& stoerung) { stoerung.Merken(deskriptor, pfad); });
    }
    return deskriptor;
}

void Vergessen(int deskriptor) {
    MitStoerung([=](Stoerung& stoerung) { stoerung.Vergessen(deskriptor); });
}

mode_t Rechte(int schalter, va_list rest) {
    return (schalter & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(rest, unsigned)) : 0;
}

} // namespace

extern "C" {

int open(const char* pfad, int schalter, ...) {
    static auto* const echt = Echt<int(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, schalter);
    const mode_t rechte = Rechte(schalter, rest);
    va_end(rest);
    return OeffnenVersagt("open", pfad, schalter) ? -1 : Gemerkt(echt(pfad, schalter, rechte), pfad);
}

int openat(int ordner, const char* name, int schalter, ...) {
    static auto* const echt = Echt<int(int, const char*, int, ...)>("openat");
    va_list rest;
    va_start(rest, schalter);
    const mode_t rechte = Rechte(schalter, rest);
    va_end(rest);
    const std::string pfad = Pfad(ordner, name);
    return OeffnenVersagt("openat", pfad, schalter) ? -1
                                                    : Gemerkt(echt(ordner, name, schalter, rechte), pfad);
}

// A close that fails has closed the descriptor all the same.
int close(int datei) {
    static auto* const echt = Echt<int(int)>("close");
    const bool versagt = Versagt("close", Pfad(datei));
    const int fehlernummer = errno;
    Vergessen(datei);
    const int ergebnis = echt(datei);
    if (versagt) {
        errno = fehlernummer;
    }
    return versagt ? -1 : ergebnis;
}

ssize_t read(int datei, void* bytes, size_t laenge) {
    static auto* const echt = Echt<ssize_t(int, void*, size_t)>("read");
    return Versagt("read", Pfad(datei)) ? -1 : echt(datei, bytes, laenge);
}

ssize_t write(int datei, const void* bytes, size_t laenge) {
    static auto* const echt = Echt<ssize_t(int, const void*, size_t)>("write");
    return Versagt("write", Pfad(datei), true) ? -1 : echt(datei, bytes, laenge);
}

int fsync(int datei) {
    static auto* const echt = Echt<int(int)>("fsync");
    return Versagt("fsync", Pfad(datei), true) ? -1 : echt(datei);
}

int fdatasync(int datei) {
    static auto* const echt = Echt<int(int)>("fdatasync");
    return Versagt("fdatasync", Pfad(datei), true) ? -1 : echt(datei);
}

int ftruncate(int datei, off_t laenge) noexcept {
    static auto* const echt = Echt<int(int, off_t)>("ftruncate");
    return Versagt("ftruncate", Pfad(datei), true) ? -1 : echt(datei, laenge);
}

// The one command with a path of its own to keep is the doubling of a descriptor.
int fcntl(int datei, int befehl, ...) {
    static auto* const echt = Echt<int(int, int, ...)>("fcntl");
    va_list rest;
    va_start(rest, befehl);
    void* wert = va_arg(rest, void*);
    va_end(rest);
    const std::string pfad = Pfad(datei);
    if (Versagt("fcntl", pfad)) {
        return -1;
    }
    const int ergebnis = echt(datei, befehl, wert);
    return befehl == F_DUPFD || befehl == F_DUPFD_CLOEXEC ? Gemerkt(ergebnis, pfad) : ergebnis;
}

int flock(int datei, int befehl) noexcept {
    static auto* const echt = Echt<int(int, int)>("flock");
    return Versagt("flock", Pfad(datei)) ? -1 : echt(datei, befehl);
}

int stat(const char* pfad, struct stat* zustand) noexcept {
    static auto* const echt = Echt<int(const char*, struct stat*)>("stat");
    return Versagt("stat", pfad) ? -1 : echt(pfad, zustand);
}

int fstat(int datei, struct stat* zustand) noexcept {
    static auto* const echt = Echt<int(int, struct stat*)>("fstat");
    return Versagt("fstat", Pfad(datei)) ? -1 : echt(datei, zustand);
}

int fstatat(int ordner, const char* name, struct stat* zustand, int schalter) noexcept {
    static auto* const echt = Echt<int(int, const char*, struct stat*, int)>("fstatat");
    return Versagt("fstatat", Pfad(ordner, name)) ? -1 : echt(ordner, name, zustand, schalter);
}

ssize_t readlink(const char* pfad, char* ziel, size_t laenge) noexcept {
    static auto* const echt = Echt<ssize_t(const char*, char*, size_t)>("readlink");
    return Versagt("readlink", pfad) ? -1 : echt(pfad, ziel, laenge);
}

int fchmod(int datei, mode_t rechte) noexcept {
    static auto* const echt = Echt<int(int, mode_t)>("fchmod");
    return Versagt("fchmod", Pfad(datei), true) ? -1 : echt(datei, rechte);
}

int fchown(int datei, uid_t benutzer, gid_t gruppe) noexcept {
    static auto* const echt = Echt<int(int, uid_t, gid_t)>("fchown");
    return Versagt("fchown", Pfad(datei), true) ? -1 : echt(datei, benutzer, gruppe);
}

ssize_t listxattr(const char* pfad, char* namen, size_t laenge) noexcept {
    static auto* const echt = Echt<ssize_t(const char*, char*, size_t)>("listxattr");
    return Versagt("listxattr", pfad) ? -1 : echt(pfad, namen, laenge);
}

int rename(const char* alt, const char* neu) noexcept {
    static auto* const echt = Echt<int(const char*, const char*)>("rename");
    return Versagt("rename", neu, true) ? -1 : echt(alt, neu);
}

int renameat(int vonOrdner, const char* alt, int nachOrdner, const char* neu) noexcept {
    static auto* const echt = Echt<int(int, const char*, int, const char*)>("renameat");
    return Versagt("renameat", Pfad(nachOrdner, neu), true) ? -1 : echt(vonOrdner, alt, nachOrdner, neu);
}

int mkdir(const char* pfad, mode_t rechte) noexcept {
    static auto* const echt = Echt<int(const char*, mode_t)>("mkdir");
    return Versagt("mkdir", pfad, true) ? -1 : echt(pfad, rechte);
}

int unlink(const char* pfad) noexcept {
    static auto* const echt = Echt<int(const char*)>("unlink");
    return Versagt("unlink", pfad, true) ? -1 : echt(pfad);
}

int unlinkat(int ordner, const char* name, int schalter) noexcept {
    static auto* const echt = Echt<int(int, const char*, int)>("unlinkat");
    return Versagt("unlinkat", Pfad(ordner, name), true) ? -1 : echt(ordner, name, schalter);
}

DIR* opendir(const char* pfad) {
    static auto* const echt = Echt<DIR*(const char*)>("opendir");
    DIR* ordner = Versagt("opendir", pfad) ? nullptr : echt(pfad);
    if (ordner != nullptr) {
        Gemerkt(::dirfd(ordner), pfad);
    }
    return ordner;
}

struct dirent* readdir(DIR* ordner) {
    static auto* const echt = Echt<struct dirent*(DIR*)>("readdir");
    return Versagt("readdir", Pfad(::dirfd(ordner))) ? nullptr : echt(ordner);
}

int closedir(DIR* ordner) {
    static auto* const echt = Echt<int(DIR*)>("closedir");
    Vergessen(::dirfd(ordner));
    return echt(ordner);
}

} // extern "C"
