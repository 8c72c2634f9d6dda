#include "core/hauptfenster.h"
#include "core/zustand.h"
#include "dialogs/modal.h"
#include "printing/drucken.h"
#include "printing/drucker.h"
#include "printing/pdfpfad.h"

#include <QPrintDialog>
#include <QPrinter>

// The dialog works on a copy: it changes its printer while the user only looks around. It proposes five
// copies each time, and what the user confirms serves.
void DruckerWahl() {
    constexpr int kopien = 5;
    std::unique_ptr<QPrinter> drucker = DruckerKopie(FormTyp == "Test" ? PdfPfadHB() : PdfPfadFK());
    drucker->setCopyCount(kopien);
    QPrintDialog dialog(drucker.get(), Hauptfenster());
    if (ModalZeigen(dialog) == QDialog::Accepted) {
        DruckerUebernehmen(std::move(drucker));
    }
}
