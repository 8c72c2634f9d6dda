// The file dialog: choosing and naming a file, the view, copying, deleting, folders, preview.
#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/zustand.h"
#include "filetools/dateidialog.h"
#include "filetools/frmDatei.h"
#include "filetools/laufwerksfeld.h"
#include "persistence/formulardatei.h"
#include "settings/einstellungen.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programmordner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTextStream>

#include <memory>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

const QByteArray formular = "\"Feldkranz\"\r\n\"FK\"\r\n\"[FKINI]\"\r\n\"FK\"\r\n24\r\n4\r\n6\r\n\"\"\r\n";
const QByteArray testformular =
    "\"Feldkranz\"\r\n\"Test\"\r\n\"[HB-ALLGEMEINES]\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";

Dateiauswahl Auswahl(const std::string& titel) {
    return {titel,
            titel != "Öffnen",
            {"Feldkranz-Formular (*.FKR)", "Feldkranz-Formular (*.BAK)", "Alle Dateien (*.*)"},
            {"*.fkr", "*.bak", "*.ini", "*.*"},
            "*.FKR",
            AppPfad + "\\KRANZ",
            ""};
}

QString Text(std::string_view utf8) {
    return Anzeige(utf8);
}

} // namespace

class DateidialogTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Programmordner> programm_;
    std::unique_ptr<frmDatei> fenster_;

    void Zeigen(const std::string& titel = "Öffnen") { Zeigen(Auswahl(titel)); }
    void Zeigen(const Dateiauswahl& auswahl) {
        fenster_ = std::make_unique<frmDatei>(auswahl);
        fenster_->show();
        QVERIFY(QTest::qWaitForWindowExposed(fenster_.get()));
    }
    [[nodiscard]] QListWidget* Dateien() const {
        return Finden<QListWidget>(fenster_.get(), QStringLiteral("filDateiliste"));
    }
    [[nodiscard]] QListWidget* Ordner() const {
        return Finden<QListWidget>(fenster_.get(), QStringLiteral("dirVerzeichnisliste"));
    }
    [[nodiscard]] QLineEdit* Name() const {
        return Finden<QLineEdit>(fenster_.get(), QStringLiteral("txtDateiname"));
    }
    [[nodiscard]] QString Schild(const char* name) const {
        return Finden<QLabel>(fenster_.get(), QLatin1String(name))->text();
    }
    [[nodiscard]] QPushButton* Taste(const char* name) const {
        return Finden<QPushButton>(fenster_.get(), QLatin1String(name));
    }
    void Druecken(const char* name) const { QTest::mouseClick(Taste(name), Qt::LeftButton); }
    [[nodiscard]] static QStringList Eintraege(const QListWidget* liste) {
        QStringList texte;
        for (int i = 0; i < liste->count(); ++i) {
            texte << liste->item(i)->text();
        }
        return texte;
    }
    void Anklicken(QListWidget* liste, const QString& text, bool doppelt = false) const {
        const auto treffer = liste->findItems(text, Qt::MatchExactly);
        QCOMPARE(treffer.size(), 1);
        liste->scrollToItem(treffer.first());
        const QPoint stelle = liste->visualItemRect(treffer.first()).center();
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, stelle);
        if (doppelt) {
            QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, stelle);
        }
    }
    [[nodiscard]] QString Pfad(const QString& name) const {
        return Text(AppPfad) + QStringLiteral("\\KRANZ\\") + name;
    }

private Q_SLOTS:
    void initTestCase() {
        OberflaecheEinrichten();
        programm_ = std::make_unique<Programmordner>();
    }
    void init() {
        QVERIFY(QDir(programm_->nativ(QStringLiteral("KRANZ"))).removeRecursively());
        programm_->schreiben(QStringLiteral("KRANZ/Abend.fkr"), formular);
        programm_->schreiben(QStringLiteral("KRANZ/LAGER.FKR"), formular);
        programm_->schreiben(QStringLiteral("KRANZ/ALT.BAK"), formular);
        DateiName.clear();
        DateiAbbruch = 0;
        OptionDatei = 0;
        FormTyp.clear();
        FelderGesamt = 30;
        FragenProWissen = 5;
        AnzahlWissen = 6;
    }
    void cleanup() { fenster_.reset(); }
    void cleanupTestCase() { programm_.reset(); }

    // --- Lists and view ---

    void theListShowsTheFilesOfThePatternSortedAndCountsThem() {
        Zeigen();
        QCOMPARE(Eintraege(Dateien()),
                 (QStringList{QStringLiteral("Abend.fkr"), QStringLiteral("LAGER.FKR")}));
        QCOMPARE(Schild("lblDateienAnzahl"), QStringLiteral("2 Datei(en) "));
        QCOMPARE(Schild("lblAlleDateienAnzahl"), QStringLiteral("3 Datei(en) "));
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
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
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
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
        auswahl.ordner = AppPfad + "\\KRANZ\\weg\\ganz";
        Zeigen(auswahl);
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
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
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
        QFile::setPermissions(zu, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void aFolderRemovedMeanwhileIsReportedAndTheDialogStays() {
        programm_->schreiben(QStringLiteral("KRANZ/Kurz/ZELT.FKR"), formular);
        Zeigen();
        QVERIFY(QDir(programm_->nativ(QStringLiteral("KRANZ/Kurz"))).removeRecursively());
        {
            Dialogfolge dialoge;
            dialoge.meldung(QStringLiteral("DATEI : filDateiliste :\n76 : Pfad nicht gefunden"),
                            QStringLiteral("Grrr.. *~§§°"));
            Anklicken(Ordner(), QStringLiteral("Kurz"), true);
        }
        QVERIFY(fenster_->isVisible());
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
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
        QCOMPARE(Text(DateiName), Text(Grossschreiben(Pfad(QStringLiteral("Abend.fkr")).toStdString())));
        QCOMPARE(Name()->text(), QStringLiteral("Abend.fkr"));
        QVERIFY(fenster_->isVisible());
    }

    void theCapitalsOpenExactlyTheFileChosen() {
        programm_->schreiben(QStringLiteral("KRANZ/abend.FKR"), "kleines a");
        Zeigen();
        for (const QString& name : {QStringLiteral("Abend.fkr"), QStringLiteral("abend.FKR")}) {
            Anklicken(Dateien(), name);
            QCOMPARE(NativerPfad(DateiName), programm_->nativ(QStringLiteral("KRANZ/") + name));
        }
        QCOMPARE(Text(DateiLesen(DateiName)), QStringLiteral("kleines a"));
    }

    void aDoubleClickUnderOeffnenBehavesAsLoading() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"), true);
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(DateiName), Text(Grossschreiben(Pfad(QStringLiteral("Abend.fkr")).toStdString())));
        QCOMPARE(DateiAbbruch, std::int16_t{0});
    }

    void aDoubleClickUnderSpeichernUnterBehavesAsSaving() {
        Zeigen("Speichern unter ...");
        Anklicken(Dateien(), QStringLiteral("Abend.fkr"), true);
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(DateiName), Pfad(QStringLiteral("Abend.fkr")));
    }

    void loadingTakesTheNameTypedInCapitals() {
        Zeigen();
        Name()->setFocus();
        QTest::keyClicks(Name(), QStringLiteral("abend.fkr"));
        Druecken("cmdLaden");
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(DateiName), Text(Grossschreiben(Pfad(QStringLiteral("abend.fkr")).toStdString())));
        QCOMPARE(NativerPfad(DateiName), programm_->nativ(QStringLiteral("KRANZ/Abend.fkr")));
    }

    void savingKeepsTheCaseOfTheNameTyped() {
        Zeigen("Speichern unter ...");
        Name()->insert(QStringLiteral("Größe 7")); // the key helper knows no umlauts
        Druecken("cmdSpeichern");
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(DateiName), Pfad(QStringLiteral("Größe 7")));
        QCOMPARE(DateiAbbruch, std::int16_t{0});
    }

    void enterInTheNameBoxConfirms() {
        Zeigen("Speichern unter ...");
        QTest::keyClicks(Name(), QStringLiteral("neu"));
        QTest::keyClick(Name(), Qt::Key_Return);
        QVERIFY(!fenster_->isVisible());
        QCOMPARE(Text(DateiName), Pfad(QStringLiteral("neu")));
    }

    void withNothingChosenTheResultIsEmpty() {
        for (const char* taste : {"cmdLaden", "cmdSpeichern"}) {
            DateiName = "vorher";
            Zeigen(taste == std::string_view("cmdLaden") ? "Öffnen" : "Speichern unter ...");
            Druecken(taste);
            QVERIFY(!fenster_->isVisible());
            QCOMPARE(Text(DateiName), QString());
            QCOMPARE(DateiAbbruch, std::int16_t{0});
        }
    }

    void cancellingEmptiesTheNameAndLeavesItsMark_data() {
        QTest::addColumn<int>("art");
        QTest::newRow("cmdAbbrechen") << 0;
        QTest::newRow("Esc") << 1;
        QTest::newRow("frame") << 2;
    }
    void cancellingEmptiesTheNameAndLeavesItsMark() {
        QFETCH(const int, art);
        DateiName = "vorher";
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
        QCOMPARE(Text(DateiName), QString());
        QCOMPARE(DateiAbbruch, std::int16_t{1});
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

    void theServiceShowsTheDialogAndRemembersTheFolder() {
        programm_->schreiben(QStringLiteral("KRANZ/Sommer/ZELT.FKR"), formular);
        Dateiauswahl auswahl = Auswahl("Öffnen");
        auswahl.ordner = AppPfad + "\\KRANZ\\Sommer";
        Dialogfolge dialoge;
        dialoge.erwarte(
            {QStringLiteral("frmDatei"), QStringLiteral("Öffnen"), {}, {QStringLiteral("cmdAbbrechen")}});
        DateidialogZeigen(auswahl);
        QCOMPARE(DateiAbbruch, std::int16_t{1});
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
        DateidialogZeigen(auswahl);
        QCOMPARE(gezeigt, Pfad(QStringLiteral("Sommer")));
        QCOMPARE(DateiAbbruch, std::int16_t{0});
        QCOMPARE(NativerPfad(DateiName), programm_->nativ(QStringLiteral("KRANZ/Sommer/ZELT.FKR")));
    }

    void theBackupSwitchIsTheOption() {
        OptionDatei = 1;
        Zeigen();
        auto* schalter = Finden<QCheckBox>(fenster_.get(), QStringLiteral("chkBackUp"));
        QVERIFY(schalter->isChecked());
        QVERIFY(!schalter->isEnabled());
        Zeigen("Speichern unter ...");
        schalter = Finden<QCheckBox>(fenster_.get(), QStringLiteral("chkBackUp"));
        QTest::mouseClick(schalter, Qt::LeftButton, {}, QPoint(8, schalter->height() / 2));
        QCOMPARE(OptionDatei, std::int16_t{0});
    }

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
        const std::string gewaehlt = DateiName;
        QVERIFY(QFile::remove(programm_->nativ(QStringLiteral("KRANZ/Abend.fkr"))));
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("53 : Datei nicht gefunden"),
                       QStringLiteral("OK"));
        Druecken("cmdDatei(1)");
        QVERIFY(fenster_->isVisible());
        QCOMPARE(DateiName, gewaehlt);
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

    void aCopyNeverLeavesItsFolder() {
        Zeigen();
        Anklicken(Dateien(), QStringLiteral("LAGER.FKR"));
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmMeldung"), {}, {}, {QStringLiteral("cmdKenntnis")}});
        dialoge.eingabe(QStringLiteral("Datei kopieren !"),
                        QStringLiteral("Wie soll die neue Datei\n( Auswertung, etc. )\nheißen ?"),
                        QStringLiteral("x\\NEU"), QStringLiteral("cmdOK"));
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("52 : Dateiname oder -nummer falsch"),
                       QStringLiteral("OK"));
        Druecken("cmdDatei(0)");
        QCOMPARE(Dateien()->count(), 2);
    }

    // --- The other commands on files ---

    void editingWithNoFileChosenSaysSo() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.kasten(QStringLiteral("Hinweis"), QStringLiteral("Keine Datei selektiert!"),
                       QStringLiteral("OK"));
        Druecken("cmdDatei(3)");
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
        const QString ordner = Text(Grossschreiben(AppPfad)) + QStringLiteral("\\KRANZ\\");
        dialoge.kasten(QStringLiteral("Pfad"),
                       QStringLiteral("Datenträger:?\nPfad: %1\nDatei: LAGER\nExtension: .FKR").arg(ordner),
                       QStringLiteral("OK"));
        dialoge.kasten(QStringLiteral("Pfad"), Text(DateiDatum(DateiName)), QStringLiteral("OK"));
        Druecken("cmdPfadZerlegen");
        QCOMPARE(Taste("cmdPfadZerlegen")->text(), QStringLiteral("Pfad"));
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

    // --- Folders ---

    void aNewFolderIsMadeAndTold() {
        Zeigen();
        Dialogfolge dialoge;
        dialoge.eingabe(QStringLiteral("Ordner anlegen !"),
                        QStringLiteral("Wie soll der neue Ordner\n( Verzeichnis )\nheißen ?"),
                        QStringLiteral("Sommer 2008"), QStringLiteral("cmdOK"));
        dialoge.meldung(QStringLiteral("Neuer Ordner  'Sommer 2008'  angelegt in  [ %1 ]")
                            .arg(Text(AppPfad) + QStringLiteral("\\KRANZ")),
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
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
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
        QCOMPARE(Schild("lblDir"), Text(AppPfad) + QStringLiteral("\\KRANZ"));
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
                                   QStringLiteral("Datum |") + Text(DateiDatum(DateiName)).left(10),
                                   QStringLiteral("Fragen|24"),
                                   QStringLiteral("Wissensgebiete|6"),
                                   QStringLiteral("Fragen|4 je WG")};
        QCOMPARE(zeilen, erwartet);
        QCOMPARE(FelderGesamt, std::int16_t{30});
        QCOMPARE(FragenProWissen, std::int16_t{5});
        QCOMPARE(FormTyp, std::string());
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
        QCOMPARE(FelderGesamt, std::int16_t{30});
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
        QCOMPARE(FelderGesamt, std::int16_t{30});
    }
};

QTEST_MAIN(DateidialogTest)
#include "dateidialog_test.moc"
