// The main window: modes, closing, counts, progress bar, the end of the program, layout at both widths.
#include "core/fortschritt.h"
#include "core/hauptfenster.h"
#include "core/laufzeitfehler.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/programmende.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QToolButton>

namespace {

const QString iniTitel = QStringLiteral("Feldkranz! beenden - Ini-Datei speichern !");
const QString iniFrage = QStringLiteral("Sollen die aktuellen Einstellungen\ngespeichert werden ?");
const QString endeTitel = QStringLiteral("ENDE");
const QString endeFrage = QStringLiteral("FELDKRANZ! beendet hiermit seine\nTätigkeit !  -  OK ?");
const QString schliessen = QStringLiteral("Formular schließen");
const QString schliessenFK = QStringLiteral("Ich schließe das Feldkranz-Formular !");
const QString veraendert = QStringLiteral("Das Formular wurde möglicherweise verändert\n"
                                          "Soll ich das Formular vorher speichern ?");

void Klick(const Programm& programm, const char* name) {
    QTest::mouseClick(Finden(programm.haupt(), QLatin1String(name)), Qt::LeftButton);
}

bool Sichtbar(const Programm& programm, const char* name) {
    return Finden(programm.haupt(), QLatin1String(name))->isVisible();
}

} // namespace

class FrmMDITest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMainWindowStartsWithTheMainToolbar();
    void everyMenuEntryOfTheMainWindowIsThere();
    void commandsOfTheOtherFormAreOutOfUseNotMissing();
    void aQuizFormSwapsTheToolbarAndEnablesItsCommands();
    void countsReadAsOneSentence();
    void anOverflowOfTheCountsIsRunTimeErrorSix();
    void theMiniatureHasThirtyCellsInSixColumns();
    void closingAnUnchangedFormAnsweredAbbrechenKeepsIt();
    void closingAnUnchangedFormTakesItAway();
    void closingAChangedFormAnsweredNeinClosesWithoutSaving();
    void closingAChangedFormAnsweredJaSavesAndLeavesItOpen();
    void goingBackClosesAndReturnsToTheMainToolbar();
    void goingBackWithNoFormInFrontOnlySwapsTheToolbars();
    void theHelpMessageIsTheFeature();
    void theNoticesOnTheMakersHaveTheirHeadings();
    void theBackupEntryTurnsItsCheckMarkOverAndNothingElse();
    void theProgressBarRunsFromRedToGreen();
    void theClipboardPanelsStandWhereTheyBelong();
    void everythingOnTheToolbarsFitsAtBothWidths_data();
    void everythingOnTheToolbarsFitsAtBothWidths();
    void endingAnUnchangedProgramAsksOnlyAboutSettingsAndTheEnd();
    void abbrechenAtTheSettingsQuestionKeepsTheProgramAndTheSavedForm();
    void settingsStayWrittenWhenTheEndIsRefused();
    void helpInAQuestionLeavesItOpen();
    void closingTheEndQuestionByItsFrameAsksAgain();
    void closingTheMainWindowByItsFrameAsksNeitherQuestion();
    void closingTheMainWindowOverAChangedFormAsksTheForm();
};

void FrmMDITest::theMainWindowStartsWithTheMainToolbar() {
    Programm programm;
    QCOMPARE(programm.haupt()->windowTitle(), QStringLiteral(" Feldkranz! 2008"));
    QVERIFY(programm.haupt()->isMaximized());
    QVERIFY(Sichtbar(programm, "picKranz"));
    QVERIFY(!Sichtbar(programm, "picFK"));
    QVERIFY(!Sichtbar(programm, "picHB"));
    QVERIFY(Sichtbar(programm, "cmdEnde"));
    QVERIFY(!Sichtbar(programm, "pnlFKFelder"));
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("pnlKranz"))->height(), 33);
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("pnlHilfe"))->height(), 25);
}

void FrmMDITest::everyMenuEntryOfTheMainWindowIsThere() {
    Programm programm;
    const QList<std::pair<QString, QString>> menues{
        {QStringLiteral("mDateien"), QStringLiteral("&Datei")},
        {QStringLiteral("mFragen"), QStringLiteral("&Ansicht")},
        {QStringLiteral("mOptionen"), QStringLiteral("&Optionen")},
        {QStringLiteral("mInfo"), QStringLiteral("&Info")},
        {QStringLiteral("mEditor"), QStringLiteral("&Editor")},
        {QStringLiteral("mHilfe"), QStringLiteral("&Hilfe")}};
    for (const auto& [name, text] : menues) {
        QCOMPARE(Finden<QMenu>(programm.haupt(), name)->title(), text);
    }
    const QList<std::pair<QString, QString>> eintraege{
        {QStringLiteral("mDatei(1)"), QStringLiteral("Feld&kranz-Formular neu")},
        {QStringLiteral("mDatei(2)"), QStringLiteral("&Test-Formular neu")},
        {QStringLiteral("mDatei(4)"), QStringLiteral("Ö&ffnen")},
        {QStringLiteral("mDatei(6)"), QStringLiteral("&Ende")},
        {QStringLiteral("mAuswahl(1)"), QStringLiteral("Fragen&auswahl")},
        {QStringLiteral("mAuswahl(2)"), QStringLiteral("&Dateiliste")},
        {QStringLiteral("mBackUp"), QStringLiteral("Speichern mit &BackUp")},
        {QStringLiteral("mInfos(1)"), QStringLiteral("&Tarvo")},
        {QStringLiteral("mInfos(2)"), QStringLiteral("&Brennek")},
        {QStringLiteral("mEditorKranz"), QStringLiteral("&Editor aufrufen")},
        {QStringLiteral("mHilfen(1)"), QStringLiteral("&Hilfe")}};
    for (const auto& [name, text] : eintraege) {
        QCOMPARE(Finden<QAction>(programm.haupt(), name)->text(), text);
    }
    for (const char* trenner : {"mDatei(3)", "mDatei(5)"}) {
        QVERIFY(Finden<QAction>(programm.haupt(), QLatin1String(trenner))->isSeparator());
    }
    QCOMPARE(Finden<QMenu>(programm.haupt(), QStringLiteral("mDateien"))->actions().size(), 6);
}

void FrmMDITest::commandsOfTheOtherFormAreOutOfUseNotMissing() {
    Programm programm;
    programm.NeuesQuizformular();
    for (const char* name : {"cmdHBFLaden", "cmdHBALoeschen", "cmdHBSchliessen"}) {
        QVERIFY2(!Finden(programm.haupt(), QLatin1String(name))->isEnabled(), name);
    }
}

void FrmMDITest::aQuizFormSwapsTheToolbarAndEnablesItsCommands() {
    Programm programm;
    const QList<const char*> befehle{"cmdFKFLaden",    "cmdFKFLoeschen",  "cmdFKSLaden",
                                     "cmdFKSLoeschen", "cmdFKSchliessen", "cmdIni"};
    for (const char* name : befehle) {
        QVERIFY2(!Finden(programm.haupt(), QLatin1String(name))->isEnabled(), name);
    }
    programm.NeuesQuizformular();
    QVERIFY(Sichtbar(programm, "picFK"));
    QVERIFY(!Sichtbar(programm, "picKranz"));
    QVERIFY(!Sichtbar(programm, "cmdEnde"));
    for (const char* name : befehle) {
        QVERIFY2(Finden(programm.haupt(), QLatin1String(name))->isEnabled(), name);
    }
}

void FrmMDITest::countsReadAsOneSentence() {
    Programm programm;
    Spiel.FragenProWissen = 5;
    Spiel.AnzahlWissen = 6;
    FelderAnzeigen();
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlFKFelder"))->caption(),
             QStringLiteral(" 30 Fragen : je 5 Fragen aus 6 Wissensgebieten"));
    Spiel.FragenProWissen = Spiel.AnzahlWissen = 0;
    ModusFK(); // a board without a shape gets the full one
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
    QCOMPARE(Spiel.AnzahlWissen, std::int16_t(6));
}

void FrmMDITest::anOverflowOfTheCountsIsRunTimeErrorSix() {
    Spiel.FragenProWissen = 200;
    Spiel.AnzahlWissen = 200;
    try {
        FelderAnzeigen();
        QFAIL("no error");
    } catch (const Laufzeitfehler& fehler) {
        QCOMPARE(fehler.nummer(), 6);
    }
}

void FrmMDITest::theMiniatureHasThirtyCellsInSixColumns() {
    Programm programm;
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("picJoker"), 1)->geometry(), QRect(3, 3, 4, 3));
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("picJoker"), 5)->geometry(), QRect(3, 19, 4, 3));
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("picJoker"), 30)->geometry(), QRect(28, 19, 4, 3));
    const QWidget* grid = Finden(programm.haupt(), QStringLiteral("picSpezial"));
    QCOMPARE(grid->x(), Finden(programm.haupt(), QStringLiteral("picFK"))->width() - 35);
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("picJoker"), 9)->palette().color(QPalette::Window),
             Systemflaeche());
}

void FrmMDITest::closingAnUnchangedFormAnsweredAbbrechenKeepsIt() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.frage(schliessen, schliessenFK, 2);
    Klick(programm, "cmdFKSchliessen");
    QCOMPARE(FKFragenOffen(), form);
    QVERIFY(form->isVisible());
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
}

void FrmMDITest::closingAnUnchangedFormTakesItAway() {
    Programm programm;
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.frage(schliessen, schliessenFK, 1);
    Klick(programm, "cmdFKSchliessen");
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    QVERIFY(Sichtbar(programm, "picFK")); // the toolbar stays
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdFKFLaden"))->isEnabled());
    QTRY_VERIFY(programm.haupt()->Kindflaeche()->subWindowList().isEmpty());
}

void FrmMDITest::closingAChangedFormAnsweredNeinClosesWithoutSaving() {
    Programm programm;
    programm.NeuesQuizformular()->txtFrage.at(1)->setText("ungespeichert");
    Dialogfolge dialoge;
    dialoge.frage(schliessen, veraendert, 7);
    Klick(programm, "cmdFKSchliessen");
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
    QVERIFY(!Stand.FormGeaendert);
}

void FrmMDITest::closingAChangedFormAnsweredJaSavesAndLeavesItOpen() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\ZU.FKR";
    form->txtFrage.at(1)->setText("gesichert");
    Dialogfolge dialoge;
    dialoge.frage(schliessen, veraendert, 6);
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ ZU.FKR ]"), QStringLiteral("Schön"));
    Klick(programm, "cmdFKSchliessen");
    QVERIFY(dialoge.fertig());
    QCOMPARE(FKFragenOffen(), form);
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(programm.ordner().lesen(QStringLiteral("KRANZ/ZU.FKR")).contains("\"gesichert\"\r\n"));
}

void FrmMDITest::goingBackClosesAndReturnsToTheMainToolbar() {
    Programm programm;
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.frage(schliessen, schliessenFK, 1);
    Klick(programm, "cmdFKZurueck");
    QVERIFY(FKFragenOffen() == nullptr);
    QVERIFY(Sichtbar(programm, "picKranz"));
    QVERIFY(!Sichtbar(programm, "picFK"));
    QVERIFY(Sichtbar(programm, "cmdEnde"));
}

void FrmMDITest::goingBackWithNoFormInFrontOnlySwapsTheToolbars() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    auto* anderes = new QWidget;
    KindfensterAufnehmen(anderes)->show();
    KindNachVorn(anderes);
    QTRY_COMPARE(AktivesKind(), anderes);
    Klick(programm, "cmdFKZurueck");
    QVERIFY(Sichtbar(programm, "picKranz"));
    QCOMPARE(FKFragenOffen(), form);
    anderes->parentWidget()->close();
}

void FrmMDITest::theHelpMessageIsTheFeature() {
    Programm programm;
    Dialogfolge dialoge;
    const auto text =
        QStringLiteral("Falls erforderlich,\nwird noch ein zusätzliches Hilfesystem implementiert !");
    for (const QString& nummer : {QStringLiteral("1"), QStringLiteral("31")}) {
        dialoge.erwarte({QStringLiteral("frmMeldung"),
                         std::nullopt,
                         text,
                         {QStringLiteral("cmdKenntnis")},
                         [nummer](QDialog& dialog) {
                             QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblNr"))->text(), nummer);
                         }});
    }
    Klick(programm, "cmdHilfe");
    Finden<QAction>(programm.haupt(), QStringLiteral("mHilfen(1)"))->trigger();
}

void FrmMDITest::theNoticesOnTheMakersHaveTheirHeadings() {
    Programm programm;
    Dialogfolge dialoge;
    for (const QString& ueberschrift : {QStringLiteral("Aufbau der Feldkranz!-Datenbank"),
                                        QStringLiteral("Programm-Design und Computer-Umsetzung")}) {
        dialoge.erwarte({QStringLiteral("frmNachricht"),
                         std::nullopt,
                         std::nullopt,
                         {QStringLiteral("cmdAntwort(4)")},
                         [ueberschrift](QDialog& dialog) {
                             QVERIFY(Finden<QLabel>(&dialog, QStringLiteral("lblNachrichtentext"))
                                         ->text()
                                         .startsWith(ueberschrift));
                         }});
    }
    Klick(programm, "cmdTarvo");
    Finden<QAction>(programm.haupt(), QStringLiteral("mInfos(2)"))->trigger();
}

void FrmMDITest::theBackupEntryTurnsItsCheckMarkOverAndNothingElse() {
    Programm programm;
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mBackUp"));
    QVERIFY(!eintrag->isChecked());
    eintrag->trigger();
    QVERIFY(eintrag->isChecked());
    QVERIFY(!Spiel.OptionDatei);
}

void FrmMDITest::theProgressBarRunsFromRedToGreen() {
    Programm programm;
    auto* balken = Finden<Panel>(programm.haupt(), QStringLiteral("pnlKaro"));
    FortschrittStart(" Ich arbeite ...");
    QVERIFY(balken->isVisible());
    QCOMPARE(balken->geometry().right(),
             Finden(programm.haupt(), QStringLiteral("pnlCopyA"))->geometry().right());
    QCOMPARE(balken->grund(), QColor(223, 0, 0));
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    FortschrittStart("zweimal");
    QCOMPARE(Fortschritt.FortschrittWert, 2.0F);
    QCOMPARE(balken->value(), 4.0);
    FortschrittSchritt(20.0F);
    QCOMPARE(balken->grund(), QColor(223, 223, 0));
    FortschrittSchritt(20.0F);
    QCOMPARE(balken->value(), 100.0);
    QCOMPARE(balken->grund(), QColor(0, 223, 0));
    FortschrittEnde();
    QVERIFY(!balken->isVisible());
    QVERIFY(!Fortschritt.FortschrittAktiv);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption(),
             QStringLiteral(" Ich arbeite ... "));
}

void FrmMDITest::theClipboardPanelsStandWhereTheyBelong() {
    Programm programm;
    const QWidget* frage = Finden(programm.haupt(), QStringLiteral("pnlCopyF"));
    const QWidget* antwort = Finden(programm.haupt(), QStringLiteral("pnlCopyA"));
    const QWidget* felder = Finden(programm.haupt(), QStringLiteral("pnlFKFelder"));
    const QWidget* hilfe = Finden(programm.haupt(), QStringLiteral("pnlHilfe"));
    QCOMPARE(frage->x(), 240);
    QCOMPARE(frage->width(), 160);
    QCOMPARE(antwort->x(), 404);
    QCOMPARE(antwort->width(), 80);
    QCOMPARE(felder->x(), hilfe->width() - 245);
    QCOMPARE(felder->width(), 241);
}

void FrmMDITest::everythingOnTheToolbarsFitsAtBothWidths_data() {
    QTest::addColumn<int>("breite");
    QTest::newRow("1024") << 1024;
    QTest::newRow("1280") << 1280;
}

void FrmMDITest::everythingOnTheToolbarsFitsAtBothWidths() {
    QFETCH(int, breite);
    Programm programm;
    programm.NeuesQuizformular();
    programm.haupt()->showNormal();
    programm.haupt()->resize(breite, 700);
    QTRY_COMPARE(programm.haupt()->width(), breite);
    const QWidget* kranz = Finden(programm.haupt(), QStringLiteral("pnlKranz"));
    QList<QRect> flaechen;
    for (QWidget* teil : kranz->findChildren<QWidget*>()) {
        const bool zaehlt = qobject_cast<QToolButton*>(teil) != nullptr ||
                            teil->objectName().startsWith(QStringLiteral("picEingabe")) ||
                            teil->objectName() == QStringLiteral("picSpezial");
        if (!zaehlt || !teil->isVisible()) {
            continue;
        }
        const QRect flaeche(teil->mapTo(kranz, QPoint(0, 0)), teil->size());
        QVERIFY2(kranz->rect().contains(flaeche), qPrintable(teil->objectName()));
        for (const QRect& andere : flaechen) {
            QVERIFY2(!andere.intersects(flaeche), qPrintable(teil->objectName()));
        }
        flaechen.append(flaeche);
        if (const auto* taste = qobject_cast<QToolButton*>(teil)) {
            QVERIFY2(taste->fontMetrics().horizontalAdvance(taste->text()) < taste->width(),
                     qPrintable(taste->text()));
        }
    }
    QVERIFY(flaechen.size() > 20);
}

void FrmMDITest::endingAnUnchangedProgramAsksOnlyAboutSettingsAndTheEnd() {
    Programm programm;
    bool beendet = false;
    ProgrammBeendenDurch([&beendet] { beendet = true; });
    Dialogfolge dialoge;
    dialoge.frage(iniTitel, iniFrage, 7);
    dialoge.meldung(QStringLiteral("Feldkranz.INI nicht gespeichert !"),
                    QStringLiteral("Das ist nicht so schlimm"));
    dialoge.frage(endeTitel, endeFrage, 6);
    Klick(programm, "cmdEnde");
    ProgrammBeendenDurch({});
    QVERIFY(dialoge.fertig());
    QVERIFY(beendet);
}

void FrmMDITest::abbrechenAtTheSettingsQuestionKeepsTheProgramAndTheSavedForm() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\VOR.FKR";
    form->txtFrage.at(1)->setText("vorher");
    bool beendet = false;
    ProgrammBeendenDurch([&beendet] { beendet = true; });
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Auswertung speichern !"),
                  QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 6);
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ VOR.FKR ]"), QStringLiteral("Schön"));
    dialoge.meldung(QStringLiteral("Formular wurde gespeichert !"), QStringLiteral("Aha"));
    dialoge.frage(iniTitel, iniFrage, 2);
    Finden<QAction>(programm.haupt(), QStringLiteral("mDateiFK(12)"))->trigger();
    ProgrammBeendenDurch({});
    QVERIFY(dialoge.fertig());
    QVERIFY(!beendet);
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(programm.ordner().lesen(QStringLiteral("KRANZ/VOR.FKR")).contains("\"vorher\""));
}

void FrmMDITest::settingsStayWrittenWhenTheEndIsRefused() {
    Programm programm(false);
    bool beendet = false;
    ProgrammBeendenDurch([&beendet] { beendet = true; });
    Dialogfolge dialoge;
    dialoge.frage(iniTitel, iniFrage, 6);
    dialoge.frage(endeTitel, endeFrage, 7);
    Klick(programm, "cmdEnde");
    ProgrammBeendenDurch({});
    QVERIFY(!beendet);
    QCOMPARE(programm.ordner().lesen(QStringLiteral("CONFIG/Feldkranz.INI")).count("\r\n"), 88);
}

void FrmMDITest::helpInAQuestionLeavesItOpen() {
    Programm programm;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"),
                     iniTitel + QLatin1Char(' '),
                     iniFrage,
                     {QStringLiteral("cmdAntwort(3)"), QStringLiteral("cmdAntwort(2)")}});
    Klick(programm, "cmdEnde");
    QVERIFY(dialoge.fertig());
    QVERIFY(programm.haupt()->isVisible());
}

void FrmMDITest::closingTheEndQuestionByItsFrameAsksAgain() {
    Programm programm;
    Dialogfolge dialoge;
    dialoge.frage(iniTitel, iniFrage, 6);
    dialoge.erwarte({QStringLiteral("frmNachricht"), endeTitel + QLatin1Char(' '), endeFrage, {durchRahmen}});
    dialoge.frage(endeTitel, endeFrage, 7);
    Klick(programm, "cmdEnde");
    QVERIFY(dialoge.fertig());
    QVERIFY(programm.haupt()->isVisible());
}

void FrmMDITest::closingTheMainWindowByItsFrameAsksNeitherQuestion() {
    Programm programm;
    programm.NeuesQuizformular();
    const QPointer<frmMDI> haupt = programm.haupt();
    const Dialogfolge dialoge; // no question may come
    haupt->close();
    QTRY_VERIFY(haupt.isNull());
    QVERIFY(FKFragenOffen() == nullptr);
}

void FrmMDITest::closingTheMainWindowOverAChangedFormAsksTheForm() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setText("noch da");
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Test-Formular"),
                  QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 2);
    programm.haupt()->close();
    QVERIFY(dialoge.fertig());
    QVERIFY(programm.haupt()->isVisible());
    QCOMPARE(FKFragenOffen(), form);
    QCOMPARE(FK_Frage(1), std::string("noch da"));
}

QTEST_MAIN(FrmMDITest)
#include "frmMDI_test.moc"
