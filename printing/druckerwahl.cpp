#include "core/hauptfenster.h"
#include "dialogs/modal.h"
#include "printing/drucken.h"
#include "printing/drucker.h"

#include <QPrintDialog>
#include <QPrinter>

// The dialog works on a copy: it changes its printer while the user only looks around. It proposes five
// copies each time, and what the user confirms serves.
void DruckerWahl(const std::string& pdfVorschlag) {
    constexpr int kopien = 5;
    std::unique_ptr<QPrinter> drucker = DruckerKopie(pdfVorschlag);
    drucker->setCopyCount(kopien);
    QPrintDialog dialog(drucker.get(), Hauptfenster());
    if (ModalZeigen(dialog) == QDialog::Accepted) {
        DruckerUebernehmen(std::move(drucker));
    }
}
