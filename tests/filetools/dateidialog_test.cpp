// The file dialog: its lists and view, choosing and naming a file.
#include "tests/filetools/dateifenster.h"
#include "tests/hilfe/bild.h"

#include <QTextDocument>
#include <QTextOption>

class DateidialogTest : public Dateifenster {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Einrichten(); }
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { Beenden(); }

    // --- Lists and view ---

    void theListShowsTheFilesOfThePatternSortedAndCountsThem() {
        Zeigen();
        QCOMPARE(Eintraege(Dateien()),
                 (QStringList{QStringLiteral("Abend.fkr"), QStringLiteral("LAGER.FKR")}));
        QCOMPARE(Schild("lblDateienAnzahl"), QStringLiteral("2 Datei(en) "));
        QCOMPARE(Schild("lblAlleDateienAnzahl"), QStringLiteral("3 Datei(en) "));
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
        QCOMPARE(Name()->text(), QStringLiteral("*.FKR"));
        QCOMPARE(Eintraege(Ordner()).first(), QStringLiteral(".."));
        QCOMPARE(fenster_->windowTitle(), QStringLiteral("Öffnen"));
        BildVon(fenster_.get(), QStringLiteral("frmDatei"));
    }

    void theTypeListsPatternBecomesThePatternOfTheFileList() {
        Zeigen();
        auto* typen = Finden<QComboBox>(fenster_.get(), QStringLiteral("cmbAppend"));
        QCOMPARE(typen->currentText(), QStringLiteral("Feldkranz-Formular (*.FKR)"));
        typen->setFocus();
        QTest::keyClick(typen, Qt::Key_Down);
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("ALT.BAK")});
        QCOMPARE(Name()->text(), QStringLiteral("*.BAK"));
        QTest::keyClick(typen, Qt::Key_Down);
        QCOMPARE(Dateien()->count(), 3);
        QCOMPARE(Schild("lblDateienAnzahl"), QStringLiteral("3 Datei(en) "));
    }

    void thePatternsByPlaceChangeTheFileListToo() {
        Zeigen();
        QTest::mouseClick(Finden<QRadioButton>(fenster_.get(), QStringLiteral("optAppend"), 1),
                          Qt::LeftButton);
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("ALT.BAK")});
        QCOMPARE(Finden<QComboBox>(fenster_.get(), QStringLiteral("cmbAppend"))->currentIndex(), 1);
        QTest::mouseClick(Finden<QRadioButton>(fenster_.get(), QStringLiteral("optAppend"), 2),
                          Qt::LeftButton);
        QCOMPARE(Dateien()->count(), 0);
        QCOMPARE(Schild("lblDateienAnzahl"), QStringLiteral("0 Datei(en) "));
    }

    void aDoubleClickOnAFolderEntersItAndTheTwoPointsLeadBack() {
        programm_->schreiben(QStringLiteral("KRANZ/Sommer/ZELT.FKR"), formular);
        Zeigen();
        Anklicken(Ordner(), QStringLiteral("Sommer"), true);
        QCOMPARE(Schild("lblDir"), Pfad(QStringLiteral("Sommer")));
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("ZELT.FKR")});
        Anklicken(Ordner(), QStringLiteral(".."), true);
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
        QCOMPARE(Ordner()->currentItem()->text(), QStringLiteral("Sommer"));
    }

    void enterInTheFolderListEntersTheFolder() {
        programm_->schreiben(QStringLiteral("KRANZ/Sommer/ZELT.FKR"), formular);
        Zeigen();
        Ordner()->setFocus();
        Ordner()->setCurrentItem(Ordner()->findItems(QStringLiteral("Sommer"), Qt::MatchExactly).first());
        QTest::keyClick(Ordner(), Qt::Key_Return);
        QVERIFY(fenster_->isVisible());
        QCOMPARE(Schild("lblDir"), Pfad(QStringLiteral("Sommer")));
    }

    void aLongPathIsShortenedInTheMiddleAndStandsWholeInTheTip_data() {
        QTest::addColumn<QString>("darunter");
        QTest::newRow("many folders")
            << QStringLiteral("Mannschaft/").repeated(12) + QStringLiteral("Herbstlager");
        QTest::newRow("one long folder")
            << QString(120, QLatin1Char('x')) + QStringLiteral("/Herbstlager in den Bergen");
        QTest::newRow("blanks") << QStringLiteral("Alte Quizabende der Gruppe/").repeated(5) +
                                       QStringLiteral("Herbst");
    }
    void aLongPathIsShortenedInTheMiddleAndStandsWholeInTheTip() {
        QFETCH(const QString, darunter);
        QVERIFY(QDir().mkpath(programm_->nativ(QStringLiteral("KRANZ/") + darunter)));
        Dateiauswahl auswahl = Auswahl("Öffnen");
        const QString pfad = Pfad(QString(darunter).replace(QLatin1Char('/'), QLatin1Char('\\')));
        auswahl.ordner = pfad.toStdString();
        Zeigen(auswahl);
        const auto* schild = Finden<QLabel>(fenster_.get(), QStringLiteral("lblDir"));
        QCOMPARE(schild->text(), pfad);
        QCOMPARE(schild->toolTip(), pfad);
        const QString gezeigt = schild->property("gezeigt").toString();
        QVERIFY2(gezeigt.endsWith(QLatin1Char('\\') + darunter.section(QLatin1Char('/'), -1)),
                 qPrintable(gezeigt));
        QCOMPARE(gezeigt.count(QChar(0x2026)), 1);
        QVERIFY(gezeigt.left(4) == pfad.left(4) && gezeigt.size() > 50);
        QTextDocument gemalt(gezeigt);
        gemalt.setDocumentMargin(0);
        gemalt.setDefaultFont(schild->font());
        QTextOption umbruch;
        umbruch.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        gemalt.setDefaultTextOption(umbruch);
        gemalt.setTextWidth(schild->width());
        QVERIFY2(gemalt.size().height() <= schild->height(), "it fits into the label");
        BildVon(fenster_.get(), QStringLiteral("frmDatei_langer_pfad"));
    }

    void aDriveButtonChangesTheFolderList() {
        Zeigen();
        Druecken("cmdLaufwerk(0)");
        QCOMPARE(Schild("lblDir"), Text(EigenerPfad(Laufwerke().front().wurzel)));
        QVERIFY(!Eintraege(Ordner()).contains(QStringLiteral("..")));
        const QString name = Laufwerke().front().name.toUpper();
        QCOMPARE(Taste("cmdLaufwerk(0)")->toolTip(), QStringLiteral("Laufwerk ") + name);
    }

    void aDoubleClickOnTheDriveFrameSwitchesBetweenButtonsAndList() {
        Zeigen();
        auto* rahmen = Finden<QGroupBox>(fenster_.get(), QStringLiteral("fraLaufwerk"));
        auto* liste = Finden<QComboBox>(fenster_.get(), QStringLiteral("drvList"));
        QVERIFY(liste->isHidden());
        QTest::mouseDClick(rahmen, Qt::LeftButton, {}, QPoint(rahmen->width() - 3, rahmen->height() - 3));
        QVERIFY(liste->isVisible());
        QVERIFY(!Taste("cmdLaufwerk(0)")->isVisible());
        QTest::mouseDClick(rahmen, Qt::LeftButton, {}, QPoint(rahmen->width() - 3, rahmen->height() - 3));
        QVERIFY(liste->isHidden());
        QVERIFY(Taste("cmdLaufwerk(0)")->isVisible());
    }

    void aFolderThatIsGoneGivesTheNearestOneThatIsLeft() {
        Dateiauswahl auswahl = Auswahl("Öffnen");
        auswahl.ordner = Stand.AppPfad + "\\KRANZ\\weg\\ganz";
        Zeigen(auswahl);
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
    }

    void aFolderThatCantBeReadIsReportedAndTheDialogStays() {
#ifdef Q_OS_UNIX
        if (::geteuid() == 0) {
            QSKIP("The superuser may read every folder.");
        }
#endif
        programm_->schreiben(QStringLiteral("KRANZ/Zu/ZELT.FKR"), formular);
        const QString zu = programm_->nativ(QStringLiteral("KRANZ/Zu"));
        QFile::setPermissions(zu, {});
        Zeigen();
        {
            Dialogfolge dialoge;
            dialoge.meldung(QStringLiteral("DATEI : filDateiliste :\n70 : Zugriff verweigert"),
                            QStringLiteral("Grrr.. *~§§°"));
            Anklicken(Ordner(), QStringLiteral("Zu"), true);
        }
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
        QFile::setPermissions(zu, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void aFolderRemovedMeanwhileIsReportedAndTheDialogStays() {
        programm_->schreiben(QStringLiteral("KRANZ/Kurz/ZELT.FKR"), formular);
        Zeigen();
        QTRY_VERIFY(QDir(programm_->nativ(QStringLiteral("KRANZ/Kurz"))).removeRecursively());
        {
            Dialogfolge dialoge;
            dialoge.meldung(QStringLiteral("DATEI : filDateiliste :\n76 : Pfad nicht gefunden"),
                            QStringLiteral("Grrr.. *~§§°"));
            Anklicken(Ordner(), QStringLiteral("Kurz"), true);
        }
        QVERIFY(fenster_->isVisible());
        QCOMPARE(Schild("lblDir"), Text(Stand.AppPfad) + QStringLiteral("\\KRANZ"));
    }

    void twoThousandFilesAreListedQuickly() {
        for (int i = 0; i < 2000; ++i) {
            programm_->schreiben(QStringLiteral("KRANZ/F%1.FKR").arg(i, 4, 10, QLatin1Char('0')), formular);
        }
        QElapsedTimer uhr;
        uhr.start();
        Zeigen();
        QVERIFY2(uhr.elapsed() < 2000, qPrintable(QStringLiteral("%1 ms").arg(uhr.elapsed())));
        QCOMPARE(Schild("lblDateienAnzahl"), QStringLiteral("2002 Datei(en) "));
    }

    // --- Choosing and naming ---

    void aClickOnAFileSetsItsPathInCapitalsAndTheNameBox() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        QCOMPARE(Text(Gewaehlt()), Text(Grossschreiben(Pfad(QStringLiteral("Abend.fkr")).toStdString())));
        QCOMPARE(Name()->text(), QStringLiteral("Abend.fkr"));
        QVERIFY(fenster_->isVisible());
    }

    void theCapitalsOpenExactlyTheFileChosen() {
        programm_->schreiben(QStringLiteral("KRANZ/abend.FKR"), "kleines a");
        Zeigen();
        for (const QString& name : {QStringLiteral("Abend.fkr"), QStringLiteral("abend.FKR")}) {
            Anklicken(Dateien(), name);
            QCOMPARE(NativerPfad(Gewaehlt()), programm_->nativ(QStringLiteral("KRANZ/") + name));
        }
        QCOMPARE(Text(DateiLesen(Gewaehlt())), QStringLiteral("kleines a"));
    }

    void aDoubleClickUnderOeffnenBehavesAsLoading() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"), true);
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(Gewaehlt()), Text(Grossschreiben(Pfad(QStringLiteral("Abend.fkr")).toStdString())));
        QVERIFY(fenster_->gewaehlt().has_value());
    }

    void aDoubleClickUnderSpeichernUnterBehavesAsSaving() {
        Zeigen("Speichern unter ...");
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"), true);
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(Gewaehlt()), Pfad(QStringLiteral("Abend.fkr")));
    }

    void loadingTakesTheNameTypedInCapitals() {
        Zeigen();
        Name()->setFocus();
        QTest::keyClicks(Name(), QStringLiteral("abend.fkr"));
        Druecken("cmdLaden");
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(Gewaehlt()), Text(Grossschreiben(Pfad(QStringLiteral("abend.fkr")).toStdString())));
        QCOMPARE(NativerPfad(Gewaehlt()), programm_->nativ(QStringLiteral("KRANZ/Abend.fkr")));
    }

    void savingKeepsTheCaseOfTheNameTyped() {
        Zeigen("Speichern unter ...");
        Name()->insert(QStringLiteral("Größe 7")); // the key helper knows no umlauts
        Druecken("cmdSpeichern");
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(Gewaehlt()), Pfad(QStringLiteral("Größe 7")));
        QVERIFY(fenster_->gewaehlt().has_value());
    }

    void enterInTheNameBoxConfirms() {
        Zeigen("Speichern unter ...");
        QTest::keyClicks(Name(), QStringLiteral("neu"));
        QTest::keyClick(Name(), Qt::Key_Return);
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(Gewaehlt()), Pfad(QStringLiteral("neu")));
    }

    void withNothingChosenTheResultIsEmpty() {
        for (const char* taste : {"cmdLaden", "cmdSpeichern"}) {
            Zeigen(taste == std::string_view("cmdLaden") ? "Öffnen" : "Speichern unter ...");
            Druecken(taste);
            QVERIFY(!fenster_->isVisible());
            QCOMPARE(Text(Gewaehlt()), QString());
            QVERIFY(fenster_->gewaehlt().has_value());
        }
    }

    void cancellingGivesNoPath_data() {
        QTest::addColumn<int>("art");
        QTest::newRow("cmdAbbrechen") << 0;
        QTest::newRow("Esc") << 1;
        QTest::newRow("frame") << 2;
    }
    void cancellingGivesNoPath() {
        QFETCH(const int, art);
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        if (art == 0) {
            Druecken("cmdAbbrechen");
        } else if (art == 1) {
            QTest::keyClick(fenster_.get(), Qt::Key_Escape);
        } else {
            fenster_->close();
        }
        QVERIFY(!fenster_->isVisible());
        QVERIFY(!fenster_->gewaehlt());
    }

    void theFocusInTheFileListDoesntReplaceANameTyped() {
        Zeigen("Speichern unter ...");
        QTest::keyClicks(Name(), QStringLiteral("neu"));
        Dateien()->setFocus();
        QTRY_VERIFY(Dateien()->hasFocus());
        QCOMPARE(Name()->text(), QStringLiteral("neu"));
        QTest::keyClick(Dateien(), Qt::Key_Down);
        QVERIFY(Name()->text() != QStringLiteral("neu"));
    }

    void theFirstArrowKeyMarksTheFirstFileAndThePreviewFollows() {
        programm_->schreiben(QStringLiteral("KRANZ/Abend.fkr"),
                             "\"Feldkranz\"\r\n\"FK\"\r\n\"[FKINI]\"\r\n\"FK\"\r\n12\r\n4\r\n3\r\n\"\"\r\n");
        Zeigen();
        Dateien()->setFocus();
        QTest::keyClick(Dateien(), Qt::Key_Down);
        QCOMPARE(Name()->text(), QStringLiteral("Abend.fkr"));
        Druecken("cmdVorschau");
        const auto* raster = Finden<QTableWidget>(fenster_.get(), QStringLiteral("grdDatei"));
        QCOMPARE(raster->item(4, 1)->text(), QStringLiteral("12"));
        Dateien()->setFocus();
        QTest::keyClick(Dateien(), Qt::Key_Down);
        QCOMPARE(Name()->text(), QStringLiteral("LAGER.FKR"));
        QCOMPARE(raster->item(1, 1)->text(), QStringLiteral("LAGER.FKR"));
        QCOMPARE(raster->item(4, 1)->text(), QStringLiteral("24"));
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        QCOMPARE(raster->item(1, 1)->text(), QStringLiteral("Abend.fkr"));
        QCOMPARE(raster->item(4, 1)->text(), QStringLiteral("12"));
        QVERIFY(raster->isVisible());
    }

    void aPreviewThatCantFollowIsReportedAndEnds() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"));
        Druecken("cmdVorschau");
        QVERIFY(QFile::remove(programm_->nativ(QStringLiteral("KRANZ/LAGER.FKR"))));
        Dialogfolge dialoge;
        dialoge.meldung(QStringLiteral("DATEI : Oeffnen_Vorschau :\n53 : Datei nicht gefunden"),
                        QStringLiteral("Grrr.. *~§§°"));
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        QVERIFY(Finden<QWidget>(fenster_.get(), QStringLiteral("pnlDatei"))->isHidden());
        QVERIFY(Finden<QWidget>(fenster_.get(), QStringLiteral("fraDir"))->isVisible());
    }

    void theServiceShowsTheDialogAndRemembersTheFolder() {
        programm_->schreiben(QStringLiteral("KRANZ/Sommer/ZELT.FKR"), formular);
        Dateiauswahl auswahl = Auswahl("Öffnen");
        auswahl.ordner = Stand.AppPfad + "\\KRANZ\\Sommer";
        Dialogfolge dialoge;
        dialoge.erwarte(
            {QStringLiteral("frmDatei"), QStringLiteral("Öffnen"), {}, {QStringLiteral("cmdAbbrechen")}});
        QVERIFY(!DateidialogZeigen(auswahl));
        auswahl.ordner.clear();
        QString gezeigt;
        dialoge.erwarte({QStringLiteral("frmDatei"),
                         QStringLiteral("Öffnen"),
                         {},
                         {QStringLiteral("cmdLaden")},
                         [&](QDialog& dialog) {
                             gezeigt = Finden<QLabel>(&dialog, QStringLiteral("lblDir"))->text();
                             Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))
                                 ->setText(QStringLiteral("ZELT.FKR"));
                         }});
        const auto pfad = DateidialogZeigen(auswahl);
        QCOMPARE(gezeigt, Pfad(QStringLiteral("Sommer")));
        QVERIFY(pfad.has_value());
        QCOMPARE(NativerPfad(*pfad), programm_->nativ(QStringLiteral("KRANZ/Sommer/ZELT.FKR")));
    }

    // --- The folder of a save ---

    void aSaveGoesIntoExactlyTheFolderShownWhateverWasTypedBefore_data() {
        QTest::addColumn<QString>("getippt");
        for (const char* getippt : {"LAGER\\", "LAGER/", "LAGER", "LAGER\\\\", "lager\\", "LAGER\\.",
                                    "LAGER\\..\\", "..\\KRANZ\\", "NICHTDA\\"}) {
            QTest::newRow(getippt) << QString::fromLatin1(getippt);
        }
    }
    void aSaveGoesIntoExactlyTheFolderShownWhateverWasTypedBefore() {
        QFETCH(const QString, getippt);
        programm_->schreiben(QStringLiteral("KRANZ/LAGER/ZELT.FKR"), formular);
        Zeigen();
        Name()->setText(getippt);
        Druecken("cmdLaden");
        Zeigen("Speichern unter ...");
        Anklicken(Ordner(), QStringLiteral("LAGER"), true);
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("ZELT.FKR")});
        Name()->setText(QStringLiteral("NEU"));
        Druecken("cmdSpeichern");
        DateiSchreiben(Gewaehlt() + ".FKR", "neu");
        QCOMPARE(QString::fromUtf8(programm_->lesen(QStringLiteral("KRANZ/LAGER/NEU.FKR"))),
                 QStringLiteral("neu"));
        QVERIFY(!programm_->vorhanden(QStringLiteral("KRANZ/NEU.FKR")));
    }

    void foldersThatDifferInCaseOnlyAreKeptApart() {
        programm_->schreiben(QStringLiteral("KRANZ/Lager/KLEIN.FKR"), formular);
        programm_->schreiben(QStringLiteral("KRANZ/LAGER/GROSS.FKR"), formular);
        programm_->schreiben(QStringLiteral("KRANZ/LAGER/TIEF/X.FKR"), formular);
        Zeigen();
        Anklicken(Ordner(), QStringLiteral("Lager"), true);
        Anklicken(Dateien(), QStringLiteral("KLEIN.FKR"), true);
        Zeigen("Speichern unter ...");
        Anklicken(Ordner(), QStringLiteral("LAGER"), true);
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("GROSS.FKR")});
        Anklicken(Ordner(), QStringLiteral("TIEF"), true);
        QCOMPARE(Eintraege(Dateien()), QStringList{QStringLiteral("X.FKR")});
        Anklicken(Ordner(), QStringLiteral(".."), true);
        Name()->setText(QStringLiteral("NEU.FKR"));
        Druecken("cmdSpeichern");
        DateiSchreiben(Gewaehlt(), "neu");
        QVERIFY(programm_->vorhanden(QStringLiteral("KRANZ/LAGER/NEU.FKR")));
        QVERIFY(!programm_->vorhanden(QStringLiteral("KRANZ/Lager/NEU.FKR")));
    }

    void theBackupSwitchIsTheOption() {
        Spiel.OptionDatei = true;
        Zeigen();
        auto* schalter = Finden<QCheckBox>(fenster_.get(), QStringLiteral("chkBackUp"));
        QVERIFY(schalter->isChecked());
        QVERIFY(!schalter->isEnabled());
        Zeigen("Speichern unter ...");
        schalter = Finden<QCheckBox>(fenster_.get(), QStringLiteral("chkBackUp"));
        QTest::mouseClick(schalter, Qt::LeftButton, {}, QPoint(8, schalter->height() / 2));
        QVERIFY(!Spiel.OptionDatei);
    }
};

QTEST_MAIN(DateidialogTest)
#include "dateidialog_test.moc"
