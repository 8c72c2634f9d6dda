// A moment of the form's history back on the screen.
#include "core/oberflaeche.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"

void FK_StandZeigen(const Quizformular& gezeigt, const Quizformular& gemerkt) {
    const frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    FKForm = gezeigt; // the window is filled from the stored copy
    FK_FormularZeigen();
    // A blanking leaves cells that no stored copy fills like that: letters without their marker texts.
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(n)->setText(gezeigt.FrageText.at(n));
        form->txtAntwort.at(n)->setText(gezeigt.AntwortText.at(n));
    }
    FKForm = gemerkt;
    FK_EingabeGilt();
}
