#include "core/cp1252.h"
#include "core/wertgrammatik.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

namespace {

bool IstZeilenende(char zeichen) {
    return zeichen == '\r' || zeichen == '\n';
}

// Place of the next line end, or the end of the bytes; eight bytes a step, as catalogue files are long.
std::size_t ZeilenendeAb(std::string_view bytes, std::size_t stelle) {
    constexpr std::uint64_t jedes = 0x0101010101010101ULL;
    const auto enthaelt = [](std::uint64_t stueck, char zeichen) {
        const std::uint64_t ungleich = stueck ^ (jedes * static_cast<unsigned char>(zeichen));
        return ((ungleich - jedes) & ~ungleich & (jedes << 7U)) != 0;
    };
    for (std::uint64_t stueck = 0; stelle + sizeof stueck <= bytes.size(); stelle += sizeof stueck) {
        std::memcpy(&stueck, bytes.data() + stelle, sizeof stueck);
        if (enthaelt(stueck, '\r') || enthaelt(stueck, '\n')) {
            break;
        }
    }
    while (stelle < bytes.size() && !IstZeilenende(bytes[stelle])) {
        ++stelle;
    }
    return stelle;
}

// A number out of a double's range is either too large or next to nothing; the digits ahead of the point tell
// which, unless there is an exponent.
bool ZuKlein(std::string_view text) {
    if (const auto exponent = text.find_first_of("eE"); exponent != std::string_view::npos) {
        return text.substr(exponent + 1, 1) == "-";
    }
    return text.substr(0, text.find('.')).find_first_of("123456789") == std::string_view::npos;
}

// The whole text as a number. False only where it is one but too large; what is no number is 0.
template <typename Gleitkomma>
bool AlsZahl(std::string_view text, Gleitkomma& zahl) {
    zahl = 0;
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    // Infinities and the like are words, no numbers.
    if (text.find_first_not_of("0123456789.eE+-") != std::string_view::npos) {
        return true;
    }
    Gleitkomma gelesen = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), gelesen);
    if (fehler == std::errc::invalid_argument || ende != text.data() + text.size()) {
        return true;
    }
    if (fehler == std::errc::result_out_of_range) {
        return ZuKlein(text);
    }
    zahl = gelesen;
    return true;
}

bool AlsText(std::string_view token, std::string_view& text) {
    text = token;
    return token.size() <= laengsterText;
}

bool AlsEinfach(std::string_view text, float& zahl) {
    return AlsZahl(text, zahl);
}

bool AlsGanzzahl(std::string_view text, std::int16_t& zahl) {
    using Grenzen = std::numeric_limits<std::int16_t>;
    double gelesen = 0;
    if (!AlsZahl(text, gelesen)) {
        return false;
    }
    const double gerundet = std::nearbyint(gelesen);
    if (gerundet < Grenzen::min() || gerundet > Grenzen::max()) {
        return false;
    }
    zahl = static_cast<std::int16_t>(gerundet);
    return true;
}

} // namespace

WertLeser::WertLeser(std::string_view bytes, Fehlermelder melder)
    : bytes_(bytes), melder_(std::move(melder)) {}

int WertLeser::ZeileNr() {
    for (; gezaehltBis_ < stelle_; ++gezaehltBis_) {
        const char zeichen = bytes_[gezaehltBis_];
        const bool crlf = zeichen == '\n' && gezaehltBis_ > 0 && bytes_[gezaehltBis_ - 1] == '\r';
        zeile_ += IstZeilenende(zeichen) && !crlf ? 1 : 0;
    }
    return zeile_;
}

Laufzeitfehler WertLeser::FehlerHier(Fehler fehler) {
    return Laufzeitfehler(fehler, ZeileNr());
}

void WertLeser::AmEndePruefen() {
    if (AmEnde()) {
        throw FehlerHier(Fehler::DateiZuEnde);
    }
}

// Steps behind the comma or the line end.
void WertLeser::TokenSchliessen() {
    if (!AmEnde()) {
        const bool crlf = bytes_.substr(stelle_, 2) == "\r\n";
        stelle_ += crlf ? 2 : 1;
    }
}

std::string_view WertLeser::Token() {
    AmEndePruefen();
    const auto ab = [this](std::size_t fund) { return std::min(fund, bytes_.size()); };
    tokenAnfang_ = ab(bytes_.find_first_not_of(' ', stelle_));
    std::string_view token;
    if (tokenAnfang_ < bytes_.size() && bytes_[tokenAnfang_] == '"') {
        const std::size_t schluss = ab(bytes_.find('"', tokenAnfang_ + 1));
        token = bytes_.substr(tokenAnfang_ + 1, schluss - tokenAnfang_ - 1);
        tokenEnde_ = std::min(schluss + 1, bytes_.size());
        stelle_ = ab(bytes_.find_first_of(",\r\n", tokenEnde_));
    } else {
        stelle_ = ab(bytes_.find_first_of(",\r\n", tokenAnfang_));
        token = bytes_.substr(tokenAnfang_, stelle_ - tokenAnfang_);
        token = token.substr(0, token.find_last_not_of(' ') + 1);
        tokenEnde_ = tokenAnfang_ + token.size();
    }
    TokenSchliessen();
    return token;
}

// A failed statement is tried again on the next token, so a damaged file ends in error 62 at the latest.
template <typename Zahl>
Zahl WertLeser::Gelesen(bool (*umwandeln)(std::string_view, Zahl&), Fehler sonst) {
    while (true) {
        AmEndePruefen();
        const int zeile = ZeileNr();
        Zahl zahl{};
        if (umwandeln(Token(), zahl)) {
            return zahl;
        }
        if (!melder_) {
            throw Laufzeitfehler(sonst, zeile);
        }
        melder_(Laufzeitfehler(sonst, zeile));
    }
}

std::string WertLeser::Text() {
    return AusCp1252(Gelesen<std::string_view>(AlsText, Fehler::SpeicherVoll));
}

std::int16_t WertLeser::Ganzzahl() {
    return Gelesen<std::int16_t>(AlsGanzzahl, Fehler::Ueberlauf);
}

float WertLeser::Einfach() {
    return Gelesen<float>(AlsEinfach, Fehler::Ueberlauf);
}

std::optional<std::string> WertLeser::Variant() {
    Token();
    const std::string_view wert = bytes_.substr(tokenAnfang_, tokenEnde_ - tokenAnfang_);
    const bool offen = wert.starts_with('"') && (wert.size() == 1 || !wert.ends_with('"'));
    if (wert.empty() || offen) {
        return std::nullopt;
    }
    return AusCp1252(wert);
}

std::string_view WertLeser::Zeile() {
    AmEndePruefen();
    const std::size_t anfang = stelle_;
    stelle_ = ZeilenendeAb(bytes_, anfang);
    const std::string_view zeile = bytes_.substr(anfang, stelle_ - anfang);
    TokenSchliessen();
    return zeile;
}

bool IstMarke(std::string_view token, std::string_view marke) {
    const auto anfang = token.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return false;
    }
    token = token.substr(anfang, token.find_last_not_of(' ') - anfang + 1);
    return std::equal(token.begin(), token.end(), marke.begin(), marke.end(), [](char zeichen, char gross) {
        return zeichen == gross || (zeichen >= 'a' && zeichen <= 'z' && zeichen - 'a' + 'A' == gross);
    });
}
