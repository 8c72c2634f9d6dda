#include "persistence/extraswerte.h"

#include <algorithm>
#include <cstddef>

namespace {

// True for a byte sequence that UTF-8 can hold; control characters count as damage.
bool IstText(std::string_view zeile) {
    std::size_t folgen = 0;
    for (const char zeichen : zeile) {
        const auto byte = static_cast<unsigned char>(zeichen);
        const bool folge = (byte & 0xC0U) == 0x80U;
        if (folge != (folgen > 0) || byte < ' ' || byte == 0xFF || byte == 0xFE) {
            return false;
        }
        folgen = folge ? folgen - 1 : byte >= 0xF0 ? 3U : byte >= 0xE0 ? 2U : byte >= 0xC0 ? 1U : 0U;
    }
    return folgen == 0;
}

} // namespace

Extraswerte ExtraswerteAusBytes(std::string_view bytes) {
    Extraswerte werte;
    while (!bytes.empty()) {
        const std::size_t ende = std::min(bytes.find('\n'), bytes.size());
        std::string_view zeile = bytes.substr(0, ende);
        bytes.remove_prefix(std::min(ende + 1, bytes.size()));
        if (zeile.ends_with('\r')) {
            zeile.remove_suffix(1);
        }
        const std::size_t gleich = zeile.find('=');
        if (gleich != std::string_view::npos && gleich > 0 && IstText(zeile)) {
            werte.insert_or_assign(std::string(zeile.substr(0, gleich)),
                                   std::string(zeile.substr(gleich + 1)));
        }
    }
    return werte;
}

std::string ExtraswerteBytes(const Extraswerte& werte) {
    std::string bytes;
    for (const auto& [name, wert] : werte) {
        std::string zeile = wert;
        std::replace_if(
            zeile.begin(), zeile.end(), [](char zeichen) { return zeichen == '\r' || zeichen == '\n'; }, ' ');
        bytes.append(name).append("=").append(zeile).append("\r\n");
    }
    return bytes;
}
