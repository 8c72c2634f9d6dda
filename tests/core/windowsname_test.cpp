#include "core/windowsname.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Windowsname, TakesWhatFilesAreCalled) {
    for (const char* name : {"ABEND.FKR",   "Übung Größe.FKR",
                             "a.b.c",       " vorn",
                             ".lock",       "CONFIG",
                             "CONSUL.FKR",  "COM",
                             "COM0",        "COM10",
                             "LPTX",        "NULL",
                             "AUXILIA.TXT", "x.CON",
                             "Nr. 1",       "ß",
                             "a'b",         "100%",
                             "(1)",         "Fragen & Antworten"}) {
        EXPECT_TRUE(WindowsnameErlaubt(name)) << name;
    }
}

TEST(Windowsname, RefusesDevicesWhateverTheirCaseAndExtension) {
    for (const char* name : {"CON", "con", "Nul", "NUL.FKR", "prn.txt", "aux.", "COM1", "com9.FKR", "LPT3",
                             "lpt¹", "COM³.txt", "CONIN$", "conout$", "CON .FKR", "nul.tar.gz"}) {
        EXPECT_FALSE(WindowsnameErlaubt(name)) << name;
    }
}

TEST(Windowsname, RefusesSignsWithAMeaningAndControlCharacters) {
    for (const char zeichen : std::string("<>:\"/\\|?*\x01\t\n\x1f")) {
        EXPECT_FALSE(WindowsnameErlaubt(std::string("a") + zeichen + "b.FKR")) << static_cast<int>(zeichen);
    }
    EXPECT_FALSE(WindowsnameErlaubt(std::string("a\0b", 3)));
    EXPECT_TRUE(WindowsnameErlaubt("a\x7f"));
}

TEST(Windowsname, RefusesPointsAndBlanksAtTheEndAndNoNameAtAll) {
    for (const char* name : {"", " ", ".", "..", "ABEND.", "ABEND.FKR ", "a. ", "a .", "x.."}) {
        EXPECT_FALSE(WindowsnameErlaubt(name)) << name;
    }
}

} // namespace
