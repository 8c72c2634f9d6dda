// The tabs of the settings dialog with their visibility, tips and status lines, and the options for look,
// print and file.
#include "settings/blattskizze.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/maus.h"
#include "tests/settings/inihilfe.h"

#include <QAction>
#include <QLabel>
#include <QScreen>

namespace {

QString Status(const Programm& programm) {
    return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption();
}

bool Gewaehlt(const QDialog& dialog, const char* name) {
    return Finden<QAbstractButton>(&dialog, QLatin1String(name))->isChecked();
}

QColor Formfarbe() {
    return FKFragenOffen()->palette().color(QPalette::Window);
}

} // namespace

class IniDarstellungTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSixTabsStandInTheirOrderAndTheFourthIsInFront();
    void eachTabBringsItsButtonsAndCounters();
    void everyControlHasItsCaption();
    void everyControlHasItsTipAndStatusLine();
    void theTipsOfTheKindsNameTheOtherTab();
    void loadingTheDialogIsToldInTheStatusLine();
    void theHelpButtonOnlyHasItsStatusLine();
    void theGapStaysInForceWhenTheDialogIsCancelled();
    void everyGapIsSetByItsOption();
    void aGapOfSevenTenthsChoosesNoneAndStaysUntilAClick();
    void thePaperFollowsItsOptionAndShowsItsSheetAlone();
    void withoutAPaperFormatNeitherIsChosenAndPrintingReportsIt();
    void theShadingActsAtOnceAndTheBoxOfTheEventsChangesNothing();
    void theBackupBoxTakesTheMenuEntryIntoUse();
    void eachColourPaintsTheFormAtOnce();
    void indexSevenPaintsItsOwnGrey();
    void aCancelledColourStaysOnTheScreenOnly();
    void withoutAChoiceApplyingKeepsTheColour();
    void nothingIsCutOffAndTheTabOrderFollowsTheEye();
    void picturesOfAllTabs();
};

void IniDarstellungTest::theSixTabsStandInTheirOrderAndTheFourthIsInFront() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        auto* tabs = Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"));
        const QStringList texte{" Spezialfelder",    " Formular  ",    " Farben ",
                                " Standardvorgaben", " Datei/Drucken", " Spielregeln"};
        QCOMPARE(tabs->count(), 6);
        QCOMPARE(tabs->currentIndex(), 3);
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(tabs->tabText(i), texte.at(i));
        }
        for (int vorn = 0; vorn < 6; ++vorn) {
            Register(dialog, vorn);
            for (int i = 0; i < 6; ++i) {
                QCOMPARE(Finden<Panel>(&dialog, QStringLiteral("pnlIni"), i)->isVisible(), i == vorn);
            }
        }
    });
}

void IniDarstellungTest::eachTabBringsItsButtonsAndCounters() {
    Programm programm;
    programm.NeuesQuizformular();
    const QStringList immer{"cmdEinOK", "cmdAbbrechen", "cmdHilfe"};
    const QStringList zaehler{"pnlFragenFK", "pnlFragenFKF", "pnlFragenFKW",
                              "lblFragenFK", "lblFragenFKF", "lblFragenFKW"};
    const QStringList spezial = QStringList{"cmdStandard", "cmdStandard2", "cmdNull"} + zaehler;
    const QStringList standard =
        QStringList{"cmdIniSpeichern", "cmdIniLaden",   "cmdAbsolut",     "cmdNull",
                    "cmdFragenMinus",  "cmdFragenPlus", "cmdWissenMinus", "cmdWissenPlus"} +
        zaehler;
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        for (int vorn = 0; vorn < 6; ++vorn) {
            Register(dialog, vorn);
            const QStringList soll = vorn == 0 ? spezial : vorn == 3 ? standard : QStringList();
            for (const QString& name : spezial + standard) {
                QVERIFY2(Finden(&dialog, name)->isVisible() == soll.contains(name),
                         qPrintable(QStringLiteral("%1 on tab %2").arg(name).arg(vorn)));
            }
            for (const QString& name : immer) {
                QVERIFY(Finden(&dialog, name)->isVisible());
            }
        }
    });
}

void IniDarstellungTest::everyControlHasItsCaption() {
    Programm programm;
    programm.NeuesQuizformular();
    const QMap<QString, QString> rahmen{{"fraPunkte", " Punkte "},
                                        {"fraFelder", " Felder (bei 30 Fragen) "},
                                        {"fraPunkteV", " Punkte "},
                                        {"fraFelderV", " Felder (bei 30 Fragen) "},
                                        {"fraZwischen", "Abstand Fragefelder auf dem Ausdruck"},
                                        {"fraSchraffur", "Schattierung auf dem Ausdruck"},
                                        {"fraRahmen", "Rahmenfarbe auf dem Ausdruck"},
                                        {"fraFarbe", "Formularhintergrund am Bildschirm"},
                                        {"fraDatei", " Datei "},
                                        {"fraDrucken", "Drucken"},
                                        {"fraSpielregeln", " Spielregeln beachten "},
                                        {"fraSpielregel", "Spielregel zeigen"}};
    const QMap<QString, QString> knoepfe{
        {"optZwischen(0)", " ohne"},
        {"optZwischen(1)", " 1 mm"},
        {"optZwischen(2)", " 1.5 mm"},
        {"optZwischen(3)", " 2 mm"},
        {"optZwischen(4)", " 2.5 mm"},
        {"optDrucken(0)", "auf DIN A5 quer (A4 hoch)"},
        {"optDrucken(1)", "auf DIN A4 quer"},
        {"chkDatei", " Backup anlegen"},
        {"chkMaxFelder", "Höchstzahl der Fragen nicht überschreiten"},
        {"chkMaxSpezial", "Höchstzahl der Spezialfelder nicht überschreiten"},
        {"chkMaxWissen", "Höchstzahl der Wissensgebiete nicht überschreiten"}};
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        for (auto it = rahmen.begin(); it != rahmen.end(); ++it) {
            QCOMPARE(Finden<QGroupBox>(&dialog, it.key())->title(), it.value());
        }
        for (auto it = knoepfe.begin(); it != knoepfe.end(); ++it) {
            QCOMPARE(Finden<QAbstractButton>(&dialog, it.key())->text(), it.value());
        }
        QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblArten(0)"))->text(),
                 QStringLiteral(
                     "Aktion            Ereignis          Glück              Joker              Risiko"));
        QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblFragenFK"))->text(), QStringLiteral("Gesamt"));
        QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblFragenFKF"))->text(), QStringLiteral("Fragen"));
        QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblFragenFKW"))->text(), QStringLiteral("Wissen"));
    });
}

void IniDarstellungTest::everyControlHasItsTipAndStatusLine() {
    Programm programm;
    programm.NeuesQuizformular();
    const QMap<QString, QString> tipps{
        {"cmdStandard", "Anzahl der Spezialfelder und Punkte nach Vorgabe für 30 Felder."},
        {"cmdStandard2",
         "Anzahl der Spezialfelder und Punkte nach Vorgabe für die aktuelle Anzahl der Felder."},
        {"cmdAbsolut", "Anzahl der Spezialfelder und Punkte nach Vorgabe für 30 Felder."},
        {"pnlFragenFKW", "Anzahl der Wissensgebiete."},
        {"cmdWissenPlus", "Anzahl der Wissensgebiete erhöhen."},
        {"cmdWissenMinus", "Anzahl der Wissensgebiete zurücksetzen."},
        {"pnlFragenFKF", "Anzahl der Fragen pro Wissensgebiet."},
        {"cmdFragenPlus", "Anzahl der Fragen pro Wissensgebiet erhöhen."},
        {"cmdFragenMinus", "Anzahl der Fragen pro Wissensgebiet zurücksetzen."},
        {"pnlFragenFK", "Anzahl der Fragen insgesamt."},
        {"cmdIniSpeichern", "Voreinstellungen in Ini-Datei [FELDKRANZ.INI] speichern."},
        {"cmdIniLaden", "Voreinstellungen aus Ini-Datei [FELDKRANZ.INI] laden."},
        {"cmdNull", "Anzahl der Spezialfelder auf 0 zurücksetzen."},
        {"cmdAbbrechen", "Dialogbox verlassen.\n(Geänderte Einstellungen werden wieder verworfen.)"},
        {"cmdEinOK", "Einstellungen übernehmen und Dialogbox verlassen."},
        {"cmdHilfe", "Wenn erforderlich, wird hier ein Hilfesystem implementiert."},
        {"cmdSpielregel", "Spielregel für Feldkranz! aufrufen."},
        {"fraZwischen", "Abstand der Frage- und Antwortfelder auf dem Ausdruck.\n"
                        "(Standardwert = 0 mm, also kein Abstand.)"},
        {"optZwischen(0)", "Kein Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck."},
        {"optZwischen(1)", "1 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck."},
        {"optZwischen(2)", "1,5 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck."},
        {"optZwischen(3)", "2 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck."},
        {"optZwischen(4)", "2,5 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck."},
        {"fraSchraffur", "Schattierung (farbig) der verschiedenen Feldtypen."},
        {"chkTitel", "Titelzeile farbig/grau unterlegt."},
        {"chkWissen", "Titel der Wissensgebiete farbig/grau unterlegt."},
        {"chkJoker", "Joker-Felder farbig/grau unterlegt."},
        {"chkEreignis", "Ereignis-Felder farbig/grau unterlegt."},
        {"fraRahmen", "Rahmen der Spezialfelder in verschiedenen Farben drucken."},
        {"chkRahmen", "Rahmen der Spezialfelder in verschiedenen Farben drucken."},
        {"fraFarbe", "Formularhintergrund auf dem Bildschirm."},
        {"fraDatei", "Einstellung von Dateioptionen."},
        {"fraDrucken", "Voreinstellung der Formulargröße für den Ausdruck."},
        {"fraSpielregeln", "Hier wird die Einhaltung der Spielregel geregelt."}};
    const QMap<QString, QString> status{
        {"cmdAbsolut", " Punktvorgaben nach Spielregel eintragen "},
        {"cmdStandard", " Standwerte übernehmen "},
        {"cmdStandard2", " Standardwerte abhängig von der Fragenanzahl umrechnen und übernehmen "},
        {"cmdNull", " Einstellungen auf 0 setzen "},
        {"cmdIniLaden", " Standardpunkte laden "},
        {"cmdIniSpeichern", " als Standardpunkte speichern "}};
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        for (auto it = tipps.begin(); it != tipps.end(); ++it) {
            QCOMPARE(Finden(&dialog, it.key())->toolTip(), it.value());
            QVERIFY(!Finden(&dialog, it.key())->property("tipptitel").toString().isEmpty());
            QVERIFY2(!Finden(&dialog, it.key())->property("tippstatus").toString().isEmpty(),
                     qPrintable(it.key()));
        }
        for (auto it = status.begin(); it != status.end(); ++it) {
            Register(dialog, it.key().startsWith(QStringLiteral("cmdStandard")) ? 0 : 3);
            maus::Bewegen(Finden(&dialog, it.key()));
            QTRY_COMPARE(Status(programm), it.value());
        }
    });
}

void IniDarstellungTest::theTipsOfTheKindsNameTheOtherTab() {
    Programm programm;
    programm.NeuesQuizformular();
    const QStringList punkte{"Punkte für Aktion", "Punkte für Ereignis",
                             "Punkte für richtige Beantwortung einer Glücksfrage", "Punkte für Joker",
                             "Punkte für richtige Beantwortung einer Risiko-Frage"};
    const QStringList felder{"Anzahl der zulässigen Aktions-, bzw. Aufgabenfelder.",
                             "Anzahl der zulässigen Ereignisfelder.", "Anzahl der zulässigen Glücksfelder.",
                             "Anzahl der zulässigen Joker.", "Anzahl der zulässigen Risikofelder."};
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        for (int art = 0; art < 5; ++art) {
            const QString standard =
                art == 0 ? QStringLiteral("Punkte für Aktion bzw. Aufgabe") : punkte.at(art);
            for (const char* feld : {"pnlPunkte", "spnPunkte"}) {
                QCOMPARE(Finden(&dialog, QLatin1String(feld), art)->toolTip(),
                         punkte.at(art) +
                             QStringLiteral("\n(Werden im Tab [Standardvorgaben] eingestellt.)"));
            }
            for (const char* feld : {"pnlPunkteV", "spnPunkteV"}) {
                QCOMPARE(Finden(&dialog, QLatin1String(feld), art)->toolTip(),
                         standard + QStringLiteral("\n(Werden im Tab [Spezialfelder] eingestellt.)"));
            }
            for (const char* feld : {"pnlFelder", "spnFelder", "pnlFelderV", "spnFelderV"}) {
                QCOMPARE(Finden(&dialog, QLatin1String(feld), art)->toolTip(), felder.at(art));
            }
        }
    });
}

void IniDarstellungTest::loadingTheDialogIsToldInTheStatusLine() {
    Programm programm;
    programm.NeuesQuizformular();
    const frmIni dialog;
    QCOMPARE(Status(programm), QStringLiteral(" Ich lade das Register für die Voreinstellungen ... "));
}

void IniDarstellungTest::theHelpButtonOnlyHasItsStatusLine() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        maus::Bewegen(Finden(&dialog, QStringLiteral("cmdHilfe")));
        QTRY_COMPARE(Status(programm), QStringLiteral(" Hilfe für Feldkranz aufrufen "));
        Druecke(dialog, "cmdHilfe"); // a message would fail the test
        QVERIFY(dialog.isVisible());
    });
}

void IniDarstellungTest::theGapStaysInForceWhenTheDialogIsCancelled() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        QVERIFY(Gewaehlt(dialog, "optZwischen(0)"));
        Register(dialog, 1);
        DruckeWahl(dialog, QStringLiteral("optZwischen(2)"));
    });
    QCOMPARE(Spiel.Zwischenabstand, 1.5F);
}

void IniDarstellungTest::everyGapIsSetByItsOption() {
    Programm programm;
    programm.NeuesQuizformular();
    const std::array<float, 5> soll{0.0F, 1.0F, 1.5F, 2.0F, 2.5F};
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 1);
        for (const int i : {4, 3, 2, 1, 0}) {
            DruckeWahl(dialog, QStringLiteral("optZwischen(%1)").arg(i));
            QCOMPARE(Spiel.Zwischenabstand, soll.at(Nr(i)));
        }
    });
    for (int i = 0; i < 5; ++i) {
        Spiel.Zwischenabstand = soll.at(Nr(i));
        MitAbbrechen(programm, [i](QDialog& dialog, Dialogfolge&) {
            for (int j = 0; j < 5; ++j) {
                QCOMPARE(Finden<QRadioButton>(&dialog, QStringLiteral("optZwischen"), j)->isChecked(),
                         i == j);
            }
        });
    }
}

void IniDarstellungTest::aGapOfSevenTenthsChoosesNoneAndStaysUntilAClick() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Zwischenabstand = 0.7F;
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        for (int i = 0; i < 5; ++i) {
            QVERIFY(!Finden<QRadioButton>(&dialog, QStringLiteral("optZwischen"), i)->isChecked());
        }
    });
    QCOMPARE(Spiel.Zwischenabstand, 0.7F);
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 1);
        DruckeWahl(dialog, QStringLiteral("optZwischen(1)"));
    });
    QCOMPARE(Spiel.Zwischenabstand, 1.0F);
}

void IniDarstellungTest::thePaperFollowsItsOptionAndShowsItsSheetAlone() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 4);
        const auto blatt = [&dialog](int i) {
            return Finden<Blattskizze>(&dialog, QStringLiteral("imgPapier"), i)->isVisible();
        };
        QVERIFY(Gewaehlt(dialog, "optDrucken(1)"));
        QVERIFY(blatt(1) && !blatt(0));
        DruckeWahl(dialog, QStringLiteral("optDrucken(0)"));
        QCOMPARE(Spiel.Papierformat, std::string("A5 quer"));
        QVERIFY(blatt(0) && !blatt(1));
        DruckeWahl(dialog, QStringLiteral("optDrucken(1)"));
        QCOMPARE(Spiel.Papierformat, std::string("A4 quer"));
        DruckeWahl(dialog, QStringLiteral("optDrucken(0)"));
    });
    QCOMPARE(Spiel.Papierformat, std::string("A5 quer")); // not undone
}

void IniDarstellungTest::withoutAPaperFormatNeitherIsChosenAndPrintingReportsIt() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Papierformat.clear();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 4);
        for (const int i : {0, 1}) {
            QVERIFY(!Finden<QRadioButton>(&dialog, QStringLiteral("optDrucken"), i)->isChecked());
            QVERIFY(!Finden<Blattskizze>(&dialog, QStringLiteral("imgPapier"), i)->isVisible());
        }
    });
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmMeldung"),
                     std::nullopt,
                     QStringLiteral("Mir fehlt die Angabe der Papiergröße."),
                     {QStringLiteral("cmdKenntnis")}});
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDruckenFK"), 2), Qt::LeftButton);
    QVERIFY(dialoge.fertig());
}

void IniDarstellungTest::theShadingActsAtOnceAndTheBoxOfTheEventsChangesNothing() {
    Programm programm;
    programm.NeuesQuizformular();
    const std::array<std::pair<const char*, bool*>, 4> kaesten{{{"chkTitel", &Spiel.OptionTitel},
                                                                {"chkWissen", &Spiel.OptionWissen},
                                                                {"chkJoker", &Spiel.OptionJoker},
                                                                {"chkRahmen", &Spiel.OptionRahmen}}};
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 1);
        for (const auto& [name, option] : kaesten) {
            QVERIFY(Gewaehlt(dialog, name));
            DruckeWahl(dialog, QLatin1String(name));
            QVERIFY(!*option);
        }
        QVERIFY(!Gewaehlt(dialog, "chkEreignis"));
        DruckeWahl(dialog, QStringLiteral("chkEreignis"));
        QVERIFY(Gewaehlt(dialog, "chkEreignis"));
        QVERIFY(!Spiel.OptionEreignis.has_value());
        QVERIFY(!Spiel.OptionJoker);
    });
    QVERIFY(!Spiel.OptionTitel); // not undone
}

void IniDarstellungTest::theBackupBoxTakesTheMenuEntryIntoUse() {
    Programm programm;
    programm.NeuesQuizformular();
    const auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mBackUp"));
    const bool haken = eintrag->isChecked();
    MitAbbrechen(programm, [eintrag](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 4);
        DruckeWahl(dialog, QStringLiteral("chkDatei"));
        QVERIFY(Spiel.OptionDatei);
        QVERIFY(eintrag->isEnabled());
        DruckeWahl(dialog, QStringLiteral("chkDatei"));
        QVERIFY(!Spiel.OptionDatei);
        QVERIFY(!eintrag->isEnabled());
    });
    QVERIFY(!eintrag->isEnabled());
    QCOMPARE(eintrag->isChecked(), haken);
}

void IniDarstellungTest::eachColourPaintsTheFormAtOnce() {
    Programm programm;
    programm.NeuesQuizformular();
    const QList<std::pair<int, QColor>> farben{{2, {0, 128, 0}},     {4, {128, 0, 0}},
                                               {1, {0, 0, 128}},     {3, {0, 128, 128}},
                                               {8, {128, 128, 128}}, {7, {188, 184, 176}}};
    MitOK(programm, [&](QDialog& dialog, Dialogfolge&) {
        QVERIFY(Gewaehlt(dialog, "optFarbe(7)"));
        Register(dialog, 2);
        int oben = -1;
        for (const auto& [nummer, farbe] : farben) {
            const QString name = QStringLiteral("optFarbe(%1)").arg(nummer);
            QVERIFY(Finden(&dialog, name)->y() > oben); // in this order from the top
            oben = Finden(&dialog, name)->y();
            QCOMPARE(Finden<Panel>(&dialog, QStringLiteral("pnlFarbe"), nummer)->grund(), farbe);
            DruckeWahl(dialog, name);
            QCOMPARE(Formfarbe(), farbe);
            QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(7));
        }
        DruckeWahl(dialog, QStringLiteral("optFarbe(3)"));
    });
    QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(3));
    QCOMPARE(Formfarbe(), QColor(0, 128, 128));
}

void IniDarstellungTest::indexSevenPaintsItsOwnGrey() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.FarbeHintergrund = 1;
    FKFragenOffen()->HintergrundMalen(1);
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 2);
        DruckeWahl(dialog, QStringLiteral("optFarbe(7)"));
        QCOMPARE(Formfarbe(), QColor(188, 184, 176));
    });
    QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(7));
}

void IniDarstellungTest::aCancelledColourStaysOnTheScreenOnly() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 2);
        DruckeWahl(dialog, QStringLiteral("optFarbe(4)"));
    });
    QCOMPARE(Formfarbe(), QColor(128, 0, 0));
    QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(7));
}

void IniDarstellungTest::withoutAChoiceApplyingKeepsTheColour() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.FarbeHintergrund = 12; // none of the six
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        for (const int nummer : {1, 2, 3, 4, 7, 8}) {
            QVERIFY(!Finden<QRadioButton>(&dialog, QStringLiteral("optFarbe"), nummer)->isChecked());
        }
    });
    QCOMPARE(Spiel.FarbeHintergrund, std::int16_t(12));
}

void IniDarstellungTest::nothingIsCutOffAndTheTabOrderFollowsTheEye() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        QVERIFY(dialog.frameGeometry().width() <= 800); // the narrowest screen that the forms know
        for (int vorn = 0; vorn < 6; ++vorn) {
            Register(dialog, vorn);
            for (const auto* taste : dialog.findChildren<QAbstractButton*>()) {
                if (!taste->isVisible()) {
                    continue;
                }
                const QRect flaeche(taste->mapTo(&dialog, QPoint(0, 0)), taste->size());
                QVERIFY2(dialog.rect().contains(flaeche), qPrintable(taste->objectName()));
                QVERIFY2(taste->fontMetrics().horizontalAdvance(taste->text()) < taste->width(),
                         qPrintable(taste->objectName()));
            }
        }
        // From the tabs over the spins, left to right, to the toolbar.
        Register(dialog, 3);
        Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"))->tabBar()->setFocus();
        QStringList folge;
        for (int i = 0; i < 22; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            folge << QApplication::focusWidget()->objectName();
        }
        QStringList soll;
        for (const QString& feld : {QStringLiteral("spnPunkteV"), QStringLiteral("spnFelderV")}) {
            for (int art = 0; art < 5; ++art) {
                soll << QStringLiteral("%1(%2)").arg(feld).arg(art);
            }
        }
        soll << QStringList{"cmdFragenMinus", "cmdFragenPlus", "cmdWissenMinus", "cmdWissenPlus",
                            "cmdAbsolut",     "cmdNull",       "cmdIniLaden",    "cmdIniSpeichern",
                            "cmdEinOK",       "cmdAbbrechen",  "cmdHilfe"};
        QCOMPARE(folge.mid(0, soll.size()), soll);
    });
}

// For people to look at.
void IniDarstellungTest::picturesOfAllTabs() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        for (int vorn = 0; vorn < 6; ++vorn) {
            Register(dialog, vorn);
            const QString name =
                QStringLiteral("vorgaben-%1-%2").arg(vorn).arg(qRound(dialog.devicePixelRatioF()));
            QVERIFY(QFile::exists(BildVon(&dialog, name)));
        }
    });
}

QTEST_MAIN(IniDarstellungTest)
#include "inidarstellung_test.moc"
