#include "filetools/formularlistetexte.h"

std::string Vorschautext(int felderGesamt, int anzahlWissen, int fragenProWissen) {
    return "Fragen gesamt    : " + std::to_string(felderGesamt) +
           "\r\nWissensgebiete  :   " + std::to_string(anzahlWissen) +
           "\r\nFragen je WG     :   " + std::to_string(fragenProWissen);
}
