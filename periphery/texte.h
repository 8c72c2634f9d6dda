// What the rule document's window and the homepage's window say. Only texts.
#pragma once

#include "core/hinweistext.h"
#include "core/meldungstext.h"

#include <array>
#include <string_view>

namespace periphertexte {

// --- Rule document ---

inline constexpr std::string_view regelDatei = "/REGEL/Feldkranz.pdf"; // beneath AppPfad, slashes as here
inline constexpr MeldungsText regelFehlt{0, "Die Datei\r\n{}\r\nscheint nicht vorhanden zu sein.", "1",
                                         "Dann brich ab !"};
inline constexpr std::string_view regelTitel = " Spielregel";

inline constexpr std::string_view kannNichtZeigen = " Ich kann hier leider keine PDF-Datei zeigen.";
inline constexpr std::string_view imSystemleser = "Im &PDF-Programm öffnen";
inline constexpr std::string_view keinSystemleser =
    " Auf diesem Rechner finde ich kein Programm, das PDF-Dateien zeigt.";
inline constexpr std::string_view nichtLesbar =
    " Diese Datei kann ich nicht lesen: sie ist beschädigt oder verschlüsselt.";
inline constexpr std::string_view seiteVon = " Seite {} von {}  -  {} %";
inline constexpr std::string_view fundVon = "  -  Fundstelle {} von {}";
inline constexpr std::string_view keinFund = "  -  [ {} ] kommt nicht vor.";
inline constexpr std::string_view seite = "Seite";
inline constexpr std::string_view von = "von {}";
inline constexpr std::string_view kleiner = "Kleiner";
inline constexpr std::string_view groesser = "Größer";
inline constexpr std::string_view suchen = "&Suchen";
inline constexpr std::string_view seitenName = "Seiten der Spielregel"; // for who can't see them

inline constexpr std::string_view regelHinweis = "Spielregel"; // title of the tips
inline constexpr std::string_view suchStatus = " In der Spielregel suchen";
inline constexpr std::array leserHinweise{
    Hinweistext{"brwWebBrowser", "Spielregel für Feldkranz!", regelHinweis, " Spielregel lesen"},
    Hinweistext{"cmdSeiteZurueck", "Eine Seite zurückblättern.\r\n[Strg]+[Bild auf]", regelHinweis,
                " Eine Seite zurück"},
    Hinweistext{"cmdSeiteWeiter", "Eine Seite weiterblättern.\r\n[Strg]+[Bild ab]", regelHinweis,
                " Eine Seite weiter"},
    Hinweistext{"txtSeite", "Nummer der Seite eintragen und mit [Enter] dorthin blättern.", regelHinweis,
                " Seite nach ihrer Nummer aufschlagen"},
    Hinweistext{"cmdKleiner", "Seite kleiner zeigen.\r\n[Strg]+[-]", regelHinweis, " Seite kleiner zeigen"},
    Hinweistext{"cmdGroesser", "Seite größer zeigen.\r\n[Strg]+[+]", regelHinweis, " Seite größer zeigen"},
    Hinweistext{"cmdBreite", "Seite so breit wie das Fenster zeigen.\r\n[Strg]+[0]", regelHinweis,
                " Seite in der Breite des Fensters"},
    Hinweistext{"cmdGanzeSeite", "Ganze Seite zeigen.\r\n[Strg]+[1]", regelHinweis, " Ganze Seite zeigen"},
    Hinweistext{"txtSuche",
                "Hier steht, wonach gesucht wird.\r\n"
                "Mit [Strg]+[F] beginnen, mit [Enter] weiter, mit [Esc] beenden.",
                regelHinweis, suchStatus},
    Hinweistext{"lblSuche", "Mit [Strg]+[F] beginnt die Suche.", regelHinweis, suchStatus},
    Hinweistext{"cmdFundZurueck", "Zur vorigen Fundstelle.\r\n[Umschalt]+[F3]", regelHinweis,
                " Vorige Fundstelle"},
    Hinweistext{"cmdSystemleser",
                "Spielregel in dem Programm öffnen, das auf diesem Rechner PDF-Dateien zeigt.", regelHinweis,
                " Spielregel im PDF-Programm öffnen"},
    Hinweistext{"cmdFundWeiter", "Zur nächsten Fundstelle.\r\n[F3]", regelHinweis, " Nächste Fundstelle"},
};

// --- Homepage ---

inline constexpr std::string_view homepageTitel = "Homepage [{}]";
inline constexpr std::string_view seiteFehlt = "Diese Seite kann ich hier gerade nicht zeigen.";
inline constexpr std::string_view imBrowser = "Im &Browser öffnen";
inline constexpr std::array homepageHinweise{
    Hinweistext{"WebBrowser1", "Internetseite mit den Downloads zum Programm.", "Internet",
                " Internetseite des Programm-Entwicklers"},
    Hinweistext{"pnlErsatz", "Ohne Verbindung zum Internet bleibt dieses Fenster leer.", "Internet",
                " Internetseite ist nicht zu erreichen"},
    Hinweistext{"cmdBrowser", "Internetseite im Browser öffnen, der auf diesem Rechner üblich ist.",
                "Internet", " Internetseite im Browser öffnen"},
};

// --- Mail ---

inline constexpr std::string_view mailBetreff = "Feldkranz!";
inline constexpr std::string_view mailText = "Hier eine Anmerkung zu Feldkranz! :";

} // namespace periphertexte
