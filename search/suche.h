// Finding questions: which of the catalogue hold all the words, and in which order they are shown. Takes
// apart no input (search/suchanfrage.h) and shows nothing.
#pragma once

#include "search/fragenbestand.h"
#include "search/suchanfrage.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct Suchfilter {
    std::string thema;  // "" for all
    std::string punkte; // as the catalogue has them, "" for all
    // True for a question that may stay, by the number of its letters and digits (Fragenabdruck); empty for
    // all.
    std::function<bool(std::uint64_t abdruck)> behalten;
};

// One search after another, as somebody types: what is known of a word that is still there isn't looked for
// again.
class Suchlauf {
public:
    // Numbers of the questions (Fragenbestand::frage) in which every word occurs, in question, answer, theme
    // or sub-theme, and none of those that must not. Best first: the word as a whole, then at the beginning
    // of one, then within one; for each of these in the question, then in the answer, then in the themes;
    // several words count together. The same rank keeps the order of the catalogue, as an empty request does.
    [[nodiscard]] std::vector<std::uint32_t> Suchen(const std::shared_ptr<const Fragenbestand>& bestand,
                                                    const Suchanfrage& anfrage,
                                                    const Suchfilter& filter = {});

private:
    const std::vector<std::uint8_t>& Wortraenge(const std::string& wort);
    void Vergessen(const Suchanfrage& anfrage);

    std::shared_ptr<const Fragenbestand> bestand_;
    std::map<std::string, std::vector<std::uint8_t>> raenge_; // of each question, by word
};
