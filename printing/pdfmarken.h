// The words of which the objects of a PDF file are made, one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// What counts as blank in a PDF file.
[[nodiscard]] constexpr bool PdfLeer(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\0';
}

struct PdfMarke {
    enum class Art : std::uint8_t {
        Ende,
        Fremd, // what no object of ours holds: a comment, a bracket that nothing closes
        Ganzzahl,
        Name, // with its slash
        Wort, // anything else that stands without brackets: "true", "R", "0.5"
        Text, // in brackets, as bytes or as digits
        Auf,  // "<<" or "["
        Zu    // ">>" or "]"
    };
    Art art = Art::Ende;
    std::size_t anfang = 0; // in the file
    std::string_view text;
    int zahl = 0;

    [[nodiscard]] bool ist(std::string_view wort) const { return art == Art::Wort && text == wort; }
    [[nodiscard]] std::size_t ende() const { return anfang + text.size(); }
};

class PdfMarken {
public:
    // bytes: the file, up to where the words end; stelle: where they begin, not behind the end.
    PdfMarken(std::string_view bytes, std::size_t stelle) : bytes_(bytes), stelle_(stelle) {}

    [[nodiscard]] PdfMarke Naechste();

private:
    [[nodiscard]] std::size_t TextEnde() const;
    [[nodiscard]] std::size_t ZiffernEnde() const;
    [[nodiscard]] std::size_t WortEnde() const;
    [[nodiscard]] PdfMarke Bis(PdfMarke::Art art, std::size_t ende);

    std::string_view bytes_;
    std::size_t stelle_;
};
