// The value grammar that form, settings and list files share, on bytes in memory: one value a statement,
// strings in quotes without any escape, plain numbers, code page 1252, CR LF behind every value. Knows no
// section and no file; what the values mean is formulardatei.h and einstellungsdatei.h.
#pragma once

#include "core/laufzeitfehler.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// --- Reading ----------------------------------------------------------------------------------------------

// Bytes of a text that a box on the screen can still show without keeping the program busy for minutes.
inline constexpr std::size_t laengsterText = std::size_t{1} << 16U;

// Reads values from bytes that outlive it. The rules of a token:
// - blanks ahead of it are skipped;
// - one that begins with a quote runs to the next quote, across line ends and commas, and what stands between
//   that quote and the next comma or line end is dropped; without a second quote it runs to the end;
// - any other runs to the next comma or line end, without the blanks at its end;
// - the comma or line end (CR LF, and a CR or LF alone) closes the token and belongs to it. So an empty line
//   is an empty token, and a file that ends behind a line end has no token left.
// A token asked for at the end of the bytes is run-time error 62.
class WertLeser {
public:
    // Called with a failed statement's error before the statement is tried again on the next token.
    using Fehlermelder = std::function<void(const Laufzeitfehler&)>;

    // Without a Fehlermelder an overflow, or a text too long, leaves as an exception, with the reader behind
    // the failed token.
    explicit WertLeser(std::string_view bytes, Fehlermelder melder = {});

    [[nodiscard]] bool AmEnde() const { return stelle_ >= bytes_.size(); }

    // Line at which the reader stands, counted from 1.
    [[nodiscard]] int ZeileNr();

    // The next token as it stands in the file, in code page 1252, without quotes around it.
    std::string_view Token();
    // The next token as text in UTF-8; one longer than laengsterText is run-time error 7.
    std::string Text();
    // The next token as an integer; 0 for one that is no number, a fraction rounds half to even, a number
    // beyond 16 bits is run-time error 6.
    std::int16_t Ganzzahl();
    // The next token as a single; 0 for one that is no number, a number beyond 32 bits is run-time error 6.
    float Einfach();
    // The next token in the file's own notation (with its quotes, if it has them), so that it goes back as it
    // came; no value for an empty line, and for a text that never closes: written back it would swallow what
    // follows.
    std::optional<std::string> Variant();

    // The rest of the line, whole: no rule for quotes or commas. In code page 1252.
    std::string_view Zeile();

private:
    void AmEndePruefen();
    void TokenSchliessen();
    [[nodiscard]] Laufzeitfehler FehlerHier(Fehler fehler);
    template <typename Zahl>
    Zahl Gelesen(bool (*umwandeln)(std::string_view, Zahl&), Fehler sonst);

    std::string_view bytes_;
    Fehlermelder melder_;
    std::size_t stelle_ = 0;
    std::size_t tokenAnfang_ = 0;
    std::size_t tokenEnde_ = 0;
    // Line ends are counted only when somebody asks, from where the last count ended.
    std::size_t gezaehltBis_ = 0;
    int zeile_ = 1;
};

// True when a token is the marker, given in capitals, whatever its case and the blanks around it.
[[nodiscard]] bool IstMarke(std::string_view token, std::string_view marke);

// --- Writing ----------------------------------------------------------------------------------------------

// Collects the bytes of a file, one value a line. Arguments are UTF-8.
class WertSchreiber {
public:
    // A string between two quotes. A quote or line end inside is written as it stands, and so reads back cut
    // at the quote: that loss is meant, the text itself is neither refused nor altered.
    void Text(std::string_view text);
    void Ganzzahl(std::int16_t zahl);
    // The shortest decimal form that reads back the same, with a point in every locale.
    void Einfach(float zahl);
    // A value in the file's own notation, an empty line for no value.
    void Variant(const std::optional<std::string>& wert);

    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    std::string bytes_;
};
