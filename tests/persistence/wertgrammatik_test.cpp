#include "core/wertgrammatik.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <vector>

namespace {

using Werte = std::vector<std::string>;

Werte AlleToken(std::string_view bytes) {
    Werte werte;
    WertLeser leser(bytes);
    while (!leser.AmEnde()) {
        werte.emplace_back(leser.Token());
    }
    return werte;
}

struct Fehlerstelle {
    int nummer = 0, zeile = 0;
    bool operator==(const Fehlerstelle&) const = default;
};

template <typename Lauf>
Fehlerstelle FehlerVon(Lauf lauf) {
    try {
        lauf();
    } catch (const Laufzeitfehler& fehler) {
        return {fehler.nummer(), fehler.zeile()};
    }
    return {};
}

TEST(Wertgrammatik, TokensFollowTheRules) {
    struct Zeile {
        std::string_view bytes;
        Werte erwartet;
    };
    const std::vector<Zeile> zeilen{
        {"\"a\"\r\n\"b\"\r\n", {"a", "b"}},
        {"\"a\",\"b\",3\r\n", {"a", "b", "3"}},
        {"a\r\nb", {"a", "b"}},
        {"   a b   \r\n   \"  c  \"  \r\n", {"a b", "  c  "}},
        {"\"a\" what stands here, 1\r\n", {"a", "1"}},
        {"\"a\"x\"y\",2\r\n", {"a", "2"}},
        {"\"line one\r\nline two, too\"\r\n5\r\n", {"line one\r\nline two, too", "5"}},
        {"\r\n\r\n", {"", ""}},
        {"a,,b\r\n", {"a", "", "b"}},
        {"a,\r\nb", {"a", "", "b"}},
        {"\"\"\r\n", {""}},
        {"\"open\r\nto the end", {"open\r\nto the end"}},
        {"\"", {""}},
        {"a\"b\"\r\n", {"a\"b\""}},
        {"a\nb\rc", {"a", "b", "c"}},
        {"   ", {""}},
        {"a\r\n  ", {"a", ""}},
        {"", {}},
    };
    for (const Zeile& zeile : zeilen) {
        EXPECT_EQ(AlleToken(zeile.bytes), zeile.erwartet) << zeile.bytes;
    }
}

TEST(Wertgrammatik, ANulByteIsPartOfItsToken) {
    const std::string bytes("\"a\0b\"\r\nc\0,d", 11);
    EXPECT_EQ(AlleToken(bytes), (Werte{std::string("a\0b", 3), std::string("c\0", 2), "d"}));
}

TEST(Wertgrammatik, ATokenPastTheEndIsError62WithTheLineBehindTheLast) {
    EXPECT_EQ(FehlerVon([] { WertLeser("").Token(); }), (Fehlerstelle{62, 1}));
    EXPECT_EQ(FehlerVon([] {
                  WertLeser leser("a\r\nb\nc\r\n");
                  for (int i = 0; i < 4; ++i) {
                      leser.Token();
                  }
              }),
              (Fehlerstelle{62, 4}));
    EXPECT_EQ(FehlerVon([] { WertLeser("").Ganzzahl(); }), (Fehlerstelle{62, 1}));
    EXPECT_EQ(FehlerVon([] { WertLeser("").Variant(); }), (Fehlerstelle{62, 1}));
    EXPECT_EQ(FehlerVon([] { WertLeser("").Zeile(); }), (Fehlerstelle{62, 1}));
}

TEST(Wertgrammatik, LinesInsideAStringCountForTheLineNumber) {
    WertLeser leser("\"a\r\nb\rc\nd\"\r\nx");
    EXPECT_EQ(leser.ZeileNr(), 1);
    leser.Token();
    EXPECT_EQ(leser.ZeileNr(), 5);
}

TEST(Wertgrammatik, IntegersAreReadAsDescribed) {
    struct Zeile {
        std::string_view bytes;
        int erwartet;
    };
    constexpr std::array<Zeile, 24> zeilen{
        {{"0", 0},       {"5", 5},   {"-5", -5}, {"+7", 7},    {"32767", 32767}, {"-32768", -32768},
         {"007", 7},     {"1.5", 2}, {"2.5", 2}, {"0.5", 0},   {"-1.5", -2},     {"1e3", 1000},
         {"\"12\"", 12}, {"", 0},    {"abc", 0}, {"12abc", 0}, {"1 2", 0},       {"-", 0},
         {".", 0},       {"inf", 0}, {"nan", 0}, {"0x10", 0},  {"1e-999", 0},    {"--5", 0}}};
    for (const Zeile& zeile : zeilen) {
        const std::string bytes = std::string(zeile.bytes) + "\r\n";
        EXPECT_EQ(WertLeser(bytes).Ganzzahl(), zeile.erwartet) << zeile.bytes;
    }
}

TEST(Wertgrammatik, AnOverlongNumberIsError6AtItsLine) {
    for (const std::string_view zahl :
         {"32768", "-32769", "99999999999999999999", "1e5", "1e999", "32767.5", "-1e400"}) {
        const std::string bytes = "\"x\"\r\n" + std::string(zahl) + "\r\n8\r\n";
        WertLeser leser(bytes);
        leser.Token();
        EXPECT_EQ(FehlerVon([&] { (void)leser.Ganzzahl(); }), (Fehlerstelle{6, 2})) << zahl;
        EXPECT_EQ(leser.Ganzzahl(), 8) << "the reader stands behind the token that failed";
    }
}

TEST(Wertgrammatik, AFailedStatementIsTriedAgainOnTheNextToken) {
    std::vector<Fehlerstelle> gemeldet;
    WertLeser leser("99999\r\n-88888\r\n12\r\n77777\r\n", [&](const Laufzeitfehler& fehler) {
        gemeldet.push_back({fehler.nummer(), fehler.zeile()});
    });
    EXPECT_EQ(leser.Ganzzahl(), 12);
    EXPECT_EQ(gemeldet, (std::vector<Fehlerstelle>{{6, 1}, {6, 2}}));
    EXPECT_EQ(FehlerVon([&] { (void)leser.Ganzzahl(); }), (Fehlerstelle{62, 5}));
    EXPECT_EQ(gemeldet.size(), 3U);
}

TEST(Wertgrammatik, SinglesAreReadWithAPoint) {
    struct Zeile {
        std::string_view bytes;
        float erwartet;
    };
    constexpr std::array<Zeile, 9> zeilen{{{"0", 0},
                                           {"1.5", 1.5F},
                                           {".5", 0.5F},
                                           {"2.", 2},
                                           {"-2.5", -2.5F},
                                           {"1e-99", 0},
                                           {"0.0000000000000000000000000000000000000000000000000001", 0},
                                           {"kein", 0},
                                           {"", 0}}};
    for (const Zeile& zeile : zeilen) {
        EXPECT_EQ(WertLeser(std::string(zeile.bytes) + "\r\n").Einfach(), zeile.erwartet) << zeile.bytes;
    }
    EXPECT_EQ(WertLeser("1,5\r\n").Einfach(), 1.0F) << "a comma closes the token in every locale";
    EXPECT_EQ(FehlerVon([] { (void)WertLeser("1e39\r\n").Einfach(); }), (Fehlerstelle{6, 1}));
}

TEST(Wertgrammatik, AVariantWhoseTextNeverClosesIsNoValue) {
    EXPECT_EQ(WertLeser("\"").Variant(), std::nullopt);
    EXPECT_EQ(WertLeser("\"n\r\n4\r\n").Variant(), std::nullopt);
    EXPECT_EQ(WertLeser("a\"b\r\n").Variant(), "a\"b");
}

TEST(Wertgrammatik, AVariantKeepsItsNotationAndAnEmptyLineIsNoValue) {
    WertLeser leser("\r\n2\r\n\"\"\r\n \"zwei\"  x\r\n#TRUE#,,3\r\n");
    EXPECT_EQ(leser.Variant(), std::nullopt);
    EXPECT_EQ(leser.Variant(), "2");
    EXPECT_EQ(leser.Variant(), "\"\"");
    EXPECT_EQ(leser.Variant(), "\"zwei\"");
    EXPECT_EQ(leser.Variant(), "#TRUE#");
    EXPECT_EQ(leser.Variant(), std::nullopt);
    EXPECT_EQ(leser.Variant(), "3");
}

TEST(Wertgrammatik, AWholeLineKeepsQuotesCommasAndBlanks) {
    WertLeser leser("  \"a\", b  \r\n\r\nc\nd\re");
    for (const std::string_view erwartet : {"  \"a\", b  ", "", "c", "d", "e"}) {
        EXPECT_EQ(leser.Zeile(), erwartet);
    }
    EXPECT_TRUE(leser.AmEnde());
}

TEST(Wertgrammatik, AMarkerIsFoundInAnyCaseAndBetweenBlanks) {
    EXPECT_TRUE(IstMarke("[FRAGEN]", "[FRAGEN]"));
    EXPECT_TRUE(IstMarke("  [fraGen] ", "[FRAGEN]"));
    for (const std::string_view token :
         {"", " ", "FRAGEN", "[FRAGEN", "[FRAGEN]x", "[HB-FRAGEN]", "{FRAGEN]"}) {
        EXPECT_FALSE(IstMarke(token, "[FRAGEN]")) << token;
    }
}

TEST(Wertgrammatik, StringsAreWrittenWithoutAnyEscape) {
    WertSchreiber schreiber;
    schreiber.Text("");
    schreiber.Text("Größe, \"so\"\r\nx");
    EXPECT_EQ(schreiber.bytes(), "\"\"\r\n\"Gr\xF6\xDF"
                                 "e, \"so\"\r\nx\"\r\n");
}

TEST(Wertgrammatik, NumbersAreWrittenShortestWithAPointWhateverTheLocale) {
    const std::string vorher = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "de_DE.UTF-8", "de_DE"}) {
        std::setlocale(LC_ALL, locale);
        WertSchreiber schreiber;
        for (const float zahl : {0.0F, 1.0F, 1.5F, 2.0F, 2.5F, 0.1F, -3.25F}) {
            schreiber.Einfach(zahl);
        }
        schreiber.Ganzzahl(std::numeric_limits<std::int16_t>::min());
        schreiber.Ganzzahl(12345);
        EXPECT_EQ(schreiber.bytes(), "0\r\n1\r\n1.5\r\n2\r\n2.5\r\n0.1\r\n-3.25\r\n-32768\r\n12345\r\n");
    }
    std::setlocale(LC_ALL, vorher.c_str());
}

TEST(Wertgrammatik, EverySingleReadsBackTheSame) {
    using Grenzen = std::numeric_limits<float>;
    for (const float zahl : {Grenzen::max(), Grenzen::min(), Grenzen::denorm_min(), 1.0F / 3.0F, -1e20F}) {
        WertSchreiber schreiber;
        schreiber.Einfach(zahl);
        EXPECT_EQ(WertLeser(schreiber.bytes()).Einfach(), zahl);
    }
}

TEST(Wertgrammatik, NoValueIsWrittenAsAnEmptyLine) {
    WertSchreiber schreiber;
    schreiber.Variant(std::nullopt);
    schreiber.Variant("2");
    schreiber.Variant("\"zwölf\"");
    EXPECT_EQ(schreiber.bytes(), "\r\n2\r\n\"zw\xF6lf\"\r\n");
}

} // namespace
