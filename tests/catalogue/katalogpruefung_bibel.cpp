#include "tests/catalogue/katalogpruefung_bibel.h"

#include "tests/catalogue/katalogpruefung_muster.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

struct Buch {
    std::string_view name;
    int kapitel, verse; // verses of the longest chapter
};

constexpr std::array<Buch, 66> buecher{{
    {"1. Mose", 50, 67},
    {"2. Mose", 40, 51},
    {"3. Mose", 27, 59},
    {"4. Mose", 36, 89},
    {"5. Mose", 34, 69},
    {"Josua", 24, 63},
    {"Richter", 21, 57},
    {"Rut", 4, 23},
    {"1. Samuel", 31, 58},
    {"2. Samuel", 24, 51},
    {"1. Könige", 22, 66},
    {"2. Könige", 25, 44},
    {"1. Chronik", 29, 66},
    {"2. Chronik", 36, 42},
    {"Esra", 10, 70},
    {"Nehemia", 13, 73},
    {"Ester", 10, 32},
    {"Hiob", 42, 41},
    {"Psalm", 150, 176},
    {"Sprüche", 31, 36},
    {"Prediger", 12, 29},
    {"Hoheslied", 8, 17},
    {"Jesaja", 66, 38},
    {"Jeremia", 52, 64},
    {"Klagelieder", 5, 66},
    {"Hesekiel", 48, 63},
    {"Daniel", 12, 49},
    {"Hosea", 14, 25},
    {"Joel", 4, 27},
    {"Amos", 9, 27},
    {"Obadja", 1, 21},
    {"Jona", 4, 16},
    {"Micha", 7, 20},
    {"Nahum", 3, 19},
    {"Habakuk", 3, 20},
    {"Zefanja", 3, 20},
    {"Haggai", 2, 23},
    {"Sacharja", 14, 23},
    {"Maleachi", 3, 24},
    {"Matthäus", 28, 75},
    {"Markus", 16, 72},
    {"Lukas", 24, 80},
    {"Johannes", 21, 71},
    {"Apostelgeschichte", 28, 60},
    {"Römer", 16, 39},
    {"1. Korinther", 16, 58},
    {"2. Korinther", 13, 33},
    {"Galater", 6, 31},
    {"Epheser", 6, 33},
    {"Philipper", 4, 30},
    {"Kolosser", 4, 29},
    {"1. Thessalonicher", 5, 28},
    {"2. Thessalonicher", 3, 18},
    {"1. Timotheus", 6, 25},
    {"2. Timotheus", 4, 26},
    {"Titus", 3, 16},
    {"Philemon", 1, 25},
    {"1. Petrus", 5, 25},
    {"2. Petrus", 3, 22},
    {"1. Johannes", 5, 29},
    {"2. Johannes", 1, 13},
    {"3. Johannes", 1, 15},
    {"Hebräer", 13, 40},
    {"Jakobus", 5, 27},
    {"Judas", 1, 25},
    {"Offenbarung", 22, 29},
}};

struct Kapitel {
    std::string_view buch;
    int kapitel, verse;
};

// Chapters out of which single verses are cited or learnt by heart.
constexpr std::array<Kapitel, 18> einzelne{{
    {"1. Mose", 1, 31},
    {"2. Mose", 20, 26},
    {"Psalm", 1, 6},
    {"Psalm", 23, 6},
    {"Psalm", 103, 22},
    {"Prediger", 3, 22},
    {"Jesaja", 43, 28},
    {"Matthäus", 5, 48},
    {"Matthäus", 6, 34},
    {"Matthäus", 7, 29},
    {"Matthäus", 28, 20},
    {"Lukas", 2, 52},
    {"Lukas", 15, 32},
    {"Johannes", 3, 36},
    {"Johannes", 14, 31},
    {"Apostelgeschichte", 2, 47},
    {"Römer", 8, 39},
    {"1. Korinther", 13, 13},
}};

const Buch* BuchSuchen(std::string_view name) {
    const auto* fund =
        std::find_if(buecher.begin(), buecher.end(), [&](const Buch& buch) { return buch.name == name; });
    return fund == buecher.end() ? nullptr : fund;
}

// Chapter, verse and end of a range that a book is followed by; 0 for what isn't given.
struct Stelle {
    int kapitel, vers, bisVers, bisKapitel;
};

std::string Zahlenfehler(std::string_view buch, const Stelle& stelle) {
    const int letztes = Kapitelzahl(buch);
    if (stelle.kapitel < 1 || std::max(stelle.kapitel, stelle.bisKapitel) > letztes) {
        return std::string(buch) + " has " + std::to_string(letztes) + " chapters";
    }
    const int letzter = Verszahl(buch, stelle.kapitel);
    if (std::max(stelle.vers, stelle.bisVers) > letzter) {
        return std::string(buch) + " " + std::to_string(stelle.kapitel) + " has no more than " +
               std::to_string(letzter) + " verses";
    }
    const bool rueckwaerts = (stelle.bisVers != 0 && stelle.bisVers <= stelle.vers) ||
                             (stelle.bisKapitel != 0 && stelle.bisKapitel <= stelle.kapitel);
    return rueckwaerts ? std::string(buch) + ": the range runs backwards" : std::string();
}

// A book and numbers behind it, wherever they stand; a noun behind the number makes it a count ("Jona 3
// Tage").
std::string FehlerImSatz(const QString& text) {
    static const QRegularExpression muster =
        Muster(QStringLiteral("(?<![\\p{L}\\d])((?:\\d\\. )?\\p{Lu}\\p{L}+) (\\d+)"
                              "(?:,(\\d+)(?:[-–.](\\d+))?|(?: bis |[-–])(\\d+))?(?!\\d| \\p{Lu})"));
    for (auto lauf = muster.globalMatch(text); lauf.hasNext();) {
        const QRegularExpressionMatch fund = lauf.next();
        const std::string buch = fund.captured(1).toStdString();
        const auto zahl = [&](int nr) { return fund.captured(nr).toInt(); };
        if (BuchSuchen(buch) != nullptr) {
            const std::string fehler = Zahlenfehler(buch, {zahl(2), zahl(3), zahl(4), zahl(5)});
            if (!fehler.empty()) {
                return fehler;
            }
        }
    }
    return {};
}

// What looks like a place in its brackets is one, and its book has its usual name.
std::string FehlerInKlammern(const QString& text) {
    static const QRegularExpression klammer = Muster(QStringLiteral("\\(([^()]*)\\)"));
    static const QRegularExpression name =
        Muster(QStringLiteral("^((?:\\d\\. ?)?\\p{Lu}\\p{L}+(?: \\p{Lu}\\p{L}+)?) (?=\\d)"));
    static const QRegularExpression zahlen =
        Muster(QStringLiteral("^\\d+(?:,\\d+(?:(?:[-–.]| und | bis )\\d+)*(?: ff?\\.)?|(?:[-–]| und | bis "
                              ")\\d+)?(?:, \\p{L}.*)?$"));
    for (auto lauf = klammer.globalMatch(text); lauf.hasNext();) {
        for (const QString& teil : lauf.next().captured(1).split(QStringLiteral("; "))) {
            const QRegularExpressionMatch fund = name.match(teil);
            const std::string buch = fund.captured(1).toStdString();
            if (buch.empty() || buch == "Stand") { // the year for which a fact holds
                continue;
            }
            if (BuchSuchen(buch) == nullptr) {
                return "no book of the Bible: " + buch;
            }
            if (!zahlen.match(teil.mid(fund.capturedEnd())).hasMatch()) {
                return "no Bible place: " + teil.toStdString();
            }
        }
    }
    return {};
}

} // namespace

int Kapitelzahl(std::string_view buch) {
    const Buch* fund = BuchSuchen(buch);
    return fund == nullptr ? 0 : fund->kapitel;
}

int Verszahl(std::string_view buch, int kapitel) {
    const auto* fund = std::find_if(einzelne.begin(), einzelne.end(), [&](const Kapitel& eintrag) {
        return eintrag.buch == buch && eintrag.kapitel == kapitel;
    });
    const Buch* ganzes = BuchSuchen(buch);
    return fund != einzelne.end() ? fund->verse : ganzes == nullptr ? 0 : ganzes->verse;
}

std::string Bibelstellenfehler(std::string_view text) {
    const QString zeichen = Text(text);
    const std::string fehler = FehlerInKlammern(zeichen);
    return fehler.empty() ? FehlerImSatz(zeichen) : fehler;
}
