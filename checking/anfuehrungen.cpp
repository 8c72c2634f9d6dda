#include "checking/anfuehrungen.h"

#include "checking/texte.h"
#include "core/anfuehrung.h"

#include <algorithm>

namespace {

// The texts that a form's file keeps and the user can type, each with its place.
using Textliste = std::vector<Ersatztext>;

void FelderAufnehmen(Textliste& liste, Formart art, int nummer, const std::string& frage,
                     const std::string& antwort) {
    liste.push_back({{art, Teil::Frage, nummer}, frage});
    liste.push_back({{art, Teil::Antwort, nummer}, antwort});
}

Textliste Texte(const Formularstand& stand) {
    Textliste liste;
    if (const auto* test = std::get_if<Teststand>(&stand.form); test != nullptr) {
        for (int i = 1; i <= anzahlTestfragen; ++i) {
            const auto stelle = static_cast<std::size_t>(i);
            FelderAufnehmen(liste, Formart::Test, i, test->gezeigt.HBFrageText.at(stelle),
                            test->gezeigt.HBAntwortText.at(stelle));
        }
        return liste;
    }
    const Quizformular& form = std::get<Quizstand>(stand.form).gezeigt;
    liste.push_back({{Formart::Quiz, Teil::Nr, 0}, form.FormNr});
    liste.push_back({{Formart::Quiz, Teil::Datum, 0}, form.FormDatum});
    liste.push_back({{Formart::Quiz, Teil::Zeit, 0}, form.FormZeit});
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto stelle = static_cast<std::size_t>(n);
        FelderAufnehmen(liste, Formart::Quiz, n, form.FrageText.at(stelle), form.AntwortText.at(stelle));
    }
    return liste;
}

Textliste MitAnfuehrung(const Formularstand& stand) {
    Textliste liste = Texte(stand);
    std::erase_if(liste, [](const Ersatztext& text) { return !HatAnfuehrung(text.text); });
    return liste;
}

// A cell is one place with its question, its answer and all else that it has.
bool Beieinander(const Befundort& a, const Befundort& b) {
    const bool felder = a.teil > Teil::Gebiet && b.teil > Teil::Gebiet;
    return a.art == b.art && a.nummer == b.nummer && (felder || a.teil == b.teil);
}

bool IstLuecke(std::string_view text, std::size_t stelle) {
    return stelle >= text.size() || std::string_view(" \t\r\n").find(text[stelle]) != std::string_view::npos;
}

} // namespace

Befunde AnfuehrungenPruefen(const Formularstand& stand) {
    Befunde befunde;
    for (const Ersatztext& text : MitAnfuehrung(stand)) {
        befunde.push_back(
            {Schwere::Fehler, Anlass::Anfuehrung, text.ort, std::string(pruefungtexte::anfuehrung)});
    }
    return befunde;
}

std::string MitDeutschenAnfuehrungen(std::string_view text) {
    std::string ergebnis;
    bool offen = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '"') {
            ergebnis += text[i];
            continue;
        }
        const bool davor = i == 0 || IstLuecke(text, i - 1) || text[i - 1] == '(' || text[i - 1] == '[';
        const bool dahinter = IstLuecke(text, i + 1);
        offen = davor == dahinter ? !offen : davor;
        ergebnis += offen ? "„" : "“";
    }
    return ergebnis;
}

std::vector<Ersatztext> AnfuehrungenErsetzt(const Formularstand& stand, const std::optional<Befundort>& nur) {
    Textliste liste = MitAnfuehrung(stand);
    if (nur && HatAnfuehrung(stand, *nur)) {
        std::erase_if(liste, [&nur](const Ersatztext& text) { return !Beieinander(text.ort, *nur); });
    }
    for (Ersatztext& text : liste) {
        text.text = MitDeutschenAnfuehrungen(text.text);
    }
    return liste;
}

bool HatAnfuehrung(const Formularstand& stand, const Befundort& ort) {
    return std::ranges::any_of(MitAnfuehrung(stand),
                               [&ort](const Ersatztext& text) { return Beieinander(text.ort, ort); });
}
