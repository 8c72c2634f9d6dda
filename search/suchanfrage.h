// What somebody has typed to find questions, taken apart: words that must occur, words held together by
// quotation marks, words that must not. Finds nothing: that is search/suche.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Suchanfrage {
    std::vector<std::string> noetig, verboten; // folded (search/faltung.h), none of them empty
    friend bool operator==(const Suchanfrage&, const Suchanfrage&) = default;
};

// Blanks part words; straight or German quotation marks hold together what stands between them, to the end
// where the second one is missing; a minus ahead of either leaves out. What has no character left is no word.
[[nodiscard]] Suchanfrage AnfrageAus(std::string_view eingabe);

// Where the words that must occur stand in a text, in bytes, sorted and without overlap.
struct Textbereich {
    std::size_t von, bis;
    friend bool operator==(const Textbereich&, const Textbereich&) = default;
};
[[nodiscard]] std::vector<Textbereich> Fundstellen(std::string_view text, const Suchanfrage& anfrage);
