// The toolbars of a narrow window: nothing lies over anything, and what has no room is in the menu at the
// end.
#include "mainwindow/mehrmenue.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/schaltflaechen.h"
#include "tests/hilfe/bild.h"
#include "tests/quizform/formhilfe.h"

#include <QMenu>
#include <QTimer>
#include <QToolButton>

namespace {

QToolButton* Mehr() {
    return Finden<QToolButton>(MDIFenster(), QStringLiteral("cmdMehr"));
}

// Everything of the bars that one sees: buttons, the miniature or the total, and the flag.
QList<QWidget*> Sichtbare() {
    QWidget* leiste = Finden(MDIFenster(), QStringLiteral("pnlKranz"));
    QList<QWidget*> sichtbare;
    for (QToolButton* taste : leiste->findChildren<QToolButton*>()) {
        if (taste->isVisible()) {
            sichtbare << taste;
        }
    }
    for (const char* name : {"picSpezial", "pnlHBPun", "picEingabeFlagGruen", "picEingabeFlagRot"}) {
        if (auto* teil = leiste->findChild<QWidget*>(QLatin1String(name));
            teil != nullptr && teil->isVisible()) {
            sichtbare << teil;
        }
    }
    return sichtbare;
}

QRect Ort(const QWidget* teil) {
    return {teil->mapTo(MDIFenster(), QPoint(0, 0)), teil->size()};
}

void NichtsUebereinander() {
    const QList<QWidget*> teile = Sichtbare();
    for (const QWidget* teil : teile) {
        QVERIFY2(MDIFenster()->rect().contains(Ort(teil)), qPrintable(teil->objectName()));
        for (const QWidget* anderes : teile) {
            QVERIFY2(teil == anderes || !Ort(teil).intersects(Ort(anderes)),
                     qPrintable(teil->objectName() + u' ' + anderes->objectName()));
        }
    }
}

QStringList Eintraege() {
    QStringList namen;
    Q_EMIT Mehr()->menu()->aboutToShow();
    for (const QAction* eintrag : Mehr()->menu()->actions()) {
        namen << eintrag->objectName();
    }
    return namen;
}

// The buttons of the mode, in the row or in the menu.
void AlleDa(Leiste leiste) {
    const QStringList imMenue = Eintraege();
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        const QString name = Anzeige(zeile.name);
        if ((zeile.leiste != leiste && zeile.leiste != Leiste::Immer) ||
            (name == QStringLiteral("cmdEnde") && leiste != Leiste::Kranz)) {
            QVERIFY2(!imMenue.contains(name), qPrintable(name));
            continue;
        }
        const bool inReihe = Finden<QToolButton>(MDIFenster(), name)->isVisible();
        QVERIFY2(inReihe != imMenue.contains(name), qPrintable(name));
    }
    QCOMPARE(Mehr()->isVisible(), !imMenue.isEmpty());
}

void Breite(int breite) {
    MDIFenster()->showNormal();
    MDIFenster()->resize(breite, 560);
    QTRY_COMPARE(MDIFenster()->width(), breite);
}

} // namespace

class MehrmenueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingLiesOverAnythingAndEveryButtonIsSomewhere_data();
    void nothingLiesOverAnythingAndEveryButtonIsSomewhere();
    void aWideWindowHasNoMenu();
    void anEntryDoesWhatItsButtonDoes();
    void anEntryIsSwitchedAndOutOfUseAsItsButtonIs();
};

void MehrmenueTest::nothingLiesOverAnythingAndEveryButtonIsSomewhere_data() {
    QTest::addColumn<int>("breite");
    for (const int breite : {640, 700, 760, 800, 860, 960, 1024, 1200}) {
        QTest::addRow("%d", breite) << breite;
    }
}

void MehrmenueTest::nothingLiesOverAnythingAndEveryButtonIsSomewhere() {
    QFETCH(int, breite);
    Programm programm;
    Breite(breite);
    NichtsUebereinander();
    AlleDa(Leiste::Kranz);
    programm.NeuesQuizformular();
    NichtsUebereinander();
    AlleDa(Leiste::FK);
    if (breite == 640) {
        QVERIFY(QTest::qWaitForWindowExposed(MDIFenster()));
        BildVomBildschirm(QStringLiteral("mehrmenue"));
    }
    ModusTest();
    NichtsUebereinander();
    AlleDa(Leiste::HB);
    ModusHaupt();
    AlleDa(Leiste::Kranz);
}

void MehrmenueTest::aWideWindowHasNoMenu() {
    Programm programm;
    Breite(700);
    programm.NeuesQuizformular();
    QVERIFY(Mehr()->isVisible());
    QVERIFY(!Finden(MDIFenster(), QStringLiteral("cmdeMail"))->isVisible());
    Breite(1250);
    QTRY_VERIFY(!Mehr()->isVisible());
    QVERIFY(Finden(MDIFenster(), QStringLiteral("cmdeMail"))->isVisible());
    NichtsUebereinander();
}

void MehrmenueTest::anEntryDoesWhatItsButtonDoes() {
    Programm programm;
    Breite(700);
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("getippt"));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    QTimer offen; // the press runs the menu's loop
    QObject::connect(&offen, &QTimer::timeout, Mehr()->menu(), [&offen] {
        QMenu* menue = Mehr()->menu();
        if (menue->isVisible()) {
            offen.stop();
            auto* eintrag = Finden<QAction>(menue, QStringLiteral("cmdTarvo"));
            QCOMPARE(eintrag->text(), QStringLiteral("Tarvo"));
            QCOMPARE(eintrag->toolTip(), QStringLiteral("Wer die Fragen gesammelt hat."));
            QVERIFY(!eintrag->icon().isNull());
            QCOMPARE(FKForm.FrageText[1], std::string("getippt")); // the press took the focus
            QTest::mouseClick(menue, Qt::LeftButton, {}, menue->actionGeometry(eintrag).center());
        }
    });
    offen.start(10);
    maus::Druecken(Mehr());
    QTRY_VERIFY(dialoge.fertig());
}

void MehrmenueTest::anEntryIsSwitchedAndOutOfUseAsItsButtonIs() {
    Programm programm;
    Breite(640);
    programm.NeuesQuizformular();
    auto* taste = Finden<QToolButton>(MDIFenster(), QStringLiteral("cmdIni"));
    if (taste->isVisible()) {
        InsMenue(*taste, true);
    }
    QVERIFY(Eintraege().contains(QStringLiteral("cmdIni")));
    QVERIFY(Finden<QAction>(Mehr()->menu(), QStringLiteral("cmdIni"))->isEnabled());
    taste->setEnabled(false);
    QVERIFY(Eintraege().contains(QStringLiteral("cmdIni")));
    QVERIFY(!Finden<QAction>(Mehr()->menu(), QStringLiteral("cmdIni"))->isEnabled());
    taste->setEnabled(true);
}

QTEST_MAIN(MehrmenueTest)
#include "mehrmenue_test.moc"
