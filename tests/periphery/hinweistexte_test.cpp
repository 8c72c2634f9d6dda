// Tip, title and status line of the main window's and the quiz form's controls, letter for letter.
#include "mainwindow/frmMDI.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tooltips/hinweise.h"

#include <QTest>

namespace {

struct Zeile {
    const char* name;
    const char* titel;
    const char* status;
};
constexpr std::array haupt{
    Zeile{"cmdNeuFK", "Feldkranz-Formular", " Feldkranz vorbereiten"},
    Zeile{"cmdNeuHB", "Testformular", " Test vorbereiten"},
    Zeile{"cmdLaden", "Formular", " Formular für Feldkranz oder Test laden"},
    Zeile{"cmdAuswahl(0)", "Hinweis", " Fragenauswahl laden"},
    Zeile{"cmdAuswahl(1)", "Hinweis", " Fragenauswahl laden"},
    Zeile{"cmdIni", "Einstellungen", " Register für Voreinstellungen laden"},
    Zeile{"cmdEdit", "Editor", " Editor für Fragensammlung"},
    Zeile{"cmdHilfe", "Hiiiilfee", " Hilfe für Feldkranz in Anspruch nehmen ..."},
    Zeile{"cmdSpielregel", "Hiiiilfee", ""},
    Zeile{"cmdEnde", "Schließen !", " Feldkranz beenden"},
    Zeile{"cmdTarvo", "Initiator", " Initiator"},
    Zeile{"cmdBrennek", "Programmierer", " Programmierer"},
    Zeile{"cmdHomepage", "Internet", " Internetseite des Programm-Entwicklers aufrufen."},
    Zeile{"cmdeMail", "eMail", " eMail an den Programm-Entwickler schicken."},
    Zeile{"grpFKHB", "Feldkranz-Häuptlingsbuch", " Themen aus Häuptlingsbuch laden"},
    Zeile{"pnlHilfe", "Hilfe", " 'Kurzhilfe'  und  'Ablage für Fragen'"},
    Zeile{"pnlFKFelder", "Feldkranz", " Aktuelle Anzahl der Fragen- und Spezialfelder"},
    Zeile{"picSpezial", "Feldkranz", " Verteilung der Fragen und Spezialfelder"},
    Zeile{"picKranz", "Feldkranz! 2008", ""},
    Zeile{"cmdDateiFK(1)", "Feldkranz-Formular", " Neues Formular für Feldkranz"},
    Zeile{"cmdDateiFK(2)", "Feldkranz-Formular", " Formular für Feldkranz laden"},
    Zeile{"cmdDateiFK(3)", "Feldkranz-Formular", " Formular für Feldkranz speichern"},
    Zeile{"cmdDateiFK(4)", "Feldkranz-Formular", " Formular für Feldkranz speichern unter ..."},
    Zeile{"cmdDateiHB(1)", "Testformular", " Neues Testformular"},
    Zeile{"cmdDateiHB(2)", "Testformular", " Testformular laden"},
    Zeile{"cmdDateiHB(3)", "Testformular", " Testformular speichern"},
    Zeile{"cmdDateiHB(4)", "Testformular", " Testformular speichern unter ..."},
    Zeile{"cmdDruckenFK(1)", "Drucken", " Drucker einrichten ..."},
    Zeile{"cmdDruckenHB(1)", "Drucken", " Drucker einrichten ..."},
    Zeile{"cmdFKFLoeschen", "Löschen", " Fragen aus dem Feldkranz-Formular loeschen"},
    Zeile{"cmdFKSLoeschen", "Löschen", " Spezialfelder aus dem Feldkranz-Formular loeschen"},
    Zeile{"cmdHBFLoeschen", "Löschen", " Fragen aus dem Testformular loeschen"},
    Zeile{"cmdHBALoeschen", "Löschen", " Antworten aus dem Testformular loeschen"},
    Zeile{"cmdHBPLoeschen", "Löschen", " Punkte aus dem Testformular loeschen"},
    Zeile{"cmdFKFLaden", "Feldkranz-Formular", " Fragen in das Feldkranz-Formular schreiben"},
    Zeile{"cmdHBPLaden", "Testformular", " Punkte in das Testformular schreiben"},
};

struct Tippzeile {
    const char* name;
    const char* tipp;
};
constexpr const char* farbschluessel = "Verteilung der Fragen und Spezialfelder :\n- weiß : Frage\n"
                                       "- gelb : Joker\n- grün : Glücksfrage\n- rot : Risiko\n"
                                       "- blau : Aufgabe\n- orange : Ereignis";
constexpr const char* auswahl = "Dialogbox für die Auswahl der :\n- Themen (Wissensgebiete)\n"
                                "- Unterthemen\n- Fragen und Antworten\naufrufen.";
constexpr std::array tipps{
    Tippzeile{"cmdNeuFK", "Neues Formular für Feldkranz anlegen."},
    Tippzeile{"cmdDateiFK(1)", "Neues Formular für Feldkranz anlegen."},
    Tippzeile{"cmdLaden", "Vorhandenes Formular für Feldkranz oder Test laden."},
    Tippzeile{"cmdEnde", "Feldkranz verlassen."},
    Tippzeile{"cmdIni", "Dialogbox für verschiedene Vorgaben und Einstellungen aufrufen."},
    Tippzeile{"cmdAuswahl(0)", auswahl},
    Tippzeile{"cmdAuswahl(1)", auswahl},
    Tippzeile{"picSpezial", farbschluessel},
    Tippzeile{"picJoker(1)", farbschluessel},
    Tippzeile{"picJoker(30)", farbschluessel},
    Tippzeile{"pnlCopyF",
              "In dieses Feld können mit [Shift]+Linksklick Fragen aus dem Formular gezogen werden.\n"
              "Die Antwort wird automatisch in das Feld 'Antwort' (rechts) übernommen.\n"
              "(Kann mit Doppelklick gelöscht werden.)"},
};

struct Formzeile {
    const char* name;
    const char* tipp;
    const char* status;
};
constexpr const char* nummer = "Nummer der Feldkranz-Runde";
constexpr const char* datum = "Datum der Feldkranz-Runde";
constexpr const char* dauer = "Dauer der Feldkranz-Runde";
constexpr std::array form{
    Formzeile{"pnlWissen(6)", "Wissensgebiet nach Linksklick auswählen.",
              " Wissensgebiet (nach Mausklick auswählen)"},
    Formzeile{"txtFrage(30)",
              "Eine Frage :\n- kann ausgewählt werden oder\n- kann in das Textfeld eingegeben werden\n\n"
              "- mit [Shift]+Linksklick Frage verschieben\n   (Antwort wird mit verschoben)\n"
              "- mit [Strg]+Linksklick Frage kopieren\n   (Antwort wird mit kopiert)",
              " Frage"},
    Formzeile{"txtAntwort(1)",
              "Eine Antwort :\n- kommt automatisch mit einer ausgewählten Frage\n"
              "- kann in das Textfeld eingegeben werden",
              " Antwort"},
    Formzeile{"pnlPunkte(17)", "Punktzahl bei richtiger Antwort", " Punkte für richtige Antwort"},
    Formzeile{"txtNr", nummer, " Nr. der Quizrunde"},
    Formzeile{"pnlNr", nummer, " Nr. der Quizrunde"},
    Formzeile{"txtDatum", datum, " vorgesehenes Datum des Feldkranzes"},
    Formzeile{"pnlDatum", datum, " vorgesehenes Datum des Feldkranzes"},
    Formzeile{"txtZeit", dauer, " vorgesehene Dauer des Feldkranzes"},
    Formzeile{"pnlZeit", dauer, " vorgesehene Dauer des Feldkranzes"},
};

} // namespace

class HinweistexteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMainWindowsTitlesAndStatusLines();
    void theMainWindowsTips();
    void closingButtonsAnnounceTheQuestionAboutSaving();
    void deletingButtonsSayThatItCanBeBroughtBack();
    void theQuizFormsTipsAndStatusLines();
    void theTipOfASpecialFieldCountsTheLimitsInForce();
};

void HinweistexteTest::theMainWindowsTitlesAndStatusLines() {
    const Programm programm;
    for (const auto& [name, titel, status] : haupt) {
        const QWidget* teil = Finden(programm.haupt(), QLatin1String(name));
        QVERIFY2(Hinweistitel(*teil) == QString::fromUtf8(titel), name);
        QVERIFY2(Hinweisstatus(*teil) == QString::fromUtf8(status), name);
    }
}

void HinweistexteTest::theMainWindowsTips() {
    const Programm programm;
    for (const auto& [name, tipp] : tipps) {
        QCOMPARE(Finden(programm.haupt(), QLatin1String(name))->toolTip(), QString::fromUtf8(tipp));
    }
}

void HinweistexteTest::closingButtonsAnnounceTheQuestionAboutSaving() {
    const Programm programm;
    const QString ende =
        QStringLiteral("es folgt noch eine Abfrage, ob das aktuelle Formular gespeichert werden soll.");
    for (const char* name : {"cmdFKSchliessen", "cmdFKZurueck", "cmdHBSchliessen", "cmdHBZurueck",
                             "cmdDateiFK(5)", "cmdDateiHB(5)"}) {
        QVERIFY2(Finden(programm.haupt(), QLatin1String(name))->toolTip().endsWith(ende), name);
    }
}

void HinweistexteTest::deletingButtonsSayThatItCanBeBroughtBack() {
    const Programm programm;
    // The same words on all of them, also where special fields or points are meant.
    const QString klammer = QStringLiteral(
        "\n(Die Fragen und Antworten werden zwischengespeichert und können wieder eingefügt werden.)");
    for (const char* name :
         {"cmdFKFLoeschen", "cmdFKSLoeschen", "cmdHBFLoeschen", "cmdHBALoeschen", "cmdHBPLoeschen"}) {
        QVERIFY2(Finden(programm.haupt(), QLatin1String(name))->toolTip().endsWith(klammer), name);
    }
}

void HinweistexteTest::theQuizFormsTipsAndStatusLines() {
    Programm programm;
    const frmFKFragen* fenster = programm.NeuesQuizformular();
    for (const auto& [name, tipp, status] : form) {
        const QWidget* teil = Finden(fenster, QLatin1String(name));
        QCOMPARE(teil->toolTip(), QString::fromUtf8(tipp));
        QCOMPARE(Hinweisstatus(*teil), QString::fromUtf8(status));
    }
}

void HinweistexteTest::theTipOfASpecialFieldCountsTheLimitsInForce() {
    Programm programm;
    Spiel.Felder[Spezialart::Joker] = 4;
    Spiel.Felder[Spezialart::Glueck] = 3;
    Spiel.Felder[Spezialart::Risiko] = 2;
    Spiel.Felder[Spezialart::Aktion] = 1;
    Spiel.Felder[Spezialart::Ereignis] = 0;
    const frmFKFragen* fenster = programm.NeuesQuizformular();
    QCOMPARE(fenster->pnlSpezial.at(30)->toolTip(),
             QStringLiteral("Spezialfeld mit Linksklick auswählen\n\n"
                            "mögliche Anzahl von Spezialfeldern :\n- 4 Jokerfelder\n- 3 Glücksfragen\n"
                            "- 2 Risikofragen\n- 1 Aufgaben\n- 0 Ereignisfelder\n"));
    QCOMPARE(Hinweisstatus(*fenster->pnlSpezial.at(30)), QStringLiteral(" Spezialfrage und -wertung"));
}

QTEST_MAIN(HinweistexteTest)
#include "hinweistexte_test.moc"
