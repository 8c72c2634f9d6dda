// Answers every dialog that comes and writes down what it said, for tests that run through hundreds of saves
// and can't know each answer beforehand: a message gets its one button, a question OK or Ja, anything else is
// closed. What came is compared afterwards.
#pragma once

#include <QStringList>

class QDialog;

class Mitschrift {
public:
    Mitschrift();
    ~Mitschrift();
    Mitschrift(const Mitschrift&) = delete;
    Mitschrift& operator=(const Mitschrift&) = delete;

    // Whole texts of the messages since the last call; a dialog that is no message stands with its name.
    [[nodiscard]] QStringList Holen();

private:
    void Beantworten(QDialog& dialog);
    QStringList texte_;
};
