// The child windows' own signs, which stand in their property "tag": a table, so that nobody writes one by
// hand.
#pragma once

#include "core/formart.h"

#include <array>
#include <cstdint>
#include <string_view>

enum class Kindfenster : std::uint8_t {
    Quizformular,
    Testformular,
    Editor,
    Spielregel,
    Homepage,
    Suche,
    Fuellen,
    Pruefung,
    Vorschau
};

[[nodiscard]] constexpr std::string_view Fensterzeichen(Kindfenster fenster) {
    constexpr std::array<std::string_view, 9> zeichen{
        "FKFragen", "HBFragen", "Editor", "Browser", "Homepage", "Suche", "Fuellen", "Pruefung", "Vorschau"};
    return zeichen.at(static_cast<std::size_t>(fenster));
}
[[nodiscard]] constexpr std::string_view Fensterzeichen(Formart art) {
    return Fensterzeichen(art == Formart::Test ? Kindfenster::Testformular : Kindfenster::Quizformular);
}
