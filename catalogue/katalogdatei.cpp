#include "catalogue/katalogdatei.h"

#include "core/cp1252.h"
#include "persistence/wertgrammatik.h"

namespace {

std::string_view Wertzeile(WertLeser& leser, bool kommentarzeilen) {
    std::string_view zeile = leser.Zeile();
    while (kommentarzeilen && zeile.substr(0, 1) == "'") {
        zeile = leser.Zeile();
    }
    return zeile;
}

} // namespace

void ThemenlisteLesen(std::string_view bytes, Namensliste& liste) {
    WertLeser leser(bytes);
    leser.Zeile();
    for (std::size_t i = 1; i < liste.size(); ++i) {
        liste[i] = AusCp1252(leser.Zeile());
    }
}

void UnterthemenlisteLesen(std::string_view bytes, Namensliste& liste) {
    WertLeser leser(bytes);
    leser.Token();
    for (std::size_t i = 1; i < liste.size(); ++i) {
        liste[i] = leser.Text();
    }
}

void FragenLesen(std::string_view bytes, bool kommentarzeilen, Fragenliste& liste) {
    WertLeser leser(bytes);
    leser.Zeile();
    // The end of the file is tested only ahead of a record.
    while (!leser.AmEnde()) {
        std::array<std::string_view, 4> satz;
        for (std::string_view& zeile : satz) {
            zeile = Wertzeile(leser, kommentarzeilen);
        }
        AusCp1252Anhaengen(liste.nr.emplace_back(), satz[0]);
        AusCp1252Anhaengen(liste.frage.emplace_back(), satz[1]);
        AusCp1252Anhaengen(liste.antwort.emplace_back(), satz[2]);
        AusCp1252Anhaengen(liste.punkte.emplace_back(), satz[3]);
    }
}
