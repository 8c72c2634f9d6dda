// Makes the forms that the program is delivered with: each is put together in the real windows, with
// questions dragged from the catalogue, and saved by the program's own command. They go into the folders
// KRANZ and TEST beneath the folder that VORLAGEN_ORDNER names.
#include "core/oberflaeche.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/quizformular.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/hilfe/dateidialoghilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolButton>

#include <array>
#include <utility>

namespace {

const QString zielordner =
    QDir::current().absoluteFilePath(qEnvironmentVariable("VORLAGEN_ORDNER", QStringLiteral("vorlagen")));

// A question of the catalogue: theme, sub-theme and place in its file, from 0.
struct Herkunft {
    const char* thema = "";
    const char* unterthema = "";
    int frage = -1;
};

constexpr int nichts = -1; // a Joker or an Ereignis needs no question

struct Gebiet {
    const char* titel;
    bool ausHB; // the title stands in the list of the Häuptlingsbuch
    const char* thema;
    const char* unterthema;
    std::array<int, fragenJeGebiet> fragen; // by row
};

struct Besonderes {
    int feld;
    int eintrag; // of the list of kinds: 1 Joker, 2 Glücksfrage, 3 Risiko, 4 Aufgabe, 5 Ereignis
    int aufgabe = nichts;
};

struct Quizvorlage {
    const char* name;
    const char* zeit;
    const char* nummer;
    int wenigerGebiete;
    int wenigerFragen;
    QList<Gebiet> gebiete;
    QList<Besonderes> besonderes;
};

struct Testzeile {
    Herkunft herkunft;
    int punkte;
};

struct Testvorlage {
    const char* name;
    const char* titel;
    const char* fach;
    const char* gruppe;
    QList<Testzeile> zeilen;
};

const QList<Quizvorlage> quizvorlagen{
    {"Bibelabend",
     "60 min",
     "1",
     0,
     0,
     {{"Altes Testament", false, "Altes Testament", "Geschichte", {5, 11, 15, nichts, 26}},
      {"Neues Testament", false, "Neues Testament", "Jesus", {6, 11, 18, 24, nichts}},
      {"Bibelkunde AT", true, "Häuptlingsbuch", "Bibelkunde AT", {4, nichts, 16, 22, 26}},
      {"Bibelkunde NT", true, "Häuptlingsbuch", "Bibelkunde NT", {4, nichts, 17, 21, nichts}},
      {"Kirchengeschichte", true, "Häuptlingsbuch", "Kirchengeschichte", {3, 9, nichts, 26, 30}},
      {"Andacht", true, "Häuptlingsbuch", "Andacht", {4, nichts, nichts, 20, 28}}},
     {{4, 1},
      {12, 1},
      {20, 1},
      {23, 1},
      {8, 2},
      {25, 2},
      {15, 3},
      {19, 3},
      {17, 4, 2},
      {28, 4, 26},
      {10, 5},
      {27, 5}}},
    {"Naturabend",
     "45 min",
     "2",
     2,
     0,
     {{"Natur", false, "Natur", "Erde", {3, 12, nichts, 24, 32}},
      {"Tiere", false, "Tiere", "Vögel", {4, 9, 19, 27, 30}},
      {"Pflanzen", false, "Pflanzen", "Bäume", {3, nichts, 18, nichts, 29}},
      {"Land", false, "Land", "Flüsse", {4, 10, nichts, 30, 35}}},
     {{3, 1}, {14, 1}, {7, 2}, {10, 3}, {20, 3}, {12, 4, 4}, {18, 5}}},
    {"Kurzabend",
     "30 min",
     "3",
     3,
     1,
     {{"Sport", false, "Sport", "Fussball", {4, 8, nichts, 28, 31}},
      {"Tiere", false, "Tiere", "Haustiere", {1, 12, nichts, nichts, 29}},
      {"Land", false, "Land", "Städte", {3, 10, nichts, 27, 30}}},
     {{9, 1}, {2, 2}, {15, 3}}}};

const QList<Testvorlage> testvorlagen{{"Erste-Hilfe",
                                       "TEST Häuptlingsfreizeit",
                                       "Erste Hilfe",
                                       "I",
                                       {{{"Häuptlingsbuch", "Erste Hilfe", 0}, 2},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 7}, 2},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 1}, 2},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 9}, 3},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 17}, 3},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 18}, 4},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 10}, 2},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 29}, 5},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 21}, 3},
                                        {{"Häuptlingsbuch", "Erste Hilfe", 22}, 4}}},
                                      {"Lagerleben",
                                       "Späherprüfung",
                                       "Lagerkunst",
                                       "II",
                                       {{{"Häuptlingsbuch", "Knoten", 8}, 2},
                                        {{"Häuptlingsbuch", "Knoten", 10}, 2},
                                        {{"Häuptlingsbuch", "Knoten", 15}, 3},
                                        {{"Häuptlingsbuch", "Karte+Kompaß", 24}, 4},
                                        {{"Häuptlingsbuch", "Karte+Kompaß", 15}, 3},
                                        {{"Häuptlingsbuch", "Karte+Kompaß", 25}, 4},
                                        {{"Häuptlingsbuch", "Feuerstellen", 7}, 2},
                                        {{"Häuptlingsbuch", "Feuerstellen", 14}, 3},
                                        {{"Häuptlingsbuch", "Waldläuferzeichen", 9}, 2},
                                        {{"Häuptlingsbuch", "Waldläuferzeichen", 17}, 3}}}};

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

// The selection dialog, beside the form.
QWidget* Auswahl(const char* taste) {
    if (FensterOderNichts(QStringLiteral("frmAuswahl")) == nullptr) {
        maus::Klicken(Finden(MDIFenster(), QLatin1String(taste)));
    }
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    auswahl->move(MDIFenster()->geometry().topRight() - QPoint(auswahl->frameGeometry().width() + 8, -70));
    return auswahl;
}

void Ziehen(const QWidget* auswahl, const Herkunft& herkunft, const QWidget* ziel) {
    FrageWaehlen(auswahl, Text(herkunft.thema), Text(herkunft.unterthema), herkunft.frage);
    maus::Ziehen(Finden(auswahl, QStringLiteral("txtFrage")), ziel);
}

// Types a name into the dialog for saving, which opens in the folder of the form's kind.
void NameErwarten(Dialogfolge& dialoge, const QString& name) {
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), name, QStringLiteral("cmdSpeichern"));
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ %1.FKR ]").arg(name), QStringLiteral("Schön"));
}

// The form as it was delivered the last time gives way, or the program would ask.
void Abraeumen(const Programm& programm, const QString& darunter) {
    QFile::remove(programm.ordner().nativ(darunter));
}

void Abliefern(const Programm& programm, const QString& darunter) {
    const QString ziel = zielordner + QLatin1Char('/') + darunter;
    QVERIFY(QDir().mkpath(QFileInfo(ziel).path()));
    QFile::remove(ziel);
    QVERIFY(QFile::copy(programm.ordner().nativ(darunter), ziel));
}

} // namespace

class Vorlagen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quiz_data();
    void quiz();
    void test_data();
    void test();

private:
    static void BrettFormen(const Quizvorlage& vorlage);
    static void KopfTippen(const Quizvorlage& vorlage);
    static void FragenZiehen(const Quizvorlage& vorlage);
    static void TitelWaehlen(int gebiet, const Gebiet& was);
    static void BesonderesSetzen(const Quizvorlage& vorlage);
    static void KopfWaehlen(const Testvorlage& vorlage);
    static void ZeilenFuellen(const Testvorlage& vorlage);
};

void Vorlagen::quiz_data() {
    QTest::addColumn<int>("stelle");
    for (int i = 0; i < quizvorlagen.size(); ++i) {
        QTest::newRow(quizvorlagen.at(i).name) << i;
    }
}

void Vorlagen::quiz() {
    QFETCH(int, stelle);
    const Quizvorlage& vorlage = quizvorlagen.at(stelle);
    Programm programm;
    FormularlisteOffen()->close(); // it would stand in the way of the drags
    programm.NeuesQuizformular();
    BrettFormen(vorlage);
    KopfTippen(vorlage);
    FragenZiehen(vorlage);
    BesonderesSetzen(vorlage);
    Abraeumen(programm, QStringLiteral("KRANZ/%1.FKR").arg(Text(vorlage.name)));
    Dialogfolge dialoge;
    NameErwarten(dialoge, Text(vorlage.name));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiFK(3)")));
    QTRY_VERIFY(dialoge.fertig());
    Abliefern(programm, QStringLiteral("KRANZ/%1.FKR").arg(Text(vorlage.name)));
}

// The shape of the board, by the settings dialog; each step asks. The number of all questions, which the
// preview shows, follows the steps only: also the full board takes one there and back.
void Vorlagen::BrettFormen(const Quizvorlage& vorlage) {
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmIni"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdEinOK")},
                     [&](QDialog& dialog) {
                         const auto druecken = [&](const char* taste, int mal) {
                             for (int i = 0; i < mal; ++i) {
                                 dialoge.erwarte({QStringLiteral("frmNachricht"),
                                                  std::nullopt,
                                                  std::nullopt,
                                                  {QStringLiteral("cmdAntwort(4)")}});
                                 QTest::mouseClick(Finden(&dialog, QLatin1String(taste)), Qt::LeftButton);
                             }
                         };
                         druecken("cmdWissenMinus", vorlage.wenigerGebiete + 1);
                         druecken("cmdWissenPlus", 1);
                         druecken("cmdFragenMinus", vorlage.wenigerFragen);
                     }});
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdIni")));
    QTRY_VERIFY(dialoge.fertig());
}

void Vorlagen::KopfTippen(const Quizvorlage& vorlage) {
    const frmFKFragen* form = FKFragenOffen();
    for (const auto& [name, text] :
         {std::pair{"txtZeit", vorlage.zeit}, std::pair{"txtNr", vorlage.nummer}}) {
        auto* feld = Finden<QLineEdit>(form, QLatin1String(name));
        maus::Klicken(feld);
        QTRY_VERIFY(feld->hasFocus());
        maus::Tippen(Text(text));
        QTRY_COMPARE(feld->text(), Text(text));
    }
}

void Vorlagen::FragenZiehen(const Quizvorlage& vorlage) {
    const QWidget* auswahl = Auswahl("cmdAuswahl(0)");
    for (int a = 1; a <= vorlage.gebiete.size(); ++a) {
        const Gebiet& gebiet = vorlage.gebiete.at(a - 1);
        for (int r = 1; r <= fragenJeGebiet; ++r) {
            const int n = Feldnummer(a, r);
            const int frage = gebiet.fragen.at(Nr(r - 1));
            if (frage != nichts) {
                Ziehen(auswahl, {gebiet.thema, gebiet.unterthema, frage},
                       FKFragenOffen()->txtFrage.at(Nr(n)));
                QTRY_VERIFY(!FK_Frage(n).empty());
                QVERIFY(!FK_Antwort(n).empty());
            }
        }
        TitelWaehlen(a, gebiet);
    }
    for (const Besonderes& feld : vorlage.besonderes) {
        if (feld.aufgabe != nichts) {
            Ziehen(auswahl, {"- Aufgaben -", "Standardaufgaben", feld.aufgabe},
                   FKFragenOffen()->txtFrage.at(Nr(feld.feld)));
            QTRY_VERIFY(!FK_Frage(feld.feld).empty());
        }
    }
}

void Vorlagen::TitelWaehlen(int gebiet, const Gebiet& was) {
    const frmFKFragen* form = FKFragenOffen();
    auto* schalter = Finden<QAbstractButton>(MDIFenster(), QStringLiteral("grpFKHB"));
    if (schalter->isChecked() != was.ausHB) {
        maus::Klicken(schalter);
        QTRY_COMPARE(schalter->isChecked(), was.ausHB);
    }
    maus::Klicken(form->pnlWissen.at(Nr(gebiet)));
    QTRY_VERIFY(form->cmbWissen->view()->isVisible());
    ListeWaehlen(form->cmbWissen, Text(was.titel));
    QTRY_COMPARE(form->pnlWissen.at(Nr(gebiet))->caption(), Text(was.titel));
}

void Vorlagen::BesonderesSetzen(const Quizvorlage& vorlage) {
    const frmFKFragen* form = FKFragenOffen();
    for (const Besonderes& feld : vorlage.besonderes) {
        maus::Klicken(form->pnlSpezial.at(Nr(feld.feld)));
        QTRY_VERIFY(form->cmbSpezial->view()->isVisible());
        ListeWaehlen(form->cmbSpezial, form->cmbSpezial->itemText(feld.eintrag));
        QTRY_VERIFY(!form->pnlSpezial.at(Nr(feld.feld))->caption().isEmpty());
    }
}

void Vorlagen::test_data() {
    QTest::addColumn<int>("stelle");
    for (int i = 0; i < testvorlagen.size(); ++i) {
        QTest::newRow(testvorlagen.at(i).name) << i;
    }
}

void Vorlagen::test() {
    QFETCH(int, stelle);
    const Testvorlage& vorlage = testvorlagen.at(stelle);
    Programm programm;
    FormularlisteOffen()->close();
    programm.NeuesTestformular();
    KopfWaehlen(vorlage);
    ZeilenFuellen(vorlage);
    Abraeumen(programm, QStringLiteral("TEST/%1.FKR").arg(Text(vorlage.name)));
    Dialogfolge dialoge;
    NameErwarten(dialoge, Text(vorlage.name));
    maus::Klicken(Finden(MDIFenster(), QStringLiteral("cmdDateiHB(3)")));
    QTRY_VERIFY(dialoge.fertig());
    Abliefern(programm, QStringLiteral("TEST/%1.FKR").arg(Text(vorlage.name)));
}

void Vorlagen::KopfWaehlen(const Testvorlage& vorlage) {
    const frmHBFragen* form = HBFragenOffen();
    for (const auto& [wahl, text] :
         {std::pair{&form->titel, vorlage.titel}, std::pair{&form->fach, vorlage.fach},
          std::pair{&form->gruppe, vorlage.gruppe}}) {
        maus::Klicken(wahl->taste);
        QTRY_VERIFY(wahl->liste->view()->isVisible());
        ListeWaehlen(wahl->liste, Text(text));
        QTRY_VERIFY(wahl->liste->isHidden());
    }
}

void Vorlagen::ZeilenFuellen(const Testvorlage& vorlage) {
    const frmHBFragen* form = HBFragenOffen();
    for (int i = 1; i <= vorlage.zeilen.size(); ++i) {
        const int punkte = vorlage.zeilen.at(i - 1).punkte;
        const auto* hoch = Finden<QToolButton>(form->spnPunkte.at(Nr(i)), QStringLiteral("hoch"));
        for (int punkt = 0; punkt < punkte; ++punkt) {
            maus::Klicken(hoch);
        }
        QTRY_COMPARE(form->pnlPunkte.at(Nr(i))->caption(), QString::number(punkte));
    }
    const QWidget* auswahl = Auswahl("cmdAuswahl(1)"); // behind the points, which it would cover
    for (int i = 1; i <= vorlage.zeilen.size(); ++i) {
        Ziehen(auswahl, vorlage.zeilen.at(i - 1).herkunft, form->txtFrage.at(Nr(i)));
        QTRY_VERIFY(!HB_Frage(i).empty());
        QVERIFY(!HB_Antwort(i).empty());
    }
}

QTEST_MAIN(Vorlagen)
#include "vorlagen.moc"
