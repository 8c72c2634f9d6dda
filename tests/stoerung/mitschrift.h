// Answers every dialog that comes and writes down what it said, for tests that run through hundreds of saves
// and can't know each answer beforehand: a message gets its one button, a question OK, or else Ja or
// Abbrechen, anything else is closed. What came is compared afterwards.
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
    // Whole texts of the questions since the last call.
    [[nodiscard]] QStringList Fragen();
    // What a question without an OK gets from now on: Abbrechen instead of Ja.
    void Ablehnen(bool ablehnen) { ablehnen_ = ablehnen; }

private:
    void Beantworten(QDialog& dialog);
    QStringList texte_;
    QStringList fragen_;
    int seitHolen_ = 0;
    bool ablehnen_ = false;
};
