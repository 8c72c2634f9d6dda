// A program folder of the test's own: BITMAP CONFIG KRANZ REGEL SOUND TEST WISSEN as the program is shipped
// with, in a temporary folder that goes with the object. AppPfad points there while it lives. What a test
// writes there never reaches the repository.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <string>

class Programmordner {
public:
    // Copies data/ and sets AppPfad.
    Programmordner();
    ~Programmordner();
    Programmordner(const Programmordner&) = delete;
    Programmordner& operator=(const Programmordner&) = delete;

    // The folder in the file system's notation, and what lies beneath it ("KRANZ/A.FKR").
    [[nodiscard]] QString nativ() const { return ordner_.path(); }
    [[nodiscard]] QString nativ(const QString& darunter) const { return ordner_.filePath(darunter); }

    // Writes a file beneath the folder, with the folders it needs. Ends the test program if that fails.
    void schreiben(const QString& darunter, const QByteArray& bytes) const;
    // Bytes of a file beneath the folder; a null array where there is none.
    [[nodiscard]] QByteArray lesen(const QString& darunter) const;
    [[nodiscard]] bool vorhanden(const QString& darunter) const;

private:
    QTemporaryDir ordner_;
    std::string vorher_;
};
