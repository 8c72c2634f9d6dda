// What drags, the trash and commands ask of the cells of the open form.
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

} // namespace

std::string FK_Frage(int n) {
    const frmFKFragen* form = FKFragenOffen();
    const bool da = form != nullptr && n >= 1 && n <= anzahlFelder;
    return da ? form->txtFrage.at(Stelle(n))->text() : std::string();
}

std::string FK_Antwort(int n) {
    const frmFKFragen* form = FKFragenOffen();
    const bool da = form != nullptr && n >= 1 && n <= anzahlFelder;
    return da ? form->txtAntwort.at(Stelle(n))->text() : std::string();
}

void FK_FeldLeeren(int n) {
    FK_FeldSetzen(n, "", "");
}

void FK_FeldSetzen(int n, std::string_view frage, std::string_view antwort) {
    frmFKFragen* form = FKFragenOffen();
    if (form != nullptr && n >= 1 && n <= anzahlFelder) {
        form->txtFrage.at(Stelle(n))->setText(frage);
        form->txtAntwort.at(Stelle(n))->setText(antwort);
    }
}
