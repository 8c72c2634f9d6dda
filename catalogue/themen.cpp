#include "catalogue/themen.h"

#include <algorithm>

namespace {

constexpr std::array<Unterthema, 13> aBisZ{{{"A-Z", "A_A-Z.TXT"},
                                            {"Abkürzungen", "A_ABK.TXT"},
                                            {"Essen", "A_ESSEN.TXT"},
                                            {"Fremd", "A_FREMD.TXT"},
                                            {"Haus", "A_HAUS.TXT"},
                                            {"KFZ", "A_KFZ.TXT"},
                                            {"Land", "A_LAND.TXT"},
                                            {"Mensch", "A_MENSCH.TXT"},
                                            {"Musik", "A_MUSIK.TXT"},
                                            {"Person", "A_PERSON.TXT"},
                                            {"Schule", "A_SCHULE.TXT"},
                                            {"Spiel", "A_SPIEL.TXT"},
                                            {"Sprache", "A_SPRACH.TXT"}}};

constexpr std::array<Unterthema, 3> aktuelles{
    {{"CVJM", "AK_CVJM.TXT"}, {"Heimat", "AK_HEIMA.TXT"}, {"Politik", "AK_POLIT.TXT"}}};

constexpr std::array<Unterthema, 11> altesTestament{{{"Bibelstellen", "AT_STELL.TXT"},
                                                     {"Bücher", "AT_BUCH.TXT"},
                                                     {"Geschichte", "AT_GESCH.TXT"},
                                                     {"Könige", "AT_KOENI.TXT"},
                                                     {"Orte", "AT_ORTE.TXT"},
                                                     {"Personen", "AT_PERSO.TXT"},
                                                     {"Propheten", "AT_PROPH.TXT"},
                                                     {"Richter", "AT_RICHT.TXT"},
                                                     {"Sonstiges", "AT_SONST.TXT"},
                                                     {"Tiere", "AT_TIER.TXT"},
                                                     {"Zahlen", "AT_ZAHL.TXT"}}};

constexpr std::array<Unterthema, 1> aufgaben{{{"Standardaufgaben", "AUF_STAN.TXT"}}};

constexpr std::array<Unterthema, 1> ereignisse{{{"Standardereignisse", "ER_STAN.TXT"}}};

constexpr std::array<Unterthema, 12> geschichte{{{"Bauwerke", "G_BAUWER.TXT"},
                                                 {"Begriffe", "G_BEGRIF.TXT"},
                                                 {"Deutschland", "G_DEUTSC.TXT"},
                                                 {"Essen", "G_ESSEN.TXT"},
                                                 {"Europa", "G_EUROPA.TXT"},
                                                 {"Orden", "G_ORDEN.TXT"},
                                                 {"Orte", "G_ORTE.TXT"},
                                                 {"Personen", "G_PERSON.TXT"},
                                                 {"Sonstiges", "G_SONST.TXT"},
                                                 {"Vereine", "G_VEREIN.TXT"},
                                                 {"Volk", "G_VOLK.TXT"},
                                                 {"Welt", "G_WELT.TXT"}}};

constexpr std::array<Unterthema, 19> haeuptlingsbuch{{{"Andacht", "HB_A.TXT"},
                                                      {"Bibelkunde AT", "HB_BK-AT.TXT"},
                                                      {"Bibelkunde NT", "HB_BK-NT.TXT"},
                                                      {"CVJM-Geschichte", "HB_CVJM.TXT"},
                                                      {"Erste Hilfe", "HB_EH.TXT"},
                                                      {"Erzählen", "HB_ERZ.TXT"},
                                                      {"Feuerstellen", "HB_F.TXT"},
                                                      {"Frühsport", "HB_FS.TXT"},
                                                      {"Geheimschrift", "HB_GS.TXT"},
                                                      {"Häuptling", "HB_H.TXT"},
                                                      {"Heraldik", "HB_HE.TXT"},
                                                      {"Karte+Kompaß", "HB_KK.TXT"},
                                                      {"Kirchengeschichte", "HB_KG.TXT"},
                                                      {"Knoten", "HB_KN.TXT"},
                                                      {"Krokieren", "HB_KROKI.TXT"},
                                                      {"Lagerkunst", "HB_LK.TXT"},
                                                      {"Schätzen+Messen", "HB_SM.TXT"},
                                                      {"Waldläuferzeichen", "HB_WZ.TXT"},
                                                      {"Werkzeugkunde", "HB_WK.TXT"}}};

constexpr std::array<Unterthema, 8> land{{{"Bauwerke", "LA_BAUWK.TXT"},
                                          {"Berge", "LA_BERG.TXT"},
                                          {"Flüsse", "LA_FLUSS.TXT"},
                                          {"Länder", "LA_LAND.TXT"},
                                          {"Meere", "LA_MEER.TXT"},
                                          {"Orte", "LA_ORTE.TXT"},
                                          {"Sonstiges", "LA_SONST.TXT"},
                                          {"Städte", "LA_STADT.TXT"}}};

constexpr std::array<Unterthema, 6> leute{{{"Erfinder", "LE_ERFIN.TXT"},
                                           {"Geschichte", "LE_GESCH.TXT"},
                                           {"Kultur", "LE_KULT.TXT"},
                                           {"Leute", "LE_LEUTE.TXT"},
                                           {"Politik", "LE_POLIT.TXT"},
                                           {"Sonstige", "LE_SONST.TXT"}}};

constexpr std::array<Unterthema, 6> natur{{{"Begriffe", "NA_BEGRI.TXT"},
                                           {"Erde", "NA_ERDE.TXT"},
                                           {"Himmel", "NA_HIMM.TXT"},
                                           {"Luft", "NA_LUFT.TXT"},
                                           {"Sonstiges", "NA_SONST.TXT"},
                                           {"Wasser", "NA_WASS.TXT"}}};

constexpr std::array<Unterthema, 11> neuesTestament{{{"Bibelstellen", "NT_STELL.TXT"},
                                                     {"Evangelien", "NT_EVAN.TXT"},
                                                     {"Apostelgeschichte", "NT_APOST.TXT"},
                                                     {"Briefe", "NT_BRIEF.TXT"},
                                                     {"Offenbarung", "NT_OFFEN.TXT"},
                                                     {"Personen", "NT_PERSO.TXT"},
                                                     {"Jesus", "NT_JESUS.TXT"},
                                                     {"Paulus", "NT_PAULU.TXT"},
                                                     {"Sonstiges", "NT_SONST.TXT"},
                                                     {"Tiere", "NT_TIER.TXT"},
                                                     {"Zahlen", "NT_ZAHL.TXT"}}};

constexpr std::array<Unterthema, 6> pflanzen{{{"Bäume", "PF_BAUM.TXT"},
                                              {"Früchte", "PF_FRUCH.TXT"},
                                              {"Pflanzen", "PF_PFLAN.TXT"},
                                              {"Pilze", "PF_PILZE.TXT"},
                                              {"Sonstige", "PF_SONST.TXT"},
                                              {"Sträucher", "PF_STRAU.TXT"}}};

constexpr std::array<Unterthema, 14> sport{{{"Autosport", "SP_AUTO.TXT"},
                                            {"Ballsport", "SP_BALL.TXT"},
                                            {"Begriffe", "SP_BEGRI.TXT"},
                                            {"CVJM", "SP_CVJM.TXT"},
                                            {"Disziplinen", "SP_DISZI.TXT"},
                                            {"Fussball", "SP_FUSSB.TXT"},
                                            {"Kampfsport", "SP_KAMPF.TXT"},
                                            {"Olympiade", "SP_OLYMP.TXT"},
                                            {"Radsport", "SP_RAD.TXT"},
                                            {"Reitsport", "SP_REIT.TXT"},
                                            {"Sonstiges", "SP_SONST.TXT"},
                                            {"Turnen", "SP_TURN.TXT"},
                                            {"Wassersport", "SP_WASS.TXT"},
                                            {"Wintersport", "SP_WINTE.TXT"}}};

constexpr std::array<Unterthema, 3> sprueche{
    {{"Menschen", "SPR_MENS.TXT"}, {"Tiere", "SPR_TIER.TXT"}, {"Sonstige", "SPR_SONS.TXT"}}};

constexpr std::array<Unterthema, 11> technik{{{"Chemie", "TE_CHEMI.TXT"},
                                              {"Eisenbahn", "TE_BAHN.TXT"},
                                              {"Fahrrad", "TE_FAHR.TXT"},
                                              {"Geometrie", "TE_GEO.TXT"},
                                              {"Kfz", "TE_KFZ.TXT"},
                                              {"Mathematik", "TE_MATHE.TXT"},
                                              {"Namen", "TE_NAMEN.TXT"},
                                              {"Orte", "TE_ORTE.TXT"},
                                              {"Computer", "TE_COMPU.TXT"},
                                              {"Physik", "TE_PHYS.TXT"},
                                              {"Sonstiges", "TE_SONST.TXT"}}};

constexpr std::array<Unterthema, 13> tiere{{{"Echsen", "TI_ECHSE.TXT"},
                                            {"Gattung", "TI_GATTU.TXT"},
                                            {"Haustiere", "TI_HAUS.TXT"},
                                            {"Insekten", "TI_INSEK.TXT"},
                                            {"Kerfe", "TI_KERFE.TXT"},
                                            {"Kriechtiere", "TI_KRIEC.TXT"},
                                            {"Nager", "TI_NAGER.TXT"},
                                            {"Raubtiere", "TI_RAUB.TXT"},
                                            {"Säuger", "TI_SAEUG.TXT"},
                                            {"Sonstige", "TI_SONST.TXT"},
                                            {"Vögel", "TI_VOGEL.TXT"},
                                            {"Wassertiere", "TI_WASS.TXT"},
                                            {"Wildtiere", "TI_WILD.TXT"}}};

// The folder that a message names is not the folder of the file in twelve rows; it is meant.
constexpr std::array<Thema, 16> themen{
    {{"A-Z", "A-Z", "W_A-Z.TXT", false, "\\WISSEN\\Aktuell", aBisZ},
     {"Aktuelles", "AKTUELL", "W_AKTUEL.TXT", true, "\\WISSEN\\Aktuell", aktuelles},
     {"Altes Testament", "AT", "W_AT.TXT", false, "\\WISSEN\\Aktuell", altesTestament},
     {"- Aufgaben -", "AUFGABEN", "W_AUFGAB.TXT", true, "\\WISSEN\\Aufgaben", aufgaben},
     {"- Ereignisse -", "EREIGNIS", "W_EREIGN.TXT", true, "\\WISSEN\\Ereignis", ereignisse},
     {"Geschichte", "GESCHICH", "W_GESCHI.TXT", false, "\\WISSEN\\Aktuell", geschichte},
     {"Häuptlingsbuch", "HB", "W_HB.TXT", true, "\\WISSEN\\HB", haeuptlingsbuch},
     {"Land", "LAND", "W_LAND.TXT", false, "\\WISSEN\\Aktuell", land},
     {"Leute", "LEUTE", "W_LEUTE.TXT", false, "\\WISSEN\\Aktuell", leute},
     {"Natur", "NATUR", "W_NATUR.TXT", false, "\\WISSEN\\Aktuell", natur},
     {"Neues Testament", "NT", "W_NT.TXT", false, "\\WISSEN\\Aktuell", neuesTestament},
     {"Pflanzen", "PFLANZEN", "W_PFLANZ.TXT", false, "\\WISSEN\\Aktuell", pflanzen},
     {"Sport", "SPORT", "W_SPORT.TXT", false, "\\WISSEN\\Aktuell", sport},
     {"Sprüche", "SPRUECHE", "W_SPRUCH.TXT", false, "\\WISSEN\\Aktuell", sprueche},
     {"Technik", "TECHNIK", "W_TECH.TXT", false, "\\WISSEN\\Aktuell", technik},
     {"Tiere", "TIERE", "W_TIERE.TXT", false, "\\WISSEN\\Aktuell", tiere}}};

} // namespace

std::span<const Thema> Themen() {
    return themen;
}

const Thema* ThemaSuchen(std::string_view name) {
    const auto* const fund =
        std::find_if(themen.begin(), themen.end(), [name](const Thema& thema) { return thema.name == name; });
    return fund == themen.end() ? nullptr : fund;
}

std::string_view UnterthemaDatei(const Thema& thema, std::string_view unterthema) {
    const auto fund = std::find_if(thema.unterthemen.begin(), thema.unterthemen.end(),
                                   [unterthema](const Unterthema& u) { return u.name == unterthema; });
    return fund == thema.unterthemen.end() ? std::string_view() : fund->datei;
}
