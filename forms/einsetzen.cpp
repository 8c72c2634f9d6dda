#include "forms/einsetzen.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/schritt.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"

#include <QApplication>
#include <QPointer>
#include <QRegularExpression>
#include <QWidget>

namespace {

QPointer<QWidget> besucht; // control of the open form that had the focus last

void InZelle(const Feldtext& text) {
    FK_FeldSetzen(text.feld, text.frage.value_or(FK_Frage(text.feld)),
                  text.antwort.value_or(FK_Antwort(text.feld)));
}

void InZeile(const Feldtext& text) {
    HB_FeldSetzen(text.feld, text.frage.value_or(HB_Frage(text.feld)),
                  text.antwort.value_or(HB_Antwort(text.feld)));
    if (text.punkte) {
        HB_PunkteSetzen(text.feld, *text.punkte);
    }
}

} // namespace

void FelderSetzen(std::string_view schritt, std::span<const Feldtext> texte) {
    Formularfenster* form = OffenesFormular();
    if (form == nullptr || texte.empty()) {
        return;
    }
    const Schritt einer(schritt);
    const bool quiz = form->art() == Formart::Quiz;
    for (const Feldtext& text : texte) {
        quiz ? InZelle(text) : InZeile(text);
    }
    if (quiz) {
        FK_Merken();
        FK_EingabeGilt();
    }
    form->Faerben();
    FormStatusSetzen(true);
}

void BesucheVerfolgen(QObject& eigentuemer) {
    QObject::connect(qApp, &QApplication::focusChanged, &eigentuemer, [](QWidget*, QWidget* neu) {
        Formularfenster* form = OffenesFormular();
        if (neu != nullptr && form != nullptr && form->fenster()->isAncestorOf(neu)) {
            besucht = neu;
        }
    });
}

int ZuletztBesucht() {
    static const QRegularExpression name(QStringLiteral("^txt(?:Frage|Antwort)\\((\\d+)\\)$"));
    Formularfenster* form = OffenesFormular();
    if (besucht == nullptr || form == nullptr || !form->fenster()->isAncestorOf(besucht)) {
        return 0;
    }
    return name.match(besucht->objectName()).captured(1).toInt(); // 0 for any other control
}
