// Limits, styles and places of the tool tips.
#include "tooltips/tooltipregeln.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>

namespace {

constexpr tipp::Flaeche schirm{{0, 0}, {1280, 1024}};
constexpr tipp::Flaeche zweiter{{1280, 200}, {800, 600}}; // to the right of the first, and lower
constexpr tipp::Groesse klein{200, 60};

struct Zeit {
    int wert, sicht, warte;
};

bool Innen(tipp::Ort ort, tipp::Groesse groesse, const tipp::Flaeche& flaeche) {
    return ort.x >= flaeche.ecke.x && ort.y >= flaeche.ecke.y &&
           ort.x + groesse.breite <= flaeche.ecke.x + flaeche.groesse.breite &&
           ort.y + groesse.hoehe <= flaeche.ecke.y + flaeche.groesse.hoehe;
}

} // namespace

TEST(Tooltipregeln, TimesAreHeldToTheirLimits) {
    for (const auto& [wert, sicht, warte] :
         {Zeit{20000, 16000, 500}, Zeit{16001, 16000, 500}, Zeit{16000, 16000, 500}, Zeit{1000, 1000, 500},
          Zeit{501, 501, 500}, Zeit{500, 500, 500}, Zeit{200, 200, 200}, Zeit{0, 0, 0}, Zeit{-1, 0, 0},
          Zeit{INT_MIN, 0, 0}, Zeit{INT_MAX, 16000, 500}}) {
        EXPECT_EQ(tipp::Sichtzeit(wert), sicht) << wert;
        EXPECT_EQ(tipp::Wartezeit(wert), warte) << wert;
    }
}

TEST(Tooltipregeln, TheFourStandardStylesHaveTheirColours) {
    EXPECT_EQ(tipp::stilStandard, (tipp::Stil{{255, 255, 223}, {0, 0, 0}, 1}));
    EXPECT_EQ(tipp::stilHilfe, (tipp::Stil{{255, 255, 127}, {0, 0, 0}, 1}));
    EXPECT_EQ(tipp::stilSchliessen, (tipp::Stil{{255, 0, 0}, {255, 255, 255}, 2}));
}

TEST(Tooltipregeln, TheTitleTellsTheStyle) {
    for (const auto titel : {"Hinweis", "Feldkranz-Formular", "Löschen", "Feldkranz! 2008", ""}) {
        EXPECT_EQ(tipp::StilFuer(titel), tipp::stilStandard) << titel;
    }
    EXPECT_EQ(tipp::StilFuer("Hiiiilfee !"), tipp::stilHilfe);
    EXPECT_EQ(tipp::StilFuer("Schließen"), tipp::stilSchliessen);
    EXPECT_EQ(tipp::StilFuer("Schließen !"), tipp::stilSchliessen);
}

TEST(Tooltipregeln, TheHelpTitleOfTheMainWindowHasTheStandardStyle) {
    EXPECT_EQ(tipp::StilFuer("Hiiiilfee"), tipp::stilStandard);
}

TEST(Tooltipregeln, ATipStandsBelowThePointer) {
    EXPECT_EQ(tipp::OrtAmZeiger({300, 300}, klein, schirm), (tipp::Ort{300, 321}));
}

TEST(Tooltipregeln, AtTheBottomItStandsAboveThePointer) {
    EXPECT_EQ(tipp::OrtAmZeiger({300, 1000}, klein, schirm), (tipp::Ort{300, 936}));
    EXPECT_EQ(tipp::OrtAmZeiger({300, 943}, klein, schirm), (tipp::Ort{300, 964})); // just fits below
    EXPECT_EQ(tipp::OrtAmZeiger({300, 944}, klein, schirm), (tipp::Ort{300, 880}));
}

TEST(Tooltipregeln, AtTheRightEdgeItMovesToTheLeft) {
    EXPECT_EQ(tipp::OrtAmZeiger({1270, 300}, klein, schirm), (tipp::Ort{1080, 321}));
}

TEST(Tooltipregeln, ItStaysOnTheScreenWhereverThePointerIs) {
    for (const tipp::Flaeche& flaeche : {schirm, zweiter}) {
        for (int x = 0; x < flaeche.groesse.breite; x += 7) {
            for (int y = 0; y < flaeche.groesse.hoehe; y += 7) {
                const tipp::Ort zeiger{flaeche.ecke.x + x, flaeche.ecke.y + y};
                const tipp::Ort ort = tipp::OrtAmZeiger(zeiger, klein, flaeche);
                ASSERT_TRUE(Innen(ort, klein, flaeche)) << zeiger.x << ' ' << zeiger.y;
                const bool verdeckt = zeiger.x >= ort.x && zeiger.x < ort.x + klein.breite &&
                                      zeiger.y >= ort.y && zeiger.y < ort.y + klein.hoehe;
                ASSERT_FALSE(verdeckt) << "the tip covers what it explains";
            }
        }
    }
}

TEST(Tooltipregeln, OnASecondScreenItStaysOnThatOne) {
    EXPECT_EQ(tipp::OrtAmZeiger({1290, 210}, klein, zweiter), (tipp::Ort{1290, 231}));
    EXPECT_EQ(tipp::OrtAmZeiger({2070, 790}, klein, zweiter), (tipp::Ort{1880, 726}));
    constexpr tipp::Flaeche links{{-1024, -100}, {1024, 768}}; // to the left of the first, and higher
    EXPECT_EQ(tipp::OrtAmZeiger({-10, -90}, klein, links), (tipp::Ort{-200, -69}));
}

TEST(Tooltipregeln, ATipLargerThanTheScreenShowsItsBeginning) {
    EXPECT_EQ(tipp::OrtAmZeiger({500, 500}, {1500, 1200}, schirm), (tipp::Ort{0, 0}));
    EXPECT_EQ(tipp::OrtAmZeiger({1900, 500}, {900, 700}, zweiter), (tipp::Ort{1280, 200}));
}

TEST(Tooltipregeln, ByKeyboardItStandsBelowTheControl) {
    constexpr tipp::Flaeche element{{100, 200}, {80, 25}};
    EXPECT_EQ(tipp::OrtAmElement(element, klein, schirm, false), (tipp::Ort{100, 227}));
    EXPECT_EQ(tipp::OrtAmElement(element, klein, schirm, true), (tipp::Ort{40, 227}));
}

TEST(Tooltipregeln, ByKeyboardAtTheBottomItStandsAboveTheControl) {
    constexpr tipp::Flaeche element{{1200, 990}, {80, 25}};
    EXPECT_EQ(tipp::OrtAmElement(element, klein, schirm, false), (tipp::Ort{1080, 928}));
}
