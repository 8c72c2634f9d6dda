// The texts of printing a test: what stands on the page, what is asked and told on the way.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace testdrucktexte {

// On the page.
inline constexpr std::string_view punkte = "Punkte :";
inline constexpr std::string_view note = "  Note :";
inline constexpr std::string_view bewertet = "  Bewertet :";

// Captions on which nothing has been chosen.
inline constexpr std::string_view keinFach = "Fach";
inline constexpr std::string_view keineGruppe = "Gruppe :";

inline constexpr MeldungsText fachFehlt{11, "Fachangabe fehlt !", "1", "Wird sofort eingetragen !"};
// Never comes up, since the choice is empty until a group is chosen; that is meant.
inline constexpr MeldungsText gruppeFehlt{11, "Gruppenangabe fehlt !", "1", "Wird sofort eingetragen !"};
inline constexpr NachrichtText punkteFehlen{7, "Testformular ausdrucken",
                                            "Für eine oder mehrere Fragen fehlt die Punktzahl.\n"
                                            "Soll ich das Formular trotzdem drucken ?",
                                            4, 1111};
inline constexpr NachrichtText leer{7, "Testformular ausdrucken", "Ich drucke ein leeres Testformular aus !",
                                    3, 1111};
inline constexpr NachrichtText mitFragen{6, "Testformular ausdrucken",
                                         "Ich drucke ein Testformular mit {} Fragen aus !", 3, 1111};
inline constexpr NachrichtText antworten{7, "Testformular ausdrucken",
                                         "Das Testformular enthält auch Antworten.\r\n"
                                         "Soll ich die Antworten mit ausdrucken ?",
                                         1, 1111};

} // namespace testdrucktexte
