#include "catalogue/muell.h"

#include "catalogue/auswahltexte.h"
#include "catalogue/frmAuswahl.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/schritt.h"
#include "dialogs/meldung.h"

#include <QPointer>

void MuellAblegen(frmAuswahl& fenster, const Ziehwert& wert) {
    if (wert.herkunft == Formart::Keine) {
        Meldung(auswahltexte::muellAuswahl);
        return;
    }
    const Schritt schritt("Frage wegwerfen");
    const QPointer<frmAuswahl> offen(&fenster);
    // The frame's close box must not throw anything away.
    if (!Bestaetigt(auswahltexte::muellFrage)) {
        return;
    }
    if (offen != nullptr) {
        offen->BlattFallenLassen();
    }
    if (Formularfenster* form = OffenesFormular(wert.herkunft); form != nullptr) {
        // A question of the clipboard panel bears the number 0 and so empties no cell.
        form->FeldLeeren(wert.feld);
        form->Merken();
        form->Faerben();
    }
    if (Stand.FormTyp != Formart::Keine) {
        FormStatusSetzen(true); // without a form there is nothing that could be saved
    }
}
