// The sound service: which requests reach a player, and that the program itself stays silent. The player is a
// script in the search path that notes what it is given.
#include "core/oberflaeche.h"
#include "dialogs/klangtabelle.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"
#include "tests/dialogs/dialogwarten.h"
#include "tests/hilfe/programmordner.h"

#include <QFile>
#include <QPushButton>
#include <QTest>

namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

class KlangdienstTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        OberflaecheEinrichten();
        qputenv("PATH", programm_.nativ(QStringLiteral("bin")).toUtf8());
    }
    void init() { PlayerAnlegen(); }
    void cleanup() {
        ModalHandlerSetzen({});
        QFile::remove(programm_.nativ(QStringLiteral("gespielt")));
    }
    void cleanupTestCase() { qputenv("PATH", pfad_); }

    void everyKeyPlaysItsFileOnce_data() {
        QTest::addColumn<QString>("schluessel");
        for (const Klang& klang : klangTabelle) {
            QTest::newRow(qPrintable(Text(klang.schluessel))) << Text(klang.schluessel);
        }
    }
    void everyKeyPlaysItsFileOnce() {
        QFETCH(const QString, schluessel);
        SoundSpielen(schluessel.toStdString());
        QCOMPARE(Gespielt(), programm_.nativ(QStringLiteral("SOUND/") + schluessel) + QLatin1Char('\n'));
    }

    void theNamesThatTheProgramAsksForPlayNothing_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"dubb", "clack", "freiz_2", "trompete", "falscherWeg", "Hilfe", "",
                                 "DUBB.WAV", "dubb.wav ", "\\SOUND\\dubb.wav"}) {
            QTest::addRow("[%s]", name) << QString::fromLatin1(name);
        }
    }
    void theNamesThatTheProgramAsksForPlayNothing() {
        QFETCH(const QString, name);
        SoundSpielen(name.toStdString());
        QVERIFY(Gespielt().isNull());
    }

    void closingAMessageAndRefusingAQuestionStaySilent() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            QTest::mouseClick(&Kind<QPushButton>(dialog, "cmdKenntnis"), Qt::LeftButton);
        });
        warter.dann(QStringLiteral("frmNachricht"), [](QDialog& dialog) {
            QTest::mouseClick(&Kind<QAbstractButton>(dialog, "cmdAntwort(2)"), Qt::LeftButton);
        });
        Meldung({4, "Feldkranz.INI nicht gespeichert !", "987", "Das ist nicht so schlimm"});
        Nachricht({7, "Formular schließen", "Ich schließe das Feldkranz-Formular !", 3, 1111});
        QVERIFY(warter.fertig());
        QVERIFY(Gespielt().isNull());
    }

    void aMissingFileIsPassedOver() {
        QVERIFY(QFile::remove(programm_.nativ(QStringLiteral("SOUND/ok.wav"))));
        SoundSpielen("ok.wav");
        QVERIFY(Gespielt().isNull());
    }

    void aMissingPlayerIsPassedOver() {
        QVERIFY(QFile::remove(programm_.nativ(QStringLiteral("bin/paplay"))));
        SoundSpielen("dubb.wav");
        QVERIFY(Gespielt().isNull());
    }

private:
    void PlayerAnlegen() const {
        const QString player = QStringLiteral("bin/paplay");
        programm_.schreiben(player, "#!/bin/sh\necho \"$@\" >> '" +
                                        programm_.nativ(QStringLiteral("gespielt")).toUtf8() + "'\n");
        QFile::setPermissions(programm_.nativ(player),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QString Gespielt() const {
        const QByteArray zeilen = programm_.lesen(QStringLiteral("gespielt"));
        return zeilen.isNull() ? QString() : QString::fromUtf8(zeilen);
    }

    Programmordner programm_;
    QByteArray pfad_ = qgetenv("PATH");
};

QTEST_MAIN(KlangdienstTest)
#include "klangdienst_test.moc"
