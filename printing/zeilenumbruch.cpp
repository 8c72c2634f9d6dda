#include "printing/zeilenumbruch.h"

#include <cstddef>
#include <utility>

namespace {

constexpr auto keins = std::string_view::npos;

// A text on its way into lines.
class Umbruch {
public:
    Umbruch(std::string_view text, Millimeter breite, const Breitenmass& messen, Wortmass wortmass)
        : text_(text), breite_(breite), messen_(messen), jedesWort_(wortmass == Wortmass::JedesWort) {}

    void Leerzeichen(std::size_t stelle) {
        WennZuBreitEnden(jedesWort_ ? stelle : stelle + 1);
        letztesLeer_ = stelle;
    }
    void Zeilenende(std::size_t stelle, std::size_t weiter) {
        WennZuBreitEnden(stelle);
        Enden(stelle, weiter);
    }
    std::vector<std::string_view> Textende() {
        if (jedesWort_) {
            WennZuBreitEnden(text_.size());
        }
        Enden(text_.size(), text_.size());
        return std::move(zeilen_);
    }

private:
    [[nodiscard]] std::string_view Bis(std::size_t ende) const {
        return text_.substr(beginn_, ende - beginn_);
    }
    void Enden(std::size_t ende, std::size_t weiter) {
        zeilen_.push_back(Bis(ende));
        beginn_ = weiter;
        letztesLeer_ = keins;
    }
    // Ends a line at the previous blank when the buffer up to ende is too wide.
    void WennZuBreitEnden(std::size_t ende) {
        if (letztesLeer_ == keins) {
            return;
        }
        const bool keinNeuesWort = letztesLeer_ + 1 == ende;
        if ((jedesWort_ && keinNeuesWort) || messen_(Bis(ende)) <= breite_) {
            return;
        }
        Enden(letztesLeer_, letztesLeer_ + 1);
    }

    std::string_view text_;
    Millimeter breite_;
    const Breitenmass& messen_;
    bool jedesWort_;
    std::size_t beginn_ = 0;          // of the part that has been read but not printed
    std::size_t letztesLeer_ = keins; // last blank in that part
    std::vector<std::string_view> zeilen_;
};

} // namespace

std::vector<std::string_view> Umbrechen(std::string_view text, Millimeter breite, const Breitenmass& messen,
                                        Wortmass wortmass) {
    Umbruch umbruch(text, breite, messen, wortmass);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char zeichen = text[i];
        if (zeichen == ' ') {
            umbruch.Leerzeichen(i);
        } else if (zeichen == '\r' || zeichen == '\n') {
            const std::size_t stelle = i;
            if (zeichen == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
                ++i;
            }
            umbruch.Zeilenende(stelle, i + 1);
        }
    }
    return umbruch.Textende();
}
