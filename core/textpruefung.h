// What of a text that is typed or pasted may stay in a box, by its characters and by its length, and how the
// focus counts that only goes aside for a moment. Shared by the two kinds of text box; nobody else includes
// this.
#pragma once

#include "core/wertgrammatik.h"
#include "core/zeichenbefund.h"

#include <QFocusEvent>
#include <QString>
#include <QTextCursor>
#include <QTextDocument>

// What a form file's reader takes for one text.
inline constexpr int textgrenze = static_cast<int>(laengsterText);

// What of a text may stay: the same text, or with equivalents for what code page 1252 can't hold, which
// befund notes. A form file keeps zero bytes; ohneNull leaves them outside as well.
[[nodiscard]] QString Erlaubt(const QString& text, Zeichenbefund& befund, bool ohneNull = false);

// Bytes in a file that are more than a form file's reader takes for one text.
[[nodiscard]] int Ueberlaenge(const QTextDocument& text);
// The new text, which the cursor has selected, without what would make a line longer than the limit, together
// with what stands around it.
[[nodiscard]] QString ZeilenGekuerzt(const QString& erlaubt, const QTextCursor& neues);

// The focus goes to a menu or another window and comes back, and with it the place where the user types: to
// select the text then would make the next key, or a paste from the box's own menu, overwrite it all.
[[nodiscard]] bool NurUnterbrochen(const QFocusEvent& ereignis);
