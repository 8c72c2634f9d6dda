// The states of a disk that a save may meet, each real or made by a rule, and what the save must come to on
// it.
#pragma once

#include "tests/stoerung/speicherprobe.h"

struct Platte {
    const char* name = "";
    int fehlernummer = 0; // what the user is told of; 0 where the save comes about
    // Rules for a folder in which the file lies.
    std::function<Regel(const std::string& ordner)> regel{};
    // What happens to the disk before the save, and how it is put right again.
    std::function<void(const Speicherfall&)> stoeren{};
    std::function<void(const Speicherfall&)> heilen{};
    // Where the old file lies meanwhile, if not in its place.
    std::function<QString(const Speicherfall&)> alterOrt{};
    // Not even the look at the old file comes about, so that it is asked about.
    bool unlesbar = false;
};

[[nodiscard]] const std::vector<Platte>& Platten();

// The folder lets nothing be made, renamed or removed in it; the files in it are open to the user.
[[nodiscard]] Regel Verschlossen(const std::string& ordner);

// A column "platte" with a row for each.
void PlattenEintragen();
// Saves on that disk, every dialog expected with its whole text, works on in the window, and saves again on a
// sound one. Fails the test where something is lost or claimed.
void PlatteErproben(const Speicherfall& fall, const Platte& platte);

// The name of a call that is made without the hourglass, or nothing; the list of forms, which looks into its
// folder again while a message is up, needs none.
[[nodiscard]] QStringList OhneUhr(const Aufruf& aufruf);
// A save of which every call takes its time, a second in all, comes about under the hourglass.
void LangsamErproben(const Speicherfall& fall);
