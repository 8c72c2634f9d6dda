// Every question and answer of the shipped catalogue set by the print itself, thirty to a sheet, on both
// papers and with every gap: in its cell it takes at most five lines, the answer two, so that neither reaches
// over the line below it, and no line stands out of the text column by more than a millimetre.
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "printing/seitenlayout.h"
#include "tests/catalogue/katalogpruefung.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

constexpr std::size_t felder = 30;
constexpr Millimeter ueberstand = 1_mm;

class Katalogdruck : public testing::TestWithParam<std::tuple<Papier, float>> {
protected:
    // A system without a printer, whatever the machine has.
    static void SetUpTestSuite() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }

    // One line of a sheet whose first cell holds the question of that index.
    void ZeilePruefen(const Textstelle& zeile, std::size_t erste);

    Papier papier_ = std::get<0>(GetParam());
    QTemporaryDir ordner_;
    Druckseite seite_{papier_ == Papier::A4Quer ? QPageLayout::Landscape : QPageLayout::Portrait,
                      EigenerPfad(ordner_.filePath(QStringLiteral("Blatt.pdf"))), "Katalog"};
    Druckgeometrie g_ = GeometrieRechnen(papier_, Millimeter(std::get<1>(GetParam())), seite_.masse().links,
                                         seite_.masse().oben);
};

FKDruckdaten Blatt(std::size_t erste) {
    FKDruckdaten daten;
    for (std::size_t n = 1; n <= felder && erste + n <= Katalogfragen().size(); ++n) {
        const Katalogsatz& frage = Katalogfragen()[erste + n - 1];
        daten.felder[n] = {frage.frage, frage.antwort, "", true, true};
    }
    return daten;
}

void Katalogdruck::ZeilePruefen(const Textstelle& zeile, std::size_t erste) {
    const float spalte = std::floor((zeile.x - g_.RandLinks) / g_.SpaltenRaster);
    const float reihe = std::floor((zeile.y - g_.ZeilenOben) / g_.ZeilenRaster);
    const Millimeter oben = g_.ZeilenOben + reihe * g_.ZeilenRaster;
    const bool antwort = zeile.schrift.fett;
    const Millimeter beginn = oben + (antwort ? g_.FrageHoehe + g_.AntwortOben : g_.TextOben);
    const Millimeter ende = oben + g_.FrageHoehe + (antwort ? g_.AntwortHoehe : 0_mm);
    const Millimeter hoehe = seite_.schriftmass().Hoehe(zeile.schrift);
    const std::string text = zeile.text.substr(0, zeile.text.find_last_not_of(' ') + 1);
    const Millimeter zuBreit = seite_.schriftmass().Breite(text, zeile.schrift) - g_.TextBreite;
    const auto feld = static_cast<std::size_t>(spalte * 5.0F + reihe);
    const Katalogsatz& frage = Katalogfragen().at(erste + feld);

    EXPECT_LE(std::lround((zeile.y - beginn) / hoehe) + 1, antwort ? 2 : 5) << Fundort(frage);
    EXPECT_LE((zeile.y + hoehe).zahl(), ende.zahl()) << Fundort(frage);
    EXPECT_LE(zuBreit.zahl(), ueberstand.zahl()) << Fundort(frage) << "\nline: " << zeile.text;
}

} // namespace

TEST_P(Katalogdruck, EveryQuestionTakesFiveLinesAndEveryAnswerTwoAtMost) {
    for (std::size_t erste = 0; erste < Katalogfragen().size(); erste += felder) {
        std::size_t zeilen = 0;
        for (const Element& element : FormularZeichnen(Blatt(erste), g_, seite_.schriftmass())) {
            const auto* zeile = std::get_if<Textstelle>(&element);
            if (zeile != nullptr && zeile->schrift.groesse == 8_pt * g_.Massstab) {
                ZeilePruefen(*zeile, erste);
                ++zeilen;
            }
        }
        EXPECT_GE(zeilen, 2 * std::min(felder, Katalogfragen().size() - erste));
    }
}

INSTANTIATE_TEST_SUITE_P(Papiere, Katalogdruck,
                         testing::Combine(testing::Values(Papier::A4Quer, Papier::A5Quer),
                                          testing::Values(0.0F, 1.0F, 1.5F, 2.0F, 2.5F)),
                         [](const auto& fall) {
                             const long zehntel = std::lround(std::get<1>(fall.param) * 10.0F);
                             return (std::get<0>(fall.param) == Papier::A4Quer ? "A4Gap" : "A5Gap") +
                                    std::to_string(zehntel) + "Tenths";
                         });
