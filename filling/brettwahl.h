// The choices for a quiz form: a column for each area with its theme and sub-theme, and how many questions
// fit it.
#pragma once

#include "filling/brettfuellung.h"
#include "filling/fuellwahl.h"

#include <array>

class QComboBox;
class QGridLayout;
class QLabel;

class Brettwahl : public Fuellwahl {
    Q_OBJECT

public:
    explicit Brettwahl(QWidget* eltern, const Quizstand& form);

    [[nodiscard]] Fuellauftrag auftrag(std::shared_ptr<const Fragenvorrat> vorrat,
                                       const Formularstand& stand) const override;
    [[nodiscard]] Vorschlag vorschlag(const Fuellauftrag& auftrag, std::uint64_t saat) const override;
    [[nodiscard]] std::string befund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) const override;
    void Zeigen(const Fuellauftrag& auftrag) override;
    void StandZeigen(const Formularstand& stand) override;

private:
    // One area's controls.
    struct Spalte {
        QLabel *titel = nullptr, *vorrat = nullptr;
        QComboBox *thema = nullptr, *unter = nullptr;
    };
    void SpalteBauen(QGridLayout& raster, int gebiet);
    void WahlZeigen(const Spalte& spalte, const Themenwahl& wahl);
    static void UnterthemenFuellen(const Spalte& spalte);
    [[nodiscard]] Brettwunsch Wunsch() const;

    std::array<Spalte, anzahlGebiete + 1> spalten_; // from 1
    QCheckBox* chkPunkteWieZeile_ = nullptr;
};
