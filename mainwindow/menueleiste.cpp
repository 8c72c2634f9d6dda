#include "mainwindow/menueleiste.h"

#include "core/hauptfenster.h"
#include "core/konfiguration.h"
#include "core/oberflaeche.h"
#include "forms/oeffnen.h"
#include "mainwindow/befehle.h"
#include "mainwindow/extras.h"
#include "mainwindow/hinweistexte.h"
#include "rules/spielwerte.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <initializer_list>

namespace {

enum class Fuer { Haupt, FK, HB, Alle };

struct Menue {
    Fuer fuer;
    std::string_view name;
    std::string_view text;
};

constexpr std::array menues{
    Menue{Fuer::Haupt, "mDateien", "&Datei"},    Menue{Fuer::FK, "mDateienFK", "&Datei"},
    Menue{Fuer::FK, "mFormularFK", "&Formular"}, Menue{Fuer::HB, "mDateienHB", "&Datei"},
    Menue{Fuer::HB, "mFormularHB", "&Formular"}, Menue{Fuer::Alle, "mFragen", "&Ansicht"},
    Menue{Fuer::Alle, "mOptionen", "&Optionen"}, Menue{Fuer::Alle, "mInfo", "&Info"},
    Menue{Fuer::Alle, "mEditor", "&Editor"},     Menue{Fuer::Alle, "mExtras", "E&xtras"},
    Menue{Fuer::Alle, "mHilfe", "&Hilfe"},
};

// The menus of one kind stand ahead of it.
constexpr QLatin1String ersteFuerAlle("mFragen");

// An entry without a text is a separator.
struct Eintrag {
    std::string_view menue;
    std::string_view name;
    std::string_view text;
    const char* tasten = "";
    bool haken = false;
};

constexpr std::array eintraege{
    Eintrag{"mDateien", "mDatei(1)", "Feld&kranz-Formular neu", "Ctrl+N"},
    Eintrag{"mDateien", "mDatei(2)", "&Test-Formular neu"},
    Eintrag{"mDateien", "mDatei(3)", ""},
    Eintrag{"mDateien", "mDatei(4)", "Ö&ffnen", "Ctrl+O"},
    Eintrag{"mDateien", "mDatei(5)", ""},
    Eintrag{"mDateien", "mDatei(6)", "&Ende", "Ctrl+Q"},

    Eintrag{"mDateienFK", "mDateiFK(1)", "Feld&kranz-Formular neu", "Ctrl+N"},
    Eintrag{"mDateienFK", "mDateiFK(2)", ""},
    Eintrag{"mDateienFK", "mDateiFK(3)", "Ö&ffnen", "Ctrl+O"},
    Eintrag{"mDateienFK", "mDateiFK(4)", ""},
    Eintrag{"mDateienFK", "mDateiFK(5)", "&Speichern", "Ctrl+S"},
    Eintrag{"mDateienFK", "mDateiFK(6)", "Speichern &unter ...", "Ctrl+Shift+S"},
    Eintrag{"mDateienFK", "mDateiFK(7)", ""},
    Eintrag{"mDateienFK", "mDateiFK(8)", "&Drucken", "Ctrl+P"},
    Eintrag{"mDateienFK", "mDateiFK(9)", "&Blanko drucken"},
    Eintrag{"mDateienFK", "mDateiFK(10)", "D&rucker einrichten ..."},
    Eintrag{"mDateienFK", "mDateiFK(11)", ""},
    Eintrag{"mDateienFK", "mDateiGeoeffnet(0)", " "},
    Eintrag{"mDateienFK", "mDateiGeoeffnet(1)", " "},
    Eintrag{"mDateienFK", "mDateiGeoeffnet(2)", " "},
    Eintrag{"mDateienFK", "mDateiGeoeffnet(3)", " "},
    Eintrag{"mDateienFK", "mTrennerGeoeffnet", ""},
    Eintrag{"mDateienFK", "mDateiFK(12)", "&Ende", "Ctrl+Q"},

    Eintrag{"mFormularFK", "mFKFragenauswahl", "Fragen&auswahl"},
    Eintrag{"mFormularFK", "mThemenHB", "Themen aus dem &Häuptlingsbuch", "", true},
    Eintrag{"mFormularFK", "mTrennerFragen", ""},
    Eintrag{"mFormularFK", "mFKFragen(1)", "&Fragen löschen"},
    Eintrag{"mFormularFK", "mFKFragen(2)", "Fragen &einfügen"},
    Eintrag{"mFormularFK", "mFKSpezial(1)", "&Spezialfelder löschen"},
    Eintrag{"mFormularFK", "mFKSpezial(2)", "Spezialfelder e&infügen"},
    Eintrag{"mFormularFK", "mTrennerFormular", ""},
    Eintrag{"mFormularFK", "mFKFormular", "&Zurück zum Hauptmenü"},

    Eintrag{"mDateienHB", "mDateiHB(1)", "&Test-Formular neu", "Ctrl+N"},
    Eintrag{"mDateienHB", "mDateiHB(2)", ""},
    Eintrag{"mDateienHB", "mDateiHB(3)", "Ö&ffnen", "Ctrl+O"},
    Eintrag{"mDateienHB", "mDateiHB(4)", ""},
    Eintrag{"mDateienHB", "mDateiHB(5)", "&Speichern", "Ctrl+S"},
    Eintrag{"mDateienHB", "mDateiHB(6)", "Speichern &unter ...", "Ctrl+Shift+S"},
    Eintrag{"mDateienHB", "mDateiHB(7)", ""},
    Eintrag{"mDateienHB", "mDateiHB(8)", "&Drucken", "Ctrl+P"},
    Eintrag{"mDateienHB", "mDateiHB(9)", "D&rucker einrichten ..."},
    Eintrag{"mDateienHB", "mDateiHB(10)", ""},
    Eintrag{"mDateienHB", "mDateiHB(11)", "&Ende", "Ctrl+Q"},

    Eintrag{"mFormularHB", "mHBFragenauswahl", "Fragen&auswahl"},
    Eintrag{"mFormularHB", "mTrennerHBFragen", ""},
    Eintrag{"mFormularHB", "mHBFragen(1)", "&Fragen löschen"},
    Eintrag{"mFormularHB", "mHBFragen(2)", "Fragen &einfügen"},
    Eintrag{"mFormularHB", "mHBAntworten(1)", "A&ntworten löschen"},
    Eintrag{"mFormularHB", "mHBAntworten(2)", "An&tworten einfügen"},
    Eintrag{"mFormularHB", "mHBPunkte(1)", "&Punkte löschen"},
    Eintrag{"mFormularHB", "mHBPunkte(2)", "Punkte e&infügen"},
    Eintrag{"mFormularHB", "mTrennerHBFormular", ""},
    Eintrag{"mFormularHB", "mHBFormular", "&Zurück zum Hauptmenü"},

    Eintrag{"mFragen", "mAuswahl(1)", "Fragen&auswahl"},
    Eintrag{"mFragen", "mAuswahl(2)", "&Dateiliste"},
    Eintrag{"mOptionen", "mBackUp", "Speichern mit &BackUp", "", true},
    Eintrag{"mOptionen", "mBackUpHB", "Speichern mit &BackUp", "", true},
    Eintrag{"mInfo", "mInfos(1)", "&Tarvo"},
    Eintrag{"mInfo", "mInfos(2)", "&Brennek"},
    Eintrag{"mEditor", "mEditorKranz", "&Editor aufrufen"},
    Eintrag{"mExtras", "mExtra(1)", "&Rückgängig", "Ctrl+Z"},
    Eintrag{"mExtras", "mExtra(2)", "&Wiederholen", "Ctrl+Y; Ctrl+Shift+Z"},
    Eintrag{"mExtras", "mExtra(3)", ""},
    Eintrag{"mExtras", "mExtra(4)", "Fragen &suchen", "Ctrl+F"},
    Eintrag{"mExtras", "mExtra(5)", "&Brett füllen", "Ctrl+B"},
    Eintrag{"mExtras", "mExtra(6)", "Formular &prüfen", "F9"},
    Eintrag{"mExtras", "mExtra(7)", ""},
    Eintrag{"mExtras", "mExtra(8)", "Druck&vorschau", "Ctrl+Shift+P"},
    Eintrag{"mExtras", "mExtra(9)", ""},
    Eintrag{"mExtras", "mExtra(10)", "&Größer", "Ctrl++; Ctrl+="},
    Eintrag{"mExtras", "mExtra(11)", "&Kleiner", "Ctrl+-"},
    Eintrag{"mExtras", "mExtra(12)", "&Originalgröße", "Ctrl+0"},
    Eintrag{"mExtras", "mExtra(13)", "An das Fenster &anpassen", "", true},
    Eintrag{"mHilfe", "mHilfen(1)", "&Hilfe"},
    Eintrag{"mHilfe", "mHilfeFK", "&Hilfe"},
    Eintrag{"mHilfe", "mHilfeHB", "&Hilfe"},
    Eintrag{"mHilfe", "mHilfen(2)", konfiguration::homepageText},
    Eintrag{"mHilfe", "mHilfen(3)", konfiguration::mailText},
};

// Entries that stand for each other: which one shows depends on the form in front.
struct Wechseleintrag {
    const char* name;
    bool haupt, fk, hb;
};
constexpr std::array wechseleintraege{
    Wechseleintrag{"mBackUp", true, true, false},     Wechseleintrag{"mBackUpHB", false, false, true},
    Wechseleintrag{"mHilfen(1)", true, false, false}, Wechseleintrag{"mHilfeFK", false, true, false},
    Wechseleintrag{"mHilfeHB", false, false, true},
};

void DateilistenEintraegeVerbinden(QMainWindow& fenster) {
    for (int i = 0; i < 4; ++i) {
        auto* eintrag = fenster.findChild<QAction*>(QStringLiteral("mDateiGeoeffnet(%1)").arg(i));
        eintrag->setVisible(false);
        eintrag->setEnabled(true);
        QObject::connect(eintrag, &QAction::triggered, &fenster,
                         [i] { GelistetesOeffnen(Spiel.Datei.at(static_cast<std::size_t>(i))); });
    }
}

// The members of an array share a row, if none is for the one.
std::string_view Status(std::string_view name) {
    const std::string_view feld = name.substr(0, name.find('('));
    std::string_view status;
    for (const kerntexte::Menuestatus& zeile : kerntexte::menuestatus) {
        if (zeile.name == name) {
            return zeile.status;
        }
        if (zeile.name == feld) {
            status = zeile.status;
        }
    }
    return status;
}

void EintragBauen(QMenu& menue, const Eintrag& zeile) {
    QAction* eintrag = zeile.text.empty() ? menue.addSeparator() : menue.addAction(Anzeige(zeile.text));
    eintrag->setObjectName(Anzeige(zeile.name));
    if (zeile.text.empty()) {
        return;
    }
    eintrag->setCheckable(zeile.haken);
    eintrag->setStatusTip(Anzeige(Status(zeile.name)));
    eintrag->setShortcuts(QKeySequence::listFromString(QLatin1String(zeile.tasten)));
    BefehlVerbinden(eintrag);
}

// A menu that only hides in the bar keeps its letter, and the letter's key then goes round all of them: out
// of sight is out of the bar.
void InDieLeiste(QMenuBar& leiste, QMenu& menue, bool hinein) {
    QAction* eintrag = menue.menuAction();
    eintrag->setVisible(hinein);
    if (leiste.actions().contains(eintrag) == hinein) {
        return;
    }
    if (hinein) {
        leiste.insertAction(leiste.findChild<QMenu*>(ersteFuerAlle)->menuAction(), eintrag);
    } else {
        leiste.removeAction(eintrag);
    }
}

} // namespace

void MenueleisteBauen(QMainWindow& fenster) {
    for (const Menue& zeile : menues) {
        QMenu* menue = fenster.menuBar()->addMenu(Anzeige(zeile.text));
        menue->setObjectName(Anzeige(zeile.name));
        for (const Eintrag& eintrag : eintraege) {
            if (eintrag.menue == zeile.name) {
                EintragBauen(*menue, eintrag);
            }
        }
    }
    DateilistenEintraegeVerbinden(fenster);
    // The settings can change the option while the menu is closed.
    auto* sicherung = fenster.findChild<QAction*>(QStringLiteral("mBackUpHB"));
    QObject::connect(fenster.findChild<QMenu*>(QStringLiteral("mOptionen")), &QMenu::aboutToShow, sicherung,
                     [sicherung] { sicherung->setChecked(Spiel.OptionDatei); });
    ExtrasEinrichten(fenster);
    FormularmenueZeigen(fenster, Formart::Keine);
}

void FormularmenueZeigen(QMainWindow& fenster, Formart formart) {
    const Fuer vorn = formart == Formart::Quiz ? Fuer::FK : formart == Formart::Test ? Fuer::HB : Fuer::Haupt;
    for (const Menue& zeile : menues) {
        if (zeile.fuer == Fuer::Alle) {
            continue;
        }
        auto* menue = fenster.findChild<QMenu*>(Anzeige(zeile.name));
        const bool sichtbar = zeile.fuer == vorn;
        InDieLeiste(*fenster.menuBar(), *menue, sichtbar);
        // Out of sight, the entries' keys must not answer either.
        menue->setEnabled(sichtbar);
        for (QAction* eintrag : menue->actions()) {
            eintrag->setShortcutContext(sichtbar ? Qt::WindowShortcut : Qt::WidgetShortcut);
        }
    }
    for (const Wechseleintrag& zeile : wechseleintraege) {
        const bool sichtbar = vorn == Fuer::FK ? zeile.fk : vorn == Fuer::HB ? zeile.hb : zeile.haupt;
        fenster.findChild<QAction*>(QLatin1String(zeile.name))->setVisible(sichtbar);
    }
}

void DateilisteAnzeigen() {
    QWidget* haupt = Hauptfenster();
    if (haupt == nullptr) {
        return;
    }
    int i = 0;
    for (const std::string& datei : Spiel.Datei) {
        auto* eintrag = haupt->findChild<QAction*>(QStringLiteral("mDateiGeoeffnet(%1)").arg(i++));
        if (eintrag != nullptr) {
            eintrag->setText(Anzeige(datei).replace(QLatin1Char('&'), QLatin1String("&&")));
            eintrag->setVisible(!datei.empty());
        }
    }
}
