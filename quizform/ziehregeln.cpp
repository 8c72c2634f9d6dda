#include "quizform/ziehregeln.h"

#include "quizform/texte.h"

ZiehBeginn ZiehBeginnFuer(bool umschalt, bool strg, bool alt, std::string_view buchstabe, bool frageLeer) {
    if (alt || umschalt == strg) {
        return {};
    }
    const auto& texte = umschalt ? fktexte::verschieben : fktexte::kopieren;
    if (buchstabe == "J") {
        return {0, &texte.joker};
    }
    if (buchstabe == "E") {
        return {0, &texte.ereignis};
    }
    if (frageLeer) {
        return {0, &texte.leer};
    }
    return {static_cast<std::int16_t>(umschalt ? 1 : 2), nullptr};
}
