// The file dialog's commands on files: deleting, copying, editing, finding, taking the path apart.
#include "tests/filetools/dateifenster.h"
#include "tests/hilfe/bild.h"

class DateiaktionenTest : public Dateifenster {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Einrichten(); }
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { Beenden(); }

    // --- Deleting ---

    void deletingWithAPatternAsSelectionIsRefused() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.meldung(QStringLiteral("Die Datei  [ *.FKR ]  kann ich nicht löschen !"),
                        QStringLiteral("Dann eben nicht"));
        Druecken("cmdDatei(1)");
        QCOMPARE(Dateien()->count(), 2);
    }

    void deletingAsksTwiceAndThenDeletes() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Datei löschen"),
                      QStringLiteral("Ich lösche die Datei \n[ Abend.fkr ]  !"), 6);
        dialoge.frage(QStringLiteral("Datei löschen"),
                      QStringLiteral("Soll ich die Datei \n[ Abend.fkr ] \n wirklich löschen ?"), 6);
        dialoge.meldung(QStringLiteral("Abend.fkr gelöscht !"), QStringLiteral("Aha"));
        Druecken("cmdDatei(1)");
        QVERIFY(!programm_->vorhanden(QStringLiteral("KRANZ/Abend.fkr")));
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("LAGER.FKR")});
        QCOMPARE(Name()->text(), QStringLiteral("*.FKR"));
    }

    void anythingButJaDeletesNothing_data() {
        QTest::addColumn<int>("frage");
        QTest::addColumn<QString>("taste");
        for (const int frage : {1, 2}) {
            for (const QString& taste :
                 {QStringLiteral("cmdAntwort(1)"), QStringLiteral("cmdAntwort(2)"), durchRahmen}) {
                QTest::addRow("question %d, %s", frage, qPrintable(taste)) << frage << taste;
            }
        }
    }
    void anythingButJaDeletesNothing() {
        QFETCH(const int, frage);
        QFETCH(const QString, taste);
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        Dialogfolge dialoge;
        for (int i = 1; i <= frage; ++i) {
            dialoge.erwarte({QStringLiteral("frmNachricht"),
                             QStringLiteral("Datei löschen "),
                             {},
                             {i == frage ? taste : QStringLiteral("cmdAntwort(0)")}});
        }
        dialoge.meldung(QStringLiteral("Keine Datei gelöscht !"), QStringLiteral("Aha"));
        Druecken("cmdDatei(1)");
        QVERIFY(programm_->vorhanden(QStringLiteral("KRANZ/Abend.fkr")));
    }

    void aFailedDeletionIsToldAndTheDialogStays() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        const std::string gewaehlt = Gewaehlt();
        QVERIFY(QFile::remove(programm_->nativ(QStringLiteral("KRANZ/Abend.fkr"))));
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("53 : Datei nicht gefunden"),
                       QStringLiteral("OK"));
        Druecken("cmdDatei(1)");
        QVERIFY(fenster_->isVisible());
        QCOMPARE(Gewaehlt(), gewaehlt);
    }

    // --- Copying ---

    void copyingMakesAFileWithTheSourcesExtensionAndShowsIt() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        Dialogfolge dialoge;
        dialoge.meldung(Pfad(QStringLiteral("Abend.fkr")), QStringLiteral("... zur Kenntnis genommen !"));
        dialoge.eingabe(QStringLiteral("Datei kopieren !"),
                        QStringLiteral("Wie soll die neue Datei\n( Auswertung, etc. )\nheißen ?"),
                        QStringLiteral("EXAKTE8Z"), QStringLiteral("cmdOK"));
        dialoge.meldung(Pfad(QStringLiteral("EXAKTE8Z.fkr")), QStringLiteral("zur Kenntnis genommen"));
        Druecken("cmdDatei(0)");
        QCOMPARE(programm_->lesen(QStringLiteral("KRANZ/EXAKTE8Z.fkr")), formular);
        QCOMPARE(Name()->text(), QStringLiteral("EXAKTE8Z.fkr"));
        QVERIFY(Eintraege(Dateien()).contains(QStringLiteral("EXAKTE8Z.fkr")));
    }

    void aBadCopyNameIsRefusedAndAskedForAgain_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("taste");
        QTest::newRow("nine characters")
            << QStringLiteral("NEUNZEICH") << QStringLiteral("Der Dateiname darf nur 8 Zeichen enthalten")
            << QStringLiteral("Ist das wahr ?!");
        QTest::newRow("a point") << QStringLiteral("NEU.FKR")
                                 << QStringLiteral("Der Name darf keinen Punkt enthalten !")
                                 << QStringLiteral("Dann mach den Punkt doch selbst !");
        QTest::newRow("a blank") << QStringLiteral("NEU 2")
                                 << QStringLiteral("Der Name darf kein Leerzeichen enthalten !")
                                 << QStringLiteral("Immer diese Einschränkungen !");
    }
    void aBadCopyNameIsRefusedAndAskedForAgain() {
        QFETCH(const QString, name);
        QFETCH(const QString, text);
        QFETCH(const QString, taste);
        const QString frage = QStringLiteral("Wie soll die neue Datei\n( Auswertung, etc. )\nheißen ?");
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        Dialogfolge dialoge;
        dialoge.meldung(Pfad(QStringLiteral("LAGER.FKR")), QStringLiteral("... zur Kenntnis genommen !"));
        dialoge.eingabe(QStringLiteral("Datei kopieren !"), frage, name, QStringLiteral("cmdOK"));
        dialoge.meldung(text, taste);
        dialoge.eingabe(QStringLiteral("Datei kopieren !"), frage, QStringLiteral("GUT"),
                        QStringLiteral("cmdOK"));
        dialoge.meldung(Pfad(QStringLiteral("GUT.FKR")), QStringLiteral("zur Kenntnis genommen"));
        Druecken("cmdDatei(0)");
        QVERIFY(programm_->vorhanden(QStringLiteral("KRANZ/GUT.FKR")));
    }

    void anEmptyCopyNameDropsTheCopy_data() {
        QTest::addColumn<QString>("taste");
        QTest::newRow("OK") << QStringLiteral("cmdOK");
        QTest::newRow("Abbrechen") << QStringLiteral("cmdAbbruch");
    }
    void anEmptyCopyNameDropsTheCopy() {
        QFETCH(const QString, taste);
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        Dialogfolge dialoge;
        dialoge.meldung(Pfad(QStringLiteral("LAGER.FKR")), QStringLiteral("... zur Kenntnis genommen !"));
        dialoge.erwarte({QStringLiteral("frmInput"), QStringLiteral("Datei kopieren !"), {}, {taste}});
        dialoge.meldung(QStringLiteral("Ich konnte keine neue Datei anlegen"),
                        QStringLiteral("Ist das wahr ?!"));
        Druecken("cmdDatei(0)");
        QCOMPARE(Dateien()->count(), 2);
    }

    void anExistingFileIsOnlyWrittenOverAfterJa() {
        programm_->schreiben(QStringLiteral("KRANZ/DA.FKR"), "alt");
        for (const int antwort : {7, 6}) {
            Zeigen();
            Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
            Dialogfolge dialoge;
            dialoge.meldung(Pfad(QStringLiteral("LAGER.FKR")), QStringLiteral("... zur Kenntnis genommen !"));
            dialoge.eingabe(QStringLiteral("Datei kopieren !"),
                            QStringLiteral("Wie soll die neue Datei\n( Auswertung, etc. )\nheißen ?"),
                            QStringLiteral("DA"), QStringLiteral("cmdOK"));
            dialoge.frage(
                QStringLiteral("Datei kopieren !"),
                QStringLiteral(
                    "Die Datei\n[ DA.FKR ]\nist bereits vorhanden !\nSoll ich diese Datei überschreiben ?"),
                antwort);
            if (antwort == 6) {
                dialoge.meldung(Pfad(QStringLiteral("DA.FKR")), QStringLiteral("zur Kenntnis genommen"));
            } else {
                dialoge.meldung(QStringLiteral("Ich konnte keine neue Datei anlegen"),
                                QStringLiteral("Ist das wahr ?!"));
            }
            Druecken("cmdDatei(0)");
            QCOMPARE(programm_->lesen(QStringLiteral("KRANZ/DA.FKR")),
                     antwort == 6 ? formular : QByteArray("alt"));
        }
    }

    void aCopyNameThatNamesNoFileOfTheFolderIsAskedForAgain_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("backslash") << QStringLiteral("x\\NEU");
        QTest::newRow("slash") << QStringLiteral("x/NEU");
        QTest::newRow("asterisk") << QStringLiteral("NEU*");
    }
    void aCopyNameThatNamesNoFileOfTheFolderIsAskedForAgain() {
        QFETCH(const QString, name);
        const QString frage = QStringLiteral("Wie soll die neue Datei\n( Auswertung, etc. )\nheißen ?");
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmMeldung"), {}, {}, {QStringLiteral("cmdKenntnis")}});
        dialoge.eingabe(QStringLiteral("Datei kopieren !"), frage, name, QStringLiteral("cmdOK"));
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("52 : Dateiname oder -nummer falsch"),
                       QStringLiteral("OK"));
        dialoge.eingabe(QStringLiteral("Datei kopieren !"), frage, QStringLiteral("GUT"),
                        QStringLiteral("cmdOK"));
        dialoge.meldung(Pfad(QStringLiteral("GUT.FKR")), QStringLiteral("zur Kenntnis genommen"));
        Druecken("cmdDatei(0)");
        QCOMPARE(Dateien()->count(), 3);
    }

    // --- The other commands on files ---

    void editingWithNoFileChosenSaysSo() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("Keine Datei selektiert!"),
                       QStringLiteral("OK"));
        Druecken("cmdDatei(3)");
    }

    void editingStartsTheTextEditorAndComesBack() {
#ifndef Q_OS_UNIX
        QSKIP("The stand-in for the editor is a shell script.");
#endif
        const QString zettel = programm_->nativ(QStringLiteral("zettel"));
        programm_->schreiben(QStringLiteral("bin/gnome-text-editor"),
                             "#!/bin/sh\nprintf %s \"$1\" >'" + zettel.toUtf8() + ".neu'\n/bin/mv '" +
                                 zettel.toUtf8() + ".neu' '" + zettel.toUtf8() + "'\n");
        QFile::setPermissions(programm_->nativ(QStringLiteral("bin/gnome-text-editor")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray pfad = qgetenv("PATH");
        qputenv("PATH", programm_->nativ(QStringLiteral("bin")).toUtf8());
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        const Dialogfolge keine;
        Druecken("cmdDatei(3)");
        QTRY_VERIFY(programm_->vorhanden(QStringLiteral("zettel")));
        qputenv("PATH", pfad);
        QCOMPARE(QString::fromUtf8(programm_->lesen(QStringLiteral("zettel"))),
                 programm_->nativ(QStringLiteral("KRANZ/Abend.fkr")));
        QVERIFY(fenster_->isVisible());
    }

    void withoutAnEditorThatIsTold() {
        const QByteArray pfad = qgetenv("PATH");
        qputenv("PATH", programm_->nativ(QStringLiteral("KRANZ")).toUtf8());
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        Dialogfolge dialoge;
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("53 : Datei nicht gefunden"),
                       QStringLiteral("OK"));
        Druecken("cmdDatei(3)");
        qputenv("PATH", pfad);
    }

    void findingOnlyChangesTheView() {
        Zeigen();
        Druecken("cmdDatei(2)");
        QVERIFY(Finden<QWidget>(fenster_.get(), QStringLiteral("picDatei"))->isHidden());
        QVERIFY(Finden<QWidget>(fenster_.get(), QStringLiteral("picButtons"))->isHidden());
        auto* rahmen = Finden<QGroupBox>(fenster_.get(), QStringLiteral("fraLaufwerk"));
        QTRY_COMPARE(Finden<QWidget>(fenster_.get(), QStringLiteral("picList"))->width(), 349);
        QTRY_COMPARE(rahmen->width(), 201);
        const auto* liste = Finden<QWidget>(fenster_.get(), QStringLiteral("picList"));
        QTRY_COMPARE(rahmen->mapTo(fenster_.get(), QPoint()).x() - liste->mapTo(fenster_.get(), QPoint()).x(),
                     353);
        QTRY_COMPARE(Finden<QWidget>(fenster_.get(), QStringLiteral("fraDir"))->width(), 201);
        QCOMPARE(Taste("cmdLaufwerk(0)")->maximumWidth(), 20);
        QVERIFY(!Taste("cmdLaufwerk(0)")->isVisible());
        QVERIFY(Finden<QComboBox>(fenster_.get(), QStringLiteral("drvList"))->isVisible());
        BildVon(fenster_.get(), QStringLiteral("frmDatei_suchen"));
    }

    void theFramesTakeTheirButtonsOutOfUseAndBack() {
        Zeigen();
        for (const auto& [rahmen, feld, anzahl] :
             {std::tuple("fraDatei", "cmdDatei", 4), std::tuple("fraOrdner", "cmdOrdner", 3)}) {
            auto* gruppe = Finden<QGroupBox>(fenster_.get(), QLatin1String(rahmen));
            for (const bool an : {false, true}) {
                QTest::mouseDClick(gruppe, Qt::LeftButton, {}, QPoint(gruppe->width() / 2, 4));
                for (int i = 0; i < anzahl; ++i) {
                    QCOMPARE(Finden<QPushButton>(fenster_.get(), QLatin1String(feld), i)->isEnabled(), an);
                }
            }
        }
    }

    void theFrameOfTheFileButtonsGoesByItsFirstButton() {
        Zeigen();
        Taste("cmdDatei(0)")->setEnabled(false);
        auto* gruppe = Finden<QGroupBox>(fenster_.get(), QStringLiteral("fraDatei"));
        QTest::mouseDClick(gruppe, Qt::LeftButton, {}, QPoint(gruppe->width() / 2, 4));
        for (int i = 0; i < 4; ++i) {
            QVERIFY(Finden<QPushButton>(fenster_.get(), QStringLiteral("cmdDatei"), i)->isEnabled());
        }
    }

    void thePathIsTakenApartInTwoBoxes() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        Dialogfolge dialoge;
        const QString ordner = Text(Grossschreiben(Stand.AppPfad)) + QStringLiteral("\\KRANZ\\");
        dialoge.kasten(QStringLiteral("Pfad"),
                       QStringLiteral("Datenträger:?\nPfad: %1\nDatei: LAGER\nExtension: .FKR").arg(ordner),
                       QStringLiteral("OK"));
        dialoge.kasten(QStringLiteral("Pfad"), Text(DateiDatum(Gewaehlt())), QStringLiteral("OK"));
        Druecken("cmdPfadZerlegen");
        QCOMPARE(Taste("cmdPfadZerlegen")->text(), QStringLiteral("Pfad"));
    }

    void untilAFileIsChosenThePathIsTheOneThatTheCallerGives() {
        Dateiauswahl auswahl = Auswahl("Öffnen");
        auswahl.pfad = "D:\\WISSEN\\EIGENER.TXT";
        Zeigen(auswahl);
        Dialogfolge dialoge;
        dialoge.kasten(QStringLiteral("Pfad"),
                       QStringLiteral("Datenträger:D:\\\nPfad: WISSEN\\\nDatei: EIGENER\nExtension: .TXT"),
                       QStringLiteral("OK"));
        dialoge.erwarte({QStringLiteral("QMessageBox"), {}, {}, {QStringLiteral("OK")}}); // no such file
        Druecken("cmdPfadZerlegen");
    }

    void everyControlHasItsTip() {
        Zeigen();
        const QList<std::pair<const char*, QString>> tipps{
            {"cmdLaden", QStringLiteral("Ausgewählte Auswertungsdatei laden.")},
            {"cmdSpeichern", QStringLiteral("Auswertungsdatei speichern.")},
            {"cmdOrdner(0)", QStringLiteral("Neuen Ordner im aktuellen Verzeichnis anlegen.")},
            {"cmdOrdner(1)",
             QStringLiteral(
                 "Aktuellen Ordner löschen.\n(Es folgen zunächst noch zwei Sicherheitsabfragen!)")},
            {"cmdOrdner(2)", QStringLiteral("Ordnerserie A-Z im aktuellen Verzeichnis anlegen.\n(Es folgt "
                                            "zunächst noch eine Abfrage!)")},
            {"cmdDatei(0)", QStringLiteral("Ausgewählte Datei kopieren.")},
            {"cmdDatei(1)", QStringLiteral("Ausgewählte Datei löschen.")},
            {"cmdDatei(2)",
             QStringLiteral(
                 "Datei suchen.\nEs öffnet sich ein erweitertes Fenster zur Eingabe der Suchkriterien \nund "
                 "zur Ausgabe der gefundenen Dateien.")},
            {"cmdDatei(3)", QStringLiteral("Ausgewählte Auswertungsdatei im Texteditor (Notepad) anzeigen.")},
            {"cmdAbbrechen", QStringLiteral("Dateidialogbox ausblenden!")},
            {"cmdHilfe", QStringLiteral("Wenn erforderlich, wird hier ein Hilfesystem implementiert.")},
            {"fraLaufwerk",
             QStringLiteral(
                 "Mit Doppelklick auf diesen Rahmen Laufwerk-Buttons ausblenden \nund Liste einblenden.")},
            {"fraOrdner",
             QStringLiteral("Die Buttons (Ordneroptionen) in diesem Rahmen werden nach Doppelklick "
                            "\nabwechselnd aktiv/inaktiv.")},
            {"fraDatei",
             QStringLiteral("Die Buttons (Dateioptionen) in diesem Rahmen werden nach Doppelklick "
                            "\nabwechselnd aktiv/inaktiv.")}};
        for (const auto& [name, tipp] : tipps) {
            QCOMPARE(Finden<QWidget>(fenster_.get(), QLatin1String(name))->toolTip(), tipp);
        }
    }

    void helpDoesNothingVisible() {
        Zeigen();
        Druecken("cmdHilfe");
        QVERIFY(fenster_->isVisible());
    }
};

QTEST_MAIN(DateiaktionenTest)
#include "dateiaktionen_test.moc"
