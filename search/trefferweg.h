// What becomes of a question that was found: into the form, into the clipboard, into the selection dialog.
#pragma once

#include "core/ziehwert.h"
#include "search/fragenbestand.h"

#include <cstddef>

// As a drag out of the selection dialog.
[[nodiscard]] Ziehwert Trefferwert(const Katalogfrage& frage);

// Into the cell or row that had the focus last, or the next empty one; the status help says where, or why
// not.
void TrefferEinsetzen(const Katalogfrage& frage);
void TrefferKopieren(const Katalogfrage& frage);
// Question number nr of the catalogue (Fragenbestand::frage) in the selection dialog, as if it were picked
// there.
void TrefferZeigen(const Fragenbestand& bestand, std::size_t nr);
