// The shipped catalogue's riddles, reasons, estimates and their like: enough of them in every file, and their
// answers hold what their kind owes. Before that, the measures themselves on questions of their own.
#include "tests/catalogue/katalogpruefung.h"
#include "tests/catalogue/katalogpruefung_art.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace {

std::vector<Katalogsatz> FragenDerArt(Fragenart art) {
    std::vector<Katalogsatz> fragen;
    std::copy_if(Katalogfragen().begin(), Katalogfragen().end(), std::back_inserter(fragen),
                 [&](const Katalogsatz& frage) { return ArtVon(frage.frage) == art; });
    return fragen;
}

void ExpectSchaetzung(const char* antwort, double wert, double von, double bis) {
    const auto gelesen = SchaetzungLesen(antwort);
    ASSERT_TRUE(gelesen.has_value()) << antwort;
    EXPECT_DOUBLE_EQ(gelesen->wert, wert) << antwort;
    EXPECT_DOUBLE_EQ(gelesen->von, von) << antwort;
    EXPECT_DOUBLE_EQ(gelesen->bis, bis) << antwort;
}

} // namespace

TEST(Fragenarten, TheBeginningTellsTheKind) {
    EXPECT_EQ(ArtVon("Rätsel: Es hat Zähne und beißt nicht."), Fragenart::Raetsel);
    EXPECT_EQ(ArtVon("Warum lachte Sara?"), Fragenart::Begruendung);
    EXPECT_EQ(ArtVon("Wozu dient ein Docht?"), Fragenart::Begruendung);
    EXPECT_EQ(ArtVon("Schätze: Wie hoch ist der Turm?"), Fragenart::Schaetzung);
    EXPECT_EQ(ArtVon("Richtig oder falsch: Wale legen Eier?"), Fragenart::RichtigFalsch);
    EXPECT_EQ(ArtVon("Ergänze: »Morgenstund hat …«"), Fragenart::Ergaenzung);
    EXPECT_EQ(ArtVon("Was passt nicht dazu: Hai, Wal, Hecht oder Aal?"), Fragenart::Ausreisser);
    EXPECT_EQ(ArtVon("Wie geht es weiter: 2, 4, 6, …?"), Fragenart::Fortsetzung);
    EXPECT_EQ(ArtVon("Was bin ich? Ich habe Zinnen."), Fragenart::WerBinIch);
    EXPECT_EQ(ArtVon("Wer baute die Arche?"), Fragenart::Wissen);
    EXPECT_EQ(ArtVon("Rätsel geben auf: Wer tat es?"), Fragenart::Wissen);
    EXPECT_EQ(OhneArt("Schätze: Wie hoch?"), "Wie hoch?");
    EXPECT_EQ(OhneArt("Wie hoch?"), "Wie hoch?");
}

TEST(Fragenarten, AnEstimateHasItsValueAndARange) {
    ExpectSchaetzung("6 (5 bis 7 zählt)", 6, 5, 7);
    ExpectSchaetzung("8848 m (8500 bis 9200 zählt)", 8848, 8500, 9200);
    ExpectSchaetzung("100 (zwischen 80 und 120 zählt)", 100, 80, 120);
    ExpectSchaetzung("Etwa 32 000 (20 000 bis 45.000 zählt) ", 32000, 20000, 45000);
    ExpectSchaetzung("8,95 m (8,50 m bis 9,40 m zählt)", 8.95, 8.5, 9.4);
    ExpectSchaetzung("3,7 Millionen (3 bis 4,5 zählt)", 3.7, 3, 4.5);
    ExpectSchaetzung("Der 44. (40. bis 48. zählt)", 44, 40, 48);
    ExpectSchaetzung("230-mal (150 bis 300 zählt)", 230, 150, 300);
    for (const char* antwort : {"6", "Sechs (5 bis 7 zählt)", "6 (5 bis 7)", "6 (5 und 7 zählt)", "6 (zählt)",
                                "6 (zwischen 5 bis 7 zählt)", "2 m (180 cm bis 220 cm zählt)"}) {
        EXPECT_FALSE(SchaetzungLesen(antwort).has_value()) << antwort;
    }
}

TEST(Fragenarten, TrueAndFalseComeWithAReason) {
    EXPECT_EQ(WahrheitLesen("Richtig, sie säugen"), true);
    EXPECT_EQ(WahrheitLesen("Falsch, »kilo« heißt tausend"), false);
    EXPECT_EQ(WahrheitLesen("Falsch"), std::nullopt);
    EXPECT_EQ(WahrheitLesen("Falsch, …"), std::nullopt);
    EXPECT_EQ(WahrheitLesen("Nein, sie säugen"), std::nullopt);
}

TEST(Fragenarten, WhatDoesNotFitIsOneOfTheThingsAndHasAReason) {
    const char* frage = "Was passt nicht dazu: Hai, Wal, Hecht oder junger Aal? (Jona 2)";
    EXPECT_EQ(Auswahl(frage), (std::vector<std::string>{"Hai", "Wal", "Hecht", "junger Aal"}));
    EXPECT_TRUE(NenntAusreisser(frage, "Wal (kein Fisch)"));
    EXPECT_TRUE(NenntAusreisser(frage, "Junger Aal (lang)"));
    EXPECT_FALSE(NenntAusreisser(frage, "Delfin (kein Fisch)"));
    EXPECT_FALSE(NenntAusreisser(frage, "Wal"));
}

TEST(Fragenarten, ASayingShowsItsGapAndTheAnswerFillsIt) {
    EXPECT_TRUE(LueckeGefuellt("Ergänze: »Morgenstund hat …«", "»… Gold im Mund«"));
    EXPECT_TRUE(LueckeGefuellt("Ergänze: »Wer … sät, wird ernten« (Psalm 126)", "»… Tränen …« (geweint)"));
    EXPECT_FALSE(LueckeGefuellt("Ergänze: »Morgenstund hat«", "»… Gold im Mund«"));
    EXPECT_FALSE(LueckeGefuellt("Ergänze: »Morgenstund hat …«", "Gold im Mund"));
    EXPECT_FALSE(LueckeGefuellt("Ergänze: »Morgenstund hat …«", "»…«"));
}

TEST(Kataloginhalt, AQuarterOfEveryFileIsMoreThanPlainQuestions) {
    for (const Katalogdatei& datei : Katalogdateien()) {
        if (datei.thema->name == "A-Z" || datei.unterthema.starts_with("Standard")) {
            continue;
        }
        const auto fragen = FragenVon(datei);
        const auto andere = std::count_if(fragen.begin(), fragen.end(), [](const Katalogsatz* frage) {
            return ArtVon(frage->frage) != Fragenart::Wissen;
        });
        EXPECT_GE(4 * static_cast<std::size_t>(andere), fragen.size())
            << datei.pfad << ": " << andere << " of " << fragen.size();
    }
}

TEST(Kataloginhalt, EveryEstimateLiesWithinItsOwnRange) {
    for (const Katalogsatz& frage : FragenDerArt(Fragenart::Schaetzung)) {
        const auto gelesen = SchaetzungLesen(frage.antwort);
        EXPECT_TRUE(gelesen && gelesen->von < gelesen->bis && gelesen->von <= gelesen->wert &&
                    gelesen->wert <= gelesen->bis)
            << Fundort(frage);
    }
}

TEST(Kataloginhalt, TrueAndFalseHaveTheirReasonAndAreBothAThirdAtLeast) {
    const auto fragen = FragenDerArt(Fragenart::RichtigFalsch);
    std::size_t richtig = 0;
    for (const Katalogsatz& frage : fragen) {
        const auto wahr = WahrheitLesen(frage.antwort);
        EXPECT_TRUE(wahr.has_value()) << Fundort(frage);
        richtig += wahr.value_or(false) ? 1U : 0U;
    }
    EXPECT_GE(3 * richtig, fragen.size());
    EXPECT_GE(3 * (fragen.size() - richtig), fragen.size());
}

TEST(Kataloginhalt, WhatDoesNotFitIsOneOfFourThings) {
    for (const Katalogsatz& frage : FragenDerArt(Fragenart::Ausreisser)) {
        EXPECT_EQ(Auswahl(frage.frage).size(), 4U) << Fundort(frage);
        EXPECT_TRUE(NenntAusreisser(frage.frage, frage.antwort)) << Fundort(frage);
    }
}

TEST(Kataloginhalt, EverySayingToCompleteShowsItsGap) {
    for (const Katalogsatz& frage : FragenDerArt(Fragenart::Ergaenzung)) {
        EXPECT_TRUE(LueckeGefuellt(frage.frage, frage.antwort)) << Fundort(frage);
    }
}
