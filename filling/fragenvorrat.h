// The catalogue as whoever fills a form needs it: questions by their numbers in search/fragenbestand.h, with
// their points as numbers, whether they are used, and which of them repeat each other. Reads no file and
// chooses nothing.
#pragma once

#include "search/aehnlich.h"
#include "search/fragenbestand.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using Fragennummer = std::uint32_t;
using Frageliste = std::vector<Fragennummer>; // ascending, where nothing else is said

// The theme that the tasks of cells with the letter A come from, as catalogue/themen.h names it.
inline constexpr std::string_view aufgabenthema = "- Aufgaben -";
// True of the themes that hold questions, and neither tasks nor events.
[[nodiscard]] bool IstFragenthema(std::string_view thema);

// One sub-theme, one theme, or all themes of questions; "" for all.
struct Themenwahl {
    std::string thema, unterthema;
    friend bool operator==(const Themenwahl&, const Themenwahl&) = default;
};

class Fragenvorrat {
public:
    // benutzt is asked once for each question.
    Fragenvorrat(std::shared_ptr<const Fragenbestand> bestand,
                 const std::function<bool(std::string_view)>& benutzt);

    [[nodiscard]] std::size_t anzahl() const { return eintraege_.size(); }
    // Numbers must be below anzahl(); the texts live as long as the object.
    [[nodiscard]] Katalogfrage frage(Fragennummer nr) const { return bestand_->frage(nr); }
    // 0 where the catalogue names none.
    [[nodiscard]] int punkte(Fragennummer nr) const { return eintraege_[nr].punkte; }
    [[nodiscard]] bool benutzt(Fragennummer nr) const { return eintraege_[nr].benutzt; }
    [[nodiscard]] bool wiederholt(Fragennummer a, Fragennummer b) const {
        return a == b || Fastgleich(eintraege_[a].anfaenge, eintraege_[b].anfaenge);
    }

    // Questions without a text are in none of these.
    [[nodiscard]] Frageliste aus(const Themenwahl& wahl) const;
    // For each question, whether it repeats one of these texts.
    [[nodiscard]] std::vector<bool> wiederholungen(std::span<const std::string> fragen) const;

private:
    struct Eintrag {
        Wortanfaenge anfaenge;
        int punkte = 0;
        bool benutzt = false;
    };
    std::shared_ptr<const Fragenbestand> bestand_;
    std::vector<Eintrag> eintraege_;
};
