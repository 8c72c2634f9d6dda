// The search for questions as the rest of the program sees it.
#pragma once

// Opens the window, or brings it to the front with its text selected.
void SucheZeigen();

// The selection dialog tells from now on, in the status line, where a question that is picked in it is used.
void AuswahlhinweisEinrichten();
