// The kinds of questions, told by how they begin, and what each kind owes its answer. Knows no files.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class Fragenart {
    Wissen,        // any other beginning
    Raetsel,       // "Rätsel: "
    Begruendung,   // "Warum ", "Wozu " and their like
    Schaetzung,    // "Schätze: "
    RichtigFalsch, // "Richtig oder falsch: "
    Ergaenzung,    // "Ergänze: "
    Ausreisser,    // "Was passt nicht dazu: "
    Fortsetzung,   // "Wie geht es weiter: "
    WerBinIch      // "Wer bin ich? ", "Was bin ich? "
};

[[nodiscard]] Fragenart ArtVon(std::string_view frage);
// The question behind the beginning that tells its kind.
[[nodiscard]] std::string_view OhneArt(std::string_view frage);

// What an estimate's answer says, as in "8848 m (8500 bis 9200 zählt)" or "100 (zwischen 80 und 120 zählt)";
// without a value where it says something else or two different units.
struct Schaetzwert {
    double wert, von, bis;
};
[[nodiscard]] std::optional<Schaetzwert> SchaetzungLesen(std::string_view antwort);

// Whether it was true, by an answer as in "Falsch, sie legen Eier"; without a value where the reason lacks.
[[nodiscard]] std::optional<bool> WahrheitLesen(std::string_view antwort);

// The things one of which doesn't fit, as in "Was passt nicht dazu: Hai, Wal, Hecht oder Aal?".
[[nodiscard]] std::vector<std::string> Auswahl(std::string_view frage);
// Whether the answer is one of them with its reason, as in "Wal (kein Fisch)".
[[nodiscard]] bool NenntAusreisser(std::string_view frage, std::string_view antwort);

// Whether the gap of a saying and what fills it are marked: »Morgenstund hat …« and »… Gold im Mund«.
[[nodiscard]] bool LueckeGefuellt(std::string_view frage, std::string_view antwort);
