// The properties of what is said about questions: which are nearly the same, where an answer stands in its
// question, what becomes of quotation marks.
#include "tests/fuzz/eigenschaften.h"

#include "checking/anfuehrungen.h"
#include "checking/fragenpruefung.h"
#include "search/aehnlich.h"
#include "search/faltung.h"

#include <algorithm>
#include <string>

namespace fuzz {

namespace {

void Frage(std::string_view frage) {
    const Wortanfaenge anfaenge = WortanfaengeVon(frage);
    Verlange(std::ranges::is_sorted(anfaenge.woerter, {}, &Wortanfaenge::Wort::stamm), "words are in order");
    Verlange(Fastgleich(anfaenge, anfaenge) == !Fragenschluessel(frage).empty(),
             "a question is nearly the same as itself, if it has a word");
    Verlange(AntwortInFrage(frage, "x !") == AntwortInFrage(frage, "x"), "marks make no word");
}

void Anfuehrungen(std::string_view text) {
    const std::string neu = MitDeutschenAnfuehrungen(text);
    Verlange(neu.find('"') == std::string::npos, "no mark is left");
    Verlange(MitDeutschenAnfuehrungen(neu) == neu, "what has been replaced stays");
    const auto anzahl = static_cast<std::size_t>(std::ranges::count(text, '"'));
    Verlange(neu.size() == text.size() + 2 * anzahl, "nothing but the marks is another");
}

} // namespace

void Fragen(std::string_view bytes) {
    Eingabe eingabe{bytes};
    const std::string_view a = eingabe.Stueck();
    const std::string_view b = eingabe.Stueck();
    Frage(a);
    Frage(b);
    Anfuehrungen(a);
    const Wortanfaenge ersteWorte = WortanfaengeVon(a);
    const Wortanfaenge zweiteWorte = WortanfaengeVon(b);
    const bool gleich = Fastgleich(ersteWorte, zweiteWorte);
    Verlange(gleich == Fastgleich(zweiteWorte, ersteWorte), "which comes first doesn't matter");
    Verlange(!gleich || !Fragenschluessel(a).empty(), "what has no word resembles nothing");
    Verlange(!AntwortInFrage(a, b) || !Fragenschluessel(b).empty(), "an answer that stands there has a word");
}

} // namespace fuzz
