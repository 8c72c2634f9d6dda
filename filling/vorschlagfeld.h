// The picture of one cell or row in the window that fills a form: the question small, the answer below it, a
// mark for what stands on the form already. Can be clicked, and reached by keys. Knows what it shows, and
// nothing of where that comes from.
#pragma once

#include "core/farbe.h"

#include <QAbstractButton>
#include <QString>

#include <optional>

class Vorschlagfeld : public QAbstractButton {
    Q_OBJECT

public:
    enum class Art { Geschlossen, Besetzt, Leer, Vorgeschlagen, OhneFrage };
    struct Inhalt {
        Art art = Art::Leer;
        QString frage, antwort;
        QString ecke;               // the cell's letter, or a row's points
        std::optional<Farbe> grund; // of a cell with a letter
        friend bool operator==(const Inhalt&, const Inhalt&) = default;
    };

    explicit Vorschlagfeld(QWidget* eltern, const QString& name);

    // ort: where it stands, for those who can't see it.
    void Zeigen(const Inhalt& inhalt, const QString& ort);
    [[nodiscard]] const Inhalt& inhalt() const { return inhalt_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    // An arrow key was pressed: one column, or one row, in that direction.
    void weiter(int spalten, int zeilen);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    [[nodiscard]] QColor Grund() const;
    [[nodiscard]] int EckeMalen(QPainter& maler, const QRect& flaeche) const;
    void TexteMalen(QPainter& maler, QRect flaeche) const;

    Inhalt inhalt_;
};
