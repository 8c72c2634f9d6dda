#include "filetools/dateidialog.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "filetools/frmDatei.h"

namespace {

std::string ordnerDerWahl;

} // namespace

std::optional<std::string> DateidialogZeigen(const Dateiauswahl& auswahl) {
    static std::string letzterOrdner;
    static QString letzterNativ;
    Dateiauswahl mitOrdner = auswahl;
    if (mitOrdner.ordner.empty()) {
        if (!letzterOrdner.empty()) {
            OrdnerMerken(letzterOrdner, letzterNativ); // a form's path may have taken its place
        }
        mitOrdner.ordner = OrdnerDa(letzterOrdner) ? letzterOrdner : Stand.AppPfad + "\\KRANZ";
    }
    frmDatei fenster(mitOrdner);
    ModalZeigen(fenster);
    if (auswahl.ordnerMerken) {
        letzterOrdner = fenster.ordner();
        letzterNativ = NativerPfad(letzterOrdner);
        if (!fenster.gewaehlt().value_or("").empty()) {
            ordnerDerWahl = letzterOrdner;
        }
    }
    return fenster.gewaehlt();
}

const std::string& DateidialogOrdner() {
    return ordnerDerWahl;
}
