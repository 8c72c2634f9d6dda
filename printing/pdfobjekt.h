// One object of a PDF file: its words read one after the other, and what they hold.
#pragma once

#include "printing/pdfmarken.h"

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A place where an object is named by its number, or, with the number 0, where a font's name begins with the
// six letters that tell its parts in different files apart.
struct PdfStelle {
    std::size_t anfang = 0, laenge = 0; // in the file
    int nummer = 0;
};

// An entry of an object's outermost dictionary; both as they stand, the name with its slash.
struct PdfEintrag {
    std::string_view name, wert;
};

struct PdfObjekt {
    bool frei = false;          // its number is not in use
    int stand = 0;              // generation of the number, 0 for one in use
    std::size_t anfang = 0;     // in the file; of the trailer: of its dictionary
    std::size_t ende = 0;       // where the next object begins; of the trailer: behind the dictionary
    std::size_t listenende = 0; // where the brackets of the outermost dictionary close; 0 without one
    std::vector<PdfEintrag> eintraege;
    std::vector<PdfStelle> stellen; // in their order, from the object's own number on

    // What stands behind the name; nothing if it doesn't occur.
    [[nodiscard]] std::optional<std::string_view> wert(std::string_view name) const;
};

// A file that isn't understood; PdfAufbauLesen makes nothing of it.
struct PdfUnverstanden : std::exception {};
void PdfVerlange(bool wahr);

// The whole number that comes next. Throws PdfUnverstanden.
[[nodiscard]] int PdfGanzzahl(PdfMarken& marken);

// Reads an object's words from the first one on and gathers what it holds. Throws PdfUnverstanden.
class PdfObjektleser {
public:
    // objekt: with its limits in the file; anzahl: how many numbers the file has.
    PdfObjektleser(std::string_view bytes, int anzahl, PdfObjekt& objekt);

    // "7 0 obj", by which an object begins.
    void Anfang(int nummer);
    // What it holds, up to the word behind it, which is returned: "endobj", "stream", or the end.
    PdfMarke Inhalt();

private:
    void Aufnehmen(const PdfMarke& marke);
    [[nodiscard]] bool WertErwartet() const;
    void WertVerlaengern(const PdfMarke& marke);
    void Schliessen(const PdfMarke& marke);
    void VerweisMerken();
    void KennungMerken(const PdfMarke& marke, bool obenauf);

    std::string_view bytes_;
    int anzahl_;
    PdfObjekt& objekt_;
    PdfMarken marken_;
    PdfMarke letzte_, vorletzte_;
    std::string klammern_; // the open ones, each as its first character
};
