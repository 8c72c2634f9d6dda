// Addresses that leave the program, and the tray icon's record: the rules that need no window.
#include "periphery/mailadresse.h"
#include "periphery/netzadresse.h"
#include "periphery/traydaten.h"

#include <gtest/gtest.h>

#include <array>

TEST(Mail, ASubjectWithoutABodyGivesOneQuestionMarkAndNoAmpersand) {
    EXPECT_EQ(MailAdresse("post@feldkranz.example", "Feldkranz!", ""),
              "mailto:post@feldkranz.example?subject=Feldkranz!");
}

TEST(Mail, TheMakersMailHasSubjectAndBody) {
    EXPECT_EQ(MailAdresse("post@feldkranz.example", "Feldkranz!", "Hier eine Anmerkung zu Feldkranz! :"),
              "mailto:post@feldkranz.example?subject=Feldkranz!&body=Hier eine Anmerkung zu Feldkranz! :");
}

TEST(Mail, NothingOfTheTextIsEscaped) {
    EXPECT_EQ(MailAdresse("a b@c", "50 % & mehr?", "ä\r\n#=&?"),
              "mailto:a b@c?subject=50 % & mehr?&body=ä\r\n#=&?");
}

TEST(Mail, EmptyPartsAreLeftOut) {
    EXPECT_EQ(MailAdresse("a@b", "", ""), "mailto:a@b");
    EXPECT_EQ(MailAdresse("a@b", "", "nur Text"), "mailto:a@b?body=nur Text");
    EXPECT_EQ(MailAdresse("", "", ""), "mailto:");
}

TEST(Mail, PartsAreJoinedByOneQuestionMarkAndThenByAmpersands) {
    std::string schwanz;
    MailTeilAnhaengen(schwanz, "a=1");
    EXPECT_EQ(schwanz, "?a=1");
    MailTeilAnhaengen(schwanz, "b=2");
    MailTeilAnhaengen(schwanz, "");
    EXPECT_EQ(schwanz, "?a=1&b=2&");
}

TEST(Homepage, TheDownloadPageIsAskedForByItsFiveKeys) {
    EXPECT_EQ(Downloadseite("https://www.feldkranz.example"),
              "https://www.feldkranz.example/modules.php"
              "?op=modload&name=Downloads&file=index&req=viewsdownload&sid=18");
}

TEST(Homepage, OnlyTheMakersHostOverTheWebStaysInTheWindow) {
    struct Zeile {
        const char* schema;
        const char* host;
        Netzziel soll;
    };
    constexpr const char* eigener = "www.feldkranz.example";
    for (const Zeile& zeile : std::array{
             Zeile{"https", "www.feldkranz.example", Netzziel::Hier},
             Zeile{"http", "www.feldkranz.example", Netzziel::Aussen}, // no longer encrypted
             Zeile{"HTTPS", "WWW.Feldkranz.Example", Netzziel::Hier},
             Zeile{"https", "feldkranz.example", Netzziel::Aussen},
             Zeile{"https", "www.feldkranz.example.anderswo.example", Netzziel::Aussen},
             Zeile{"https", "boese-www.feldkranz.example", Netzziel::Aussen},
             Zeile{"https", "", Netzziel::Nirgends},
             Zeile{"file", "", Netzziel::Nirgends},
             Zeile{"file", "www.feldkranz.example", Netzziel::Nirgends},
             Zeile{"ftp", "www.feldkranz.example", Netzziel::Nirgends},
             Zeile{"data", "", Netzziel::Nirgends},
             Zeile{"blob", "", Netzziel::Nirgends},
             Zeile{"javascript", "", Netzziel::Nirgends},
             Zeile{"chrome", "gpu", Netzziel::Nirgends},
             Zeile{"view-source", "", Netzziel::Nirgends},
             Zeile{"qrc", "", Netzziel::Nirgends},
             Zeile{"mailto", "", Netzziel::Nirgends},
             Zeile{"", "www.feldkranz.example", Netzziel::Nirgends},
         }) {
        EXPECT_EQ(NetzzielFuer(zeile.schema, zeile.host, "https", eigener), zeile.soll)
            << zeile.schema << "://" << zeile.host;
    }
    // A plain page may lead to plain and encrypted ones.
    EXPECT_EQ(NetzzielFuer("http", eigener, "http", eigener), Netzziel::Hier);
    EXPECT_EQ(NetzzielFuer("https", eigener, "http", eigener), Netzziel::Hier);
    EXPECT_EQ(NetzzielFuer("http", eigener, "HTTPS", eigener), Netzziel::Aussen);
}

TEST(Tray, TheRecordHasItsNumbersAndItsTip) {
    EXPECT_EQ(TrayDaten.groesse, 88);
    EXPECT_EQ(TrayDaten.kennung, 1);
    EXPECT_EQ(TrayDaten.merkmale, 7);
    EXPECT_EQ(TrayDaten.nachricht, 512);
    EXPECT_EQ(TrayDaten.tipp, std::string_view(" Feldkranz! \0", 13));
    EXPECT_LE(TrayDaten.tipp.size(), 64U);
}

TEST(Tray, OnlyTheLeftPressAndTheRightReleaseDoAnything) {
    for (int nummer = 0; nummer <= 0x400; ++nummer) {
        const Traytat soll = nummer == 513   ? Traytat::Zeigen
                             : nummer == 517 ? Traytat::NachVorn
                                             : Traytat::Nichts;
        EXPECT_EQ(TrayEreignis(nummer), soll) << nummer;
    }
}
