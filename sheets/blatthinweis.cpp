#include "sheets/blatthinweis.h"

#include "core/meldungstext.h"
#include "sheets/texte.h"

#include <algorithm>

namespace {

std::string Papierarbeit(const Blattsatz& blatt) {
    const std::string seiten = std::to_string(blatt.seiten.size());
    switch (blatt.wenden) {
    case Wenden::LangeKante:
        return Einsetzen(blatttexte::beidseitig, {seiten, blatttexte::langeKante});
    case Wenden::KurzeKante:
        return Einsetzen(blatttexte::beidseitig, {seiten, blatttexte::kurzeKante});
    default:
        return Einsetzen(blatttexte::zuschneiden, {seiten});
    }
}

} // namespace

std::string Blatthinweis(const Blattsatz& blatt, Blattart art) {
    if (blatt.seiten.empty()) {
        return std::string(blatttexte::ohnePapier);
    }
    constexpr std::size_t hoechstens = 3;
    const std::size_t anzahl = blatt.ueberhaenge.size();
    if (anzahl == 0) {
        if (art == Blattart::Antwortbogen || art == Blattart::Bogen || blatt.seiten.size() == 1) {
            return blatt.seiten.size() == 1
                       ? std::string(blatttexte::inOrdnung)
                       : Einsetzen(blatttexte::mehrereSeiten, {std::to_string(blatt.seiten.size())});
        }
        return Papierarbeit(blatt);
    }
    std::string text;
    const std::size_t ganze = anzahl > hoechstens ? hoechstens - 1 : anzahl;
    for (std::size_t i = 0; i < ganze; ++i) {
        text.append(i == 0 ? "" : "\r\n").append(blatt.ueberhaenge.at(i).satz);
    }
    if (ganze < anzahl) {
        text.append("\r\n").append(Einsetzen(blatttexte::weitere, {std::to_string(anzahl - ganze)}));
    }
    return text;
}
