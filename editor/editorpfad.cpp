#include "editor/editorpfad.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/zustand.h"

#include <QFileInfo>

namespace {

struct Gemerkt {
    std::string pfad;
    QString nativ;
};
Gemerkt gemerkt;

} // namespace

void EditorpfadMerken() {
    gemerkt = {DateiName, NativerPfad(DateiName)};
}

void EditorpfadEinsetzen() {
    DateiName = gemerkt.pfad;
    if (!DateiName.empty()) {
        AuswahlMerken(DateiName, gemerkt.nativ);
        if (NativerPfad(DateiName) != gemerkt.nativ && DateiDa(DateiName)) {
            DateiName.clear(); // the file has gone and another one answers to its name: a save asks for one
        }
    }
}

void EditorpfadVergessen() {
    gemerkt = {};
}

std::string Editorordner() {
    return gemerkt.pfad.empty() ? std::string() : EigenerPfad(QFileInfo(gemerkt.nativ).path());
}
