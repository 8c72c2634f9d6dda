// The record of the tray icon and the rule for its events. Showing the icon is periphery/tray.h.
#pragma once

#include <cstdint>
#include <string_view>

// The numbers are those of the notify icon that the program has always put up; a system whose icons need less
// takes the tip alone.
struct Traydaten {
    std::int32_t groesse = 88;
    std::int32_t kennung = 1;
    std::int32_t merkmale = 7; // message, icon and tip
    std::int32_t nachricht = 512;
    std::string_view tipp{" Feldkranz! \0", 13}; // at most 64 characters, a zero at the end
};

// Written by nobody; lives as long as the process.
inline constexpr Traydaten TrayDaten;

// Numbers of the mouse's messages.
inline constexpr int linkeTasteGedrueckt = 513;
inline constexpr int rechteTasteLosgelassen = 517;

// What a message of the icon does.
enum class Traytat : std::uint8_t { Nichts, Zeigen, NachVorn };

[[nodiscard]] constexpr Traytat TrayEreignis(int nummer) {
    switch (nummer) {
    case linkeTasteGedrueckt:
        return Traytat::Zeigen;
    case rechteTasteLosgelassen:
        return Traytat::NachVorn;
    default:
        return Traytat::Nichts;
    }
}
