#include "formlauf.h"

#include "core/hauptfenster.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "persistence/formulardatei.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/hbformular.h"
#include "tests/hilfe/finden.h"
#include "vorgaben.h"

#include <QAbstractButton>
#include <QDir>
#include <QTest>

void Formlauf::Vorbereiten() {
    // One program for all tests: its file dialog remembers the folder it was in.
    if (programm_ == nullptr) {
        programm_ = std::make_unique<Programm>(false);
    }
    FormStatusSetzen(false);
    FK_Entladen();
    HB_Entladen();
    ZustandZuruecksetzen();
    ModusHaupt();
    QDir ordner(programm_->ordner().nativ(QStringLiteral("KRANZ")));
    for (const QString& name : ordner.entryList(QDir::Files)) {
        ordner.remove(name);
    }
}

QByteArray Formlauf::Quiz(const std::string& wort) {
    QuizFuellen();
    for (int n = 1; n <= anzahlFelder; ++n) {
        W.quiz.FrageText.at(static_cast<std::size_t>(n)) = wort + " " + std::to_string(n);
        W.quiz.FeldSpezial.at(static_cast<std::size_t>(n)) = "";
    }
    return QByteArray::fromStdString(Quizdatei());
}

QByteArray Formlauf::Test(const std::string& wort) {
    TestFuellen();
    W.test.HBFrageText[1] = wort;
    return QByteArray::fromStdString(Testdatei());
}

void Formlauf::Schreiben(const QString& name, const QByteArray& bytes) const {
    programm_->ordner().schreiben(QStringLiteral("KRANZ/") + name, bytes);
}

QByteArray Formlauf::Lesen(const QString& name) const {
    return programm_->ordner().lesen(QStringLiteral("KRANZ/") + name);
}

std::string Formlauf::Pfad(const std::string& name) const {
    return Grossschreiben(Stand.AppPfad + "\\KRANZ\\" + name);
}

void Formlauf::Druecken(const QString& name) const {
    auto* knopf = Finden<QAbstractButton>(programm_->haupt(), name);
    if (!knopf->isVisible() || !knopf->isEnabled()) {
        Versagen(name + QStringLiteral(" is out of reach"), Stelle::hier());
    }
    QTest::mouseClick(knopf, Qt::LeftButton);
}

void Formlauf::Oeffnen(const QString& name) const {
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), name, QStringLiteral("cmdLaden"));
    Druecken(FKFragenOffen() != nullptr   ? QStringLiteral("cmdDateiFK(2)")
             : HBFragenOffen() != nullptr ? QStringLiteral("cmdDateiHB(2)")
                                          : QStringLiteral("cmdLaden"));
}

frmFKFragen* Formlauf::NeuesFormular(const QString& text) const {
    frmFKFragen* form = programm_->NeuesQuizformular();
    form->txtFrage.at(1)->setFocus();
    QTest::keyClicks(form->txtFrage.at(1), text);
    return form;
}

void GespeichertErwarten(Dialogfolge& dialoge, const QString& name, Stelle stelle) {
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ %1 ]").arg(name), QStringLiteral("Schön"),
                    stelle);
}
