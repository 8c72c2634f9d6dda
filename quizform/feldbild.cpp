#include "quizform/feldbild.h"

#include "quizform/spezialfelder.h"

#include <array>

namespace {

constexpr std::string_view jokerFrage = "----- Joker ! -----\r\n";
constexpr std::string_view jokerAntwort = "----- Joker ! -----";
constexpr std::string_view ereignisFrage = "----- Ereignis ! -----\r\n";
constexpr std::string_view ereignisAntwort = "----- Ereignis ! -----";

// In the order A, E, G, J, R.
constexpr std::array<FeldBild, anzahlArten> bilder{{
    {Farbe{0, 0, 255}, farbeGelb, Farbe{95, 95, 255}, Farbe{0, 0, 255}, Farbe{231, 231, 255}, false, "", ""},
    {Farbe{255, 127, 0}, farbeWeiss, Farbe{255, 159, 0}, Farbe{0, 0, 255}, Farbe{255, 239, 159}, true,
     ereignisFrage, ereignisAntwort},
    {Farbe{0, 255, 0}, farbeSchwarz, Farbe{0, 255, 0}, Farbe{0, 223, 0}, Farbe{223, 255, 223}, false, "", ""},
    {Farbe{255, 255, 0}, farbeSchwarz, Farbe{255, 255, 0}, Farbe{239, 239, 0}, Farbe{255, 255, 223}, true,
     jokerFrage, jokerAntwort},
    {Farbe{255, 0, 0}, farbeWeiss, Farbe{255, 0, 0}, Farbe{255, 0, 0}, Farbe{255, 231, 231}, false, "", ""},
}};

} // namespace

FeldBild FeldBildFuer(std::string_view buchstabe, bool leer, bool einzeln) {
    const int art = SpezialIndex(buchstabe);
    if (art < 0) {
        FeldBild bild;
        if (!leer) {
            bild.miniatur = farbeWeiss;
            bild.textGrund = farbeWeiss;
        }
        return bild;
    }
    FeldBild bild = bilder.at(static_cast<std::size_t>(art));
    if (einzeln && buchstabe == "J") {
        bild.rahmen = Farbe{223, 223, 0};
    } else if (einzeln && buchstabe == "G") {
        bild.rahmen = Farbe{0, 255, 0};
    }
    return bild;
}
