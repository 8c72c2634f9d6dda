#include "core/zeichenbefund.h"

#include "core/meldungstext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace {

using Eintrag = Zeichenbefund::Eintrag;
using Eintraege = std::vector<Eintrag>;

constexpr std::string_view einesDraussen =
    " Das Zeichen  {}  kann ich nicht speichern, es musste draußen bleiben.";
constexpr std::string_view einesErsetzt =
    " Das Zeichen  {}  kann ich nicht speichern, ich habe  {}  daraus gemacht.";
constexpr std::string_view mehrereDraussen = " Nicht speichern kann ich  {} .";
constexpr std::string_view mehrereErsetzt = " Ersetzt habe ich  {} .";

// The panel has two lines.
constexpr std::size_t hoechstensGenannt = 3;

std::string Utf8(char32_t zeichen) {
    const auto byte = [zeichen](unsigned schub) {
        return static_cast<char>(0x80U | ((static_cast<unsigned>(zeichen) >> schub) & 0x3FU));
    };
    const auto kopf = [zeichen](unsigned marke, unsigned schub) {
        return static_cast<char>(marke | (static_cast<unsigned>(zeichen) >> schub));
    };
    if (zeichen < 0x80) {
        return {static_cast<char>(zeichen)};
    }
    if (zeichen < 0x800) {
        return {kopf(0xC0, 6), byte(0)};
    }
    if (zeichen < 0x10000) {
        return {kopf(0xE0, 12), byte(6), byte(0)};
    }
    return {kopf(0xF0, 18), byte(12), byte(6), byte(0)};
}

// Characters that nobody would see in the message: control, joining, direction and variation marks.
bool Unsichtbar(char32_t zeichen) {
    struct Bereich {
        char32_t von, bis;
    };
    constexpr std::array bereiche{
        Bereich{0, 0x20},        Bereich{0x7F, 0xA0},     Bereich{0x300, 0x36F},
        Bereich{0x2000, 0x200F}, Bereich{0x2028, 0x202F}, Bereich{0x205F, 0x206F},
        Bereich{0xFE00, 0xFE0F}, Bereich{0xFEFF, 0xFEFF}, Bereich{0xE0000, 0xE01EF}};
    return std::ranges::any_of(bereiche,
                               [zeichen](const Bereich& b) { return b.von <= zeichen && zeichen <= b.bis; });
}

std::string Name(char32_t zeichen) {
    if (!Unsichtbar(zeichen)) {
        return Utf8(zeichen);
    }
    std::array<char, 8> ziffern{};
    const auto ende = std::to_chars(ziffern.begin(), ziffern.end(), static_cast<unsigned>(zeichen), 16).ptr;
    std::string hex(ziffern.begin(), ende);
    hex.insert(0, hex.size() < 4 ? 4 - hex.size() : 0, '0');
    std::ranges::transform(hex, hex.begin(),
                           [](char z) { return z >= 'a' ? static_cast<char>(z - 'a' + 'A') : z; });
    return "U+" + hex;
}

std::string Beschrieben(const Eintrag& eintrag) {
    std::string text = Name(eintrag.zeichen);
    if (!eintrag.ersatz.empty()) {
        text += " durch " + eintrag.ersatz;
    }
    return eintrag.anzahl > 1 ? text + " (" + std::to_string(eintrag.anzahl) + "-mal)" : text;
}

std::string Aufzaehlung(const Eintraege& eintraege) {
    std::string liste;
    for (std::size_t i = 0; i < std::min(eintraege.size(), hoechstensGenannt); ++i) {
        liste += (i == 0 ? "" : ", ") + Beschrieben(eintraege[i]);
    }
    if (eintraege.size() > hoechstensGenannt) {
        liste += " und " + std::to_string(eintraege.size() - hoechstensGenannt) + " andere";
    }
    return liste;
}

} // namespace

void Zeichenbefund::Notieren(char32_t zeichen, const std::string& ersatz) {
    const auto bekannt = std::ranges::find(eintraege, zeichen, &Eintrag::zeichen);
    if (bekannt != eintraege.end()) {
        ++bekannt->anzahl;
    } else {
        eintraege.push_back({zeichen, ersatz, 1});
    }
}

std::string ZeichenHinweis(const Zeichenbefund& befund) {
    if (befund.eintraege.size() == 1 && befund.eintraege.front().anzahl == 1) {
        const Eintrag& eins = befund.eintraege.front();
        return eins.ersatz.empty() ? Einsetzen(einesDraussen, {Name(eins.zeichen)})
                                   : Einsetzen(einesErsetzt, {Name(eins.zeichen), eins.ersatz});
    }
    Eintraege draussen;
    Eintraege ersetzt;
    for (const Eintrag& eintrag : befund.eintraege) {
        (eintrag.ersatz.empty() ? draussen : ersetzt).push_back(eintrag);
    }
    std::string text;
    if (!draussen.empty()) {
        text += Einsetzen(mehrereDraussen, {Aufzaehlung(draussen)});
    }
    if (!ersetzt.empty()) {
        text += Einsetzen(mehrereErsetzt, {Aufzaehlung(ersetzt)});
    }
    return text;
}
