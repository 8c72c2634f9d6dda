#include "dialogs/fehlertexte.h"

#include <algorithm>
#include <array>

namespace {

struct Zeile {
    int nummer;
    std::string_view text;
    std::string_view taste;
};

// The blank behind one of the captions is meant.
constexpr std::array<Zeile, 6> tabelle{{
    {6, "Überlauf", "Das gefällt mir gar nicht"},
    {7, "Ich brauche mehr Platz ! (Out of Memory)", "Grrr !*?~"},
    {9, "Zu wenig Gefaacher (Arrays) !?", "Das verstehe ich aber nicht"},
    {11, "Teilung durch 0 !?", "Das gefällt mir gar nicht "},
    {52, "Dateiname !?", "Grrr.. *~§§°"},
    {62, "Ich müsste noch Daten einlesen, aber die Datei ist zu Ende !?", "Grrr.. *~§§°"},
}};

} // namespace

Fehlerbericht FehlerberichtBilden(std::string_view ort, int nummer, std::string_view systemtext) {
    Fehlerbericht bericht{std::string(ort) + " :\r\n", "Grrr.. *~§§°"};
    const auto* zeile =
        std::find_if(tabelle.begin(), tabelle.end(), [nummer](const Zeile& z) { return z.nummer == nummer; });
    if (zeile == tabelle.end()) {
        bericht.text += std::to_string(nummer) + " : ";
        bericht.text += systemtext;
    } else {
        bericht.text += zeile->text;
        bericht.taste = zeile->taste;
    }
    return bericht;
}
