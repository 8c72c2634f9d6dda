#include "abbildvergleich.h"

#include "abbild.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>

namespace {

constexpr int frist = 8000;       // ms that a window has to become as it should be
constexpr int ruhe = 700;         // ms without a change before a description is written down
constexpr int schritt = 25;       // ms between two looks
constexpr int gezeigteZeilen = 4; // of each side
constexpr qsizetype zeilenende = 600;

bool Erneuern() {
    return qEnvironmentVariableIntValue("ABBILD_ERNEUERN") == 1;
}

QString Pfad(const QString& datei) {
    return QStringLiteral(ABBILD_ORDNER "/erwartet/") + datei;
}

void Schreiben(const QString& pfad, const QByteArray& bytes, Stelle stelle) {
    QFile datei(pfad);
    if (!QDir().mkpath(QFileInfo(pfad).path()) || !datei.open(QIODevice::WriteOnly) ||
        datei.write(bytes) != bytes.size()) {
        Versagen(QStringLiteral("Can't write %1: %2").arg(pfad, datei.errorString()), stelle);
    }
}

QByteArray Lesen(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

// The line from a little before the place where it leaves the other one.
QByteArray Zeigbar(const QByteArray& zeile, const QByteArray& andere) {
    const auto ab = std::ranges::mismatch(zeile, andere).in1 - zeile.begin();
    const qsizetype anfang = ab > zeilenende / 2 ? ab - zeilenende / 4 : 0;
    return (anfang > 0 ? "..." : "") + zeile.mid(anfang, zeilenende);
}

// The first lines that differ, of both; also where one side has more of them than the other.
QString Unterschied(const QByteArray& ist, const QByteArray& soll) {
    const QList<QByteArray> da = ist.split('\n');
    const QList<QByteArray> dort = soll.split('\n');
    QString text;
    int gezeigt = 0;
    for (qsizetype i = 0; i < std::max(da.size(), dort.size()) && gezeigt < gezeigteZeilen; ++i) {
        const QByteArray eine = da.value(i, "(no line)");
        const QByteArray andere = dort.value(i, "(no line)");
        if (eine != andere) {
            text +=
                QStringLiteral("\nline %1 is        %2\n       should be %3")
                    .arg(i + 1)
                    .arg(QString::fromUtf8(Zeigbar(eine, andere)), QString::fromUtf8(Zeigbar(andere, eine)));
            ++gezeigt;
        }
    }
    return text;
}

void AbweichungMelden(const QByteArray& ist, const QByteArray& soll, const QString& datei, Stelle stelle) {
    const QString hier = QStringLiteral(ABBILD_ABLAGE "/") + datei;
    Schreiben(hier, ist, stelle);
    Versagen(QStringLiteral("%1 isn't as in %2; what it is stands in %3%4")
                 .arg(datei, Pfad(datei), hier, Unterschied(ist, soll)),
             stelle);
}

// Lets everything happen that is due, the toolkit's own late steps included. The time is only how often one
// looks: a window that isn't ready is looked at again.
void Weiterlaufen() {
    QTest::qWait(schritt);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QByteArray Jetzt(QWidget* fenster) {
    return abbild::Beschreibung(*fenster).toUtf8();
}

// The description as soon as it stands still.
QByteArray InRuhe(QWidget* fenster) {
    QByteArray text = Jetzt(fenster);
    QDeadlineTimer ende(ruhe);
    while (!ende.hasExpired()) {
        Weiterlaufen();
        if (const QByteArray neu = Jetzt(fenster); neu != text) {
            text = neu;
            ende.setRemainingTime(ruhe);
        }
    }
    return text;
}

// As it should be, and still so a moment later.
bool Gleich(QWidget* fenster, const QByteArray& soll) {
    if (Jetzt(fenster) != soll) {
        return false;
    }
    Weiterlaufen();
    return Jetzt(fenster) == soll;
}

} // namespace

namespace abbild {

void FensterVergleichen(QWidget* fenster, const QString& name, Stelle stelle) {
    const QString datei = name + QStringLiteral(".txt");
    if (Erneuern()) {
        Schreiben(Pfad(datei), InRuhe(fenster), stelle);
        return;
    }
    const QByteArray soll = Lesen(Pfad(datei));
    const QDeadlineTimer ende(frist);
    while (!Gleich(fenster, soll)) {
        if (ende.hasExpired()) {
            AbweichungMelden(Jetzt(fenster), soll, datei, stelle);
            return;
        }
        Weiterlaufen();
    }
}

void BytesVergleichen(const QByteArray& ist, const QString& datei, Stelle stelle) {
    if (Erneuern()) {
        Schreiben(Pfad(datei), ist, stelle);
    } else if (const QByteArray soll = Lesen(Pfad(datei)); ist != soll) {
        AbweichungMelden(ist, soll, datei, stelle);
    }
}

} // namespace abbild
