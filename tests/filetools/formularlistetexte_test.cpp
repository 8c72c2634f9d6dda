// The texts of the list's preview, and the names under which unsaved work is kept.
#include "filetools/formularlistetexte.h"
#include "persistence/formulardatei.h"
#include "persistence/rettungsname.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>

TEST(Formularliste, ThePreviewHasThreeLinesWithItsBlanks) {
    EXPECT_EQ(Vorschautext(30, 6, 5),
              "Fragen gesamt    : 30\r\nWissensgebiete  :   6\r\nFragen je WG     :   5");
    EXPECT_EQ(Vorschautext(-1, 0, 32767),
              "Fragen gesamt    : -1\r\nWissensgebiete  :   0\r\nFragen je WG     :   32767");
}

TEST(Formularrettung, TheFirstNameHasNoNumber) {
    EXPECT_EQ(Rettungsname(0), "UNGESICHERT.BAK");
    EXPECT_EQ(Rettungsname(1), "UNGESICHERT1.BAK");
    EXPECT_EQ(Rettungsname(12), "UNGESICHERT12.BAK");
}

struct Name {
    const char* name;
    bool rettung;
};
class Rettungsnamen : public ::testing::TestWithParam<Name> {};

TEST_P(Rettungsnamen, AreToldFromOtherNames) {
    EXPECT_EQ(IstRettungsname(GetParam().name), GetParam().rettung) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(Tabelle, Rettungsnamen,
                         ::testing::Values(Name{"UNGESICHERT.BAK", true}, Name{"UNGESICHERT1.BAK", true},
                                           Name{"ungesichert20.bak", true}, Name{"UNGESICHERT.FKR", false},
                                           Name{"UNGESICHERTE.BAK", false},
                                           Name{"MEIN UNGESICHERT.BAK", false},
                                           Name{"UNGESICHERT 1.BAK", false}, Name{"HERBST.BAK", false},
                                           Name{".BAK", false}, Name{"", false}));

TEST(Rettungen, StandAheadOfTheOthersTheNewestFirst) {
    const std::map<std::string, std::int64_t> zeiten{{"UNGESICHERT.BAK", 50},   {"UNGESICHERT1.BAK", 20},
                                                     {"UNGESICHERT2.BAK", 50},  {"UNGESICHERT9.BAK", 30},
                                                     {"UNGESICHERT10.BAK", 30}, {"UNGESICHERT3.BAK", 60}};
    std::vector<std::string> namen{"A.BAK", "Ungesichertes.BAK"};
    for (const auto& [name, zeit] : zeiten) {
        namen.push_back(name);
    }
    namen.emplace_back("Z.BAK");
    RettungenVoranstellen(namen, [&zeiten](const std::string& name) { return zeiten.at(name); });
    EXPECT_EQ(namen, (std::vector<std::string>{"UNGESICHERT3.BAK", "UNGESICHERT.BAK", "UNGESICHERT2.BAK",
                                               "UNGESICHERT10.BAK", "UNGESICHERT9.BAK", "UNGESICHERT1.BAK",
                                               "A.BAK", "Ungesichertes.BAK", "Z.BAK"}));
}

// Which files may take the place of an open form.
struct Datei {
    const char* bytes;
    Formart offen;
    bool annehmbar;
};
class Annahme : public ::testing::TestWithParam<Datei> {};

TEST_P(Annahme, IsKnownBeforeAnythingChanges) {
    EXPECT_EQ(FormularAnnehmbar(GetParam().bytes, GetParam().offen), GetParam().annehmbar);
}

INSTANTIATE_TEST_SUITE_P(Tabelle, Annahme,
                         ::testing::Values(Datei{"\"Feldkranz\"\r\n\"FK\"\r\n", Formart::Keine, true},
                                           Datei{"\"Feldkranz\"\r\n\"FK\"\r\n", Formart::Quiz, true},
                                           Datei{"\"Feldkranz\"\r\n\"FK\"\r\n", Formart::Test, false},
                                           Datei{"\"Feldkranz\"\r\n\"Test\"\r\n", Formart::Quiz, false},
                                           Datei{"\"Feldkranz\"\r\n\"Test\"\r\n", Formart::Test, true},
                                           Datei{"\"feldkranz\"\r\n\"FK\"\r\n", Formart::Keine, false},
                                           Datei{"Liebe Eltern", Formart::Quiz, false},
                                           Datei{"\"Feldkranz\"\r\n", Formart::Quiz, false},
                                           Datei{"", Formart::Quiz, true}));
