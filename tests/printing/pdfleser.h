// Reads a printed page back from its PDF with the tools of poppler, so that what the tests see is what any
// other program sees: paths from the page as SVG, words with their boxes as text. Lengths are in mm from the
// top left corner of the sheet. Knows nothing of what a page should hold.
#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

struct Pfad {
    double links = 0, oben = 0, rechts = 0, unten = 0; // box around the path itself, without its line
    int ecken = 0;                                     // 2 for a line, 4 for a rectangle
    double strich = 0;                                 // width of the line, 0 for none
    std::string linie, fuellung;                       // "r,g,b" from 0 to 255, "" for none
};

struct Wort {
    double links = 0, oben = 0, rechts = 0, unten = 0; // oben: top of the line box
    std::string text;
};

struct PdfSeite {
    double breite = 0, hoehe = 0;
    std::vector<Pfad> pfade; // in drawing order
    std::vector<Wort> worte;
    std::string fehler; // why it couldn't be read, "" if it could
};

// nummer: of the page, from 1.
[[nodiscard]] PdfSeite PdfLesen(const QString& datei, int nummer = 1);
// Its text as it stands in the file, page for page, with a form feed behind each.
[[nodiscard]] QString PdfText(const QString& datei);
// The file as it is, a null array where it can't be read; and without what may differ between two sheets of
// the same form, its date and its mark.
[[nodiscard]] QByteArray PdfBytes(const QString& datei);
[[nodiscard]] QByteArray PdfOhneZeit(const QByteArray& bytes);
// Number of pages, -1 for a file that can't be read.
[[nodiscard]] int PdfSeitenzahl(const QString& datei);
// Names of the fonts in the file.
[[nodiscard]] std::vector<std::string> PdfSchriften(const QString& datei);
// True if the file brings along the shapes and the letters of every font.
[[nodiscard]] bool PdfSchriftenDabei(const QString& datei);
// The words of the first page in the order of drawing, with a blank behind each.
[[nodiscard]] std::string PdfLauftext(const QString& datei);
