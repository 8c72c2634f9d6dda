// The list of forms in the real program: its two folders, the patterns, the preview, the modes it sets, and
// how forms are opened from it.
#include "listenhilfe.h"
#include "tests/hilfe/dateidialoghilfe.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>

namespace {

const QString quizOffen =
    QStringLiteral("Ich kann jetzt kein Testformular laden.\nDu mußt erst das Feldkranzformular schließen.");
const QString testOffen =
    QStringLiteral("Ich kann jetzt kein Feldkranzformular laden.\nDu mußt erst das Testformular schließen.");

QColor Listengrund() {
    return Listenlauf::Liste()->palette().color(QPalette::Base);
}

QString Quizfrage() {
    return QString::fromStdString(FK_Frage(1));
}

bool InGebrauch(const char* name) {
    return Listenlauf::Taste(name)->isEnabled();
}

} // namespace

class FormularlisteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMainWindowOpensWithTheListShown();
    void theListStandsAboveTheMainWindowAndIsNoChildOfIt();
    void everyControlTellsWhatItIsFor();
    void theButtonsChooseFolderColourAndMode();
    void thePatternsShowFormsOrBackups();
    void aClickTakesTheFileAndShowsItsNumbers();
    void theArrowKeysMarkAndShowToo();
    void thePreviewReadsTheNumbersOnly();
    void thePreviewOfATestFormKeepsTheNumbers();
    void thePreviewOfATestFormKeepsTheNumbersOfTheFileBefore();
    void aLookAtAnotherFileChangesNothingOfTheOpenForm();
    void aDoubleClickOpensTheForm();
    void aDoubleClickOnABackupLoadsItAsAForm();
    void aTestFormIsOpenedFromItsOwnFolder();
    void enterOpensTheMarkedFormAndEscClosesTheList();
    void theButtonsFollowTheFormInWork();
    void aFormThatIsMadeTouchesAListThatIsGone();
    void theListIsOneWindowAndIsMadeAnewAfterClosing();
    void aTestFileWhileAQuizFormIsOpenChangesNothing();
    void aQuizFileWhileATestFormIsOpenChangesNothing();
    void theModeOfTheListBindsTheListAndNotTheFileDialog();
    void theListKeepsToItsButtonsKindWhateverWasOpenMeanwhile();
    void aLookAtAFormChangesNothingThatANewFormTakesOver();
};

void FormularlisteTest::theMainWindowOpensWithTheListShown() {
    Programm programm;
    programm.ordner().schreiben(QStringLiteral("KRANZ/Herbst.FKR"), Quizdatei("Was fällt ?"));
    QVERIFY(Listenlauf::Fenster() != nullptr);
    QVERIFY(Listenlauf::Fenster()->isVisible());
    QVERIFY(programm.haupt()->isActiveWindow()); // the list doesn't take the focus
    QTRY_VERIFY(Listenlauf::Namen().contains(QStringLiteral("Herbst.FKR")));
    QCOMPARE(Listenlauf::Fenster()->property("tag").toString(), QStringLiteral("FKFragen"));
    QVERIFY(Finden<QRadioButton>(Listenlauf::Fenster(), QStringLiteral("optPattern(0)"))->isChecked());
    QCOMPARE(Listenlauf::Info(), QStringLiteral("Datei mit Linksklick auswählen."));
    QCOMPARE(Stand.FormTyp, Formart::Keine); // any form can be opened
    QVERIFY(InGebrauch("cmdNeuFK"));
    QVERIFY(InGebrauch("cmdNeuHB"));
}

void FormularlisteTest::theListStandsAboveTheMainWindowAndIsNoChildOfIt() {
    Listenlauf lauf;
    const frmFKFragen* form = lauf.programm().NeuesQuizformular();
    const frmFKformulare* liste = Listenlauf::Fenster();
    QCOMPARE(liste->windowType(), Qt::Tool);
    QCOMPARE(liste->parentWidget(), static_cast<QWidget*>(MDIFenster()));
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    Listenlauf::Anklicken(QStringLiteral("A.FKR"));
    QTRY_VERIFY(liste->isActiveWindow());
    QVERIFY(AktivesKind() == form);
    QCOMPARE(AktivesKind()->objectName(), QStringLiteral("frmFKFragen"));
    QVERIFY(Finden(MDIFenster(), QStringLiteral("picFK"))->isVisible());
    maus::Klicken(form->txtFrage.at(1));
    QTRY_VERIFY(MDIFenster()->isActiveWindow());
    Listenlauf::Anklicken(QStringLiteral("A.FKR")); // fails if the main window covers it
}

void FormularlisteTest::everyControlTellsWhatItIsFor() {
    const Listenlauf lauf;
    const QList<std::pair<const char*, QString>> tipps{
        {"filDateiliste", QStringLiteral("Dateiliste mit Feldkranz- oder Test-Formularen.")},
        {"lblDateiInfo", QStringLiteral("Infos zur oben markierten Feldkranz- oder Test-Formulare.\n"
                                        "Datei mit Linksklick auswählen.")},
        {"optPattern(0)",
         QStringLiteral("Alle Feldkranz- oder Test-Formulare mit der Endung [*.fkr] anzeigen.")},
        {"optPattern(1)",
         QStringLiteral("Alle Feldkranz- oder Test-Formulare mit der Endung [*.bak] anzeigen.\n"
                        "Eine Datei mit der Endung [*.bak] wird angelegt, wenn ein vorhandenes\n"
                        "Formular gespeichert wird.)\n"
                        "(Speichern mit BackUp muss in den Optionen eingestellt sein.)")},
        {"cmdNeuFK", QStringLiteral("Dateiliste mit Feldkranz-Formularen anzeigen.")},
        {"cmdNeuHB", QStringLiteral("Dateiliste mit Test-Formularen anzeigen.")},
        {"cmdAbbruch", QStringLiteral("Dateiliste ausblenden.")}};
    for (const auto& [name, tipp] : tipps) {
        QCOMPARE(Listenlauf::Taste(name)->toolTip(), tipp);
    }
}

void FormularlisteTest::theButtonsChooseFolderColourAndMode() {
    const Listenlauf lauf;
    lauf.Schreiben(QStringLiteral("TEST/Knoten.FKR"), Testdatei("Welcher Knoten ?"));
    lauf.Schreiben(QStringLiteral("TEST/ALT.BAK"), Testdatei("alt"));
    lauf.Anlegen(QStringLiteral("KRANZ/Herbst.FKR"), Quizdatei("Was fällt ?"));
    Listenlauf::Druecken("optPattern(1)");
    QTRY_VERIFY(Listenlauf::Namen().isEmpty());
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("Knoten.FKR")});
    QCOMPARE(Listengrund(), QColor(191, 255, 191));
    QCOMPARE(MDIFenster()->property("tag").toString(), QStringLiteral("HBFragen"));
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(Finden<QRadioButton>(Listenlauf::Fenster(), QStringLiteral("optPattern(0)"))->isChecked());
    Listenlauf::Druecken("cmdNeuFK");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("Herbst.FKR")});
    QCOMPARE(Listengrund(), QColor(255, 255, 191));
    QCOMPARE(MDIFenster()->property("tag").toString(), QStringLiteral("FKFragen"));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QVERIFY(Finden(MDIFenster(), QStringLiteral("picKranz"))->isVisible()); // the toolbars stay
}

void FormularlisteTest::thePatternsShowFormsOrBackups() {
    const Listenlauf lauf;
    for (const char* name : {"b.fkr", "A.FKR", "A.BAK", "brief.txt", "A.FKR.txt"}) {
        lauf.Schreiben(QStringLiteral("KRANZ/") + QLatin1String(name), Quizdatei("a"));
    }
    QTRY_COMPARE(Listenlauf::Namen(), (QStringList{QStringLiteral("A.FKR"), QStringLiteral("b.fkr")}));
    Listenlauf::Druecken("optPattern(1)");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("A.BAK")});
    Listenlauf::Druecken("optPattern(0)");
    QTRY_COMPARE(Listenlauf::Namen().size(), 2);
}

void FormularlisteTest::aClickTakesTheFileAndShowsItsNumbers() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Herbst.FKR"), Quizdatei("Was fällt ?", 20, 5, 4));
    const Spielwerte vorher = Spiel;
    Listenlauf::Anklicken(QStringLiteral("Herbst.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(20, 4, 5));
    QCOMPARE(Listenlauf::Markiert(), QStringLiteral("Herbst.FKR"));
    QVERIFY(Listenlauf::Status().startsWith(QStringLiteral(" Ich lade ...  Z\\Herbst.FKR")));
    QVERIFY(Spiel == vorher); // what the list shows isn't in force
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    QVERIFY(FKFragenOffen() == nullptr);
}

void FormularlisteTest::theArrowKeysMarkAndShowToo() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a", 12, 4, 3));
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b", 20, 4, 5));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiliste")));
    QTRY_VERIFY(Listenlauf::Liste()->hasFocus());
    QCOMPARE(Listenlauf::Markiert(), QString()); // the focus alone marks nothing
    maus::Taste(QStringLiteral("Down"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    maus::Taste(QStringLiteral("Down"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(20, 5, 4));
    QCOMPARE(Listenlauf::Markiert(), QStringLiteral("B.FKR"));
    QVERIFY(Listenlauf::Status().endsWith(QStringLiteral("\\KRANZ\\B.FKR ")));
}

void FormularlisteTest::thePreviewReadsTheNumbersOnly() {
    const Listenlauf lauf;
    Quizformular form;
    form.FrageText.fill("Herbst");
    Spielwerte werte;
    werte.FelderGesamt = 24;
    werte.FragenProWissen = 4;
    werte.AnzahlWissen = 6;
    werte.Punkte.fill(7);
    lauf.Anlegen(QStringLiteral("KRANZ/herbstlager 2008.fkr"),
                 QByteArray::fromStdString(FormularBytes(form, werte)));
    const Spielwerte vorher = Spiel;
    Listenlauf::Anklicken(QStringLiteral("herbstlager 2008.fkr"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(24, 6, 4));
    QVERIFY(Spiel == vorher);
    QVERIFY(FKForm == Quizformular());
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    QCOMPARE(Listenlauf::Status(), QStringLiteral(" Ich lade ...  ger 2008.fkr "));
    Listenlauf::Liste()->clearSelection(); // nothing chosen: nothing happens
    UhrenAbwarten(50);                     // the preview waits behind the keys only
    QCOMPARE(Listenlauf::Info(), Vorschau(24, 6, 4));
    QVERIFY(Spiel == vorher);
}

void FormularlisteTest::thePreviewOfATestFormKeepsTheNumbers() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    Spiel.FelderGesamt = 12;
    Spiel.AnzahlWissen = 3;
    Spiel.FragenProWissen = 4;
    const Spielwerte vorher = Spiel;
    Listenlauf::Anklicken(QStringLiteral("T.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    QVERIFY(Spiel == vorher);
    QCOMPARE(Stand.FormTyp, Formart::Keine);
}

void FormularlisteTest::thePreviewOfATestFormKeepsTheNumbersOfTheFileBefore() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Q.FKR"), Quizdatei("q", 12, 4, 3));
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    for (const bool offen : {false, true}) {
        if (offen) {
            lauf.programm().NeuesQuizformular();
        }
        Listenlauf::Anklicken(QStringLiteral("Q.FKR"));
        QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
        Listenlauf::Anklicken(QStringLiteral("T.FKR"));
        QTRY_COMPARE(Listenlauf::Markiert(), QStringLiteral("T.FKR"));
        QTRY_VERIFY(Listenlauf::Status().endsWith(QStringLiteral("\\KRANZ\\T.FKR ")));
        QCOMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    }
}

void FormularlisteTest::aLookAtAnotherFileChangesNothingOfTheOpenForm() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a", 30, 5, 6));
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b", 12, 4, 3));
    Listenlauf::Doppelklicken(QStringLiteral("A.FKR"));
    QTRY_COMPARE(Quizfrage(), QStringLiteral("a"));
    Listenlauf::Anklicken(QStringLiteral("B.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ A.FKR ]"), QStringLiteral("Schön"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiFK(3)")));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/A.FKR")).contains("\"[FKINI]\"\r\n\"FK\"\r\n30\r\n5\r\n6\r\n"));
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/B.FKR")) == Quizdatei("b", 12, 4, 3));
}

void FormularlisteTest::aDoubleClickOpensTheForm() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Herbst.FKR"), Quizdatei("Welche Frucht ?"));
    lauf.Anlegen(QStringLiteral("KRANZ/herbst.fkr"), Quizdatei("Eine andere ?"));
    Listenlauf::Doppelklicken(QStringLiteral("herbst.fkr"));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QTRY_COMPARE(Quizfrage(), QStringLiteral("Eine andere ?"));
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral("herbst.fkr "));
    QVERIFY(!Stand.FormGeaendert);
    QTRY_VERIFY(MDIFenster()->isActiveWindow());
    QVERIFY(Listenlauf::Fenster()->isVisible());             // the list stays
    Listenlauf::Doppelklicken(QStringLiteral("Herbst.FKR")); // an unchanged form gives way without a word
    QTRY_COMPARE(Quizfrage(), QStringLiteral("Welche Frucht ?"));
    QCOMPARE(Stand.FKDateiName, Stand.AppPfad + "\\KRANZ\\Herbst.FKR");
}

void FormularlisteTest::aDoubleClickOnABackupLoadsItAsAForm() {
    const Listenlauf lauf;
    lauf.Schreiben(QStringLiteral("KRANZ/Herbst.BAK"), Quizdatei("Wie war es ?"));
    Listenlauf::Druecken("optPattern(1)");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("Herbst.BAK")});
    Listenlauf::Doppelklicken(QStringLiteral("Herbst.BAK"));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(Quizfrage(), QStringLiteral("Wie war es ?"));
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral("Herbst.BAK "));
}

void FormularlisteTest::aTestFormIsOpenedFromItsOwnFolder() {
    const Listenlauf lauf;
    lauf.Schreiben(QStringLiteral("TEST/Knoten.FKR"), Testdatei("Welcher Knoten ?"));
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("Knoten.FKR")});
    Listenlauf::Doppelklicken(QStringLiteral("Knoten.FKR"));
    QTRY_VERIFY(HBFragenOffen() != nullptr);
    QCOMPARE(HBForm.HBFrageText[1], std::string("Welcher Knoten ?"));
    QCOMPARE(Stand.HBDateiName, Stand.AppPfad + "\\TEST\\Knoten.FKR");
    QVERIFY(InGebrauch("cmdNeuHB"));
    QVERIFY(!InGebrauch("cmdNeuFK"));
}

void FormularlisteTest::enterOpensTheMarkedFormAndEscClosesTheList() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiliste")));
    QTRY_VERIFY(Listenlauf::Liste()->hasFocus());
    maus::Taste(QStringLiteral("Return")); // nothing is marked: nothing happens
    QVERIFY(FKFragenOffen() == nullptr);
    maus::Taste(QStringLiteral("Down"));
    QTRY_COMPARE(Listenlauf::Markiert(), QStringLiteral("A.FKR"));
    maus::Taste(QStringLiteral("Return"));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(Quizfrage(), QStringLiteral("a"));
    Finden<QAction>(MDIFenster(), QStringLiteral("mAuswahl(2)"))->trigger();
    QTRY_VERIFY(Listenlauf::Fenster()->isActiveWindow());
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(Listenlauf::Fenster() == nullptr);
    QVERIFY(FKFragenOffen() != nullptr);
}

void FormularlisteTest::theButtonsFollowTheFormInWork() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    lauf.programm().NeuesQuizformular();
    QVERIFY(InGebrauch("cmdNeuFK"));
    QVERIFY(!InGebrauch("cmdNeuHB"));
    FK_Entladen(); // closed: the other kind's button stays out of use
    ModusHaupt();
    QVERIFY(!InGebrauch("cmdNeuHB"));
    lauf.programm().NeuesTestformular();
    QVERIFY(!InGebrauch("cmdNeuFK"));
    QVERIFY(InGebrauch("cmdNeuHB"));
    HB_Entladen();
    ModusHaupt();
    QVERIFY(!InGebrauch("cmdNeuFK"));
    Listenlauf::Doppelklicken(QStringLiteral("A.FKR")); // a form that is read does the same
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QVERIFY(InGebrauch("cmdNeuFK"));
    QVERIFY(!InGebrauch("cmdNeuHB"));
}

void FormularlisteTest::aFormThatIsMadeTouchesAListThatIsGone() {
    Listenlauf lauf;
    Listenlauf::Druecken("cmdAbbruch");
    QTRY_VERIFY(Listenlauf::Fenster() == nullptr);
    lauf.programm().NeuesTestformular();
    QVERIFY(Listenlauf::Fenster() != nullptr);
    QVERIFY(!Listenlauf::Fenster()->isVisible());
    QVERIFY(!InGebrauch("cmdNeuFK"));
}

void FormularlisteTest::theListIsOneWindowAndIsMadeAnewAfterClosing() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    const QPointer<frmFKformulare> erste = Listenlauf::Fenster();
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiliste")));
    QTRY_VERIFY(erste->isActiveWindow());
    QCOMPARE(Listenlauf::Fenster(), erste.data());
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_VERIFY(Listenlauf::Namen().isEmpty());
    Listenlauf::Druecken("cmdAbbruch");
    QTRY_VERIFY(erste.isNull());
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiliste")));
    QTRY_VERIFY(Listenlauf::Fenster() != nullptr && Listenlauf::Fenster()->isVisible());
    QCOMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("A.FKR")}); // the quiz forms again
    QCOMPARE(Listenlauf::Fenster()->property("tag").toString(), QStringLiteral("FKFragen"));
}

void FormularlisteTest::aTestFileWhileAQuizFormIsOpenChangesNothing() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    Listenlauf::Doppelklicken(QStringLiteral("A.FKR"));
    QTRY_COMPARE(Quizfrage(), QStringLiteral("a"));
    Dialogfolge dialoge;
    dialoge.meldung(quizOffen, QStringLiteral("Den Gefallen kann ich dir tun !"));
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(Quizfrage(), QStringLiteral("a"));
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral("A.FKR "));
    QVERIFY(HBFragenOffen() == nullptr);
    QVERIFY(!InGebrauch("cmdNeuHB"));
}

void FormularlisteTest::aQuizFileWhileATestFormIsOpenChangesNothing() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtFrage.at(1)->setText("mein Test");
    Dialogfolge dialoge;
    dialoge.meldung(testOffen, QStringLiteral("Das ist kein Problem, das mache ich doch sofort !"));
    Listenlauf::Doppelklicken(QStringLiteral("A.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("mein Test"));
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(lauf.Lesen(QStringLiteral("TEST/UNGESICHERT.BAK")).isNull());
}

void FormularlisteTest::theModeOfTheListBindsTheListAndNotTheFileDialog() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/T.FKR"), Testdatei("t"));
    Listenlauf::Druecken("cmdNeuFK");
    QTRY_COMPARE(Stand.FormTyp, Formart::Quiz);
    Dialogfolge dialoge;
    dialoge.meldung(quizOffen, QStringLiteral("Den Gefallen kann ich dir tun !"));
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(HBFragenOffen() == nullptr);
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QStringLiteral("T.FKR"),
                        QStringLiteral("cmdLaden"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdLaden")));
    QTRY_VERIFY(HBFragenOffen() != nullptr); // no form is open that would have to be closed first
}

void FormularlisteTest::theListKeepsToItsButtonsKindWhateverWasOpenMeanwhile() {
    Listenlauf lauf;
    lauf.Schreiben(QStringLiteral("TEST/Q.FKR"), Quizdatei("q"));
    lauf.Schreiben(QStringLiteral("TEST/T.FKR"), Testdatei("t"));
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_COMPARE(Listenlauf::Namen(), (QStringList{QStringLiteral("Q.FKR"), QStringLiteral("T.FKR")}));
    const auto abgelehnt = [] {
        Dialogfolge dialoge;
        dialoge.meldung(testOffen, QStringLiteral("Das ist kein Problem, das mache ich doch sofort !"));
        Listenlauf::Doppelklicken(QStringLiteral("Q.FKR"));
        QTRY_VERIFY(dialoge.fertig());
        QVERIFY(FKFragenOffen() == nullptr && HBFragenOffen() == nullptr);
    };
    abgelehnt();
    Dialogfolge dialoge; // the file dialog takes either kind, and forgets the list's
    dialoge.erwarte({QStringLiteral("frmDatei"), {}, {}, {QStringLiteral("cmdAbbrechen")}});
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdLaden")));
    QTRY_VERIFY(dialoge.fertig());
    abgelehnt();
    lauf.programm().NeuesTestformular();
    HB_Entladen();
    ModusHaupt();
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    abgelehnt();
    Listenlauf::Doppelklicken(QStringLiteral("T.FKR"));
    QTRY_VERIFY(HBFragenOffen() != nullptr);
}

void FormularlisteTest::aLookAtAFormChangesNothingThatANewFormTakesOver() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/KLEIN.FKR"), Quizdatei("klein", 6, 2, 3));
    const frmFKFragen* erstes = lauf.programm().NeuesQuizformular();
    const QSize voll = erstes->size();
    const Spielwerte vorher = Spiel;
    FK_Entladen();
    ModusHaupt();
    Listenlauf::Anklicken(QStringLiteral("KLEIN.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(6, 3, 2));
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmDatei"), {}, {}, {QStringLiteral("cmdAbbrechen")}, [](QDialog& dialog) {
             Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))->setText(QStringLiteral("KLEIN.FKR"));
             Finden<QAbstractButton>(&dialog, QStringLiteral("cmdVorschau"))->click();
             QVERIFY(Finden(&dialog, QStringLiteral("grdDatei"))->isVisible());
         }});
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdLaden")));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(Spiel == vorher);
    QCOMPARE(lauf.programm().NeuesQuizformular()->size(), voll);
    QVERIFY(Spiel == vorher);
    QVERIFY(Spiel.AnzahlWissen == 6 && Spiel.FragenProWissen == 5);
}

QTEST_MAIN(FormularlisteTest)
#include "formularliste_test.moc"
