// The times of Google Benchmark's rounds, and the figures made of them.
#pragma once

#include "benchmarks/kennzahl.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// Keeps the times in milliseconds by the benchmark's name.
class Zeiten : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& laeufe) override {
        for (const Run& lauf : laeufe) {
            versagt_ = versagt_ || lauf.error_occurred;
            const double einheit = benchmark::GetTimeUnitMultiplier(lauf.time_unit);
            werte_[lauf.run_name.function_name + lauf.run_name.args].push_back(lauf.GetAdjustedRealTime() /
                                                                               einheit * 1000.0);
        }
    }
    void Ausgeben() const {
        for (const auto& [name, werte] : werte_) {
            std::cout << name << ": " << Median(werte) << " ms\n";
        }
    }
    // The ratio of two, if both were measured.
    void Gegen(std::string_view schluessel, const std::string& unser, const std::string& schlicht) const {
        if (werte_.contains(unser) && werte_.contains(schlicht)) {
            Verhaeltnis(schluessel, Median(werte_.at(unser)), Median(werte_.at(schlicht)), "ms");
        }
    }
    // The ratio of a long work and a short one of the same kind, each in its least disturbed round: on a busy
    // machine the long one is disturbed more often.
    void Wachstum(std::string_view schluessel, const std::string& lang, const std::string& kurz) const {
        if (werte_.contains(lang) && werte_.contains(kurz)) {
            Verhaeltnis(schluessel, Kleinster(lang), Kleinster(kurz), "ms");
        }
    }
    // How many in a second, if it was measured.
    void JeSekunde(std::string_view schluessel, const std::string& name) const {
        if (werte_.contains(name)) {
            Einzelwert(schluessel, 1000.0 / Median(werte_.at(name)), "1/s");
        }
    }
    [[nodiscard]] bool versagt() const { return versagt_ || werte_.empty(); }

private:
    [[nodiscard]] double Kleinster(const std::string& name) const {
        return *std::min_element(werte_.at(name).begin(), werte_.at(name).end());
    }

    std::map<std::string, std::vector<double>> werte_;
    bool versagt_ = false;
};
