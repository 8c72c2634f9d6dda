#include "forms/verlauf.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/schritt.h"
#include "core/textfeld.h"
#include "forms/formularjournal.h"
#include "forms/schrittfolge.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"

#include <QApplication>
#include <QPointer>

#include <optional>
#include <utility>
#include <vector>

namespace {

Schrittfolge folge;
std::optional<Formularstand> gespeichert;
int formular = 0;             // that the history belongs to
QPointer<QWidget> feld;       // that had the focus last, windows in between not counted
bool zeigt = false;           // a former value is being put back
bool pruefungKommt = false;   // the comparison waits for the running work to end
std::string_view eingabe;     // what has been typed since the last step, as of the last comparison
std::function<void()> melden; // what could be undone may be another step

struct Zuhoerer {
    QPointer<QObject> empfaenger;
    std::function<void()> anders;
};
std::vector<Zuhoerer> zuhoerer; // of the form's changes

bool Fuehrt() {
    return !folge.leer() && OffenesFormular() != nullptr && Formularnummer() == formular;
}

// The box of the open form that has the focus.
Eigenverlauf* Kasten() {
    Formularfenster* form = OffenesFormular();
    QWidget* fokus = form == nullptr ? nullptr : form->fenster()->window()->focusWidget();
    return fokus != nullptr && form->fenster()->isAncestorOf(fokus) ? dynamic_cast<Eigenverlauf*>(fokus)
                                                                    : nullptr;
}

void Melden() {
    if (melden) {
        melden();
    }
}

void FlaggeAngleichen(const Formularstand& jetzt) {
    const bool geaendert = !gespeichert || Ungesichert(*gespeichert, jetzt);
    if (geaendert != Stand.FormGeaendert) {
        Stand.FormGeaendert = geaendert;
        FlaggeZeigen(geaendert);
    }
    FormularjournalFuehren(geaendert);
    std::erase_if(zuhoerer, [](const Zuhoerer& einer) { return einer.empfaenger.isNull(); });
    const std::vector<Zuhoerer> alle = zuhoerer; // hearing it may bring another one
    for (const Zuhoerer& einer : alle) {
        einer.anders();
    }
}

void Pruefen() {
    pruefungKommt = false;
    if (Fuehrt() && !SchrittLaeuft()) {
        const Formularstand jetzt = FormularstandJetzt();
        eingabe = Eingabename(folge.jetzt(), jetzt);
        FlaggeAngleichen(jetzt);
        Melden();
    }
}

void EigenesVergessen(QWidget* widget) {
    if (auto* kasten = dynamic_cast<Eigenverlauf*>(widget); kasten != nullptr) {
        kasten->EigenesVergessen();
    }
}

// What has been typed since the last step becomes one.
void EingabeMerken() {
    if (!Fuehrt()) {
        return;
    }
    Formularstand jetzt = FormularstandJetzt();
    const std::string_view name = Eingabename(folge.jetzt(), jetzt);
    eingabe = {};
    // Without anything typed it is the numbers that were changed outside of any step.
    if (folge.Merken(name.empty() ? "Einstellungen ändern" : name, std::move(jetzt))) {
        Melden();
    }
    EigenesVergessen(feld); // it is the form's step now
}

void SchrittMerken(std::string_view name, int gruppe) {
    if (!Fuehrt()) {
        return;
    }
    Formularstand jetzt = FormularstandJetzt();
    eingabe = {};
    FlaggeAngleichen(jetzt);
    folge.Merken(name, std::move(jetzt), gruppe);
    Melden();
}

void FokusGewechselt(QWidget* neu) {
    if (neu == nullptr || neu == feld) {
        return; // another program's window is in front, or was
    }
    // A box that is being hidden gives its focus away: what shows then is half a step.
    if (!SchrittLaeuft() && !zeigt) {
        EingabeMerken();
        folge.GruppeBeenden();
        EigenesVergessen(neu); // the toolkit counts as an edit what gave the box its looks
    }
    feld = neu;
    Melden();
}

void Beginnen() {
    formular = Formularnummer();
    folge.Beginnen(FormularstandJetzt());
    gespeichert = folge.jetzt();
    eingabe = {};
}

void Zeigen(const Formularstand& stand) {
    zeigt = true;
    Spiel = MitProgrammwerten(stand.spiel, Spiel);
    if (const auto* quiz = std::get_if<Quizstand>(&stand.form); quiz != nullptr) {
        FelderAnzeigen();
        FK_StandZeigen(quiz->gezeigt, quiz->gemerkt);
    } else if (const auto* test = std::get_if<Teststand>(&stand.form); test != nullptr) {
        HB_StandZeigen(test->gezeigt, test->punkte, test->gemerkt);
    }
    zeigt = false;
    FlaggeAngleichen(FormularstandJetzt());
    Melden();
}

void Gehen(std::string_view (Schrittfolge::*name)() const, const Formularstand* (Schrittfolge::*gang)(),
           const char* was) {
    if (!Fuehrt() || SchrittLaeuft()) {
        return;
    }
    EingabeMerken(); // also notes what a save has done to the stored copy
    const std::string schritt((folge.*name)());
    if (const Formularstand* stand = (folge.*gang)(); stand != nullptr) {
        Zeigen(*stand);
        HilfeText(std::string(was) + schritt);
    }
}

} // namespace

Formularstand FormularstandJetzt() {
    if (OffeneArt() == Formart::Test) {
        return {Teststand{HB_Ablesen(), HBForm, HB_PunkteAblesen()}, Spiel};
    }
    return {Quizstand{FK_Ablesen(), FKForm}, Spiel};
}

void VerlaufEinrichten(QObject& eigentuemer, std::function<void()> angezeigt) {
    melden = std::move(angezeigt);
    SchritteBeobachten({EingabeMerken, SchrittMerken});
    QObject::connect(qApp, &QApplication::focusChanged, &eigentuemer,
                     [](QWidget*, QWidget* neu) { FokusGewechselt(neu); });
}

void VerlaufAbmelden(QObject& eigentuemer) {
    QObject::disconnect(qApp, &QApplication::focusChanged, &eigentuemer, nullptr);
    melden = nullptr;
    SchritteBeobachten({});
    FormularjournalSchliessen();
}

void FormularstatusGesetzt(bool geaendert) {
    if (zeigt || OffenesFormular() == nullptr) {
        return;
    }
    if (!geaendert) {
        if (Formularnummer() != formular) {
            Beginnen();
        } else {
            gespeichert = FormularstandJetzt();
        }
        FormularjournalBeenden();
        FormularjournalEinrichten();
    }
    if (!std::exchange(pruefungKommt, true)) {
        QMetaObject::invokeMethod(qApp, Pruefen, Qt::QueuedConnection);
    }
}

void GespeichertVergessen() {
    gespeichert.reset();
}

bool IstGeleert() {
    return gespeichert && Fuehrt() && Leergeraeumt(*gespeichert, FormularstandJetzt());
}

void BeiFormularaenderung(QObject* empfaenger, std::function<void()> anders) {
    zuhoerer.push_back({empfaenger, std::move(anders)});
}

void RueckgaengigMachen() {
    if (Eigenverlauf* kasten = Kasten(); kasten != nullptr && kasten->EigenesZurueck()) {
        return;
    }
    Gehen(&Schrittfolge::rueckname, &Schrittfolge::Zurueck, " Rückgängig gemacht : ");
}

void Wiederholen() {
    if (Eigenverlauf* kasten = Kasten(); kasten != nullptr && kasten->EigenesVor()) {
        return;
    }
    Gehen(&Schrittfolge::vorname, &Schrittfolge::Vor, " Wiederholt : ");
}

std::string Rueckschritt() {
    if (!Fuehrt()) {
        return {};
    }
    // What is being typed is no step yet, but it is what goes first.
    return std::string(eingabe.empty() ? folge.rueckname() : eingabe);
}

std::string Vorschritt() {
    if (!Fuehrt()) {
        return {};
    }
    const Eigenverlauf* kasten = Kasten();
    return kasten != nullptr && kasten->EigenesKommt() ? "Eingabe" : std::string(folge.vorname());
}
