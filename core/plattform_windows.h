// What the Windows sources of core/plattform.h share: handles that close themselves, paths of any length, and
// run-time errors for the system's error codes.
#pragma once

#include "core/laufzeitfehler.h"

#include <QString>

#include <cstdint>
#include <string>
#include <utility>

#include <windows.h>

namespace plattform {

class Griff {
public:
    explicit Griff(HANDLE griff = INVALID_HANDLE_VALUE) noexcept : griff_(griff) {}
    Griff(Griff&& anderer) noexcept : griff_(std::exchange(anderer.griff_, INVALID_HANDLE_VALUE)) {}
    Griff& operator=(Griff&& anderer) noexcept;
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;
    ~Griff() { Schliessen(); }

    [[nodiscard]] HANDLE griff() const noexcept { return griff_; }
    [[nodiscard]] bool offen() const noexcept { return griff_ != INVALID_HANDLE_VALUE; }
    void Schliessen() noexcept;

private:
    HANDLE griff_;
};

inline constexpr DWORD allesTeilen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The system's name of a path: whole, with backslashes, and of any length. A name that nothing can have on
// this system is 52: behind the prefix for long paths the system itself would take "CON" for a file and keep
// a point at the end of a name, and no other program could open what comes of it.
[[nodiscard]] std::wstring Systempfad(const QString& pfad);

// What the system knows of a name.
struct Befund {
    DWORD attribute = 0;
    std::int64_t groesse = 0;   // bytes
    std::int64_t geaendert = 0; // seconds since 1970 UTC

    [[nodiscard]] bool ordner() const noexcept { return (attribute & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    [[nodiscard]] bool schreibgeschuetzt() const noexcept {
        return !ordner() && (attribute & FILE_ATTRIBUTE_READONLY) != 0;
    }
};
// Links followed. Throws the error of reading.
[[nodiscard]] Befund Befragen(const std::wstring& pfad);

// The new file beside the one that a save replaces: ".feldkranz-", a number of one to 16 hexadecimal digits,
// ".neu". Whoever writes it has it open; what nobody has open is a killed program's scrap.
[[nodiscard]] QString Restname(quint64 nummer);
[[nodiscard]] bool IstRestname(const QString& name);

// The run-time error for a code of the system, for a file that is read or for anything that is written, made
// or removed.
[[nodiscard]] Laufzeitfehler Lesefehler(DWORD fehlercode);
[[nodiscard]] Laufzeitfehler Schreibfehler(DWORD fehlercode);

} // namespace plattform
