// What the POSIX sources of core/plattform.h share: descriptors that close themselves, names as bytes, calls
// that a signal interrupted, and run-time errors for errno.
#pragma once

#include "core/laufzeitfehler.h"

#include <QString>

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

namespace plattform {

class Deskriptor {
public:
    explicit Deskriptor(int nummer = -1) noexcept : nummer_(nummer) {}
    Deskriptor(Deskriptor&& andere) noexcept : nummer_(std::exchange(andere.nummer_, -1)) {}
    Deskriptor& operator=(Deskriptor&& andere) noexcept;
    Deskriptor(const Deskriptor&) = delete;
    Deskriptor& operator=(const Deskriptor&) = delete;
    ~Deskriptor() { Schliessen(); }

    [[nodiscard]] int nummer() const noexcept { return nummer_; }
    [[nodiscard]] bool offen() const noexcept { return nummer_ >= 0; }
    // 0 or errno; some file systems tell of a full disk only here.
    int Schliessen() noexcept;

private:
    int nummer_;
};

// Repeats a call that a signal interrupted.
template <typename Aufruf>
auto Wiederholt(Aufruf aufruf) -> decltype(aufruf()) {
    decltype(aufruf()) ergebnis;
    do {
        ergebnis = aufruf();
    } while (ergebnis < 0 && errno == EINTR);
    return ergebnis;
}

// The new file beside the one that a save replaces: ".feldkranz-", a number of one to 16 hexadecimal digits,
// ".neu". It is locked (flock) as long as somebody writes it: without a lock it is a killed program's scrap.
[[nodiscard]] std::string Restname(std::string_view nummer);
[[nodiscard]] bool IstRestname(std::string_view name);

// Names are UTF-8. A name that isn't keeps its bytes all the same: each byte above 127 stands as the lone
// surrogate U+DC80 to U+DCFF in the QString.
[[nodiscard]] std::string Pfadbytes(const QString& pfad);
[[nodiscard]] QString AusPfadbytes(std::string_view bytes);

// The bytes of a path that is to be opened; an empty one, or one with a NUL inside, is 52.
[[nodiscard]] std::string GueltigerPfad(const QString& pfad);

// The run-time error for errno, for a file that is read or for anything that is written, made or removed.
[[nodiscard]] Laufzeitfehler Lesefehler(int fehlernummer);
[[nodiscard]] Laufzeitfehler Schreibfehler(int fehlernummer);

} // namespace plattform
