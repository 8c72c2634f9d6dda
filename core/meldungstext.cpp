#include "core/meldungstext.h"

std::string Einsetzen(std::string_view text, std::initializer_list<std::string_view> werte) {
    std::string ergebnis;
    for (const std::string_view wert : werte) {
        const auto stelle = text.find("{}");
        if (stelle == std::string_view::npos) {
            break;
        }
        ergebnis += text.substr(0, stelle);
        ergebnis += wert;
        text.remove_prefix(stelle + 2);
    }
    ergebnis += text;
    return ergebnis;
}
