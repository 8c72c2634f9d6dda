// The one table of the kinds of special fields: a row has everything that a kind is and says, on the screen,
// on paper and in the dialogs. Only the orders in which the files keep the kinds stand elsewhere
// (persistence/). A new kind is a new name in rules/spezialart.h, a new row here, and its places in the two
// files.
#pragma once

#include "core/farbe.h"
#include "core/meldungstext.h"
#include "rules/spezialart.h"

#include <optional>
#include <string_view>

// When one more cell of a kind is refused.
enum class Grenzart : std::uint8_t { AbGrenze, NurGenau };

// What the points panel of a cell shows.
enum class Punkteart : std::uint8_t { DerZelle, DerArt, Offen };

// What the paper shows as the worth of a cell while the kind has no points.
enum class Druckersatz : std::uint8_t { Zeile, Fragezeichen };

struct Zeigefarben {
    Farbe grund;
    Farbe schrift;
};

// Messages that refuse to drag a cell of a kind; none for a kind whose question can be dragged.
struct Ziehverbot {
    MeldungsText verschieben;
    MeldungsText kopieren;
};

struct Artzeile {
    Spezialart art;
    char buchstabe;
    std::string_view eintrag; // in the list over the cell
    std::string_view name;    // for those who can't see a control's place
    std::string_view spalte;  // above its column in the settings, with the blanks behind it

    // Cell on the screen
    Zeigefarben punkte;
    Zeigefarben spezial;
    Farbe miniatur;
    Farbe rahmen;
    Farbe rahmenEinzeln; // meant: after the repaint of one cell some frames have another shade
    Farbe text;
    bool zentriert;
    std::string_view frageMarke; // marker texts of a kind that shows no question
    std::string_view antwortMarke;
    Punkteart punkteart;

    // Paper
    Farbe druckGrund;
    Farbe druckLinie;
    std::string_view druckWort; // alone in the cell; "" where the question stands there
    Spezialart druckBedingung;  // the kind whose points decide whether the worth is printed
    Druckersatz druckErsatz;

    // Rules of the game
    Grenzart grenzart;
    std::int16_t werkPunkte;
    std::int16_t werkFelder;
    MeldungsText grenze;  // {} is the limit
    MeldungsText hinweis; // on reaching it; never comes up
    std::optional<Ziehverbot> ziehverbot;
    std::string_view tippzeile; // in the tip of a cell's panel, {} is the limit

    // Tips in the settings: points, points on the tab of the standard values, fields
    std::string_view punkteTipp;
    std::string_view punkteTippV;
    std::string_view felderTipp;
};

namespace arttexte {

inline constexpr MeldungsText Grenze(std::string_view text) {
    return {4, text, "65", "Akzeptiert"};
}

} // namespace arttexte

// clang-format off
inline constexpr std::array<Artzeile, anzahlArten> spezialarten{{
    {Spezialart::Aktion, 'A', "A Aktion/Aufgabe", "Aktion", "Aktion            ",
     {{0, 0, 255}, farbeGelb}, {{0, 0, 255}, farbeGelb}, {95, 95, 255}, {0, 0, 255}, {0, 0, 255}, {231, 231, 255},
     false, "", "", Punkteart::DerZelle,
     {223, 223, 255}, {0, 0, 255}, "", Spezialart::Aktion, Druckersatz::Zeile,
     Grenzart::AbGrenze, 5, 2,
     arttexte::Grenze("Wir wollten uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl von {} Aktionsfeldern wurde bereits erreicht !"),
     arttexte::Grenze("Wir wollen uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl der Aktionsfelder ist hiermit erreicht !"),
     std::nullopt, "- {} Aufgaben\r\n",
     "Punkte für Aktion", "Punkte für Aktion bzw. Aufgabe",
     "Anzahl der zulässigen Aktions-, bzw. Aufgabenfelder."},

    {Spezialart::Ereignis, 'E', "E Ereignis", "Ereignis", "Ereignis          ",
     {{255, 127, 0}, farbeWeiss}, {{255, 127, 0}, farbeWeiss}, {255, 159, 0}, {0, 0, 255}, {0, 0, 255}, {255, 239, 159},
     true, "----- Ereignis ! -----\r\n", "----- Ereignis ! -----", Punkteart::DerArt,
     // Meant: the Joker's points decide whether an Ereignis prints its own.
     {255, 223, 191}, {255, 127, 0}, "Ereignis", Spezialart::Joker, Druckersatz::Zeile,
     Grenzart::AbGrenze, 10, 2,
     arttexte::Grenze("Wir wollten uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl von {} Ereignisfeldern wurde bereits erreicht !"),
     arttexte::Grenze("Wir wollen uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl der Ereignisfelder ist hiermit erreicht !"),
     Ziehverbot{{5, "Ereignis kann nicht verschoben werden.", "49", "Aha"},
                {5, "Ereignis kann nicht kopiert werden.", "79", "Aha"}},
     "- {} Ereignisfelder\r\n",
     "Punkte für Ereignis", "Punkte für Ereignis", "Anzahl der zulässigen Ereignisfelder."},

    {Spezialart::Glueck, 'G', "G Glücksfrage", "Glück", "Glück              ",
     {{0, 255, 0}, farbeSchwarz}, {{0, 255, 0}, farbeSchwarz}, {0, 255, 0}, {0, 223, 0}, {0, 255, 0}, {223, 255, 223},
     false, "", "", Punkteart::DerArt,
     {223, 255, 223}, {0, 255, 0}, "", Spezialart::Glueck, Druckersatz::Zeile,
     Grenzart::NurGenau, 10, 2,
     arttexte::Grenze("Wir wollten uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl von {} Glücksfeldern wurde bereits erreicht !"),
     arttexte::Grenze("Wir wollen uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl der Glücksfelder ist hiermit erreicht !"),
     std::nullopt, "- {} Glücksfragen\r\n",
     "Punkte für richtige Beantwortung einer Glücksfrage", "Punkte für richtige Beantwortung einer Glücksfrage",
     "Anzahl der zulässigen Glücksfelder."},

    {Spezialart::Joker, 'J', "J  Joker", "Joker", "Joker              ",
     {{255, 255, 0}, farbeSchwarz}, {{255, 255, 0}, farbeSchwarz}, {255, 255, 0}, {239, 239, 0}, {223, 223, 0}, {255, 255, 223},
     true, "----- Joker ! -----\r\n", "----- Joker ! -----", Punkteart::DerArt,
     {255, 255, 191}, {159, 159, 0}, "Joker", Spezialart::Joker, Druckersatz::Zeile,
     Grenzart::NurGenau, 5, 4,
     arttexte::Grenze("Wir wollten uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl von {} Jokern wurde bereits erreicht !"),
     arttexte::Grenze("Wir wollen uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl der Joker ist hiermit erreicht !"),
     Ziehverbot{{5, "Joker kann nicht verschoben werden.", "39", "Aha"},
                {5, "Joker kann nicht kopiert werden.", "69", "Aha"}},
     "- {} Jokerfelder\r\n",
     "Punkte für Joker", "Punkte für Joker", "Anzahl der zulässigen Joker."},

    {Spezialart::Risiko, 'R', "R Risiko-Frage", "Risiko", "Risiko",
     {{255, 0, 0}, farbeWeiss}, {{255, 0, 0}, farbeWeiss}, {255, 0, 0}, {255, 0, 0}, {255, 0, 0}, {255, 231, 231},
     false, "", "", Punkteart::Offen, // the stake is set in play
     {255, 223, 223}, {255, 0, 0}, "", Spezialart::Risiko, Druckersatz::Fragezeichen,
     Grenzart::NurGenau, 0, 2,
     arttexte::Grenze("Wir wollten uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl von {} Risikofeldern wurde bereits erreicht !"),
     arttexte::Grenze("Wir wollen uns an die Spielregeln halten -\r\n"
                      "Die maximale Anzahl der Risikofelder ist hiermit erreicht !"),
     std::nullopt, "- {} Risikofragen\r\n",
     "Punkte für richtige Beantwortung einer Risiko-Frage", "Punkte für richtige Beantwortung einer Risiko-Frage",
     "Anzahl der zulässigen Risikofelder."},
}};
// clang-format on

// The order in which lists and tips name the kinds.
inline constexpr std::array<Spezialart, anzahlArten> nennfolge{
    Spezialart::Joker, Spezialart::Glueck, Spezialart::Risiko, Spezialart::Aktion, Spezialart::Ereignis};

// A row each, at its place, and each kind named once.
constexpr bool ArtenVollstaendig() {
    for (std::size_t i = 0; i < spezialarten.size(); ++i) {
        const Artzeile& zeile = spezialarten[i];
        if (Artstelle(zeile.art) != i || zeile.buchstabe == '\0' || zeile.eintrag.empty() ||
            zeile.felderTipp.empty() || std::count(nennfolge.begin(), nennfolge.end(), zeile.art) != 1) {
            return false;
        }
    }
    return Artstelle(Spezialart::Risiko) + 1 == anzahlArten; // the last kind
}
static_assert(ArtenVollstaendig());

[[nodiscard]] constexpr const Artzeile& ArtzeileVon(Spezialart art) {
    return spezialarten[Artstelle(art)];
}

// Values by the rules of the game, fields for a full board of 30 questions.
[[nodiscard]] constexpr Artwerte ArtwerteAus(std::int16_t Artzeile::*spalte) {
    Artwerte werte;
    for (const Artzeile& zeile : spezialarten) {
        werte[zeile.art] = zeile.*spalte;
    }
    return werte;
}
inline constexpr Artwerte werkPunkte = ArtwerteAus(&Artzeile::werkPunkte);
inline constexpr Artwerte werkFelder = ArtwerteAus(&Artzeile::werkFelder);
