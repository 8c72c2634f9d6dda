// The pair of flags beside the form's toolbar, the leader's sign of unsaved changes, and the change flags
// behind it. The flags differ in shape as well as in colour.
#pragma once

class QWidget;

void FlaggenBauen(QWidget* pnlKranz);
void FlaggenAnordnen(QWidget* pnlKranz);
