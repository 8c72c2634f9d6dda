#include "sheets/blattsatz.h"

#include "core/meldungstext.h"
#include "sheets/texte.h"

namespace {

bool Innen(const Flaeche& teil, const Flaeche& ganzes) {
    return teil.x >= ganzes.x && teil.y >= ganzes.y && teil.x + teil.breite <= ganzes.x + ganzes.breite &&
           teil.y + teil.hoehe <= ganzes.y + ganzes.hoehe;
}

// A text whose place is cut out of a larger picture goes on on another page.
bool HatZuschnitt(const Zeichnung& seite) {
    return !seite.empty() && std::holds_alternative<Zuschnitt>(seite.front());
}

} // namespace

void RandPruefen(Blattsatz& blatt, const Flaeche& druckbar, const Schriftmass& mass) {
    for (std::size_t i = 0; i < blatt.seiten.size(); ++i) {
        if (HatZuschnitt(blatt.seiten.at(i))) {
            continue;
        }
        for (const Element& element : blatt.seiten.at(i)) {
            const auto* text = std::get_if<Textstelle>(&element);
            if (text == nullptr || text->text.find_first_not_of(' ') == std::string::npos) {
                continue;
            }
            if (const Flaeche umriss = Umriss(element, mass); !Innen(umriss, druckbar)) {
                blatt.ueberhaenge.push_back({i, umriss, Einsetzen(blatttexte::imRand, {text->text})});
            }
        }
    }
}
