#include "tests/zufall/pruefung.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "editor/editor.h"
#include "forms/formulare.h"
#include "mainwindow/frmMDI.h"
#include "persistence/formulardatei.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMdiSubWindow>
#include <QMenu>

#include <algorithm>

namespace {

bool Zeigt(const char* name) {
    const auto* teil = MDIFenster()->findChild<QWidget*>(QLatin1String(name));
    return teil != nullptr && !teil->isHidden();
}

bool Frei(const char* name) {
    const auto* taste = MDIFenster()->findChild<QAbstractButton*>(QLatin1String(name));
    return taste != nullptr && taste->isEnabled();
}

bool MenueDa(const char* name) {
    const auto* menue = MDIFenster()->findChild<QMenu*>(QLatin1String(name));
    return menue != nullptr && menue->menuAction()->isVisible();
}

class Klagen {
public:
    void verlangen(bool gilt, const char* satz) {
        if (!gilt) {
            saetze_.append(QLatin1String(satz));
        }
    }
    [[nodiscard]] const QStringList& alle() const { return saetze_; }

private:
    QStringList saetze_;
};

void Leisten(Klagen& klagen, Formart art) {
    const int leisten = int(Zeigt("picKranz")) + int(Zeigt("picFK")) + int(Zeigt("picHB"));
    klagen.verlangen(leisten == 1, "not exactly one toolbar shows");
    klagen.verlangen(Zeigt("cmdEnde") == Zeigt("picKranz"),
                     "the end isn't offered beside the main toolbar only");
    klagen.verlangen(art != Formart::Quiz || !Zeigt("picHB"), "a quiz form with the test form's toolbar");
    klagen.verlangen(art != Formart::Test || !Zeigt("picFK"), "a test form with the quiz form's toolbar");
    klagen.verlangen(Frei("cmdFKSchliessen") == (art == Formart::Quiz),
                     "the quiz form's commands don't go with it");
    klagen.verlangen(Frei("cmdHBSchliessen") == (art == Formart::Test),
                     "the test form's commands don't go with it");
}

void Flaggen(Klagen& klagen, Formart art) {
    const bool rot = Zeigt("picEingabeFlagRot");
    const bool gruen = Zeigt("picEingabeFlagGruen");
    klagen.verlangen(!(rot && gruen), "both flags show");
    if (art == Formart::Keine) {
        klagen.verlangen(!Stand.FormGeaendert, "changes without a form");
    } else if (!Zeigt("picKranz")) {
        klagen.verlangen(rot || gruen, "a form's toolbar without a flag");
        klagen.verlangen(rot == Stand.FormGeaendert, "the flag doesn't tell of the changes");
    }
    klagen.verlangen(!Stand.EditorGeaendert || EditorFenster() != nullptr,
                     "changes of an editor that is closed");
}

void Titel(Klagen& klagen, Formularfenster& form) {
    const QString titel = form.fenster()->windowTitle();
    const QString name = Anzeige(NurDateiname(Formulardatei(form.art())));
    klagen.verlangen(!titel.trimmed().isEmpty(), "a form without a title");
    klagen.verlangen(titel.contains(name), "the title isn't the name of the form's file");
}

void Menues(Klagen& klagen, Formart art) {
    const QWidget* vorn = AktivesKind();
    const bool formVorn = art != Formart::Keine && vorn != nullptr && vorn == OffenesFormular()->fenster();
    klagen.verlangen(MenueDa("mDateienFK") == (formVorn && art == Formart::Quiz),
                     "the quiz form's menu doesn't go with it");
    klagen.verlangen(MenueDa("mDateienHB") == (formVorn && art == Formart::Test),
                     "the test form's menu doesn't go with it");
}

// Quotation marks end a text in the file, and what is behind them is lost.
template <typename Feld>
void OhneAnfuehrung(Feld& feld) {
    for (std::string& text : feld) {
        std::erase(text, '"');
    }
}

Formularwerte Speicherbar() {
    Formularwerte werte = AbgeleseneWerte();
    werte.art = OffeneArt();
    werte.quiz.FeldPunkte = {}; // no file holds them: they follow from the cell's letter and the rule values
    OhneAnfuehrung(werte.quiz.WissenTitel);
    OhneAnfuehrung(werte.quiz.FrageText);
    OhneAnfuehrung(werte.quiz.AntwortText);
    OhneAnfuehrung(werte.quiz.FeldSpezial);
    OhneAnfuehrung(werte.test.HBFrageText);
    OhneAnfuehrung(werte.test.HBAntwortText);
    for (std::string* text :
         {&werte.quiz.FormNr, &werte.quiz.FormDatum, &werte.quiz.FormZeit, &werte.test.HBFach,
          &werte.test.HBKopf1, &werte.test.HBKopf2, &werte.test.HBKopf3}) {
        std::erase(*text, '"');
    }
    return werte;
}

// The first line in which the two files differ.
QString Unterschied(const Formularwerte& geschrieben, const Formularwerte& gelesen) {
    const QStringList vorher = Anzeige(FormularBytes(geschrieben.art, geschrieben)).split(u'\n');
    const QStringList nachher = Anzeige(FormularBytes(geschrieben.art, gelesen)).split(u'\n');
    for (qsizetype i = 0; i < vorher.size(); ++i) {
        if (vorher.at(i) != nachher.value(i)) {
            return QStringLiteral(": line %1 was %2 and is %3")
                .arg(i + 1)
                .arg(vorher.at(i), nachher.value(i));
        }
    }
    return {};
}

} // namespace

QStringList AnzeigeMaengel() {
    if (MDIFenster() == nullptr) {
        return {};
    }
    Klagen klagen;
    const Formart art = OffeneArt();
    klagen.verlangen(art == Formart::Keine || Stand.FormTyp == art, "the mode isn't the open form's");
    Leisten(klagen, art);
    Flaggen(klagen, art);
    Menues(klagen, art);
    if (Formularfenster* form = OffenesFormular(); form != nullptr) {
        Titel(klagen, *form);
    }
    return klagen.alle();
}

QStringList FormularMaengel() {
    if (OffenesFormular() == nullptr) {
        return {};
    }
    const Formularwerte werte = Speicherbar();
    Formularwerte gelesen{Formart::Keine, {}, {}, werte.spiel, {}};
    QStringList maengel;
    const FormularErgebnis ergebnis = FormularAusBytes(
        FormularBytes(werte.art, werte), Formart::Keine, gelesen, [&](const Laufzeitfehler& fehler) {
            maengel.append(QStringLiteral("the form's file has the error %1").arg(fehler.nummer()));
        });
    if (ergebnis.ende != Leseende::Ganz || gelesen.art != werte.art) {
        maengel.append(QStringLiteral("the form's file can't be read to its end"));
    } else if (werte.art == Formart::Quiz ? !(gelesen.quiz == werte.quiz) : !(gelesen.test == werte.test)) {
        maengel.append(QStringLiteral("the form isn't the same after writing and reading") +
                       Unterschied(werte, gelesen));
    } else if (!(gelesen.spiel == werte.spiel)) {
        maengel.append(QStringLiteral("the rule values aren't the same after writing and reading"));
    }
    return maengel;
}

QStringList DialogMaengel() {
    const QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || QApplication::activePopupWidget() != nullptr) {
        return {};
    }
    const auto knoepfe = dialog->findChildren<QAbstractButton*>();
    const bool weg = std::ranges::any_of(
        knoepfe, [](const QAbstractButton* knopf) { return knopf->isVisible() && knopf->isEnabled(); });
    return weg || !dialog->isVisible() ? QStringList{}
                                       : QStringList{QStringLiteral("a dialog without a button in use")};
}
