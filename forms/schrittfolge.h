// The history of the open form: its values one behind the other, the name of the step between each two of
// them, and the place where the user is. Takes nothing off a window and shows nothing: that is
// forms/verlauf.
#pragma once

#include "forms/formularstand.h"

#include <cstddef>
#include <deque>
#include <string_view>

// Beyond this the oldest steps go. Two hundred steps of a form with usual texts take about 3 MB.
inline constexpr std::size_t groessterVerlauf = std::size_t{16} << 20U;

class Schrittfolge {
public:
    explicit Schrittfolge(std::size_t grenze = groessterVerlauf) : grenze_(grenze) {}

    // Another form: its history begins with this value.
    void Beginnen(Formularstand stand);
    void Verwerfen() { Leeren(); }
    [[nodiscard]] bool leer() const { return eintraege_.empty(); }
    // The value at the place where the user is. Only where there is a history.
    [[nodiscard]] const Formularstand& jetzt() const { return eintraege_.at(stelle_).stand; }

    // A step has led to this value; what had been undone can't come again. A value that shows the same as the
    // last one is no step, but what waits in its stored copy is noted. name is a literal; gruppe as in
    // core/schritt.h. True for a step.
    bool Merken(std::string_view name, Formularstand stand, int gruppe = 0);
    // The next step is one of its own, whatever group it names.
    void GruppeBeenden() { gruppe_ = 0; }

    // Name of the step that would be undone or done again, "" for none.
    [[nodiscard]] std::string_view rueckname() const;
    [[nodiscard]] std::string_view vorname() const;
    // Goes there and gives the value to be shown; nullptr where there is no such step.
    const Formularstand* Zurueck();
    const Formularstand* Vor();

    // Values that are kept, the one in force among them, and the bytes that they take.
    [[nodiscard]] std::size_t anzahl() const { return eintraege_.size(); }
    [[nodiscard]] std::size_t bytes() const { return bytes_; }

private:
    struct Eintrag {
        Formularstand stand;
        std::string_view name; // of the step that led here
        std::size_t bytes;
    };

    void Leeren();
    void Setzen(Eintrag& eintrag, Formularstand stand);
    void Anhaengen(std::string_view name, Formularstand stand);

    std::size_t grenze_;
    std::deque<Eintrag> eintraege_;
    std::size_t stelle_ = 0;
    std::size_t bytes_ = 0;
    int gruppe_ = 0; // of the last step
};
