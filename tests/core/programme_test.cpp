// Sounds and the text editor, played and opened by programs that the test puts in the search path.
#include "core/plattform.h"
#include "dialogs/klangtabelle.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <chrono>
#include <thread>

namespace {

class Programme : public ::testing::Test {
protected:
    void SetUp() override {
        ordner.schreiben("bin/x", "");
        qputenv("PATH", QByteArray::fromStdString(ordner.nativ("bin")));
        ordner.schreiben("Jäger 1.wav", "kein Klang");
    }
    void TearDown() override { qputenv("PATH", pfad); }
    // A program that writes its arguments to a file of its name.
    void Programm(const std::string& name, int ergebnis) const {
        ordner.schreiben("bin/" + name, "#!/bin/sh\necho \"$@\" > '" + ordner.nativ(name) + "'\nexit " +
                                            std::to_string(ergebnis) + "\n");
        std::filesystem::permissions(ordner.nativ("bin/" + name), std::filesystem::perms(0755));
    }
    [[nodiscard]] QString Klang() const { return QString::fromStdString(ordner.nativ("Jäger 1.wav")); }
    Probeordner ordner;
    const QByteArray pfad = qgetenv("PATH");
};

TEST_F(Programme, WithoutAPlayerASoundIsSilentlyNotPlayed) {
    EXPECT_FALSE(plattform::KlangAbspielen(Klang()));
}

TEST_F(Programme, AMissingSoundStartsNoPlayer) {
    Programm("paplay", 0);
    EXPECT_FALSE(plattform::KlangAbspielen(QStringLiteral("/fehlt.wav")));
    EXPECT_FALSE(ordner.namen().contains("paplay"));
}

TEST_F(Programme, ASoundIsWaitedForAndTheNextPlayerTakesOverFromOneThatFails) {
    Programm("paplay", 1);
    Programm("aplay", 0);
    EXPECT_TRUE(plattform::KlangAbspielen(Klang()));
    EXPECT_EQ(ordner.lesen("paplay"), ordner.nativ("Jäger 1.wav") + "\n");
    EXPECT_EQ(ordner.lesen("aplay"), "-q " + ordner.nativ("Jäger 1.wav") + "\n");
}

TEST_F(Programme, TheTextEditorGetsTheFile) {
    EXPECT_FALSE(plattform::TexteditorStarten(Klang()));
    Programm("mousepad", 0);
    Programm("xdg-open", 0);
    EXPECT_TRUE(plattform::TexteditorStarten(Klang()));
    const auto frist = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (ordner.lesen("mousepad").empty() && std::chrono::steady_clock::now() < frist) {
        std::this_thread::yield(); // it runs beside us
    }
    EXPECT_EQ(ordner.lesen("mousepad"), ordner.nativ("Jäger 1.wav") + "\n");
    EXPECT_FALSE(ordner.namen().contains("xdg-open"));
}

TEST(Klangtabelle, TwelveKeysAndNoneOfTheNamesThatCallersPass) {
    for (const Klang& klang : klangTabelle) {
        EXPECT_EQ(KlangDatei(klang.schluessel), "\\SOUND\\" + std::string(klang.schluessel));
    }
    for (const char* name :
         {"dubb", "clack", "freiz_2", "trompete", "falscherWeg", "Hilfe", "", "DUBB.WAV"}) {
        EXPECT_EQ(KlangDatei(name), "") << name;
    }
}

} // namespace
