// Plays a leader's evening with the real windows and leaves what came out of it in build/abend: the form
// file, the printed page and a picture of each window it used. Real clicks and drags; an unexpected window
// ends it.
#include "catalogue/auswahl.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "core/ziehen.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <cstdio>

namespace {

// Where the results go: the folder that the caller names, else one beside the program.
const QString zielordner =
    QDir::current().absoluteFilePath(qEnvironmentVariable("ABEND_ORDNER", QStringLiteral("abend_ergebnis")));

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

void Bild(QWidget* fenster, const QString& name) {
    QVERIFY(fenster->grab().save(zielordner + QLatin1Char('/') + name + QStringLiteral(".png")));
}

void BildImDialog(ErwarteterDialog& dialog, const QString& name) {
    dialog.vorher = [name](QDialog& offen) { Bild(&offen, name); };
}

struct Griff {
    int feld;
    QString thema;
    QString unterthema;
    int frage; // place in the file, from 0
};

const QList<Griff> griffe{
    {1, QStringLiteral("Tiere"), QStringLiteral("Haustiere"), 0},
    {2, QStringLiteral("Tiere"), QStringLiteral("Haustiere"), 6},
    {3, QStringLiteral("Tiere"), QStringLiteral("Haustiere"), 11},
    {6, QStringLiteral("Land"), QStringLiteral("Städte"), 1},
    {7, QStringLiteral("Land"), QStringLiteral("Städte"), 4},
    {9, QStringLiteral("Land"), QStringLiteral("Städte"), 9},
    {11, QStringLiteral("Neues Testament"), QStringLiteral("Jesus"), 2},
    {12, QStringLiteral("Neues Testament"), QStringLiteral("Jesus"), 5},
    {14, QStringLiteral("Neues Testament"), QStringLiteral("Jesus"), 8},
};

} // namespace

class Abend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void derAbend();

private:
    void Starten();
    void FormularAnlegen();
    void FragenZiehen();
    void SpezialfelderSetzen();
    void Speichern();
    void Drucken();
    void Beenden();
    void WiederOeffnen();

    void TitelWaehlen(int gebiet, const QString& titel);
    void SpezialWaehlen(int feld, int eintrag);

    Programmordner ordner_;
};

void Abend::initTestCase() {
    QVERIFY(QDir().mkpath(zielordner));
    const QStringList reste = QDir(zielordner).entryList(QDir::Files);
    for (const QString& rest : reste) {
        QVERIFY(QFile::remove(zielordner + QLatin1Char('/') + rest));
    }
    ZustandZuruecksetzen();
    OberflaecheEinrichten();
    QApplication::setQuitOnLastWindowClosed(false);
}

void Abend::derAbend() {
    Starten();
    FormularAnlegen();
    FragenZiehen();
    SpezialfelderSetzen();
    Speichern();
    Drucken();
    Beenden();
    WiederOeffnen();
}

void Abend::Starten() {
    auto* start = new frmStart;
    start->show();
    QVERIFY(QTest::qWaitForWindowActive(start));
    Bild(start, QStringLiteral("01-frmStart"));
    maus::Klicken(Finden(start, QStringLiteral("cmdStart")));
    QTRY_VERIFY(MDIFenster() != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(MDIFenster()));
    Bild(MDIFenster(), QStringLiteral("02-frmMDI"));
}

void Abend::FormularAnlegen() {
    Dialogfolge dialoge;
    ErwarteterDialog neu{QStringLiteral("frmNachricht"),
                         QStringLiteral("Neues Feldkranz-Formular "),
                         QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                        "(Das kann einen kleinen Moment dauern.)"),
                         {QStringLiteral("cmdAntwort(0)")}};
    BildImDialog(neu, QStringLiteral("03-frmNachricht"));
    dialoge.erwarte(neu);
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdNeuFK")));
    QTRY_VERIFY(FKFragenOffen() != nullptr && FKFragenOffen()->isVisible());
    Finden<QLineEdit>(FKFragenOffen(), QStringLiteral("txtDatum"))->setFocus();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("20.11.2026"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("45 min"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("1"));
}

void Abend::FragenZiehen() {
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdAuswahl(0)")));
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    // Beside the form, so that the drags have a free way.
    auswahl->move(MDIFenster()->geometry().topRight() - QPoint(auswahl->frameGeometry().width() + 8, -70));
    int gebiet = 0;
    for (const Griff& griff : griffe) {
        FrageWaehlen(auswahl, griff.thema, griff.unterthema, griff.frage);
        auswahl->activateWindow(); // or the press comes ahead of it where the system raises in its own time
        QVERIFY(QTest::qWaitForWindowActive(auswahl));
        maus::Ziehen(Finden(auswahl, QStringLiteral("txtFrage")),
                     FKFragenOffen()->txtFrage.at(Nr(griff.feld)), Qt::NoModifier,
                     [] { return AktuellesZiehBild() == ZiehBild::Ablegen; });
        QTRY_VERIFY(!FK_Frage(griff.feld).empty());
        QVERIFY(!FK_Antwort(griff.feld).empty());
        if (GebietVon(griff.feld) != gebiet) {
            gebiet = GebietVon(griff.feld);
            TitelWaehlen(gebiet, griff.thema);
        }
    }
    Bild(auswahl, QStringLiteral("04-frmAuswahl"));
}

void Abend::TitelWaehlen(int gebiet, const QString& titel) {
    frmFKFragen* form = FKFragenOffen();
    maus::Klicken(form->pnlWissen.at(Nr(gebiet)));
    QTRY_VERIFY(form->cmbWissen->view()->isVisible());
    ListeWaehlen(form->cmbWissen, titel);
    QTRY_COMPARE(form->pnlWissen.at(Nr(gebiet))->caption(), titel);
}

void Abend::SpezialWaehlen(int feld, int eintrag) {
    frmFKFragen* form = FKFragenOffen();
    maus::Klicken(form->pnlSpezial.at(Nr(feld)));
    QTRY_VERIFY(form->cmbSpezial->view()->isVisible());
    ListeWaehlen(form->cmbSpezial, form->cmbSpezial->itemText(eintrag));
}

void Abend::SpezialfelderSetzen() {
    SpezialWaehlen(4, 1);
    SpezialWaehlen(7, 3);
    SpezialWaehlen(13, 2);
    QCOMPARE(FK_Frage(4), std::string("----- Joker ! -----\r\n"));
    Bild(FKFragenOffen(), QStringLiteral("05-frmFKFragen"));
    Bild(MDIFenster(), QStringLiteral("06-frmMDI-mit-Formular"));
}

void Abend::Speichern() {
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     QStringLiteral("Speichern unter ..."),
                     std::nullopt,
                     {QStringLiteral("cmdSpeichern")},
                     [](QDialog& dialog) {
                         auto* name = Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"));
                         name->setFocus();
                         name->selectAll();
                         QTest::keyClicks(name, QStringLiteral("ABEND"));
                         Bild(&dialog, QStringLiteral("07-frmDatei"));
                     }});
    ErwarteterDialog gespeichert{QStringLiteral("frmMeldung"),
                                 std::nullopt,
                                 QStringLiteral("Datei gespeichert unter  [ ABEND.FKR ]"),
                                 {QStringLiteral("cmdKenntnis")}};
    BildImDialog(gespeichert, QStringLiteral("08-frmMeldung"));
    dialoge.erwarte(gespeichert);
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiFK(3)")));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(QFile::copy(NativerPfad(Stand.FKDateiName), zielordner + QStringLiteral("/ABEND.FKR")));
}

void Abend::Drucken() {
    Dialogfolge dialoge;
    dialoge.frage(
        QStringLiteral("Formular drucken"),
        QStringLiteral("Ich drucke das Formular für Feldkranz\nauf DIN A4 quer (blattfüllend) aus !"), 1);
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDruckenFK(2)")));
    QTRY_VERIFY(dialoge.fertig());
    const QString pdf = ordner_.nativ(QStringLiteral("KRANZ/ABEND.pdf"));
    QTRY_VERIFY(QFile::exists(pdf));
    QVERIFY(QFile::copy(pdf, zielordner + QStringLiteral("/ABEND.pdf")));
}

void Abend::Beenden() {
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Formular schließen"),
                  QStringLiteral("Ich schließe das Feldkranz-Formular !"), 1);
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdFKZurueck")));
    QTRY_VERIFY(FKFragenOffen() == nullptr);
}

void Abend::WiederOeffnen() {
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     QStringLiteral("Öffnen"),
                     std::nullopt,
                     {QStringLiteral("cmdLaden")},
                     [](QDialog& dialog) {
                         auto* name = Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"));
                         name->setFocus();
                         name->selectAll();
                         QTest::keyClicks(name, QStringLiteral("ABEND.FKR"));
                         Bild(&dialog, QStringLiteral("09-frmDatei-oeffnen"));
                     }});
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdLaden")));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(FKFragenOffen()->pnlWissen.at(1)->caption(), QStringLiteral("Tiere"));
    QCOMPARE(FKForm.FeldSpezial.at(4), std::string("J"));
    Bild(MDIFenster(), QStringLiteral("10-frmMDI-wieder-geoeffnet"));
    FK_Entladen();
    delete FensterOderNichts(QStringLiteral("frmAuswahl"));
    delete MDIFenster();
}

QTEST_MAIN(Abend)
#include "abend.moc"
