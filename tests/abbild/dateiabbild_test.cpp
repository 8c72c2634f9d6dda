// The files that the program writes, held byte by byte against those in erwartet/: a form of each kind and
// the settings.
#include "abbildschritte.h"
#include "abbildvergleich.h"
#include "core/programmstand.h"
#include "tests/hilfe/finden.h"

#include <QAbstractButton>
#include <QFile>
#include <QTabWidget>
#include <QTest>

#include <tuple>

using abbild::BytesVergleichen;

namespace {

QByteArray Datei(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

// Saves under a new name in the folder where the file dialog stands, by the button for that.
QByteArray Gespeichert(const Abbildlauf& lauf, const char* taste, const QString& ordner) {
    const QString name = QStringLiteral("Neu.FKR");
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, {}, name, QStringLiteral("cmdSpeichern"));
    dialoge.erwarte(Irgendeiner("frmMeldung", "cmdKenntnis"));
    lauf.Druecken(QLatin1String(taste));
    return lauf.programm().ordner().lesen(ordner + u'/' + name);
}
const char* const quizUnter = "cmdDateiFK(4)";
const char* const testUnter = "cmdDateiHB(4)";

void Klicken(const QWidget* form, const char* name) {
    QTest::mouseClick(Finden(form, QLatin1String(name)), Qt::LeftButton);
}

void Register(const QDialog& dialog, int seite) {
    Finden<QTabWidget>(&dialog, QStringLiteral("tabIni"))->setCurrentIndex(seite);
}

} // namespace

class DateiabbildTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aQuizFormByHand();
    void aTestFormByHand();
    void formsFromFilesComeBackAsTheyWere_data();
    void formsFromFilesComeBackAsTheyWere();
    void theSettings();
};

void DateiabbildTest::aQuizFormByHand() {
    Abbildlauf lauf;
    const QWidget* form = lauf.NeuesQuizformular();
    for (const auto& [name, text] :
         {std::pair{"txtNr", "7"}, std::pair{"txtDatum", "24. Dezember"}, std::pair{"txtZeit", "1½ Stunden"},
          std::pair{"txtFrage(1)", "Wie heißt \"das\", was man sieht ?"},
          std::pair{"txtAntwort(1)", "Öl, Äpfel"}, std::pair{"txtFrage(30)", " Die letzte – mit Strich "},
          std::pair{"txtAntwort(30)", "5 €"}}) {
        Tippen(Finden(form, QLatin1String(name)), QString::fromUtf8(text));
    }
    auto* zweizeilig = Finden(form, QStringLiteral("txtFrage(8)"));
    Tippen(zweizeilig, QStringLiteral("Erste Zeile"));
    QTest::keyClick(zweizeilig, Qt::Key_Return);
    Tippen(zweizeilig, QStringLiteral("zweite Zeile"));
    for (const auto& [panel, liste, stelle] :
         {std::tuple{"pnlWissen(1)", "cmbWissen", 9}, std::tuple{"pnlWissen(6)", "cmbWissen", 8},
          std::tuple{"pnlSpezial(4)", "cmbSpezial", 1}, std::tuple{"pnlSpezial(8)", "cmbSpezial", 2},
          std::tuple{"pnlSpezial(12)", "cmbSpezial", 3}, std::tuple{"pnlSpezial(15)", "cmbSpezial", 4},
          std::tuple{"pnlSpezial(23)", "cmbSpezial", 5}}) {
        Klicken(form, panel);
        InOffenerListeWaehlen(form, liste, stelle);
    }
    BytesVergleichen(Gespeichert(lauf, quizUnter, QStringLiteral("KRANZ")),
                     QStringLiteral("Quizformular.FKR"));
}

void DateiabbildTest::aTestFormByHand() {
    Abbildlauf lauf;
    const QWidget* form = lauf.NeuesTestformular();
    for (const auto& [taste, liste, stelle] :
         {std::tuple{"cmdTitel", "cmbTitel", 1}, std::tuple{"cmdFach", "cmbFach", 2},
          std::tuple{"cmdGruppe", "cmbGruppe", 1}}) {
        Klicken(form, taste);
        InOffenerListeWaehlen(form, liste, stelle);
    }
    for (const auto& [name, text] : {std::pair{"txtFrage(1)", "Welcher Knoten verbindet \"zwei\" Seile ?"},
                                     std::pair{"txtAntwort(1)", "Der Kreuzknoten, für gleich dicke"},
                                     std::pair{"txtFrage(10)", "Zählt"}}) {
        Tippen(Finden(form, QLatin1String(name)), QString::fromUtf8(text));
    }
    for (const auto& [zeile, punkte] : {std::pair{1, 3}, std::pair{2, 1}, std::pair{10, 5}}) {
        auto* hoch =
            Finden<QAbstractButton>(Finden(form, QStringLiteral("spnPunkte"), zeile), QStringLiteral("hoch"));
        for (int i = 0; i < punkte; ++i) {
            QTest::mouseClick(hoch, Qt::LeftButton);
        }
    }
    BytesVergleichen(Gespeichert(lauf, testUnter, QStringLiteral("TEST")),
                     QStringLiteral("Testformular.FKR"));
}

void DateiabbildTest::formsFromFilesComeBackAsTheyWere_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("quiz");
    for (const char* name : {"Bibelabend", "Kurzabend", "Naturabend"}) {
        QTest::newRow(name) << QString::fromLatin1(name) << true;
    }
    for (const char* name : {"Erste-Hilfe", "Lagerleben"}) {
        QTest::newRow(name) << QString::fromLatin1(name) << false;
    }
}

void DateiabbildTest::formsFromFilesComeBackAsTheyWere() {
    QFETCH(QString, name);
    QFETCH(bool, quiz);
    const QString datei = name + QStringLiteral(".FKR");
    Abbildlauf lauf;
    if (quiz) {
        lauf.QuizformularOeffnen(datei);
    } else {
        lauf.TestformularOeffnen(datei);
    }
    QCOMPARE(Gespeichert(lauf, quiz ? quizUnter : testUnter,
                         quiz ? QStringLiteral("KRANZ") : QStringLiteral("TEST")),
             Datei(QStringLiteral(ABBILD_ORDNER "/formulare/") + datei));
}

void DateiabbildTest::theSettings() {
    Abbildlauf lauf;
    lauf.QuizformularOeffnen(QStringLiteral("Naturabend.FKR"));
    Einstellen(lauf, [](const QDialog& dialog, Dialogfolge& dialoge) {
        for (const auto& [seite, tasten] :
             {std::pair{1, QStringList{QStringLiteral("optZwischen(2)"), QStringLiteral("chkTitel"),
                                       QStringLiteral("chkRahmen")}},
              std::pair{2, QStringList{QStringLiteral("optFarbe(3)")}},
              std::pair{4, QStringList{QStringLiteral("chkDatei"), QStringLiteral("optDrucken(0)")}},
              std::pair{5, QStringList{QStringLiteral("chkMaxSpezial")}}}) {
            Register(dialog, seite);
            for (const QString& taste : tasten) {
                Abbildlauf::Druecken(&dialog, taste);
            }
        }
        Register(dialog, 3);
        auto* hoch =
            Finden<QAbstractButton>(Finden(&dialog, QStringLiteral("spnPunkteV"), 0), QStringLiteral("hoch"));
        auto* runter = Finden<QAbstractButton>(Finden(&dialog, QStringLiteral("spnFelderV"), 3),
                                               QStringLiteral("runter"));
        QTest::mouseClick(hoch, Qt::LeftButton);
        QTest::mouseClick(hoch, Qt::LeftButton);
        QTest::mouseClick(runter, Qt::LeftButton);
        dialoge.erwarte(Irgendeiner("frmNachricht", "cmdAntwort(4)"));
        Abbildlauf::Druecken(&dialog, QStringLiteral("cmdIniSpeichern"));
    });
    QByteArray bytes = lauf.programm().ordner().lesen(QStringLiteral("CONFIG/Feldkranz.INI"));
    const QByteArray ordner = QByteArray::fromStdString(Stand.AppPfad);
    bytes.replace(ordner, "<AppPfad>").replace(ordner.toUpper(), "<AppPfad>");
    BytesVergleichen(bytes, QStringLiteral("Feldkranz.INI"));
}

QTEST_MAIN(DateiabbildTest)
#include "dateiabbild_test.moc"
