// The hits of a search as a table: the texts are taken where they stand, and rows come as they are scrolled
// to, so that a million hits are shown as fast as ten. What was found is marked by search/treffermaler.h.
#pragma once

#include "search/fragenbestand.h"
#include "search/suchanfrage.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

enum class Trefferspalte : std::uint8_t { Frage, Antwort, Thema, Unterthema, Punkte, Benutzt };

class Treffermodell : public QAbstractTableModel {
    Q_OBJECT

public:
    // What is told about the use of a question: short for the column, whole for its tip.
    struct Nutzung {
        std::function<std::string(std::string_view frage)> kurz, ganz;
    };
    Treffermodell(Nutzung nutzung, QObject* eltern);

    void setTreffer(std::shared_ptr<const Fragenbestand> bestand, std::vector<std::uint32_t> nummern,
                    Suchanfrage anfrage);
    // Uses have changed: the column is asked for anew.
    void NutzungNeu();

    [[nodiscard]] std::size_t anzahl() const { return nummern_.size(); }
    [[nodiscard]] Katalogfrage treffer(int zeile) const;
    [[nodiscard]] std::uint32_t nummer(int zeile) const { return nummern_[static_cast<std::size_t>(zeile)]; }
    [[nodiscard]] const Fragenbestand& bestand() const { return *bestand_; }
    [[nodiscard]] const Suchanfrage& anfrage() const { return anfrage_; }

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override;
    [[nodiscard]] QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& eltern) const override;
    void fetchMore(const QModelIndex& eltern) override;

private:
    Nutzung nutzung_;
    std::shared_ptr<const Fragenbestand> bestand_ = std::make_shared<const Fragenbestand>();
    std::vector<std::uint32_t> nummern_;
    Suchanfrage anfrage_;
    int gezeigt_ = 0; // rows that the table knows of
};
