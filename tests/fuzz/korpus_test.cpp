// Every property over the files that the program is delivered with, whole and cut, and over what the fuzzing
// has found: the inputs in funde/ failed once.
#include "tests/fuzz/eigenschaften.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string Gelesen(const fs::path& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

std::vector<fs::path> Dateien(const fs::path& ordner, const std::vector<std::string>& endungen = {}) {
    std::vector<fs::path> pfade;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner)) {
        const bool dabei = endungen.empty() ||
                           std::ranges::find(endungen, eintrag.path().extension().string()) != endungen.end();
        if (eintrag.is_regular_file() && dabei) {
            pfade.push_back(eintrag.path());
        }
    }
    std::ranges::sort(pfade);
    return pfade;
}

TEST(Korpus, EveryDeliveredFileHoldsEveryProperty) {
    const auto dateien = Dateien(FELDKRANZ_DATEN, {".FKR", ".INI", ".TXT"});
    EXPECT_GT(dateien.size(), 140U);
    for (const fs::path& pfad : dateien) {
        const std::string bytes = Gelesen(pfad);
        for (const fuzz::Ziel& ziel : fuzz::ziele) {
            SCOPED_TRACE(pfad.string());
            ziel.pruefen(bytes);
        }
    }
}

TEST(Korpus, ADeliveredFormCutAnywhereHoldsEveryProperty) {
    for (const fs::path& pfad : Dateien(FELDKRANZ_DATEN, {".FKR", ".INI"})) {
        const std::string bytes = Gelesen(pfad);
        for (std::size_t laenge = 0; laenge < bytes.size(); laenge += 13) {
            fuzz::Formular(std::string_view(bytes).substr(0, laenge));
            fuzz::Einstellungen(std::string_view(bytes).substr(0, laenge));
        }
    }
}

TEST(Korpus, WhatWasFoundOnceIsMended) {
    std::size_t geprueft = 0;
    for (const fuzz::Ziel& ziel : fuzz::ziele) {
        const fs::path ordner = fs::path(FELDKRANZ_FUNDE) / ziel.name;
        if (!fs::exists(ordner)) {
            continue;
        }
        for (const fs::path& pfad : Dateien(ordner)) {
            SCOPED_TRACE(pfad.string());
            ziel.pruefen(Gelesen(pfad));
            ++geprueft;
        }
    }
    EXPECT_GT(geprueft, 0U);
}

} // namespace
