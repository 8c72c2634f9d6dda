#include "core/formularfenster.h"

#include <algorithm>
#include <vector>

namespace {

// While one form takes another's place both may exist for a moment; the one that came last is the open one.
std::vector<Formularfenster*> formulare;
int nummer = 0; // of the form that came last

} // namespace

Formularfenster* OffenesFormular() {
    return formulare.empty() ? nullptr : formulare.back();
}

Formularfenster* OffenesFormular(Formart art) {
    const auto fund = std::ranges::find_if(formulare, [art](const auto* form) { return form->art() == art; });
    return fund == formulare.end() ? nullptr : *fund;
}

Formart OffeneArt() {
    const Formularfenster* form = OffenesFormular();
    return form == nullptr ? Formart::Keine : form->art();
}

int Formularnummer() {
    return formulare.empty() ? 0 : nummer;
}

void FormularWechselt() {
    ++nummer;
}

void FormularAnmelden(Formularfenster& form) {
    FormularWechselt();
    formulare.push_back(&form);
}

void FormularAbmelden(const Formularfenster& form) {
    std::erase(formulare, &form);
}
