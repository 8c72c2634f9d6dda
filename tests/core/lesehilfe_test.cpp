// Larger letters and high contrast, as the desktop asks for them. Runs on a message bus of its own, on which
// the test itself plays the desktop.
#include "core/lesehilfe.h"

#include "core/oberflaeche.h"
#include "mainwindow/frmMDI.h"
#include "tests/core/kontrasthilfe.h"
#include "tests/core/platzhilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/quizform/formhilfe.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMdiArea>
#include <QScopeGuard>

constexpr double groesster = Schriftfaktor(100.0);

// The settings as a desktop tells them.
class Schreibtisch : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint kontrast = 0;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString& bereich, const QString& schluessel) {
        const bool gefragt = bereich == QStringLiteral("org.freedesktop.appearance") &&
                             schluessel == QStringLiteral("contrast");
        return QDBusVariant(QVariant::fromValue(QDBusVariant(gefragt ? kontrast : 0U)));
    }
};

class LesehilfeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lettersAreEnlargedByWhatTheDesktopAddsToItsUsualSize_data();
    void lettersAreEnlargedByWhatTheDesktopAddsToItsUsualSize();
    void theDesktopsContrastIsFollowedWhenOneComesBackFromChangingIt();
    void highContrastIsSevenToOneEverywhere();
    void windowsWithLargerLettersAreWhole_data();
    void windowsWithLargerLettersAreWhole();
    void theFileDialogWithLargerLettersIsWhole();
    void theFormKeepsItsMeasures();

private:
    Schreibtisch schreibtisch_;
};

void LesehilfeTest::initTestCase() {
    // Another connection than the program's, which would not be told of its own signals.
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("schreibtisch"));
    QVERIFY(bus.isConnected());
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &schreibtisch_,
                               QDBusConnection::ExportScriptableContents));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    schreibtisch_.kontrast = 1;
    OberflaecheEinrichten();
    QTRY_COMPARE(QApplication::palette().color(QPalette::Window), QColor(Qt::white)); // asked at the start
    KontrastSetzen(false);
}

void LesehilfeTest::lettersAreEnlargedByWhatTheDesktopAddsToItsUsualSize_data() {
    QTest::addColumn<double>("punkte");
    QTest::addColumn<double>("faktor");
    QTest::newRow("none told") << -1.0 << 1.0;
    QTest::newRow("small") << 9.0 << 1.0;
    QTest::newRow("usual") << 11.0 << 1.0;
    QTest::newRow("larger") << 13.75 << 1.25;
    QTest::newRow("the end") << 14.3 << 1.3;
    QTest::newRow("beyond") << 40.0 << 1.3;
}

void LesehilfeTest::lettersAreEnlargedByWhatTheDesktopAddsToItsUsualSize() {
    QFETCH(const double, punkte);
    QFETCH(const double, faktor);
    QCOMPARE(Schriftfaktor(punkte), faktor);
}

void LesehilfeTest::theDesktopsContrastIsFollowedWhenOneComesBackFromChangingIt() {
    for (const uint wert : {1U, 0U}) {
        schreibtisch_.kontrast = wert;
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive); // back from the desktop's settings
        // Windows that stand hear of it in an application that runs, which a test doesn't.
        QTRY_COMPARE(QWidget().palette().color(QPalette::Window),
                     Programmpalette(wert == 1).color(QPalette::Window));
    }
}

void LesehilfeTest::highContrastIsSevenToOneEverywhere() {
    const QPalette palette = Programmpalette(true);
    for (const auto& [schrift, grund] : {std::pair{QPalette::WindowText, QPalette::Window},
                                         {QPalette::Text, QPalette::Base},
                                         {QPalette::ButtonText, QPalette::Button},
                                         {QPalette::HighlightedText, QPalette::Highlight},
                                         {QPalette::Link, QPalette::Base},
                                         {QPalette::PlaceholderText, QPalette::Base}}) {
        QVERIFY(Kontrast(palette.color(schrift).rgb(), palette.color(grund).rgb()) >= 7.0);
    }
}

void LesehilfeTest::windowsWithLargerLettersAreWhole_data() {
    QTest::addColumn<QString>("befehl");
    QTest::addColumn<QString>("name");
    QTest::newRow("search") << "mExtra(4)"
                            << "frmSuche";
    QTest::newRow("check") << "mExtra(6)"
                           << "frmPruefung";
    QTest::newRow("preview") << "mExtra(8)"
                             << "frmVorschau";
}

void LesehilfeTest::windowsWithLargerLettersAreWhole() {
    QFETCH(const QString, befehl);
    QFETCH(const QString, name);
    SchriftfaktorVorgeben(groesster);
    const auto zurueck = qScopeGuard([] { SchriftfaktorVorgeben(1.0); });
    Programm programm;
    programm.NeuesQuizformular();
    MDIFenster()->findChild<QAction*>(befehl)->trigger();
    QTRY_VERIFY(FensterOderNichts(name) != nullptr);
    const QWidget* fenster = Fenster(name);
    QTRY_VERIFY(fenster->isVisible());
    QCOMPARE(fenster->font().pixelSize(), qRound(Schrift(9_pt).pixelSize() * groesster));
    NichtsVerdeckt(fenster);
}

void LesehilfeTest::theFileDialogWithLargerLettersIsWhole() {
    SchriftfaktorVorgeben(groesster);
    const auto zurueck = qScopeGuard([] { SchriftfaktorVorgeben(1.0); });
    const Programm programm;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdAbbrechen")},
                     [](QDialog& dialog) {
                         QVERIFY(Finden(&dialog, QStringLiteral("txtDateiname"))->font().pixelSize() >
                                 Schrift(9_pt).pixelSize());
                         NichtsVerdeckt(&dialog, {QStringLiteral("lblDir")});
                     }});
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    Finden<QAbstractButton>(MDIFenster(), QStringLiteral("cmdLaden"))->click();
    QVERIFY(dialoge.fertig());
}

void LesehilfeTest::theFormKeepsItsMeasures() {
    Programm gewoehnlich;
    const QSize groesse = gewoehnlich.NeuesQuizformular()->size();
    const QFont schrift = FKFragenOffen()->txtFrage.at(1)->font();
    FK_Entladen();
    SchriftfaktorVorgeben(groesster);
    const auto zurueck = qScopeGuard([] { SchriftfaktorVorgeben(1.0); });
    const frmFKFragen* form = gewoehnlich.NeuesQuizformular();
    QCOMPARE(form->size(), groesse);
    QCOMPARE(form->txtFrage.at(1)->font(), schrift);
}

QTEST_MAIN(LesehilfeTest)
#include "lesehilfe_test.moc"
