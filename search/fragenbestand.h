// All questions of the catalogue at one moment, as a value that many may read at once: file after file in the
// order of the themes' table, each with its folded texts beside it. Reads no file: that is
// search/katalogblick.h; finds nothing itself: that is search/suche.h.
#pragma once

#include "catalogue/fragenliste.h"
#include "search/stellensuche.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct Katalogfrage {
    std::string_view thema, unterthema, frage, antwort, punkte;
};

// The questions of one file. Its searchable text is, question after question, the folded question, trenner,
// the folded answer, ende.
struct Bestandsdatei {
    static constexpr char trenner = '\x1F';
    static constexpr char ende = '\x1E';

    std::string thema, unterthema;
    Fragenliste fragen;
    Suchtext text;
    struct Enden {
        std::uint32_t frage, antwort; // where its trenner and its ende stand in text
    };
    std::vector<Enden> enden;
    std::vector<std::uint32_t> ausgelassen; // places ahead of which an e has fallen out (search/faltung.h)
    std::vector<std::uint64_t> abdruecke;   // of each question's letters and digits
};

// Folds the texts of a list, which is taken over. Run-time error 7 where they pass 4 GiB.
[[nodiscard]] std::shared_ptr<const Bestandsdatei>
BestandsdateiAus(std::string_view thema, std::string_view unterthema, Fragenliste fragen);

class Fragenbestand {
public:
    using Datei = std::shared_ptr<const Bestandsdatei>;

    Fragenbestand() = default;
    explicit Fragenbestand(std::vector<Datei> dateien);

    [[nodiscard]] std::size_t anzahl() const { return anfaenge_.empty() ? 0 : anfaenge_.back(); }
    // Counts from 0 through all files; must be below anzahl(). The texts live as long as the object.
    [[nodiscard]] Katalogfrage frage(std::size_t nr) const;

    [[nodiscard]] std::span<const Datei> dateien() const { return dateien_; }
    // Number of the first question of a file.
    [[nodiscard]] std::size_t anfang(std::size_t datei) const {
        return datei == 0 ? 0 : anfaenge_[datei - 1];
    }
    // The file that a question stands in, and its number there.
    struct Ort {
        std::size_t datei, frage;
    };
    [[nodiscard]] Ort ort(std::size_t nr) const;

private:
    std::vector<Datei> dateien_;
    std::vector<std::size_t> anfaenge_; // for each file the number of the first question behind it
};
