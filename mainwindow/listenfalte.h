// The list of forms, where it would lie over the open form: while the user works elsewhere it is folded to
// its title, a button at the end of the menu bar, cmdListentitel. It comes up again when it is called, and by
// itself as soon as it covers nothing.
#pragma once

class QMainWindow;
class QWidget;

// Once, after the menu bar and the area of the child windows are built.
void ListenfalteEinrichten(QMainWindow& fenster);
// Whether the list is open, also where only its title is to be seen.
[[nodiscard]] bool ListeGefaltet(const QWidget* liste);
