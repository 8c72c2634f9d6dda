// A catalogue file as a whole text: what the reader makes of its bytes, and the bytes that come back.
#include "editor/katalogtext.h"

#include "core/laufzeitfehler.h"
#include "core/wertgrammatik.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

std::string Wiederholt(std::string_view teil, std::size_t oft) {
    std::string text;
    for (std::size_t i = 0; i < oft; ++i) {
        text += teil;
    }
    return text;
}

// Number of the run-time error that reading ends in, 0 for none.
int Fehlernummer(std::string_view bytes) {
    try {
        (void)KatalogtextLesen(bytes);
    } catch (const Laufzeitfehler& fehler) {
        return fehler.nummer();
    }
    return 0;
}

std::string Runde(std::string_view bytes) {
    const Katalogtext gelesen = KatalogtextLesen(bytes);
    return KatalogtextBytes(gelesen.marke, gelesen.text);
}

struct Zerlegung {
    std::string_view bytes, marke, text;
};

TEST(Katalogtext, TheFirstTokenIsTheMarkAndEveryFurtherLineIsText) {
    const std::array<Zerlegung, 14> faelle{{
        {"Knoten\r\n1\r\nWer?\r\n", "Knoten", "1\r\nWer?\r\n"},
        {"Knoten", "Knoten", ""},
        {"Knoten\r\n", "Knoten", ""},
        {"\r\n1\r\n", "", "1\r\n"},
        {"\r\n", "", ""},
        {"  Knoten  \r\n1\r\n", "Knoten", "1\r\n"},
        {"\"Knoten\"\r\n1\r\n", "Knoten", "1\r\n"},
        {"\"Knoten, Seile\"\r\n1\r\n", "Knoten, Seile", "1\r\n"},
        {"Knoten, Seile\r\n1\r\n", "Knoten", " Seile\r\n1\r\n"},
        {"Knoten\r\n\"Wer?\", ich\r\n  Du \r\n", "Knoten", "\"Wer?\", ich\r\n  Du \r\n"},
        {"Knoten\r\n1\r\nletzte ohne Ende", "Knoten", "1\r\nletzte ohne Ende\r\n"},
        {"Knoten\r\n\r\n\r\n", "Knoten", "\r\n\r\n"},
        {"Knoten\n1\n2\r3\r\n", "Knoten", "1\r\n2\r\n3\r\n"},
        {"B\xE4ume\r\nGr\xF6\xDF"
         "e: 5 \x80\r\n",
         "Bäume", "Größe: 5 €\r\n"},
    }};
    for (const Zerlegung& fall : faelle) {
        const Katalogtext gelesen = KatalogtextLesen(fall.bytes);
        EXPECT_EQ(gelesen.marke, fall.marke) << fall.bytes;
        EXPECT_EQ(gelesen.text, fall.text) << fall.bytes;
    }
}

TEST(Katalogtext, MarkAndTextAreWrittenRawEachWithALineEnd) {
    EXPECT_EQ(KatalogtextBytes("Knoten", "1\r\nWer?\r\n"), "Knoten\r\n1\r\nWer?\r\n\r\n");
    EXPECT_EQ(KatalogtextBytes("", ""), "\r\n\r\n");
    EXPECT_EQ(KatalogtextBytes("a, \"b\"", "c"), "a, \"b\"\r\nc\r\n");
    EXPECT_EQ(KatalogtextBytes("B\u00e4ume", "\u20ac"), "B\xE4ume\r\n\x80\r\n");
}

TEST(Katalogtext, EachCycleOfReadingAndWritingAddsOneEmptyLineAndNothingElse) {
    std::string bytes = "Knoten\r\n1\r\nWas h\xE4lt, \"fest\"?\r\nPalstek\r\n10\r\n";
    const std::string anfang = bytes;
    for (std::size_t runde = 1; runde <= 5; ++runde) {
        bytes = Runde(bytes);
        EXPECT_EQ(bytes, anfang + Wiederholt("\r\n", runde));
    }
}

TEST(Katalogtext, EveryByteBehindTheFirstLineComesBack) {
    std::string zeile;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            zeile += static_cast<char>(byte);
        }
    }
    const std::string bytes = "Kopf\r\n" + zeile + "\r\n" + zeile + "\r\n";
    EXPECT_EQ(Runde(bytes), bytes + "\r\n");
}

TEST(Katalogtext, WhatTheRulesOfATokenDropIsDropped) {
    // Blanks around the first token, its quotes, what stands between the second quote and the line's end.
    EXPECT_EQ(Runde("  \"Knoten\" alt\r\n1\r\n"), "Knoten\r\n1\r\n\r\n");
    EXPECT_EQ(Runde("Knoten, Seile\r\n1\r\n"), "Knoten\r\n Seile\r\n1\r\n\r\n");
}

struct Ablehnung {
    const char* was;
    std::string bytes;
    int fehler;
};

TEST(Katalogtext, BadInputEndsInARunTimeErrorAndNothingWorse) {
    const std::array<Ablehnung, 9> faelle{{
        {"no bytes at all", "", 62},
        {"a quote nobody closes, short", "\"Kopf\r\n1\r\n", 0},
        {"a quote nobody closes, long", "\"" + Wiederholt("Zeile\r\n", 20000), 7},
        {"a first line as long as may be", std::string(laengsterText, 'x'), 0},
        {"a first line too long", std::string(laengsterText + 1, 'x'), 7},
        {"a line as long as may be", "k\r\n" + std::string(laengsteKatalogzeile, 'x'), 0},
        {"a line too long", "k\r\n" + std::string(laengsteKatalogzeile + 1, 'x'), 7},
        {"too many lines", "k\r\n" + std::string(meisteKatalogzeilen + 1, '\n'), 7},
        {"too many bytes", "k\r\n" + Wiederholt(std::string(1U << 16U, 'x') + "\n", 520), 7},
    }};
    for (const Ablehnung& fall : faelle) {
        EXPECT_EQ(Fehlernummer(fall.bytes), fall.fehler) << fall.was;
    }
}

TEST(Katalogtext, RandomBytesAreReadOrRefusedAndWhatIsReadComesBack) {
    std::mt19937 wuerfel(1); // NOLINT(cert-msc51-cpp): the same bytes in every run
    for (int lauf = 0; lauf < 2000; ++lauf) {
        std::string bytes;
        for (auto rest = wuerfel() % 300; rest > 0; --rest) {
            constexpr std::string_view haeufig = "\"\",,\r\n\r\n '";
            const auto wurf = wuerfel();
            bytes += wurf % 3 == 0 ? haeufig[wurf / 3 % haeufig.size()] : static_cast<char>(wurf % 256);
        }
        if (bytes.empty()) {
            continue;
        }
        const Katalogtext gelesen = KatalogtextLesen(bytes);
        const Katalogtext wieder = KatalogtextLesen("k\r\n" + KatalogtextBytes("", gelesen.text));
        EXPECT_EQ(wieder.text, "\r\n" + gelesen.text + "\r\n") << lauf;
    }
}

TEST(Katalogtext, AFileWithAZeroByteIsNoText) {
    EXPECT_TRUE(IstTextdatei("Knoten\r\n\x1A\x7F\xFF"));
    EXPECT_TRUE(IstTextdatei(""));
    EXPECT_FALSE(IstTextdatei(std::string_view("BM\0\0", 4)));
    EXPECT_FALSE(IstTextdatei(std::string_view("K\0n\0", 4))) << "two bytes a character";
}

TEST(Katalogkopf, IsTheFilesNameWithoutItsExtension) {
    EXPECT_EQ(KatalogkopfAus("Bäume.TXT"), "Bäume");
    EXPECT_EQ(KatalogkopfAus("PF.BAUM.txt"), "PF.BAUM");
    EXPECT_EQ(KatalogkopfAus("ohne"), "ohne");
}

TEST(Katalogkopf, ComesBackWholeWhenTheFileIsReadAgain) {
    for (const char* name : {"Knoten, alle.TXT", "\"Knoten\".TXT", " Knoten .TXT", "Knoten.TXT"}) {
        const std::string kopf = KatalogkopfAus(name);
        const Katalogtext gelesen = KatalogtextLesen(KatalogtextBytes(kopf, "1\r\n"));
        EXPECT_EQ(gelesen.marke, kopf) << name;
        EXPECT_EQ(gelesen.text, "1\r\n\r\n") << name;
    }
}

} // namespace
