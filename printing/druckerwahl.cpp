#include "printing/druckerwahl.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/plattform.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"
#include "printing/blattplatz.h"
#include "printing/drucker.h"
#include "printing/texte.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace {

// The toolkit's dialog believes that it prints. Where the system brings its own, it has no such button.
void AlsEinstellungBenennen(QPrintDialog& dialog) {
    dialog.setWindowTitle(Anzeige(drucktexte::einrichten));
    for (const auto* reihe : dialog.findChildren<QDialogButtonBox*>()) {
        if (QPushButton* taste = reihe->button(QDialogButtonBox::Ok); taste != nullptr) {
            taste->setText(Anzeige(drucktexte::uebernehmen));
        }
    }
}

} // namespace

// The dialog works on a copy: it changes its printer while the user only looks around. It proposes five
// copies each time, and what the user confirms serves.
void DruckerWahl(Formart art, const std::string& datei) {
    constexpr int kopien = 5;
    std::unique_ptr<QPrinter> drucker = DruckerKopie(Blattplatz(art, datei));
    if (plattform::systemdruckdialog && drucker->outputFormat() != QPrinter::NativeFormat) {
        Meldung(drucktexte::ohneDrucker); // the dialog wouldn't come
        return;
    }
    drucker->setCopyCount(kopien);
    QPrintDialog dialog(drucker.get(), Hauptfenster());
    AlsEinstellungBenennen(dialog);
    if (ModalZeigen(dialog) == QDialog::Accepted) {
        DruckerUebernehmen(std::move(drucker));
    }
}
