#include "tests/stoerung/stoerung.h"

#include <algorithm>
#include <utility>

namespace {

struct Laufende {
    std::shared_mutex schloss;
    Stoerung* stoerung = nullptr;
};

// Never destroyed: the process makes calls to its very end.
Laufende& laufende() {
    static auto* const eine = new Laufende; // NOLINT(cppcoreguidelines-owning-memory)
    return *eine;
}

void Setzen(Stoerung* stoerung) {
    const std::unique_lock riegel(laufende().schloss);
    laufende().stoerung = stoerung;
}

} // namespace

LaufendeStoerung::LaufendeStoerung() : riegel_(laufende().schloss), stoerung_(laufende().stoerung) {}

Stoerung::Stoerung(std::vector<std::string> orte, Regel regel, Faeden faeden)
    : orte_(std::move(orte)), regel_(std::move(regel)), faeden_(faeden) {
    Setzen(this);
}

Stoerung::~Stoerung() {
    Setzen(nullptr);
}

bool Stoerung::Betroffen(std::string_view pfad) const {
    return std::ranges::any_of(orte_, [pfad](const std::string& ort) {
        return pfad.starts_with(ort) && (pfad.size() == ort.size() || pfad[ort.size()] == '/');
    });
}

int Stoerung::Entscheiden(Aufruf aufruf) {
    if ((faeden_ == Faeden::Dieser && std::this_thread::get_id() != faden_) || !Betroffen(aufruf.pfad)) {
        return 0;
    }
    {
        const std::lock_guard riegel(schloss_);
        aufruf.nummer = static_cast<int>(aufrufe_.size()) + 1;
        aufrufe_.push_back(aufruf);
    }
    // Outside the lock: a rule may take its time, and makes calls of its own.
    const int fehlernummer = regel_ ? regel_(aufruf) : 0;
    const std::lock_guard riegel(schloss_);
    aufrufe_.at(static_cast<std::size_t>(aufruf.nummer) - 1).fehlernummer = fehlernummer;
    return fehlernummer;
}

void Stoerung::Merken(int deskriptor, const std::string& pfad) {
    const std::lock_guard riegel(schloss_);
    offene_[deskriptor] = pfad;
}

void Stoerung::Vergessen(int deskriptor) {
    const std::lock_guard riegel(schloss_);
    offene_.erase(deskriptor);
}

std::string Stoerung::Pfad(int deskriptor) {
    const std::lock_guard riegel(schloss_);
    const auto offen = offene_.find(deskriptor);
    return offen == offene_.end() ? std::string() : offen->second;
}
