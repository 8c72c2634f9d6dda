#include "editor/editorpfad.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "editor/editordaten.h"

#include <QFileInfo>

namespace {

QString Nativ() {
    return QString::fromStdString(Editor.Nativ);
}

} // namespace

void EditorpfadMerken(const std::string& pfad) {
    Editor.Pfad = pfad;
    Editor.Nativ = NativerPfad(pfad).toStdString();
}

void EditorpfadVergessen() {
    Editor.Pfad.clear();
    Editor.Nativ.clear();
    Editor.Kenntnis = {};
}

void EditorpfadEinsetzen() {
    if (!Editor.Pfad.empty()) {
        AuswahlMerken(Editor.Pfad, Nativ());
    }
}

std::string Editorpfad() {
    EditorpfadEinsetzen();
    const bool andere = !Editor.Pfad.empty() && NativerPfad(Editor.Pfad) != Nativ() && DateiDa(Editor.Pfad);
    return andere ? std::string() : Editor.Pfad;
}

std::string Editorordner() {
    if (Editor.Pfad.empty()) {
        return {};
    }
    const QString nativ = QFileInfo(Nativ()).path();
    OrdnerMerken(EigenerPfad(nativ), nativ);
    return EigenerPfad(nativ);
}
