#include "core/cp1252.h"
#include "core/wertgrammatik.h"

#include <array>
#include <charconv>

namespace {

constexpr std::string_view zeilenende = "\r\n";

} // namespace

void WertSchreiber::Text(std::string_view text) {
    bytes_ += '"';
    bytes_ += NachCp1252(text);
    bytes_ += '"';
    bytes_ += zeilenende;
}

void WertSchreiber::Ganzzahl(std::int16_t zahl) {
    bytes_ += std::to_string(zahl);
    bytes_ += zeilenende;
}

void WertSchreiber::Einfach(float zahl) {
    std::array<char, 192> ziffern{}; // the smallest single takes about 150
    const auto ergebnis =
        std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl, std::chars_format::fixed);
    bytes_.append(ziffern.data(), ergebnis.ptr);
    bytes_ += zeilenende;
}

void WertSchreiber::Variant(const std::optional<std::string>& wert) {
    bytes_ += NachCp1252(wert.value_or(""));
    bytes_ += zeilenende;
}
