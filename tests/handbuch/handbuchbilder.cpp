// Takes the handbook's pictures of windows at work, and prints a form of each kind for those of the paper. No
// test: it proves nothing, it shows. BILDER_ORDNER names the folder where pictures and PDF files go.
#include "catalogue/katalogladen.h"
#include "filling/fuellen.h"
#include "forms/quizformulare.h"
#include "forms/testformulare.h"
#include "mainwindow/frmMDI.h"
#include "periphery/zusatz.h"
#include "persistence/formulardatei.h"
#include "quizform/fkformular.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "search/fragendienst.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "testform/testformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTest>

namespace {

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

QString Ziel(const QString& name) {
    return QDir(qEnvironmentVariable("BILDER_ORDNER", QStringLiteral("."))).filePath(name);
}

// The window with its frame, as it stands on the screen.
void Bild(const QWidget* fenster, const QString& name) {
    QTest::qWait(300); // the window manager draws its frame when it likes
    const QRect ort = fenster->frameGeometry();
    const QPixmap bild = fenster->screen()->grabWindow(0, ort.x(), ort.y(), ort.width(), ort.height());
    QVERIFY(bild.save(Ziel(name + QStringLiteral(".png"))));
}

// A child window with its frame.
void Kindbild(QWidget* fenster, const QString& name) {
    QWidget* rahmen = fenster;
    while (rahmen != nullptr && qobject_cast<QMdiSubWindow*>(rahmen) == nullptr) {
        rahmen = rahmen->parentWidget();
    }
    QVERIFY(rahmen != nullptr);
    QTest::qWait(300); // a picture for people: time for late layouts
    QVERIFY(rahmen->grab().save(Ziel(name + QStringLiteral(".png"))));
}

void Druecken(const QString& name) {
    Finden<QAbstractButton>(MDIFenster(), name)->click();
}

struct Gebiet {
    const char* thema;
    const char* unterthema;
};
constexpr std::array<Gebiet, 6> gebiete{{{"Tiere", "Vögel"},
                                         {"Land", "Städte"},
                                         {"Neues Testament", "Jesus"},
                                         {"Natur", "Himmel"},
                                         {"Sport", "Olympiade"},
                                         {"Häuptlingsbuch", "Feuerstellen"}}};

Fragenliste Gebietsfragen(const Gebiet& gebiet) {
    UnterthemenLaden(gebiet.thema);
    Fragenliste liste;
    FragenLaden(gebiet.thema, gebiet.unterthema, liste);
    return liste;
}

// The first question of a list that is worth so many points.
std::size_t Stelle(const Fragenliste& liste, int punkte) {
    for (std::size_t i = 0; i < liste.anzahl(); ++i) {
        if (liste.wert(i, Spalte::Punkte) == std::to_string(punkte)) {
            return i;
        }
    }
    return 0;
}

void QuizFuellen() {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const Gebiet& gebiet = gebiete.at(Nr(a - 1));
        FKForm.WissenTitel.at(Nr(a)) = gebiet.thema;
        const Fragenliste liste = Gebietsfragen(gebiet);
        for (int r = 1; r <= fragenJeGebiet; ++r) {
            const std::size_t n = Nr(fragenJeGebiet * (a - 1) + r);
            const std::size_t i = Stelle(liste, r);
            FKForm.FrageText.at(n) = liste.wert(i, Spalte::Frage);
            FKForm.AntwortText.at(n) = liste.wert(i, Spalte::Antwort);
        }
    }
    for (const auto& [n, buchstabe] : {std::pair{4, "J"},
                                       {7, "G"},
                                       {10, "J"},
                                       {12, "E"},
                                       {15, "R"},
                                       {16, "J"},
                                       {19, "G"},
                                       {22, "R"},
                                       {24, "E"},
                                       {28, "J"}}) {
        FKForm.FeldSpezial.at(Nr(n)) = buchstabe;
    }
    const Fragenliste aufgaben = Gebietsfragen({"- Aufgaben -", "Standardaufgaben"});
    for (const auto& [n, i] : {std::pair{3, 8}, {26, 7}}) {
        FKForm.FeldSpezial.at(Nr(n)) = "A";
        FKForm.FrageText.at(Nr(n)) = aufgaben.wert(Nr(i), Spalte::Frage);
        FKForm.AntwortText.at(Nr(n)) = aufgaben.wert(Nr(i), Spalte::Antwort);
    }
    FKForm.FormNr = "1";
    FKForm.FormDatum = "20.11.2026";
    FKForm.FormZeit = "60 min";
}

void TestFuellen() {
    const Fragenliste liste = Gebietsfragen({"Häuptlingsbuch", "Waldläuferzeichen"});
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        const std::size_t i = Nr(2 * n - 1) % liste.anzahl();
        HBForm.HBFrageText.at(Nr(n)) = liste.wert(i, Spalte::Frage);
        HBForm.HBAntwortText.at(Nr(n)) = liste.wert(i, Spalte::Antwort);
        HBForm.HBPunkte.at(Nr(n)) =
            static_cast<std::int16_t>(std::stoi(std::string(liste.wert(i, Spalte::Punkte))));
        HBForm.HBGesamtpunkte = static_cast<std::int16_t>(HBForm.HBGesamtpunkte + HBForm.HBPunkte.at(Nr(n)));
    }
    HBForm.HBKopf1 = " TEST Häuptlingsfreizeit";
    HBForm.HBKopf2 = HBForm.HBFach = " Waldläuferzeichen";
    HBForm.HBKopf3 = " II";
}

void Drucken(const QString& taste, const Programm& programm, const QString& pdf, const QString& ziel) {
    Druecken(taste);
    const QString datei = programm.ordner().nativ(pdf);
    QTRY_VERIFY(QFile::exists(datei));
    QFile::remove(Ziel(ziel));
    QVERIFY(QFile::copy(datei, Ziel(ziel)));
}

} // namespace

class Handbuchbilder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void feldkranz();
    void test();
    void fuellen();
    void editor();
    void formularliste();
    void spielregel();
    void suche();
    void pruefung();
    void vorschau_data();
    void vorschau();
};

void Handbuchbilder::feldkranz() {
    Programm programm;
    programm.NeuesQuizformular();
    QuizFuellen();
    FK_GelesenesZeigen(" Feldkranz-Formular");
    Dialogfolge dialoge;
    dialoge.frage(
        QStringLiteral("Formular drucken"),
        QStringLiteral("Ich drucke das Formular für Feldkranz\nauf DIN A4 quer (blattfüllend) aus !"), 1);
    Drucken(QStringLiteral("cmdDruckenFK(2)"), programm, QStringLiteral("KRANZ/Feldkranz.pdf"),
            QStringLiteral("seite-feldkranz.pdf"));
}

void Handbuchbilder::test() {
    Programm programm;
    programm.NeuesTestformular();
    TestFuellen();
    HB_GelesenesZeigen(" Test-Formular");
    Kindbild(HBFragenOffen(), QStringLiteral("frmHBFragen"));
    Dialogfolge dialoge;
    const QString titel = QStringLiteral("Testformular ausdrucken");
    dialoge.frage(titel, QStringLiteral("Ich drucke ein Testformular mit 10 Fragen aus !"), 1);
    dialoge.erwarte({QStringLiteral("QMessageBox"), std::nullopt, std::nullopt, {QStringLiteral("OK")}});
    dialoge.frage(titel,
                  QStringLiteral("Das Testformular enthält auch Antworten.\n"
                                 "Soll ich die Antworten mit ausdrucken ?"),
                  6);
    Drucken(QStringLiteral("cmdDruckenHB(2)"), programm, QStringLiteral("TEST/Test.pdf"),
            QStringLiteral("seite-test.pdf"));
}

// Two areas have a title, one cell a question, two a letter.
void Handbuchbilder::fuellen() {
    Programm programm;
    programm.NeuesQuizformular();
    FKForm.WissenTitel = {"", "Tiere", "Wissen", "Neues Testament", "Wissen", "Sport", "Wissen"};
    FKForm.FrageText[6] = "Wie heißt unser Lagerplatz?";
    FKForm.AntwortText[6] = "Eulengrund";
    FKForm.FeldSpezial[13] = "J";
    FKForm.FeldSpezial[24] = "A";
    FK_GelesenesZeigen(" Feldkranz-Formular");
    FuellenZeigen();
    QWidget* fenster = FensterAbwarten(QStringLiteral("frmFuellen"));
    auto* vorschlag = Finden<QAbstractButton>(fenster, QStringLiteral("cmdVorschlag"));
    QTRY_VERIFY(vorschlag->isEnabled());
    vorschlag->click();
    Kindbild(fenster, QStringLiteral("frmFuellen"));
}

void Handbuchbilder::editor() {
    const Programm programm;
    Druecken(QStringLiteral("cmdEdit"));
    QWidget* editor = FensterAbwarten(QStringLiteral("frmEditor"));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdLaden")},
                     [](QDialog& dialog) {
                         auto* name = Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"));
                         name->selectAll();
                         QTest::keyClicks(name, QStringLiteral("TIERE/TI_HAUS.TXT"));
                     }});
    Finden<QAbstractButton>(editor, QStringLiteral("cmdDatei(1)"))->click();
    Kindbild(editor, QStringLiteral("frmEditor"));
    delete editor;
}

void Handbuchbilder::formularliste() {
    Programm programm;
    programm.NeuesQuizformular();
    QuizFuellen();
    FK_GelesenesZeigen(" Feldkranz-Formular");
    Spiel.FelderGesamt = 30;
    const QByteArray bytes = QByteArray::fromStdString(FormularBytes(FKForm, Spiel));
    for (const char* name : {"Nachtwanderung", "Sommerfest"}) {
        programm.ordner().schreiben(QStringLiteral("KRANZ/%1.FKR").arg(QLatin1String(name)), bytes);
    }
    FK_Entladen();
    Druecken(QStringLiteral("cmdDateiliste"));
    QWidget* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    auto* dateien = Finden<QListWidget>(liste, QStringLiteral("filDateiliste"));
    QTRY_COMPARE(dateien->findItems(QStringLiteral("Nachtwanderung.FKR"), Qt::MatchExactly).size(), 1);
    dateien->setFocus();
    dateien->setCurrentItem(
        dateien->findItems(QStringLiteral("Nachtwanderung.FKR"), Qt::MatchExactly).first());
    Bild(liste, QStringLiteral("frmFKformulare"));
}

void Handbuchbilder::spielregel() {
    const Programm programm;
    ZusatzordnerVorgeben(QStringLiteral(FELDKRANZ_PROGRAMM));
    Druecken(QStringLiteral("cmdSpielregel"));
    QWidget* leser = FensterAbwarten(QStringLiteral("frmBrowser"));
    QTest::qWait(1500); // the pages are drawn one by one
    Kindbild(leser, QStringLiteral("frmBrowser"));
    delete leser;
}

void Handbuchbilder::suche() {
    Programm programm;
    programm.NeuesQuizformular();
    Finden<QAction>(MDIFenster(), QStringLiteral("mExtra(4)"))->trigger();
    QWidget* suche = FensterAbwarten(QStringLiteral("frmSuche"));
    QTRY_VERIFY(::Fragen().gelesen());
    QTest::keyClicks(Finden<QLineEdit>(suche, QStringLiteral("txtSuche")), QStringLiteral("feuer wasser"));
    Kindbild(suche, QStringLiteral("frmSuche"));
}

void Handbuchbilder::pruefung() {
    Programm programm;
    programm.NeuesQuizformular();
    QuizFuellen();
    FKForm.FrageText.at(6) =
        "Wie nennt man die \"Pfadfinder\" unter den Bienen, die den anderen zeigen, wo es Blüten "
        "gibt, und wie tanzen sie dabei?";
    FKForm.FrageText.at(8) = FKForm.FrageText.at(13);
    FK_GelesenesZeigen(" Feldkranz-Formular");
    Finden<QAction>(MDIFenster(), QStringLiteral("mExtra(6)"))->trigger();
    Kindbild(FensterAbwarten(QStringLiteral("frmPruefung")), QStringLiteral("frmPruefung"));
}

void Handbuchbilder::vorschau_data() {
    QTest::addColumn<QString>("blatt");
    QTest::addColumn<QString>("bild");
    QTest::newRow("sheet") << QStringLiteral("Bogen") << QStringLiteral("frmVorschau");
    QTest::newRow("board") << QStringLiteral("Brett A2") << QStringLiteral("frmVorschau_Brett");
    QTest::newRow("cards") << QStringLiteral("8 Karten") << QStringLiteral("frmVorschau_Karten");
}

void Handbuchbilder::vorschau() {
    QFETCH(QString, blatt);
    QFETCH(QString, bild);
    Programm programm;
    programm.NeuesQuizformular();
    QuizFuellen();
    FK_GelesenesZeigen(" Feldkranz-Formular");
    Finden<QAction>(MDIFenster(), QStringLiteral("mExtra(8)"))->trigger();
    QWidget* vorschau = FensterAbwarten(QStringLiteral("frmVorschau"));
    auto* liste = Finden<QComboBox>(vorschau, QStringLiteral("cmbBlatt"));
    liste->setCurrentText(blatt);
    QCOMPARE(liste->currentText(), blatt);
    Kindbild(vorschau, bild);
}

QTEST_MAIN(Handbuchbilder)
#include "handbuchbilder.moc"
