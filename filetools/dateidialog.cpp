#include "filetools/dateidialog.h"

#include "core/datei.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "filetools/frmDatei.h"

std::optional<std::string> DateidialogZeigen(const Dateiauswahl& auswahl) {
    static std::string letzterOrdner;
    Dateiauswahl mitOrdner = auswahl;
    if (mitOrdner.ordner.empty()) {
        mitOrdner.ordner = OrdnerDa(letzterOrdner) ? letzterOrdner : Stand.AppPfad + "\\KRANZ";
    }
    frmDatei fenster(mitOrdner);
    ModalZeigen(fenster);
    if (auswahl.ordnerMerken) {
        letzterOrdner = fenster.ordner();
    }
    return fenster.gewaehlt();
}
