#include "catalogue/muell.h"

#include "catalogue/auswahltexte.h"
#include "catalogue/frmAuswahl.h"
#include "core/hauptfenster.h"
#include "core/ziehen.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"

#include <QPointer>

void MuellAblegen(frmAuswahl& fenster) {
    if (DragHerkunft == "Auswahl") {
        Meldung(auswahltexte::muellAuswahl);
        return;
    }
    if (DragHerkunft != "FKFragen" && DragHerkunft != "HBFragen") {
        return;
    }
    const QPointer<frmAuswahl> offen(&fenster);
    NachrichtAntwort = antwortAbbrechen; // the frame's close box must not throw anything away
    if (Nachricht(auswahltexte::muellFrage) == antwortAbbrechen) {
        return;
    }
    if (offen != nullptr) {
        offen->BlattFallenLassen();
    }
    if (DragHerkunft == "FKFragen") {
        // A question of the clipboard panel bears the number 0 and so empties no cell.
        FK_FeldLeeren(DragFeld);
        FK_Merken();
        FK_FelderFaerben();
    } else {
        HB_FeldLeeren(DragFeld);
        HB_Merken();
    }
    if (!FormTyp.empty()) {
        FormStatusSetzen(1); // without a form there is nothing that could be saved
    }
}
