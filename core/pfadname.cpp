#include "core/pfadname.h"

#include <algorithm>
#include <array>

namespace {

// Letters whose two cases don't lie 32 apart, and the pairs that only look as if they did.
struct Buchstabenpaar {
    std::string_view gross, klein;
};
constexpr std::array<Buchstabenpaar, 4> sonderpaare{{{"Š", "š"}, {"Ž", "ž"}, {"Œ", "œ"}, {"Ÿ", "ÿ"}}};

constexpr char vorsatz = static_cast<char>(0xC3); // first byte of À to ÿ
constexpr unsigned maldurch = 0x97;               // second byte of × (and of ÷, 32 further): no letters

std::string Umwandeln(std::string_view text, char erstes, unsigned erstesHohes, bool nachGross) {
    std::string ergebnis(text);
    const unsigned abstand = 32;
    const auto verschoben = [&](char zeichen) {
        const auto wert = static_cast<unsigned char>(zeichen);
        return static_cast<char>(nachGross ? wert - abstand : wert + abstand);
    };
    for (std::size_t i = 0; i < ergebnis.size(); ++i) {
        if (ergebnis[i] >= erstes && ergebnis[i] <= erstes + 25) {
            ergebnis[i] = verschoben(ergebnis[i]);
        } else if (static_cast<unsigned char>(ergebnis[i]) >= 0xC2 && i + 1 < ergebnis.size()) {
            const unsigned zweites = static_cast<unsigned char>(ergebnis[i + 1]);
            const std::string_view paar(&ergebnis[i], 2);
            const auto* const sonder =
                std::find_if(sonderpaare.begin(), sonderpaare.end(),
                             [&](const auto& p) { return (nachGross ? p.klein : p.gross) == paar; });
            if (sonder != sonderpaare.end()) {
                ergebnis.replace(i, 2, nachGross ? sonder->gross : sonder->klein);
            } else if (ergebnis[i] == vorsatz && zweites >= erstesHohes && zweites < erstesHohes + 31 &&
                       zweites != (nachGross ? maldurch + abstand : maldurch)) {
                ergebnis[i + 1] = verschoben(ergebnis[i + 1]);
            }
            ++i;
        }
    }
    return ergebnis;
}

bool BeginntZeichen(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// What is left of a text in UTF-8 when that many of its characters stay, half of them at each end.
std::string InDerMitteGekuerzt(std::string_view text, std::size_t zeichen) {
    std::size_t vorn = 0;
    for (std::size_t i = 0; i < (zeichen + 1) / 2; ++i) {
        do {
            ++vorn;
        } while (vorn < text.size() && !BeginntZeichen(text[vorn]));
    }
    std::size_t hinten = text.size();
    for (std::size_t i = 0; i < zeichen / 2; ++i) {
        do {
            --hinten;
        } while (!BeginntZeichen(text[hinten]));
    }
    return std::string(text.substr(0, vorn)) + "…" + std::string(text.substr(hinten));
}

// The text between two others with as many characters as fit.
std::string SoVielPasst(std::string_view davor, std::string_view text, std::string_view dahinter,
                        const std::function<bool(std::string_view)>& passt) {
    const auto mit = [&](std::size_t zeichen) {
        return std::string(davor) + InDerMitteGekuerzt(text, zeichen) + std::string(dahinter);
    };
    std::size_t passend = 0;
    auto zuViele = static_cast<std::size_t>(std::ranges::count_if(text, BeginntZeichen));
    while (passend + 1 < zuViele) {
        const std::size_t mitte = (passend + zuViele) / 2;
        (passt(mit(mitte)) ? passend : zuViele) = mitte;
    }
    return mit(passend);
}

} // namespace

std::string NurDateiname(std::string_view pfad) {
    return std::string(pfad.substr(pfad.rfind('\\') + 1));
}

std::string Dateiendung(std::string_view name) {
    const auto punkt = name.rfind('.');
    return punkt == std::string_view::npos ? std::string() : std::string(name.substr(punkt));
}

bool NameBrauchbar(std::string_view name) {
    return !name.starts_with('.') && !Getrimmt(name.substr(0, name.rfind('.'))).empty();
}

std::string FreierPfad(const std::string& pfad, const std::function<bool(const std::string&)>& darf) {
    const std::size_t endung = pfad.size() - Dateiendung(NurDateiname(pfad)).size();
    std::string versuch = pfad;
    for (int nummer = 1; !darf(versuch); ++nummer) {
        versuch = pfad.substr(0, endung) + std::to_string(nummer) + pfad.substr(endung);
    }
    return versuch;
}

PfadTeile PfadZerlegen(std::string_view pfad) {
    PfadTeile teile{"?", "?", "?", "?"};
    // The second character, not byte: the first one may take several.
    std::size_t zweites = pfad.empty() ? 0 : 1;
    while (zweites < pfad.size() && (static_cast<unsigned char>(pfad[zweites]) & 0xC0U) == 0x80U) {
        ++zweites;
    }
    if (zweites < pfad.size() && pfad[zweites] == ':') {
        std::size_t ende = std::min(zweites + 2, pfad.size());
        while (ende < pfad.size() && (static_cast<unsigned char>(pfad[ende]) & 0xC0U) == 0x80U) {
            ++ende;
        }
        teile.laufwerk = pfad.substr(0, ende);
        pfad.remove_prefix(ende);
    }
    const auto strich = pfad.rfind('\\');
    if (strich == std::string_view::npos) {
        return teile;
    }
    teile.ordner = pfad.substr(0, strich + 1);
    const std::string_view name = pfad.substr(strich + 1);
    if (const auto punkt = name.rfind('.'); punkt != std::string_view::npos) {
        teile.name = name.substr(0, punkt);
        teile.endung = name.substr(punkt);
    }
    return teile;
}

std::string PfadGekuerzt(std::string_view pfad, const std::function<bool(std::string_view)>& passt) {
    if (passt(pfad)) {
        return std::string(pfad);
    }
    const std::size_t strich = pfad.rfind('\\');
    const std::string_view vorn = pfad.substr(0, strich == std::string_view::npos ? 0 : strich);
    const std::string_view letzter = pfad.substr(vorn.size());
    const std::string_view statt = vorn.empty() ? "" : "…";
    return vorn.empty() || !passt(std::string(statt) + std::string(letzter))
               ? SoVielPasst(statt, letzter, "", passt)
               : SoVielPasst("", vorn, letzter, passt);
}

std::string Grossschreiben(std::string_view text) {
    return Umwandeln(text, 'a', 0xA0, true);
}

std::string Kleinschreiben(std::string_view text) {
    return Umwandeln(text, 'A', 0x80, false);
}

std::string Getrimmt(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(anfang, text.find_last_not_of(' ') - anfang + 1));
}
