#include "persistence/rettung.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "persistence/formulardatei.h"
#include "persistence/rettungsname.h"
#include "persistence/texte.h"
#include "persistence/wartezeiger.h"
#include "quizform/fkformular.h"
#include "quizform/formdaten.h"
#include "testform/formdaten.h"
#include "testform/hbformular.h"

#include <algorithm>
#include <tuple>

namespace {

// The stored copies of both kinds of form. Making the bytes merges the window into them, and until the other
// file is read they have to be what they were.
class Ablage {
public:
    Ablage() = default;
    ~Ablage() {
        std::tie(WissenTitel, FrageText, AntwortText, FeldSpezial, FormNr, FormDatum, FormZeit) = quiz_;
        std::tie(HBFrageText, HBAntwortText, HBPunkte, HBFach, HBKopf1, HBKopf2, HBKopf3) = test_;
    }
    Ablage(const Ablage&) = delete;
    Ablage& operator=(const Ablage&) = delete;

    // What was blanked on the screen as a whole stands in the stored copy only, and isn't lost either.
    void BlankesErgaenzen() const {
        Ergaenzen(FrageText, std::get<1>(quiz_));
        Ergaenzen(AntwortText, std::get<2>(quiz_));
        Ergaenzen(FeldSpezial, std::get<3>(quiz_));
        Ergaenzen(HBFrageText, std::get<0>(test_));
        Ergaenzen(HBAntwortText, std::get<1>(test_));
        Ergaenzen(HBPunkte, std::get<2>(test_));
    }

private:
    // An array without any value takes the former ones.
    template <typename Feld>
    static void Ergaenzen(Feld& feld, const Feld& vorher) {
        const typename Feld::value_type leer{};
        if (std::ranges::all_of(feld, [&leer](const auto& wert) { return wert == leer; })) {
            feld = vorher;
        }
    }

    std::tuple<decltype(WissenTitel), decltype(FrageText), decltype(AntwortText), decltype(FeldSpezial),
               std::string, std::string, std::string>
        quiz_{WissenTitel, FrageText, AntwortText, FeldSpezial, FormNr, FormDatum, FormZeit};
    std::tuple<decltype(HBFrageText), decltype(HBAntwortText), decltype(HBPunkte), std::string, std::string,
               std::string, std::string>
        test_{HBFrageText, HBAntwortText, HBPunkte, HBFach, HBKopf1, HBKopf2, HBKopf3};
};

// The open form as a save would write it.
std::string Bytes(std::string_view tag) {
    const Ablage ablage;
    FK_Merken();
    FK_KopfMerken();
    HB_Merken();
    HB_KopfMerken();
    ablage.BlankesErgaenzen();
    return FormularBytes(tag);
}

// The first name under which nothing stands.
std::string FreierName(const std::string& ordner) {
    int nummer = 0;
    std::string name = Rettungsname(nummer);
    while (DateiDa(PfadVerbinden(ordner, name)) || OrdnerDa(PfadVerbinden(ordner, name))) {
        name = Rettungsname(++nummer);
    }
    return name;
}

// Writes the bytes and returns the file's name. Throws Laufzeitfehler.
std::string Ablegen(const std::string& ordner, const std::string& bytes) {
    const Wartezeiger warten;
    if (!OrdnerDa(ordner)) {
        OrdnerAnlegen(ordner);
    }
    std::string name = Rettungsname(0);
    const std::string frei = FreierName(ordner);
    const std::string ziel = PfadVerbinden(ordner, name);
    const bool wirdGelesen = NativerPfad(ziel) == NativerPfad(DateiName);
    if (OrdnerDa(ziel) || (DateiDa(ziel) && wirdGelesen)) {
        name = frei;
    } else if (DateiDa(ziel)) {
        DateiKopieren(ziel, PfadVerbinden(ordner, frei)); // stands whole before the name is used again
    }
    DateiSchreiben(PfadVerbinden(ordner, name), bytes);
    return name;
}

} // namespace

bool UngesichertesRetten(std::string& name) {
    const bool quiz = FKFragenOffen() != nullptr;
    if (FormGeaendert != 1 || (!quiz && HBFragenOffen() == nullptr)) {
        return true;
    }
    FK_EingabeAbschliessen();
    try {
        name = Ablegen(AppPfad + (quiz ? "\\KRANZ" : "\\TEST"), Bytes(quiz ? "FKFragen" : "HBFragen"));
        return true;
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(persistenztexte::ortRettung, fehler);
        return false;
    }
}
