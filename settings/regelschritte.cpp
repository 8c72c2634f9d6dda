#include "settings/regelschritte.h"

#include "settings/texte.h"

namespace {

using namespace initexte;

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

std::int16_t Nachbar(std::int16_t wert, Richtung richtung) {
    return static_cast<std::int16_t>(richtung == Richtung::Hoch ? wert + 1 : wert - 1);
}

Regelschritt Absage(const MeldungsText& text, std::int16_t wert) {
    return {&text, std::nullopt, wert};
}

// A file may bring a count for which there is no text: such a step is made without a question.
std::optional<Regelfrage> FragenFrage(std::int16_t ziel) {
    if (ziel < 1 || ziel > hoechstensFragen) {
        return std::nullopt;
    }
    return Regelfrage{titelFragen,
                      Einsetzen(schritt, {fragenAnlegen.at(Stelle(ziel)), fragenFolge.at(Stelle(ziel))})};
}

std::optional<Regelfrage> WissenWeniger(std::int16_t ziel) {
    if (ziel >= hoechstensWissen) {
        return std::nullopt;
    }
    return Regelfrage{titelWissen,
                      Einsetzen(schritt, {wissenAnlegen.at(Stelle(ziel)), wissenFolge.at(Stelle(ziel))})};
}

std::optional<Regelfrage> WissenMehr(std::int16_t ziel, std::int16_t fragen) {
    constexpr std::int16_t zwei = 2;
    if (ziel < zwei || (fragen != 1 && ziel == zwei)) {
        return std::nullopt;
    }
    const std::string_view gebiete = wissenAnlegen.at(Stelle(fragen == 1 ? zwei : ziel));
    return Regelfrage{titelWissen,
                      Einsetzen(fragen == 1 ? schrittEineFrage : schritt, {gebiete, keineLoeschen})};
}

} // namespace

Regelschritt FragenSchritt(Richtung richtung, std::int16_t fragen, bool optionMaxFelder) {
    if (richtung == Richtung::Hoch && fragen >= hoechstensFragen) {
        return Absage(fragenMaximum, fragen);
    }
    if (richtung == Richtung::Runter && fragen <= 1) {
        return Absage(fragenMinimum, fragen);
    }
    if (richtung == Richtung::Runter && !optionMaxFelder) {
        return Absage(fragenOhneRegel, fragen);
    }
    const std::int16_t neu = Nachbar(fragen, richtung);
    return {nullptr, FragenFrage(neu), neu};
}

Regelschritt WissenSchritt(Richtung richtung, std::int16_t wissen, std::int16_t fragen,
                           bool optionMaxWissen) {
    if (richtung == Richtung::Hoch && wissen >= hoechstensWissen) {
        return Absage(wissenMaximum, wissen);
    }
    if (richtung == Richtung::Runter && wissen <= 1) {
        return Absage(wissenMinimum, wissen);
    }
    if (richtung == Richtung::Runter && !optionMaxWissen) {
        return Absage(wissenOhneRegel, wissen);
    }
    const std::int16_t neu = Nachbar(wissen, richtung);
    return {nullptr, richtung == Richtung::Hoch ? WissenMehr(neu, fragen) : WissenWeniger(neu), neu};
}

std::optional<Regelfrage> FragenBegrenzung(std::int16_t fragen) {
    if (fragen >= hoechstensFragen) {
        return std::nullopt;
    }
    return Regelfrage{titelEinhalten, Einsetzen(fragenBegrenzt, {std::to_string(fragen)})};
}

std::optional<Regelfrage> WissenBegrenzung(std::int16_t wissen) {
    if (wissen >= hoechstensWissen) {
        return std::nullopt;
    }
    return Regelfrage{titelEinhalten, Einsetzen(wissenBegrenzt, {std::to_string(wissen)})};
}
