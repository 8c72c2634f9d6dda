#include "tests/catalogue/katalogpruefung_art.h"

#include "tests/catalogue/katalogpruefung_muster.h"
#include "tests/catalogue/katalogpruefung_worte.h"

#include <algorithm>
#include <array>

namespace {

struct Anfang {
    std::string_view worte;
    Fragenart art;
};

constexpr std::array<Anfang, 12> anfaenge{{
    {"Rätsel: ", Fragenart::Raetsel},
    {"Warum ", Fragenart::Begruendung},
    {"Weshalb ", Fragenart::Begruendung},
    {"Wieso ", Fragenart::Begruendung},
    {"Wozu ", Fragenart::Begruendung},
    {"Schätze: ", Fragenart::Schaetzung},
    {"Richtig oder falsch: ", Fragenart::RichtigFalsch},
    {"Ergänze: ", Fragenart::Ergaenzung},
    {"Was passt nicht dazu: ", Fragenart::Ausreisser},
    {"Wie geht es weiter: ", Fragenart::Fortsetzung},
    {"Wer bin ich? ", Fragenart::WerBinIch},
    {"Was bin ich? ", Fragenart::WerBinIch},
}};

const Anfang* AnfangSuchen(std::string_view frage) {
    const auto* fund = std::find_if(anfaenge.begin(), anfaenge.end(),
                                    [&](const Anfang& anfang) { return frage.starts_with(anfang.worte); });
    return fund == anfaenge.end() ? nullptr : fund;
}

// "32 000", "32.000" and "8,95".
double Zahl(QString text) {
    static const QRegularExpression trenner(QStringLiteral("[ .\u00A0]"));
    return text.remove(trenner).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
}

// Value and unit, then lower and upper bound with theirs.
const QRegularExpression& Schaetzmuster() {
    const QString zahl = QStringLiteral("(\\d{1,3}(?:[ .\u00A0]\\d{3})+(?:,\\d+)?|\\d+(?:,\\d+)?)");
    const QString einheit = QStringLiteral("[.]?[- ]?([^\\d()]*?)");
    static const QRegularExpression muster(
        QStringLiteral("^[^\\d(]*") + zahl + einheit + QStringLiteral(" \\((zwischen )?") + zahl + einheit +
        QStringLiteral(" (bis|und) ") + zahl + einheit + QStringLiteral(" zählt\\) ?$"));
    return muster;
}

} // namespace

Fragenart ArtVon(std::string_view frage) {
    const Anfang* anfang = AnfangSuchen(frage);
    return anfang == nullptr ? Fragenart::Wissen : anfang->art;
}

std::string_view OhneArt(std::string_view frage) {
    const Anfang* anfang = AnfangSuchen(frage);
    return anfang == nullptr ? frage : frage.substr(anfang->worte.size());
}

std::optional<Schaetzwert> SchaetzungLesen(std::string_view antwort) {
    const QRegularExpressionMatch fund = Schaetzmuster().match(Text(antwort));
    const auto gleich = [&](int nr) {
        return fund.captured(nr).isEmpty() || fund.captured(nr) == fund.captured(2);
    };
    const bool zwischen = !fund.captured(3).isEmpty();
    if (!fund.hasMatch() || !gleich(5) || !gleich(8) ||
        zwischen != (fund.captured(6) == QLatin1String("und"))) {
        return std::nullopt;
    }
    return Schaetzwert{Zahl(fund.captured(1)), Zahl(fund.captured(4)), Zahl(fund.captured(7))};
}

std::optional<bool> WahrheitLesen(std::string_view antwort) {
    for (const std::string_view wort : {std::string_view("Richtig, "), std::string_view("Falsch, ")}) {
        if (antwort.starts_with(wort) && !Worte(antwort.substr(wort.size())).empty()) {
            return wort.starts_with('R');
        }
    }
    return std::nullopt;
}

std::vector<std::string> Auswahl(std::string_view frage) {
    const std::string_view rest = OhneArt(frage);
    const QString alle = Text(rest.substr(0, rest.find('?')));
    static const QRegularExpression trenner(QStringLiteral(", | oder "));
    std::vector<std::string> auswahl;
    for (const QString& eins : alle.split(trenner)) {
        auswahl.push_back(eins.toStdString());
    }
    return auswahl;
}

bool NenntAusreisser(std::string_view frage, std::string_view antwort) {
    const std::size_t klammer = antwort.find(" (");
    if (klammer == std::string_view::npos) {
        return false;
    }
    const QString genannt = Text(antwort.substr(0, klammer));
    const std::vector<std::string> auswahl = Auswahl(frage);
    // An answer begins with a capital letter whatever its word.
    return std::any_of(auswahl.begin(), auswahl.end(), [&](const std::string& eins) {
        return genannt.compare(Text(eins), Qt::CaseInsensitive) == 0;
    });
}

bool LueckeGefuellt(std::string_view frage, std::string_view antwort) {
    static const QRegularExpression luecke(QStringLiteral("^»[^«]*…[^«]*«"));
    static const QRegularExpression fuellung(QStringLiteral("^»… ?[^« ][^«]*«"));
    return Trifft(luecke, Text(OhneArt(frage))) && Trifft(fuellung, Text(antwort));
}
