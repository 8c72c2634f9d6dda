#include "forms/formularstand.h"

namespace {

// Points of the cells follow from the letters and the numbers in force, and no file has them.
Quizformular OhnePunkte(Quizformular form) {
    form.FeldPunkte = {};
    return form;
}

bool Gleich(const Quizstand& a, const Quizstand& b) {
    return OhnePunkte(a.gezeigt) == OhnePunkte(b.gezeigt);
}

bool Gleich(const Teststand& a, const Teststand& b) {
    return a.gezeigt == b.gezeigt;
}

bool Textgleich(const Quizformular& a, const Quizformular& b) {
    return a.FrageText == b.FrageText;
}

bool Textgleich(const Testformular& a, const Testformular& b) {
    return a.HBFrageText == b.HBFrageText;
}

bool Antwortgleich(const Quizformular& a, const Quizformular& b) {
    return a.AntwortText == b.AntwortText;
}

bool Antwortgleich(const Testformular& a, const Testformular& b) {
    return a.HBAntwortText == b.HBAntwortText;
}

template <typename Stand>
std::string_view Eingabe(const Stand& vorher, const Stand& nachher) {
    if (!Textgleich(vorher.gezeigt, nachher.gezeigt)) {
        return "Frage eingeben";
    }
    if (!Antwortgleich(vorher.gezeigt, nachher.gezeigt)) {
        return "Antwort eingeben";
    }
    return Gleich(vorher, nachher) ? "" : "Kopf ausfüllen";
}

// A place that shows nothing keeps something back that wasn't saved.
template <typename Werte>
bool Wartet(const Werte& gespeichert, const Werte& gezeigt, const Werte& gemerkt) {
    const typename Werte::value_type leer{};
    for (std::size_t i = 0; i < gezeigt.size(); ++i) {
        if (gezeigt.at(i) == leer && gemerkt.at(i) != leer && gemerkt.at(i) != gespeichert.at(i)) {
            return true;
        }
    }
    return false;
}

template <typename Werte>
bool Weg(const Werte& vorher, const Werte& jetzt) {
    const typename Werte::value_type leer{};
    int da = 0;
    int neue = 0;
    for (std::size_t i = 0; i < vorher.size(); ++i) {
        da += vorher.at(i) != leer ? 1 : 0;
        neue += jetzt.at(i) != leer ? 1 : 0;
        if (vorher.at(i) != leer && vorher.at(i) == jetzt.at(i)) {
            return false;
        }
    }
    return neue < da;
}

bool Geleert(const Quizformular& vorher, const Quizformular& jetzt) {
    return Weg(vorher.FrageText, jetzt.FrageText) || Weg(vorher.FeldSpezial, jetzt.FeldSpezial);
}

bool Geleert(const Testformular& vorher, const Testformular& jetzt) {
    return Weg(vorher.HBFrageText, jetzt.HBFrageText) || Weg(vorher.HBAntwortText, jetzt.HBAntwortText) ||
           Weg(vorher.HBPunkte, jetzt.HBPunkte);
}

// A short text lies inside its string.
std::size_t Aussen(const std::string& text) {
    constexpr std::size_t innen = 15;
    return text.capacity() > innen ? text.capacity() + 1 : 0;
}

template <typename Texte>
std::size_t Aussensumme(const Texte& texte) {
    std::size_t summe = 0;
    for (const std::string& text : texte) {
        summe += Aussen(text);
    }
    return summe;
}

std::size_t Texte(const Quizformular& form) {
    return Aussensumme(form.WissenTitel) + Aussensumme(form.FrageText) + Aussensumme(form.AntwortText) +
           Aussensumme(form.FeldSpezial) + Aussen(form.FormNr) + Aussen(form.FormDatum) +
           Aussen(form.FormZeit);
}

std::size_t Texte(const Testformular& form) {
    return Aussensumme(form.HBFrageText) + Aussensumme(form.HBAntwortText) + Aussen(form.HBFach) +
           Aussen(form.HBKopf1) + Aussen(form.HBKopf2) + Aussen(form.HBKopf3);
}

} // namespace

Spielwerte MitProgrammwerten(const Spielwerte& form, const Spielwerte& programm) {
    Spielwerte werte = form;
    werte.PunkteV = programm.PunkteV; // standards for later forms
    werte.FelderV = programm.FelderV;
    werte.FelderVE = programm.FelderVE;
    werte.OptionDatei = programm.OptionDatei;
    werte.Datei = programm.Datei;
    werte.HilfeEintrag = programm.HilfeEintrag;
    werte.OptionEreignis = programm.OptionEreignis;
    return werte;
}

namespace {

// The total follows from the shape, and is only counted when the settings ask for it.
bool Gleich(const Spielwerte& a, const Spielwerte& b) {
    Spielwerte werte = MitProgrammwerten(a, b);
    werte.FelderGesamt = b.FelderGesamt;
    return werte == b;
}

} // namespace

bool Gleichgespeichert(const Formularstand& a, const Formularstand& b) {
    if (a.form.index() != b.form.index()) {
        return false;
    }
    if (const auto* quiz = std::get_if<Quizstand>(&a.form); quiz != nullptr) {
        return Gleich(*quiz, std::get<Quizstand>(b.form)) && Gleich(a.spiel, b.spiel);
    }
    return Gleich(std::get<Teststand>(a.form), std::get<Teststand>(b.form)); // its file has no numbers
}

bool Gleichgezeigt(const Formularstand& a, const Formularstand& b) {
    if (!Gleichgespeichert(a, b) || !Gleich(a.spiel, b.spiel)) {
        return false;
    }
    const auto* links = std::get_if<Teststand>(&a.form);
    const auto* rechts = std::get_if<Teststand>(&b.form);
    return links == nullptr || links->punkte == rechts->punkte;
}

bool Ungesichert(const Formularstand& gespeichert, const Formularstand& jetzt) {
    if (!Gleichgespeichert(gespeichert, jetzt)) {
        return true;
    }
    if (const auto* quiz = std::get_if<Quizstand>(&jetzt.form); quiz != nullptr) {
        const Quizformular& alt = std::get<Quizstand>(gespeichert.form).gezeigt;
        return Wartet(alt.FrageText, quiz->gezeigt.FrageText, quiz->gemerkt.FrageText) ||
               Wartet(alt.AntwortText, quiz->gezeigt.AntwortText, quiz->gemerkt.AntwortText) ||
               Wartet(alt.FeldSpezial, quiz->gezeigt.FeldSpezial, quiz->gemerkt.FeldSpezial);
    }
    const auto& test = std::get<Teststand>(jetzt.form);
    const Testformular& alt = std::get<Teststand>(gespeichert.form).gezeigt;
    return Wartet(alt.HBFrageText, test.gezeigt.HBFrageText, test.gemerkt.HBFrageText) ||
           Wartet(alt.HBAntwortText, test.gezeigt.HBAntwortText, test.gemerkt.HBAntwortText) ||
           Wartet(alt.HBPunkte, test.gezeigt.HBPunkte, test.gemerkt.HBPunkte);
}

bool Leergeraeumt(const Formularstand& vorher, const Formularstand& jetzt) {
    if (vorher.form.index() != jetzt.form.index()) {
        return false;
    }
    if (const auto* quiz = std::get_if<Quizstand>(&vorher.form); quiz != nullptr) {
        return Geleert(quiz->gezeigt, std::get<Quizstand>(jetzt.form).gezeigt);
    }
    return Geleert(std::get<Teststand>(vorher.form).gezeigt, std::get<Teststand>(jetzt.form).gezeigt);
}

std::string_view Eingabename(const Formularstand& vorher, const Formularstand& nachher) {
    if (vorher.form.index() != nachher.form.index()) {
        return {};
    }
    if (const auto* quiz = std::get_if<Quizstand>(&vorher.form); quiz != nullptr) {
        return Eingabe(*quiz, std::get<Quizstand>(nachher.form));
    }
    return Eingabe(std::get<Teststand>(vorher.form), std::get<Teststand>(nachher.form));
}

std::size_t Speicherbedarf(const Formularstand& stand) {
    std::size_t summe =
        sizeof(Formularstand) + Aussensumme(stand.spiel.Datei) + Aussensumme(stand.spiel.HilfeEintrag);
    std::visit([&summe](const auto& form) { summe += Texte(form.gezeigt) + Texte(form.gemerkt); },
               stand.form);
    return summe;
}
