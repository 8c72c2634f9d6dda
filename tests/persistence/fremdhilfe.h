// The question about a file that another program has written meanwhile, as the tests of form, editor and
// settings expect it, and a file that is only touched.
#pragma once

#include "core/datei.h"
#include "tests/hilfe/dialogfolge.h"

#include <QDateTime>
#include <QFile>

inline const QString neinAndererName = QStringLiteral("( Nein : Du nennst mir einen anderen Namen )");
inline const QString neinBleibt = QStringLiteral("( Nein : Ich lasse sie in Ruhe )");

struct Fremdfrage {
    QString datei; // "Die Formulardatei" and its like
    QString name;
    QString nein = neinAndererName;

    [[nodiscard]] QString geaendert() const {
        return QStringLiteral("%1\n[ %2 ]\nist nicht mehr so, wie ich sie kenne !\nSoll ich sie "
                              "überschreiben ?\n%3")
            .arg(datei, name, nein);
    }
    [[nodiscard]] QString unlesbar() const {
        return QStringLiteral(
                   "%1\n[ %2 ]\nkann ich gerade nicht nachlesen !\nSoll ich sie überschreiben ?\n%3")
            .arg(datei, name, nein);
    }
};

inline const QString fremdTitel = QStringLiteral("Da war jemand dran !");
inline const QString unlesbarTitel = QStringLiteral("Da komme ich nicht dran !");

inline void FremdErwarten(Dialogfolge& dialoge, const Fremdfrage& frage, int antwort,
                          Stelle stelle = Stelle::hier()) {
    dialoge.frage(fremdTitel, frage.geaendert(), antwort, stelle);
}

inline void BleibtErwarten(Dialogfolge& dialoge, const QString& name, Stelle stelle = Stelle::hier()) {
    dialoge.meldung(QStringLiteral("Nichts gespeichert !\n[ %1 ]\nbleibt, wie sie ist.").arg(name),
                    QStringLiteral("Vorsicht ist besser"), stelle);
}

// The question closed by its frame.
inline void FremdGeschlossen(Dialogfolge& dialoge, const Fremdfrage& frage, Stelle stelle = Stelle::hier()) {
    dialoge.erwarte(
        {QStringLiteral("frmNachricht"), fremdTitel + QLatin1Char(' '), frage.geaendert(), {durchRahmen}},
        stelle);
}

// In place of the file one that is too large to be read; it takes no room on the disk.
inline void UnlesbarMachen(const QString& nativ, Stelle stelle = Stelle::hier()) {
    QFile datei(nativ);
    if (!datei.open(QIODevice::WriteOnly) || !datei.resize(static_cast<qint64>(groessteDatei) + 1)) {
        Versagen(QStringLiteral("The file can't be made that large"), stelle);
    }
}

// The same bytes with a time of its own.
inline void Beruehren(const QString& nativ, Stelle stelle = Stelle::hier()) {
    QFile datei(nativ);
    if (!datei.open(QIODevice::ReadWrite) ||
        !datei.setFileTime(QDateTime(QDate(2031, 5, 1), QTime(12, 0)), QFileDevice::FileModificationTime)) {
        Versagen(QStringLiteral("The file's time can't be set"), stelle);
    }
}
