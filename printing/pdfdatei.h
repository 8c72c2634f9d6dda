// A PDF file on its way to its place: the toolkit writes it under another name, there it is put in order, and
// only a whole one takes the place, so that a print that fails leaves the old sheet as it was. A sheet can be
// printed again, so it isn't forced to the disk as a form is.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <string>

class PdfDatei {
public:
    // ziel: path in the program's notation.
    explicit PdfDatei(std::string ziel);
    ~PdfDatei();
    PdfDatei(const PdfDatei&) = delete;
    PdfDatei& operator=(const PdfDatei&) = delete;

    // Where the toolkit is to write, in the file system's notation.
    [[nodiscard]] const QString& schreibname() const { return schreibname_; }
    // Puts the written file in order and in its place. Throws Laufzeitfehler; the old file is whole then.
    void Einsetzen();

private:
    bool DanebenAnlegen();

    std::string ziel_;
    QString nativ_;
    QString schreibname_;
    std::unique_ptr<QTemporaryDir> zwischenlager_; // where the target's folder takes no new file
};
