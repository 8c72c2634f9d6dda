// Takes a picture of every window, filled as in use, to be looked at and for the handbook. No test: it proves
// nothing, it shows.
// BILDER_ORDNER names the folder where the pictures go.
#include "catalogue/katalogladen.h"
#include "catalogue/themen.h"
#include "core/hauptfenster.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "forms/quizformulare.h"
#include "forms/testformulare.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "mainwindow/texte.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/quizformular.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "testform/testformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

namespace {

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

// The window with its frame, as it stands on the screen.
void Bild(const QWidget* fenster, const QString& name) {
    const QString ordner = qEnvironmentVariable("BILDER_ORDNER", QStringLiteral("fensterbilder"));
    QVERIFY(QDir().mkpath(QFileInfo(QDir(ordner).filePath(name)).path()));
    QTest::qWait(150); // the window manager draws its frame when it likes
    const QRect ort = fenster->frameGeometry();
    const QPixmap bild = fenster->screen()->grabWindow(0, ort.x(), ort.y(), ort.width(), ort.height());
    QVERIFY(bild.save(QDir(ordner).filePath(name + QStringLiteral(".png"))));
}

// A child window with its frame.
void Kindbild(QWidget* fenster, const QString& name) {
    QWidget* rahmen = fenster;
    for (QWidget* w = fenster; w != nullptr; w = w->parentWidget()) {
        rahmen = qobject_cast<QMdiSubWindow*>(w) != nullptr ? w : rahmen;
    }
    const QString ordner = qEnvironmentVariable("BILDER_ORDNER", QStringLiteral("fensterbilder"));
    QTest::qWait(100); // a picture for people: time for late layouts
    QVERIFY(rahmen->grab().save(QDir(ordner).filePath(name + QStringLiteral(".png"))));
}

void Druecken(const QString& name) {
    Finden<QAbstractButton>(MDIFenster(), name)->click();
}

struct Gebiet {
    const char* thema;
    const char* unterthema;
};
const QList<Gebiet> gebiete{{"Tiere", "Haustiere"},        {"Land", "Städte"}, {"Neues Testament", "Jesus"},
                            {"Altes Testament", "Könige"}, {"Sport", ""},      {"Natur", ""}};

Fragenliste Fragen(const Gebiet& gebiet) {
    UnterthemenLaden(gebiet.thema);
    Fragenliste liste;
    std::string unter = gebiet.unterthema;
    if (std::find(Katalog.UnterthemenListe.begin(), Katalog.UnterthemenListe.end(), unter) ==
            Katalog.UnterthemenListe.end() ||
        unter.empty()) {
        unter = Katalog.UnterthemenListe.at(1);
    }
    FragenLaden(gebiet.thema, unter, liste);
    return liste;
}

void QuizFuellen() {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const Gebiet& gebiet = gebiete.at(a - 1);
        const Thema* thema = ThemaSuchen(gebiet.thema);
        FKForm.WissenTitel.at(Nr(a)) = thema != nullptr ? gebiet.thema : Katalog.ThemenListe.at(Nr(a));
        const Fragenliste liste = Fragen({FKForm.WissenTitel.at(Nr(a)).c_str(), gebiet.unterthema});
        for (int r = 0; r < fragenJeGebiet && Nr(r) < liste.anzahl(); ++r) {
            const std::size_t n = Nr(fragenJeGebiet * (a - 1) + r + 1);
            FKForm.FrageText.at(n) = liste.wert(Nr(2 * r) % liste.anzahl(), Spalte::Frage);
            FKForm.AntwortText.at(n) = liste.wert(Nr(2 * r) % liste.anzahl(), Spalte::Antwort);
        }
    }
    for (const auto& [n, buchstabe] :
         {std::pair{4, "J"}, {9, "G"}, {12, "R"}, {20, "A"}, {23, "E"}, {26, "G"}}) {
        FKForm.FeldSpezial.at(Nr(n)) = buchstabe;
    }
    FKForm.FormNr = "1";
    FKForm.FormDatum = "20.11.2026";
    FKForm.FormZeit = "45 min";
}

void TestFuellen() {
    const Fragenliste liste = Fragen({"Tiere", "Haustiere"});
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        HBForm.HBFrageText.at(Nr(n)) = liste.wert(Nr(n), Spalte::Frage);
        HBForm.HBAntwortText.at(Nr(n)) = liste.wert(Nr(n), Spalte::Antwort);
        HBForm.HBPunkte.at(Nr(n)) = static_cast<std::int16_t>(n % 3 + 1);
    }
}

} // namespace

class Fensterbilder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startfenster();
    void hauptfenster();
    void quizformular();
    void testformular();
    void fragenauswahl();
    void vorgaben();
    void dateidialog();
    void meldungen();
    void editor();
    void formularliste();
    void spielregel();
};

void Fensterbilder::startfenster() {
    const Programm programm;
    const auto start = std::make_unique<frmStart>();
    start->setAttribute(Qt::WA_DeleteOnClose, false);
    start->show();
    QVERIFY(QTest::qWaitForWindowActive(start.get()));
    Bild(start.get(), QStringLiteral("frmStart"));
}

void Fensterbilder::hauptfenster() {
    const Programm programm;
    Bild(programm.haupt(), QStringLiteral("frmMDI"));
}

void Fensterbilder::quizformular() {
    Programm programm;
    programm.NeuesQuizformular();
    ThemenLaden();
    QuizFuellen();
    FK_GelesenesZeigen(" Feldkranz-Formular");
    FormStatusSetzen(false);
    Bild(programm.haupt(), QStringLiteral("feldkranz"));
    Kindbild(FKFragenOffen(), QStringLiteral("frmFKFragen"));
}

void Fensterbilder::testformular() {
    Programm programm;
    programm.NeuesTestformular();
    TestFuellen();
    HBForm.HBGesamtpunkte = 20;
    HB_GelesenesZeigen(" Test-Formular");
    Bild(programm.haupt(), QStringLiteral("testformular"));
    Kindbild(HBFragenOffen(), QStringLiteral("frmHBFragen"));
}

void Fensterbilder::fragenauswahl() {
    Programm programm;
    programm.NeuesQuizformular();
    Druecken(QStringLiteral("cmdAuswahl(0)"));
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    for (const auto& [liste, text] : {std::pair{"cmbThemen", "Tiere"}, {"cmbUnter", "Haustiere"}}) {
        auto* box = Finden<QComboBox>(auswahl, QLatin1String(liste));
        box->setCurrentIndex(box->findText(QString::fromUtf8(text)));
        Q_EMIT box->activated(box->currentIndex());
    }
    auto* frage = Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"));
    frage->setCurrentIndex(2);
    Q_EMIT frage->activated(2);
    Bild(auswahl, QStringLiteral("frmAuswahl"));
}

void Fensterbilder::vorgaben() {
    Programm programm;
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmIni"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdEinOK")},
                     [](QDialog& dialog) {
                         auto* register_ = Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"));
                         for (int i = 0; i < register_->count(); ++i) {
                             register_->setCurrentIndex(i);
                             Bild(&dialog, QStringLiteral("frmIni-%1").arg(i));
                         }
                     }});
    Druecken(QStringLiteral("cmdIni"));
}

void Fensterbilder::dateidialog() {
    Programm programm;
    for (const char* name : {"KRANZ/LAGER.FKR", "KRANZ/GRUPPE1.FKR", "KRANZ/HERBST.FKR", "KRANZ/ABEND.FKR"}) {
        programm.ordner().schreiben(QLatin1String(name), QByteArray(4000, ' '));
    }
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdAbbrechen")},
                     [](QDialog& dialog) { Bild(&dialog, QStringLiteral("frmDatei")); }});
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    Druecken(QStringLiteral("cmdLaden"));
}

void Fensterbilder::meldungen() {
    const Programm programm;
    Dialogfolge dialoge;
    const auto mitBild = [&dialoge](const char* fenster, const char* taste, const QString& name) {
        dialoge.erwarte({QLatin1String(fenster),
                         std::nullopt,
                         std::nullopt,
                         {QLatin1String(taste)},
                         [name](QDialog& dialog) { Bild(&dialog, name); }});
    };
    mitBild("frmMeldung", "cmdKenntnis", QStringLiteral("frmMeldung"));
    Meldung(kerntexte::hilfeTaste);
    mitBild("frmNachricht", "cmdAntwort(2)", QStringLiteral("frmNachricht"));
    Nachricht(kerntexte::schliessenGeaendert);
    mitBild("frmInput", "cmdAbbruch", QStringLiteral("frmInput"));
    Eingabe(dateitexte::kopierBild, dateitexte::kopierTitel, dateitexte::kopierFrage, "LAGER");
    for (int i = 0; i <= 11; ++i) {
        mitBild("frmMeldung", "cmdKenntnis", QStringLiteral("alle/frmMeldung-%1").arg(i));
        const std::string nummer = std::to_string(i);
        const std::string text = "Bild Nummer " + nummer;
        Meldung(MeldungsText{i, text, nummer, "Schön"});
    }
    for (int i = 1; i <= 12; ++i) {
        mitBild("frmNachricht", "cmdAntwort(2)", QStringLiteral("alle/frmNachricht-%1").arg(i));
        const std::string text = "Bild Nummer " + std::to_string(i);
        Nachricht(NachrichtText{i, "Bild", text, i % 3 + 2, 1111});
    }
}

void Fensterbilder::editor() {
    Programm programm;
    if (!Finden(programm.haupt(), QStringLiteral("cmdEdit"))->isEnabled()) {
        QSKIP("There is no editor yet");
    }
    Druecken(QStringLiteral("cmdEdit"));
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) != nullptr);
    Kindbild(Fenster(QStringLiteral("frmEditor")), QStringLiteral("frmEditor"));
    delete FensterOderNichts(QStringLiteral("frmEditor"));
}

void Fensterbilder::formularliste() {
    Programm programm;
    for (const char* name : {"KRANZ/LAGER.FKR", "KRANZ/GRUPPE1.FKR", "KRANZ/HERBST.FKR", "KRANZ/ABEND.FKR"}) {
        programm.ordner().schreiben(QLatin1String(name), QByteArray(4000, ' '));
    }
    if (!Finden(programm.haupt(), QStringLiteral("cmdDateiliste"))->isEnabled()) {
        QSKIP("There is no list of forms yet");
    }
    Druecken(QStringLiteral("cmdDateiliste"));
    Bild(FensterAbwarten(QStringLiteral("frmFKformulare")), QStringLiteral("frmFKformulare"));
}

void Fensterbilder::spielregel() {
    Programm programm;
    if (!Finden(programm.haupt(), QStringLiteral("cmdSpielregel"))->isEnabled()) {
        QSKIP("There is no view of the rule document yet");
    }
    Druecken(QStringLiteral("cmdSpielregel"));
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmBrowser")) != nullptr);
    Kindbild(Fenster(QStringLiteral("frmBrowser")), QStringLiteral("frmBrowser"));
    delete FensterOderNichts(QStringLiteral("frmBrowser"));
}

QTEST_MAIN(Fensterbilder)
#include "fensterbilder.moc"
