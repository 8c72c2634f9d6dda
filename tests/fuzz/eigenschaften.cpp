// The properties of files: what is written is read as the same value, what is refused changes nothing.
#include "tests/fuzz/eigenschaften.h"

#include "catalogue/katalogdatei.h"
#include "core/cp1252.h"
#include "core/laufzeitfehler.h"
#include "editor/katalogtext.h"
#include "persistence/einstellungsdatei.h"
#include "persistence/formulardatei.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

namespace {

bool MitAnfuehrung(std::string_view text) {
    return text.find('"') != std::string_view::npos;
}

// Texts that no file gives back whole: the known loss.
bool MitAnfuehrung(const Quizformular& form) {
    const auto ja = [](const std::string& text) { return MitAnfuehrung(text); };
    return ja(form.FormNr) || ja(form.FormDatum) || ja(form.FormZeit) ||
           std::ranges::any_of(form.WissenTitel, ja) || std::ranges::any_of(form.FrageText, ja) ||
           std::ranges::any_of(form.AntwortText, ja) || std::ranges::any_of(form.FeldSpezial, ja);
}

bool MitAnfuehrung(const Testformular& form) {
    const auto ja = [](const std::string& text) { return MitAnfuehrung(text); };
    return ja(form.HBKopf1) || ja(form.HBKopf2) || ja(form.HBKopf3) || ja(form.HBFach) ||
           std::ranges::any_of(form.HBFrageText, ja) || std::ranges::any_of(form.HBAntwortText, ja);
}

bool MitAnfuehrung(const Spielwerte& spiel) {
    const auto ja = [](const std::string& text) { return MitAnfuehrung(text); };
    return ja(spiel.Papierformat) || std::ranges::any_of(spiel.Datei, ja) ||
           std::ranges::any_of(spiel.HilfeEintrag, ja);
}

// A form that was read is written and read again.
void RundreisePruefen(const Formularwerte& werte, bool ganz) {
    const bool quiz = werte.art == Formart::Quiz;
    if (quiz ? MitAnfuehrung(werte.quiz) : MitAnfuehrung(werte.test)) {
        return;
    }
    const std::string bytes = FormularBytes(werte.art, werte);
    Formularwerte wieder;
    wieder.quiz.FeldPunkte = werte.quiz.FeldPunkte;
    wieder.spiel = werte.spiel;
    const FormularErgebnis ergebnis = FormularAusBytes(bytes, werte.art, wieder, {});
    Verlange(ergebnis.ende == Leseende::Ganz, "a form that was written is read to its end");
    Verlange(quiz ? wieder.quiz == werte.quiz : wieder.test == werte.test, "a form comes back the same");
    // Where the reading was cut short, what no form can do without is still missing.
    Verlange(!quiz || !ganz || wieder.spiel == werte.spiel, "its rule values come back the same");
    Verlange(!ganz || FormularBytes(werte.art, wieder) == bytes, "written again it has the same bytes");
}

Formularwerte Beispiel() {
    Formularwerte werte;
    werte.quiz.FrageText[7] = "Was?";
    werte.test.HBAntwortText[3] = "Das.";
    werte.spiel.FragenProWissen = 4;
    werte.Bemerkung = "Notiz";
    return werte;
}

} // namespace

void Verlange(bool bedingung, std::string_view worte) {
    if (!bedingung) {
        std::fprintf(stderr, "Doesn't hold: %.*s\n", static_cast<int>(worte.size()), worte.data());
        std::abort();
    }
}

int Eingabe::Wahl(int anzahl) {
    if (rest.empty()) {
        return 0;
    }
    const int wahl = static_cast<unsigned char>(rest.front()) % anzahl;
    rest.remove_prefix(1);
    return wahl;
}

std::string_view Eingabe::Stueck() {
    const std::size_t ende = std::min(rest.find('\xFF'), rest.size());
    const std::string_view stueck = rest.substr(0, ende);
    rest.remove_prefix(std::min(ende + 1, rest.size()));
    return stueck;
}

void Formular(std::string_view bytes) {
    for (const Formart offen : {Formart::Keine, Formart::Quiz, Formart::Test}) {
        const Formularwerte vorher = Beispiel();
        Formularwerte werte = vorher;
        int gemeldet = 0;
        const FormularErgebnis ergebnis =
            FormularAusBytes(bytes, offen, werte, [&gemeldet](const Laufzeitfehler&) { ++gemeldet; });
        const bool genommen = ergebnis.ende == Leseende::Ganz || ergebnis.ende == Leseende::Abgebrochen;
        Verlange(genommen || werte == vorher, "a refused file changes nothing");
        Verlange(genommen || !FormularAnnehmbar(bytes, offen), "what was announced as taken is taken");
        Verlange(ergebnis.ende != Leseende::Abgebrochen || ergebnis.fehler.has_value(),
                 "a reading cut short has its error");
        Verlange(gemeldet <= static_cast<int>(bytes.size()), "no more complaints than bytes");
        if (genommen && (werte.art == Formart::Quiz || werte.art == Formart::Test)) {
            RundreisePruefen(werte, ergebnis.ende == Leseende::Ganz);
        }
    }
    try {
        static_cast<void>(FKIniAusBytes(bytes));
    } catch (const Laufzeitfehler&) { // NOLINT(bugprone-empty-catch): a damaged section is an error
    }
}

void Einstellungen(std::string_view bytes) {
    Spielwerte spiel;
    try {
        EinstellungenAusBytes(bytes, spiel);
    } catch (const Laufzeitfehler&) { // NOLINT(bugprone-empty-catch): what was read so far counts
    }
    if (MitAnfuehrung(spiel)) {
        return;
    }
    const std::string geschrieben = EinstellungenBytes(spiel);
    Spielwerte wieder;
    EinstellungenAusBytes(geschrieben, wieder);
    Verlange(wieder == spiel, "settings come back the same");
    Verlange(EinstellungenBytes(wieder) == geschrieben, "written again they have the same bytes");
}

void Katalog(std::string_view bytes) {
    Namensliste namen;
    for (const auto lesen : {ThemenlisteLesen, UnterthemenlisteLesen}) {
        try {
            lesen(bytes, namen);
        } catch (const Laufzeitfehler& fehler) {
            Verlange(fehler.nummer() == 62 || fehler.nummer() == 7, "a list ends too early or is too long");
        }
    }
    const auto zeilen = static_cast<std::size_t>(
        std::ranges::count_if(bytes, [](char zeichen) { return zeichen == '\n' || zeichen == '\r'; }));
    for (const bool kommentare : {false, true}) {
        Fragenliste liste;
        try {
            FragenLesen(bytes, kommentare, liste);
        } catch (const Laufzeitfehler& fehler) {
            Verlange(fehler.nummer() == 62 || fehler.nummer() == 7, "a question file ends too early");
        }
        Verlange(liste.anzahl() <= zeilen / (anzahlSpalten - 1), "a question has four lines");
        for (std::size_t i = 0; i < liste.anzahl(); ++i) {
            for (const Spalte spalte : {Spalte::Nr, Spalte::Frage, Spalte::Antwort, Spalte::Punkte}) {
                Verlange(liste.wert(i, spalte).find_first_of("\r\n") == std::string_view::npos,
                         "a line holds no line end");
            }
        }
    }
}

void Katalogtext(std::string_view bytes) {
    if (!IstTextdatei(bytes)) {
        return;
    }
    try {
        const ::Katalogtext text = KatalogtextLesen(bytes);
        const std::string wieder = KatalogtextBytes(text.marke, text.text);
        if (text.marke.find_first_of("\",\r\n") != std::string::npos || text.marke.starts_with(' ') ||
            text.marke.ends_with(' ')) {
            return; // its token would be read as another
        }
        const ::Katalogtext neu = KatalogtextLesen(wieder);
        Verlange(neu.marke == text.marke, "the header comes back the same");
        Verlange(neu.text == text.text + "\r\n", "the text comes back with one empty line more");
    } catch (const Laufzeitfehler& fehler) {
        Verlange(fehler.nummer() == 62 || fehler.nummer() == 7, "no bytes at all, or too many");
    }
}

void Zeichen(std::string_view bytes) {
    const std::string text = AusCp1252(bytes);
    Verlange(NachCp1252(text) == bytes, "every byte comes back");
    const std::string auchText = NachCp1252(bytes); // any bytes taken for UTF-8
    Verlange(auchText.size() <= 4 * bytes.size(), "equivalents are short");
    Verlange(NachCp1252(AusCp1252(auchText)) == auchText, "what was made to fit stays");
}

} // namespace fuzz
