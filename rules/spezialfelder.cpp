#include "rules/spezialfelder.h"

#include "core/pfadname.h"
#include "rules/spezialarten.h"

#include <algorithm>

std::optional<Spezialart> ArtVon(std::string_view buchstabe) {
    if (buchstabe.size() != 1) {
        return std::nullopt;
    }
    const auto* const fund = std::ranges::find(spezialarten, buchstabe.front(), &Artzeile::buchstabe);
    return fund == spezialarten.end() ? std::nullopt : std::optional(fund->art);
}

std::vector<std::string_view> Spezialliste() {
    std::vector<std::string_view> liste{"   Frage (Standard)"};
    for (const Spezialart art : nennfolge) {
        liste.push_back(ArtzeileVon(art).eintrag);
    }
    return liste;
}

std::string SpezialBuchstabe(std::string_view eintrag) {
    return Getrimmt(eintrag.substr(0, 2));
}

Artwerte SpezialAnzahl(std::span<const std::string> buchstaben) {
    Artwerte anzahl;
    for (const std::string& buchstabe : buchstaben) {
        if (const auto art = ArtVon(buchstabe)) {
            ++anzahl[*art];
        }
    }
    return anzahl;
}

bool GrenzeErreicht(const Spielwerte& spiel, Spezialart art, std::int16_t anzahl) {
    const std::int16_t grenze = spiel.Felder[art];
    return ArtzeileVon(art).grenzart == Grenzart::AbGrenze ? grenze <= anzahl : anzahl == grenze;
}

PunkteBild PunkteBildFuer(const Spielwerte& spiel, std::string_view buchstabe, int feldPunkte) {
    const auto art = ArtVon(buchstabe);
    if (!art) {
        return {std::to_string(feldPunkte), std::nullopt, farbeSchwarz};
    }
    const Artzeile& zeile = ArtzeileVon(*art);
    PunkteBild bild{"..", zeile.punkte.grund, zeile.punkte.schrift};
    if (zeile.punkteart != Punkteart::Offen) {
        bild.caption =
            std::to_string(zeile.punkteart == Punkteart::DerZelle ? feldPunkte : spiel.Punkte[*art]);
    }
    return bild;
}

std::string SpezialTipp(const Spielwerte& spiel) {
    std::string tipp = "Spezialfeld mit Linksklick auswählen\r\n"
                       "\r\n"
                       "mögliche Anzahl von Spezialfeldern :\r\n";
    for (const Spezialart art : nennfolge) {
        tipp += Einsetzen(ArtzeileVon(art).tippzeile, {std::to_string(spiel.Felder[art])});
    }
    return tipp;
}

std::optional<Spezialart> FaelligerRegelHinweis(char taste, const Artwerte& anzahl) {
    const auto art = ArtVon(std::string_view(&taste, 1));
    const bool faellig =
        art && anzahl[*art] == werkFelder[*art] && (*art != Spezialart::Ereignis || anzahl[*art] > 0);
    return faellig ? art : std::nullopt;
}
