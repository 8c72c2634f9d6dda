#include "dialogs/fehlertexte.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct Fall {
    int nummer;
    const char* text;
    const char* taste;
};

void PrintTo(const Fall& fall, std::ostream* ziel) {
    *ziel << fall.nummer;
}

class Fehlertexte : public ::testing::TestWithParam<Fall> {};

TEST_P(Fehlertexte, TellThePlaceAndTheProgramsOwnWords) {
    const auto bericht = FehlerberichtBilden("FK : cmdAuswahl_Click", GetParam().nummer, "Systemtext");
    EXPECT_EQ(bericht.text, std::string("FK : cmdAuswahl_Click :\r\n") + GetParam().text);
    EXPECT_EQ(bericht.taste, GetParam().taste);
}

INSTANTIATE_TEST_SUITE_P(
    AllNumbers, Fehlertexte,
    ::testing::Values(Fall{6, "Überlauf", "Das gefällt mir gar nicht"},
                      Fall{7, "Ich brauche mehr Platz ! (Out of Memory)", "Grrr !*?~"},
                      Fall{9, "Zu wenig Gefaacher (Arrays) !?", "Das verstehe ich aber nicht"},
                      Fall{11, "Teilung durch 0 !?", "Das gefällt mir gar nicht "},
                      Fall{52, "Dateiname !?", "Grrr.. *~§§°"},
                      Fall{62, "Ich müsste noch Daten einlesen, aber die Datei ist zu Ende !?",
                           "Grrr.. *~§§°"},
                      Fall{53, "53 : Systemtext", "Grrr.. *~§§°"},
                      Fall{71, "71 : Systemtext", "Grrr.. *~§§°"},
                      Fall{0, "0 : Systemtext", "Grrr.. *~§§°"}));

TEST(Bildmeldung, NamesThePictureWithoutItsPrefix) {
    EXPECT_EQ(Einsetzen(bildNichtGefunden.text, {"MELDUNG.bmp"}),
              "Ich kann die Datei nicht finden !\r\nDie Bitmap [MELDUNG.bmp] muß sich im Verzeichnis\r\n"
              "[...\\BITMAP] befinden !");
    EXPECT_EQ(bildNichtGefunden.taste, "Habe ich das denn nicht installiert ?!");
    EXPECT_EQ(bildProblem.text, "Ich habe Probleme !");
    EXPECT_EQ(bildProblem.taste, "Das ist ja ganz ungewohnt");
}

TEST(Einsetzen, PutsValuesInAsTheyAreAndInTurn) {
    EXPECT_EQ(Einsetzen("[ {} ] {}", {"a{}b", "c"}), "[ a{}b ] c");
    EXPECT_EQ(Einsetzen("nichts", {"a"}), "nichts");
    EXPECT_EQ(Einsetzen("{}{}", {"a"}), "a{}");
}

} // namespace
