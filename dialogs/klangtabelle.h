// The sounds that the program knows, by key, and where their files lie beneath the program's folder. Plays
// nothing.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

struct Klang {
    std::string_view schluessel;
    std::string_view datei; // begins with a backslash
};

// The keys carry the extension, which no caller passes: no request ever finds a sound, and that is meant.
inline constexpr std::array<Klang, 12> klangTabelle{{{"freiz_1.wav", "\\SOUND\\freiz_1.wav"},
                                                     {"freiz_2.wav", "\\SOUND\\freiz_2.wav"},
                                                     {"siren.wav", "\\SOUND\\siren.wav"},
                                                     {"tataa.wav", "\\SOUND\\tataa.wav"},
                                                     {"bongo.wav", "\\SOUND\\bongo.wav"},
                                                     {"clack.wav", "\\SOUND\\clack.wav"},
                                                     {"lachen.wav", "\\SOUND\\lachen.wav"},
                                                     {"dubb.wav", "\\SOUND\\dubb.wav"},
                                                     {"klopf.wav", "\\SOUND\\klopf.wav"},
                                                     {"ok.wav", "\\SOUND\\ok.wav"},
                                                     {"trompete.wav", "\\SOUND\\trompete.wav"},
                                                     {"fanfare.wav", "\\SOUND\\fanfare.wav"}}};

// The file of exactly that key, "" for none.
[[nodiscard]] constexpr std::string_view KlangDatei(std::string_view schluessel) {
    const auto* const klang = std::ranges::find(klangTabelle, schluessel, &Klang::schluessel);
    return klang == klangTabelle.end() ? std::string_view() : klang->datei;
}
