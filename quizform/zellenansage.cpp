#include "quizform/zellenansage.h"

#include "quizform/quizformular.h"

std::string Zellenansage(std::string_view titel, int n, std::string_view was) {
    const bool ohne = titel.empty() || titel == "Wissen";
    std::string ansage = ohne ? "Gebiet " + std::to_string(GebietVon(n)) : std::string(titel);
    return ansage.append(", Zeile ").append(std::to_string(ZeileVon(n))).append(", ").append(was);
}
