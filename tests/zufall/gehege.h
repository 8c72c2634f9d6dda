// The pen in which the random hands may do what they want: one folder, and nothing outside it. The script
// zufall.sh builds it; the program only believes what it has tried.
#pragma once

#include <QStringList>

// Folders outside in which a file could be made after all; none is as it should be. A file made by the trial
// is gone again.
[[nodiscard]] QStringList OffeneTueren();
