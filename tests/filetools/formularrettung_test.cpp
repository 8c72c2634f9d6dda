// What becomes of unsaved work when the list of forms replaces the open form without a question.
#include "listenhilfe.h"
#include "tests/hilfe/dateidialoghilfe.h"

#include "persistence/formulardatei.h"

namespace {

const QString rettung = QStringLiteral("KRANZ/UNGESICHERT.BAK");

// The open quiz form gets a text typed into its first cell, which nobody saves.
void Tippen(const QString& text) {
    maus::Klicken(FKFragenOffen()->txtFrage.at(1));
    QTRY_VERIFY(FKFragenOffen()->txtFrage.at(1)->hasFocus());
    maus::Taste(QStringLiteral("ctrl+a"));
    maus::Tippen(text);
    QTRY_COMPARE(QString::fromStdString(FK_Frage(1)), text);
    QVERIFY(Stand.FormGeaendert);
}

void Oeffnen(const QString& name, const QString& frage) {
    Listenlauf::Doppelklicken(name);
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QTRY_COMPARE(QString::fromStdString(FK_Frage(1)), frage);
}

QString Meldesatz(const QString& name) {
    return QStringLiteral(" Ungesichertes liegt in [ %1 ]; unter *.BAK hole ich es zurück. ").arg(name);
}

void BackupsZeigen() {
    Listenlauf::Druecken("optPattern(1)");
    QTRY_VERIFY(Listenlauf::Namen().contains(QStringLiteral("UNGESICHERT.BAK")));
}

} // namespace

class FormularrettungTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anUnsavedQuizFormIsKeptAndComesBack();
    void anUnsavedTestFormIsKeptInItsOwnFolder();
    void anUnchangedFormLeavesNoFile();
    void aFileThatIsNotTakenLeavesNoFile();
    void theOlderOneIsKeptUnderTheNextNumber();
    void theRescuedFormsStandFirstAndTheNewestOfThemAhead();
    void openingTheKeptFormItselfLosesNeither();
    void aSaveOfAFormThatCameBackAsksForAName();
    void whatIsBlankedOnTheScreenIsKeptToo();
    void aFailureIsReportedAndTheFormStays();
    void aFolderOfThatNameStaysAsItIs();
    void aMissingFolderIsMade();
};

void FormularrettungTest::anUnsavedQuizFormIsKeptAndComesBack() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    lauf.programm().NeuesQuizformular();
    Tippen(QStringLiteral("drei Stunden Arbeit"));
    Oeffnen(QStringLiteral("A.FKR"), QStringLiteral("a")); // no question comes: an unexpected one would fail
    QCOMPARE(Listenlauf::Status(), Meldesatz(QStringLiteral("UNGESICHERT.BAK")));
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Stand.FKDateiName, Stand.AppPfad + "\\KRANZ\\A.FKR");
    QVERIFY(lauf.Lesen(rettung).contains("\"drei Stunden Arbeit\"\r\n"));
    BackupsZeigen();
    BildVomBildschirm(QStringLiteral("formularrettung"));
    Oeffnen(QStringLiteral("UNGESICHERT.BAK"), QStringLiteral("drei Stunden Arbeit"));
}

void FormularrettungTest::anUnsavedTestFormIsKeptInItsOwnFolder() {
    Listenlauf lauf;
    lauf.Schreiben(QStringLiteral("TEST/T.FKR"), Testdatei("t"));
    frmHBFragen* form = lauf.programm().NeuesTestformular();
    maus::Klicken(form->txtFrage.at(3));
    QTRY_VERIFY(form->txtFrage.at(3)->hasFocus());
    maus::Tippen(
        QStringLiteral("nie gemerkt")); // what is typed there reaches the stored copy with a save only
    QTRY_COMPARE(HB_Frage(3), std::string("nie gemerkt"));
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("T.FKR")});
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_COMPARE(HB_Frage(1), std::string("t"));
    QCOMPARE(HB_Frage(3), std::string());
    QVERIFY(lauf.Lesen(QStringLiteral("TEST/UNGESICHERT.BAK")).contains("\"nie gemerkt\"\r\n"));
    BackupsZeigen();
    Listenlauf::Doppelklicken(QStringLiteral("UNGESICHERT.BAK"));
    QTRY_COMPARE(HB_Frage(3), std::string("nie gemerkt"));
    QCOMPARE(Stand.HBDateiName, std::string());
}

void FormularrettungTest::anUnchangedFormLeavesNoFile() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b"));
    Oeffnen(QStringLiteral("A.FKR"), QStringLiteral("a"));
    Oeffnen(QStringLiteral("B.FKR"), QStringLiteral("b"));
    QVERIFY(lauf.Lesen(rettung).isNull());
}

void FormularrettungTest::aFileThatIsNotTakenLeavesNoFile() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Brief.FKR"), "Liebe Eltern\r\n");
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    lauf.programm().NeuesQuizformular();
    Tippen(QStringLiteral("bleibt"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    Listenlauf::Doppelklicken(QStringLiteral("Brief.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    dialoge.meldung(
        QStringLiteral(
            "Ich kann jetzt kein Testformular laden.\nDu mußt erst das Feldkranzformular schließen."),
        QStringLiteral("Den Gefallen kann ich dir tun !"));
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(1), std::string("bleibt"));
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(lauf.Lesen(rettung).isNull());
}

void FormularrettungTest::theOlderOneIsKeptUnderTheNextNumber() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    for (const char* text : {"eins", "zwei", "drei"}) {
        Oeffnen(QStringLiteral("A.FKR"), QStringLiteral("a"));
        Tippen(QString::fromLatin1(text));
    }
    Oeffnen(QStringLiteral("A.FKR"), QStringLiteral("a"));
    QCOMPARE(Listenlauf::Status(), Meldesatz(QStringLiteral("UNGESICHERT.BAK"))); // always the last one
    QVERIFY(lauf.Lesen(rettung).contains("\"drei\""));
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/UNGESICHERT1.BAK")).contains("\"eins\""));
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/UNGESICHERT2.BAK")).contains("\"zwei\""));
}

void FormularrettungTest::theRescuedFormsStandFirstAndTheNewestOfThemAhead() {
    Listenlauf lauf;
    const QDateTime heute = QDateTime::currentDateTime();
    int tage = 0;
    for (const char* name :
         {"UNGESICHERT2.BAK", "ungesichert10.bak", "UNGESICHERT.BAK", "UNGESICHERT1.BAK", "A.BAK", "Z.BAK"}) {
        const QString darunter = QStringLiteral("KRANZ/") + QLatin1String(name);
        lauf.Schreiben(darunter, Quizdatei(name));
        QFile datei(lauf.programm().ordner().nativ(darunter));
        QVERIFY(datei.open(QFile::ReadWrite) &&
                datei.setFileTime(heute.addDays(-tage), QFile::FileModificationTime));
        ++tage;
    }
    BackupsZeigen();
    QTRY_COMPARE(Listenlauf::Namen(),
                 (QStringList{QStringLiteral("UNGESICHERT2.BAK"), QStringLiteral("ungesichert10.bak"),
                              QStringLiteral("UNGESICHERT.BAK"), QStringLiteral("UNGESICHERT1.BAK"),
                              QStringLiteral("A.BAK"), QStringLiteral("Z.BAK")}));
    Listenlauf::Druecken("optPattern(0)");
    lauf.Anlegen(QStringLiteral("KRANZ/Heim.FKR"), Quizdatei("a"));
    Oeffnen(QStringLiteral("Heim.FKR"), QStringLiteral("a"));
    Tippen(QStringLiteral("ganz neu"));
    Oeffnen(QStringLiteral("Heim.FKR"), QStringLiteral("a"));
    BackupsZeigen();
    QCOMPARE(Listenlauf::Namen().first(), QStringLiteral("UNGESICHERT.BAK"));
    QVERIFY(lauf.Lesen(rettung).contains("\"ganz neu\""));
}

void FormularrettungTest::openingTheKeptFormItselfLosesNeither() {
    Listenlauf lauf;
    lauf.Schreiben(rettung, Quizdatei("gestern"));
    lauf.programm().NeuesQuizformular();
    Tippen(QStringLiteral("heute"));
    BackupsZeigen();
    Oeffnen(QStringLiteral("UNGESICHERT.BAK"), QStringLiteral("gestern"));
    QVERIFY(lauf.Lesen(rettung) == Quizdatei("gestern"));
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/UNGESICHERT1.BAK")).contains("\"heute\""));
    QCOMPARE(Listenlauf::Status(), Meldesatz(QStringLiteral("UNGESICHERT1.BAK")));
}

void FormularrettungTest::aSaveOfAFormThatCameBackAsksForAName() {
    const Listenlauf lauf;
    lauf.Schreiben(rettung, Quizdatei("gestern"));
    BackupsZeigen();
    Oeffnen(QStringLiteral("UNGESICHERT.BAK"), QStringLiteral("gestern"));
    QCOMPARE(Stand.FKDateiName, std::string());
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral("UNGESICHERT.BAK "));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), QStringLiteral("Neu"),
                        QStringLiteral("cmdSpeichern"));
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ Neu.FKR ]"), QStringLiteral("Schön"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiFK(3)")));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(rettung) == Quizdatei("gestern"));
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/Neu.FKR")).contains("\"gestern\""));
    // From now on it has its file.
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ Neu.FKR ]"), QStringLiteral("Schön"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiFK(3)")));
    QTRY_VERIFY(dialoge.fertig());
}

void FormularrettungTest::whatIsBlankedOnTheScreenIsKeptToo() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b"));
    Oeffnen(QStringLiteral("A.FKR"), QStringLiteral("a"));
    Tippen(QStringLiteral("steht nur hier"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Fragen löschen"),
                  QStringLiteral("Soll ich die Fragen und Antworten aus dem Formular löschen ?\n"
                                 "(Können anschließend - wenn nichts verändert wurde -\n"
                                 "auch wieder eingefügt werden.)"),
                  6);
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdFKFLoeschen")));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(1), std::string());
    Oeffnen(QStringLiteral("B.FKR"), QStringLiteral("b"));
    QVERIFY(lauf.Lesen(rettung).contains("\"steht nur hier\""));
}

void FormularrettungTest::aFailureIsReportedAndTheFormStays() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtFrage.at(1)->setText("mein Test");
    QDir oben(lauf.programm().ordner().nativ());
    QVERIFY(oben.rmdir(QStringLiteral("TEST")));
    lauf.Schreiben(QStringLiteral("TEST"), "eine Datei"); // no folder can be made there
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmMeldung"),
         std::nullopt,
         QStringLiteral("DATEI : Ungesichertes_Retten :\n75 : Fehler beim Zugriff auf Pfad oder Datei"),
         {QStringLiteral("cmdKenntnis")}});
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("mein Test"));
    QCOMPARE(HBForm.HBFrageText[1], std::string()); // the stored copy is as it was
    QVERIFY(Stand.FormGeaendert);
}

void FormularrettungTest::aFolderOfThatNameStaysAsItIs() {
    Listenlauf lauf;
    lauf.Schreiben(rettung + QStringLiteral("/drin.txt"), "bleibt");
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    lauf.programm().NeuesQuizformular();
    Tippen(QStringLiteral("heute"));
    Oeffnen(QStringLiteral("A.FKR"), QStringLiteral("a"));
    QCOMPARE(lauf.Lesen(rettung + QStringLiteral("/drin.txt")), QByteArray("bleibt"));
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/UNGESICHERT1.BAK")).contains("\"heute\""));
}

void FormularrettungTest::aMissingFolderIsMade() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtFrage.at(1)->setText("mein Test");
    QVERIFY(QDir(lauf.programm().ordner().nativ()).rmdir(QStringLiteral("TEST")));
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_COMPARE(HB_Frage(1), std::string("t"));
    QVERIFY(lauf.Lesen(QStringLiteral("TEST/UNGESICHERT.BAK")).contains("\"mein Test\""));
}

QTEST_MAIN(FormularrettungTest)
#include "formularrettung_test.moc"
