// The order in which the elements of the quiz form's page are drawn: as a person reads it, and so that what
// runs out of its place is covered as if each pass went over all cells before the next one began.
#include "printing/seitenlayout.h"
#include "printing/zeichnungmalen.h"
#include "tests/printing/probeblaetter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace {

constexpr int punkteJeMeter = 4724; // 120 to the inch

QImage LeeresBlatt() {
    QImage blatt(1404, 993, QImage::Format_RGB32); // A4, lying
    blatt.setDotsPerMeterX(punkteJeMeter);
    blatt.setDotsPerMeterY(punkteJeMeter);
    blatt.fill(Qt::white);
    return blatt;
}

QImage Gemalt(const Zeichnung& zeichnung) {
    QImage blatt = LeeresBlatt();
    const Druckschriften schriften(blatt);
    QPainter maler(&blatt);
    ZeichnungMalen(maler, zeichnung, schriften, 0_mm, 0_mm);
    return blatt;
}

// The soft edges of two letters one over the other are rounded differently in either order: by one level in
// 256 each. What is covered differs by far more.
bool Gleich(const QImage& a, const QImage& b) {
    constexpr int gerundet = 8;
    bool gleich = a.size() == b.size();
    for (int y = 0; y < a.height() && gleich; ++y) {
        for (int x = 0; x < a.width() && gleich; ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            gleich = std::abs(qRed(p) - qRed(q)) <= gerundet && std::abs(qGreen(p) - qGreen(q)) <= gerundet &&
                     std::abs(qBlue(p) - qBlue(q)) <= gerundet;
        }
    }
    return gleich;
}

// The passes: the head; frames and titles of the areas; of each cell frames, question or word; answers;
// numbers. An element belongs where the last frame or number before it stands, or where it stands itself.
class Durchgaenge {
public:
    Durchgaenge(const Druckgeometrie& g, const Schriftmass& mass) : g_(g), mass_(mass) {}

    Zeichnung Umsortiert(const Zeichnung& zeichnung) {
        std::vector<std::tuple<int, int, Element>> folge;
        for (const Element& element : zeichnung) {
            const int durchgang = std::visit([this](const auto& teil) { return Durchgang(teil); }, element);
            folge.emplace_back(durchgang, durchgang == 0 ? 0 : platz_, element);
        }
        std::ranges::stable_sort(folge, {}, [](const auto& eintrag) {
            return std::pair(std::get<0>(eintrag), std::get<1>(eintrag));
        });
        Zeichnung ergebnis;
        for (auto& [durchgang, platz, element] : folge) {
            ergebnis.push_back(std::move(element));
        }
        return ergebnis;
    }

private:
    void Merken(Millimeter x, Millimeter y) {
        const int spalte = static_cast<int>((x - g_.RandLinks) / g_.SpaltenRaster);
        platz_ =
            y < g_.ZeilenOben ? spalte : 5 * spalte + static_cast<int>((y - g_.ZeilenOben) / g_.ZeilenRaster);
    }

    int Durchgang(const Rechteck& r) {
        if (r.hoehe == g_.KopfHoehe) {
            return 0;
        }
        const Millimeter mitte = r.y + r.hoehe / 2.0F;
        Merken(r.x + r.breite / 2.0F, mitte);
        return mitte < g_.ZeilenOben ? 1 : 2;
    }
    static int Durchgang(const Strich& /*teiler*/) { return 2; }
    int Durchgang(const Textstelle& t) {
        const auto gross = [&](Schriftpunkte punkte) { return t.schrift.groesse == punkte * g_.Massstab; };
        const Millimeter mitte = t.x + mass_.Breite(t.text, t.schrift) / 2.0F;
        if (gross(8_pt)) {
            return t.schrift.fett ? 3 : 2;
        }
        if (gross(14_pt) || gross(12_pt) || gross(18_pt)) {
            Merken(mitte, t.y + mass_.Hoehe(t.schrift) / 2.0F);
            return gross(14_pt) ? 1 : gross(18_pt) ? 2 : 4;
        }
        return 0;
    }
    template <typename Anderes>
    static int Durchgang(const Anderes& /*element*/) {
        ADD_FAILURE() << "something new on the page";
        return 5;
    }

    const Druckgeometrie& g_;
    const Schriftmass& mass_;
    int platz_ = 0;
};

struct Blatt {
    Papier papier;
    float abstand;
};

class Deckung : public testing::TestWithParam<Blatt> {
protected:
    [[nodiscard]] Druckgeometrie Geometrie() const {
        return GeometrieRechnen(GetParam().papier, Millimeter(GetParam().abstand), 0_mm, 0_mm);
    }
    QImage geraet = LeeresBlatt();
    Druckschriften schriften{geraet};
};

std::string Fallname(const testing::TestParamInfo<Blatt>& fall) {
    return std::string(fall.param.papier == Papier::A4Quer ? "A4" : "A5") + "At" +
           std::to_string(static_cast<int>(fall.param.abstand * 10.0F)) + "TenthsOfAMillimetre";
}

bool IstFrage(const Element& element, const Druckgeometrie& g) {
    const auto* text = std::get_if<Textstelle>(&element);
    return text != nullptr && text->schrift == Druckschrift{Schriftart::Arial, 8_pt * g.Massstab, false};
}

} // namespace

TEST_P(Deckung, IsAsIfThePassesWentOverAllCellsOneAfterTheOther) {
    const Druckgeometrie g = Geometrie();
    int verdeckt = 0;
    for (unsigned nummer = 0; nummer < 6; ++nummer) {
        FKDruckdaten daten = nummer == 0 ? VollesQuizblatt() : Ueberquellendes(nummer);
        daten.rahmenFarbig = nummer % 2 == 1;
        const Zeichnung gelesen = FormularZeichnen(daten, g, schriften);
        const Zeichnung gezeichnet = Durchgaenge(g, schriften).Umsortiert(gelesen);
        ASSERT_EQ(gezeichnet.size(), gelesen.size());
        const QImage bild = Gemalt(gelesen);
        EXPECT_TRUE(Gleich(bild, Gemalt(gezeichnet))) << "form " << nummer;
        Zeichnung obenauf = gelesen;
        std::stable_partition(obenauf.begin(), obenauf.end(),
                              [&](const Element& e) { return !IstFrage(e, g); });
        verdeckt += Gleich(bild, Gemalt(obenauf)) ? 0 : 1;
    }
    EXPECT_EQ(verdeckt, 5) << "the forms with long texts have nothing that is covered";
}

INSTANTIATE_TEST_SUITE_P(PapierUndAbstand, Deckung,
                         testing::Values(Blatt{Papier::A4Quer, 0.0F}, Blatt{Papier::A4Quer, 1.0F},
                                         Blatt{Papier::A4Quer, 1.5F}, Blatt{Papier::A4Quer, 2.0F},
                                         Blatt{Papier::A4Quer, 2.5F}, Blatt{Papier::A5Quer, 0.0F},
                                         Blatt{Papier::A5Quer, 1.0F}, Blatt{Papier::A5Quer, 1.5F},
                                         Blatt{Papier::A5Quer, 2.0F}, Blatt{Papier::A5Quer, 2.5F}),
                         Fallname);
