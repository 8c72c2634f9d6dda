// The choices for a test form: the sub-themes that it asks about, and the total of its points.
#pragma once

#include "filling/fuellwahl.h"
#include "filling/testfuellung.h"

#include <optional>
#include <vector>

class QListWidget;
class Textzeile;

class Testwahl : public Fuellwahl {
    Q_OBJECT

public:
    explicit Testwahl(QWidget* eltern, const Teststand& form);

    [[nodiscard]] Fuellauftrag auftrag(std::shared_ptr<const Fragenvorrat> vorrat,
                                       const Formularstand& stand) const override;
    [[nodiscard]] Vorschlag vorschlag(const Fuellauftrag& auftrag, std::uint64_t saat) const override;
    [[nodiscard]] std::string befund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) const override;
    void Zeigen(const Fuellauftrag& auftrag) override;
    void StandZeigen(const Formularstand& stand) override;

private:
    void ListeFuellen(const std::vector<Themenwahl>& angekreuzt);
    [[nodiscard]] std::optional<int> Zielpunkte() const;
    [[nodiscard]] std::vector<Themenwahl> Angekreuzt() const;

    QListWidget* lstUnterthemen_ = nullptr;
    std::vector<Themenwahl> eintraege_; // of the list, in its order
    Textzeile* txtZielpunkte_ = nullptr;
};
