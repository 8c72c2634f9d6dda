#include "core/plattform.h"
#include "core/plattform_posix_ziel.h"

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plattform {

namespace {

void AllesSchreiben(int datei, std::string_view bytes) {
    constexpr std::size_t stueck = std::size_t{1} << 24U;
    while (!bytes.empty()) {
        const ssize_t anzahl =
            Wiederholt([&] { return ::write(datei, bytes.data(), std::min(bytes.size(), stueck)); });
        if (anzahl <= 0) {
            throw Schreibfehler(anzahl < 0 ? errno : ENOSPC);
        }
        bytes.remove_prefix(static_cast<std::size_t>(anzahl));
    }
}

// A file system that can't force anything to the disk says so by one of these; there is nothing to wait for.
[[nodiscard]] bool KenntKeinErzwingen(int fehlernummer) {
    return fehlernummer == EINVAL || fehlernummer == ENOTSUP || fehlernummer == ENOSYS;
}

void DateiErzwingen(Deskriptor& datei) {
    if (Wiederholt([&] { return ::fsync(datei.nummer()); }) != 0 && !KenntKeinErzwingen(errno)) {
        throw Schreibfehler(errno);
    }
    if (const int fehler = datei.Schliessen(); fehler != 0) {
        throw Schreibfehler(fehler);
    }
}

void OrdnerErzwingen(int ordner) {
    // EBADF: the folder could be entered but not opened for reading.
    if (Wiederholt([&] { return ::fsync(ordner); }) != 0 && !KenntKeinErzwingen(errno) && errno != EBADF) {
        throw Schreibfehler(errno);
    }
}

[[nodiscard]] std::string Zufallsname() {
    return QString::number(QRandomGenerator::system()->generate64(), 16).toStdString();
}

// A new file that is removed again unless it is kept.
class NeueDatei {
public:
    static constexpr int verschwunden = -1;

    explicit NeueDatei(int ordner) : ordner_(ordner) {}
    NeueDatei(const NeueDatei&) = delete;
    NeueDatei& operator=(const NeueDatei&) = delete;
    ~NeueDatei() {
        if (!name_.empty()) {
            ::unlinkat(ordner_, name_.c_str(), 0); // what can't be removed stays as a scrap
        }
    }

    enum class Sperre : std::uint8_t { Noetig, Ohne };
    // 0, errno, or verschwunden where somebody took the file for a killed program's scrap just now.
    [[nodiscard]] int Anlegen(std::string name, mode_t modus, Sperre sperre) {
        constexpr int schalter = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        name_ = std::move(name);
        datei_ = Deskriptor(Wiederholt([&] { return ::openat(ordner_, name_.c_str(), schalter, modus); }));
        const int fehler = datei_.offen() ? 0 : errno;
        if (fehler == 0 && (sperre == Sperre::Ohne || Sperren())) {
            return 0;
        }
        if (fehler == 0) {
            ::unlinkat(ordner_, name_.c_str(), 0); // who locks it may have no mind to remove it
        }
        name_.clear();
        return fehler == 0 ? verschwunden : fehler;
    }
    [[nodiscard]] int nummer() const { return datei_.nummer(); }
    void Fuellen(std::string_view bytes) {
        AllesSchreiben(datei_.nummer(), bytes);
        DateiErzwingen(datei_);
    }
    // 0 or errno.
    [[nodiscard]] int Umbenennen(const std::string& ziel) {
        if (::renameat(ordner_, name_.c_str(), ordner_, ziel.c_str()) != 0) {
            return errno;
        }
        name_.clear();
        return 0;
    }
    void Behalten() { name_.clear(); }

private:
    // Locks the file until this object goes: the second descriptor holds the lock when the first is closed.
    // False when somebody else holds it or has taken the file away; a file system without locks removes
    // nothing either.
    [[nodiscard]] bool Sperren() {
        sperre_ = Deskriptor(::fcntl(datei_.nummer(), F_DUPFD_CLOEXEC, 0));
        if (Wiederholt([&] { return ::flock(datei_.nummer(), LOCK_EX | LOCK_NB); }) != 0 &&
            errno == EWOULDBLOCK) {
            return false;
        }
        struct stat zustand {};
        return ::fstat(datei_.nummer(), &zustand) != 0 || zustand.st_nlink > 0;
    }

    int ordner_;
    std::string name_;
    Deskriptor datei_;
    Deskriptor sperre_;
};

// Makes the new file under a name of its own; 0 or errno. Where every new file is locked by somebody at once,
// it is written without a lock in the end: such a locker would keep others from removing it as well.
[[nodiscard]] int Anlegen(NeueDatei& neu, mode_t modus) {
    constexpr int versuche = 8;
    int fehler = NeueDatei::verschwunden;
    for (int versuch = 1; fehler == NeueDatei::verschwunden; ++versuch) {
        const auto sperre = versuch < versuche ? NeueDatei::Sperre::Noetig : NeueDatei::Sperre::Ohne;
        fehler = neu.Anlegen(Restname(Zufallsname()), modus, sperre);
    }
    return fehler;
}

// The folder takes no new file, or lets none be renamed over the target, which may yet be written itself: no
// permission, a read-only folder, a sticky one, or a target that is a mount of its own.
[[nodiscard]] bool Verschlossen(int fehlernummer) {
    constexpr std::array gruende{EACCES, EPERM, EROFS, EBUSY, EXDEV};
    return std::ranges::find(gruende, fehlernummer) != gruende.end();
}

void KopieSchreiben(const std::string& ablage, const std::string& name, std::string_view bytes) {
    const Deskriptor ordner = OrdnerOeffnen(ablage);
    NeueDatei kopie(ordner.nummer());
    // No program removes such a copy, so it needs no lock.
    if (const int fehler = kopie.Anlegen(name, 0600, NeueDatei::Sperre::Ohne); fehler != 0) {
        throw Schreibfehler(fehler);
    }
    kopie.Fuellen(bytes);
    OrdnerErzwingen(ordner.nummer());
    kopie.Behalten();
}

} // namespace

bool DauerhaftErsetzen(const QString& ziel, std::string_view bytes) {
    // A limit on the size of files is an error of the write then, not the end of the program.
    [[maybe_unused]] static const auto einmal = std::signal(SIGXFSZ, SIG_IGN);
    const Zielort ort = ZielFinden(ziel);
    NeueDatei neu(ort.ordner.nummer());
    int fehler = Anlegen(neu, ort.vorhanden ? 0600 : 0666);
    if (fehler == 0) {
        if (ort.vorhanden) {
            EigenschaftenUebernehmen(ort, neu.nummer());
        }
        neu.Fuellen(bytes);
        fehler = neu.Umbenennen(ort.name);
    }
    if (fehler == 0) {
        OrdnerErzwingen(ort.ordner.nummer());
        return true;
    }
    if (ort.vorhanden && Verschlossen(fehler)) {
        return false;
    }
    throw Schreibfehler(fehler);
}

void AnOrtUeberschreiben(const QString& ziel, std::string_view bytes) {
    const Zielort ort = ZielFinden(ziel);
    Deskriptor datei = ZumSchreibenOeffnen(ort.ordner.nummer(), ort.name);
    // Cut off at the end only, so that a disk without room for more still holds what it held.
    AllesSchreiben(datei.nummer(), bytes);
    if (Wiederholt([&] { return ::ftruncate(datei.nummer(), static_cast<off_t>(bytes.size())); }) != 0) {
        throw Schreibfehler(errno);
    }
    DateiErzwingen(datei);
}

QString KopieAblegen(const QString& ziel, std::string_view bytes) {
    constexpr qsizetype namensrest = 60; // leaves room for the longest name that a file system takes
    const QString name = ziel.section(QLatin1Char('/'), -1).left(namensrest);
    const std::string kopie = "Feldkranz-" + Pfadbytes(name) + "-" + Zufallsname();
    // The first place outlives a restart of the machine.
    constexpr const char* bleibend = "/var/tmp";
    try {
        KopieSchreiben(bleibend, kopie, bytes);
        return AusPfadbytes(bleibend + ("/" + kopie));
    } catch (const Laufzeitfehler&) {
        // Without a copy nothing may be overwritten, so a failure of the second place is the caller's.
        const std::string ablage = Pfadbytes(QDir::tempPath());
        KopieSchreiben(ablage, kopie, bytes);
        return AusPfadbytes(ablage + "/" + kopie);
    }
}

} // namespace plattform
