#include "tests/hilfe/programm.h"

#include "catalogue/auswahl.h"
#include "catalogue/themen.h"
#include "core/fortschritt.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "editor/editor.h"
#include "editor/editordaten.h"
#include "forms/formulare.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "testform/testformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/versagen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QTest>

void ZustandZuruecksetzen() {
    const std::string pfad = Stand.AppPfad; // where the program lies doesn't change
    Stand = {};
    Stand.AppPfad = pfad;
    FKForm = {};
    HBForm = {};
    Spiel = {};
    Katalog = {};
    Editor = {};
    Fortschritt = {};
    BildschirmgroesseVorgeben(QSize());
}

Programm::Programm(bool mitEinstellungen) {
    ZustandZuruecksetzen();
    if (!mitEinstellungen) {
        QFile::remove(ordner_.nativ(QStringLiteral("CONFIG/Feldkranz.INI")));
    }
    static const bool eingerichtet = [] {
        OberflaecheEinrichten();
        QApplication::setQuitOnLastWindowClosed(false); // the test goes on without a window
        return true;
    }();
    Q_UNUSED(eingerichtet);
    HauptfensterZeigen();
    if (!QTest::qWaitForWindowActive(MDIFenster())) {
        VersagenUndEnde(QStringLiteral("The main window never became active"), Stelle::hier());
    }
}

Programm::~Programm() {
    FormStatusSetzen(false);
    FormulareEntladen();
    EditorEntladen();
    delete FensterOderNichts(QStringLiteral("frmAuswahl"));
    delete MDIFenster();
    NormalerZeiger();
}

frmMDI* Programm::haupt() const {
    return MDIFenster();
}

frmFKFragen* Programm::NeuesQuizformular() {
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                 "(Das kann einen kleinen Moment dauern.)"),
                  6);
    const bool amAnfang = Finden(haupt(), QStringLiteral("picKranz"))->isVisible();
    Finden<QAbstractButton>(haupt(), amAnfang ? QStringLiteral("cmdNeuFK") : QStringLiteral("cmdDateiFK(1)"))
        ->click();
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || !QTest::qWaitFor([form] { return form->isVisible(); })) {
        VersagenUndEnde(QStringLiteral("The new quiz form never showed"), Stelle::hier());
    }
    return form;
}

frmHBFragen* Programm::NeuesTestformular() {
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Test-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Test-Formular !"), 6);
    const bool amAnfang = Finden(haupt(), QStringLiteral("picKranz"))->isVisible();
    Finden<QAbstractButton>(haupt(), amAnfang ? QStringLiteral("cmdNeuHB") : QStringLiteral("cmdDateiHB(1)"))
        ->click();
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr || !QTest::qWaitFor([form] { return form->isVisible(); })) {
        VersagenUndEnde(QStringLiteral("The new test form never showed"), Stelle::hier());
    }
    return form;
}
