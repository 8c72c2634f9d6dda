#include "persistence/dateistand.h"

#include <gtest/gtest.h>

namespace {

using Art = Dateistand::Art;

const Dateistand gelesen{Art::Inhalt, 3, "abc"};
const Dateistand anderer{Art::Inhalt, 3, "abd"};
const Dateistand laenger{Art::Inhalt, 4, "abc"};
const Dateistand leer{Art::Inhalt, 0, ""};
const Dateistand nichts{};
const Dateistand unlesbar{Art::Unlesbar, 0, ""};
const Dateistand ordner{Art::KeineDatei, 0, ""};

TEST(Dateikenntnis, TheContentThatWasReadMayBeReplaced) {
    const Dateikenntnis kenntnis(gelesen);
    EXPECT_EQ(kenntnis.Urteil(gelesen), Fremdes::Keines);
    EXPECT_EQ(kenntnis.Urteil(anderer), Fremdes::Geaendert);
    EXPECT_EQ(kenntnis.Urteil(laenger), Fremdes::Geaendert);
    EXPECT_EQ(kenntnis.Urteil(leer), Fremdes::Geaendert);
}

TEST(Dateikenntnis, OfAFileThatIsNotThereNothingCanBeLost) {
    for (const Dateikenntnis& kenntnis : {Dateikenntnis(), Dateikenntnis(gelesen), Dateikenntnis(unlesbar)}) {
        EXPECT_EQ(kenntnis.Urteil(nichts), Fremdes::Keines);
        EXPECT_EQ(kenntnis.Urteil(ordner), Fremdes::Keines);
    }
}

TEST(Dateikenntnis, WithoutAnyEachFileIsAnotherOnes) {
    EXPECT_EQ(Dateikenntnis().Urteil(gelesen), Fremdes::Geaendert);
    EXPECT_EQ(Dateikenntnis(nichts).Urteil(gelesen), Fremdes::Geaendert);
    EXPECT_EQ(Dateikenntnis(ordner).Urteil(gelesen), Fremdes::Geaendert);
    EXPECT_EQ(Dateikenntnis().Urteil(leer), Fremdes::Geaendert);
}

TEST(Dateikenntnis, WhatCanNotBeReadMayBeAnybodys) {
    EXPECT_EQ(Dateikenntnis().Urteil(unlesbar), Fremdes::Unlesbar);
    EXPECT_EQ(Dateikenntnis(gelesen).Urteil(unlesbar), Fremdes::Unlesbar);
    EXPECT_EQ(Dateikenntnis(unlesbar).Urteil(unlesbar), Fremdes::Keines); // given up by the person
    EXPECT_EQ(Dateikenntnis(unlesbar).Urteil(gelesen), Fremdes::Geaendert);
}

TEST(Dateikenntnis, AWriteThatFailedMayHaveLeftTheOldFileOrTheNewOne) {
    Dateikenntnis kenntnis(gelesen);
    kenntnis.Ergaenzen(anderer);
    EXPECT_EQ(kenntnis.Urteil(gelesen), Fremdes::Keines);
    EXPECT_EQ(kenntnis.Urteil(anderer), Fremdes::Keines);
    EXPECT_EQ(kenntnis.Urteil(laenger), Fremdes::Geaendert);
}

TEST(Dateikenntnis, TheSameOnceMoreAddsNothing) {
    Dateikenntnis kenntnis(gelesen);
    kenntnis.Ergaenzen(gelesen);
    EXPECT_EQ(kenntnis, Dateikenntnis(gelesen));
}

} // namespace
