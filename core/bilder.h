// The pictures that travel in the program, by their names "<folder>/<picture>" (assets/png). They come out of
// the program at their first use. Which picture a control shows is its window's affair; how one is drawn
// assets/malen.
#pragma once

#include <QIcon>
#include <QPixmap>

#include <span>
#include <string>
#include <string_view>
#include <utility>

class QAbstractButton;
class QObject;

// Edge of the pictures on buttons, in logical pixels.
inline constexpr int tastenbildKante = 16;

// The picture for a screen with that many device pixels to a logical one. A null picture for an unknown name.
[[nodiscard]] QPixmap Bild(std::string_view name, double aufloesung);

// The same as an icon, crisp at one and at two device pixels to a logical one.
[[nodiscard]] QIcon Bildzeichen(std::string_view name);

// A picture of 16 by 16 in front of the button's caption.
void TastenbildSetzen(QAbstractButton* taste, std::string_view name);

// Buttons by their objectNames, each with its picture; a name that isn't there beneath unter is passed over.
using Tastenbild = std::pair<const char*, std::string_view>;
void TastenbilderSetzen(const QObject* unter, std::span<const Tastenbild> bilder);

// For a bitmap file that was read already: the file "<name>@2x.bmp" beside it, if the screen has more than
// one device pixel to a logical one and that file is exactly twice as large; else the bitmap itself. A
// picture that the user has put there in another size does alone.
[[nodiscard]] QPixmap Feinbild(const QPixmap& einfach, const std::string& pfad, double aufloesung);

// The program's icon in its sizes up to that edge in pixels. A window hands all of them to the desktop when
// it shows, so the first one, which is there at once, does without the large ones.
[[nodiscard]] QIcon Programmzeichen(int groesste = 256);
