// What every window may ask of the main window, as plain routines: status text, mode, progress bar, the
// change flags, the miniature of the board. The one way upwards in the folders' order: the main window's own
// folder defines them; without a main window they only keep the state. Texts are UTF-8.
#pragma once

#include "core/farbe.h"
#include "core/formart.h"

#include <optional>
#include <string>
#include <string_view>

class QAbstractButton;
class QMdiSubWindow;
class QWidget;

// Status text in the help panel, with one blank behind it.
void HilfeText(std::string_view text);
// The same about a file: the text has a {} for its name and one for its folder. The name stands whole if it
// can, the folder gives way in its middle; the panel's tip tells the whole path until the next such text.
void HilfeDatei(std::string_view text, const std::string& pfad);
// What stands in the help panel, as it stands there; and what stood there put back.
[[nodiscard]] std::string HilfeStand();
void HilfeStandSetzen(std::string_view stand);

// Switches to the quiz toolbar: FormTyp, defaults of 6 and 5 for a board without a shape, counts shown.
void ModusFK();
// The same for the test form.
void ModusTest();
// Back to the main toolbar, as the back buttons do after a form is closed.
void ModusHaupt();

// Rewrites the counts of the quiz form. Run-time error 6 where the product doesn't fit 16 bits.
void FelderAnzeigen();

// Progress bar: starts it or takes one step; advances it by n; ends it.
void FortschrittStart(std::string_view text);
void FortschrittSchritt(float n);
void FortschrittEnde();

// The change flag of the form, or of the editor, and its pair of flags.
void FormStatusSetzen(bool geaendert);
void EditorStatusSetzen(bool geaendert);
// Which flag shows, without touching the change flag: the form file's reader sets it by the mode tag.
void FlaggeZeigen(bool rot);

// Miniature of cell n (1 to 30); no value is system face.
void MiniaturFaerben(int n, std::optional<Farbe> farbe);

// Takes the commands of that kind of form into or out of use.
void BefehleFreigeben(Formart art, bool frei);

// True while the switch grpFKHB of the quiz toolbar is pressed: the titles come from the other list of
// themes.
[[nodiscard]] bool ThemenschalterGedrueckt();

// Gives a button the command of its name, or takes it out of use where there is none.
void BefehlVerbinden(QAbstractButton* schaltflaeche);

// Puts a child window into the main window and gives its frame; the window itself decides about its closing.
QMdiSubWindow* KindfensterAufnehmen(QWidget* fenster);
// Gives the open form's window the size that the user wants or the room allows; in its original size it stays
// where it stands.
void FormularEinpassen();
// Content of the active child window, nullptr for none.
QWidget* AktivesKind();
// Brings the child window around that content to the front.
void KindNachVorn(const QWidget* inhalt);

// The parent for dialogs and tool windows, nullptr before the main window is there.
QWidget* Hauptfenster();

// Entries 0 to 3 of the list of the last files, as the quiz form's menu shows them, were changed.
void DateilisteAnzeigen();

// Ends the program after its questions; comes back only if the user refuses.
void ProgrammEnde();
