// The buttons of the main window's toolbars as a table: on which bar each stands, its picture and caption,
// and what it tells about itself. What a button does is in mainwindow/befehle.cpp under the same name.
#pragma once

#include <span>
#include <string_view>

enum class Leiste { Kranz, FK, HB, Immer };

struct Schaltflaeche {
    Leiste leiste;
    std::string_view name;
    std::string_view bild; // as core/bilder.h names it
    std::string_view aufschrift;
    std::string_view tipp;
    std::string_view titel;
    std::string_view status;
    bool abstand = false; // a gap stands before the button
    bool schalter = false;
};

[[nodiscard]] std::span<const Schaltflaeche> Schaltflaechen();
