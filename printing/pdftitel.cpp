#include "printing/pdftitel.h"

#include "printing/pdfmarken.h"

#include <charconv>
#include <cstdint>

namespace {

std::string_view OhneLeeresVorn(std::string_view text) {
    while (!text.empty() && PdfLeer(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

// Behind the last place of a word in the text; nothing where it isn't.
std::optional<std::string_view> Hinter(std::string_view text, std::string_view wort) {
    const std::size_t stelle = text.rfind(wort);
    return stelle == std::string_view::npos ? std::nullopt : std::optional(text.substr(stelle + wort.size()));
}

// The object that the trailer names as the one with the facts about the file.
std::optional<std::string_view> Angaben(std::string_view bytes) {
    const auto verweis = Hinter(bytes, "/Info ");
    if (!verweis) {
        return std::nullopt;
    }
    int nummer = 0;
    const char* ende = verweis->data() + verweis->size();
    if (std::from_chars(verweis->data(), ende, nummer).ec != std::errc()) {
        return std::nullopt;
    }
    const auto objekt = Hinter(bytes, std::string("\n").append(std::to_string(nummer)).append(" 0 obj"));
    return objekt ? std::optional(objekt->substr(0, objekt->find("endobj"))) : std::nullopt;
}

int Oktalziffer(std::string_view text, std::size_t i) {
    return i < text.size() && text[i] >= '0' && text[i] <= '7' ? text[i] - '0' : -1;
}

// What a backslash stands for; i is moved to the last character of it.
void ZeichenAnhaengen(std::string_view text, std::size_t& i, std::string& bytes) {
    if (int wert = Oktalziffer(text, i); wert >= 0) {
        for (int mehr = 0; mehr < 2 && Oktalziffer(text, i + 1) >= 0; ++mehr) {
            wert = wert * 8 + Oktalziffer(text, ++i);
        }
        bytes += static_cast<char>(wert);
        return;
    }
    constexpr std::string_view kuerzel = "nrtbf";
    constexpr std::string_view zeichen = "\n\r\t\b\f";
    const std::size_t art = kuerzel.find(text[i]);
    bytes += art == std::string_view::npos ? text[i] : zeichen[art];
}

// The bytes of a string in round brackets, from behind the first one on; the text goes on behind the last.
std::optional<std::string> Klammertext(std::string_view& text) {
    std::string bytes;
    int tiefe = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            ZeichenAnhaengen(text, ++i, bytes);
            continue;
        }
        tiefe += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (tiefe == 0) {
            text.remove_prefix(i + 1);
            return bytes;
        }
        bytes += text[i];
    }
    return std::nullopt;
}

void Utf8Anhaengen(std::uint32_t zeichen, std::string& text) {
    const auto folge = [&text](std::uint32_t bits) { text += static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (zeichen < 0x80) {
        text += static_cast<char>(zeichen);
    } else if (zeichen < 0x800) {
        text += static_cast<char>(0xC0U | (zeichen >> 6U));
        folge(zeichen);
    } else if (zeichen < 0x10000) {
        text += static_cast<char>(0xE0U | (zeichen >> 12U));
        folge(zeichen >> 6U);
        folge(zeichen);
    } else {
        text += static_cast<char>(0xF0U | (zeichen >> 18U));
        folge(zeichen >> 12U);
        folge(zeichen >> 6U);
        folge(zeichen);
    }
}

// Two bytes a character, the higher one first, behind their mark; a file without it has plain letters.
std::string AlsUtf8(std::string_view bytes) {
    if (!bytes.starts_with("\xFE\xFF")) {
        return std::string(bytes);
    }
    const auto einheit = [&bytes](std::size_t i) -> std::uint32_t {
        return i + 1 < bytes.size() ? static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << 8U |
                                          static_cast<unsigned char>(bytes[i + 1])
                                    : 0U;
    };
    std::string text;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
        const std::uint32_t hoch = einheit(i);
        const std::uint32_t tief = einheit(i + 2);
        if ((hoch & 0xFC00U) == 0xD800U && (tief & 0xFC00U) == 0xDC00U) {
            Utf8Anhaengen(0x10000U + ((hoch & 0x3FFU) << 10U) + (tief & 0x3FFU), text);
            i += 2;
        } else {
            Utf8Anhaengen(hoch, text);
        }
    }
    return text;
}

// The text behind a name, which doesn't count where it stands inside another text.
std::optional<std::string> Angabe(std::string_view angaben, std::string_view name) {
    while (!angaben.empty()) {
        if (angaben.starts_with(name)) {
            angaben = OhneLeeresVorn(angaben.substr(name.size()));
            if (!angaben.starts_with('(')) {
                return std::nullopt;
            }
            angaben.remove_prefix(1);
            const auto text = Klammertext(angaben);
            return text ? std::optional(AlsUtf8(*text)) : std::nullopt;
        }
        const bool klammer = angaben.front() == '(';
        angaben.remove_prefix(1);
        if (klammer && !Klammertext(angaben)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace

PdfAngaben PdfAngabenLesen(std::string_view bytes) {
    const auto angaben = Angaben(bytes);
    if (!angaben) {
        return {};
    }
    return {Angabe(*angaben, "/Title"), Angabe(*angaben, "/Creator"), Angabe(*angaben, "/Producer")};
}

bool IstUnserBlatt(std::string_view bytes, std::string_view titel) {
    const PdfAngaben angaben = PdfAngabenLesen(bytes);
    const bool angehaengt = bytes.find("%%EOF") != bytes.rfind("%%EOF"); // notes that a viewer has put in
    return angaben.titel == titel && angaben.ersteller == blattersteller &&
           angaben.hersteller.value_or("").starts_with(blatthersteller) && !angehaengt;
}
