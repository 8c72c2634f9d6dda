#include "forms/formularjournal.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "forms/formulare.h"
#include "forms/formularpfad.h"
#include "forms/verlauf.h"
#include "persistence/formulardatei.h"
#include "persistence/journal.h"
#include "persistence/journaltakt.h"
#include "persistence/texte.h"

#include <QApplication>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace {

void Gescheitert(const Laufzeitfehler& fehler);
void Schreiben();

// The thread and the clock of the open form.
struct Fuehrung {
    Journal journal{Gescheitert};
    Journaltakt takt{Schreiben};
};
std::unique_ptr<Fuehrung> fuehrung;
Journalort ort;
std::optional<Formularstand> geschrieben;

void Gescheitert(const Laufzeitfehler& fehler) {
    const std::string text = Einsetzen(persistenztexte::journalFehler, {fehler.text()});
    QMetaObject::invokeMethod(
        qApp, [text] { HilfeText(text); }, Qt::QueuedConnection);
}

Fuehrung& Eigene() {
    if (fuehrung == nullptr) {
        fuehrung = std::make_unique<Fuehrung>();
    }
    return *fuehrung;
}

std::string Bytes(const Formularstand& stand) {
    const auto* quiz = std::get_if<Quizstand>(&stand.form);
    return quiz != nullptr ? FormularBytes(quiz->gezeigt, stand.spiel)
                           : FormularBytes(std::get<Teststand>(stand.form).gezeigt);
}

void Schreiben() {
    if (OffenesFormular() == nullptr || !Stand.FormGeaendert) {
        return;
    }
    auto stand = std::make_shared<const Formularstand>(FormularstandJetzt());
    if (geschrieben && Gleichgespeichert(*geschrieben, *stand)) {
        return;
    }
    geschrieben = *stand;
    Eigene().journal.Schreiben(ort, [stand = std::move(stand)] { return Bytes(*stand); });
}

void Melden(const std::vector<QString>& pfade) {
    if (pfade.empty()) {
        return;
    }
    const std::string name = QFileInfo(pfade.front()).fileName().toStdString();
    if (pfade.size() == 1) {
        HilfeText(Einsetzen(persistenztexte::journalDa, {name}));
    } else {
        HilfeText(Einsetzen(persistenztexte::journaleDa, {name, std::to_string(pfade.size() - 1)}));
    }
}

} // namespace

void FormularjournalEinrichten() {
    const Formart art = OffeneArt();
    const QString pfad = NativesFormular(art);
    if (pfad.isEmpty()) {
        ort = {NativerPfad(Stand.AppPfad + std::string(Formularordner(art))), ""};
    } else {
        const QFileInfo datei(pfad);
        ort = {datei.path(), datei.fileName().toStdString()};
    }
}

void FormularjournalFuehren(bool geaendert) {
    if (geaendert) {
        Eigene().takt.Anstossen();
    } else {
        FormularjournalBeenden();
    }
}

void FormularjournalBeenden() {
    geschrieben.reset();
    if (fuehrung != nullptr) {
        fuehrung->takt.Anhalten();
        fuehrung->journal.Entfernen();
    }
}

void FormularjournalAbwarten() {
    if (fuehrung != nullptr) {
        fuehrung->journal.Abwarten();
    }
}

void FormularjournalSchliessen() {
    geschrieben.reset();
    fuehrung.reset();
}

void FormularjournalUebernehmen(const std::string& pfad) {
    geschrieben = FormularstandJetzt();
    Eigene().journal.Uebernehmen(NativerPfad(pfad));
}

void JournalMelden(const std::string& pfad) {
    const QFileInfo datei(NativerPfad(pfad));
    const std::string name = datei.fileName().toStdString();
    Melden(VerwaisteJournale(datei.path(), &name));
}

void JournaleMelden() {
    std::vector<QString> alle;
    for (const std::string_view ordner :
         {Formularordner(Formart::Quiz), Formularordner(Formart::Test), persistenztexte::katalogordner}) {
        std::ranges::move(VerwaisteJournale(NativerPfad(Stand.AppPfad + std::string(ordner))),
                          std::back_inserter(alle));
    }
    Melden(alle);
}
