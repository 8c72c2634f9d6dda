// The straight quotation mark in a text: the form file knows no way to write it, so what stands behind it is
// gone when the form is read again. Nothing is altered; the user is told.
#pragma once

#include <span>
#include <string>
#include <string_view>

[[nodiscard]] bool HatAnfuehrung(std::string_view text);

// What is said about the places whose text holds one; names the first of them and counts the others. Nothing
// for none.
[[nodiscard]] std::string AnfuehrungHinweis(std::span<const std::string> orte);
