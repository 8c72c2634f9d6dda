// The forms' sizes as the main window keeps them: its entries, what is kept between two evenings, and that
// the rule document has the same keys for itself.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "forms/formulare.h"
#include "persistence/extrasdatei.h"
#include "quizform/frmFKFragen.h"
#include "testform/frmHBFragen.h"
#include "tests/core/groessenhilfe.h"

#include <QAction>

namespace {

const QString extras = QStringLiteral("CONFIG/EXTRAS.INI");

QStringList Zeilen(const Programm& programm) {
    QStringList zeilen;
    for (const QByteArray& zeile : programm.ordner().lesen(extras).split('\n')) {
        if (zeile.startsWith("Formular.")) {
            zeilen << QString::fromUtf8(zeile).trimmed();
        }
    }
    return zeilen;
}

// The file as an earlier evening has left it.
void Hinterlassen(const Programm& programm, const QByteArray& bytes) {
    programm.ordner().schreiben(extras, bytes);
    const std::string hier = Stand.AppPfad;
    Stand.AppPfad += "\\nirgends"; // what was read once isn't read again, but for another folder
    QCOMPARE(ExtraWert("Formular.Groesse"), std::string());
    Stand.AppPfad = hier;
}

// The entries as they stand: in use, and which one is checked.
QString Eintraege(const Programm& programm) {
    QString stand;
    for (int i = 10; i <= 13; ++i) {
        const QAction* eintrag = Groesseneintrag(programm, i);
        stand += eintrag->isEnabled() ? (eintrag->isChecked() ? u'x' : u'o') : u'-';
    }
    return stand;
}

} // namespace

class FormulargroesseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theEntriesAreOutOfUseWithoutAForm();
    void theEntriesDoWhatTheKeysDo();
    void whatWasChosenIsKeptInTheFileOfTheExtras();
    void whatWasKeptHoldsForTheNextFormOfEitherKind();
    void damagedValuesMeanTheDefaults_data();
    void damagedValuesMeanTheDefaults();
    void atTheLimitsTheFormStaysAndIsTold();
    void anotherWindowInFrontHasItsKeysForItself();
};

void FormulargroesseTest::theEntriesAreOutOfUseWithoutAForm() {
    Programm programm;
    QCOMPARE(Eintraege(programm), QStringLiteral("----"));
    maus::Taste(QStringLiteral("ctrl+minus"));
    programm.NeuesQuizformular();
    QTRY_COMPARE(Eintraege(programm), QStringLiteral("ooox"));
    FormulareEntladen();
    QTRY_COMPARE(Eintraege(programm), QStringLiteral("----"));
    QCOMPARE(Zeilen(programm), QStringList());
    const frmHBFragen* form = programm.NeuesTestformular();
    QTRY_COMPARE(Eintraege(programm), QStringLiteral("ooox"));
    QCOMPARE(Prozent(form), 100);
}

void FormulargroesseTest::theEntriesDoWhatTheKeysDo() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    Groesseneintrag(programm, 10)->trigger();
    QCOMPARE(Prozent(form), 110);
    QCOMPARE(Eintraege(programm), QStringLiteral("oooo"));
    Groesseneintrag(programm, 11)->trigger();
    Groesseneintrag(programm, 11)->trigger();
    QCOMPARE(Prozent(form), 90);
    Groesseneintrag(programm, 12)->trigger();
    QCOMPARE(Prozent(form), 100);
    QCOMPARE(Hilfezeile(programm), QStringLiteral(" Das Formular ist jetzt auf 100 % seiner Größe. "));
    Groesseneintrag(programm, 10)->trigger();
    Groesseneintrag(programm, 13)->trigger(); // there is room for the original, and no more is wanted
    QCOMPARE(Prozent(form), 100);
    QCOMPARE(Eintraege(programm), QStringLiteral("ooox"));
}

void FormulargroesseTest::whatWasChosenIsKeptInTheFileOfTheExtras() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Stellen(form, 80);
    QCOMPARE(Zeilen(programm),
             (QStringList{QStringLiteral("Formular.Anpassen=0"), QStringLiteral("Formular.Groesse=80")}));
    Groesseneintrag(programm, 13)->trigger();
    QCOMPARE(Zeilen(programm).first(), QStringLiteral("Formular.Anpassen=1"));
    maus::Taste(QStringLiteral("ctrl+0"));
    QTRY_COMPARE(Zeilen(programm), (QStringList{QStringLiteral("Formular.Anpassen=0"),
                                                QStringLiteral("Formular.Groesse=100")}));
}

void FormulargroesseTest::whatWasKeptHoldsForTheNextFormOfEitherKind() {
    Programm programm;
    Hinterlassen(programm, "Formular.Anpassen=0\r\nFormular.Groesse=120\r\n");
    const frmFKFragen* quiz = programm.NeuesQuizformular();
    QCOMPARE(Prozent(quiz), 120);
    QCOMPARE(quiz->size(), QSize(1475, 871));
    QCOMPARE(Rahmen(quiz)->size(), Rahmen(quiz)->sizeHint());
    QTRY_COMPARE(Eintraege(programm), QStringLiteral("oooo"));
    FormulareEntladen();
    const frmHBFragen* test = programm.NeuesTestformular();
    QCOMPARE(Prozent(test), 120);
}

void FormulargroesseTest::damagedValuesMeanTheDefaults_data() {
    QTest::addColumn<QByteArray>("groesse");
    QTest::newRow("too small") << QByteArray("20");
    QTest::newRow("too large") << QByteArray("300");
    QTest::newRow("no number") << QByteArray("gross");
    QTest::newRow("more than a number") << QByteArray("80 %");
}

void FormulargroesseTest::damagedValuesMeanTheDefaults() {
    QFETCH(QByteArray, groesse);
    Programm programm;
    Hinterlassen(programm, "Formular.Anpassen=0\r\nFormular.Groesse=" + groesse + "\r\n");
    QCOMPARE(Prozent(programm.NeuesQuizformular()), 100);
}

void FormulargroesseTest::atTheLimitsTheFormStaysAndIsTold() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Stellen(form, 60);
    maus::Taste(QStringLiteral("ctrl+minus"));
    QTRY_COMPARE(
        Hilfezeile(programm),
        QStringLiteral(" Kleiner mache ich das Formular nicht, es ist schon auf 60 % seiner Größe. "));
    QCOMPARE(Prozent(form), 60);
    Stellen(form, 200);
    maus::Taste(QStringLiteral("ctrl+plus"));
    QTRY_COMPARE(
        Hilfezeile(programm),
        QStringLiteral(" Größer mache ich das Formular nicht, es ist schon auf 200 % seiner Größe. "));
    QCOMPARE(form->size(), QSize(2458, 1452));
}

void FormulargroesseTest::anotherWindowInFrontHasItsKeysForItself() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdSpielregel"))->click();
    QWidget* regel = FensterAbwarten(QStringLiteral("frmBrowser"));
    QTRY_COMPARE(AktivesKind(), regel);
    for (int i = 10; i <= 12; ++i) {
        QCOMPARE(Groesseneintrag(programm, i)->shortcutContext(), Qt::WidgetShortcut);
    }
    maus::Taste(QStringLiteral("ctrl+minus"));
    maus::Taste(QStringLiteral("ctrl+plus"));
    QCOMPARE(Prozent(form), 100);
    QCOMPARE(Zeilen(programm), QStringList());
    KindNachVorn(form);
    maus::Taste(QStringLiteral("ctrl+minus"));
    QTRY_COMPARE(Prozent(form), 90);
}

QTEST_MAIN(FormulargroesseTest)
#include "formulargroesse_test.moc"
