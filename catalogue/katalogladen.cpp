#include "catalogue/katalogladen.h"

#include "catalogue/katalogdatei.h"
#include "catalogue/texte.h"
#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"

namespace {

// Twenty names; a longer file is none of ours and would choke the lists on the screen.
constexpr std::size_t groessteListe = std::size_t{1} << 20U;

std::string Pfad(const Thema& thema, std::string_view datei) {
    return Stand.AppPfad + "\\WISSEN\\" + std::string(thema.ordner) + "\\" + std::string(datei);
}

// The list file at the path; any failure is told with the name.
void ListeLaden(const std::string& pfad, std::string_view name) {
    try {
        UnterthemenlisteLesen(DateiLesen(pfad, groessteListe), Katalog.UnterthemenListe);
    } catch (const Laufzeitfehler&) {
        Meldung(katalogtexte::listeFehlt, {name, Stand.AppPfad});
    }
}

void FragenFehlerMelden(const Thema& thema, std::string_view unterthema, const Laufzeitfehler& fehler) {
    if (fehler.art() == Fehler::DateiZuEnde) {
        return; // a last record cut short is lost without a word: it is meant
    }
    if (fehler.art() == Fehler::DateiNichtGefunden) {
        Meldung(katalogtexte::dateiFehlt, {unterthema, Stand.AppPfad, thema.meldungsordner});
    } else {
        Meldung(katalogtexte::andererFehler, {unterthema});
    }
}

// Questions that were left out, and the line that was too long in the first of them.
struct Weggelassen {
    int anzahl = 0;
    int zeile = 0;
};

void WeggelassenesMelden(const Weggelassen& weg, std::string_view datei) {
    const std::string zeile = std::to_string(weg.zeile);
    if (weg.anzahl == 1) {
        HilfeText(Einsetzen(katalogtexte::frageZuLang, {datei, zeile}));
    } else if (weg.anzahl > 1) {
        HilfeText(Einsetzen(katalogtexte::fragenZuLang, {datei, std::to_string(weg.anzahl), zeile}));
    }
}

} // namespace

void ThemenLaden() {
    try {
        ThemenlisteLesen(DateiLesen(Stand.AppPfad + "\\WISSEN\\WISSEN.TXT", groessteListe),
                         Katalog.ThemenListe);
    } catch (const Laufzeitfehler&) {
        // Told to nobody: the places not reached keep what they held.
    }
}

void UnterthemenLaden(std::string_view thema) {
    const Thema* zeile = ThemaSuchen(thema);
    // A theme without a row has no path, and that is an error like any other.
    ListeLaden(zeile == nullptr ? std::string() : Pfad(*zeile, zeile->listendatei), thema);
}

void HBUnterthemenLaden() {
    ListeLaden(Stand.AppPfad + "\\WISSEN\\HB\\W_HB.TXT", "HB");
}

void FragenLaden(std::string_view thema, std::string_view unterthema, Fragenliste& liste) {
    const Thema* zeile = ThemaSuchen(thema);
    if (zeile == nullptr) {
        return;
    }
    const std::string_view datei = UnterthemaDatei(*zeile, unterthema);
    Weggelassen weg;
    try {
        if (datei.empty()) {
            throw Laufzeitfehler(Fehler::DateinameFalsch);
        }
        FragenLesen(DateiLesen(Pfad(*zeile, datei)), zeile->kommentarzeilen, liste,
                    [&weg](int stelle) { weg.zeile = weg.anzahl++ == 0 ? stelle : weg.zeile; });
    } catch (const Laufzeitfehler& fehler) {
        FragenFehlerMelden(*zeile, unterthema, fehler);
    }
    WeggelassenesMelden(weg, datei);
}
