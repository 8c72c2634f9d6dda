// Opens every window and finds no control that has nothing to tell.
#include "catalogue/auswahl.h"
#include "core/oberflaeche.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "editor/editor.h"
#include "filling/fuellen.h"
#include "forms/formulare.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "quizform/frmFKFragen.h"
#include "testform/frmHBFragen.h"
#include "tests/filetools/dateifenster.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/rundgang.h"

#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace {

void Pruefen(const QWidget& fenster, int mindestens) {
    const QStringList maengel = rundgang::Maengel(fenster);
    QVERIFY2(maengel.isEmpty(), qPrintable(u'\n' + maengel.join(u'\n')));
    QVERIFY2(rundgang::Anzahl(fenster) >= mindestens, qPrintable(fenster.objectName()));
}

// A modal dialog is looked at while it is on the screen.
ErwarteterDialog Besuch(const char* name, const char* taste, int mindestens) {
    return {QLatin1String(name),
            std::nullopt,
            std::nullopt,
            {QLatin1String(taste)},
            [mindestens](const QDialog& dialog) { Pruefen(dialog, mindestens); }};
}

} // namespace

class RundgangTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theStartWindow();
    void theMainWindow();
    void theQuizForm();
    void theTestForm();
    void theSelectionDialog();
    void theSettingsDialogOnAllItsTabs();
    void theFileDialog();
    void theListOfForms();
    void theEditor();
    void theWindowsThatFillAForm();
    void theDialogsThatTellAndAsk();
    void everyMenuEntryHasAStatusText();
    void theWalkMeetsAControlWithoutAName();
};

void RundgangTest::theStartWindow() {
    OberflaecheEinrichten();
    const Programmordner ordner;
    frmStart fenster;
    fenster.setAttribute(Qt::WA_DeleteOnClose, false);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    Pruefen(fenster, 2);
}

void RundgangTest::theMainWindow() {
    Programm programm;
    Pruefen(*programm.haupt(), 85);
}

void RundgangTest::theQuizForm() {
    Programm programm;
    Pruefen(*programm.NeuesQuizformular(), 140);
}

void RundgangTest::theTestForm() {
    Programm programm;
    Pruefen(*programm.NeuesTestformular(), 60);
}

void RundgangTest::theSelectionDialog() {
    Programm programm;
    AuswahlZeigen();
    Pruefen(*FensterAbwarten(QStringLiteral("frmAuswahl")), 15);
}

void RundgangTest::theSettingsDialogOnAllItsTabs() {
    Programm programm;
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.erwarte(Besuch("frmIni", "cmdEinOK", 90));
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdIni"))->click();
    QVERIFY(dialoge.fertig());
}

void RundgangTest::theFileDialog() {
    Programm programm;
    const std::unique_ptr<frmDatei> fenster = std::make_unique<frmDatei>(Auswahl("Öffnen"));
    fenster->show();
    QVERIFY(QTest::qWaitForWindowExposed(fenster.get()));
    Pruefen(*fenster, 30);
}

void RundgangTest::theListOfForms() {
    Programm programm;
    Pruefen(*FensterAbwarten(QStringLiteral("frmFKformulare")), 9);
}

void RundgangTest::theEditor() {
    Programm programm;
    EditorZeigen();
    Pruefen(*FensterAbwarten(QStringLiteral("frmEditor")), 20);
}

void RundgangTest::theWindowsThatFillAForm() {
    Programm programm;
    programm.NeuesQuizformular();
    FuellenZeigen();
    Pruefen(*FensterAbwarten(QStringLiteral("frmFuellen")), 55);
    FormulareEntladen();
    programm.NeuesTestformular();
    FuellenZeigen();
    Pruefen(*FensterAbwarten(QStringLiteral("frmFuellen")), 15);
}

void RundgangTest::theDialogsThatTellAndAsk() {
    Programm programm;
    Dialogfolge dialoge;
    dialoge.erwarte(Besuch("frmMeldung", "cmdKenntnis", 5));
    dialoge.erwarte(Besuch("frmNachricht", "cmdAntwort(1)", 18));
    dialoge.erwarte(Besuch("frmInput", "cmdOK", 5));
    Meldung(MeldungsText{5, "Text", "1", "Aha"});
    Nachricht(NachrichtText{7, "Titel", "Frage ?", 2, 1111});
    Eingabe(1, "Titel", "Text", "Vorgabe");
    QVERIFY(dialoge.fertig());
}

void RundgangTest::everyMenuEntryHasAStatusText() {
    Programm programm;
    int eintraege = 0;
    for (const QMenu* menue : programm.haupt()->findChildren<QMenu*>()) {
        for (const QAction* eintrag : menue->actions()) {
            if (eintrag->isSeparator() || eintrag->objectName().isEmpty()) {
                continue;
            }
            ++eintraege;
            QVERIFY2(eintrag->statusTip().startsWith(u' '), qPrintable(eintrag->objectName()));
            QVERIFY2(eintrag->statusTip().size() > 3, qPrintable(eintrag->objectName()));
        }
    }
    QVERIFY(eintraege >= 50);
}

void RundgangTest::theWalkMeetsAControlWithoutAName() {
    QWidget fenster;
    fenster.setObjectName(QStringLiteral("frmProbe"));
    auto* feld = new QLineEdit(&fenster);
    const QStringList stumm{QStringLiteral("frmProbe. (QLineEdit): reached, and nothing to tell")};
    QCOMPARE(rundgang::Maengel(fenster), stumm);
    feld->hide();
    QCOMPARE(rundgang::Maengel(fenster), QStringList());
    feld->show();
    feld->setToolTip(QStringLiteral("Tipp"));
    QCOMPARE(rundgang::Maengel(fenster), QStringList());
}

QTEST_MAIN(RundgangTest)
#include "rundgang_test.moc"
