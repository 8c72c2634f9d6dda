// The program's file dialog among the dialogs that a test expects: a folder walked to by mouse, a name typed,
// a button clicked.
#pragma once

#include "tests/hilfe/dialogfolge.h"

// titel: nothing for any; name: "" leaves the box alone; taste: the button that ends the dialog.
void DateidialogErwarten(Dialogfolge& dialoge, const std::optional<QString>& titel, const QString& name,
                         const QString& taste, Stelle stelle = Stelle::hier());
// The same in the folder of that name beside the one that the dialog opens in; "" for staying there.
void DateidialogErwarten(Dialogfolge& dialoge, const std::optional<QString>& titel, const QString& ordner,
                         const QString& name, const QString& taste, Stelle stelle = Stelle::hier());
