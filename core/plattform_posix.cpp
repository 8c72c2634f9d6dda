#include "core/plattform_posix.h"

#include "core/plattform.h"

#include <algorithm>
#include <array>
#include <memory>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plattform {

namespace {

struct Fehlerzeile {
    int fehlernummer;
    Fehler lesen;
    Fehler schreiben;
};

// Lasting reasons first, then what another try may mend. What the table doesn't know is 57, which leaves the
// user the choice to try again or to leave off.
constexpr std::array fehlertabelle{
    Fehlerzeile{ENOENT, Fehler::DateiNichtGefunden, Fehler::PfadNichtGefunden},
    Fehlerzeile{ENOTDIR, Fehler::DateiNichtGefunden, Fehler::PfadNichtGefunden},
    Fehlerzeile{EISDIR, Fehler::DateinameFalsch, Fehler::PfadZugriff},
    Fehlerzeile{EEXIST, Fehler::DateinameFalsch, Fehler::PfadZugriff},
    Fehlerzeile{ENOTEMPTY, Fehler::DateinameFalsch, Fehler::PfadZugriff},
    Fehlerzeile{EACCES, Fehler::DateinameFalsch, Fehler::ZugriffVerweigert},
    Fehlerzeile{EPERM, Fehler::DateinameFalsch, Fehler::ZugriffVerweigert},
    Fehlerzeile{EROFS, Fehler::DateinameFalsch, Fehler::ZugriffVerweigert},
    Fehlerzeile{ETXTBSY, Fehler::DateinameFalsch, Fehler::ZugriffVerweigert},
    Fehlerzeile{ENAMETOOLONG, Fehler::DateinameFalsch, Fehler::DateinameFalsch},
    Fehlerzeile{ELOOP, Fehler::DateinameFalsch, Fehler::DateinameFalsch},
    Fehlerzeile{EINVAL, Fehler::DateinameFalsch, Fehler::DateinameFalsch},
    Fehlerzeile{EILSEQ, Fehler::DateinameFalsch, Fehler::DateinameFalsch},
    Fehlerzeile{EOVERFLOW, Fehler::SpeicherVoll, Fehler::SpeicherVoll},
    Fehlerzeile{ENOMEM, Fehler::SpeicherVoll, Fehler::SpeicherVoll},
    Fehlerzeile{ENOSPC, Fehler::GeraetEA, Fehler::DatentraegerVoll},
    Fehlerzeile{EDQUOT, Fehler::GeraetEA, Fehler::DatentraegerVoll},
    Fehlerzeile{EFBIG, Fehler::SpeicherVoll, Fehler::DatentraegerVoll},
    Fehlerzeile{ENODEV, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{ENXIO, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{ESTALE, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{ENOTCONN, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{ETIMEDOUT, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{EHOSTDOWN, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{EHOSTUNREACH, Fehler::GeraetFehlt, Fehler::GeraetFehlt},
    Fehlerzeile{EBUSY, Fehler::LaufwerkNichtBereit, Fehler::LaufwerkNichtBereit},
#ifdef ENOMEDIUM
    Fehlerzeile{ENOMEDIUM, Fehler::LaufwerkNichtBereit, Fehler::LaufwerkNichtBereit},
    Fehlerzeile{EMEDIUMTYPE, Fehler::MediumFehler, Fehler::MediumFehler},
    Fehlerzeile{EUCLEAN, Fehler::MediumFehler, Fehler::MediumFehler},
#endif
    Fehlerzeile{EBADMSG, Fehler::MediumFehler, Fehler::MediumFehler},
    Fehlerzeile{EIO, Fehler::GeraetEA, Fehler::GeraetEA},
};

[[nodiscard]] Laufzeitfehler Uebersetzt(int fehlernummer, Fehler Fehlerzeile::*spalte) {
    const auto zeile = std::ranges::find(fehlertabelle, fehlernummer, &Fehlerzeile::fehlernummer);
    return Laufzeitfehler(zeile == fehlertabelle.end() ? Fehler::GeraetEA : (*zeile).*spalte);
}

[[nodiscard]] bool EscapeByte(const QString& text, qsizetype stelle) {
    const char16_t zeichen = text.at(stelle).unicode();
    return zeichen >= 0xDC80 && zeichen <= 0xDCFF && (stelle == 0 || !text.at(stelle - 1).isHighSurrogate());
}

} // namespace

Deskriptor& Deskriptor::operator=(Deskriptor&& andere) noexcept {
    if (this != &andere) {
        Schliessen();
        nummer_ = std::exchange(andere.nummer_, -1);
    }
    return *this;
}

int Deskriptor::Schliessen() noexcept {
    if (nummer_ < 0) {
        return 0;
    }
    // An interrupted close has closed the descriptor all the same.
    return ::close(std::exchange(nummer_, -1)) == 0 || errno == EINTR ? 0 : errno;
}

std::string Pfadbytes(const QString& pfad) {
    std::string bytes;
    qsizetype anfang = 0;
    for (qsizetype i = 0; i < pfad.size(); ++i) {
        if (EscapeByte(pfad, i)) {
            bytes += pfad.mid(anfang, i - anfang).toStdString();
            bytes += static_cast<char>(pfad.at(i).unicode() & 0xFFU);
            anfang = i + 1;
        }
    }
    return bytes + pfad.mid(anfang).toStdString();
}

QString AusPfadbytes(std::string_view bytes) {
    const QByteArrayView ansicht(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (ansicht.isValidUtf8()) {
        return QString::fromUtf8(ansicht);
    }
    QString name;
    for (const char byte : bytes) {
        const auto wert = static_cast<unsigned char>(byte);
        name += QChar(static_cast<char16_t>(wert < 0x80U ? wert : 0xDC00U + wert));
    }
    return name;
}

std::string GueltigerPfad(const QString& pfad) {
    std::string bytes = Pfadbytes(pfad);
    if (bytes.empty() || bytes.find('\0') != std::string::npos) {
        throw Laufzeitfehler(Fehler::DateinameFalsch);
    }
    return bytes;
}

Laufzeitfehler Lesefehler(int fehlernummer) {
    return Uebersetzt(fehlernummer, &Fehlerzeile::lesen);
}

Laufzeitfehler Schreibfehler(int fehlernummer) {
    return Uebersetzt(fehlernummer, &Fehlerzeile::schreiben);
}

namespace {

// Opens a regular file. What else stands there isn't opened at all: a pipe would wait for its writer, a
// device might do something. Not waiting matters for what the system shows as files of its own.
[[nodiscard]] Deskriptor RegulaereOeffnen(const std::string& pfad, struct stat& zustand) {
    if (::stat(pfad.c_str(), &zustand) != 0) {
        throw Lesefehler(errno);
    }
    Deskriptor datei;
    if (S_ISREG(zustand.st_mode)) {
        constexpr int schalter = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
        datei = Deskriptor(Wiederholt([&] { return ::open(pfad.c_str(), schalter); }));
        if (!datei.offen() || ::fstat(datei.nummer(), &zustand) != 0) {
            throw Lesefehler(errno);
        }
    }
    if (!S_ISREG(zustand.st_mode)) {
        throw Lesefehler(EISDIR);
    }
    return datei;
}

// Reads on until the end or until the room is full; returns the bytes read.
[[nodiscard]] std::size_t Auffuellen(int datei, char* ziel, std::size_t raum) {
    std::size_t gelesen = 0;
    while (gelesen < raum) {
        const ssize_t anzahl = Wiederholt([&] { return ::read(datei, ziel + gelesen, raum - gelesen); });
        if (anzahl < 0) {
            throw Lesefehler(errno);
        }
        if (anzahl == 0) {
            break;
        }
        gelesen += static_cast<std::size_t>(anzahl);
    }
    return gelesen;
}

// Room for that many bytes. A long file's is asked for in large pages where the system has them: setting up
// thousands of small ones takes as long as the reading.
void RaumSchaffen(std::string& bytes, std::size_t raum) {
    constexpr std::size_t gross = std::size_t{1} << 21U;
    bytes.reserve(raum);
#ifdef MADV_HUGEPAGE
    if (void* anfang = bytes.data(); raum >= 2 * gross) {
        std::size_t laenge = raum;
        if (std::align(gross, gross, anfang, laenge) != nullptr) {
            (void)::madvise(anfang, laenge - laenge % gross, MADV_HUGEPAGE); // refused, it only takes longer
        }
    }
#endif
    bytes.resize(raum);
}

} // namespace

std::string Lesen(const QString& datei, std::size_t grenze) {
    struct stat zustand {};
    const Deskriptor offen = RegulaereOeffnen(GueltigerPfad(datei), zustand);
    // The size is a hint only: files of the system's own tell 0, and a file may grow meanwhile. One byte more
    // than expected shows the end.
    std::size_t raum = std::max<std::size_t>(static_cast<std::size_t>(zustand.st_size), 4095) + 1;
    std::string bytes;
    for (std::size_t gelesen = 0; static_cast<std::size_t>(zustand.st_size) <= grenze; raum *= 2) {
        RaumSchaffen(bytes, raum);
        gelesen += Auffuellen(offen.nummer(), bytes.data() + gelesen, raum - gelesen);
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
