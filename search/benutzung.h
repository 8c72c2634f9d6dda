// Which question stands in which form file, as a value: what "benutzt" means, and how it is told. Reads no
// file: that is search/formularblick.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// One form with its questions.
struct Formulareintrag {
    std::string pfad;                     // "" for a form without a file
    std::string name;                     // "ABEND.FKR"
    std::string datum;                    // as its head has it, else the file's: "20.11.2026"
    std::int64_t zeit = 0;                // of the file's last change, to put them in order
    std::vector<std::uint64_t> abdruecke; // of its questions (search/faltung.h), none of them 0

    friend bool operator==(const Formulareintrag&, const Formulareintrag&) = default;
};

// The number of a question's letters and digits, as the catalogue's and the forms' questions are compared.
[[nodiscard]] std::uint64_t AbdruckVon(std::string_view frage);

class Benutzung {
public:
    Benutzung() = default;
    explicit Benutzung(std::vector<Formulareintrag> formulare);

    // The forms that a question stands in, the one changed last first, but for the one of that path. offenes
    // stands for the form of its path, if it isn't nullptr.
    [[nodiscard]] std::vector<const Formulareintrag*>
    Formulare(std::uint64_t abdruck, const Formulareintrag* offenes, std::string_view ausser = {}) const;
    [[nodiscard]] std::span<const Formulareintrag> formulare() const { return formulare_; }

private:
    std::vector<Formulareintrag> formulare_;
    std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> nach_;
};

// "ABEND.FKR (20.11.2026)" and "schon benutzt in ABEND.FKR (20.11.2026) und 2 weiteren"; "" for none.
[[nodiscard]] std::string Benutztspalte(std::span<const Formulareintrag* const> formulare);
[[nodiscard]] std::string Benutzttext(std::span<const Formulareintrag* const> formulare);
