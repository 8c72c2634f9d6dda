// The file dialog's commands on folders, and its preview.
#include "tests/filetools/dateifenster.h"
#include "tests/hilfe/bild.h"

class DateiordnerTest : public Dateifenster {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Einrichten(); }
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { Beenden(); }

    // --- Folders ---

    void aNewFolderIsMadeAndTold() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.eingabe(QStringLiteral("Ordner anlegen !"),
                        QStringLiteral("Wie soll der neue Ordner\n( Verzeichnis )\nheißen ?"),
                        QStringLiteral("Sommer 2008"), QStringLiteral("cmdOK"));
        dialoge.meldung(QStringLiteral("Neuer Ordner  'Sommer 2008'  angelegt in  [ %1 ]")
                            .arg(Text(Stand.AppPfad) + QStringLiteral("\\KRANZ")),
                        QStringLiteral("Sehr gut"));
        Druecken("cmdOrdner(0)");
        QVERIFY(Eintraege(Ordner()).contains(QStringLiteral("Sommer 2008")));
        QVERIFY(QDir(programm_->nativ(QStringLiteral("KRANZ/Sommer 2008"))).exists());
    }

    void aNewFolderWithAnExistingNameIsAskedForAgain() {
        programm_->schreiben(QStringLiteral("KRANZ/Sommer/ZELT.FKR"), formular);
        const QString frage = QStringLiteral("Wie soll der neue Ordner\n( Verzeichnis )\nheißen ?");
        Zeigen();
        Dialogfolge dialoge;
        dialoge.eingabe(QStringLiteral("Ordner anlegen !"), frage, QStringLiteral("Sommer"),
                        QStringLiteral("cmdOK"));
        dialoge.meldung(QStringLiteral("Ordner  'Sommer'  ist schon vorhanden, bitte neuen Namen wählen !"),
                        QStringLiteral("wird gemacht ..."));
        dialoge.erwarte({QStringLiteral("frmInput"), {}, {}, {QStringLiteral("cmdAbbruch")}});
        dialoge.meldung(QStringLiteral("Ich konnte keinen Ordner anlegen"),
                        QStringLiteral("Ist das wahr ?!"));
        Druecken("cmdOrdner(0)");
    }

    void aNameThatNoListWouldShowMakesNoFolder_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"   ", ".Lager", ".FKR", ".", "..", "x\\y", "x/y"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }
    void aNameThatNoListWouldShowMakesNoFolder() {
        QFETCH(const QString, name);
        Zeigen();
        const QStringList vorher =
            QDir(programm_->nativ(QStringLiteral("KRANZ"))).entryList(QDir::AllEntries | QDir::Hidden);
        Dialogfolge dialoge;
        dialoge.eingabe(QStringLiteral("Ordner anlegen !"),
                        QStringLiteral("Wie soll der neue Ordner\n( Verzeichnis )\nheißen ?"), name,
                        QStringLiteral("cmdOK"));
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("52 : Dateiname oder -nummer falsch"),
                       QStringLiteral("OK"));
        Druecken("cmdOrdner(0)");
        QCOMPARE(QDir(programm_->nativ(QStringLiteral("KRANZ"))).entryList(QDir::AllEntries | QDir::Hidden),
                 vorher);
    }

    void anEmptyFolderIsDeletedAfterTwoQuestions() {
        QVERIFY(QDir(programm_->nativ(QStringLiteral("KRANZ"))).mkdir(QStringLiteral("Leer")));
        Zeigen();
        Anklicken(Ordner(), QStringLiteral("Leer"), true);
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Ordner löschen"), QStringLiteral("Ich lösche den Ordner Leer !"), 6);
        dialoge.frage(QStringLiteral("Ordner löschen"),
                      QStringLiteral("Soll ich den Ordner Leer wirklich löschen ?"), 6);
        dialoge.meldung(QStringLiteral("Ich habe den Ordner\n 'Leer' \ngelöscht !"),
                        QStringLiteral("Na also"));
        Druecken("cmdOrdner(1)");
        QVERIFY(!programm_->vorhanden(QStringLiteral("KRANZ/Leer")));
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
    }

    void eachRefusalToDeleteAFolderHasItsOwnButton() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Ordner löschen"), QStringLiteral("Ich lösche den Ordner KRANZ !"), 7);
        dialoge.meldung(QStringLiteral("Keinen Ordner gelöscht !"), QStringLiteral("Danke"));
        Druecken("cmdOrdner(1)");
        dialoge.frage(QStringLiteral("Ordner löschen"), QStringLiteral("Ich lösche den Ordner KRANZ !"), 6);
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
        dialoge.meldung(QStringLiteral("Keinen Ordner gelöscht !"), QStringLiteral("In Ordnung"));
        Druecken("cmdOrdner(1)");
        QVERIFY(programm_->vorhanden(QStringLiteral("KRANZ/Abend.fkr")));
    }

    void aFolderThatIsNotEmptyStaysAndTheReasonIsTold() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.kasten(QStringLiteral("Hinweis"),
                       QStringLiteral("75 : Fehler beim Zugriff auf Pfad oder Datei"), QStringLiteral("OK"));
        Druecken("cmdOrdner(1)");
        QVERIFY(programm_->vorhanden(QStringLiteral("KRANZ/Abend.fkr")));
        QVERIFY(fenster_->isVisible());
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
    }

    void theThirdFolderButtonDoesNothing() {
        Zeigen();
        const QStringList vorher = Eintraege(Ordner());
        const Dialogfolge keine;
        Druecken("cmdOrdner(2)");
        QCOMPARE(Eintraege(Ordner()), vorher);
        QVERIFY(keine.fertig());
    }

    // --- Preview ---

    void thePreviewShowsTheFilesHeadAndLoadsNothing() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        Druecken("cmdVorschau");
        auto* tafel = Finden<QWidget>(fenster_.get(), QStringLiteral("pnlDatei"));
        auto* raster = Finden<QTableWidget>(fenster_.get(), QStringLiteral("grdDatei"));
        auto* ordner = Finden<QWidget>(fenster_.get(), QStringLiteral("fraDir"));
        QVERIFY(tafel->isVisible());
        QVERIFY(ordner->isHidden());
        QStringList zeilen;
        for (int i = 0; i < raster->rowCount(); ++i) {
            zeilen << raster->item(i, 0)->text() + QLatin1Char('|') + raster->item(i, 1)->text() +
                          raster->item(i, 2)->text();
        }
        const QStringList erwartet{QStringLiteral(" V O R S C H A U|"),
                                   QStringLiteral("Datei |LAGER.FKR"),
                                   QStringLiteral("Größe |%1 Bytes").arg(formular.size()),
                                   QStringLiteral("Datum |") + Text(DateiDatum(Gewaehlt())).left(10),
                                   QStringLiteral("Fragen|24"),
                                   QStringLiteral("Wissensgebiete|6"),
                                   QStringLiteral("Fragen|4 je WG")};
        QCOMPARE(zeilen, erwartet);
        QCOMPARE(Spiel.FelderGesamt, std::int16_t{30});
        QCOMPARE(Spiel.FragenProWissen, std::int16_t{5});
        QCOMPARE(Stand.FormTyp, Formart::Keine);
        BildVon(fenster_.get(), QStringLiteral("frmDatei_vorschau"));
        Druecken("cmdDateiInfoEnde");
        QVERIFY(tafel->isHidden());
        QVERIFY(ordner->isVisible());
        Druecken("cmdVorschau");
        QTest::mouseClick(raster->viewport(), Qt::LeftButton, {},
                          raster->visualRect(raster->model()->index(2, 1)).center());
        QVERIFY(tafel->isHidden());
        QVERIFY(ordner->isVisible());
    }

    void thePreviewOfATestFormShowsTheNumbersThatStoodThere() {
        programm_->schreiben(QStringLiteral("KRANZ/TEST.FKR"), testformular);
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("TEST.FKR"));
        Druecken("cmdVorschau");
        auto* raster = Finden<QTableWidget>(fenster_.get(), QStringLiteral("grdDatei"));
        QCOMPARE(raster->item(4, 1)->text(), QStringLiteral("30"));
        QCOMPARE(raster->item(5, 1)->text(), QStringLiteral("6"));
        QCOMPARE(raster->item(6, 1)->text(), QStringLiteral("5"));
    }

    void aFileThatCantBeReadIsReportedAndChangesNoNumber() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        QVERIFY(QFile::remove(programm_->nativ(QStringLiteral("KRANZ/LAGER.FKR"))));
        Dialogfolge dialoge;
        dialoge.meldung(QStringLiteral("DATEI : Oeffnen_Vorschau :\n53 : Datei nicht gefunden"),
                        QStringLiteral("Grrr.. *~§§°"));
        Druecken("cmdVorschau");
        QVERIFY(Finden<QWidget>(fenster_.get(), QStringLiteral("pnlDatei"))->isHidden());
        QCOMPARE(Spiel.FelderGesamt, std::int16_t{30});
    }

    void aFileCutShortInItsHeadIsReportedAndChangesNoNumber() {
        programm_->schreiben(QStringLiteral("KRANZ/KURZ.FKR"), formular.left(40));
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("KURZ.FKR"));
        Dialogfolge dialoge;
        dialoge.meldung(
            QStringLiteral("DATEI : Oeffnen_Vorschau :\nIch müsste noch Daten einlesen, aber die Datei ist "
                           "zu Ende !?"),
            QStringLiteral("Grrr.. *~§§°"));
        Druecken("cmdVorschau");
        QVERIFY(Finden<QWidget>(fenster_.get(), QStringLiteral("pnlDatei"))->isHidden());
        QCOMPARE(Spiel.FelderGesamt, std::int16_t{30});
    }
};

QTEST_MAIN(DateiordnerTest)
#include "dateiordner_test.moc"
