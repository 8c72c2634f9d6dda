// One control of a window as one line of text: class, name, place, and all that it shows and tells.
#pragma once

#include <QSize>
#include <QString>

class QIcon;
class QObject;
class QPixmap;
class QWidget;

namespace abbild {

// What a control has like the one around it, colours and font, goes unsaid, except at the root of a window.
[[nodiscard]] QString Zeile(QWidget& teil, bool wurzel);

// The text in quotes, with its line ends and other invisible characters spelled out.
[[nodiscard]] QString Gefasst(const QString& text);
// Size and checksum of a picture, "none" for no picture.
[[nodiscard]] QString Bild(const QPixmap& bild);
[[nodiscard]] QString Bild(const QIcon& zeichen, QSize groesse);
[[nodiscard]] QString Groesse(QSize groesse);
// The object's name, or its class in angle brackets where it has none.
[[nodiscard]] QString Benannt(const QObject& objekt);

} // namespace abbild
