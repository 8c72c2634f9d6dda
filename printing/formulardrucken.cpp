// Printing the quiz form as a command: the checks and the question before it, the values of form and settings
// on their way to the layout, and what the user is told afterwards.
#include "core/hauptfenster.h"
#include "core/laufzeitfehler.h"
#include "core/pfadname.h"
#include "dialogs/meldung.h"
#include "printing/drucken.h"
#include "printing/druckseite.h"
#include "printing/pdfpfad.h"
#include "printing/seitenlayout.h"
#include "printing/texte.h"
#include "quizform/fkformular.h"
#include "quizform/formdaten.h"
#include "settings/einstellungen.h"

#include <new>
#include <tuple>

namespace {

// Puts the stored copy of the form back when it goes: the print merges the window into it, and what was
// blanked on the screen must still come back afterwards.
class Ablage {
public:
    Ablage() = default;
    ~Ablage() {
        std::tie(WissenTitel, FrageText, AntwortText, FeldSpezial, FormNr, FormDatum, FormZeit) = werte_;
    }
    Ablage(const Ablage&) = delete;
    Ablage& operator=(const Ablage&) = delete;

private:
    std::tuple<decltype(WissenTitel), decltype(FrageText), decltype(AntwortText), decltype(FeldSpezial),
               std::string, std::string, std::string>
        werte_{WissenTitel, FrageText, AntwortText, FeldSpezial, FormNr, FormDatum, FormZeit};
};

// The progress bar, from start to end whatever way the routine is left.
class Fortschritt {
public:
    Fortschritt() { FortschrittStart(drucktexte::status); }
    ~Fortschritt() { FortschrittEnde(); }
    Fortschritt(const Fortschritt&) = delete;
    Fortschritt& operator=(const Fortschritt&) = delete;
};

// The merged form and the settings as they stand.
FKDruckdaten DatenHolen() {
    FKDruckdaten daten;
    daten.datum = FormDatum;
    daten.zeit = FormZeit;
    daten.nummer = FormNr;
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const auto i = static_cast<std::size_t>(a);
        daten.gebiete[i] = {WissenTitel[i], FK_GebietBenutzbar(a)};
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto i = static_cast<std::size_t>(n);
        daten.felder[i] = {FrageText[i], AntwortText[i], FeldSpezial[i], FK_FrageSichtbar(n),
                           FK_AntwortSichtbar(n)};
    }
    daten.punkteA = PunkteA;
    daten.punkteE = PunkteE;
    daten.punkteG = PunkteG;
    daten.punkteJ = PunkteJ;
    daten.punkteR = PunkteR;
    daten.titelGrau = OptionTitel == 1;
    daten.gebieteGrau = OptionWissen == 1;
    daten.spezialFarbig = OptionJoker == 1;
    daten.rahmenFarbig = OptionRahmen == 1;
    daten.blanko = BlankoDruck == 1;
    return daten;
}

std::string Auftragstitel() {
    return FKDateiName.empty() ? std::string(drucktexte::kastentitel) : NurDateiname(FKDateiName);
}

// False when the user cancelled.
bool Gefragt(bool hochkant) {
    if (Nachricht(hochkant ? drucktexte::frageHoch : drucktexte::frageQuer) == antwortAbbrechen) {
        Meldung(hochkant ? drucktexte::abbruchHoch : drucktexte::abbruchQuer);
        return false;
    }
    return true;
}

// Returns the path of the PDF file, "" for a printer and after a cancelled question.
std::string Ablauf(Papier papier) {
    const Fortschritt fortschritt;
    Druckseite seite(papier == Papier::A5Quer ? QPageLayout::Portrait : QPageLayout::Landscape, PdfPfadFK(),
                     Auftragstitel());
    if (!Gefragt(seite.hochkant())) {
        return {};
    }
    const Ablage ablage;
    FK_Merken();
    FK_KopfMerken();
    const Druckgeometrie geometrie =
        GeometrieRechnen(papier, Zwischenabstand, seite.masse().links, seite.masse().oben);
    FortschrittSchritt(2);
    const Zeichnung zeichnung = FormularZeichnen(DatenHolen(), geometrie, seite.schriftmass());
    FortschrittSchritt(2);
    return seite.Drucken(zeichnung, [] { FortschrittSchritt(1); });
}

} // namespace

void FormularDrucken() {
    const std::optional<Papier> papier = PapierAus(Papierformat);
    if (!papier) {
        Meldung(drucktexte::ohnePapier);
        return;
    }
    try {
        const std::string pdf = Ablauf(*papier);
        if (!pdf.empty()) {
            HilfeText(Einsetzen(drucktexte::alsPdf, {pdf}));
        }
    } catch (const Laufzeitfehler& fehler) {
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, fehler.text());
    } catch (const std::bad_alloc&) {
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, FehlerText(Fehler::SpeicherVoll));
    }
}
