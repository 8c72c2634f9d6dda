// How a measuring program hands its figures on: one line each on the standard output, which bench.sh puts
// into its table beside the limit of that key (tools/kennzahlen.txt).
#pragma once

#include <functional>
#include <string_view>
#include <vector>

// A ratio: ours against the bare thing measured in the same run, both in the unit given ("ms", "MiB").
void Verhaeltnis(std::string_view schluessel, double unser, double schlicht, std::string_view einheit);
// A rate or another value that stands for itself.
void Einzelwert(std::string_view schluessel, double wert, std::string_view einheit);

// The middle value; the mean of the two middle ones for an even count. 0 for none.
[[nodiscard]] double Median(std::vector<double> werte);
// Milliseconds that one call takes.
[[nodiscard]] double Dauer(const std::function<void()>& arbeit);

// Medians of two works in milliseconds, called in turn so that a busy machine meets both alike; the first
// call of each doesn't count.
struct Paar {
    double unser;
    double schlicht;
};
[[nodiscard]] Paar Abwechselnd(int laeufe, const std::function<double()>& unser,
                               const std::function<double()>& schlicht);
