#include "search/zielfeld.h"

#include <gtest/gtest.h>

namespace {

TEST(ZielfeldTest, TheCellVisitedLastTakesTheQuestionIfItIsEmpty) {
    EXPECT_EQ(Zielfeld({false, true, true, true}, 2), 2);
}

TEST(ZielfeldTest, ElseTheNextEmptyOneRoundTheEnd) {
    EXPECT_EQ(Zielfeld({false, true, false, false}, 2), 1);
    EXPECT_EQ(Zielfeld({false, true, false, true}, 2), 3);
}

TEST(ZielfeldTest, WithoutAVisitTheFirstEmptyOne) {
    EXPECT_EQ(Zielfeld({false, false, true, true}, 0), 2);
    EXPECT_EQ(Zielfeld({false, false, true, true}, 99), 2);
    EXPECT_EQ(Zielfeld({false, false, true, true}, -1), 2);
}

TEST(ZielfeldTest, AFullBoardHasNone) {
    EXPECT_EQ(Zielfeld({false, false, false}, 1), 0);
    EXPECT_EQ(Zielfeld({true}, 1), 0);
    EXPECT_EQ(Zielfeld({}, 1), 0);
}

} // namespace
