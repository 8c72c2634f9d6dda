#include "editor/editorjournal.h"

#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "editor/editor.h"
#include "editor/editordaten.h"
#include "editor/frmEditor.h"
#include "editor/katalogtext.h"
#include "persistence/journal.h"
#include "persistence/journaltakt.h"
#include "persistence/texte.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace {

void Schreiben();

// The thread and the clock of the text that is being edited.
struct Fuehrung {
    Journal journal{[](const Laufzeitfehler& fehler) {
        const std::string text = Einsetzen(persistenztexte::journalFehler, {fehler.text()});
        QMetaObject::invokeMethod(
            qApp, [text] { HilfeText(text); }, Qt::QueuedConnection);
    }};
    Journaltakt takt{Schreiben};
};
std::unique_ptr<Fuehrung> fuehrung;

Fuehrung& Eigene() {
    if (fuehrung == nullptr) {
        fuehrung = std::make_unique<Fuehrung>();
    }
    return *fuehrung;
}

Journalort Ort() {
    if (Editor.Pfad.empty()) {
        return {NativerPfad(Stand.AppPfad + std::string(persistenztexte::katalogordner)), ""};
    }
    const QFileInfo datei(QString::fromStdString(Editor.Nativ));
    return {datei.path(), datei.fileName().toStdString()};
}

void Schreiben() {
    const frmEditor* editor = EditorFenster();
    if (editor == nullptr || !Stand.EditorGeaendert) {
        return;
    }
    Eigene().journal.Schreiben(Ort(), [marke = Editor.BemerkungMarke, text = editor->txtNotiz->text()] {
        return KatalogtextBytes(marke, text);
    });
}

} // namespace

void EditorjournalFuehren(bool geaendert) {
    if (geaendert && EditorFenster() != nullptr) {
        Eigene().takt.Anstossen();
    } else if (!geaendert && fuehrung != nullptr) {
        fuehrung->takt.Anhalten();
        fuehrung->journal.Entfernen();
    }
}

void EditorjournalBeenden() {
    if (fuehrung != nullptr) {
        fuehrung->takt.Anhalten();
        fuehrung->journal.Entfernen();
        fuehrung.reset();
    }
}

std::optional<QString> Editorjournal(const std::string& pfad) {
    const QFileInfo datei(NativerPfad(pfad));
    const std::string name = datei.fileName().toStdString();
    const std::vector<QString> pfade = VerwaisteJournale(datei.path(), &name);
    const auto neuestes = std::ranges::max_element(
        pfade, {}, [](const QString& journal) { return QFileInfo(journal).lastModified(); });
    return neuestes == pfade.end() ? std::nullopt : std::optional(*neuestes);
}

void EditorjournalUebernehmen(const QString& pfad) {
    Eigene().journal.Uebernehmen(pfad);
}
