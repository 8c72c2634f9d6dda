#include "tests/stoerung/speicherprobe.h"

#include "forms/formularjournal.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <set>
#include <utility>

namespace {

// Copies of old files that saves in place have put aside.
QStringList Kopien(const QString& name) {
    const QDir ablage(QStringLiteral("/var/tmp"));
    QStringList pfade;
    for (const QString& kopie : ablage.entryList({QStringLiteral("Feldkranz-%1-*").arg(name)}, QDir::Files)) {
        pfade << ablage.filePath(kopie);
    }
    return pfade;
}

// The rule that goes on all the time, and the one for this save.
Regel Beide(const Regel& immer, const Regel& diesmal) {
    return [=](const Aufruf& aufruf) {
        const int fehlernummer = immer ? immer(aufruf) : 0;
        return fehlernummer != 0 || !diesmal ? fehlernummer : diesmal(aufruf);
    };
}

} // namespace

Fehlgrund Schreibgrund(int fehlernummer) {
    switch (fehlernummer) {
    case ENOSPC:
    case EDQUOT:
        return {61, QStringLiteral("Datenträger voll")};
    case EROFS:
    case EACCES:
    case ETXTBSY:
        return {70, QStringLiteral("Zugriff verweigert")};
    case ENAMETOOLONG:
        return {52, QStringLiteral("Dateiname oder -nummer falsch")};
    case ENODEV:
        return {68, QStringLiteral("Gerät nicht verfügbar")};
    case EBUSY:
        return {71, QStringLiteral("Laufwerk nicht bereit")};
    case EISDIR:
        return {75, QStringLiteral("Fehler beim Zugriff auf Pfad oder Datei")};
    case ENOENT:
        return {76, QStringLiteral("Pfad nicht gefunden")};
    default:
        return {57, QStringLiteral("Ein-/Ausgabefehler des Geräts")};
    }
}

Fehlgrund Lesegrund(int fehlernummer) {
    return Schreibgrund(fehlernummer == ENOSPC || fehlernummer == EDQUOT ? EIO : fehlernummer);
}

Meldungserwartung Fehlerbericht(const QString& ort, const Fehlgrund& grund) {
    const QString was = grund.nummer == 52 ? QStringLiteral("Dateiname !?")
                                           : QStringLiteral("%1 : %2").arg(grund.nummer).arg(grund.text);
    return {ort + QStringLiteral(" :\n") + was, QStringLiteral("Grrr.. *~§§°")};
}

void Speicherfall::Ablegen(const QByteArray& bytes) const {
    QFile::remove(pfad());
    QFile datei(pfad());
    if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size()) {
        VersagenUndEnde(QStringLiteral("The old file can't be put there"), Stelle::hier());
    }
}

void Speicherfall::Anfang() const {
    Ablegen(alt);
    kennen();
    aendern();
}

QByteArray Dateibytes(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

QString Lebensklage() {
    bool da = false;
    QTimer::singleShot(0, [&da] { da = true; });
    QCoreApplication::processEvents();
    if (!da && !QTest::qWaitFor([&da] { return da; })) {
        return QStringLiteral("the window handles no events");
    }
    if (QGuiApplication::overrideCursor() != nullptr) {
        return QStringLiteral("the pointer goes on saying \"wait\"");
    }
    return QString();
}

Speicherprobe::Speicherprobe(Speicherfall fall) : fall_(std::move(fall)) {
    fall_.speichern();
    texte_ = mitschrift_.Holen();
    neu_ = Dateibytes(fall_.pfad());
}

QString Speicherprobe::Lauf(const Regel& regel, int fehlernummer) {
    fall_.Anfang();
    const QString inhalt = fall_.inhalt();
    {
        const Stoerung stoerung({fall_.ordner.toStdString(), "/var/tmp"}, regel);
        fall_.speichern();
        aufrufe_ = stoerung.aufrufe();
    }
    texte_ = mitschrift_.Holen();
    const auto gesagt = [this](const Meldungserwartung& meldung) {
        return texte_ == (meldung.text.isEmpty() ? QStringList() : QStringList(meldung.text));
    };
    const bool gelungen = gesagt(fall_.gelungen);
    const Fehlgrund grund = Altesgelesen() ? Lesegrund(fehlernummer) : Schreibgrund(fehlernummer);
    if (!gelungen && !gesagt(fall_.gescheitert(grund))) {
        return QStringLiteral("the user was told: ") + texte_.join(QStringLiteral(" / "));
    }
    (gelungen ? gelungene_ : gescheiterte_) += 1;
    return Dateiklage(gelungen) + Fensterklage(gelungen, inhalt) + Restklage();
}

bool Speicherprobe::gerufen(std::string_view name) const {
    return std::ranges::find(aufrufe_, name, &Aufruf::name) != aufrufe_.end();
}

// True when the save came as far as reading the old file, and no farther: "open" is for folders and for that.
bool Speicherprobe::Altesgelesen() const {
    const std::string pfad = fall_.pfad().toStdString();
    const auto versagt = std::ranges::find_if(aufrufe_, [&](const Aufruf& aufruf) {
        return aufruf.fehlernummer != 0 && !aufruf.anlegend && aufruf.pfad == pfad;
    });
    if (versagt == aufrufe_.end()) {
        return false;
    }
    const std::set<std::string_view> lesend{"stat", "open", "fstat", "read", "close"};
    return std::any_of(aufrufe_.begin(), versagt, [](const Aufruf& a) { return a.anlegend; }) &&
           lesend.contains(versagt->name) &&
           std::none_of(aufrufe_.begin(), versagt, [](const Aufruf& a) { return a.pfad == "/var/tmp"; });
}

// A file that was being written in place when the disk went is kept as a copy.
bool Speicherprobe::Bewahrt() const {
    const QStringList kopien = Kopien(fall_.name);
    return std::ranges::any_of(kopien, [this](const QString& k) { return Dateibytes(k) == fall_.alt; });
}

QString Speicherprobe::Dateiklage(bool gelungen) const {
    const QByteArray bytes = Dateibytes(fall_.pfad());
    if (bytes == neu_ || (!gelungen && (bytes == fall_.alt || Bewahrt()))) {
        return QString();
    }
    return gelungen ? QStringLiteral("a save is claimed that isn't in the file; ")
                    : QStringLiteral("neither the old file nor the new one is whole; ");
}

QString Speicherprobe::Fensterklage(bool gelungen, const QString& inhalt) const {
    if (fall_.ungesichert && fall_.ungesichert() == gelungen) {
        return gelungen ? QStringLiteral("the flag is red after a save; ")
                        : QStringLiteral("the flag is green without a save; ");
    }
    return fall_.inhalt() == inhalt ? Lebensklage() : QStringLiteral("the window has lost what it held; ");
}

// What lies about counts where nothing hindered its removal. The copy of a file that is not whole is meant,
// and so is one where the disk can't be asked any more whether it is.
QString Speicherprobe::Restklage() const {
    FormularjournalAbwarten(); // it writes with scraps of its own
    const QByteArray bytes = Dateibytes(fall_.pfad());
    const bool gebraucht = endgueltig_ || (bytes != neu_ && bytes != fall_.alt);
    const bool verhindert = std::ranges::any_of(aufrufe_, [](const Aufruf& aufruf) {
        return aufruf.name.starts_with("unlink") && aufruf.fehlernummer != 0;
    });
    const QDir ordner(fall_.ordner);
    QStringList reste = Kopien(fall_.name);
    for (const QString& name :
         ordner.entryList({QStringLiteral(".feldkranz-*")}, QDir::Files | QDir::Hidden)) {
        reste << ordner.filePath(name);
    }
    for (const QString& rest : std::as_const(reste)) {
        QFile::remove(rest);
    }
    return reste.isEmpty() || gebraucht || verhindert
               ? QString()
               : QStringLiteral("left lying about: ") + reste.join(QLatin1Char(' '));
}

// The save without a fault behind it must come about.
QString Speicherprobe::Speichern(const Regel& regel, int fehlernummer) {
    const QString klage = Lauf(regel, fehlernummer);
    if (!klage.isEmpty()) {
        return klage;
    }
    const QByteArray vorher = Dateibytes(fall_.pfad());
    const bool eigen = vorher.isNull() || vorher == fall_.alt || vorher == neu_;
    fall_.aendern();
    (void)mitschrift_.Fragen();
    fall_.speichern();
    const QString gesagt = mitschrift_.Holen().join(QStringLiteral(" / "));
    const bool rot = fall_.ungesichert && fall_.ungesichert();
    if (gesagt != fall_.gelungen.text || rot || Dateibytes(fall_.pfad()) != neu_) {
        return QStringLiteral("the next save doesn't come about: ") + gesagt;
    }
    return mitschrift_.Fragen().size() == (fall_.frage ? 1 : 0) || !eigen
               ? QString()
               : QStringLiteral("the program takes its own file for another one's");
}

QString Speicherprobe::FremdesBleibt(const std::vector<int>& fehlernummern) {
    const QByteArray fremd = "von jemand anderem";
    const QString inhalt = fall_.inhalt();
    mitschrift_.Ablehnen(true);
    QString klage;
    for (const int fehlernummer : fehlernummern) {
        int aufrufe = 1;
        for (int nummer = 0; nummer <= aufrufe && klage.isEmpty(); ++nummer) {
            fall_.Anfang();
            fall_.Ablegen(fremd);
            (void)mitschrift_.Fragen();
            {
                const Stoerung stoerung({fall_.ordner.toStdString()}, [=](const Aufruf& aufruf) {
                    return aufruf.nummer == nummer ? fehlernummer : 0;
                });
                fall_.speichern();
                aufrufe = qMax(aufrufe, static_cast<int>(stoerung.aufrufe().size()));
            }
            (void)mitschrift_.Holen();
            const QString frage = mitschrift_.Fragen().value(fall_.frage ? 1 : 0);
            const bool gefragt =
                frage == fall_.fremdfrage.geaendert() || frage == fall_.fremdfrage.unlesbar();
            klage = Dateibytes(fall_.pfad()) != fremd ? QStringLiteral("it is gone; ")
                    : gefragt                         ? Fensterklage(false, inhalt)
                                                      : QStringLiteral("nobody was asked; ");
            klage += klage.isEmpty() ? QString()
                                     : QStringLiteral("errno %1 at call %2").arg(fehlernummer).arg(nummer);
        }
    }
    mitschrift_.Ablehnen(false);
    return klage;
}

QString Speicherprobe::Klagen(const std::function<Regel(int)>& regel, int anzahl, int fehlernummer) {
    constexpr qsizetype genug = 5;
    QStringList klagen;
    for (int nummer = 1; nummer <= anzahl && klagen.size() < genug; ++nummer) {
        if (const QString klage = Speichern(regel(nummer), fehlernummer); !klage.isEmpty()) {
            const auto aufruf =
                std::ranges::find_if(aufrufe_, [](const Aufruf& a) { return a.fehlernummer != 0; });
            const std::string was =
                aufruf == aufrufe_.end() ? "none" : std::string(aufruf->name) + " " + aufruf->pfad;
            klagen << QStringLiteral("errno %1 at call %2 (%3): %4")
                          .arg(fehlernummer)
                          .arg(nummer)
                          .arg(QString::fromStdString(was), klage);
        }
    }
    return klagen.join(QLatin1Char('\n'));
}

QString Speicherprobe::JederVersagt(const std::vector<int>& fehlernummern, const Regel& immer) {
    QString klagen = Speichern(immer, 0);
    const int anzahl = static_cast<int>(aufrufe_.size());
    for (const int fehlernummer : fehlernummern) {
        const auto regel = [&](int nummer) {
            return Beide(immer,
                         [=](const Aufruf& aufruf) { return aufruf.nummer == nummer ? fehlernummer : 0; });
        };
        klagen += Klagen(regel, anzahl, fehlernummer);
    }
    return klagen;
}

QString Speicherprobe::AbJedem(int fehlernummer, const std::function<bool(const Aufruf&)>& welche,
                               const Regel& immer) {
    QString klagen = Speichern(immer, 0);
    const int anzahl = static_cast<int>(aufrufe_.size());
    endgueltig_ = true;
    const auto regel = [&](int nummer) {
        return Beide(immer, [=](const Aufruf& aufruf) {
            return aufruf.nummer >= nummer && welche(aufruf) ? fehlernummer : 0;
        });
    };
    klagen += Klagen(regel, anzahl, fehlernummer);
    endgueltig_ = false;
    return klagen;
}

QString Speicherprobe::KaputtAb(const Regel& immer) {
    return AbJedem(
        EIO, [](const Aufruf&) { return true; }, immer);
}

QString Speicherprobe::VollAb(const Regel& immer) {
    const auto braucht = [](const Aufruf& aufruf) { return aufruf.anlegend || aufruf.name == "write"; };
    return AbJedem(ENOSPC, braucht, immer);
}
