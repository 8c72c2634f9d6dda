// What a person calls one step of work on a form: a drop with all that it empties, a letter, a command. Who
// does such a step says so here, and whoever keeps the form's history hears of it. Typing isn't told: a text
// is a step from entering its box until leaving it. Keeps nothing itself.
#pragma once

#include <functional>
#include <string_view>

class Schritt {
public:
    // name: what the step is called, a literal. gruppe: steps of one name and the same number above 0 that
    // follow each other directly count as one, as the clicks on one spin control do. Inside another step this
    // is a part of that one.
    explicit Schritt(std::string_view name, int gruppe = 0);
    ~Schritt();
    Schritt(const Schritt&) = delete;
    Schritt& operator=(const Schritt&) = delete;

private:
    std::string_view name_;
    int gruppe_;
};

// beginnt: what was typed before is to be kept as a step of its own. endet: what has changed since then is
// this step's.
struct Schrittbeobachter {
    std::function<void()> beginnt;
    std::function<void(std::string_view name, int gruppe)> endet;
};
// The one observer of all steps; a later one replaces it.
void SchritteBeobachten(Schrittbeobachter neuer);

// True while a step is being done.
[[nodiscard]] bool SchrittLaeuft();
