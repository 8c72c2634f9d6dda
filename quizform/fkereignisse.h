// What the events of the quiz form's window lead to. Called by the window only; what the rest of the program
// may ask of the form is quizform/fkformular.h.
#pragma once

class frmFKFragen;

// Focus, changes and the presses and drops on the cells.
void FeldEreignisseVerbinden(frmFKFragen& form);
void ZiehenVerbinden(frmFKFragen& form);

// The two lists that open over a panel.
void SpezialListeOeffnen(frmFKFragen& form, int feld);
void SpezialGewaehlt(frmFKFragen& form, int eintrag);
void WissenListeOeffnen(frmFKFragen& form, int gebiet);
void WissenGewaehlt(frmFKFragen& form, int eintrag);
// Puts a list that is open over its panel, wherever that is now.
void OffeneListeStellen(frmFKFragen& form);
// Takes an open list away without a choice; the panels come back.
void ListenSchliessen(frmFKFragen& form);

// Repaints all cells from their letters; blanken: the texts that a blanking has taken away don't come back.
void AlleFaerben(frmFKFragen& form, bool blanken);
