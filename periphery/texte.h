// What the rule document's window and the homepage's window say. Only texts.
#pragma once

#include "dialogs/texte.h"

#include <string_view>

namespace periphertexte {

// --- Rule document ---

inline constexpr std::string_view regelDatei = "/REGEL/Feldkranz.pdf"; // beneath AppPfad, slashes as here
inline constexpr MeldungsText regelFehlt{0, "Die Datei\r\n{}\r\nscheint nicht vorhanden zu sein.", "1",
                                         "Dann brich ab !"};
inline constexpr std::string_view regelTitel = " Spielregel";

inline constexpr std::string_view kannNichtZeigen = " Ich kann hier leider keine PDF-Datei zeigen.";
inline constexpr std::string_view nichtLesbar =
    " Diese Datei kann ich nicht lesen: sie ist beschädigt oder verschlüsselt.";
inline constexpr std::string_view seiteVon = " Seite {} von {}  -  {} %";
inline constexpr std::string_view fundVon = "  -  Fundstelle {} von {}";
inline constexpr std::string_view keinFund = "  -  [ {} ] kommt nicht vor.";
inline constexpr std::string_view seite = "Seite";
inline constexpr std::string_view von = "von {}";
inline constexpr std::string_view suchen = "&Suchen";
inline constexpr std::string_view seitenName = "Seiten der Spielregel"; // for who can't see them

// --- Homepage ---

inline constexpr std::string_view homepageTitel = "Homepage [{}]";
inline constexpr std::string_view seiteFehlt = "Diese Seite kann ich hier gerade nicht zeigen.";
inline constexpr std::string_view imBrowser = "Im &Browser öffnen";

// --- Mail ---

inline constexpr std::string_view mailBetreff = "Feldkranz!";
inline constexpr std::string_view mailText = "Hier eine Anmerkung zu Feldkranz! :";

} // namespace periphertexte
