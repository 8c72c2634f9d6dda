#include "quizform/texte.h"

#include "settings/einstellungen.h"

namespace fktexte {

std::string SpezialTipp() {
    return Einsetzen("Spezialfeld mit Linksklick auswählen\r\n"
                     "\r\n"
                     "mögliche Anzahl von Spezialfeldern :\r\n"
                     "- {} Jokerfelder\r\n"
                     "- {} Glücksfragen\r\n"
                     "- {} Risikofragen\r\n"
                     "- {} Aufgaben\r\n"
                     "- {} Ereignisfelder\r\n",
                     {std::to_string(FelderJ), std::to_string(FelderG), std::to_string(FelderR),
                      std::to_string(FelderA), std::to_string(FelderE)});
}

} // namespace fktexte
