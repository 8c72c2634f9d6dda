// Printing the quiz form as a command: the checks and the question before it, the value on its way to the
// paper.
#include "core/hauptfenster.h"
#include "core/laenge.h"
#include "dialogs/meldung.h"
#include "printing/blattplatz.h"
#include "printing/druckauftrag.h"
#include "printing/druckdaten.h"
#include "printing/drucken.h"
#include "printing/druckseite.h"
#include "printing/texte.h"

namespace {

// False when the user cancelled. A question closed by its frame counts as answered the way the one before it
// was, and that is meant.
bool Gefragt(bool hochkant) {
    static Antwort zuletzt = Antwort::OK;
    zuletzt = Nachricht(hochkant ? drucktexte::frageHoch : drucktexte::frageQuer, {}, zuletzt);
    if (zuletzt == Antwort::Abbrechen) {
        Meldung(hochkant ? drucktexte::abbruchHoch : drucktexte::abbruchQuer);
        return false;
    }
    return true;
}

} // namespace

void FormularDrucken(const Quizformular& form, const Spielwerte& spiel, const std::string& datei,
                     bool blanko) {
    const std::optional<Papier> papier = PapierAus(spiel.Papierformat);
    if (!papier) {
        Meldung(drucktexte::ohnePapier);
        return;
    }
    AuftragAusfuehren([&]() -> std::string {
        Druckseite seite(*papier == Papier::A5Quer ? QPageLayout::Portrait : QPageLayout::Landscape,
                         Blattplatz(Formart::Quiz, datei), Blatttitel(Formart::Quiz, datei));
        if (!Gefragt(seite.hochkant())) {
            return {};
        }
        const Druckgeometrie geometrie = GeometrieRechnen(*papier, Millimeter(spiel.Zwischenabstand),
                                                          seite.masse().links, seite.masse().oben);
        FortschrittSchritt(2);
        const Zeichnung zeichnung =
            FormularZeichnen(DruckdatenAus(form, spiel, blanko), geometrie, seite.schriftmass());
        FortschrittSchritt(2);
        return seite.Drucken(zeichnung, [] { FortschrittSchritt(1); });
    });
}
