// The questions of a sub-theme in file order, four texts each, end to end in one block of memory: a file of
// any length costs little more than its bytes. Reads nothing itself: that is catalogue/katalogdatei.h.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The columns in the order of the lines of a record.
enum class Spalte : std::uint8_t { Nr, Frage, Antwort, Punkte };
inline constexpr std::size_t anzahlSpalten = 4;

class Fragenliste {
public:
    [[nodiscard]] std::size_t anzahl() const { return enden_.size(); }
    // Of all texts together.
    [[nodiscard]] std::size_t bytes() const { return text_.size(); }
    // Bytes of memory that the list holds.
    [[nodiscard]] std::size_t belegt() const {
        return text_.capacity() + enden_.capacity() * sizeof(enden_.front());
    }
    // Text in UTF-8; question counts from 0 and must be below anzahl().
    [[nodiscard]] std::string_view wert(std::size_t frage, Spalte spalte) const;

    // Room for that many more questions with that many bytes of text in all.
    void Vorsehen(std::size_t fragen, std::size_t bytes);
    // One more question, from lines in code page 1252. Run-time error 7 where the texts pass 4 GiB.
    void Anhaengen(const std::array<std::string_view, anzahlSpalten>& satz);

private:
    std::string text_;
    std::vector<std::array<std::uint32_t, anzahlSpalten>> enden_; // of each text in text_
};
