// The path of a file in the list: its folder and its name.
#include "core/pfad.h"

#include <gtest/gtest.h>

TEST(Formularliste, TheRootOfADriveGetsNoSecondBackslash) {
    EXPECT_EQ(PfadVerbinden("C:\\", "A.FKR"), "C:\\A.FKR");
    EXPECT_EQ(PfadVerbinden("\\", "A.FKR"), "\\A.FKR");
}

TEST(Formularliste, AFolderGetsOneBackslash) {
    EXPECT_EQ(PfadVerbinden("C:\\KRANZ", "A.FKR"), "C:\\KRANZ\\A.FKR");
}
