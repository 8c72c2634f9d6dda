// The sound service: which requests reach a player, the four beeps, and that the program itself stays silent.
// The player is a script in the search path that notes what it is given; the beeps are heard at the screen.
#include "core/oberflaeche.h"
#include "dialogs/klangtabelle.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"
#include "tests/dialogs/dialogwarten.h"
#include "tests/hilfe/programmordner.h"

#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
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
        SoundSignal = 0;
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
        Meldung(0, 4, "Feldkranz.INI nicht gespeichert !", "987", "Das ist nicht so schlimm");
        Nachricht(7, "Formular schließen", "Ich schließe das Feldkranz-Formular !", 3, 1111);
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

    void withTheSignalOnEveryNameIsFourBeepsAndNoFile() {
        Glockenwache wache(programm_, pfad_);
        SoundSignal = 1;
        SoundSpielen("dubb.wav");
        QTRY_COMPARE(wache.gehoert(), 4);
        SoundSpielen("gibt es nicht");
        QTRY_COMPARE(wache.gehoert(), 8);
        SoundSignal = 0;
        SoundSpielen("clack");
        SoundSignal = 1;
        SoundSpielen("");
        QTRY_COMPARE(wache.gehoert(), 12); // the four of the last one: the one in between was silent
        QVERIFY(Gespielt().isNull());
    }

private:
    // Counts the bells that the screen rings, each a line in a file; it rings one itself when it is ready.
    class Glockenwache {
    public:
        Glockenwache(const Programmordner& ordner, const QByteArray& suchpfad) : ordner_(ordner) {
            const QString liste = ordner.nativ(QStringLiteral("glocken"));
            ordner.schreiben(QStringLiteral("glocken.cf"),
                             "bell() shell \"echo >> '" + liste.toUtf8() + "'\"\n");
            const QString programm = QStandardPaths::findExecutable(
                QStringLiteral("xkbevd"), QString::fromUtf8(suchpfad).split(QLatin1Char(':')));
            wache_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            wache_.start(programm, {QStringLiteral("-cfg"), ordner.nativ(QStringLiteral("glocken.cf"))});
            if (!wache_.waitForStarted() || !QTest::qWaitFor([this] { return gehoert() == 0; }, 20000)) {
                qFatal("Can't listen to the screen's bell: is xkbevd (x11-xkb-utils) installed?");
            }
        }
        ~Glockenwache() {
            wache_.kill();
            wache_.waitForFinished();
        }
        Glockenwache(const Glockenwache&) = delete;
        Glockenwache& operator=(const Glockenwache&) = delete;
        [[nodiscard]] int gehoert() const {
            return static_cast<int>(ordner_.lesen(QStringLiteral("glocken")).count('\n')) - 1;
        }

    private:
        const Programmordner& ordner_;
        QProcess wache_;
    };

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
