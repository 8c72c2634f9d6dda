#include "quizform/ziehregeln.h"

#include "quizform/texte.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"

Ziehbeginn FeldZiehbeginn(std::optional<Zugart> art, std::string_view buchstabe, bool frageLeer) {
    if (!art) {
        return {};
    }
    const bool verschieben = art == Zugart::Verschieben;
    const auto feldart = ArtVon(buchstabe);
    const std::optional<Ziehverbot> verbot = feldart ? ArtzeileVon(*feldart).ziehverbot : std::nullopt;
    if (verbot) {
        return {std::nullopt, verschieben ? verbot->verschieben : verbot->kopieren};
    }
    if (frageLeer) {
        return {std::nullopt, verschieben ? fktexte::nichtsZuVerschieben : fktexte::nichtsZuKopieren};
    }
    return {art, std::nullopt};
}
