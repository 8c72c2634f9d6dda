// The presets of the settings dialog: factory values, taking and converting them, zeroing, loading and saving
// the settings file.
#include "tests/settings/inihilfe.h"

#include <QDir>
#include <QLabel>

namespace {

const QString null = QStringLiteral("0");
const QString ladenTitel = QStringLiteral("Standardeinstellungen laden");
const QString ladenFrage = QStringLiteral("Ich lade die Standardeinstellungen für Feldkranz");
const QString speichernTitel = QStringLiteral("Standardeinstellungen speichern");
const QString speichernFrage = QStringLiteral("Ich speichere die Standardeinstellungen für Feldkranz");
const QString ini = QStringLiteral("CONFIG/Feldkranz.INI");

const QStringList werkPunkteText{"5", "10", "10", "5", "0"};
const QStringList werkFelderText{"2", "2", "2", "4", "2"};

QString Felderrahmen(const QDialog& dialog, const char* name = "fraFelder") {
    return Finden<QGroupBox>(&dialog, QLatin1String(name))->title();
}

// The shipped settings file with lines put in by their number, the marker of the first section being line 0.
QByteArray IniMit(const Programm& programm, const QMap<int, QByteArray>& zeilen) {
    QList<QByteArray> alle = programm.ordner().lesen(ini).split('\n');
    for (auto it = zeilen.begin(); it != zeilen.end(); ++it) {
        alle[it.key()] = it.value() + '\r';
    }
    return alle.join('\n');
}

} // namespace

class IniVorgabenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFactoryValuesAreWrittenWithoutAQuestionAndLeaveTheValuesInForce();
    void theStandardValuesAreTakenOverAsTheyAre();
    void threeQuestionsInFiveAreasRescaleTheFields();
    void oneQuestionInSixAreasRescalesFieldsAndPoints();
    void fiveFieldsAtNineAndAtFifteenQuestionsAreTwo();
    void factoryValuesRescaledAtThirtyQuestionsStayAsTheyAre();
    void withoutATotalThereIsNothingToRescale();
    void zeroEmptiesTheFieldsOnOneTabAndTheStandardPointsOnTheOther();
    void zeroAnsweredAbbrechenChangesNothing();
    void savingWritesEightyEightLinesByteForByte();
    void whatWasSavedStaysOnTheDiskWhenTheDialogIsCancelled();
    void savingAnsweredAbbrechenWritesNothing();
    void aSaveAfterAFormWasLoadedCarriesTheFormsNumbers();
    void aSaveThatFailsIsReportedAndLeavesTheOldFile();
    void loadingShowsTheFile();
    void aFileWithColour0LoadsAs7();
    void loadingAnsweredAbbrechenChangesNothing();
    void loadingWithoutAFileSaysSoInTheStatusLine();
    void openingAgainShowsTheValuesOfTheSettings();
};

void IniVorgabenTest::theFactoryValuesAreWrittenWithoutAQuestionAndLeaveTheValuesInForce() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.PunkteV.fill(1);
    Spiel.FelderV.fill(1);
    Spiel.FelderVE = "1";
    Spiel.Punkte[Spezialart::Aktion] = 7;
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Druecke(dialog, "cmdAbsolut");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), werkPunkteText);
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelderV")), werkFelderText);
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlPunkte(0)")), QStringLiteral("7"));
        QCOMPARE(Spiel.PunkteV[Spezialart::Aktion], std::int16_t(1));
    });
    QCOMPARE(Spiel.Punkte[Spezialart::Aktion], std::int16_t(7));
    QCOMPARE(Spiel.PunkteV[Spezialart::Glueck], std::int16_t(10));
    QCOMPARE(Spiel.FelderVE.value_or(""), std::string("2"));
}

void IniVorgabenTest::theStandardValuesAreTakenOverAsTheyAre() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(2, 3, true, true);
    Spiel.FelderGesamt = 6;
    Spiel.PunkteV[Spezialart::Ereignis] = 13;
    Spiel.FelderV[Spezialart::Joker] = 5;
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 0);
        Druecke(dialog, "cmdStandard2");
        QCOMPARE(Felderrahmen(dialog), QStringLiteral(" Felder (bei 6 Fragen) "));
        Druecke(dialog, "cmdStandard");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkte")), QStringList({"5", "13", "10", "5", "0"}));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), QStringList({"2", "2", "2", "5", "2"}));
        QCOMPARE(Felderrahmen(dialog), QStringLiteral(" Felder (bei 30 Fragen) "));
    });
}

void IniVorgabenTest::threeQuestionsInFiveAreasRescaleTheFields() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(3, 5, true, true);
    Spiel.FelderGesamt = 15;
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Druecke(dialog, "cmdAbsolut");
        Register(dialog, 0);
        Druecke(dialog, "cmdStandard2");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), QStringList({"1", "1", "1", "2", "1"}));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkte")), werkPunkteText);
        QCOMPARE(Felderrahmen(dialog), QStringLiteral(" Felder (bei 15 Fragen) "));
        QCOMPARE(Felderrahmen(dialog, "fraFelderV"), QStringLiteral(" Felder (bei 30 Fragen) "));
    });
    QCOMPARE(Spiel.Felder[Spezialart::Joker], std::int16_t(2));
    QCOMPARE(Spiel.FelderV[Spezialart::Joker], std::int16_t(4));
}

void IniVorgabenTest::oneQuestionInSixAreasRescalesFieldsAndPoints() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(1, 6, true, true);
    Spiel.FelderGesamt = 6;
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 0);
        Druecke(dialog, "cmdStandard2");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), QStringList({"0", "0", "0", "1", "0"}));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkte")), QStringList({"3", "6", "6", "3", "0"}));
    });
}

void IniVorgabenTest::fiveFieldsAtNineAndAtFifteenQuestionsAreTwo() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.FelderV[Spezialart::Aktion] = 5;
    for (const int gesamt : {9, 15}) {
        Form(3, gesamt / 3, true, true);
        Spiel.FelderGesamt = static_cast<std::int16_t>(gesamt);
        MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
            Register(dialog, 0);
            Druecke(dialog, "cmdStandard2");
            QCOMPARE(Zahl(dialog, QStringLiteral("pnlFelder(0)")), QStringLiteral("2"));
        });
    }
}

void IniVorgabenTest::factoryValuesRescaledAtThirtyQuestionsStayAsTheyAre() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.FelderGesamt = 30;
    Spiel.Felder[Spezialart::Joker] = 0;
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Druecke(dialog, "cmdAbsolut");
        Register(dialog, 0);
        Druecke(dialog, "cmdStandard2");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), werkFelderText);
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkte")), werkPunkteText);
    });
}

void IniVorgabenTest::withoutATotalThereIsNothingToRescale() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.FelderGesamt = 0;
    Spiel.Felder[Spezialart::Joker] = 3;
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, 0);
        for (const auto& [gesamt, fragen] : {std::pair{0, 5}, std::pair{30, 0}}) {
            Spiel.FelderGesamt = static_cast<std::int16_t>(gesamt);
            Spiel.FragenProWissen = static_cast<std::int16_t>(fragen);
            dialoge.meldung(QStringLiteral("Wieviele Fragen gibt es pro Wissensgebiet ?\n"
                                           "Wieviele Fragefelder gibt es insgesamt ?"),
                            QStringLiteral("Das gebe ich schnell noch ein"));
            Druecke(dialog, "cmdStandard2");
        }
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFelder(3)")), QStringLiteral("3"));
        QCOMPARE(Felderrahmen(dialog), QStringLiteral(" Felder (bei 30 Fragen) "));
    });
}

void IniVorgabenTest::zeroEmptiesTheFieldsOnOneTabAndTheStandardPointsOnTheOther() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, 0);
        dialoge.frage(QStringLiteral("Spezialfelder auf 0 setzen"),
                      QStringLiteral("Ich setze die Anzahl aller Spezialfelder auf 0 !"), 1);
        Druecke(dialog, "cmdNull");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), QStringList({null, null, null, null, null}));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), werkPunkteText);
        Register(dialog, 3);
        dialoge.frage(QStringLiteral("Vorgaben auf 0 setzen"),
                      QStringLiteral("Ich setze alle Vorgaben der Punkte für die Spezialfelder auf 0 !"), 1);
        Druecke(dialog, "cmdNull");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), QStringList({null, null, null, null, null}));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkte")), werkPunkteText);
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelderV")), werkFelderText);
    });
}

void IniVorgabenTest::zeroAnsweredAbbrechenChangesNothing() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(QStringLiteral("Vorgaben auf 0 setzen"),
                      QStringLiteral("Ich setze alle Vorgaben der Punkte für die Spezialfelder auf 0 !"), 2);
        Druecke(dialog, "cmdNull");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), werkPunkteText);
    });
}

void IniVorgabenTest::savingWritesEightyEightLinesByteForByte() {
    Programm programm;
    programm.NeuesQuizformular();
    const QByteArray soll = IniMit(
        programm,
        {{2, "6"}, {8, "1"}, {26, "1.5"}, {29, "1"}, {33, "0"}, {40, "\"A5 quer\""}, {53, "\"A5 quer\""}});
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Drehe(dialog, QStringLiteral("spnPunkteV"), 0, true);
        Drehe(dialog, QStringLiteral("spnFelderV"), 1, false);
        Register(dialog, 1);
        DruckeWahl(dialog, QStringLiteral("optZwischen(2)"));
        DruckeWahl(dialog, QStringLiteral("chkJoker"));
        Register(dialog, 4);
        DruckeWahl(dialog, QStringLiteral("optDrucken(0)"));
        DruckeWahl(dialog, QStringLiteral("chkDatei"));
        Register(dialog, 3);
        dialoge.frage(speichernTitel, speichernFrage, 1);
        Druecke(dialog, "cmdIniSpeichern");
    });
    QCOMPARE(programm.ordner().lesen(ini).count("\r\n"), 88);
    QCOMPARE(programm.ordner().lesen(ini), soll);
}

void IniVorgabenTest::whatWasSavedStaysOnTheDiskWhenTheDialogIsCancelled() {
    Programm programm;
    programm.NeuesQuizformular();
    const QByteArray soll = IniMit(programm, {{18, "3"}});
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        for (int i = 0; i < 3; ++i) {
            Drehe(dialog, QStringLiteral("spnPunkteV"), 4, true);
        }
        dialoge.frage(speichernTitel, speichernFrage, 1);
        Druecke(dialog, "cmdIniSpeichern");
    });
    QCOMPARE(programm.ordner().lesen(ini), soll);
    QCOMPARE(Spiel.PunkteV[Spezialart::Risiko], std::int16_t(3));
}

void IniVorgabenTest::savingAnsweredAbbrechenWritesNothing() {
    Programm programm;
    programm.NeuesQuizformular();
    const QByteArray vorher = programm.ordner().lesen(ini);
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Drehe(dialog, QStringLiteral("spnPunkteV"), 4, true);
        dialoge.frage(speichernTitel, speichernFrage, 2);
        Druecke(dialog, "cmdIniSpeichern");
    });
    QCOMPARE(programm.ordner().lesen(ini), vorher);
    QCOMPARE(Spiel.PunkteV[Spezialart::Risiko], std::int16_t(0));
}

void IniVorgabenTest::aSaveAfterAFormWasLoadedCarriesTheFormsNumbers() {
    Programm programm;
    programm.NeuesQuizformular();
    const QByteArray soll = IniMit(programm, {{1, "17"}, {15, "1"}});
    Spiel.Punkte[Spezialart::Aktion] = 17; // as the form's file writes them
    Spiel.Felder[Spezialart::Joker] = 1;
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(speichernTitel, speichernFrage, 1);
        Druecke(dialog, "cmdIniSpeichern");
    });
    QCOMPARE(programm.ordner().lesen(ini), soll);
}

void IniVorgabenTest::aSaveThatFailsIsReportedAndLeavesTheOldFile() {
    Programm programm;
    programm.NeuesQuizformular();
    QTRY_VERIFY(QDir(programm.ordner().nativ(QStringLiteral("CONFIG"))).removeRecursively());
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(speichernTitel, speichernFrage, 1);
        dialoge.erwarte(
            {QStringLiteral("frmMeldung"),
             std::nullopt,
             std::nullopt,
             {QStringLiteral("cmdKenntnis")},
             [](QDialog& meldung) {
                 QVERIFY(Finden<QLabel>(&meldung, QStringLiteral("lblMeldung"))
                             ->text()
                             .startsWith(QStringLiteral("Feldkranz.INI konnte ich nicht schreiben !")));
             }});
        Druecke(dialog, "cmdIniSpeichern");
    });
    QVERIFY(!programm.ordner().vorhanden(ini));
}

void IniVorgabenTest::loadingShowsTheFile() {
    Programm programm;
    programm.NeuesQuizformular();
    programm.ordner().schreiben(ini, IniMit(programm, {{2, "9"},
                                                       {8, "1"},
                                                       {12, "3"},
                                                       {25, "0"},
                                                       {26, "2.5"},
                                                       {27, "4"},
                                                       {29, "1"},
                                                       {31, "0"},
                                                       {38, "0"},
                                                       {40, "\"A5 quer\""},
                                                       {53, "\"A5 quer\""}}));
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(ladenTitel, ladenFrage, 1);
        Druecke(dialog, "cmdIniLaden");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), QStringList({"9", "10", "10", "5", "0"}));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelderV")), QStringList({"2", "1", "3", "4", "2"}));
        const auto an = [&dialog](const char* name) {
            return Finden<QAbstractButton>(&dialog, QLatin1String(name))->isChecked();
        };
        QVERIFY(an("optZwischen(4)"));
        QVERIFY(!an("optZwischen(0)"));
        QVERIFY(an("optFarbe(4)"));
        QVERIFY(an("chkDatei"));
        QVERIFY(!an("chkTitel"));
        QVERIFY(an("chkWissen"));
        QVERIFY(!an("chkRahmen"));
        QVERIFY(!an("chkMaxWissen"));
        QVERIFY(an("chkMaxFelder"));
        QVERIFY(an("optDrucken(0)"));
    });
    QCOMPARE(Spiel.PunkteV[Spezialart::Aktion], std::int16_t(9));
    QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(4));
    QCOMPARE(FKFragenOffen()->palette().color(QPalette::Window), QColor(128, 0, 0));
}

void IniVorgabenTest::aFileWithColour0LoadsAs7() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.FarbeHintergrund = 1;
    FKFragenOffen()->HintergrundMalen(1);
    programm.ordner().schreiben(ini, IniMit(programm, {{27, "0"}}));
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        QVERIFY(Finden<QAbstractButton>(&dialog, QStringLiteral("optFarbe(1)"))->isChecked());
        dialoge.frage(ladenTitel, ladenFrage, 1);
        Druecke(dialog, "cmdIniLaden");
        QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(7));
        QVERIFY(Finden<QAbstractButton>(&dialog, QStringLiteral("optFarbe(7)"))->isChecked());
    });
    QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(7));
    QCOMPARE(FKFragenOffen()->palette().color(QPalette::Window), QColor(188, 184, 176));
}

void IniVorgabenTest::loadingAnsweredAbbrechenChangesNothing() {
    Programm programm;
    programm.NeuesQuizformular();
    programm.ordner().schreiben(ini, IniMit(programm, {{2, "9"}}));
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(ladenTitel, ladenFrage, 2);
        Druecke(dialog, "cmdIniLaden");
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), werkPunkteText);
    });
}

void IniVorgabenTest::loadingWithoutAFileSaysSoInTheStatusLine() {
    Programm programm;
    programm.NeuesQuizformular();
    QVERIFY(QFile::remove(programm.ordner().nativ(ini)));
    MitAbbrechen(programm, [&programm](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(ladenTitel, ladenFrage, 1);
        Druecke(dialog, "cmdIniLaden");
        QVERIFY(Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))
                    ->caption()
                    .startsWith(QStringLiteral(" Feldkranz.INI konnte ich nicht lesen : ")));
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlPunkteV")), werkPunkteText);
    });
}

void IniVorgabenTest::openingAgainShowsTheValuesOfTheSettings() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(2, 6, true, true);
    Spiel.FelderGesamt = 12;
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 0);
        Druecke(dialog, "cmdStandard2");
        QCOMPARE(Felderrahmen(dialog), QStringLiteral(" Felder (bei 12 Fragen) "));
    });
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), werkFelderText);
        QCOMPARE(Felderrahmen(dialog), QStringLiteral(" Felder (bei 30 Fragen) "));
    });
}

QTEST_MAIN(IniVorgabenTest)
#include "inivorgaben_test.moc"
