#include "tests/printing/pdfleser.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTransform>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr double mmJePunkt = 25.4 / 72.0;
constexpr int frist = 30000; // ms

// Output of a program; an empty array after a failure.
QByteArray Ausgabe(const QString& programm, const QStringList& argumente) {
    QProcess lauf;
    lauf.start(programm, argumente);
    if (!lauf.waitForFinished(frist)) {
        lauf.kill();
        lauf.waitForFinished(frist);
        return {};
    }
    return lauf.exitStatus() == QProcess::NormalExit && lauf.exitCode() == 0 ? lauf.readAllStandardOutput()
                                                                             : QByteArray();
}

std::map<QString, QString> Stil(const QString& text) {
    std::map<QString, QString> ergebnis;
    for (const QString& teil : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        ergebnis[teil.section(QLatin1Char(':'), 0, 0).trimmed()] =
            teil.section(QLatin1Char(':'), 1).trimmed();
    }
    return ergebnis;
}

std::vector<double> Zahlen(const QString& text) {
    static const QRegularExpression muster(QStringLiteral("-?\\d+(\\.\\d+)?"));
    std::vector<double> ergebnis;
    auto lauf = muster.globalMatch(text);
    while (lauf.hasNext()) {
        ergebnis.push_back(lauf.next().captured().toDouble());
    }
    return ergebnis;
}

// "r,g,b" for a colour in per cent; "" for none.
std::string Farbwert(const QString& text) {
    const std::vector<double> prozent = Zahlen(text);
    if (!text.startsWith(QLatin1String("rgb")) || prozent.size() != 3) {
        return {};
    }
    std::string ergebnis;
    for (const double anteil : prozent) {
        ergebnis += (ergebnis.empty() ? "" : ",") + std::to_string(std::lround(anteil * 2.55));
    }
    return ergebnis;
}

QTransform Matrix(const QString& text) {
    const std::vector<double> m = Zahlen(text);
    return m.size() == 6 ? QTransform(m[0], m[1], m[2], m[3], m[4], m[5]) : QTransform();
}

// The corners of a path; a corner that is named again at the end doesn't count twice.
std::vector<QPointF> Ecken(const QString& d, const QTransform& matrix) {
    const std::vector<double> zahlen = Zahlen(d);
    std::vector<QPointF> ecken;
    for (std::size_t i = 0; i + 1 < zahlen.size(); i += 2) {
        const QPointF ecke = matrix.map(QPointF(zahlen[i], zahlen[i + 1])) * mmJePunkt;
        const bool bekannt = std::any_of(ecken.begin(), ecken.end(), [&](QPointF andere) {
            return std::hypot(andere.x() - ecke.x(), andere.y() - ecke.y()) < 0.001;
        });
        if (!bekannt) {
            ecken.push_back(ecke);
        }
    }
    return ecken;
}

Pfad PfadLesen(const QXmlStreamAttributes& merkmale) {
    const QTransform matrix = Matrix(merkmale.value(QLatin1String("transform")).toString());
    auto stil = Stil(merkmale.value(QLatin1String("style")).toString());
    const auto ecken = Ecken(merkmale.value(QLatin1String("d")).toString(), matrix);
    Pfad pfad;
    pfad.ecken = static_cast<int>(ecken.size());
    pfad.linie = Farbwert(stil[QStringLiteral("stroke")]);
    pfad.fuellung = Farbwert(stil[QStringLiteral("fill")]);
    if (!pfad.linie.empty()) {
        pfad.strich = stil[QStringLiteral("stroke-width")].toDouble() * std::abs(matrix.m11()) * mmJePunkt;
    }
    if (!ecken.empty()) {
        const auto [l, r] = std::minmax_element(ecken.begin(), ecken.end(),
                                                [](QPointF a, QPointF b) { return a.x() < b.x(); });
        const auto [o, u] = std::minmax_element(ecken.begin(), ecken.end(),
                                                [](QPointF a, QPointF b) { return a.y() < b.y(); });
        pfad.links = l->x();
        pfad.rechts = r->x();
        pfad.oben = o->y();
        pfad.unten = u->y();
    }
    return pfad;
}

// All paths but the shapes of the letters.
std::vector<Pfad> PfadeLesen(const QByteArray& svg) {
    std::vector<Pfad> pfade;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("defs")) {
            xml.skipCurrentElement();
        } else if (xml.name() == QLatin1String("path")) {
            pfade.push_back(PfadLesen(xml.attributes()));
        }
    }
    return pfade;
}

void WorteLesen(const QByteArray& xhtml, PdfSeite& seite) {
    QXmlStreamReader xml(xhtml);
    const auto mm = [&](const char* name) {
        return xml.attributes().value(QLatin1String(name)).toDouble() * mmJePunkt;
    };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("page")) {
            seite.breite = mm("width");
            seite.hoehe = mm("height");
        } else if (xml.name() == QLatin1String("word")) {
            Wort wort{mm("xMin"), mm("yMin"), mm("xMax"), mm("yMax"), {}};
            wort.text = xml.readElementText().toStdString();
            seite.worte.push_back(wort);
        }
    }
}

} // namespace

PdfSeite PdfLesen(const QString& datei, int nummer) {
    PdfSeite seite;
    const QString n = QString::number(nummer);
    const QStringList wahl{QStringLiteral("-f"), n, QStringLiteral("-l"), n, datei, QStringLiteral("-")};
    const QByteArray svg = Ausgabe(QStringLiteral("pdftocairo"), QStringList(QStringLiteral("-svg")) + wahl);
    const QByteArray text = Ausgabe(QStringLiteral("pdftotext"), QStringList(QStringLiteral("-bbox")) + wahl);
    if (svg.isEmpty() || text.isEmpty()) {
        seite.fehler = "poppler can't read " + datei.toStdString();
        return seite;
    }
    seite.pfade = PfadeLesen(svg);
    WorteLesen(text, seite);
    return seite;
}

QString PdfText(const QString& datei) {
    return QString::fromUtf8(
        Ausgabe(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), datei, QStringLiteral("-")}));
}

QByteArray PdfBytes(const QString& datei) {
    QFile quelle(datei);
    return quelle.open(QIODevice::ReadOnly) ? quelle.readAll() : QByteArray();
}

QByteArray PdfOhneZeit(const QByteArray& bytes) {
    static const QRegularExpression zeit(QStringLiteral("/CreationDate \\(D:[^)]*\\)|/ID ?\\[[^\\]]*\\]"));
    return QString::fromLatin1(bytes).remove(zeit).toLatin1();
}

int PdfSeitenzahl(const QString& datei) {
    static const QRegularExpression muster(QStringLiteral("Pages:\\s+(\\d+)"));
    const auto treffer = muster.match(QString::fromUtf8(Ausgabe(QStringLiteral("pdfinfo"), {datei})));
    return treffer.hasMatch() ? treffer.captured(1).toInt() : -1;
}

namespace {

// What pdffonts says, a line for each font.
QStringList Schriftzeilen(const QString& datei) {
    return QString::fromUtf8(Ausgabe(QStringLiteral("pdffonts"), {datei}))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
        .mid(2);
}

} // namespace

std::vector<std::string> PdfSchriften(const QString& datei) {
    std::vector<std::string> namen;
    for (const QString& zeile : Schriftzeilen(datei)) {
        namen.push_back(zeile.section(QLatin1Char(' '), 0, 0).toStdString());
    }
    return namen;
}

bool PdfSchriftenDabei(const QString& datei) {
    const QStringList zeilen = Schriftzeilen(datei);
    return !zeilen.isEmpty() && std::all_of(zeilen.begin(), zeilen.end(), [](const QString& zeile) {
        static const QRegularExpression muster(QStringLiteral(" yes (yes|no ) yes +\\d+ +\\d+$"));
        return muster.match(zeile).hasMatch(); // embedded, in part, with its letters; number of the object
    });
}

std::string PdfLauftext(const QString& datei) {
    return PdfText(datei).simplified().toStdString() + ' ';
}
