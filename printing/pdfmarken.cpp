#include "printing/pdfmarken.h"

#include <charconv>

namespace {

using Art = PdfMarke::Art;

constexpr auto nirgends = std::string_view::npos;

bool Trennt(char c) {
    constexpr std::string_view trenner = "()<>[]{}/%";
    return PdfLeer(c) || trenner.find(c) != nirgends;
}

// Whole numbers of more digits than an object's number can have are words like any other.
bool Ganzzahl(std::string_view text, int& zahl) {
    constexpr std::size_t ziffern = 9;
    if (text.size() > ziffern || text.find_first_not_of("0123456789") != nirgends) {
        return false;
    }
    const char* ende = text.data() + text.size();
    const auto gelesen = std::from_chars(text.data(), ende, zahl);
    return gelesen.ec == std::errc() && gelesen.ptr == ende;
}

} // namespace

PdfMarke PdfMarken::Bis(Art art, std::size_t ende) {
    if (ende == nirgends) {
        return {Art::Fremd, stelle_, {}};
    }
    PdfMarke marke{art, stelle_, bytes_.substr(stelle_, ende - stelle_)};
    stelle_ = ende;
    return marke;
}

// Behind the round bracket that closes the one that stands here.
std::size_t PdfMarken::TextEnde() const {
    std::size_t tiefe = 0;
    for (std::size_t i = stelle_; i < bytes_.size(); ++i) {
        if (bytes_[i] == '\\') {
            ++i;
        } else if (bytes_[i] == '(') {
            ++tiefe;
        } else if (bytes_[i] == ')' && --tiefe == 0) {
            return i + 1;
        }
    }
    return nirgends;
}

std::size_t PdfMarken::ZiffernEnde() const {
    const std::size_t zu = bytes_.find('>', stelle_);
    return zu == nirgends ? nirgends : zu + 1;
}

std::size_t PdfMarken::WortEnde() const {
    std::size_t ende = stelle_ + 1;
    while (ende < bytes_.size() && !Trennt(bytes_[ende])) {
        ++ende;
    }
    return ende;
}

PdfMarke PdfMarken::Naechste() {
    while (stelle_ < bytes_.size() && PdfLeer(bytes_[stelle_])) {
        ++stelle_;
    }
    if (stelle_ >= bytes_.size()) {
        return {Art::Ende, bytes_.size(), {}};
    }
    const std::string_view rest = bytes_.substr(stelle_);
    switch (rest.front()) {
    case '(':
        return Bis(Art::Text, TextEnde());
    case '/':
        return Bis(Art::Name, WortEnde());
    case '[':
        return Bis(Art::Auf, stelle_ + 1);
    case ']':
        return Bis(Art::Zu, stelle_ + 1);
    case '<':
        return rest.starts_with("<<") ? Bis(Art::Auf, stelle_ + 2) : Bis(Art::Text, ZiffernEnde());
    case '>':
        return rest.starts_with(">>") ? Bis(Art::Zu, stelle_ + 2) : Bis(Art::Fremd, nirgends);
    case ')':
    case '{':
    case '}':
    case '%':
        return Bis(Art::Fremd, nirgends);
    default: {
        PdfMarke wort = Bis(Art::Wort, WortEnde());
        if (Ganzzahl(wort.text, wort.zahl)) {
            wort.art = Art::Ganzzahl;
        }
        return wort;
    }
    }
}
