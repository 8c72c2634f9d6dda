// Saving the open form in the real main window: old name, new name, backup, and the questions on the way.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "forms/speichern.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "persistence/sicherung.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/finden.h"
#include "vorgaben.h"

#include <QDir>
#include <QTest>

namespace {

const QString speichernUnter = QStringLiteral("Speichern unter ...");
const QString cmdSpeichern = QStringLiteral("cmdSpeichern");
const QString speichernTaste = QStringLiteral("cmdDateiFK(3)");
const QString unterTaste = QStringLiteral("cmdDateiFK(4)");

void UeberschreibenErwarten(Dialogfolge& dialoge, const QString& name, int antwort,
                            Stelle stelle = Stelle::hier()) {
    dialoge.frage(QStringLiteral(" Speichern unter ..."),
                  QStringLiteral("Die Auswertung\n[ %1 ]\nist bereits vorhanden !\nSoll ich diese Datei "
                                 "überschreiben ?")
                      .arg(name),
                  antwort, stelle);
}

void AendernUndMerken(frmFKFragen* form, const QString& text) {
    form->txtFrage.at(2)->setFocus();
    QTest::keyClick(form->txtFrage.at(2), Qt::Key_End, Qt::ControlModifier); // focus selects the whole text
    QTest::keyClicks(form->txtFrage.at(2), text);
    QVERIFY(Stand.FormGeaendert);
}

} // namespace

class SpeichernTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aFormWithoutANameAsksForOneAndTheSecondTimeNot();
    void headAndTextsOfTheScreenReachTheFile();
    void aNameGetsItsExtensionAndKeepsOneInSmallLetters();
    void theBackupIsTheVersionOfTheSaveBefore();
    void aNewFormTellsThatNoBackupCouldBeMade();
    void aBackupThatFailsIsToldAndDoesNotStopTheSave();
    void everyByteOfAFileComesBackWhenItIsSavedUnchanged();
    void anOpenedBackupIsNotBackedUpOverItself();
    void cancellingTheOverwriteQuestionLeavesTheOldFile();
    void closingTheOverwriteQuestionByItsFrameDestroysNothing();
    void anOverwriteAnsweredJaReplacesTheFile();
    void theQuestionIsAskedUnderTheNameThatWillBeWritten();
    void aCancelledDialogSavesNothingAndKeepsTheFormsFile();
    void anEmptyNameSavesNothing();
    void aNameThatNoListWouldShowIsABadName_data();
    void aNameThatNoListWouldShowIsABadName();
    void aFailedSaveIsReportedAndClaimsNothing();
    void aFailedSaveOfAnUnchangedFormCountsAsUnsaved();
    void aSaveGoesToTheFormsOwnFileAfterARefusedOne();
    void filesThatDifferInCaseOnlyStayApart();
    void theQuestionBeforeOpeningSavesOnJa();
    void aSaveThatDidNotComeAboutCountsAsCancelled();
    void theClosingCheckKeepsOrReleasesTheForm();
    void withoutAFormThereIsNothingToSave();
    void theCatalogueBackupTellsItsTwoMessages();

private:
    Formlauf lauf;
};

void SpeichernTest::aFormWithoutANameAsksForOneAndTheSecondTimeNot() {
    frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Eins"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("Neu.FKR"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("Neu.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(form->windowTitle(), QStringLiteral("Neu.FKR "));
    QCOMPARE(lauf.Lesen(QStringLiteral("Neu.FKR")).count('\n'), 125);
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());

    AendernUndMerken(form, QStringLiteral("Zwei"));
    GespeichertErwarten(dialoge, QStringLiteral("Neu.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(lauf.Lesen(QStringLiteral("Neu.FKR")).contains("\"Zwei\""));
}

void SpeichernTest::headAndTextsOfTheScreenReachTheFile() {
    frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Wer?"));
    form->txtNr->setFocus();
    QTest::keyClicks(form->txtNr, QStringLiteral("12"));
    form->txtDatum->setFocus();
    QTest::keyClicks(form->txtDatum, QStringLiteral("3. Mai"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("K.FKR"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("K.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(lauf.Lesen(QStringLiteral("K.FKR"))
                .contains("\"[ALLGEMEINES]\"\r\n\"12\"\r\n\"3. Mai\"\r\n\"\"\r\n\"[FKPUNKTE]\"\r\n"));
    QVERIFY(lauf.Lesen(QStringLiteral("K.FKR")).contains("\"Wissen\"\r\n\"Wer?\"\r\n\"\"\r\n\"\"\r\n"));
}

void SpeichernTest::aNameGetsItsExtensionAndKeepsOneInSmallLetters() {
    frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Eins"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("ohne"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("ohne.FKR"));
    lauf.Druecken(unterTaste);
    QVERIFY(!lauf.Lesen(QStringLiteral("ohne.FKR")).isEmpty());
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("klein.fkr"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("klein.fkr"));
    lauf.Druecken(unterTaste);
    QVERIFY(!lauf.Lesen(QStringLiteral("klein.fkr")).isEmpty());
    QCOMPARE(form->windowTitle(), QStringLiteral("klein.fkr "));
    QVERIFY(dialoge.fertig());
}

void SpeichernTest::theBackupIsTheVersionOfTheSaveBefore() {
    frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Eins"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("S.FKR"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("S.FKR"));
    lauf.Druecken(speichernTaste);
    Spiel.OptionDatei = true;
    QByteArray vorher;
    for (const char* text : {"Zwei", "Drei"}) {
        vorher = lauf.Lesen(QStringLiteral("S.FKR"));
        AendernUndMerken(form, QString::fromLatin1(text));
        dialoge.meldung(QStringLiteral("BackUp angelegt :   [ S.BAK ]"), QStringLiteral("Schön"));
        GespeichertErwarten(dialoge, QStringLiteral("S.FKR"));
        lauf.Druecken(speichernTaste);
        QVERIFY(dialoge.fertig());
        QCOMPARE(lauf.Lesen(QStringLiteral("S.BAK")), vorher);
    }
    QVERIFY(vorher.contains("\"Zwei\""));
    QVERIFY(lauf.Lesen(QStringLiteral("S.FKR")).contains("\"ZweiDrei\""));
}

void SpeichernTest::aNewFormTellsThatNoBackupCouldBeMade() {
    lauf.NeuesFormular(QStringLiteral("Eins"));
    Spiel.OptionDatei = true;
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("N.FKR"), cmdSpeichern);
    dialoge.meldung(
        QStringLiteral("Ich konnte kein BackUp anlegen von : \n[ N.FKR ]\n(Die Datei gab es bisher "
                       "wahrscheinlich noch nicht.)"),
        QStringLiteral("Das finde ich nicht so gut"));
    GespeichertErwarten(dialoge, QStringLiteral("N.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(!lauf.Lesen(QStringLiteral("N.FKR")).isEmpty());
}

// A folder stands where the backup should go.
void SpeichernTest::aBackupThatFailsIsToldAndDoesNotStopTheSave() {
    lauf.Schreiben(QStringLiteral("S.FKR"), Formlauf::Quiz("Alt"));
    lauf.Schreiben(QStringLiteral("S.BAK/drin.txt"), "bleibt");
    Spiel.OptionDatei = true;
    lauf.Oeffnen(QStringLiteral("S.FKR"));
    AendernUndMerken(FKFragenOffen(), QStringLiteral("Neu"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich konnte kein BackUp anlegen von : \n[ S.FKR ]"),
                    QStringLiteral("Das finde ich nicht so gut"));
    GespeichertErwarten(dialoge, QStringLiteral("S.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("S.FKR")).contains("Neu"));
    QCOMPARE(lauf.Lesen(QStringLiteral("S.BAK/drin.txt")), QByteArray("bleibt"));
    QVERIFY(!Stand.FormGeaendert);
    QTRY_VERIFY(QDir(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/S.BAK"))).removeRecursively());
}

void SpeichernTest::everyByteOfAFileComesBackWhenItIsSavedUnchanged() {
    QByteArray bytes = Formlauf::Quiz("Was");
    bytes.replace("\"Was 1\"", "\"  Wer hei\xDFt \xD6zg\xFCr ?\r\n\r\n  \x84ja\x93, 5 \x80 - nein,\"");
    bytes.replace("\"Was 2\"", "\"\r\n \"");
    lauf.Schreiben(QStringLiteral("B.FKR"), bytes);
    lauf.Oeffnen(QStringLiteral("B.FKR"));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("B.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("B.FKR")), bytes);

    // A quote that was typed is written as it stands, without any escape.
    FKFragenOffen()->txtFrage.at(3)->selectAll();
    QTest::keyClicks(FKFragenOffen()->txtFrage.at(3), QStringLiteral(" \"So\" heißt"));
    GespeichertErwarten(dialoge, QStringLiteral("B.FKR"));
    lauf.Druecken(speichernTaste);
    bytes.replace("\"Was 3\"", "\" \"So\" hei\xDFt\"");
    QCOMPARE(lauf.Lesen(QStringLiteral("B.FKR")), bytes);
}

void SpeichernTest::anOpenedBackupIsNotBackedUpOverItself() {
    lauf.Schreiben(QStringLiteral("A.BAK"), Formlauf::Quiz("Alt"));
    Spiel.OptionDatei = true;
    lauf.Oeffnen(QStringLiteral("A.BAK"));
    AendernUndMerken(FKFragenOffen(), QStringLiteral("Neu"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich konnte kein BackUp anlegen von : \n[ A.BAK ]"),
                    QStringLiteral("Das finde ich nicht so gut"));
    GespeichertErwarten(dialoge, QStringLiteral("A.BAK"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
}

void SpeichernTest::cancellingTheOverwriteQuestionLeavesTheOldFile() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), "alt");
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("ALT.FKR"), cmdSpeichern);
    UeberschreibenErwarten(dialoge, QStringLiteral("ALT.FKR"), 2);
    dialoge.meldung(QStringLiteral("Speichern unter... abgebrochen"), QStringLiteral("Jawohl"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("ALT.FKR")), QByteArray("alt"));
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Stand.FKDateiName, std::string());
}

void SpeichernTest::closingTheOverwriteQuestionByItsFrameDestroysNothing() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), "alt");
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("ALT.FKR"), cmdSpeichern);
    dialoge.erwarte({QStringLiteral("frmNachricht"), std::nullopt, std::nullopt, {durchRahmen}, {}});
    dialoge.meldung(QStringLiteral("Speichern unter... abgebrochen"), QStringLiteral("Jawohl"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("ALT.FKR")), QByteArray("alt"));
}

void SpeichernTest::anOverwriteAnsweredJaReplacesTheFile() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), "alt");
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("ALT.FKR"), cmdSpeichern);
    UeberschreibenErwarten(dialoge, QStringLiteral("ALT.FKR"), 6);
    GespeichertErwarten(dialoge, QStringLiteral("ALT.FKR"));
    GespeichertVergessen(); // as after a save that failed
    FormStatusSetzen(true);
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());
    QVERIFY(lauf.Lesen(QStringLiteral("ALT.FKR")).startsWith("\"Feldkranz\"\r\n\"FK\"\r\n"));
}

void SpeichernTest::theQuestionIsAskedUnderTheNameThatWillBeWritten() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), "alt");
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("ALT"), cmdSpeichern);
    UeberschreibenErwarten(dialoge, QStringLiteral("ALT.FKR"), 2);
    dialoge.meldung(QStringLiteral("Speichern unter... abgebrochen"), QStringLiteral("Jawohl"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("ALT.FKR")), QByteArray("alt"));
}

void SpeichernTest::aCancelledDialogSavesNothingAndKeepsTheFormsFile() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    AendernUndMerken(FKFragenOffen(), QStringLiteral("Neu"));
    const QByteArray vorher = lauf.Lesen(QStringLiteral("A.FKR"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("B.FKR"), QStringLiteral("cmdAbbrechen"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(lauf.Lesen(QStringLiteral("A.FKR")), vorher);
    QVERIFY(lauf.Lesen(QStringLiteral("B.FKR")).isNull());
    QCOMPARE(Stand.FKDateiName, lauf.Pfad("A.FKR"));
    GespeichertErwarten(dialoge, QStringLiteral("A.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
}

void SpeichernTest::anEmptyNameSavesNothing() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, QString(), cmdSpeichern); // the pattern still stands there
    dialoge.meldung(QStringLiteral("Speichern unter abgebrochen"), QStringLiteral("Machst du später"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
}

void SpeichernTest::aNameThatNoListWouldShowIsABadName_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("extension alone") << QStringLiteral(".FKR");
    QTest::newRow("blanks and extension") << QStringLiteral("  .FKR");
    QTest::newRow("point in front") << QStringLiteral(".abend.FKR");
    QTest::newRow("in another folder") << QStringLiteral("../KRANZ/.FKR");
}

void SpeichernTest::aNameThatNoListWouldShowIsABadName() {
    QFETCH(const QString, name);
    lauf.NeuesFormular(QStringLiteral("Neu"));
    const QDir ordner(lauf.programm().ordner().nativ(QStringLiteral("KRANZ")));
    const QStringList vorher = ordner.entryList(QDir::AllEntries | QDir::Hidden);
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, name, cmdSpeichern);
    dialoge.meldung(QStringLiteral("DATEI : FormularSpeichern :\nDateiname !?"),
                    QStringLiteral("Grrr.. *~§§°"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(ordner.entryList(QDir::AllEntries | QDir::Hidden), vorher);
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Stand.FKDateiName, std::string());
}

void SpeichernTest::aFailedSaveIsReportedAndClaimsNothing() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    const QString zuLang(300, u'x');
    DateidialogErwarten(dialoge, speichernUnter, zuLang, cmdSpeichern);
    dialoge.meldung(QStringLiteral("DATEI : FormularSpeichern :\nDateiname !?"),
                    QStringLiteral("Grrr.. *~§§°"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Stand.FKDateiName, std::string());
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral(" Neues Feldkranz-Formular"));
}

void SpeichernTest::aFailedSaveOfAnUnchangedFormCountsAsUnsaved() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    QVERIFY(!Stand.FormGeaendert);
    const QString nativ = lauf.programm().ordner().nativ(QStringLiteral("KRANZ/A.FKR"));
    QVERIFY(QFile::remove(nativ) && QDir().mkdir(nativ));
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("DATEI : FormularSpeichern :\n75 : Fehler beim Zugriff auf Pfad oder Datei"),
        QStringLiteral("Grrr.. *~§§°"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(QDir().rmdir(nativ));
}

void SpeichernTest::aSaveGoesToTheFormsOwnFileAfterARefusedOne() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Schreiben(QStringLiteral("BRIEF.TXT"), "Liebe Oma");
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    FormularLaden(lauf.Pfad("BRIEF.TXT"));
    AendernUndMerken(FKFragenOffen(), QStringLiteral("Neu"));
    GespeichertErwarten(dialoge, QStringLiteral("A.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("BRIEF.TXT")), QByteArray("Liebe Oma"));
    QVERIFY(lauf.Lesen(QStringLiteral("A.FKR")).contains("Neu"));
}

void SpeichernTest::filesThatDifferInCaseOnlyStayApart() {
    lauf.Schreiben(QStringLiteral("a.fkr"), Formlauf::Quiz("klein"));
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Test("gross"));
    const QByteArray gross = lauf.Lesen(QStringLiteral("A.FKR"));
    lauf.Oeffnen(QStringLiteral("a.fkr"));
    QCOMPARE(QString::fromStdString(FK_Frage(1)), QStringLiteral("klein 1"));
    Dialogfolge dialoge;
    // The other one is chosen since, under the same name in capitals, and refused.
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QStringLiteral("A.FKR"),
                        QStringLiteral("cmdLaden"));
    dialoge.meldung(
        QStringLiteral("Ich kann jetzt kein Testformular laden.\nDu mußt erst das Feldkranzformular "
                       "schließen."),
        QStringLiteral("Den Gefallen kann ich dir tun !"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(2)"));
    AendernUndMerken(FKFragenOffen(), QStringLiteral("Neu"));
    GespeichertErwarten(dialoge, QStringLiteral("A.FKR"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("A.FKR")), gross);
    QVERIFY(lauf.Lesen(QStringLiteral("a.fkr")).contains("Neu"));
}

void SpeichernTest::theQuestionBeforeOpeningSavesOnJa() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    AendernUndMerken(FKFragenOffen(), QStringLiteral("Neu"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Auswertung speichern !"),
                  QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 6);
    GespeichertErwarten(dialoge, QStringLiteral("A.FKR"));
    dialoge.meldung(QStringLiteral("Formular wurde gespeichert !"), QStringLiteral("Aha"));
    QVERIFY(AuswertungSpeichernFragen());
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("A.FKR")).contains("Neu"));
    QVERIFY(!Stand.FormGeaendert);
}

void SpeichernTest::aSaveThatDidNotComeAboutCountsAsCancelled() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Auswertung speichern !"),
                  QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 6);
    DateidialogErwarten(dialoge, speichernUnter, QString(), QStringLiteral("cmdAbbrechen"));
    QVERIFY(!AuswertungSpeichernFragen());
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
}

void SpeichernTest::theClosingCheckKeepsOrReleasesTheForm() {
    const QString titel = QStringLiteral("Neues Test-Formular");
    const QString frage = QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?");
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    dialoge.frage(titel, frage, 2);
    QVERIFY(!FK_Schliessen());
    QVERIFY(FKFragenOffen() != nullptr);

    dialoge.frage(titel, frage, 6);
    DateidialogErwarten(dialoge, speichernUnter, QString(), QStringLiteral("cmdAbbrechen"));
    QVERIFY(!FK_Schliessen());
    QVERIFY(Stand.FormGeaendert);

    dialoge.frage(titel, frage, 6);
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("Z.FKR"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("Z.FKR"));
    QVERIFY(FK_Schliessen());
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("Z.FKR")).contains("\"Neu\""));
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
}

void SpeichernTest::withoutAFormThereIsNothingToSave() {
    Dialogfolge dialoge;
    for (int mal = 0; mal < 2; ++mal) {
        dialoge.meldung(QStringLiteral("Speichern unter abgebrochen"), QStringLiteral("Machst du später"));
    }
    lauf.Schreiben(QStringLiteral("A.FKR"), "alt");
    Stand.FKDateiName = lauf.Pfad("A.FKR"); // left by a form that is closed
    QVERIFY(!Speichern());
    QVERIFY(!SpeichernUnter(Speicherart::Formular));
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("A.FKR")), QByteArray("alt"));
}

void SpeichernTest::theCatalogueBackupTellsItsTwoMessages() {
    lauf.Schreiben(QStringLiteral("FRAGEN.TXT"), "Kopf\r\n");
    const std::string datei = lauf.Pfad("FRAGEN.TXT");
    SicherungAnlegenKatalog(datei); // not set: nothing happens
    QVERIFY(lauf.Lesen(QStringLiteral("FRAGEN.BAK")).isNull());
    Spiel.OptionDatei = true;
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("FRAGEN.TXT"));
    dialoge.meldung(
        QStringLiteral("BackUp angelegt : \n[ %1.BAK ]").arg(QString::fromStdString(lauf.Pfad("FRAGEN"))),
        QStringLiteral("Wirklich ?!"));
    SicherungAnlegenKatalog(datei);
    QCOMPARE(lauf.Lesen(QStringLiteral("FRAGEN.BAK")), QByteArray("Kopf\r\n"));
    dialoge.meldung(QStringLiteral("Ich konnte kein BackUp anlegen von : \n[ NEU.TXT ]"),
                    QStringLiteral("Das finde ich nicht so gut"));
    SicherungAnlegenKatalog(lauf.Pfad("NEU.TXT"));
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(SpeichernTest)
#include "speichern_test.moc"
