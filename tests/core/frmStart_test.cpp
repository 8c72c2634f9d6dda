// The start window: size, version line, its one button, and the messages when its picture fails.
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

class Start {
public:
    Start() {
        QApplication::setQuitOnLastWindowClosed(false);
        OberflaecheEinrichten();
    }
    ~Start() {
        delete FensterOderNichts(QStringLiteral("frmStart"));
        delete MDIFenster();
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    QPointer<frmStart> Zeigen() {
        fenster_ = new frmStart;
        fenster_->show();
        [[maybe_unused]] const bool da = QTest::qWaitForWindowActive(fenster_);
        return fenster_;
    }

    Programmordner ordner;

private:
    QPointer<frmStart> fenster_;
};

} // namespace

class FrmStartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowHasItsSizeTitleAndVersion();
    void aMissingPictureGivesTheFullPathAndTheWindowGoesOn();
    void aDamagedPictureGivesTheOtherMessage();
    void onlyTheButtonGoesOnToTheMainWindow();
    void enterPressesTheButton();
    void aFolderThatTakesNoFileIsToldWithWhatToDo();
    void whatAKilledProgramLeftGoesAndRescuedFormsStay();
};

void FrmStartTest::theWindowHasItsSizeTitleAndVersion() {
    Start start;
    const QPointer<frmStart> fenster = start.Zeigen();
    QCOMPARE(fenster->size(), QSize(374, 203)); // 5605 x 3045 twips
    QCOMPARE(fenster->windowTitle(), QStringLiteral("Am Start ..."));
    QCOMPARE(Finden<QLabel>(fenster, QStringLiteral("lblVersion"))->text(), QStringLiteral("[ Rev. 8.0.1 ]"));
    const auto* taste = Finden<QPushButton>(fenster, QStringLiteral("cmdStart"));
    QCOMPARE(taste->toolTip(), QStringLiteral("Weiter zum Programm !"));
    QVERIFY(taste->fontMetrics().horizontalAdvance(taste->text()) < taste->width() - 8);
    QCOMPARE(Finden<QTimer>(fenster, QStringLiteral("Timer1"))->interval(), 2500);
}

void FrmStartTest::aMissingPictureGivesTheFullPathAndTheWindowGoesOn() {
    Start start;
    QVERIFY(QFile::remove(start.ordner.nativ(QStringLiteral("BITMAP/FK_START.bmp"))));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich kann [ ") + QString::fromStdString(Stand.AppPfad) +
                        QStringLiteral("\\BITMAP\\FK_START.bmp ] nicht finden !"),
                    QStringLiteral("Hab ich das denn ins Programmverzeichnis kopiert ?"));
    const QPointer<frmStart> fenster = start.Zeigen();
    QVERIFY(dialoge.fertig());
    QVERIFY(fenster->isVisible());
}

void FrmStartTest::aDamagedPictureGivesTheOtherMessage() {
    Start start;
    start.ordner.schreiben(QStringLiteral("BITMAP/FK_START.bmp"), "kein Bild");
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich habe Probleme !"), QStringLiteral("Das ist ja ganz ungewohnt"));
    QVERIFY(start.Zeigen()->isVisible());
}

void FrmStartTest::onlyTheButtonGoesOnToTheMainWindow() {
    Start start;
    const QPointer<frmStart> fenster = start.Zeigen();
    QTest::mouseClick(fenster, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    QVERIFY(fenster->isVisible());
    QVERIFY(MDIFenster() == nullptr);
    QTest::mouseClick(Finden(fenster, QStringLiteral("cmdStart")), Qt::LeftButton);
    QTRY_VERIFY(fenster.isNull());
    QVERIFY(MDIFenster() != nullptr && MDIFenster()->isVisible());
}

void FrmStartTest::enterPressesTheButton() {
    Start start;
    const QPointer<frmStart> fenster = start.Zeigen();
    QTest::keyClick(fenster->focusWidget(), Qt::Key_Return);
    QTRY_VERIFY(fenster.isNull());
}

void FrmStartTest::aFolderThatTakesNoFileIsToldWithWhatToDo() {
    const Start start;
    Dialogfolge dialoge;
    SchreibortPruefen(Stand.AppPfad); // nothing to tell
    const std::string ordner = Stand.AppPfad + "\\fehlt";
    dialoge.meldung(
        QStringLiteral("In meinem Ordner\n[ ") + QString::fromStdString(ordner) +
            QStringLiteral(" ]\nkann ich nichts speichern.\n"
                           "Kopiere ihn dorthin, wo du schreiben darfst,\nund starte mich von dort."),
        QStringLiteral("Gut, das mache ich"));
    SchreibortPruefen(ordner);
    QVERIFY(dialoge.fertig());
}

void FrmStartTest::whatAKilledProgramLeftGoesAndRescuedFormsStay() {
    Start start;
    const QStringList reste{QStringLiteral("KRANZ/.feldkranz-1a2b3c4d5e6f7a8b.neu"),
                            QStringLiteral("KRANZ/LAGER/.feldkranz-2.neu"),
                            QStringLiteral("CONFIG/.feldkranz-3.neu"),
                            QStringLiteral("WISSEN/LAND/.feldkranz-4.neu")};
    const QStringList bleiben{QStringLiteral("KRANZ/UNGESICHERT.BAK"),
                              QStringLiteral("TEST/UNGESICHERT1.BAK"), QStringLiteral("KRANZ/A.FKR")};
    for (const QString& datei : reste + bleiben) {
        start.ordner.schreiben(datei, "etwas");
    }
    start.Zeigen();
    for (const QString& datei : reste) {
        QTRY_VERIFY2(!start.ordner.vorhanden(datei), qPrintable(datei));
    }
    for (const QString& datei : bleiben) {
        QVERIFY2(start.ordner.vorhanden(datei), qPrintable(datei));
    }
}

QTEST_MAIN(FrmStartTest)
#include "frmStart_test.moc"
