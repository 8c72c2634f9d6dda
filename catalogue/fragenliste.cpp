#include "catalogue/fragenliste.h"

#include "core/cp1252.h"
#include "core/laufzeitfehler.h"

#include <limits>

std::string_view Fragenliste::wert(std::size_t frage, Spalte spalte) const {
    const auto nr = static_cast<std::size_t>(spalte);
    const std::size_t anfang = nr > 0 ? enden_[frage][nr - 1] : frage > 0 ? enden_[frage - 1].back() : 0;
    return std::string_view(text_).substr(anfang, enden_[frage][nr] - anfang);
}

void Fragenliste::Vorsehen(std::size_t fragen, std::size_t bytes) {
    text_.reserve(text_.size() + bytes);
    enden_.reserve(enden_.size() + fragen);
}

void Fragenliste::Anhaengen(const std::array<std::string_view, anzahlSpalten>& satz) {
    std::array<std::uint32_t, anzahlSpalten> enden{};
    const std::size_t vorher = text_.size();
    for (std::size_t nr = 0; nr < anzahlSpalten; ++nr) {
        AusCp1252Anhaengen(text_, satz[nr]);
        if (text_.size() > std::numeric_limits<std::uint32_t>::max()) {
            text_.resize(vorher);
            throw Laufzeitfehler(Fehler::SpeicherVoll);
        }
        enden[nr] = static_cast<std::uint32_t>(text_.size());
    }
    enden_.push_back(enden);
}
