#include "search/fragendienst.h"

#include "core/formularfenster.h"
#include "core/fortschritt.h"
#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "forms/formulare.h"
#include "forms/verlauf.h"
#include "search/faltung.h"
#include "search/formularblick.h"
#include "search/katalogblick.h"
#include "search/texte.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <utility>

struct Fragendienst::Ergebnis {
    std::string appPfad;
    bool ganz = false; // catalogue and forms
    bool bestandNeu = false, benutzungNeu = false;
    std::shared_ptr<const Fragenbestand> bestand;
    std::shared_ptr<const Benutzung> benutzung;
    std::vector<std::string> unlesbar;
};

// What one look needs, taken in the windows' thread.
struct Blickauftrag {
    std::string appPfad;
    std::optional<std::vector<QString>> katalog; // none: the forms alone
    std::vector<Formularort> formulare;
};

class Fragendienst::Arbeiter {
public:
    Arbeiter() { faden_.setMaxThreadCount(1); }
    ~Arbeiter() {
        ende_ = true;
        faden_.waitForDone();
    }
    Arbeiter(const Arbeiter&) = delete;
    Arbeiter& operator=(const Arbeiter&) = delete;

    void Auftragen(Blickauftrag auftrag, std::function<void(float)> fortschritt,
                   std::function<void(Ergebnis)> fertig) {
        faden_.start([this, auftrag = std::move(auftrag), fortschritt = std::move(fortschritt),
                      fertig = std::move(fertig)] { fertig(Nachsehen(auftrag, fortschritt)); });
    }

private:
    Ergebnis Nachsehen(const Blickauftrag& auftrag, const std::function<void(float)>& fortschritt) {
        if (std::exchange(appPfad_, auftrag.appPfad) != auftrag.appPfad) {
            katalog_ = {};
            formulare_ = {};
        }
        Ergebnis ergebnis;
        ergebnis.appPfad = appPfad_;
        ergebnis.ganz = auftrag.katalog.has_value();
        if (ergebnis.ganz) {
            ergebnis.bestandNeu = katalog_.Nachsehen(*auftrag.katalog, [&](float getan) {
                fortschritt(getan);
                return !ende_;
            });
            ergebnis.unlesbar = katalog_.neuUnlesbar();
        }
        ergebnis.benutzungNeu = formulare_.Nachsehen(auftrag.formulare, [this] { return !ende_; });
        ergebnis.bestand = katalog_.bestand();
        ergebnis.benutzung = formulare_.benutzung();
        return ergebnis;
    }

    std::atomic<bool> ende_ = false;
    // The thread's own.
    std::string appPfad_;
    Katalogblick katalog_;
    Formularblick formulare_;
    QThreadPool faden_; // last: it uses all the others
};

namespace {

Formulareintrag Abgelesen() {
    const Formularstand stand = FormularstandJetzt();
    Formulareintrag eintrag;
    const auto aufnehmen = [&eintrag](const auto& fragen) {
        for (const std::string& frage : fragen) {
            if (const std::uint64_t abdruck = AbdruckVon(frage); abdruck != 0) {
                eintrag.abdruecke.push_back(abdruck);
            }
        }
    };
    const std::string& pfad = Formulardatei(OffeneArt());
    eintrag.pfad = Eintragspfad(pfad);
    eintrag.name = pfad.empty() ? std::string(suchtexte::diesesFormular) : NurDateiname(pfad);
    if (const auto* quiz = std::get_if<Quizstand>(&stand.form); quiz != nullptr) {
        aufnehmen(quiz->gezeigt.FrageText);
        eintrag.datum = Getrimmt(quiz->gezeigt.FormDatum);
    } else {
        aufnehmen(std::get<Teststand>(stand.form).gezeigt.HBFrageText);
    }
    if (eintrag.datum.empty()) {
        eintrag.datum = QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yyyy")).toStdString();
    }
    return eintrag;
}

} // namespace

Fragendienst::Fragendienst(QObject* eltern) : QObject(eltern), arbeiter_(std::make_unique<Arbeiter>()) {}

Fragendienst::~Fragendienst() {
    arbeiter_.reset(); // it speaks to this object as long as it works
}

void Fragendienst::Pruefen(Umfang umfang) {
    if (std::exchange(appPfad_, Stand.AppPfad) != Stand.AppPfad) {
        bestand_ = std::make_shared<const Fragenbestand>();
        benutzung_ = std::make_shared<const Benutzung>();
        gelesen_ = false;
    }
    if (laeuft_) {
        nochmal_ = std::max(umfang, nochmal_.value_or(umfang)); // what has changed since it looked there
        return;
    }
    Starten(umfang);
}

void Fragendienst::Starten(Umfang umfang) {
    laeuft_ = true;
    Blickauftrag auftrag{Stand.AppPfad, {}, {}};
    if (umfang == Umfang::Alles) {
        auftrag.katalog = Katalogordner(Stand.AppPfad);
        BalkenZeigen();
    }
    for (const Formart art : {Formart::Quiz, Formart::Test}) {
        auftrag.formulare.push_back(FormularortVon(Stand.AppPfad + std::string(Formularordner(art))));
    }
    const bool zeigen = status_.has_value();
    arbeiter_->Auftragen(
        std::move(auftrag),
        [this, zeigen](float getan) {
            if (zeigen) {
                QMetaObject::invokeMethod(this, [this, getan] { FortschrittZeigen(getan); });
            }
        },
        [this](Ergebnis ergebnis) {
            QMetaObject::invokeMethod(this, [this, ergebnis = std::move(ergebnis)] { Annehmen(ergebnis); });
        });
}

void Fragendienst::BalkenZeigen() {
    if (!gelesen_ && !Fortschritt.FortschrittAktiv) {
        status_ = HilfeStand();
        FortschrittStart(suchtexte::lesen);
    }
}

void Fragendienst::FortschrittZeigen(float getan) {
    constexpr float voll = 50.0F; // of the bar's steps, which are two per cent each
    if (status_ && Fortschritt.FortschrittAktiv && getan * voll >= Fortschritt.FortschrittWert + 1) {
        FortschrittSchritt(1);
    }
}

void Fragendienst::BalkenBeenden() {
    if (!status_) {
        return;
    }
    FortschrittEnde();
    if (HilfeStand() == std::string(suchtexte::lesen).append(" ")) { // nobody has said anything since
        HilfeStandSetzen(*status_);
    }
    status_.reset();
}

void Fragendienst::UnlesbaresMelden(const std::vector<std::string>& dateien) {
    if (dateien.size() == 1) {
        HilfeText(Einsetzen(suchtexte::unlesbar, {dateien.front()}));
    } else if (!dateien.empty()) {
        HilfeText(Einsetzen(suchtexte::mehrUnlesbar, {dateien.front(), std::to_string(dateien.size() - 1)}));
    }
}

void Fragendienst::Annehmen(const Ergebnis& ergebnis) {
    laeuft_ = false;
    BalkenBeenden();
    const std::optional<Umfang> nochmal = std::exchange(nochmal_, std::nullopt);
    if (ergebnis.appPfad == Stand.AppPfad) { // else of another program folder
        bestand_ = ergebnis.bestand;
        benutzung_ = ergebnis.benutzung;
        gelesen_ = gelesen_ || ergebnis.ganz;
        UnlesbaresMelden(ergebnis.unlesbar);
        if (ergebnis.bestandNeu) {
            Q_EMIT bestandNeu();
        }
        if (ergebnis.benutzungNeu) {
            Q_EMIT benutzungNeu();
        }
        Q_EMIT geprueft();
    }
    if (nochmal && !laeuft_) {
        Starten(*nochmal);
    }
}

const Formulareintrag* Fragendienst::Offenes() const {
    if (!abgelesen_) {
        abgelesen_ = true;
        offenes_.reset();
        if (OffenesFormular() != nullptr) {
            offenes_ = Abgelesen();
        }
        // Whatever changes the form comes as an event of its own.
        QTimer::singleShot(0, this, [this] { abgelesen_ = false; });
    }
    return offenes_ ? &*offenes_ : nullptr;
}

std::vector<const Formulareintrag*> Fragendienst::Formulare(std::uint64_t abdruck, bool ohneOffenes) const {
    const Formulareintrag* offenes = Offenes();
    if (ohneOffenes) {
        return benutzung_->Formulare(abdruck, nullptr, offenes == nullptr ? "" : offenes->pfad);
    }
    return benutzung_->Formulare(abdruck, offenes);
}

std::string Fragendienst::Benutzttext(std::string_view frage, bool ohneOffenes) const {
    return ::Benutzttext(Formulare(AbdruckVon(frage), ohneOffenes));
}

std::string Fragendienst::Benutztspalte(std::string_view frage) const {
    return ::Benutztspalte(Formulare(AbdruckVon(frage), false));
}

bool Fragendienst::benutzt(std::string_view frage, bool ohneOffenes) const {
    return benutzt(AbdruckVon(frage), ohneOffenes);
}

bool Fragendienst::benutzt(std::uint64_t abdruck, bool ohneOffenes) const {
    return !Formulare(abdruck, ohneOffenes).empty();
}

Fragendienst& Fragen() {
    static QPointer<Fragendienst> dienst;
    if (dienst == nullptr) {
        dienst = new Fragendienst(qApp); // goes with the application
    }
    return *dienst;
}
