// In which folder the save dialog of a form without a file starts.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"
#include "tests/hilfe/finden.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

namespace {

const QString cmdSpeichern = QStringLiteral("cmdSpeichern");
const QString cmdAbbrechen = QStringLiteral("cmdAbbrechen");
const QString cmdLaden = QStringLiteral("cmdLaden");

QString Ordner(const char* name) {
    return Anzeige(Stand.AppPfad) + QLatin1String(name);
}

// Enters a folder of the dialog's list; nothing for "".
void Betreten(QDialog& dialog, const QString& ordner) {
    if (!ordner.isEmpty()) {
        auto* liste = Finden<QListWidget>(&dialog, QStringLiteral("dirVerzeichnisliste"));
        liste->setFocus();
        liste->setCurrentItem(liste->findItems(ordner, Qt::MatchExactly).value(0));
        QTest::keyClick(liste, Qt::Key_Return);
    }
}

} // namespace

class SpeicherordnerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        lauf.Vorbereiten();
        for (const char* name : {"KRANZ/LAGER", "TEST/LAGER"}) {
            QVERIFY(QDir().mkpath(lauf.programm().ordner().nativ(QLatin1String(name))));
        }
    }
    // Both kinds go back to their own folders.
    void cleanup() {
        for (const char* name : {"KRANZ/LAGER", "TEST/LAGER"}) {
            QTRY_VERIFY(QDir(lauf.programm().ordner().nativ(QLatin1String(name))).removeRecursively());
        }
        QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
        QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST"));
    }
    void cleanupTestCase() { lauf.Beenden(); }

    void eachKindStartsInItsOwnFolder();
    void aFolderChosenForOneKindIsThatKindsAlone();
    void aFolderThatAFormWasOpenedFromInTheDialogIsChosenToo();
    void aFormOpenedByItsPathChoosesNothing();
    void aCancelledDialogChoosesNothing();
    void aChosenFolderThatIsGoneGivesTheKindsOwn();

private:
    void Schliessen() {
        FormStatusSetzen(false);
        FK_Entladen();
        HB_Entladen();
        ModusHaupt();
    }
    // Makes a new form and saves it in a folder beneath the one that the dialog shows at first, which is
    // given back.
    QString Sichern(Formart art, const QString& ordner = {}, const QString& ende = cmdSpeichern) {
        Schliessen();
        if (art == Formart::Quiz) {
            lauf.programm().NeuesQuizformular();
        } else {
            lauf.programm().NeuesTestformular();
        }
        QString gezeigt;
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmDatei"),
                         QStringLiteral("Speichern unter ..."),
                         {},
                         {ende},
                         [&](QDialog& dialog) {
                             gezeigt = Finden<QLabel>(&dialog, QStringLiteral("lblDir"))->text();
                             Betreten(dialog, ordner);
                             Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))
                                 ->setText(QStringLiteral("N%1.FKR").arg(++nummer));
                         }});
        if (ende == cmdSpeichern) {
            GespeichertErwarten(dialoge, QStringLiteral("N%1.FKR").arg(nummer + 1));
        }
        lauf.Druecken(art == Formart::Quiz ? QStringLiteral("cmdDateiFK(3)")
                                           : QStringLiteral("cmdDateiHB(3)"));
        return gezeigt;
    }

    Formlauf lauf;
    int nummer = 0;
};

void SpeicherordnerTest::eachKindStartsInItsOwnFolder() {
    for (int mal = 0; mal < 2; ++mal) {
        QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
        QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST"));
    }
    QVERIFY(lauf.programm().ordner().vorhanden(QStringLiteral("TEST/N%1.FKR").arg(nummer)));
}

void SpeicherordnerTest::aFolderChosenForOneKindIsThatKindsAlone() {
    QCOMPARE(Sichern(Formart::Quiz, QStringLiteral("LAGER")), Ordner("\\KRANZ"));
    QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST"));
    QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ\\LAGER"));
    QCOMPARE(Sichern(Formart::Test, QStringLiteral("LAGER")), Ordner("\\TEST"));
    QCOMPARE(Sichern(Formart::Quiz, QStringLiteral("..")), Ordner("\\KRANZ\\LAGER"));
    QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
    QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST\\LAGER"));
}

void SpeicherordnerTest::aFolderThatAFormWasOpenedFromInTheDialogIsChosenToo() {
    QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
    QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST"));
    lauf.programm().ordner().schreiben(QStringLiteral("TEST/LAGER/T.FKR"), Formlauf::Test("t"));
    Schliessen();
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmDatei"), QStringLiteral("Öffnen"), {}, {cmdLaden}, [](QDialog& dialog) {
             Betreten(dialog, QStringLiteral("LAGER"));
             Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))->setText(QStringLiteral("T.FKR"));
         }});
    lauf.Druecken(QStringLiteral("cmdLaden"));
    QVERIFY(dialoge.fertig() && HBFragenOffen() != nullptr);
    QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
    QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST\\LAGER"));
}

void SpeicherordnerTest::aFormOpenedByItsPathChoosesNothing() {
    lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/LAGER/A.FKR"), Formlauf::Quiz("a"));
    FormularLaden(Stand.AppPfad + "\\KRANZ\\LAGER\\A.FKR");
    QVERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
}

void SpeicherordnerTest::aCancelledDialogChoosesNothing() {
    QCOMPARE(Sichern(Formart::Quiz, QStringLiteral("LAGER"), cmdAbbrechen), Ordner("\\KRANZ"));
    QCOMPARE(Sichern(Formart::Quiz), Ordner("\\KRANZ"));
}

void SpeicherordnerTest::aChosenFolderThatIsGoneGivesTheKindsOwn() {
    QCOMPARE(Sichern(Formart::Test, QStringLiteral("LAGER")), Ordner("\\TEST"));
    QTRY_VERIFY(QDir(lauf.programm().ordner().nativ(QStringLiteral("TEST/LAGER"))).removeRecursively());
    QCOMPARE(Sichern(Formart::Test), Ordner("\\TEST"));
}

QTEST_MAIN(SpeicherordnerTest)
#include "speicherordner_test.moc"
