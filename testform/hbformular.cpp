#include "testform/hbformular.h"

#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "testform/texte.h"

bool HBFragenOffen() {
    return false;
}

void HB_FormularZeigen(std::string_view /*titel*/) {
    Meldung(hbtexte::nochNicht);
    FormTyp.clear(); // no form is open, so that the next file of either kind loads
}

void HB_FenstertitelSetzen(std::string_view /*titel*/) {}

void HB_Merken() {}
