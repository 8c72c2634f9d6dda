#include "filling/punktziel.h"

#include <algorithm>

Punktziel::Punktziel(std::vector<Stueckgruppe> gruppen, int hoechstens)
    : gruppen_(std::move(gruppen)), hoechstens_(hoechstens) {
    int wertvollstes = 0;
    for (const Stueckgruppe& gruppe : gruppen_) {
        for (const Punktstueck& stueck : gruppe) {
            wertvollstes = std::max(wertvollstes, stueck.punkte);
        }
    }
    hoechstePunkte_ = wertvollstes * hoechstens_;
    wege_.assign(stelle(gruppen_.size() + 1, 0, 0), 0.0);
    wege_[stelle(0, 0, 0)] = 1.0;
    for (std::size_t g = 1; g <= gruppen_.size(); ++g) {
        GruppeZaehlen(g);
    }
}

std::size_t Punktziel::stelle(std::size_t gruppe, int anzahl, int punkte) const {
    const auto jeAnzahl = static_cast<std::size_t>(hoechstePunkte_) + 1;
    const auto jeGruppe = jeAnzahl * (static_cast<std::size_t>(hoechstens_) + 1);
    return gruppe * jeGruppe + static_cast<std::size_t>(anzahl) * jeAnzahl + static_cast<std::size_t>(punkte);
}

double Punktziel::wege(std::size_t gruppe, int anzahl, int punkte) const {
    const bool denkbar = anzahl >= 0 && anzahl <= hoechstens_ && punkte >= 0 && punkte <= hoechstePunkte_;
    return denkbar ? wege_[stelle(gruppe, anzahl, punkte)] : 0.0;
}

void Punktziel::GruppeZaehlen(std::size_t gruppe) {
    for (int anzahl = 0; anzahl <= hoechstens_; ++anzahl) {
        for (int punkte = 0; punkte <= hoechstePunkte_; ++punkte) {
            double summe = wege(gruppe - 1, anzahl, punkte);
            for (const Punktstueck& stueck : gruppen_[gruppe - 1]) {
                summe += wege(gruppe - 1, anzahl - 1, punkte - stueck.punkte);
            }
            wege_[stelle(gruppe, anzahl, punkte)] = summe;
        }
    }
}

bool Punktziel::moeglich(int anzahl, int punkte) const {
    return wege(gruppen_.size(), anzahl, punkte) > 0;
}

std::vector<std::size_t> Punktziel::ziehen(int anzahl, int punkte, Wuerfel& wuerfel) const {
    std::vector<std::size_t> gezogen;
    if (!moeglich(anzahl, punkte)) {
        return gezogen;
    }
    for (std::size_t g = gruppen_.size(); g > 0 && anzahl > 0; --g) {
        double rest = wuerfel.anteil() * wege(g, anzahl, punkte);
        const Punktstueck* stueck = nullptr;
        for (const Punktstueck& eines : gruppen_[g - 1]) {
            const double mit = wege(g - 1, anzahl - 1, punkte - eines.punkte);
            if (mit > 0 && rest >= 0) {
                stueck = &eines;
                rest -= mit;
            }
        }
        // Rounding may leave a rest where there is no way without this group.
        if (stueck != nullptr && (rest < 0 || wege(g - 1, anzahl, punkte) <= 0)) {
            gezogen.push_back(stueck->nr);
            --anzahl;
            punkte -= stueck->punkte;
        }
    }
    return gezogen;
}

std::optional<int> Punktziel::irgendwelche(int anzahl, Wuerfel& wuerfel) const {
    double alle = 0;
    for (int punkte = 0; punkte <= hoechstePunkte_; ++punkte) {
        alle += wege(gruppen_.size(), anzahl, punkte);
    }
    double rest = wuerfel.anteil() * alle;
    std::optional<int> letzte;
    for (int punkte = 0; punkte <= hoechstePunkte_ && (!letzte || rest >= 0); ++punkte) {
        const double so = wege(gruppen_.size(), anzahl, punkte);
        if (so > 0) {
            letzte = punkte;
            rest -= so;
        }
    }
    return letzte;
}
