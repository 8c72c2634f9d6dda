// Saving the settings where another program has changed their file meanwhile: from the dialog, and at the end
// of the program. The other program is the test, which writes behind the program's back.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "tests/persistence/fremdhilfe.h"
#include "tests/settings/inihilfe.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString ini = QStringLiteral("CONFIG/Feldkranz.INI");
const QString bak = QStringLiteral("CONFIG/Feldkranz.BAK");
const QString name = QStringLiteral("Feldkranz.INI");
const Fremdfrage fremdfrage{QStringLiteral("Die Ini-Datei"), name, neinBleibt};
const QByteArray fremd = "von jemand anderem";

// A number changed, and the button for saving pressed; what comes then is expected.
void Speichern(const Programm& programm, const std::function<void(Dialogfolge&)>& erwarten,
               Stelle stelle = Stelle::hier()) {
    MitAbbrechen(
        programm,
        [&](QDialog& dialog, Dialogfolge& dialoge) {
            Register(dialog, 3);
            Drehe(dialog, QStringLiteral("spnPunkteV"), 0, true);
            dialoge.frage(QStringLiteral("Standardeinstellungen speichern"),
                          QStringLiteral("Ich speichere die Standardeinstellungen für Feldkranz"), 1, stelle);
            erwarten(dialoge);
            Druecke(dialog, "cmdIniSpeichern");
        },
        stelle);
}

void OhneFrage(Dialogfolge& /*dialoge*/) {}

// The end of the program with its settings saved, up to the last question.
void Beenden(const std::function<void(Dialogfolge&)>& erwarten = OhneFrage, Stelle stelle = Stelle::hier()) {
    Dialogfolge dialoge(stelle);
    dialoge.frage(QStringLiteral("Feldkranz! beenden - Ini-Datei speichern !"),
                  QStringLiteral("Sollen die aktuellen Einstellungen\ngespeichert werden ?"), 6, stelle);
    erwarten(dialoge);
    dialoge.frage(QStringLiteral("ENDE"),
                  QStringLiteral("FELDKRANZ! beendet hiermit seine\nTätigkeit !  -  OK ?"), 7, stelle);
    ProgrammEnde();
    QVERIFY(dialoge.fertig());
}

QStringList Sicherungen(const Programm& programm) {
    return QDir(programm.ordner().nativ(QStringLiteral("CONFIG")))
        .entryList({QStringLiteral("*.BAK")}, QDir::Files, QDir::Name);
}

} // namespace

class InifremdTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anotherProgramsSettingsAreReplacedOnJaOnly();
    void everyOtherAnswerLeavesTheFileAndTheSettings_data();
    void everyOtherAnswerLeavesTheFileAndTheSettings();
    void theSameContentWithAnotherTimeIsNotAskedAbout();
    void aFileThatHasGoneIsWrittenAnew();
    void aFileThatCameMeanwhileIsAnotherOnes();
    void aFolderInItsPlaceRefusesWithoutAQuestion();
    void aFileThatCanNotBeReadIsAskedAbout();
    void loadingTheFileKnowsItAgain();
    void theEndKeepsAnotherProgramsSettingsBeside();
    void theEndLeavesABackupOfOtherContentAlone();
    void theEndNeedsNoSecondBackupOfTheSameContent();
    void theEndKeepsNothingOfItsOwn();
    void whatTheEndCanNotKeepItDoesNotReplace();
};

void InifremdTest::anotherProgramsSettingsAreReplacedOnJaOnly() {
    Programm programm;
    programm.NeuesQuizformular();
    programm.ordner().schreiben(ini, fremd);
    Speichern(programm, [](Dialogfolge& dialoge) { FremdErwarten(dialoge, fremdfrage, 6); });
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
    Speichern(programm, OhneFrage); // it is the program's own file again
    QVERIFY(Sicherungen(programm).isEmpty());
}

void InifremdTest::everyOtherAnswerLeavesTheFileAndTheSettings_data() {
    QTest::addColumn<int>("antwort");
    QTest::newRow("Abbrechen") << 2;
    QTest::newRow("Nein, since there is no other name") << 7;
    QTest::newRow("closed by the frame") << 0;
}

void InifremdTest::everyOtherAnswerLeavesTheFileAndTheSettings() {
    QFETCH(const int, antwort);
    Programm programm;
    programm.NeuesQuizformular();
    programm.ordner().schreiben(ini, fremd);
    const auto vorher = Spiel;
    Speichern(programm, [antwort](Dialogfolge& dialoge) {
        if (antwort == 0) {
            FremdGeschlossen(dialoge, fremdfrage);
        } else {
            FremdErwarten(dialoge, fremdfrage, antwort);
        }
        BleibtErwarten(dialoge, name);
    });
    QCOMPARE(programm.ordner().lesen(ini), fremd);
    QVERIFY(Spiel.PunkteV == vorher.PunkteV);
}

void InifremdTest::theSameContentWithAnotherTimeIsNotAskedAbout() {
    Programm programm;
    programm.NeuesQuizformular();
    const QByteArray gleich = programm.ordner().lesen(ini);
    Speichern(programm, OhneFrage);
    QVERIFY(programm.ordner().lesen(ini) != gleich);
    Beruehren(programm.ordner().nativ(ini));
    Speichern(programm, OhneFrage);
}

void InifremdTest::aFileThatHasGoneIsWrittenAnew() {
    Programm programm;
    programm.NeuesQuizformular();
    QVERIFY(QFile::remove(programm.ordner().nativ(ini)));
    Speichern(programm, OhneFrage);
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
}

void InifremdTest::aFileThatCameMeanwhileIsAnotherOnes() {
    Programm programm(false);
    programm.NeuesQuizformular();
    programm.ordner().schreiben(ini, fremd);
    Speichern(programm, [](Dialogfolge& dialoge) {
        FremdErwarten(dialoge, fremdfrage, 2);
        BleibtErwarten(dialoge, name);
    });
    QCOMPARE(programm.ordner().lesen(ini), fremd);
}

void InifremdTest::aFolderInItsPlaceRefusesWithoutAQuestion() {
    Programm programm;
    programm.NeuesQuizformular();
    QVERIFY(QFile::remove(programm.ordner().nativ(ini)));
    programm.ordner().schreiben(ini + QStringLiteral("/drin.txt"), fremd);
    const auto klage = [](Dialogfolge& dialoge) {
        dialoge.meldung(
            QStringLiteral(
                "Feldkranz.INI konnte ich nicht schreiben !\nFehler beim Zugriff auf Pfad oder Datei"),
            QStringLiteral("Dann eben beim nächsten Mal"));
    };
    Speichern(programm, klage);
    Beenden(klage);
    QCOMPARE(programm.ordner().lesen(ini + QStringLiteral("/drin.txt")), fremd);
}

void InifremdTest::aFileThatCanNotBeReadIsAskedAbout() {
    Programm programm;
    programm.NeuesQuizformular();
    const QString nativ = programm.ordner().nativ(ini);
    UnlesbarMachen(nativ);
    Speichern(programm, [](Dialogfolge& dialoge) {
        dialoge.frage(unlesbarTitel, fremdfrage.unlesbar(), 2);
        BleibtErwarten(dialoge, name);
    });
    QVERIFY(QFileInfo(nativ).size() > 1000000);
    Speichern(programm, [](Dialogfolge& dialoge) { dialoge.frage(unlesbarTitel, fremdfrage.unlesbar(), 6); });
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
}

void InifremdTest::loadingTheFileKnowsItAgain() {
    Programm programm;
    programm.NeuesQuizformular();
    QByteArray neu = programm.ordner().lesen(ini);
    neu.replace("A4 quer", "A5 quer");
    programm.ordner().schreiben(ini, neu);
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, 3);
        dialoge.frage(QStringLiteral("Standardeinstellungen laden"),
                      QStringLiteral("Ich lade die Standardeinstellungen für Feldkranz"), 1);
        Druecke(dialog, "cmdIniLaden");
        dialoge.frage(QStringLiteral("Standardeinstellungen speichern"),
                      QStringLiteral("Ich speichere die Standardeinstellungen für Feldkranz"), 1);
        Druecke(dialog, "cmdIniSpeichern");
    });
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
}

void InifremdTest::theEndKeepsAnotherProgramsSettingsBeside() {
    const Programm programm;
    programm.ordner().schreiben(ini, fremd);
    Beenden();
    QCOMPARE(programm.ordner().lesen(bak), fremd);
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
    QCOMPARE(Sicherungen(programm), QStringList(QStringLiteral("Feldkranz.BAK")));
}

void InifremdTest::theEndLeavesABackupOfOtherContentAlone() {
    const Programm programm;
    programm.ordner().schreiben(bak, "früher aufgehoben");
    programm.ordner().schreiben(QStringLiteral("CONFIG/Feldkranz1.BAK/drin.txt"), "ein Ordner");
    programm.ordner().schreiben(ini, fremd);
    Beenden();
    QCOMPARE(programm.ordner().lesen(bak), QByteArray("früher aufgehoben"));
    QCOMPARE(programm.ordner().lesen(QStringLiteral("CONFIG/Feldkranz2.BAK")), fremd);
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
}

void InifremdTest::theEndNeedsNoSecondBackupOfTheSameContent() {
    const Programm programm;
    programm.ordner().schreiben(bak, fremd);
    programm.ordner().schreiben(ini, fremd);
    Beenden();
    QCOMPARE(Sicherungen(programm), QStringList(QStringLiteral("Feldkranz.BAK")));
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
}

void InifremdTest::theEndKeepsNothingOfItsOwn() {
    const Programm programm;
    Beruehren(programm.ordner().nativ(ini));
    Beenden();
    Beenden();
    QVERIFY(QFile::remove(programm.ordner().nativ(ini)));
    Beenden();
    QVERIFY(Sicherungen(programm).isEmpty());
    QCOMPARE(programm.ordner().lesen(ini).count('\n'), 88);
}

void InifremdTest::whatTheEndCanNotKeepItDoesNotReplace() {
    const Programm programm;
    const QString nativ = programm.ordner().nativ(ini);
    UnlesbarMachen(nativ);
    Beenden([](Dialogfolge& dialoge) {
        dialoge.meldung(QStringLiteral("Feldkranz.INI konnte ich nicht schreiben !\nNicht genügend Speicher"),
                        QStringLiteral("Dann eben beim nächsten Mal"));
    });
    QVERIFY(QFileInfo(nativ).size() > 1000000);
    QVERIFY(Sicherungen(programm).isEmpty());
}

QTEST_MAIN(InifremdTest)
#include "inifremd_test.moc"
