// On the smallest screens every window is whole: nothing outside, nothing cut, nothing over anything.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "mainwindow/texte.h"
#include "tests/core/platzhilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/quizform/formhilfe.h"

#include <QLayout>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

void Druecken(const QString& name) {
    Finden<QAbstractButton>(MDIFenster(), name)->click();
}

// The dialog is looked at while it stands, then that button closes it.
ErwarteterDialog Angesehen(const char* name, const QString& taste) {
    return {QLatin1String(name), std::nullopt, std::nullopt, {taste}, [](QDialog& dialog) {
                NichtsVerdeckt(&dialog);
            }};
}

} // namespace

class KleinerSchirmTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theStartWindow();
    void theFileDialogInAllItsViews();
    void theSettingsOnEachPage();
    void messagesQuestionsAndInputs();
    void theSelectionDialogAndTheListOfForms();
    void childWindowsLieInTheMainWindow_data();
    void childWindowsLieInTheMainWindow();
};

void KleinerSchirmTest::theStartWindow() {
    const Programm programm;
    const auto start = std::make_unique<frmStart>();
    start->setAttribute(Qt::WA_DeleteOnClose, false);
    start->show();
    QVERIFY(QTest::qWaitForWindowActive(start.get()));
    NichtsVerdeckt(start.get());
}

void KleinerSchirmTest::theFileDialogInAllItsViews() {
    const Programm programm;
    programm.ordner().schreiben(QStringLiteral("KRANZ/LAGER.FKR"), QByteArray(400, ' '));
    for (const char* ansicht : {"", "cmdVorschau", "cmdDatei(2)"}) {
        Dialogfolge dialoge;
        dialoge.erwarte(
            {QStringLiteral("frmDatei"),
             std::nullopt,
             std::nullopt,
             {QStringLiteral("cmdAbbrechen")},
             [ansicht](QDialog& dialog) {
                 if (*ansicht != '\0') {
                     Finden<QListWidget>(&dialog, QStringLiteral("filDateiliste"))->setCurrentRow(0);
                     Finden<QAbstractButton>(&dialog, QLatin1String(ansicht))->click();
                     dialog.layout()->activate();
                 }
                 NichtsVerdeckt(&dialog, {QStringLiteral("lblDir")}); // a path is shortened
             }});
        dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
        Druecken(QStringLiteral("cmdLaden"));
        QVERIFY(dialoge.fertig());
    }
}

void KleinerSchirmTest::theSettingsOnEachPage() {
    VorgabenAnsehen([](QDialog& dialog) { NichtsVerdeckt(&dialog); });
}

void KleinerSchirmTest::messagesQuestionsAndInputs() {
    const Programm programm;
    Dialogfolge dialoge;
    dialoge.erwarte(Angesehen("frmMeldung", QStringLiteral("cmdKenntnis")));
    Meldung(kerntexte::hilfeTaste);
    dialoge.erwarte(Angesehen("frmNachricht", QStringLiteral("cmdAntwort(2)")));
    Nachricht(kerntexte::schliessenGeaendert);
    dialoge.erwarte(Angesehen("frmInput", QStringLiteral("cmdAbbruch")));
    Eingabe(dateitexte::kopierBild, dateitexte::kopierTitel, dateitexte::kopierFrage, "LAGER");
    QVERIFY(dialoge.fertig());
}

void KleinerSchirmTest::theSelectionDialogAndTheListOfForms() {
    Programm programm;
    programm.NeuesQuizformular();
    AuswahlZeigen();
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    QTRY_VERIFY(auswahl->isActiveWindow());
    NichtsVerdeckt(auswahl);
    FormularlisteZeigen();

    QTRY_VERIFY(FormularlisteOffen()->isActiveWindow());
    NichtsVerdeckt(FormularlisteOffen());
}

void KleinerSchirmTest::childWindowsLieInTheMainWindow_data() {
    ExtrasfensterZeilen();
}

void KleinerSchirmTest::childWindowsLieInTheMainWindow() {
    Programm programm;
    const QWidget* fenster = ExtrasfensterOeffnen(programm);
    const QWidget* sicht = MDIFenster()->findChild<QMdiArea*>()->viewport();
    const QWidget* rahmen = fenster->parentWidget();
    QTRY_VERIFY2(sicht->rect().contains(rahmen->geometry()), qPrintable(fenster->objectName()));
    NichtsVerdeckt(fenster);
}

QTEST_MAIN(KleinerSchirmTest)
#include "kleinerschirm_test.moc"
