#include "tooltips/tooltipregeln.h"

namespace tipp {

namespace {

constexpr int unterDemZeiger = 21; // below the arrow
constexpr int ueberDemZeiger = 4;
constexpr int amElement = 2;

int InGrenzen(int wert, int laenge, int anfang, int ganz) {
    return std::max(anfang, std::min(wert, anfang + ganz - laenge));
}

// Below the anchor, above it if that is beyond the screen.
Ort Gestellt(int x, int unten, int oben, Groesse tipp, const Flaeche& schirm) {
    const bool passt = unten + tipp.hoehe <= schirm.ecke.y + schirm.groesse.hoehe;
    return {InGrenzen(x, tipp.breite, schirm.ecke.x, schirm.groesse.breite),
            InGrenzen(passt ? unten : oben - tipp.hoehe, tipp.hoehe, schirm.ecke.y, schirm.groesse.hoehe)};
}

} // namespace

Stil StilFuer(std::string_view titel) {
    if (titel == titelHilfe) {
        return stilHilfe;
    }
    return titel == titelSchliessen || titel == titelEnde ? stilSchliessen : stilStandard;
}

Ort OrtAmZeiger(Ort zeiger, Groesse tipp, const Flaeche& schirm) {
    return Gestellt(zeiger.x, zeiger.y + unterDemZeiger, zeiger.y - ueberDemZeiger, tipp, schirm);
}

Ort OrtAmElement(const Flaeche& element, Groesse tipp, const Flaeche& schirm, bool mittig) {
    const int versatz = mittig ? (element.groesse.breite - tipp.breite) / 2 : 0;
    return Gestellt(element.ecke.x + versatz, element.ecke.y + element.groesse.hoehe + amElement,
                    element.ecke.y - amElement, tipp, schirm);
}

} // namespace tipp
