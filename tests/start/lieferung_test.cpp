// Which delivered file goes where, by what lies in the folder and what was delivered before.
#include "start/lieferung.h"

#include <gtest/gtest.h>

namespace {

// A checksum that tells the letter apart.
std::string S(char buchstabe) {
    return std::string(64, buchstabe);
}

struct Fall {
    const char* name;
    const char* pfad;
    char neu;         // delivered now
    char alt;         // delivered before; '-' for never
    char liegt;       // lies there; '-' for nothing, '?' for what can't be read
    const char* ziel; // of the copy; "" for none
    char danach;      // known as delivered, once all is done
    bool gemeldet;    // somebody is to be told
};

const Fall faelle[]{
    {"first start", "WISSEN/A.TXT", 'a', '-', '-', "WISSEN/A.TXT", 'a', false},
    {"put there by a start that was killed", "WISSEN/A.TXT", 'a', '-', 'a', "", 'a', false},
    {"nothing new", "WISSEN/A.TXT", 'a', 'a', 'a', "", 'a', false},
    {"new, left alone by the person", "WISSEN/A.TXT", 'b', 'a', 'a', "WISSEN/A.TXT", 'b', false},
    {"new, put there by a start that was killed", "WISSEN/A.TXT", 'b', 'a', 'b', "", 'b', false},
    {"changed by the person, nothing new", "WISSEN/A.TXT", 'a', 'a', 'c', "", 'a', false},
    {"changed by the person, and new", "WISSEN/A.TXT", 'b', 'a', 'c', "WISSEN/A.TXT.NEU", 'b', true},
    {"unreadable, and new", "WISSEN/A.TXT", 'b', 'a', '?', "", 'a', false},
    {"unreadable, nothing new", "WISSEN/A.TXT", 'a', 'a', '?', "", 'a', false},
    {"the person's own of that name", "WISSEN/A.TXT", 'a', '-', 'c', "WISSEN/A.TXT.NEU", 'a', true},
    {"deleted by the person", "WISSEN/A.TXT", 'a', 'a', '-', "WISSEN/A.TXT", 'a', false},
    {"a picture changed, and new", "BITMAP/A.bmp", 'b', 'a', 'c', "BITMAP/A.bmp.NEU", 'b', true},
    {"a sound deleted", "SOUND/a.wav", 'a', 'a', '-', "SOUND/a.wav", 'a', false},
    {"the rules, and new", "REGEL/F.pdf", 'b', 'a', 'a', "REGEL/F.pdf", 'b', false},
    {"example at the first start", "KRANZ/A.FKR", 'a', '-', '-', "KRANZ/A.FKR", 'a', false},
    {"example deleted", "KRANZ/A.FKR", 'a', 'a', '-', "", 'a', false},
    {"example deleted, and new", "KRANZ/A.FKR", 'b', 'a', '-', "", 'b', false},
    {"example left alone, and new", "TEST/A.FKR", 'b', 'a', 'a', "", 'b', false},
    {"example changed, and new", "TEST/A.FKR", 'b', 'a', 'c', "", 'b', false},
    {"unreadable of that name", "TEST/A.FKR", 'a', '-', '?', "", '-', false},
    {"form of the person's of that name", "TEST/A.FKR", 'a', '-', 'c', "", 'a', false},
    {"settings at the first start", "CONFIG/F.INI", 'a', '-', '-', "CONFIG/F.INI", 'a', false},
    {"settings changed, and new", "CONFIG/F.INI", 'b', 'a', 'c', "", 'b', false},
};

std::optional<std::string> Liegt(char was) {
    return was == '-' ? std::nullopt : std::optional(was == '?' ? std::string() : S(was));
}

Lieferplan Plan(const Fall& fall) {
    Lieferstand vorher;
    if (fall.alt != '-') {
        vorher.geliefert[fall.pfad] = S(fall.alt);
    }
    return LieferplanMachen({{fall.pfad, S(fall.neu)}}, vorher, [&](const std::string& pfad) {
        return pfad == fall.pfad ? Liegt(fall.liegt) : std::nullopt;
    });
}

TEST(Lieferung, EachFileGoesWhereNothingOfThePersonsIsLost) {
    for (const Fall& fall : faelle) {
        Lieferplan plan = Plan(fall);
        const bool kopie = *fall.ziel != '\0';
        ASSERT_EQ(plan.schritte.size(), kopie ? 1U : 0U) << fall.name;
        if (kopie) {
            EXPECT_EQ(plan.schritte[0], (Lieferschritt{fall.pfad, fall.ziel, S(fall.neu)})) << fall.name;
            EXPECT_TRUE(fall.neu == fall.alt || plan.danach.geliefert[fall.pfad] != S(fall.neu)) << fall.name;
            plan.Getan(plan.schritte[0], plan.schritte[0].summe);
        }
        const bool bekannt = plan.danach.geliefert.contains(fall.pfad);
        EXPECT_EQ(bekannt ? plan.danach.geliefert[fall.pfad] : S('-'), S(fall.danach)) << fall.name;
        EXPECT_EQ(!plan.danach.ungemeldet.empty(), fall.gemeldet) << fall.name;
        EXPECT_EQ(!plan.ungelesen.empty(), fall.liegt == '?' && fall.neu != fall.alt) << fall.name;
    }
}

TEST(Lieferung, WhatLiesBesideIsReplacedByTheNextVersionUnlessThePersonHasTouchedIt) {
    const std::string pfad = "WISSEN/A.TXT";
    const Lieferstand vorher{{{pfad, S('b')}, {pfad + ".NEU", S('b')}}, {}};
    for (const auto& [daneben, ziel] :
         {std::pair{'b', ".NEU"}, std::pair{'-', ".NEU"}, std::pair{'x', ".NEU2"}}) {
        const Lieferplan plan =
            LieferplanMachen({{pfad, S('c')}}, vorher, [&, was = daneben](const std::string& gefragt) {
                return gefragt == pfad ? Liegt('m') : gefragt == pfad + ".NEU" ? Liegt(was) : std::nullopt;
            });
        ASSERT_EQ(plan.schritte.size(), 1U);
        EXPECT_EQ(plan.schritte[0].ziel, pfad + ziel) << daneben;
    }
}

TEST(Lieferung, WhatAKilledStartHasLaidBesideIsOnlyToldOf) {
    const std::string pfad = "WISSEN/A.TXT";
    const Lieferplan plan =
        LieferplanMachen({{pfad, S('b')}}, {{{pfad, S('a')}}, {}}, [&](const std::string& gefragt) {
            return gefragt == pfad ? Liegt('m') : Liegt('b');
        });
    EXPECT_TRUE(plan.schritte.empty());
    EXPECT_EQ(plan.danach.ungemeldet, std::vector{pfad});
    EXPECT_EQ(plan.danach.geliefert.at(pfad), S('b'));
}

TEST(Lieferung, WhatIsNoLongerDeliveredIsStillKnown) {
    const Lieferstand vorher{{{"WISSEN/ALT.TXT", S('a')}}, {"WISSEN/ALT.TXT"}};
    const Lieferplan plan = LieferplanMachen({}, vorher, [](const std::string&) { return std::nullopt; });
    EXPECT_EQ(plan.danach, vorher);
    EXPECT_TRUE(plan.schritte.empty());
}

TEST(Lieferung, ItIsCompleteWhenEachFileIsKnownAsItIsDeliveredNow) {
    const Lieferstand stand{{{"A", S('a')}, {"B", S('b')}}, {}};
    EXPECT_TRUE(Ausgeliefert({}, {}));
    EXPECT_TRUE(Ausgeliefert({{"A", S('a')}}, stand));
    EXPECT_FALSE(Ausgeliefert({{"A", S('x')}}, stand));
    EXPECT_FALSE(Ausgeliefert({{"A", S('a')}, {"C", S('c')}}, stand));
}

TEST(Lieferung, TheMarkIsReadAsItWasWrittenAndDamageIsPassedOver) {
    const Lieferstand stand{{{"WISSEN/Öl und Gas.TXT", S('a')}, {"x", S('0')}}, {"WISSEN/B C.TXT", "D"}};
    EXPECT_EQ(LieferstandLesen(LieferstandBytes(stand)), stand);
    EXPECT_EQ(LieferstandLesen(""), Lieferstand{});
    const std::string gut = S('a') + " A";
    for (const std::string& schlecht :
         {S('a'), S('a') + " ", S('G') + " B", S('a').substr(1) + " B", S('a') + "-B", std::string("neu"),
          std::string("neu "), std::string()}) {
        EXPECT_EQ(LieferstandLesen(schlecht + "\n" + gut + "\n" + schlecht),
                  (Lieferstand{{{"A", S('a')}}, {}}))
            << schlecht;
    }
}

TEST(Lieferung, TheStatusHelpNamesWhatLiesBeside) {
    EXPECT_EQ(
        Danebentext({"WISSEN/LAND/W_1.TXT"}),
        " [ WISSEN\\LAND\\W_1.TXT ] hast du geändert. Die neue Fassung habe ich als .NEU danebengelegt.");
    EXPECT_EQ(Danebentext({"WISSEN/A", "BITMAP/B"}),
              " [ WISSEN\\A, BITMAP\\B ] hast du geändert. Die 2 neuen Fassungen habe ich als .NEU "
              "danebengelegt.");
}

} // namespace
