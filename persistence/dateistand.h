// What a file holds, as far as a save has to know it before it replaces the file: is the content on the disk
// one that the program has read or written itself? Looks at no disk: that is persistence/dateiblick.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct Dateistand {
    enum class Art : std::uint8_t {
        Nichts,     // no file
        Inhalt,     // a file, told from others by size and digest
        Unlesbar,   // something is there, and nobody knows what it holds
        KeineDatei, // a folder, a device, a name that no file can have: a save refuses by itself
    };
    Art art = Art::Nichts;
    std::size_t groesse = 0; // bytes
    std::string abdruck;     // digest of the content

    friend bool operator==(const Dateistand&, const Dateistand&) = default;
};

// What a save would destroy that isn't the program's own.
enum class Fremdes : std::uint8_t { Keines, Geaendert, Unlesbar };

// The contents of one file that may be replaced unasked. By default none is known.
class Dateikenntnis {
public:
    Dateikenntnis() = default;
    explicit Dateikenntnis(Dateistand stand);

    // One more: what a write that failed may have left all the same, or what the person gave up.
    void Ergaenzen(Dateistand stand);
    // What follows from that which was found on the disk. What can't be read may be anybody's.
    [[nodiscard]] Fremdes Urteil(const Dateistand& gefunden) const;

    friend bool operator==(const Dateikenntnis&, const Dateikenntnis&) = default;

private:
    std::vector<Dateistand> staende_;
};
