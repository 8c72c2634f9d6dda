#include "printing/druckauftrag.h"

#include "core/hauptfenster.h"
#include "core/laufzeitfehler.h"
#include "dialogs/meldung.h"
#include "printing/blattplatz.h"
#include "printing/texte.h"

#include <new>

namespace {

// The progress bar, from start to end whatever way the work is left.
class Fortschrittsanzeige {
public:
    Fortschrittsanzeige() { FortschrittStart(drucktexte::status); }
    ~Fortschrittsanzeige() { FortschrittEnde(); }
    Fortschrittsanzeige(const Fortschrittsanzeige&) = delete;
    Fortschrittsanzeige& operator=(const Fortschrittsanzeige&) = delete;
};

std::string MitFortschritt(const std::function<std::string()>& arbeit) {
    const Fortschrittsanzeige fortschritt;
    return arbeit();
}

} // namespace

void AuftragAusfuehren(const std::function<std::string()>& arbeit) {
    try {
        const std::string pdf = MitFortschritt(arbeit);
        if (!pdf.empty()) {
            BlattMerken(pdf);
            HilfeDatei(drucktexte::alsPdf, pdf);
        }
    } catch (const Laufzeitfehler& fehler) {
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, fehler.text());
    } catch (const std::bad_alloc&) {
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, FehlerText(Fehler::SpeicherVoll));
    }
}
