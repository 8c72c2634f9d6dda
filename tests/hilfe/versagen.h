// Failures out of the helpers: they carry the place in the test that called the helper, and a way to wait
// for a condition with an upper bound.
#pragma once

#include <QString>

#include <functional>

// Where a helper was called; taken by a default argument, so that no macro is needed.
struct Stelle {
    const char* datei = "";
    int zeile = 0;
    static constexpr Stelle hier(const char* datei = __builtin_FILE(), int zeile = __builtin_LINE()) {
        return {datei, zeile};
    }
};

// Marks the running test as failed and goes on.
void Versagen(const QString& grund, Stelle stelle);
// The same where going on makes no sense: ends the test program after the report.
[[noreturn]] void VersagenUndEnde(const QString& grund, Stelle stelle);

// Runs the event loop until the condition holds; false after the time in milliseconds.
[[nodiscard]] bool WartenBis(const std::function<bool()>& bedingung, int frist = 30000);
