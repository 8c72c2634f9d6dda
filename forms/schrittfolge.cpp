#include "forms/schrittfolge.h"

#include <utility>

void Schrittfolge::Leeren() {
    eintraege_.clear();
    stelle_ = 0;
    bytes_ = 0;
    gruppe_ = 0;
}

void Schrittfolge::Beginnen(Formularstand stand) {
    Leeren();
    Anhaengen({}, std::move(stand));
}

void Schrittfolge::Setzen(Eintrag& eintrag, Formularstand stand) {
    bytes_ -= eintrag.bytes;
    eintrag.stand = std::move(stand);
    eintrag.bytes = Speicherbedarf(eintrag.stand);
    bytes_ += eintrag.bytes;
}

void Schrittfolge::Anhaengen(std::string_view name, Formularstand stand) {
    while (eintraege_.size() > stelle_ + 1) {
        bytes_ -= eintraege_.back().bytes;
        eintraege_.pop_back();
    }
    eintraege_.push_back({{}, name, 0});
    Setzen(eintraege_.back(), std::move(stand));
    // The step before last may be beyond the limit with the last one alone; one step back there always is.
    while (bytes_ > grenze_ && eintraege_.size() > 2) {
        bytes_ -= eintraege_.front().bytes;
        eintraege_.pop_front();
    }
    stelle_ = eintraege_.size() - 1;
}

bool Schrittfolge::Merken(std::string_view name, Formularstand stand, int gruppe) {
    if (eintraege_.empty()) {
        return false;
    }
    Eintrag& hier = eintraege_.at(stelle_);
    if (Gleichgezeigt(hier.stand, stand)) {
        Setzen(hier, std::move(stand));
        return false;
    }
    const bool fortgesetzt = gruppe > 0 && gruppe == gruppe_ && hier.name == name &&
                             stelle_ + 1 == eintraege_.size() && stelle_ > 0;
    gruppe_ = gruppe;
    if (fortgesetzt) {
        Setzen(hier, std::move(stand));
    } else {
        Anhaengen(name, std::move(stand));
    }
    return true;
}

std::string_view Schrittfolge::rueckname() const {
    return stelle_ == 0 || eintraege_.empty() ? std::string_view() : eintraege_.at(stelle_).name;
}

std::string_view Schrittfolge::vorname() const {
    return stelle_ + 1 >= eintraege_.size() ? std::string_view() : eintraege_.at(stelle_ + 1).name;
}

const Formularstand* Schrittfolge::Zurueck() {
    gruppe_ = 0;
    if (stelle_ == 0 || eintraege_.empty()) {
        return nullptr;
    }
    --stelle_;
    return &eintraege_.at(stelle_).stand;
}

const Formularstand* Schrittfolge::Vor() {
    gruppe_ = 0;
    if (stelle_ + 1 >= eintraege_.size()) {
        return nullptr;
    }
    ++stelle_;
    return &eintraege_.at(stelle_).stand;
}
