// What the program was called for: the value of its command line, and what is said about it. Prints nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

enum class Aufrufart : std::uint8_t { Programm, Hilfe, Version, Falsch };

struct Programmaufruf {
    Aufrufart art = Aufrufart::Programm;
    std::optional<std::size_t> datei{}; // which argument names the file to open

    friend bool operator==(const Programmaufruf&, const Programmaufruf&) = default;
};

// One file, or one of the two switches, or nothing; anything else is Falsch. The program's own name isn't
// among the arguments.
[[nodiscard]] Programmaufruf AufrufLesen(std::span<const std::string> argumente);

// What is printed for a call; "" where the program starts.
[[nodiscard]] std::string Aufruftext(Aufrufart art);
// The program's name with its version, as printed and as a package is named.
[[nodiscard]] std::string Versionszeile();
