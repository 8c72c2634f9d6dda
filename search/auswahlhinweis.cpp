// Where a question of the selection dialog is used, in the status line; the dialog itself stays as it is.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "search/fragendienst.h"
#include "search/suchen.h"

#include <string>
#include <utility>

namespace {

// Picked last, and not told about yet.
std::string gewaehlt;

void Erzaehlen() {
    const std::string frage = std::exchange(gewaehlt, {});
    if (frage.empty() || frage != AuswahlFrage()) {
        return;
    }
    if (const std::string text = Fragen().Benutzttext(frage); !text.empty()) {
        HilfeText(std::string(1, ' ').append(text));
    }
}

} // namespace

void AuswahlhinweisEinrichten() {
    static QMetaObject::Connection verbindung;
    QObject::disconnect(verbindung); // of a main window before
    verbindung = QObject::connect(&Fragen(), &Fragendienst::geprueft, &Fragen(), Erzaehlen);
    BeiAuswahl([](const std::string& frage) {
        gewaehlt = frage;
        Fragen().Pruefen(Fragendienst::Umfang::NurFormulare); // forms may have been saved meanwhile
    });
}
