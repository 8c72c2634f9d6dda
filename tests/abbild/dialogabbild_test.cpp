// Every modal dialog of the program in its usual states, held against its description in erwartet/.
#include "abbildschritte.h"
#include "abbildvergleich.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "tests/hilfe/finden.h"

#include <QDateTime>
#include <QFile>
#include <QListWidget>
#include <QTabWidget>
#include <QTest>

using abbild::FensterVergleichen;

namespace {

// A modal dialog, described while it is on the screen.
ErwarteterDialog Gezeigt(const char* dialog, const char* taste, const QString& name,
                         Stelle stelle = Stelle::hier()) {
    return {QLatin1String(dialog),
            std::nullopt,
            std::nullopt,
            {QLatin1String(taste)},
            [name, stelle](QDialog& fenster) { FensterVergleichen(&fenster, name, stelle); }};
}

} // namespace

class DialogabbildTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFileDialogToOpen();
    void theFileDialogToSave();
    void theSettingsOnEachTab();
    void theMessages();
    void theQuestions();
    void theInputLine();
};

void DialogabbildTest::theFileDialogToOpen() {
    const Abbildlauf lauf;
    const QDateTime tag(QDate(2020, 5, 1), QTime(12, 0));
    QFile datei(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/Kurzabend.FKR")));
    QVERIFY(datei.open(QIODevice::ReadWrite) && datei.setFileTime(tag, QFileDevice::FileModificationTime));
    datei.close();
    DateidialogZeigen(lauf, QStringLiteral("cmdLaden"), [](QDialog& dialog) {
        FensterVergleichen(&dialog, QStringLiteral("frmDatei_oeffnen"));
        Finden<QListWidget>(&dialog, QStringLiteral("filDateiliste"))->setCurrentRow(1);
        FensterVergleichen(&dialog, QStringLiteral("frmDatei_oeffnen_gewaehlt"));
        Abbildlauf::Druecken(&dialog, QStringLiteral("cmdVorschau"));
        FensterVergleichen(&dialog, QStringLiteral("frmDatei_vorschau"));
    });
}

void DialogabbildTest::theFileDialogToSave() {
    Abbildlauf lauf;
    lauf.QuizformularOeffnen(QStringLiteral("Naturabend.FKR"));
    DateidialogZeigen(lauf, QStringLiteral("cmdDateiFK(4)"), [](QDialog& dialog) {
        FensterVergleichen(&dialog, QStringLiteral("frmDatei_speichern"));
    });
}

void DialogabbildTest::theSettingsOnEachTab() {
    Abbildlauf lauf;
    lauf.NeuesQuizformular();
    Einstellen(lauf, [](const QDialog& dialog, const Dialogfolge&) {
        auto* seiten = Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"));
        QCOMPARE(seiten->count(), 6);
        for (int i = 0; i < seiten->count(); ++i) {
            seiten->setCurrentIndex(i);
            FensterVergleichen(seiten->window(), QStringLiteral("frmIni_%1").arg(i));
        }
    });
}

void DialogabbildTest::theMessages() {
    const Abbildlauf lauf;
    Dialogfolge dialoge;
    dialoge.erwarte(Gezeigt("frmMeldung", "cmdKenntnis", QStringLiteral("frmMeldung_hilfe")));
    lauf.Druecken(QStringLiteral("cmdHilfe"));
    dialoge.erwarte(Gezeigt("frmMeldung", "cmdKenntnis", QStringLiteral("frmMeldung_lang")));
    Meldung({5, "Ein Text,\r\nder so lang ist, daß er nicht mehr in das Feld paßt.\r\n3\r\n4\r\n5\r\n6", "12",
             "Eine recht lange Aufschrift & noch ein Wort mehr, damit sie klein wird"});
    QVERIFY(dialoge.fertig());
}

// What a button out of use keeps of its place comes from the question before, so all start from the same one.
void DialogabbildTest::theQuestions() {
    const Abbildlauf lauf;
    Dialogfolge dialoge;
    const auto fragen = [&dialoge](int tasten, const char* taste) {
        dialoge.erwarte(Gezeigt("frmNachricht", taste, QStringLiteral("frmNachricht_%1").arg(tasten)));
        Nachricht({tasten + 1, "Titel", "Die Frage,\r\nin zwei Zeilen ?", tasten, 1111});
    };
    dialoge.erwarte(Irgendeiner("frmNachricht", "cmdAntwort(0)"));
    Nachricht({1, "Titel", "Frage", 2, 1111});
    fragen(3, "cmdAntwort(4)");
    fragen(2, "cmdAntwort(1)");
    fragen(0, "cmdAntwort(4)");
    fragen(1, "cmdAntwort(0)");
    fragen(4, "cmdAntwort(0)");
    dialoge.erwarte(Gezeigt("frmNachricht", "cmdAntwort(4)", QStringLiteral("frmNachricht_info")));
    lauf.Druecken(QStringLiteral("cmdTarvo"));
    QVERIFY(dialoge.fertig());
}

void DialogabbildTest::theInputLine() {
    const Abbildlauf lauf;
    Dialogfolge dialoge;
    dialoge.erwarte(Gezeigt("frmInput", "cmdOK", QStringLiteral("frmInput")));
    Eingabe(1, "Titel", "Wie soll es heißen ?", "Vorgabe");
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(DialogabbildTest)
#include "dialogabbild_test.moc"
