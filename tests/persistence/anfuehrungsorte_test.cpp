// Which texts of a form its file would cut.
#include "persistence/anfuehrungsorte.h"

#include <gtest/gtest.h>

namespace {

using Orte = std::vector<std::string>;

TEST(Anfuehrungsorte, AFormWithoutAStraightMarkHasNone) {
    EXPECT_EQ(Anfuehrungsorte(Quizformular{}), Orte{});
    EXPECT_EQ(Anfuehrungsorte(Testformular{}), Orte{});
}

TEST(Anfuehrungsorte, ACellIsNamedByItsAreaAndRow) {
    Quizformular form;
    form.FrageText[1] = "\"";
    form.AntwortText[8] = "das \"Haus\"";
    form.FrageText[30] = "am Ende\"";
    form.FormNr = "7\"";
    form.FormDatum = "\"heute\"";
    form.FormZeit = "2\"";
    EXPECT_EQ(Anfuehrungsorte(form), (Orte{"Gebiet 1, Frage 1", "Gebiet 2, Antwort 3", "Gebiet 6, Frage 5",
                                           "Nr.", "Datum", "Zeit"}));
}

TEST(Anfuehrungsorte, ARowOfATestIsNamedByItsNumber) {
    Testformular form;
    form.HBFrageText[10] = "\"";
    form.HBAntwortText[2] = "\"";
    EXPECT_EQ(Anfuehrungsorte(form), (Orte{"Antwort 2", "Frage 10"}));
}

} // namespace
