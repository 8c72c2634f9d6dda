// The sound files as they are shipped: one for every key of the table, each a wave file that any player
// takes, short, heard, not too loud, and without a click at its ends.
#include "core/pfad.h"
#include "core/plattform.h"
#include "core/programmstand.h"
#include "dialogs/klangtabelle.h"
#include "tests/hilfe/programmordner.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

constexpr qsizetype kopf = 44; // RIFF, WAVE, one format block of 16 bytes, the head of the data

unsigned Zahl(const QByteArray& bytes, qsizetype ab, qsizetype stellen) {
    unsigned zahl = 0;
    for (qsizetype i = stellen; i-- > 0;) {
        zahl = zahl << 8U | static_cast<std::uint8_t>(bytes.at(ab + i));
    }
    return zahl;
}

class Klangdatei : public ::testing::TestWithParam<Klang> {
protected:
    void SetUp() override {
        QFile datei(NativerPfad(Stand.AppPfad + std::string(GetParam().datei)));
        ASSERT_TRUE(datei.open(QIODevice::ReadOnly)) << GetParam().datei;
        bytes = datei.readAll();
        ASSERT_GT(bytes.size(), kopf);
        for (qsizetype i = kopf; i + 1 < bytes.size(); i += 2) {
            werte.push_back(static_cast<std::int16_t>(Zahl(bytes, i, 2)));
        }
    }
    // Where the loudness lies over that many samples, the greatest of all such stretches.
    [[nodiscard]] double Lautheit(std::size_t fenster) const {
        double summe = 0;
        double groesste = 0;
        for (std::size_t i = 0; i < werte.size(); ++i) {
            summe += std::pow(werte[i], 2);
            summe -= i < fenster ? 0 : std::pow(werte[i - fenster], 2);
            groesste = std::max(groesste, summe);
        }
        return std::sqrt(groesste / static_cast<double>(fenster)) / 32768;
    }
    Programmordner programm;
    QByteArray bytes;
    std::vector<std::int16_t> werte;
};

TEST_P(Klangdatei, IsAWaveFileOfOneChannelAndSixteenBits) {
    EXPECT_EQ(bytes.mid(0, 4), "RIFF");
    EXPECT_EQ(Zahl(bytes, 4, 4), static_cast<unsigned>(bytes.size()) - 8);
    EXPECT_EQ(bytes.mid(8, 8), "WAVEfmt ");
    EXPECT_EQ(Zahl(bytes, 16, 4), 16U);
    EXPECT_EQ(Zahl(bytes, 20, 2), 1U); // plain samples
    EXPECT_EQ(Zahl(bytes, 22, 2), 1U); // channels
    EXPECT_EQ(Zahl(bytes, 24, 4), 22050U);
    EXPECT_EQ(Zahl(bytes, 28, 4), 44100U); // bytes a second
    EXPECT_EQ(Zahl(bytes, 32, 2), 2U);
    EXPECT_EQ(Zahl(bytes, 34, 2), 16U);
    EXPECT_EQ(bytes.mid(36, 4), "data");
    EXPECT_EQ(Zahl(bytes, 40, 4), static_cast<unsigned>(bytes.size() - kopf));
}

TEST_P(Klangdatei, LastsLessThanTwoSeconds) {
    const double sekunden = static_cast<double>(werte.size()) / 22050;
    EXPECT_GT(sekunden, 0.15);
    EXPECT_LT(sekunden, 2.0);
}

TEST_P(Klangdatei, IsHeardAndStaysBelowFullScale) {
    const auto [tief, hoch] = std::ranges::minmax(werte);
    EXPECT_LT(std::max<int>(hoch, -tief), 32767 * 3 / 4);
    EXPECT_GT(Lautheit(4410), 0.08);
    EXPECT_LT(Lautheit(4410), 0.30);
}

TEST_P(Klangdatei, BeginsAndEndsWithoutAClick) {
    constexpr int leise = 32767 / 50;
    EXPECT_EQ(werte.front(), 0);
    EXPECT_EQ(werte.back(), 0);
    EXPECT_LT(std::abs(werte.at(3)), 10 * leise);
    EXPECT_LT(std::abs(werte.at(werte.size() - 12)), leise);
}

INSTANTIATE_TEST_SUITE_P(Alle, Klangdatei, ::testing::ValuesIn(klangTabelle), [](const auto& zeile) {
    const std::string_view name = zeile.param.schluessel;
    return std::string(name.substr(0, name.find('.')));
});

TEST(Klangordner, HoldsTheTwelveSoundsAndNothingElse) {
    const Programmordner programm;
    QStringList erwartet;
    for (const Klang& klang : klangTabelle) {
        erwartet << QString::fromUtf8(klang.schluessel.data(),
                                      static_cast<qsizetype>(klang.schluessel.size()));
    }
    erwartet.sort();
    EXPECT_EQ(QDir(programm.nativ(QStringLiteral("SOUND"))).entryList(QDir::Files, QDir::Name).join(' '),
              erwartet.join(' '));
}

} // namespace
