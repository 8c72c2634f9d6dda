#include "filling/brettfuellung.h"

#include "catalogue/themen.h"
#include "core/pfadname.h"
#include "filling/zuordnung.h"
#include "quizform/feldregeln.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"

#include <algorithm>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

bool IstAufgabe(std::string_view buchstabe) {
    return ArtVon(buchstabe) == Spezialart::Aktion;
}

// A kind that shows its marker has no question, whatever the texts behind it are.
bool ZeigtMarke(std::string_view buchstabe) {
    const auto art = ArtVon(buchstabe);
    return art && !ArtzeileVon(*art).frageMarke.empty();
}

Fuellfeld FeldAus(const Quizformular& form, const Feldsichten& sichten, int n) {
    Fuellfeld feld;
    feld.frage = form.FrageText.at(Stelle(n));
    feld.antwort = form.AntwortText.at(Stelle(n));
    feld.buchstabe = form.FeldSpezial.at(Stelle(n));
    if (!sichten.at(Stelle(n)).frage) {
        feld.lage = Feldlage::Geschlossen;
    } else if (!feld.frage.empty() || !feld.antwort.empty() || ZeigtMarke(feld.buchstabe)) {
        feld.lage = Feldlage::Besetzt;
    } else {
        feld.lage = Feldlage::Leer;
    }
    return feld;
}

// Theme by theme: the one that has a sub-theme of that name, if only one has it.
const Thema* EinzigesThemaMit(std::string_view unterthema) {
    const Thema* fund = nullptr;
    for (const Thema& thema : Themen()) {
        if (!IstFragenthema(thema.name) || UnterthemaDatei(thema, unterthema).empty()) {
            continue;
        }
        if (fund != nullptr) {
            return nullptr;
        }
        fund = &thema;
    }
    return fund;
}

// The questions that a wish allows, each looked at once for all cells of the area.
class Auswahl {
public:
    Auswahl(const Fragenvorrat& vorrat, const Brettwunsch& wunsch, const std::vector<bool>& stehtSchon)
        : vorrat_(vorrat), wunsch_(wunsch), stehtSchon_(stehtSchon) {}

    [[nodiscard]] Frageliste fuer(const Themenwahl& wahl) const {
        Frageliste liste = vorrat_.aus(wahl);
        std::erase_if(liste, [this](Fragennummer nr) {
            return stehtSchon_[nr] || (wunsch_.nurUnbenutzte && vorrat_.benutzt(nr));
        });
        return liste;
    }
    // Of a list those that may stand in a row.
    [[nodiscard]] Frageliste fuerZeile(Frageliste liste, int zeile) const {
        if (wunsch_.punkteWieZeile) {
            std::erase_if(liste, [this, zeile](Fragennummer nr) { return vorrat_.punkte(nr) != zeile; });
        }
        return liste;
    }

private:
    const Fragenvorrat& vorrat_;
    const Brettwunsch& wunsch_;
    const std::vector<bool>& stehtSchon_;
};

} // namespace

Themenwahl WahlAusTitel(std::string_view titel) {
    const std::string name = Getrimmt(titel);
    if (ThemaSuchen(name) != nullptr && IstFragenthema(name)) {
        return {name, ""};
    }
    const Thema* thema = EinzigesThemaMit(name);
    return thema == nullptr ? Themenwahl{} : Themenwahl{std::string(thema->name), name};
}

Fuellauftrag BrettauftragAus(std::shared_ptr<const Fragenvorrat> vorrat, const Quizformular& form,
                             const Spielwerte& spiel, const Brettwunsch& wunsch) {
    const Feldsichten sichten = BrettSichten(spiel);
    const std::vector<bool> stehtSchon = vorrat->wiederholungen(form.FrageText);
    const Auswahl auswahl(*vorrat, wunsch, stehtSchon);
    const Frageliste aufgaben = auswahl.fuer({std::string(aufgabenthema), ""});
    Fuellauftrag auftrag{std::move(vorrat), std::vector<Fuellfeld>(anzahlFelder + 1), false};
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const Frageliste fragen = auswahl.fuer(wunsch.gebiete.at(Stelle(a)));
        for (int r = 1; r <= fragenJeGebiet; ++r) {
            Fuellfeld feld = FeldAus(form, sichten, Feldnummer(a, r));
            if (feld.lage == Feldlage::Leer) {
                feld.kandidaten = auswahl.fuerZeile(IstAufgabe(feld.buchstabe) ? aufgaben : fragen, r);
            }
            auftrag.felder.at(Stelle(Feldnummer(a, r))) = std::move(feld);
        }
    }
    return auftrag;
}

Vorschlag Brettvorschlag(const Fuellauftrag& auftrag, std::uint64_t saat) {
    std::vector<std::size_t> leere;
    std::vector<Frageliste> kandidaten;
    for (std::size_t n = 1; n < auftrag.felder.size(); ++n) {
        if (auftrag.felder[n].lage == Feldlage::Leer) {
            leere.push_back(n);
            kandidaten.push_back(auftrag.felder[n].kandidaten);
        }
    }
    Wuerfel wuerfel(saat);
    const auto gewaehlt = Zuordnen(
        std::move(kandidaten),
        [&auftrag](Fragennummer a, Fragennummer b) { return auftrag.vorrat->wiederholt(a, b); }, wuerfel);
    Vorschlag vorschlag(auftrag.felder.size());
    for (std::size_t i = 0; i < leere.size(); ++i) {
        vorschlag[leere[i]] = gewaehlt[i];
    }
    return vorschlag;
}
