// The one place that knows which kinds of form there are and routes what both have: showing what was read,
// the value on the screen, the sheet on paper, the path of the file. What only one kind has stands in
// quizformulare.h and testformulare.h; the commands around files in speichern.h and oeffnen.h.
#pragma once

#include "core/formart.h"
#include "core/meldungstext.h"
#include "persistence/formularwerte.h"

#include <string>
#include <string_view>

// Folder of a kind's forms under AppPfad, with its backslash in front.
[[nodiscard]] std::string_view Formularordner(Formart art);
// Path that the open form of a kind was opened from or saved to, "" for none.
[[nodiscard]] std::string& Formulardatei(Formart art);

// The stored copies and the rule values, and the same with what the open form shows.
[[nodiscard]] Formularwerte GemerkteWerte();
[[nodiscard]] Formularwerte AbgeleseneWerte();

// Shows the stored copy of that kind, just read, in its window; a form of the other kind goes without a
// question.
void GelesenesZeigen(Formart art, std::string_view titel);
// Window into stored copy, then the save. When no save comes about, the stored copy is as before, so that
// what was blanked can still come back. Gives what the save gives; without a form it runs all the same.
bool MitGemerktem(bool (*speichern)());
// Closes any open form without asking.
void FormulareEntladen();

// The question before a new form, and the one about unsaved changes. False when what is open is to stay.
[[nodiscard]] bool NeuErlaubt(const NachrichtText& neu, const NachrichtText& speichern);

// The commands of the toolbars: a form that isn't open, or not of that kind, costs nothing.
void OffenesSpeichern();
void OffenesSpeichernUnter();
// Prints the open form; blanko: a quiz form without the titles of its Wissensgebiete.
void OffenesDrucken(Formart art, bool blanko = false);
void DruckerEinrichten();
