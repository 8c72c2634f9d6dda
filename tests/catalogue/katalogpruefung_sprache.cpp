#include "tests/catalogue/katalogpruefung_sprache.h"

#include "tests/catalogue/katalogpruefung_muster.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

// Officials and champions by what is said of them now: "Wer wählt den Bundeskanzler?" asks for none. Records
// within one country last for decades.
constexpr std::array wandelbares{
    "\\b(?i:derzeit|zurzeit|zur Zeit(?! de[rs]\\b)|aktuell|momentan|gegenwärtig|jetzig|amtierend|heutzutage)",
    "^(?=.*\\bheute\\b)(?:Wer|Welche[rs]?)\\b.*\\b(?:leitet|regiert|führt|spielt)\\b",
    "^(?=(?:Wer|Wie heißt|Wie lautet|Welche[rs]?)\\b).*?\\b(?:ist|heißt|hält|hat|lautet)"
    "(?: (?!eine?\\b|erste)\\p{Ll}+){0,3} \\p{L}*"
    "(?i:rekord|kanzler|präsident|weltmeister|europameister|olympiasieger|papst)",
    "[Ww]ie vielen? .*\\b(?:Menschen|Einwohner|Staaten|Ländern?|Vereine|Mitglieder)\\b"
    ".*\\b(?:leben|wohnen|gehören|gibt|hat|haben|zählt|spielen)\\b",
    "[Aa]b welchem Alter|[Bb]is zu welchem Geburtstag|Wie alt muss|Wie schnell darf|Telefonnummer",
    "Wie heißt das Geld|Welche Währung",
    "(?:höchste|längste|größte|schnellste|teuerste).*(?i:gebäude|bauwerk|hochhaus|kratzer|brücke|tunnel|turm|"
    "bahnhof|stadion|zug|schiff)\\b.*\\b(?:Welt|Erde|Europas)\\b",
    "(?:höchste|längste|größte)\\w* Flughafen",
};

// Facts that the list takes for changing ones.
bool Bleibend(const QString& frage) {
    // Terminus stations as large as that one and bridges of bricks aren't built any more.
    return frage.contains(QStringLiteral("flächengrößte Kopfbahnhof")) ||
           frage.contains(QStringLiteral("größte Ziegelsteinbrücke"));
}

std::vector<QRegularExpression> WandelbareMuster() {
    std::vector<QRegularExpression> alle;
    for (const char* muster : wandelbares) {
        alle.push_back(Muster(QString::fromUtf8(muster)));
    }
    return alle;
}

// What the patterns below are made of: prepositions that ask where or where to by the case behind them, those
// that always have the dative or the accusative, and articles that can't be the one or the other.
constexpr std::array<std::array<const char*, 2>, 7> bausteine{{
    {"<Ort>", "(?:In|An|Auf|Über|Unter|Vor|Hinter|Neben|Zwischen)"},
    {"<Dativwort>", "(?:Mit|Von|Aus|Bei|Zu|Nach|Seit)"},
    {"<Akkusativwort>", "(?:Durch|Für|Gegen|Ohne)"},
    {"<wem>", "(?:welche[mr]|wem|was für eine[mr])\\b"},
    {"<wen>", "(?:welches?|wen|was für eine?n?)\\b"},
    {"<kein Dativ>", "(?:[Dd]as|[Dd]ie|[Ee]ine?|[Ee]inen)\\b"},
    {"<kein Akkusativ>", "(?:[Dd]er|[Dd]em|[Ee]inem|[Ee]iner)\\b"},
}};

struct Fallregel {
    const char *frage, *antwort, *befund;
};

constexpr std::array<Fallregel, 15> fallregeln{{
    {"", "^<Dativwort> <kein Dativ>", "no dative behind its preposition"},
    {"", "^<Akkusativwort> <kein Akkusativ>", "no accusative behind its preposition"},
    {"^(?:<Ort> <wem>|Wo |Worin )", "^(?:<Ort> <kein Dativ>|(?:Ins|Ans|Aufs)\\b)",
     "where to, but asked where"},
    {"^(?:<Ort> <wen>|Wohin )", "^(?:<Ort> <kein Akkusativ>|(?:Im|Am)\\b)", "where, but asked where to"},
    {"^(?:<Ort>|<Dativwort>) <wem>", "^(?:Den\\b|<kein Dativ>)", "no dative, but asked with one"},
    {"^(?:<Ort>|<Dativwort>) (?:welchem|was für einem)\\b", "^Der\\b", "no dative, but asked with one"},
    {"^(?:<Ort> <wen>|(?:<Akkusativwort>|Um) (?:<wen>|welchen\\b))", "^<kein Akkusativ>",
     "no accusative, but asked with one"},
    {"^We(?:n|lchen)\\b", "^<kein Akkusativ>", "no accusative"},
    {"^We(?:m|lchem)\\b", "^<kein Dativ>", "no dative"},
    {"^Wessen\\b", "^(?:(?:Eine?|Eine[nm]|De[nm])\\b|(?:Das|Die) (?!de[rs] |von |eine[rs] ))", "no genitive"},
    {"^(?:Wer|Welcher)\\b", "^(?:De|Eine)[nm]\\b", "no nominative"},
    {"^Welches?\\b", "^(?:De|Eine)m\\b", "neither nominative nor accusative"},
    {"^Wie (?:heiß(?:t|en)|hieß(?:en)?) ", "^(?:De[rmn]|Das|Die|Eine?[mnr]?|Im|Am|Zum|Zur)\\b",
     "no bare name"},
    {"^Wie nennt ", "^<kein Akkusativ>", "no accusative"},
    {"^Wo(?:mit|von|raus|bei|zu|nach)\\b", "^<kein Dativ>", "no dative"},
}};

QRegularExpression Fallmuster(const char* muster) {
    QString text = QString::fromUtf8(muster);
    for (const auto& [name, inhalt] : bausteine) {
        text.replace(QString::fromUtf8(name), QString::fromUtf8(inhalt));
    }
    return Muster(text);
}

struct Zeichenregel {
    QRegularExpression muster;
    std::string befund;
};

const std::vector<Zeichenregel>& Zeichenregeln() {
    // Behind a blank, ".de" is the end of an address.
    static const std::vector<Zeichenregel> regeln{
        {Muster(QStringLiteral(" (?:[,;:?!)«]|\\.(?!\\p{Ll}))")), "a blank before a sign"},
        {Muster(QStringLiteral("[(»] ")), "a blank behind an opening sign"},
        {Muster(QStringLiteral("[,;:?!]\\p{L}|\\.\\p{Lu}\\p{Ll}")), "no blank behind a sign"},
        {Muster(QStringLiteral("\\p{L}[(»]|(?<!-)[)«]\\p{L}")), "no blank beside a bracket"},
        {Muster(QStringLiteral("\\.\\.|,,|;;|::|\\?\\?|!!|[,;:][,;:.?!]|[.?!],")), "two signs in a row"},
        {Muster(QStringLiteral("['`´„“”‚‘‹›]")), "another program's quote or apostrophe"},
    };
    return regeln;
}

bool Paarig(const QString& text) {
    QString offen;
    for (const QChar zeichen : text) {
        if (zeichen == u'(' || zeichen == u'»') {
            offen += zeichen == u'(' ? u')' : u'«';
        } else if (zeichen == u')' || zeichen == u'«') {
            if (!offen.endsWith(zeichen)) {
                return false;
            }
            offen.chop(1);
        }
    }
    return offen.isEmpty();
}

} // namespace

bool OhneJahr(std::string_view frage) {
    static const QRegularExpression jahr = Muster(QStringLiteral("\\b(?:1\\d|20)\\d\\d\\b"));
    const QString text = Text(frage);
    static const std::vector<QRegularExpression> liste = WandelbareMuster();
    return !Trifft(jahr, text) && !Bleibend(text) &&
           std::any_of(liste.begin(), liste.end(), [&](const auto& muster) { return Trifft(muster, text); });
}

std::string Zeichenfehler(std::string_view text) {
    const QString zeichen = Text(text);
    for (const Zeichenregel& regel : Zeichenregeln()) {
        if (Trifft(regel.muster, zeichen)) {
            return regel.befund;
        }
    }
    return Paarig(zeichen) ? "" : "brackets or »« without their other half";
}

std::string Randfehler(std::string_view frage, std::string_view antwort) {
    static const QRegularExpression schluss = Muster(QStringLiteral("[?.!…«)] ?$"));
    static const QRegularExpression rand = Muster(QStringLiteral("^[,;:.?!)«-]|[,;:] ?$"));
    static const QRegularExpression satz = Muster(QStringLiteral("\\p{L}\\p{Ll}{3}\\. ?$"));
    if (!Trifft(schluss, Text(frage))) {
        return "the question has no end";
    }
    if (Trifft(rand, Text(antwort))) {
        return "the answer begins or ends with a sign";
    }
    return Trifft(satz, Text(antwort)) ? "the answer ends with a full stop" : "";
}

std::string Fallfehler(std::string_view frage, std::string_view antwort) {
    struct Paar {
        QRegularExpression frage, antwort;
    };
    static const std::vector<Paar> muster = [] {
        std::vector<Paar> alle;
        for (const Fallregel& regel : fallregeln) {
            alle.push_back({Fallmuster(regel.frage), Fallmuster(regel.antwort)});
        }
        return alle;
    }();
    for (std::size_t i = 0; i < muster.size(); ++i) {
        if (Trifft(muster[i].frage, Text(frage)) && Trifft(muster[i].antwort, Text(antwort))) {
            return fallregeln.at(i).befund;
        }
    }
    return {};
}
