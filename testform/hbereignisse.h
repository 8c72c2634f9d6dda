// What the events of the test form's window lead to. Called by the window only; what the rest of the program
// may ask of the form is testform/hbformular.h.
#pragma once

class frmHBFragen;

// The three lists of the head.
void KopfEreignisseVerbinden(frmHBFragen& form);
// Typing and focus in the ten rows.
void ZeilenEreignisseVerbinden(frmHBFragen& form);
// The spin controls.
void PunkteVerbinden(frmHBFragen& form);
// Presses and drops.
void TestziehenVerbinden(frmHBFragen& form);

// Colours of row n: white with a question, system face without.
void ZeileFaerben(frmHBFragen& form, int n);
// The total in its three places.
void SummeZeigen(frmHBFragen& form, int summe);
// The three places without a total; without a form only the main window's.
void SummeLeeren(frmHBFragen* form);
