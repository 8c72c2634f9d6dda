// The dialog for one line of text.
#include "core/oberflaeche.h"
#include "dialogs/eingabe.h"
#include "dialogs/modal.h"
#include "tests/dialogs/dialogwarten.h"
#include "tests/hilfe/programmordner.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

QLineEdit& Zeile(QDialog& dialog) {
    return Kind<QLineEdit>(dialog, "txtInput");
}
void Klick(QDialog& dialog, const char* taste) {
    QTest::mouseClick(&Kind<QPushButton>(dialog, taste), Qt::LeftButton);
}
// Waits until the window has the focus and everything that this repaints is painted.
void Bereit(QDialog& dialog) {
    QTRY_VERIFY(Zeile(dialog).hasFocus());
    dialog.repaint();
}

const QString fenster = QStringLiteral("frmInput");

std::optional<std::string> Gefragt(std::string_view vorgabe = "ABEND") {
    return Eingabe(3, "Datei kopieren !", "Wie soll die neue Datei\r\nheißen ?", vorgabe);
}
QString Ergebnis() {
    return QString::fromStdString(Gefragt().value_or("(nothing)"));
}

} // namespace

class EingabeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { OberflaecheEinrichten(); }
    void cleanup() { ModalHandlerSetzen({}); }

    void theDialogShowsRequestTitlePictureAndProposal() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            QCOMPARE(dialog.size(), QSize(235, 199));
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Datei kopieren !"));
            QCOMPARE(Kind<QLabel>(dialog, "lblInput").text(),
                     QStringLiteral("Wie soll die neue Datei\nheißen ?"));
            QCOMPARE(Kind<QLabel>(dialog, "lblInput").x(), 5);
            QCOMPARE(Kind<QLabel>(dialog, "lblInput").width(), 223);
            for (int i = 1; i <= 8; ++i) {
                const auto& bild = Kind<QLabel>(dialog, qPrintable(QStringLiteral("picSymbol(%1)").arg(i)));
                QCOMPARE(bild.isVisible(), i == 3);
                QCOMPARE(bild.pos(), QPoint(104, 12));
            }
            Bereit(dialog);
            QCOMPARE(Zeile(dialog).text(), QStringLiteral("ABEND"));
            Klick(dialog, "cmdOK");
        });
        QCOMPARE(Ergebnis(), QStringLiteral("ABEND"));
        QVERIFY(warter.fertig());
    }

    void theProposalStandsSelectedSoThatTypingReplacesIt() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            Bereit(dialog);
            QTRY_COMPARE(Zeile(dialog).selectedText(), QStringLiteral("ABEND"));
            QTest::keyClicks(&Zeile(dialog), QStringLiteral("Lager"));
            Klick(dialog, "cmdOK");
        });
        QCOMPARE(Ergebnis(), QStringLiteral("Lager"));
        QVERIFY(warter.fertig());
    }

    void typedTextOutlivesThePaintingOfTheLineAlone() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            Bereit(dialog);
            QTest::keyClicks(&Zeile(dialog), QStringLiteral("Lager"));
            for (int i = 0; i < 3; ++i) {
                Zeile(dialog).update();
                QCoreApplication::processEvents();
                Zeile(dialog).repaint();
            }
            QCOMPARE(Zeile(dialog).text(), QStringLiteral("Lager"));
            Klick(dialog, "cmdOK");
        });
        QCOMPARE(Ergebnis(), QStringLiteral("Lager"));
        QVERIFY(warter.fertig());
    }

    void paintingTheWindowAnewPutsTheProposalBack() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            Bereit(dialog);
            QTest::keyClicks(&Zeile(dialog), QStringLiteral("Lager"));
            dialog.repaint();
            QCOMPARE(Zeile(dialog).text(), QStringLiteral("ABEND"));
            Klick(dialog, "cmdOK");
        });
        QCOMPARE(Ergebnis(), QStringLiteral("ABEND"));
        QVERIFY(warter.fertig());
    }

    void abbrechenReturnsNothing() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            Bereit(dialog);
            QTest::keyClicks(&Zeile(dialog), QStringLiteral("Lager"));
            Klick(dialog, "cmdAbbruch");
        });
        QVERIFY(!Gefragt());
        QVERIFY(warter.fertig());
    }

    void escAndTheFrameAreAbbrechen() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) { QTest::keyClick(&Zeile(dialog), Qt::Key_Escape); });
        warter.dann(fenster, [](QDialog& dialog) {
            Zeile(dialog).setText(QStringLiteral("Lager"));
            dialog.close();
        });
        QVERIFY(!Gefragt("eins"));
        QVERIFY(!Gefragt("zwei"));
        QVERIFY(warter.fertig());
    }

    void enterInTheLineIsOk_data() {
        QTest::addColumn<int>("taste");
        QTest::addColumn<int>("dazu");
        QTest::newRow("Enter, code 13") << int{Qt::Key_Return} << int{Qt::NoModifier};
        QTest::newRow("Enter of the number pad") << int{Qt::Key_Enter} << int{Qt::KeypadModifier};
        QTest::newRow("Ctrl+O, code 15") << int{Qt::Key_O} << int{Qt::ControlModifier};
    }
    void enterInTheLineIsOk() {
        QFETCH(const int, taste);
        QFETCH(const int, dazu);
        Dialogwarter warter;
        warter.dann(fenster, [&](QDialog& dialog) {
            Bereit(dialog);
            QTest::keyClicks(&Zeile(dialog), QStringLiteral("Lager"));
            QTest::keyClick(&Zeile(dialog), static_cast<Qt::Key>(taste),
                            static_cast<Qt::KeyboardModifier>(dazu));
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(Ergebnis(), QStringLiteral("Lager"));
        QVERIFY(warter.fertig());
    }

    void helpDoesNothing() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            Klick(dialog, "cmdHilfe");
            QVERIFY(dialog.isVisible());
            QCOMPARE(Kind<QPushButton>(dialog, "cmdHilfe").toolTip(),
                     QStringLiteral("Wenn erforderlich, wird hier ein Hilfesystem implementiert."));
            QCOMPARE(Kind<QPushButton>(dialog, "cmdOK").toolTip(), QStringLiteral("Eingabe übernehmen."));
            QCOMPARE(Kind<QPushButton>(dialog, "cmdAbbruch").toolTip(), QStringLiteral("Eingabe abbrechen."));
            Klick(dialog, "cmdOK");
        });
        Ergebnis();
        QVERIFY(warter.fertig());
    }

private:
    Programmordner programm_;
};

QTEST_MAIN(EingabeTest)
#include "eingabe_test.moc"
