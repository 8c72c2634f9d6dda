// The helpers of the window tests, tried on windows made here: what they report can be trusted elsewhere.
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programmordner.h"

#include <QDrag>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace {

// Starts a drag at the press, as the forms do.
class Quelle : public QLabel {
public:
    using QLabel::QLabel;
    Qt::KeyboardModifiers gehalten;

protected:
    void mousePressEvent(QMouseEvent* ereignis) override {
        gehalten = ereignis->modifiers();
        auto* zug = new QDrag(this);
        auto* daten = new QMimeData;
        daten->setText(text());
        zug->setMimeData(daten);
        zug->exec(Qt::CopyAction);
    }
};

class Ziel : public QLabel {
public:
    explicit Ziel(QWidget* eltern) : QLabel(eltern) { setAcceptDrops(true); }
    bool darueber = false;

protected:
    void dragEnterEvent(QDragEnterEvent* ereignis) override {
        darueber = true;
        ereignis->acceptProposedAction();
    }
    void dropEvent(QDropEvent* ereignis) override { setText(ereignis->mimeData()->text()); }
};

// Goes at a key so thoroughly that the key's release finds nobody.
class Weichender : public QWidget {
public:
    int tasten = 0;

protected:
    void keyPressEvent(QKeyEvent*) override {
        ++tasten;
        hide();
        windowHandle()->destroy();
    }
};

} // namespace

class HilfeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDialogIsAnsweredByItsButton() {
        Dialogfolge folge;
        folge.kasten(QStringLiteral("Frage"), QStringLiteral("Ja oder nein?"), QStringLiteral("&Yes"));
        folge.kasten(QStringLiteral("Frage"), QStringLiteral("Ja oder nein?"), QStringLiteral("No"));
        QMessageBox kasten(QMessageBox::Question, QStringLiteral("Frage"), QStringLiteral("Ja oder nein?"),
                           QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(ModalZeigen(kasten), static_cast<int>(QMessageBox::Yes));
        QCOMPARE(folge.offen(), 1);
        QCOMPARE(ModalZeigen(kasten), static_cast<int>(QMessageBox::No));
        QVERIFY(folge.fertig());
    }

    void aShorterTimerHasFiredWhenALongerOneRanOutThoughTheMachineStoodStill() {
        bool gefeuert = false;
        QTimer::singleShot(0, this, [] { QThread::msleep(400); }); // beyond both of the others
        QTimer::singleShot(150, this, [&gefeuert] { gefeuert = true; });
        UhrenAbwarten(300);
        QVERIFY(gefeuert);
    }

    void theMouseDragsWithAModifierHeld() {
        QWidget fenster;
        QVBoxLayout anordnung(&fenster);
        auto* quelle = new Quelle(QStringLiteral("Woher kommt der Regen?"), &fenster);
        auto* ziel = new Ziel(&fenster);
        quelle->setMinimumSize(300, 60);
        ziel->setMinimumSize(300, 60);
        anordnung.addWidget(quelle);
        anordnung.addWidget(ziel);
        fenster.show();
        QVERIFY(QTest::qWaitForWindowActive(&fenster));
        bool vorDemLoslassen = true;
        maus::Ziehen(quelle, ziel, Qt::ControlModifier, [&] {
            vorDemLoslassen = vorDemLoslassen && ziel->text().isEmpty();
            return ziel->darueber;
        });
        QTRY_COMPARE(ziel->text(), QStringLiteral("Woher kommt der Regen?"));
        QVERIFY(vorDemLoslassen);
        QCOMPARE(quelle->gehalten, Qt::ControlModifier);
    }

    void theKeyboardTypesIntoTheBoxThatWasClicked() {
        QWidget fenster;
        QVBoxLayout anordnung(&fenster);
        auto* oben = new QLineEdit(&fenster);
        auto* unten = new QLineEdit(&fenster);
        unten->setObjectName(QStringLiteral("txtFrage(7)"));
        anordnung.addWidget(oben);
        anordnung.addWidget(unten);
        fenster.show();
        QVERIFY(QTest::qWaitForWindowActive(&fenster));
        maus::Klicken(Finden<QLineEdit>(&fenster, QStringLiteral("txtFrage"), 7));
        maus::Tippen(QStringLiteral("Größe 12"));
        QTRY_COMPARE(unten->text(), QStringLiteral("Größe 12"));
        maus::Taste(QStringLiteral("ctrl+a"));
        maus::Taste(QStringLiteral("Delete"));
        QTRY_COMPARE(unten->text(), QString());
        QCOMPARE(oben->text(), QString());
    }

    void aKeyThatClosesItsWindowIsSeenThoughItsReleaseReachesNobody() {
        Weichender fenster;
        fenster.show();
        QVERIFY(QTest::qWaitForWindowActive(&fenster));
        maus::Taste(QStringLiteral("Escape"));
        QCOMPARE(fenster.tasten, 1);
        QVERIFY(!fenster.isVisible());
    }

    void theMouseHitsAControlOfAWindowThatIsJustComing() {
        for (int i = 0; i < 5; ++i) {
            QWidget fenster;
            QLineEdit zeile(&fenster);
            fenster.resize(300, 100);
            fenster.show();
            maus::Bewegen(&zeile, QPoint(3, 3));
            QVERIFY(fenster.frameGeometry().top() < fenster.geometry().top());
            QCOMPARE(zeile.mapFromGlobal(QCursor::pos()), QPoint(3, 3));
        }
    }

    void theProgramFolderIsACopyAndGoesAgain() {
        QString pfad;
        {
            const Programmordner ordner;
            pfad = ordner.nativ();
            QCOMPARE(QString::fromStdString(Stand.AppPfad), QString(pfad).replace(u'/', u'\\'));
            for (const char* name : {"BITMAP", "CONFIG", "KRANZ", "REGEL", "SOUND", "TEST", "WISSEN"}) {
                QVERIFY2(QFileInfo(ordner.nativ(QLatin1String(name))).isDir(), name);
            }
            ordner.schreiben(QStringLiteral("KRANZ/A.FKR"), "1\r\n");
            QCOMPARE(ordner.lesen(QStringLiteral("KRANZ/A.FKR")), QByteArray("1\r\n"));
        }
        QVERIFY(!QFileInfo::exists(pfad));
    }

    void aPictureOfAWindowIsWritten() {
        QLabel fenster(QStringLiteral("Bild"));
        fenster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fenster));
        QVERIFY(QFileInfo(BildVon(&fenster, QStringLiteral("hilfe"))).size() > 0);
        QVERIFY(QFileInfo(BildVomBildschirm(QStringLiteral("hilfe_schirm"))).size() > 0);
    }
};

QTEST_MAIN(HilfeTest)
#include "hilfe_test.moc"
