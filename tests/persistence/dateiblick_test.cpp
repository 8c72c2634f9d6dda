#include "persistence/dateiblick.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Art = Dateistand::Art;

TEST(Dateiblick, TellsContentsApartAndNothingElse) {
    const Probeordner ordner;
    const std::string a = ordner.eigen("a.fkr");
    DateiSchreiben(a, "eins");
    EXPECT_EQ(StandAuf(a), StandVon("eins"));
    EXPECT_EQ(StandAuf(a).groesse, 4U);
    DateiSchreiben(a, "zwei");
    EXPECT_EQ(StandAuf(a), StandVon("zwei"));
    EXPECT_NE(StandAuf(a), StandVon("eins"));
    DateiSchreiben(ordner.eigen("b.fkr"), "zwei");
    EXPECT_EQ(StandAuf(ordner.eigen("b.fkr")), StandAuf(a)); // neither name nor time counts
    EXPECT_NE(StandVon(""), Dateistand());
}

TEST(Dateiblick, SeesWhatIsNoFile) {
    const Probeordner ordner;
    EXPECT_EQ(StandAuf(ordner.eigen("nichtda.fkr")).art, Art::Nichts);
    EXPECT_EQ(StandAuf(ordner.eigen("nicht/da.fkr")).art, Art::Nichts);
    EXPECT_EQ(StandAuf(ordner.eigen("")).art, Art::KeineDatei);
    EXPECT_EQ(StandAuf("").art, Art::KeineDatei);
    EXPECT_EQ(StandAuf(ordner.eigen(std::string(300, 'n') + ".fkr")).art, Art::KeineDatei);
    EXPECT_EQ(StandAuf("\\dev\\null").art, Art::KeineDatei);
    std::filesystem::create_symlink("kreis.fkr", ordner.nativ("kreis.fkr"));
    EXPECT_EQ(StandAuf(ordner.eigen("kreis.fkr")).art, Art::KeineDatei);
}

TEST(Dateiblick, SeesThatAFileCanNotBeRead) {
    const Probeordner ordner;
    const std::string a = ordner.eigen("a.fkr");
    DateiSchreiben(a, "geheim");
    std::filesystem::permissions(ordner.nativ("a.fkr"), std::filesystem::perms::none);
    EXPECT_EQ(ImKind(OhneRechte,
                     [&] {
                         if (StandAuf(a).art == Art::Unlesbar) {
                             throw Laufzeitfehler(Fehler::ZugriffVerweigert);
                         }
                     }),
              70);
    DateiSchreiben(ordner.eigen("b.fkr"), "");
    std::filesystem::resize_file(ordner.nativ("b.fkr"), groessteDatei + 1); // takes no room on the disk
    EXPECT_EQ(StandAuf(ordner.eigen("b.fkr")).art, Art::Unlesbar);
}

TEST(Dateiblick, AWriteIsKnownFromThenOn) {
    const Probeordner ordner;
    const std::string a = ordner.eigen("a.fkr");
    DateiSchreiben(a, "fremd");
    Dateikenntnis kenntnis(StandVon("alt"));
    EXPECT_EQ(kenntnis.Urteil(StandAuf(a)), Fremdes::Geaendert);
    BekanntSchreiben(a, "neu", kenntnis);
    EXPECT_EQ(DateiLesen(a), "neu");
    EXPECT_EQ(kenntnis, Dateikenntnis(StandVon("neu")));
}

TEST(Dateiblick, AWriteThatFailsForgetsNothing) {
    const Probeordner ordner;
    Dateikenntnis kenntnis(StandVon("alt"));
    EXPECT_THROW(BekanntSchreiben(ordner.eigen("nicht/da.fkr"), "neu", kenntnis), Laufzeitfehler);
    EXPECT_EQ(kenntnis.Urteil(StandVon("alt")), Fremdes::Keines);
    EXPECT_EQ(kenntnis.Urteil(StandVon("neu")), Fremdes::Keines);
    EXPECT_EQ(kenntnis.Urteil(StandVon("fremd")), Fremdes::Geaendert);
}

} // namespace
