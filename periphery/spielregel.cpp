#include "periphery/spielregel.h"

#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "periphery/dateivorhanden.h"
#include "periphery/frmBrowser.h"
#include "periphery/texte.h"

std::string SpielregelPfad() {
    return Stand.AppPfad + std::string(periphertexte::regelDatei);
}

std::string SpielregelAdresse() {
    return "file://" + SpielregelPfad();
}

void SpielregelZeigen() {
    const std::string pfad = SpielregelPfad();
    if (!DateiVorhanden(pfad)) {
        Meldung(periphertexte::regelFehlt, {pfad});
        return;
    }
    BrowserZeigen().Navigieren(SpielregelAdresse());
}
