#include "filetools/dateidialog.h"

#include "core/datei.h"
#include "core/zustand.h"
#include "dialogs/modal.h"
#include "filetools/frmDatei.h"

void DateidialogZeigen(const Dateiauswahl& auswahl) {
    static std::string letzterOrdner;
    Dateiauswahl mitOrdner = auswahl;
    if (mitOrdner.ordner.empty()) {
        mitOrdner.ordner = OrdnerDa(letzterOrdner) ? letzterOrdner : AppPfad + "\\KRANZ";
    }
    DateiAbbruch = 0;
    frmDatei fenster(mitOrdner);
    ModalZeigen(fenster);
    if (auswahl.ordnerMerken) {
        letzterOrdner = fenster.ordner();
    }
}
