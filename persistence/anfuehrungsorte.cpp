#include "persistence/anfuehrungsorte.h"

#include "core/anfuehrung.h"

namespace {

using Orte = std::vector<std::string>;

void Pruefen(Orte& orte, const std::string& text, std::string_view name) {
    if (HatAnfuehrung(text)) {
        orte.emplace_back(name);
    }
}

} // namespace

std::vector<std::string> Anfuehrungsorte(const Quizformular& form) {
    Orte orte;
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto i = static_cast<std::size_t>(n);
        Pruefen(orte, form.FrageText.at(i), Zellenname(n, "Frage"));
        Pruefen(orte, form.AntwortText.at(i), Zellenname(n, "Antwort"));
    }
    Pruefen(orte, form.FormNr, "Nr.");
    Pruefen(orte, form.FormDatum, "Datum");
    Pruefen(orte, form.FormZeit, "Zeit");
    return orte;
}

std::vector<std::string> Anfuehrungsorte(const Testformular& form) {
    Orte orte;
    for (int i = 1; i <= anzahlTestfragen; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        Pruefen(orte, form.HBFrageText.at(stelle), Zeilenname(i, "Frage"));
        Pruefen(orte, form.HBAntwortText.at(stelle), Zeilenname(i, "Antwort"));
    }
    return orte;
}
