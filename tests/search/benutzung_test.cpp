#include "search/benutzung.h"

#include <gtest/gtest.h>

namespace {

Formulareintrag Eintrag(const std::string& name, const std::string& datum, std::int64_t zeit,
                        const std::vector<std::string>& fragen) {
    Formulareintrag eintrag{"C:\\KRANZ\\" + name, name, datum, zeit, {}};
    for (const std::string& frage : fragen) {
        eintrag.abdruecke.push_back(AbdruckVon(frage));
    }
    return eintrag;
}

std::string Text(const Benutzung& benutzung, std::string_view frage, const Formulareintrag* offenes = nullptr,
                 std::string_view ausser = {}) {
    return Benutzttext(benutzung.Formulare(AbdruckVon(frage), offenes, ausser));
}

TEST(BenutzungTest, AQuestionIsUsedWhateverItsBlanksMarksAndCaseAre) {
    const Benutzung benutzung({Eintrag("ABEND.FKR", "20.11.2026", 5, {"Wer bellt ?"})});
    EXPECT_EQ(Text(benutzung, "wer  BELLT"), "schon benutzt in ABEND.FKR (20.11.2026)");
    EXPECT_EQ(Text(benutzung, "Wer miaut?"), "");
    EXPECT_EQ(Text(benutzung, " ?"), "");
    EXPECT_EQ(Text({}, "Wer bellt ?"), "");
}

TEST(BenutzungTest, TheFormChangedLastIsNamedAndTheOthersAreCounted) {
    const Benutzung benutzung({Eintrag("ALT.FKR", "1.1.2025", 1, {"F", "F", "G"}),
                               Eintrag("NEU.FKR", "20.11.2026", 9, {"F"}),
                               Eintrag("MITTE.FKR", "", 5, {"F"})});
    EXPECT_EQ(Text(benutzung, "F"), "schon benutzt in NEU.FKR (20.11.2026) und 2 weiteren");
    EXPECT_EQ(Text(benutzung, "F", nullptr, "C:\\KRANZ\\NEU.FKR"),
              "schon benutzt in MITTE.FKR und 1 weiteren");
    EXPECT_EQ(Text(benutzung, "G"), "schon benutzt in ALT.FKR (1.1.2025)");
    EXPECT_EQ(Benutztspalte(benutzung.Formulare(AbdruckVon("F"), nullptr)), "NEU.FKR (20.11.2026)");
    EXPECT_EQ(Benutztspalte({}), "");
}

TEST(BenutzungTest, TheOpenFormCountsAsItIsOnTheScreen) {
    const Benutzung benutzung({Eintrag("ABEND.FKR", "20.11.2026", 5, {"F", "G"})});
    const Formulareintrag offenes = Eintrag("ABEND.FKR", "21.11.2026", 7, {"G", "H"});
    EXPECT_EQ(Text(benutzung, "F", &offenes), "");
    EXPECT_EQ(Text(benutzung, "G", &offenes), "schon benutzt in ABEND.FKR (21.11.2026)");
    EXPECT_EQ(Text(benutzung, "H", &offenes), "schon benutzt in ABEND.FKR (21.11.2026)");
    Formulareintrag ohneDatei = offenes;
    ohneDatei.pfad.clear();
    ohneDatei.name = "diesem Formular";
    EXPECT_EQ(Text(benutzung, "G", &ohneDatei),
              "schon benutzt in diesem Formular (21.11.2026) und 1 weiteren");
}

} // namespace
