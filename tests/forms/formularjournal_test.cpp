// The journals of forms in the real windows: they come, they go, and they give back what a killed program
// had.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "filetools/formularliste.h"
#include "forms/formulare.h"
#include "forms/formularjournal.h"
#include "forms/oeffnen.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "tests/hilfe/finden.h"
#include "tests/persistence/formlauf.h"

#include <QDir>
#include <QListWidget>
#include <QTest>

namespace {

// What a killed program's journal bears beside it: a process that nobody has.
const QByteArray marke = "999999999\nfeldkranz\n\n\n\n";

QString Hilfe() {
    return Anzeige(HilfeStand()).trimmed();
}

} // namespace

class FormularjournalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { lauf.Beenden(); }

    void unsavedWorkLiesBesideTheFormAfterTwoSeconds();
    void aFormWithoutAFileHasItsJournalInTheFolderOfItsKind();
    void aTestFormHasItsJournalInItsOwnFolder();
    void aFolderThatHasGoneIsToldAndTheWorkGoesOn();
    void undoingTakesTheJournalAway();
    void aSaveTakesTheJournalAway();
    void aDiscardedFormTakesItsJournalAlong();
    void theListOfFormsHidesWhatIsStillBeingWritten();
    void aJournalIsOpenedAsAFormWithoutAFileAndRed();
    void anOpenedJournalGoesWithTheSave();
    void anOpenedJournalGoesWithTheDiscardedForm();
    void aBackupOfTheUsersOwnIsNeverTakenAway();
    void openingTheFormTellsOfItsJournal();
    void theStartTellsOfJournals();
    void aBlankedFormSavedOverItsFullFileKeepsABackup();
    void aFormThatIsOnlyChangedKeepsNone();

private:
    void Verwaist(const QString& name, const QByteArray& bytes) const {
        lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/") + name, bytes);
        lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/.") + name + QStringLiteral(".lock"), marke);
    }
    [[nodiscard]] bool Da(const QString& name) const {
        return lauf.programm().ordner().vorhanden(QStringLiteral("KRANZ/") + name);
    }
    [[nodiscard]] QStringList Reste() const {
        return QDir(lauf.programm().ordner().nativ(QStringLiteral("KRANZ")))
            .entryList({QStringLiteral("*~*")}, QDir::Files | QDir::Hidden);
    }

    Formlauf lauf;
};

void FormularjournalTest::init() {
    lauf.Vorbereiten();
    FormularjournalAbwarten(); // the last form's journal may still be on its way out
    for (const QString& rest : Reste()) {
        QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/") + rest));
    }
}

void FormularjournalTest::unsavedWorkLiesBesideTheFormAfterTwoSeconds() {
    lauf.Schreiben(QStringLiteral("ABEND.FKR"), Formlauf::Quiz("Alt"));
    lauf.Oeffnen(QStringLiteral("ABEND.FKR"));
    QVERIFY(Reste().isEmpty());
    Textfeld* feld = FKFragenOffen()->txtFrage.at(1);
    feld->setFocus();
    QTest::keyClicks(feld, QStringLiteral("Neu"));
    QTRY_VERIFY(Da(QStringLiteral("~ABEND.BAK")));
    const QByteArray erstes = lauf.Lesen(QStringLiteral("~ABEND.BAK"));
    QVERIFY(erstes.startsWith("\"Feldkranz\"\r\n\"FK\"\r\n"));
    QVERIFY(erstes.contains("\"Neu\""));
    QTest::keyClicks(feld, QStringLiteral("er"));
    QTRY_VERIFY(lauf.Lesen(QStringLiteral("~ABEND.BAK")).contains("\"Neuer\""));
    QVERIFY(lauf.Lesen(QStringLiteral("ABEND.FKR")) == Formlauf::Quiz("Alt"));
    // The same bytes that a save would write now.
    const QByteArray journal = lauf.Lesen(QStringLiteral("~ABEND.BAK"));
    {
        Dialogfolge dialoge;
        GespeichertErwarten(dialoge, QStringLiteral("ABEND.FKR"));
        lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    }
    QCOMPARE(lauf.Lesen(QStringLiteral("ABEND.FKR")), journal);
}

void FormularjournalTest::aFormWithoutAFileHasItsJournalInTheFolderOfItsKind() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK")));
}

void FormularjournalTest::aTestFormHasItsJournalInItsOwnFolder() {
    const Programmordner& ordner = lauf.programm().ordner();
    const frmHBFragen* form = lauf.programm().NeuesTestformular();
    QTest::keyClicks(form->txtFrage.at(1), QStringLiteral("Knoten"));
    QTRY_VERIFY(ordner.vorhanden(QStringLiteral("TEST/~NEU.BAK")));
    QVERIFY(ordner.lesen(QStringLiteral("TEST/~NEU.BAK")).contains("Knoten"));
    FormulareEntladen();
    QTRY_VERIFY(!ordner.vorhanden(QStringLiteral("TEST/~NEU.BAK")));
}

void FormularjournalTest::aFolderThatHasGoneIsToldAndTheWorkGoesOn() {
    const Programmordner& ordner = lauf.programm().ordner();
    ordner.schreiben(QStringLiteral("STICK/ABEND.FKR"), Formlauf::Quiz("Alt"));
    FormularLaden(Stand.AppPfad + "\\STICK\\ABEND.FKR");
    QVERIFY(QDir(ordner.nativ(QStringLiteral("STICK"))).removeRecursively());
    QTest::keyClicks(FKFragenOffen()->txtFrage.at(5), QStringLiteral("x"));
    QTRY_COMPARE(Hilfe(), QStringLiteral("Nebenher sichern kann ich gerade nicht (Pfad nicht gefunden) - "
                                         "speichere lieber bald selbst !"));
    HilfeText("");
    QTest::keyClicks(FKFragenOffen()->txtFrage.at(5), QStringLiteral("y"));
    ordner.schreiben(QStringLiteral("STICK/DA.TXT"), "wieder da");
    QTest::keyClicks(FKFragenOffen()->txtFrage.at(5), QStringLiteral("z"));
    QTRY_VERIFY(ordner.lesen(QStringLiteral("STICK/~ABEND.BAK")).contains("xyz"));
    QCOMPARE(Hilfe(), QString());
}

void FormularjournalTest::undoingTakesTheJournalAway() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    FormStatusSetzen(false);
    Textfeld* feld = FKFragenOffen()->txtFrage.at(5);
    feld->setFocus();
    QTRY_VERIFY(feld->hasFocus());
    QTest::keyClicks(feld, QStringLiteral("x"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK")));
    RueckgaengigMachen();
    QTRY_VERIFY(Reste().isEmpty());
    QVERIFY(!Stand.FormGeaendert);
}

void FormularjournalTest::aSaveTakesTheJournalAway() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK")));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), QStringLiteral("ERST.FKR"),
                        QStringLiteral("cmdSpeichern"));
    GespeichertErwarten(dialoge, QStringLiteral("ERST.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(Reste().isEmpty());
}

void FormularjournalTest::aDiscardedFormTakesItsJournalAlong() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK")));
    FormulareEntladen();
    QTRY_VERIFY(Reste().isEmpty());
}

void FormularjournalTest::theListOfFormsHidesWhatIsStillBeingWritten() {
    lauf.Schreiben(QStringLiteral("EIGEN.BAK"), Formlauf::Quiz("Eigen"));
    Verwaist(QStringLiteral("~ALT.BAK"), Formlauf::Quiz("Alt"));
    lauf.NeuesFormular(QStringLiteral("Neu"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK")));
    FormularlisteZeigen();
    QWidget* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    QTest::mouseClick(Finden(liste, QStringLiteral("cmdNeuFK")), Qt::LeftButton);
    QTest::mouseClick(Finden(liste, QStringLiteral("optPattern(1)")), Qt::LeftButton);
    auto* namen = Finden<QListWidget>(liste, QStringLiteral("filDateiliste"));
    QTRY_VERIFY(namen->count() >= 2);
    QStringList da;
    for (int i = 0; i < namen->count(); ++i) {
        da << namen->item(i)->text();
    }
    QCOMPARE(da.first(), QStringLiteral("~ALT.BAK"));
    QVERIFY(da.contains(QStringLiteral("EIGEN.BAK")));
    QVERIFY(!da.contains(QStringLiteral("~NEU.BAK")));
    liste->close();
}

void FormularjournalTest::aJournalIsOpenedAsAFormWithoutAFileAndRed() {
    Verwaist(QStringLiteral("~ABEND.BAK"), Formlauf::Quiz("Gerettet"));
    FormularLaden(lauf.Pfad("~ABEND.BAK"));
    QCOMPARE(FKFragenOffen()->txtFrage.at(1)->text(), std::string("Gerettet 1"));
    QCOMPARE(Stand.FKDateiName, std::string());
    QVERIFY(Stand.FormGeaendert);
    QCoreApplication::processEvents();
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
    QVERIFY(Spiel.Datei[0].find('~') == std::string::npos);
    QVERIFY(Da(QStringLiteral("~ABEND.BAK")));
}

void FormularjournalTest::anOpenedJournalGoesWithTheSave() {
    Verwaist(QStringLiteral("~ABEND.BAK"), Formlauf::Quiz("Gerettet"));
    FormularLaden(lauf.Pfad("~ABEND.BAK"));
    Textfeld* feld = FKFragenOffen()->txtFrage.at(5);
    feld->setFocus();
    QTest::keyClicks(feld, QStringLiteral("weiter"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK")));
    QVERIFY(Da(QStringLiteral("~ABEND.BAK")));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), QStringLiteral("NEUER.FKR"),
                        QStringLiteral("cmdSpeichern"));
    GespeichertErwarten(dialoge, QStringLiteral("NEUER.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(Reste().isEmpty());
}

void FormularjournalTest::anOpenedJournalGoesWithTheDiscardedForm() {
    Verwaist(QStringLiteral("~ABEND.BAK"), Formlauf::Quiz("Gerettet"));
    FormularLaden(lauf.Pfad("~ABEND.BAK"));
    FormulareEntladen();
    QTRY_VERIFY(Reste().isEmpty());
}

void FormularjournalTest::aBackupOfTheUsersOwnIsNeverTakenAway() {
    lauf.Schreiben(QStringLiteral("~MEINS.BAK"), Formlauf::Quiz("Meins"));
    FormularLaden(lauf.Pfad("~MEINS.BAK"));
    QVERIFY(Stand.FormGeaendert);
    FormStatusSetzen(false);
    FormulareEntladen();
    lauf.NeuesFormular(QStringLiteral("Neu"));
    QTRY_VERIFY(Da(QStringLiteral("~NEU.BAK"))); // the thread has done what it was asked before
    QVERIFY(Da(QStringLiteral("~MEINS.BAK")));
}

void FormularjournalTest::openingTheFormTellsOfItsJournal() {
    lauf.Schreiben(QStringLiteral("ABEND.FKR"), Formlauf::Quiz("Alt"));
    Verwaist(QStringLiteral("~ABEND.BAK"), Formlauf::Quiz("Gerettet"));
    FormularLaden(lauf.Pfad("ABEND.FKR"));
    QCOMPARE(Hilfe(), QStringLiteral("Ich wurde abgewürgt - dein ungespeicherter Stand liegt unter *.BAK in "
                                     "[ ~ABEND.BAK ]."));
    QCOMPARE(FKFragenOffen()->txtFrage.at(1)->text(), std::string("Alt 1"));
    // Its own journal doesn't touch the old one.
    QTest::keyClicks(FKFragenOffen()->txtFrage.at(5), QStringLiteral("x"));
    QTRY_VERIFY(Da(QStringLiteral("~ABEND1.BAK")));
    QCOMPARE(lauf.Lesen(QStringLiteral("~ABEND.BAK")), Formlauf::Quiz("Gerettet"));
}

void FormularjournalTest::theStartTellsOfJournals() {
    HilfeText("vorher");
    JournaleMelden();
    const QString vorher = Hilfe();
    Verwaist(QStringLiteral("~ABEND.BAK"), Formlauf::Quiz("Gerettet"));
    JournaleMelden();
    QCOMPARE(vorher, QStringLiteral("vorher"));
    QCOMPARE(Hilfe(), QStringLiteral("Ich wurde abgewürgt - dein ungespeicherter Stand liegt unter *.BAK in "
                                     "[ ~ABEND.BAK ]."));
    Verwaist(QStringLiteral("~NEU.BAK"), Formlauf::Quiz("Gerettet"));
    JournaleMelden();
    QCOMPARE(Hilfe(), QStringLiteral("Ich wurde abgewürgt - dein ungespeicherter Stand liegt unter *.BAK in "
                                     "[ ~ABEND.BAK ] (und 1 mehr)."));
}

void FormularjournalTest::aBlankedFormSavedOverItsFullFileKeepsABackup() {
    lauf.Schreiben(QStringLiteral("VOLL.FKR"), Formlauf::Quiz("Voll"));
    lauf.Oeffnen(QStringLiteral("VOLL.FKR"));
    QVERIFY(!Spiel.OptionDatei);
    FK_FragenLoeschen();
    {
        Dialogfolge dialoge;
        GespeichertErwarten(dialoge, QStringLiteral("VOLL.FKR"));
        lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
        QTRY_VERIFY(dialoge.fertig());
    }
    QCOMPARE(lauf.Lesen(QStringLiteral("VOLL.BAK")), Formlauf::Quiz("Voll"));
    QVERIFY(!lauf.Lesen(QStringLiteral("VOLL.FKR")).contains("Voll 1"));
    QCOMPARE(Hilfe(),
             QStringLiteral("Das Formular war geleert - das volle liegt unter *.BAK in [ VOLL.BAK ]."));
    // The next save of the empty form leaves the full one where it is.
    FKFragenOffen()->txtFrage.at(2)->setText("neu");
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("VOLL.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("VOLL.BAK")), Formlauf::Quiz("Voll"));
}

void FormularjournalTest::aFormThatIsOnlyChangedKeepsNone() {
    lauf.Schreiben(QStringLiteral("VOLL.FKR"), Formlauf::Quiz("Voll"));
    QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/VOLL.BAK")));
    lauf.Oeffnen(QStringLiteral("VOLL.FKR"));
    FKFragenOffen()->txtFrage.at(1)->setText("anders");
    FK_FragenLoeschen();
    FK_FragenEinfuegen();
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("VOLL.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(!Da(QStringLiteral("VOLL.BAK")));
}

QTEST_MAIN(FormularjournalTest)
#include "formularjournal_test.moc"
