#include "filling/testfuellung.h"

#include "catalogue/themen.h"
#include "core/pfadname.h"
#include "filling/punktziel.h"
#include "testform/punkte.h"
#include "testform/texte.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr std::string_view testthema = "Häuptlingsbuch";
// Of one worth no test can use more than its ten rows; some more leave room for those that repeat others.
constexpr int jePunktzahl = 24;

Fuellfeld FeldAus(const Testformular& form, std::size_t i) {
    Fuellfeld feld;
    feld.frage = form.HBFrageText.at(i);
    feld.antwort = form.HBAntwortText.at(i);
    feld.punkte = form.HBPunkte.at(i);
    const bool frei = feld.frage.empty() || feld.frage == hbtexte::platzhalter;
    feld.lage = frei && feld.antwort.empty() ? Feldlage::Leer : Feldlage::Besetzt;
    return feld;
}

Frageliste Kandidaten(const Fragenvorrat& vorrat, const Testformular& form, const Testwunsch& wunsch) {
    const std::vector<bool> stehtSchon = vorrat.wiederholungen(form.HBFrageText);
    Frageliste liste;
    for (const Themenwahl& wahl : wunsch.unterthemen) {
        for (const Fragennummer nr : vorrat.aus(wahl)) {
            const int punkte = vorrat.punkte(nr);
            if (punkte >= 1 && punkte <= hoechstePunkte && !stehtSchon[nr] &&
                !(wunsch.nurUnbenutzte && vorrat.benutzt(nr))) {
                liste.push_back(nr);
            }
        }
    }
    std::ranges::sort(liste);
    liste.erase(std::unique(liste.begin(), liste.end()), liste.end());
    return liste;
}

// A choice of the questions that is enough for any total, in random order.
Frageliste Auslese(const Fuellauftrag& auftrag, Frageliste fragen, Wuerfel& wuerfel) {
    std::array<int, hoechstePunkte + 1> vergeben{};
    wuerfel.Mischen(fragen);
    std::erase_if(fragen, [&](Fragennummer nr) {
        return ++vergeben.at(static_cast<std::size_t>(auftrag.vorrat->punkte(nr))) > jePunktzahl;
    });
    return fragen;
}

// Questions that repeat each other, also by way of others, stand in one group.
std::vector<Stueckgruppe> Gruppiert(const Fragenvorrat& vorrat, const Frageliste& fragen) {
    std::vector<Stueckgruppe> gruppen;
    for (const Fragennummer nr : fragen) {
        Stueckgruppe neue{{nr, vorrat.punkte(nr)}};
        std::erase_if(gruppen, [&](const Stueckgruppe& gruppe) {
            const bool gleiche = std::ranges::any_of(gruppe, [&](const Punktstueck& stueck) {
                return vorrat.wiederholt(static_cast<Fragennummer>(stueck.nr), nr);
            });
            if (gleiche) {
                neue.insert(neue.end(), gruppe.begin(), gruppe.end());
            }
            return gleiche;
        });
        gruppen.push_back(std::move(neue));
    }
    return gruppen;
}

std::vector<std::size_t> LeereZeilen(const Fuellauftrag& auftrag) {
    std::vector<std::size_t> zeilen;
    for (std::size_t i = 1; i < auftrag.felder.size(); ++i) {
        if (auftrag.felder[i].lage == Feldlage::Leer) {
            zeilen.push_back(i);
        }
    }
    return zeilen;
}

// Points that stay on the form when its first empty rows get questions.
int Bleibende(const Fuellauftrag& auftrag, const std::vector<std::size_t>& zeilen, int gefuellte) {
    Vorschlag leer(auftrag.felder.size());
    int punkte = Gesamtpunkte(auftrag, leer);
    for (int i = 0; i < gefuellte; ++i) {
        punkte -= auftrag.felder[zeilen.at(static_cast<std::size_t>(i))].punkte;
    }
    return punkte;
}

struct Zug {
    int anzahl = 0;
    int punkte = 0; // of the questions drawn
};

// The most rows whose total comes nearest.
Zug NaechsterZug(const Punktziel& wege, const Fuellauftrag& auftrag, const std::vector<std::size_t>& zeilen,
                 int ziel) {
    Zug bester;
    std::optional<int> abstand;
    for (int anzahl = wege.hoechstens(); anzahl >= 1; --anzahl) {
        const int bleibend = Bleibende(auftrag, zeilen, anzahl);
        for (int punkte = 0; punkte <= wege.hoechstePunkte(); ++punkte) {
            const int dieser = std::abs(bleibend + punkte - ziel);
            if (wege.moeglich(anzahl, punkte) && (!abstand || dieser < *abstand)) {
                abstand = dieser;
                bester = {anzahl, punkte};
            }
        }
    }
    return bester;
}

Zug BeliebigerZug(const Punktziel& wege, Wuerfel& wuerfel) {
    for (int anzahl = wege.hoechstens(); anzahl >= 1; --anzahl) {
        if (const auto punkte = wege.irgendwelche(anzahl, wuerfel)) {
            return {anzahl, *punkte};
        }
    }
    return {};
}

} // namespace

std::vector<Themenwahl> WahlAusFach(std::string_view fach) {
    const std::string name = Getrimmt(fach);
    std::vector<Themenwahl> wahl;
    const Thema* thema = ThemaSuchen(testthema);
    for (const Unterthema& unter : thema->unterthemen) {
        wahl.push_back({std::string(testthema), std::string(unter.name)});
    }
    const auto fund = std::ranges::find(wahl, name, &Themenwahl::unterthema);
    return fund == wahl.end() ? wahl : std::vector<Themenwahl>{*fund};
}

Fuellauftrag TestauftragAus(std::shared_ptr<const Fragenvorrat> vorrat, const Testformular& form,
                            const Testwunsch& wunsch) {
    const Frageliste kandidaten = Kandidaten(*vorrat, form, wunsch);
    Fuellauftrag auftrag{std::move(vorrat), std::vector<Fuellfeld>(anzahlTestfragen + 1), true};
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        auftrag.felder[i] = FeldAus(form, i);
        if (auftrag.felder[i].lage == Feldlage::Leer) {
            auftrag.felder[i].kandidaten = kandidaten;
        }
    }
    return auftrag;
}

int Gesamtpunkte(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) {
    int summe = 0;
    for (std::size_t i = 1; i < auftrag.felder.size(); ++i) {
        const bool neu = i < vorschlag.size() && vorschlag[i];
        summe += neu ? auftrag.vorrat->punkte(*vorschlag[i]) : auftrag.felder[i].punkte;
    }
    return summe;
}

Vorschlag Testvorschlag(const Fuellauftrag& auftrag, std::optional<int> zielpunkte, std::uint64_t saat) {
    Vorschlag vorschlag(auftrag.felder.size());
    const std::vector<std::size_t> zeilen = LeereZeilen(auftrag);
    if (zeilen.empty()) {
        return vorschlag;
    }
    Wuerfel wuerfel(saat);
    const Frageliste fragen = Auslese(auftrag, auftrag.felder[zeilen.front()].kandidaten, wuerfel);
    const Punktziel wege(Gruppiert(*auftrag.vorrat, fragen), static_cast<int>(zeilen.size()));
    const Zug zug =
        zielpunkte ? NaechsterZug(wege, auftrag, zeilen, *zielpunkte) : BeliebigerZug(wege, wuerfel);
    const std::vector<std::size_t> gezogen = wege.ziehen(zug.anzahl, zug.punkte, wuerfel);
    for (std::size_t i = 0; i < gezogen.size(); ++i) {
        vorschlag[zeilen[i]] = static_cast<Fragennummer>(gezogen[i]);
    }
    return vorschlag;
}
