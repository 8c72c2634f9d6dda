#include "quizform/fkansage.h"

#include "core/oberflaeche.h"
#include "quizform/frmFKFragen.h"
#include "quizform/quizformular.h"
#include "quizform/zellenansage.h"

namespace {

void GebietBenennen(const frmFKFragen& form, int gebiet) {
    const std::string titel =
        Modelltext(form.pnlWissen.at(static_cast<std::size_t>(gebiet))->caption().trimmed());
    for (int r = 1; r <= fragenJeGebiet; ++r) {
        const int n = Feldnummer(gebiet, r);
        const auto stelle = static_cast<std::size_t>(n);
        const auto ansage = [&titel, n](std::string_view was) {
            return Anzeige(Zellenansage(titel, n, was));
        };
        form.txtFrage.at(stelle)->setAccessibleName(ansage("Frage"));
        form.txtAntwort.at(stelle)->setAccessibleName(ansage("Antwort"));
        form.pnlPunkte.at(stelle)->setAnsage(ansage("Punkte"));
        form.pnlSpezial.at(stelle)->setAnsage(ansage("Spezialfeld"));
    }
}

} // namespace

void AnsagenEinrichten(frmFKFragen& form) {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        Panel* titel = form.pnlWissen.at(static_cast<std::size_t>(a));
        titel->setAnsage(QStringLiteral("Titel von Gebiet %1").arg(a));
        GebietBenennen(form, a);
        QObject::connect(titel, &Panel::captionGeaendert, &form, [&form, a] { GebietBenennen(form, a); });
    }
}
