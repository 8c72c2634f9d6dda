#include "mainwindow/dateihinweis.h"

#include <gtest/gtest.h>

namespace {

// Room for so many bytes; "…" takes three.
Passend Platz(std::size_t bytes) {
    return [bytes](const std::string& text) { return text.size() <= bytes; };
}

} // namespace

TEST(Dateihinweis, LeavesOutAsLittleOfTheMiddleAsItTakes) {
    EXPECT_EQ(MitteGekuerzt("abcdefghij", Platz(10)), "abcdefghij");
    EXPECT_EQ(MitteGekuerzt("abcdefghij", Platz(9)), "abc…hij");
    EXPECT_EQ(MitteGekuerzt("abcdefghij", Platz(8)), "abc…ij");
    EXPECT_EQ(MitteGekuerzt("abcdefghij", Platz(5)), "a…j");
    EXPECT_EQ(MitteGekuerzt("abcdefghij", Platz(4)), "");
    EXPECT_EQ(MitteGekuerzt("", Platz(0)), "");
}

TEST(Dateihinweis, CutsBetweenCharactersOnly) {
    for (std::size_t platz = 5; platz < 20; ++platz) {
        const std::string kurz = MitteGekuerzt("äöüÄÖÜßéèê", Platz(platz));
        for (std::size_t i = 0; i < kurz.size();
             i += static_cast<unsigned char>(kurz[i]) >= 0xE0U ? 3U : 2U) {
            EXPECT_EQ(static_cast<unsigned char>(kurz[i]) & 0xC0U, 0xC0U) << kurz;
        }
    }
}

TEST(Dateihinweis, KeepsTheNameAndShortensTheFolder) {
    EXPECT_EQ(Dateihinweis(" {} in {}", "A.pdf", "\\home\\lager", Platz(99)), " A.pdf in \\home\\lager");
    EXPECT_EQ(Dateihinweis(" {} in {}", "A.pdf", "\\home\\lager", Platz(20)), " A.pdf in \\hom…ger");
    EXPECT_EQ(Dateihinweis(" {} in {}", "A.pdf", "\\home\\lager", Platz(15)), " A.pdf in \\…r");
}

TEST(Dateihinweis, WithoutRoomForTheFolderTheNameStandsAlone) {
    EXPECT_EQ(Dateihinweis(" {} in {}", "Runde.pdf", "\\home\\lager", Platz(12)), " Runde.pdf");
    EXPECT_EQ(Dateihinweis(" {} in {}", "Runde.pdf", "\\home\\lager", Platz(9)), " Run…df");
}
