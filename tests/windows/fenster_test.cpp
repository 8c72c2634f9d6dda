// The real windows where Windows is another system: what may not be written, names that it can't bear, no
// printer, no plug-in, a system whose colours are dark.
#include "core/bilder.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "periphery/frmBrowser.h"
#include "periphery/spielregel.h"
#include "periphery/uebergabe.h"
#include "quizform/fkformular.h"
#include "tests/hilfe/finden.h"
#include "tests/persistence/formlauf.h"

#include <QPrinterInfo>
#include <QTest>
#include <QUrl>

#include <windows.h>

namespace {

const QString speichernUnter = QStringLiteral("Speichern unter ...");
const QString cmdSpeichern = QStringLiteral("cmdSpeichern");
const QString speichernTaste = QStringLiteral("cmdDateiFK(3)");
const QString unterTaste = QStringLiteral("cmdDateiFK(4)");

void AttributSetzen(const QString& datei, DWORD attribut) {
    QVERIFY(::SetFileAttributesW(QDir::toNativeSeparators(datei).toStdWString().c_str(), attribut));
}

} // namespace

class WindowsFensterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aFormOnAWriteProtectedStickKeepsWhatIsTypedAndIsSavedElsewhere();
    void aNameThatWindowsCantBearIsABadName_data();
    void aNameThatWindowsCantBearIsABadName();
    void withoutAPrinterTheDialogForOneIsNoSilence();
    void theRuleDocumentGoesToTheSystemsViewer();
    void theColoursAreTheProgramsOwn();

private:
    Formlauf lauf;
};

void WindowsFensterTest::aFormOnAWriteProtectedStickKeepsWhatIsTypedAndIsSavedElsewhere() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    const QByteArray vorher = lauf.Lesen(QStringLiteral("A.FKR"));
    const QString nativ = lauf.programm().ordner().nativ(QStringLiteral("KRANZ/A.FKR"));
    AttributSetzen(nativ, FILE_ATTRIBUTE_READONLY);
    auto* feld = FKFragenOffen()->txtFrage.at(2);
    feld->setFocus();
    QTest::keyClicks(feld, QStringLiteral("Getippt"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("DATEI : FormularSpeichern :\n70 : Zugriff verweigert"),
                    QStringLiteral("Grrr.. *~§§°"));
    lauf.Druecken(speichernTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(feld->toPlainText().contains(QStringLiteral("Getippt")));
    QCOMPARE(lauf.Lesen(QStringLiteral("A.FKR")), vorher);
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("B"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("B.FKR"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("B.FKR")).contains("Getippt"));
    AttributSetzen(nativ, FILE_ATTRIBUTE_NORMAL);
}

void WindowsFensterTest::aNameThatWindowsCantBearIsABadName_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"CON", "nul", "LPT1.FKR", "Frage?", "a|b", "10:30"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void WindowsFensterTest::aNameThatWindowsCantBearIsABadName() {
    QFETCH(const QString, name);
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, speichernUnter, name, cmdSpeichern);
    dialoge.meldung(QStringLiteral("DATEI : FormularSpeichern :\nDateiname !?"),
                    QStringLiteral("Grrr.. *~§§°"));
    lauf.Druecken(unterTaste);
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Stand.FKDateiName, std::string());
}

void WindowsFensterTest::withoutAPrinterTheDialogForOneIsNoSilence() {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
        QSKIP("There is a printer here");
    }
    lauf.NeuesFormular(QStringLiteral("Neu"));
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral(
            "Ich finde hier keinen Drucker.\nDeine Blätter lege ich als PDF-Datei neben das Formular."),
        QStringLiteral("Auch gut"));
    lauf.Druecken(QStringLiteral("cmdDruckenFK(1)"));
    QVERIFY(dialoge.fertig());
}

void WindowsFensterTest::theRuleDocumentGoesToTheSystemsViewer() {
    QStringList draussen;
    UebergabeErsetzen([&](const std::string& adresse) {
        draussen.append(QString::fromStdString(adresse));
        return true;
    });
    SpielregelZeigen();
    QTest::mouseClick(Finden(BrowserOffen(), QStringLiteral("cmdSystemleser")), Qt::LeftButton);
    UebergabeErsetzen({});
    QCOMPARE(draussen.size(), 1);
    QCOMPARE(QUrl(draussen.first()).toLocalFile(), NativerPfad(SpielregelPfad()));
    delete BrowserOffen();
}

void WindowsFensterTest::theColoursAreTheProgramsOwn() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    const QPalette palette = QApplication::palette();
    QCOMPARE(palette.color(QPalette::Window), QColor(233, 230, 223));
    QCOMPARE(palette.color(QPalette::Base), QColor(Qt::white));
    QCOMPARE(FKFragenOffen()->palette().color(QPalette::Base), QColor(Qt::white));
    for (const char* klasse : {"QMenu", "QMenuBar", "QToolTip", "QMessageBox", "QPushButton"}) {
        const QPalette eigene = QApplication::palette(klasse);
        QVERIFY2(eigene.color(QPalette::Window).lightness() > 128, klasse);
        QVERIFY2(eigene.color(QPalette::WindowText).lightness() < 128, klasse);
    }
}

QTEST_MAIN(WindowsFensterTest)
#include "fenster_test.moc"
