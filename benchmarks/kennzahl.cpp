#include "benchmarks/kennzahl.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <utility>

void Verhaeltnis(std::string_view schluessel, double unser, double schlicht, std::string_view einheit) {
    std::cout << "KENNZAHL;" << schluessel << ';' << unser << ';' << schlicht << ';' << einheit << std::endl;
}

void Einzelwert(std::string_view schluessel, double wert, std::string_view einheit) {
    std::cout << "KENNZAHL;" << schluessel << ';' << wert << ";;" << einheit << std::endl;
}

double Median(std::vector<double> werte) {
    if (werte.empty()) {
        return 0.0;
    }
    std::sort(werte.begin(), werte.end());
    const std::size_t mitte = werte.size() / 2;
    return werte.size() % 2 == 1 ? werte[mitte] : (werte[mitte - 1] + werte[mitte]) / 2.0;
}

double Dauer(const std::function<void()>& arbeit) {
    const auto anfang = std::chrono::steady_clock::now();
    arbeit();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - anfang).count();
}

Paar Abwechselnd(int laeufe, const std::function<double()>& unser, const std::function<double()>& schlicht) {
    std::vector<double> zeitenUnser;
    std::vector<double> zeitenSchlicht;
    (void)unser();
    (void)schlicht();
    for (int lauf = 0; lauf < laeufe; ++lauf) {
        zeitenUnser.push_back(unser());
        zeitenSchlicht.push_back(schlicht());
    }
    return {Median(std::move(zeitenUnser)), Median(std::move(zeitenSchlicht))};
}
