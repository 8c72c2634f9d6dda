#include "catalogue/katalogdatei.h"

#include "core/cp1252.h"
#include "core/wertgrammatik.h"

#include <algorithm>

namespace {

std::string_view Wertzeile(WertLeser& leser, bool kommentarzeilen) {
    std::string_view zeile = leser.Zeile();
    while (kommentarzeilen && zeile.substr(0, 1) == "'") {
        zeile = leser.Zeile();
    }
    return zeile;
}

// Number of the line that was read last.
int ZeileDavor(WertLeser& leser, std::string_view zeile, std::string_view bytes) {
    const bool beendet = zeile.data() + zeile.size() < bytes.data() + bytes.size();
    return leser.ZeileNr() - (beendet ? 1 : 0);
}

// The list grows once instead of again and again. How many lines there are is taken from the beginning of the
// bytes: looking at all of them would cost more than a guess that is wrong.
void PlatzVorsehen(std::string_view bytes, Fragenliste& liste) {
    const std::string_view probe = bytes.substr(0, std::size_t{1} << 16U);
    const auto zeilen = static_cast<std::size_t>(std::count(probe.begin(), probe.end(), '\n'));
    const std::size_t proben = probe.empty() ? 0 : bytes.size() / probe.size() + 1;
    liste.Vorsehen(zeilen * proben / anzahlSpalten + 1, bytes.size() + bytes.size() / 16);
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

void FragenLesen(std::string_view bytes, bool kommentarzeilen, Fragenliste& liste,
                 const std::function<void(int zeile)>& weggelassen) {
    PlatzVorsehen(bytes, liste);
    WertLeser leser(bytes);
    leser.Zeile();
    // The end of the file is tested only ahead of a record.
    while (!leser.AmEnde()) {
        std::array<std::string_view, anzahlSpalten> satz;
        bool zuLang = false;
        for (std::string_view& zeile : satz) {
            zeile = Wertzeile(leser, kommentarzeilen);
            if (zeile.size() > laengsterText && !zuLang) {
                zuLang = true; // told at once: the record may be cut short as well
                if (weggelassen) {
                    weggelassen(ZeileDavor(leser, zeile, bytes));
                }
            }
        }
        if (!zuLang) {
            liste.Anhaengen(satz);
        }
    }
}
