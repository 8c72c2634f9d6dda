// What a control shows by its kind: captions, texts, entries, marks, pictures. Part of a control's line.
#pragma once

#include <QStringList>

class QWidget;

namespace abbild {

[[nodiscard]] QStringList Inhalt(const QWidget& teil);

// True for a control of the toolkit whose own parts are no business of a description.
[[nodiscard]] bool InSichGeschlossen(const QWidget& teil);

} // namespace abbild
