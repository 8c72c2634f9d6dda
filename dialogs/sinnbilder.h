// The small pictures of the dialogs, 32 by 32 logical pixels, drawn in one style: round ink strokes on a
// coloured shape. Which number a caller passes means what is in the tables here.
#pragma once

#include <QPixmap>

class QLabel;
class QWidget;

enum class Sinnbild {
    Frage,
    Hinweis,
    Ausruf,
    Fehler,
    Formular,
    Fertig,
    Drucker,
    Ende,
    Blatt,
    Ordner,
    Regel,
    Herz
};

// The picture for screens with that many device pixels to a logical one.
[[nodiscard]] QPixmap SinnbildMalen(Sinnbild bild, double aufloesung);

// Picture of a message (0 to 11), of a question (1 to 12) and of the input dialog (1 to 8).
[[nodiscard]] Sinnbild MeldungSinnbild(int nummer);
[[nodiscard]] Sinnbild NachrichtSinnbild(int nummer);
[[nodiscard]] Sinnbild EingabeSinnbild(int nummer);

// What assistive technology reads out for the picture.
[[nodiscard]] const char* SinnbildWort(Sinnbild bild);

// A hidden label "<feld>(<nummer>)" with the picture, at that place.
[[nodiscard]] QLabel* SinnbildLabel(QWidget* eltern, const char* feld, int nummer, Sinnbild bild);
