// The catalogue and the marks of used questions as the windows have them: read off the windows' thread, kept
// until something on the disk is another, and asked for again without waiting. What is in them is
// search/fragenbestand.h and search/benutzung.h.
#pragma once

#include "search/benutzung.h"
#include "search/fragenbestand.h"

#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Fragendienst : public QObject {
    Q_OBJECT

public:
    explicit Fragendienst(QObject* eltern);
    ~Fragendienst() override;

    // Looks at the disk, off this thread, and reads what is new or another there. Comes back at once;
    // bestandNeu and benutzungNeu come when something has changed, geprueft at the end in any case. A file of
    // the catalogue that can't be read is named in the status help, once. The first look at the catalogue
    // shows the progress bar.
    enum class Umfang : std::uint8_t { NurFormulare, Alles };
    void Pruefen(Umfang umfang = Umfang::Alles);

    // The catalogue as read last; empty until the first reading has ended.
    [[nodiscard]] const std::shared_ptr<const Fragenbestand>& bestand() const { return bestand_; }
    // True when the first reading of catalogue and forms has ended.
    [[nodiscard]] bool gelesen() const { return gelesen_; }

    // "schon benutzt in ..." and the short form of it, "" for a question that stands in no form. The open
    // form counts as it is on the screen; ohneOffenes leaves it out, with its file.
    [[nodiscard]] std::string Benutzttext(std::string_view frage, bool ohneOffenes = false) const;
    [[nodiscard]] std::string Benutztspalte(std::string_view frage) const;
    [[nodiscard]] bool benutzt(std::string_view frage, bool ohneOffenes = false) const;
    // The same by a question's number in the catalogue's files (Bestandsdatei::abdruecke).
    [[nodiscard]] bool benutzt(std::uint64_t abdruck, bool ohneOffenes = false) const;

Q_SIGNALS:
    void bestandNeu();
    void benutzungNeu();
    void geprueft();

private:
    class Arbeiter;
    struct Ergebnis;

    void Starten(Umfang umfang);
    void BalkenZeigen();
    void BalkenBeenden();
    void UnlesbaresMelden(const std::vector<std::string>& dateien);
    void Annehmen(const Ergebnis& ergebnis);
    void FortschrittZeigen(float getan);
    [[nodiscard]] std::vector<const Formulareintrag*> Formulare(std::uint64_t abdruck,
                                                                bool ohneOffenes) const;
    [[nodiscard]] const Formulareintrag* Offenes() const;

    std::unique_ptr<Arbeiter> arbeiter_;
    std::shared_ptr<const Fragenbestand> bestand_ = std::make_shared<const Fragenbestand>();
    std::shared_ptr<const Benutzung> benutzung_ = std::make_shared<const Benutzung>();
    std::string appPfad_; // of the last look
    bool gelesen_ = false;
    bool laeuft_ = false;
    std::optional<Umfang> nochmal_;     // asked for while a look was under way
    std::optional<std::string> status_; // what stood in the status help ahead of our progress bar
    // Read off the open form, until the running work of this thread has ended.
    mutable std::optional<Formulareintrag> offenes_;
    mutable bool abgelesen_ = false;
};

// The one service of the process, made at its first use.
[[nodiscard]] Fragendienst& Fragen();
