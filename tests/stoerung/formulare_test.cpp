// Saving forms of both kinds while the disk fails, in the real main window.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "formlauf.h"
#include "forms/formularpfad.h"
#include "forms/oeffnen.h"
#include "forms/speichern.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "persistence/dateiblick.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/stoerung/platte.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <cerrno>

namespace {

const QString name = QStringLiteral("Stoerung.FKR");

// The first box of the open form.
Textfeld* Kasten() {
    return FKFragenOffen() != nullptr ? FKFragenOffen()->txtFrage.at(1) : HBFragenOffen()->txtFrage.at(1);
}

} // namespace

class StoerungFormulareTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { lauf.Beenden(); }

    void whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened_data() { Arten(); }
    void whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened();
    void whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost_data() { Arten(); }
    void whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost();
    void whicheverCallFailsAnotherProgramsWorkStays_data() { Arten(); }
    void whicheverCallFailsAnotherProgramsWorkStays();
    void aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing_data() { Arten(); }
    void aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing();
    void aDiskLosesNothingAndIsToldAsItIs_data();
    void aDiskLosesNothingAndIsToldAsItIs();
    void aSlowDiskIsWaitedForUnderTheHourglass_data() { Arten(); }
    void aSlowDiskIsWaitedForUnderTheHourglass();
    void aKeyPressedDuringASlowSaveIsNotTakenForSaved_data() { Arten(); }
    void aKeyPressedDuringASlowSaveIsNotTakenForSaved();
    void aFormThatCanNotBeReadLeavesTheOpenOneAsItIs_data() { Arten(); }
    void aFormThatCanNotBeReadLeavesTheOpenOneAsItIs();
    void aBackupThatFailsIsToldAndTheSaveGoesOn_data() { Arten(); }
    void aBackupThatFailsIsToldAndTheSaveGoesOn();
    void aFormThatCanNotBeSavedIsNeitherClosedNorReplacedNorLeft_data() { Arten(); }
    void aFormThatCanNotBeSavedIsNeitherClosedNorReplacedNorLeft();

private:
    static void Arten();
    Speicherfall Fall();

    Formlauf lauf;
};

void StoerungFormulareTest::Arten() {
    QTest::addColumn<bool>("quiz");
    QTest::newRow("quiz form") << true;
    QTest::newRow("test form") << false;
}

// A form from a file, with something typed into it.
void StoerungFormulareTest::init() {
    QFETCH(const bool, quiz);
    lauf.Vorbereiten();
    lauf.Schreiben(name, quiz ? Formlauf::Quiz("alt") : Formlauf::Test("alt"));
    FormularLaden(lauf.Pfad(name.toStdString())); // the file dialog may stand in another folder by now
    Kasten()->setFocus();
    QTest::keyClicks(Kasten(), QStringLiteral("getippt"));
    QVERIFY(Stand.FormGeaendert);
}

Speicherfall StoerungFormulareTest::Fall() {
    QFETCH(const bool, quiz);
    Speicherfall fall;
    fall.ordner = lauf.programm().ordner().nativ(QStringLiteral("KRANZ"));
    fall.name = name;
    fall.alt = quiz ? Formlauf::Quiz("alt") : Formlauf::Test("alt");
    fall.speichern = [this, quiz] {
        lauf.Druecken(quiz ? QStringLiteral("cmdDateiFK(3)") : QStringLiteral("cmdDateiHB(3)"));
    };
    fall.ungesichert = [this] {
        const bool rot = Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible();
        return rot && Stand.FormGeaendert;
    };
    fall.aendern = [] {
        GespeichertVergessen(); // as after a save that failed
        FormStatusSetzen(true);
    };
    fall.kennen = [alt = fall.alt] {
        Formularkenntnis() =
            Dateikenntnis(StandVon(std::string_view(alt.data(), static_cast<std::size_t>(alt.size()))));
    };
    fall.fremdfrage = {QStringLiteral("Die Formulardatei"), QStringLiteral("STOERUNG.FKR")};
    fall.inhalt = [] { return Kasten()->toPlainText(); };
    fall.bedienen = [] { QTest::keyClicks(Kasten(), QStringLiteral("x")); };
    fall.gelungen = {QStringLiteral("Datei gespeichert unter  [ STOERUNG.FKR ]"), QStringLiteral("Schön")};
    fall.gescheitert = [](const Fehlgrund& grund) {
        return Fehlerbericht(QStringLiteral("DATEI : FormularSpeichern"), grund);
    };
    return fall;
}

void StoerungFormulareTest::whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened() {
    Speicherprobe probe(Fall());
    const QString klagen =
        probe.JederVersagt({ENOSPC, EDQUOT, EROFS, EACCES, EIO, ENAMETOOLONG, EWOULDBLOCK});
    QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
    QVERIFY2(probe.gelungene() > 20 && probe.gescheiterte() > 40, "the calls aren't caught");
}

void StoerungFormulareTest::whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost() {
    const Speicherfall fall = Fall();
    Speicherprobe probe(fall);
    const QString klagen = probe.JederVersagt({ENOSPC, EACCES, EIO}, Verschlossen(fall.ordner.toStdString()));
    QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
    QVERIFY2(probe.gerufen("ftruncate"), "no file was written in place");
}

void StoerungFormulareTest::whicheverCallFailsAnotherProgramsWorkStays() {
    Speicherprobe probe(Fall());
    const QString klage = probe.FremdesBleibt({EIO, EACCES, ENODEV, ENOMEM});
    QVERIFY2(klage.isEmpty(), qPrintable(klage));
}

void StoerungFormulareTest::aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing() {
    const Speicherfall fall = Fall();
    Speicherprobe probe(fall);
    for (const Regel& immer : {Regel(), Verschlossen(fall.ordner.toStdString())}) {
        const QString klagen = probe.KaputtAb(immer) + probe.VollAb(immer);
        QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
    }
}

void StoerungFormulareTest::aDiskLosesNothingAndIsToldAsItIs_data() {
    QTest::addColumn<bool>("quiz");
    QTest::addColumn<int>("platte");
    for (const bool quiz : {true, false}) {
        for (std::size_t i = 0; i < Platten().size(); ++i) {
            QTest::addRow("%s, disk %s", quiz ? "quiz form" : "test form", Platten()[i].name)
                << quiz << static_cast<int>(i);
        }
    }
}

void StoerungFormulareTest::aDiskLosesNothingAndIsToldAsItIs() {
    QFETCH(const int, platte);
    PlatteErproben(Fall(), Platten().at(static_cast<std::size_t>(platte)));
}

void StoerungFormulareTest::aSlowDiskIsWaitedForUnderTheHourglass() {
    LangsamErproben(Fall());
}

// A real key, while the program waits for the disk: it comes to the window when the message is up already.
void StoerungFormulareTest::aKeyPressedDuringASlowSaveIsNotTakenForSaved() {
    const Speicherfall fall = Fall();
    Kasten()->setFocus();
    QTRY_VERIFY(Kasten()->hasFocus());
    const QString inhalt = fall.inhalt();
    Dialogfolge dialoge;
    dialoge.meldung(fall.gelungen.text, fall.gelungen.taste);
    {
        const Stoerung stoerung({fall.ordner.toStdString()}, [](const Aufruf& aufruf) {
            if (aufruf.name == "write") {
                QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("q")});
            }
            return 0;
        });
        QTest::keyClick(Kasten(), Qt::Key_S, Qt::ControlModifier);
    }
    QVERIFY(dialoge.fertig());
    QCOMPARE(Lebensklage(), QString());
    QCOMPARE(fall.ungesichert(), fall.inhalt() != inhalt);
    maus::Tippen(QStringLiteral("w"));
    QTRY_VERIFY(fall.inhalt() != inhalt && fall.ungesichert());
}

// Whichever call of the reading fails, or all of them: a few boxes, and an end.
void StoerungFormulareTest::aFormThatCanNotBeReadLeavesTheOpenOneAsItIs() {
    QFETCH(const bool, quiz);
    const Speicherfall fall = Fall();
    const QString inhalt = fall.inhalt();
    lauf.Schreiben(QStringLiteral("Andere.FKR"), quiz ? Formlauf::Quiz("andere") : Formlauf::Test("andere"));
    FormStatusSetzen(false);
    Mitschrift mitschrift;
    int gescheiterte = 0;
    for (const int fehlernummer : {EIO, EACCES, ENODEV, EBUSY, ENOMEM}) {
        int aufrufe = 1;
        for (int nummer = 1; nummer <= aufrufe + 1; ++nummer) { // the last one: every call fails
            {
                const Stoerung stoerung({fall.ordner.toStdString()}, [&](const Aufruf& aufruf) {
                    return aufruf.nummer == nummer || nummer > aufrufe ? fehlernummer : 0;
                });
                FormularLaden(lauf.Pfad("Andere.FKR"));
                aufrufe = qMin(30, qMax(aufrufe, static_cast<int>(stoerung.aufrufe().size())));
            }
            const bool gelesen = mitschrift.Holen().isEmpty();
            QCOMPARE(fall.inhalt(),
                     gelesen ? quiz ? QStringLiteral("andere 1") : QStringLiteral("andere") : inhalt);
            QCOMPARE(Lebensklage(), QString());
            gescheiterte += gelesen ? 0 : 1;
            if (gelesen) { // back to the form before
                FormularLaden(lauf.Pfad(name.toStdString()));
                Kasten()->setPlainText(inhalt);
                FormStatusSetzen(false);
            }
        }
    }
    QVERIFY(gescheiterte > 10);
}

// The backup's copy goes into the same folder: whichever call of backup or save fails, both messages agree
// with what stands there.
void StoerungFormulareTest::aBackupThatFailsIsToldAndTheSaveGoesOn() {
    const Speicherfall fall = Fall();
    const QString bak = fall.ordner + QStringLiteral("/STOERUNG.BAK"); // as the file dialog has it
    const QStringList gesichert{QStringLiteral("BackUp angelegt :   [ STOERUNG.BAK ]")};
    Spiel.OptionDatei = true;
    Mitschrift mitschrift;
    int aufrufe = 1;
    QStringList ohneUhr;
    for (int nummer = 0; nummer <= aufrufe; ++nummer) {
        fall.Anfang();
        QFile::remove(bak);
        const Stoerung stoerung({fall.ordner.toStdString()}, [&](const Aufruf& aufruf) {
            ohneUhr += OhneUhr(aufruf);
            return aufruf.nummer == nummer ? ENOSPC : 0;
        });
        fall.speichern();
        aufrufe = qMax(aufrufe, static_cast<int>(stoerung.aufrufe().size()));
        const QStringList texte = mitschrift.Holen();
        QCOMPARE(texte.size(), 2);
        if (texte.first() == gesichert.first()) {
            QCOMPARE(Dateibytes(bak), fall.alt);
        } else {
            QVERIFY(texte.first().startsWith(
                QStringLiteral("Ich konnte kein BackUp anlegen von : \n[ STOERUNG.FKR ]")));
            QVERIFY(nummer > 0 && (Dateibytes(bak).isNull() || Dateibytes(bak) == fall.alt));
        }
        const bool gelungen = texte.last() == fall.gelungen.text;
        QVERIFY(gelungen || texte.last() == fall.gescheitert(Schreibgrund(ENOSPC)).text);
        QVERIFY(gelungen != fall.ungesichert() && (gelungen || nummer > 0));
        QVERIFY(gelungen ? Dateibytes(fall.pfad()).contains("getippt") : !Dateibytes(fall.pfad()).isEmpty());
        QCOMPARE(Lebensklage(), QString());
    }
    QVERIFY(aufrufe > 40);
    QVERIFY2(ohneUhr.isEmpty(), qPrintable(ohneUhr.join(QLatin1Char(' '))));
}

void StoerungFormulareTest::aFormThatCanNotBeSavedIsNeitherClosedNorReplacedNorLeft() {
    QFETCH(const bool, quiz);
    const Speicherfall fall = Fall();
    const auto art = quiz ? Formart::Quiz : Formart::Test;
    const QString inhalt = fall.inhalt();
    const Stoerung voll({fall.ordner.toStdString()},
                        [](const Aufruf& aufruf) { return aufruf.name == "write" ? ENOSPC : 0; });
    const Meldungserwartung grund = fall.gescheitert(Schreibgrund(ENOSPC));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Test-Formular"),
                  QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 6);
    dialoge.meldung(grund.text, grund.taste);
    QVERIFY(!SchliessenPruefen(art));
    const auto aenderungen = [&] {
        dialoge.frage(QStringLiteral("Auswertung speichern !"),
                      QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 6);
        dialoge.meldung(grund.text, grund.taste);
    };
    aenderungen();
    lauf.Druecken(quiz ? QStringLiteral("cmdDateiFK(2)") : QStringLiteral("cmdDateiHB(2)"));
    aenderungen();
    ProgrammEnde();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.programm().haupt()->isVisible());
    QVERIFY(fall.ungesichert());
    QCOMPARE(fall.inhalt(), inhalt);
    QCOMPARE(Dateibytes(fall.pfad()), fall.alt);
}

QTEST_MAIN(StoerungFormulareTest)
#include "formulare_test.moc"
