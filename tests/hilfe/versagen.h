// Failures out of the helpers: they carry the place in the test that called the helper. And the two ways to
// wait: for a condition with an upper bound, and for the proof that nothing comes.
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

// Runs the event loop until a timer of so many milliseconds, started now, has run out. Timers fire in the
// order in which they are due: a shorter one that was running has fired by then, however busy the machine is.
void UhrenAbwarten(int millisekunden, Stelle aufrufer = Stelle::hier());
