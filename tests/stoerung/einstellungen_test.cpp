// Saving the settings while the disk fails: from their dialog, and at the end of the program.
#include "core/hauptfenster.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/programmende.h"
#include "persistence/einstellungenladen.h"
#include "tests/settings/inihilfe.h"
#include "tests/stoerung/platte.h"

#include <QDir>

#include <cerrno>

namespace {

const QString frageTitel = QStringLiteral("Standardeinstellungen speichern");
const QString frageText = QStringLiteral("Ich speichere die Standardeinstellungen für Feldkranz");

} // namespace

class StoerungEinstellungenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened();
    void whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost();
    void whicheverCallFailsAnotherProgramsWorkStays();
    void aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing();
    void aDiskLosesNothingAndIsToldAsItIs_data() { PlattenEintragen(); }
    void aDiskLosesNothingAndIsToldAsItIs();
    void aSlowDiskIsWaitedForUnderTheHourglass();
    void anEndOfTheProgramWaitsForASlowDiskUnderTheHourglass();
    void anEndOfTheProgramTellsThatTheSettingsWereNotSaved();
    void whicheverCallFailsAtTheEndAnotherProgramsSettingsAreKept();

private:
    static Speicherfall Fall(const Programm& programm, QDialog& dialog);
    static void ImFall(const std::function<void(const Speicherfall&)>& arbeit);
};

Speicherfall StoerungEinstellungenTest::Fall(const Programm& programm, QDialog& dialog) {
    Speicherfall fall;
    fall.ordner = programm.ordner().nativ(QStringLiteral("CONFIG"));
    fall.name = QStringLiteral("Feldkranz.INI");
    fall.alt = programm.ordner().lesen(QStringLiteral("CONFIG/Feldkranz.INI"));
    fall.speichern = [&dialog] { Druecke(dialog, "cmdIniSpeichern"); };
    fall.frage = [](Dialogfolge& dialoge) { dialoge.frage(frageTitel, frageText, 1); };
    fall.aendern = [] {};
    fall.kennen = EinstellungenLesen;
    fall.fremdfrage = {QStringLiteral("Die Ini-Datei"), fall.name, neinBleibt};
    fall.inhalt = [&dialog] { return Zahlen(dialog, QStringLiteral("pnlPunkteV")).join(QLatin1Char(' ')); };
    fall.bedienen = [&dialog] { Drehe(dialog, QStringLiteral("spnPunkteV"), 0, true); };
    fall.gescheitert = [](const Fehlgrund& grund) -> Meldungserwartung {
        return {QStringLiteral("Feldkranz.INI konnte ich nicht schreiben !\n") + grund.text,
                QStringLiteral("Dann eben beim nächsten Mal")};
    };
    return fall;
}

// In the open dialog with a number changed, which is left by its OK.
void StoerungEinstellungenTest::ImFall(const std::function<void(const Speicherfall&)>& arbeit) {
    Programm programm;
    programm.NeuesQuizformular();
    MitOK(programm, [&](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 3);
        const Speicherfall fall = Fall(programm, dialog);
        fall.bedienen();
        arbeit(fall);
    });
}

void StoerungEinstellungenTest::whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened() {
    ImFall([](const Speicherfall& fall) {
        Speicherprobe probe(fall);
        const QString klagen =
            probe.JederVersagt({ENOSPC, EDQUOT, EROFS, EACCES, EIO, ENAMETOOLONG, EWOULDBLOCK});
        QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
        QVERIFY2(probe.gelungene() > 20 && probe.gescheiterte() > 40, "the calls aren't caught");
    });
}

void StoerungEinstellungenTest::whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost() {
    ImFall([](const Speicherfall& fall) {
        Speicherprobe probe(fall);
        const QString klagen =
            probe.JederVersagt({ENOSPC, EACCES, EIO}, Verschlossen(fall.ordner.toStdString()));
        QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
        QVERIFY2(probe.gerufen("ftruncate"), "no file was written in place");
    });
}

void StoerungEinstellungenTest::whicheverCallFailsAnotherProgramsWorkStays() {
    ImFall([](const Speicherfall& fall) {
        Speicherprobe probe(fall);
        const QString klage = probe.FremdesBleibt({EIO, EACCES, ENODEV, ENOMEM});
        QVERIFY2(klage.isEmpty(), qPrintable(klage));
    });
}

void StoerungEinstellungenTest::aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing() {
    ImFall([](const Speicherfall& fall) {
        Speicherprobe probe(fall);
        for (const Regel& immer : {Regel(), Verschlossen(fall.ordner.toStdString())}) {
            const QString klagen = probe.KaputtAb(immer) + probe.VollAb(immer);
            QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
        }
    });
}

void StoerungEinstellungenTest::aDiskLosesNothingAndIsToldAsItIs() {
    QFETCH(const int, platte);
    ImFall([platte](const Speicherfall& fall) {
        PlatteErproben(fall, Platten().at(static_cast<std::size_t>(platte)));
    });
}

void StoerungEinstellungenTest::aSlowDiskIsWaitedForUnderTheHourglass() {
    ImFall(LangsamErproben);
}

namespace {

// The questions at the end of the program: save the settings, and don't end after all.
void EndeErwarten(Dialogfolge& dialoge, const std::function<void()>& dazwischen = {}) {
    dialoge.frage(QStringLiteral("Feldkranz! beenden - Ini-Datei speichern !"),
                  QStringLiteral("Sollen die aktuellen Einstellungen\ngespeichert werden ?"), 6);
    if (dazwischen) {
        dazwischen();
    }
    dialoge.frage(QStringLiteral("ENDE"),
                  QStringLiteral("FELDKRANZ! beendet hiermit seine\nTätigkeit !  -  OK ?"), 7);
}

} // namespace

void StoerungEinstellungenTest::anEndOfTheProgramWaitsForASlowDiskUnderTheHourglass() {
    const Programm programm;
    QStringList ohneUhr;
    const Stoerung langsam({programm.ordner().nativ(QStringLiteral("CONFIG")).toStdString()},
                           [&](const Aufruf& aufruf) {
                               ohneUhr += OhneUhr(aufruf);
                               return 0;
                           });
    Dialogfolge dialoge;
    EndeErwarten(dialoge);
    ProgrammEnde();
    QVERIFY(dialoge.fertig());
    QVERIFY(!langsam.aufrufe().empty());
    QVERIFY2(ohneUhr.isEmpty(), qPrintable(ohneUhr.join(QLatin1Char(' '))));
    QCOMPARE(Lebensklage(), QString());
}

void StoerungEinstellungenTest::anEndOfTheProgramTellsThatTheSettingsWereNotSaved() {
    const Programm programm;
    const QString ini = QStringLiteral("CONFIG/Feldkranz.INI");
    const QByteArray vorher = programm.ordner().lesen(ini);
    const Stoerung voll({programm.ordner().nativ(QStringLiteral("CONFIG")).toStdString()},
                        [](const Aufruf& aufruf) { return aufruf.name == "write" ? ENOSPC : 0; });
    Dialogfolge dialoge;
    EndeErwarten(dialoge, [&] {
        dialoge.meldung(QStringLiteral("Feldkranz.INI konnte ich nicht schreiben !\nDatenträger voll"),
                        QStringLiteral("Dann eben beim nächsten Mal"));
    });
    ProgrammEnde();
    QVERIFY(dialoge.fertig());
    QVERIFY(programm.haupt()->isVisible());
    QCOMPARE(programm.ordner().lesen(ini), vorher);
    QCOMPARE(Lebensklage(), QString());
}

// In its place or beside it, whether one call fails or all from one on.
void StoerungEinstellungenTest::whicheverCallFailsAtTheEndAnotherProgramsSettingsAreKept() {
    const Programm programm;
    const QByteArray fremd = "von jemand anderem";
    const QDir ordner(programm.ordner().nativ(QStringLiteral("CONFIG")));
    Mitschrift mitschrift;
    int aufrufe = 1;
    for (const bool fuerImmer : {false, true}) {
        for (int nummer = 0; nummer <= aufrufe; ++nummer) {
            for (const QString& name : ordner.entryList({QStringLiteral("*.BAK")}, QDir::Files)) {
                QVERIFY(QFile::remove(ordner.filePath(name)));
            }
            programm.ordner().schreiben(QStringLiteral("CONFIG/Feldkranz.INI"), fremd);
            ProgrammBeendenDurch([] {});
            {
                const Stoerung stoerung({ordner.path().toStdString()}, [=](const Aufruf& aufruf) {
                    return aufruf.nummer == nummer || (fuerImmer && aufruf.nummer > nummer) ? EIO : 0;
                });
                ProgrammEnde();
                aufrufe = qMax(aufrufe, fuerImmer ? 0 : static_cast<int>(stoerung.aufrufe().size()));
            }
            const QStringList texte = mitschrift.Holen();
            QVERIFY(texte.size() <= 1 && (nummer > 0 || fuerImmer || texte.isEmpty()));
            const QStringList namen = ordner.entryList({QStringLiteral("Feldkranz*")}, QDir::Files);
            QVERIFY(std::ranges::any_of(
                namen, [&](const QString& name) { return Dateibytes(ordner.filePath(name)) == fremd; }));
            QCOMPARE(Lebensklage(), QString());
        }
    }
    ProgrammBeendenDurch({});
    QVERIFY(aufrufe > 20);
}

QTEST_MAIN(StoerungEinstellungenTest)
#include "einstellungen_test.moc"
