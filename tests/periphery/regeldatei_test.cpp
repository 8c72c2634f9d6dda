// Whether the rule document is there, where its pages lie on the screen, and which addresses leave the
// program.
#include "core/programmstand.h"
#include "periphery/dateivorhanden.h"
#include "periphery/seitenlage.h"
#include "periphery/uebergabe.h"
#include "tests/hilfe/programmordner.h"

#include <gtest/gtest.h>

#include <QDir>

#include <algorithm>
#include <array>
#include <vector>

TEST(DateiVorhanden, APathThatEndsInAColonOrABackslashIsNoFile) {
    const Programmordner ordner;
    EXPECT_FALSE(DateiVorhanden("C:"));
    EXPECT_FALSE(DateiVorhanden(Stand.AppPfad + "\\REGEL\\"));
    // Also where a file of that very name stands.
    ordner.schreiben(QStringLiteral("REGEL/a:"), "x");
    EXPECT_FALSE(DateiVorhanden(Stand.AppPfad + "\\REGEL\\a:"));
}

TEST(DateiVorhanden, AFileIsFoundWithEitherSlashAndInAnyCase) {
    const Programmordner ordner;
    ordner.schreiben(QStringLiteral("REGEL/Probe.pdf"), "x");
    EXPECT_TRUE(DateiVorhanden(Stand.AppPfad + "/REGEL/Probe.pdf"));
    EXPECT_TRUE(DateiVorhanden(Stand.AppPfad + "\\REGEL\\Probe.pdf"));
    EXPECT_TRUE(DateiVorhanden(Stand.AppPfad + "\\regel\\PROBE.PDF"));
}

TEST(DateiVorhanden, NothingAFolderAndAnErrorAreNoFile) {
    const Programmordner ordner;
    EXPECT_FALSE(DateiVorhanden(""));
    EXPECT_FALSE(DateiVorhanden(Stand.AppPfad + "/REGEL"));
    EXPECT_FALSE(DateiVorhanden(Stand.AppPfad + "/REGEL/fehlt.pdf"));
    EXPECT_FALSE(DateiVorhanden(Stand.AppPfad + "/REGEL/" + std::string(5000, 'x')));
    EXPECT_FALSE(DateiVorhanden(std::string("\0x", 2)));
}

TEST(Uebergabe, OnlyMailAndTheWebLeaveTheProgramAndTheTextIsTheSame) {
    std::vector<std::string> angekommen;
    UebergabeErsetzen([&](const std::string& adresse) {
        angekommen.push_back(adresse);
        return true;
    });
    const std::vector<std::string> gut{"mailto:a@b?subject=x y&body=ä %", "http://a.example/",
                                       "https://a.example/?q=ä b"};
    for (const std::string& adresse : gut) {
        EXPECT_TRUE(AnSystemUebergeben(adresse)) << adresse;
    }
    for (const std::string_view adresse :
         {"", "file:///etc/passwd", "javascript:alert(1)", "/etc/passwd", "smb://a/b", " http://a.example",
          "httpx://a", "data:text/html,x"}) {
        EXPECT_FALSE(AnSystemUebergeben(adresse)) << adresse;
    }
    UebergabeErsetzen({});
    EXPECT_EQ(angekommen, gut);
}

namespace {

const std::array dreiSeiten{QSizeF(595, 842), QSizeF(842, 595), QSizeF(595, 842)};

} // namespace

TEST(Seitenlage, FittedToTheWidthEveryPageIsAsWideAsTheArea) {
    const Seitenlage lage = SeitenLegen(dreiSeiten, QSize(600, 400), Passung::Breite, 9.0);
    ASSERT_EQ(lage.plaetze.size(), 3U);
    int oben = seitenabstand;
    for (const QRect& platz : lage.plaetze) {
        EXPECT_EQ(platz.left(), seitenabstand);
        EXPECT_EQ(platz.width(), 600 - 2 * seitenabstand);
        EXPECT_EQ(platz.top(), oben);
        oben += platz.height() + seitenabstand;
    }
    EXPECT_EQ(lage.gesamt, QSize(600, oben));
}

TEST(Seitenlage, AWholePageFitsTheAreaAndStandsInItsMiddle) {
    const Seitenlage lage = SeitenLegen(dreiSeiten, QSize(600, 400), Passung::Seite, 1.0);
    for (const QRect& platz : lage.plaetze) {
        EXPECT_LE(platz.height(), 400 - 2 * seitenabstand);
        EXPECT_LE(platz.width(), 600 - 2 * seitenabstand);
        EXPECT_NEAR(platz.center().x(), 300, 1);
    }
    EXPECT_EQ(lage.plaetze[0].height(), 400 - 2 * seitenabstand);
}

TEST(Seitenlage, ASizeOfItsOwnCountsInPaperAndMayBeWiderThanTheArea) {
    const Seitenlage lage = SeitenLegen(dreiSeiten, QSize(600, 400), Passung::Frei, 2.0);
    EXPECT_EQ(lage.plaetze[0].size(), QSize(1586, 2245)); // 595 and 842 points, at 96 to the inch, twice
    EXPECT_EQ(lage.gesamt.width(), lage.plaetze[1].width() + 2 * seitenabstand);
}

TEST(Seitenlage, NoAreaAndMonstrousPagesAreBounded) {
    const std::array seiten{QSizeF(1, 1e9), QSizeF(1e9, 1), QSizeF(595, 842)};
    for (const Passung passung : {Passung::Breite, Passung::Seite, Passung::Frei}) {
        for (const QSize flaeche : {QSize(600, 400), QSize(0, 0), QSize(5, 5)}) {
            for (const QRect& platz : SeitenLegen(seiten, flaeche, passung, 4.0).plaetze) {
                EXPECT_GE(platz.width(), 1);
                EXPECT_GE(platz.height(), 1);
                EXPECT_LE(platz.width(), 20000);
                EXPECT_LE(platz.height(), 20000);
            }
        }
    }
    EXPECT_EQ(SeitenLegen(seiten, QSize(600, 400), Passung::Breite, 1.0).plaetze[0].height(), 20000);
    EXPECT_EQ(SeitenLegen({}, QSize(600, 400), Passung::Breite, 1.0).SeiteBei(0), -1);
}

TEST(Seitenlage, MoreLongPagesThanAHeightCanCountStayBelowEachOther) {
    const std::vector<QSizeF> seiten(120000, QSizeF(1, 1e9));
    const Seitenlage lage = SeitenLegen(seiten, QSize(600, 400), Passung::Breite, 1.0);
    EXPECT_TRUE(std::ranges::is_sorted(lage.plaetze, {}, [](const QRect& platz) { return platz.top(); }));
    EXPECT_GE(lage.gesamt.height(), 1 << 30);
}

TEST(Seitenlage, AHeightBelongsToTheLastPageThatBeginsAboveIt) {
    const Seitenlage lage = SeitenLegen(dreiSeiten, QSize(600, 400), Passung::Breite, 1.0);
    EXPECT_EQ(lage.SeiteBei(-50), 0);
    EXPECT_EQ(lage.SeiteBei(lage.plaetze[0].bottom()), 0);
    EXPECT_EQ(lage.SeiteBei(lage.plaetze[1].top() - 1), 0);
    EXPECT_EQ(lage.SeiteBei(lage.plaetze[1].top()), 1);
    EXPECT_EQ(lage.SeiteBei(1 << 30), 2);
}
