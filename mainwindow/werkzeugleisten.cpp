#include "mainwindow/werkzeugleisten.h"

#include "core/bilder.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "forms/quizformulare.h"
#include "mainwindow/befehle.h"
#include "mainwindow/flaggen.h"
#include "mainwindow/mehrmenue.h"
#include "mainwindow/schaltflaechen.h"
#include "mainwindow/spezialraster.h"
#include "tooltips/hinweise.h"

#include <QEvent>
#include <QFrame>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <bitset>
#include <span>
#include <vector>

namespace {

constexpr Twips leistenHoehe = 375_tw;
constexpr Twips leistenRand = 60_tw;

struct Leistenname {
    Leiste leiste;
    const char* name;
};
constexpr std::array leistennamen{Leistenname{Leiste::Kranz, "picKranz"}, Leistenname{Leiste::FK, "picFK"},
                                  Leistenname{Leiste::HB, "picHB"}};

// Runs a command at a double click on the control or on what lies in it.
class Doppelklick : public QObject {
public:
    Doppelklick(QObject* element, void (*befehl)()) : QObject(element), befehl_(befehl) {}

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::MouseButtonDblClick) {
            return QObject::eventFilter(objekt, ereignis);
        }
        befehl_();
        return true;
    }

private:
    void (*befehl_)();
};

QWidget* Traeger(QWidget* pnlKranz, Leiste leiste) {
    for (const auto& [wer, name] : leistennamen) {
        if (wer == leiste) {
            return pnlKranz->findChild<QWidget*>(QLatin1String(name));
        }
    }
    return pnlKranz;
}

void SchaltflaecheBauen(QWidget* pnlKranz, const Schaltflaeche& zeile) {
    auto* taste = new QToolButton(Traeger(pnlKranz, zeile.leiste));
    taste->setObjectName(Anzeige(zeile.name));
    TastenbildSetzen(taste, zeile.bild);
    taste->setAccessibleName(Anzeige(zeile.tipp).section(QLatin1Char('\n'), 0, 0));
    // A click takes the focus, so that typed text reaches the stored copy before the command runs.
    taste->setFocusPolicy(Qt::StrongFocus);
    taste->setCheckable(zeile.schalter);
    HinweisSetzen(taste, zeile.tipp, zeile.titel, zeile.status);
    BefehlVerbinden(taste);
}

// Where the room ends, captions give way from the front of this list: the pictures that everybody knows
// first, then what is used seldom. The beginning of a picture's name stands for all that share it.
constexpr std::array<std::string_view, 18> verzicht{
    "leiste/mail",    "leiste/netz",    "leiste/drucken", "leiste/oeffnen",  "leiste/speichern",
    "leiste/neu_",    "leiste/hilfe",   "leiste/drucker", "leiste/ende",     "leiste/brennek",
    "leiste/tarvo",   "leiste/punkte_", "leiste/antwor",  "leiste/schliess", "leiste/fragen_",
    "leiste/spezial", "leiste/editor",  "leiste/regel"};
// Where not even all pictures have room, buttons go into the menu cmdMehr, again from the front: what the
// menu bar offers all the same, then what is used seldom. The others stay in any case.
constexpr std::array<std::string_view, 14> auslagern{
    "leiste/mail",   "leiste/netz",    "leiste/brennek", "leiste/tarvo",    "leiste/hilfe",
    "leiste/editor", "leiste/regel",   "leiste/drucker", "leiste/vorgaben", "leiste/spezial",
    "leiste/antwor", "leiste/punkte_", "leiste/fragen_", "leiste/schliess"};
constexpr int polster = 8;    // around picture and caption
constexpr int bildluecke = 4; // between the two

// Face of the captions, the gap between groups, and which places of the lists above go without a caption, or
// into the menu.
struct Leistenmass {
    QFont schrift;
    int luecke;
    std::bitset<verzicht.size()> ohneWort;
    std::bitset<auslagern.size()> imMenue;
};

// Place of the button's picture in one of the lists, the end for none.
std::size_t Platz(std::span<const std::string_view> liste, const Schaltflaeche& zeile) {
    const auto platz =
        std::ranges::find_if(liste, [&](std::string_view bild) { return zeile.bild.starts_with(bild); });
    return static_cast<std::size_t>(platz - liste.begin());
}

bool OhneWort(const Schaltflaeche& zeile, const Leistenmass& mass) {
    const std::size_t platz = Platz(verzicht, zeile);
    return zeile.leiste != Leiste::Kranz && platz < verzicht.size() && mass.ohneWort.test(platz);
}

bool Ausgelagert(const Schaltflaeche& zeile, const Leistenmass& mass) {
    const std::size_t platz = Platz(auslagern, zeile);
    return platz < auslagern.size() && mass.imMenue.test(platz);
}

QString Aufschrift(const Schaltflaeche& zeile, const Leistenmass& mass) {
    return OhneWort(zeile, mass) ? QString() : Anzeige(zeile.aufschrift);
}

int Tastenbreite(const Schaltflaeche& zeile, const Leistenmass& mass) {
    const QString wort = Aufschrift(zeile, mass);
    return tastenbildKante + polster +
           (wort.isEmpty() ? 0 : bildluecke + QFontMetrics(mass.schrift).horizontalAdvance(wort));
}

// Whether the bar's row of buttons has that one; the end of the program is hidden while a form is open.
bool Steht(const QWidget* pnlKranz, const Schaltflaeche& zeile, Leiste leiste) {
    const auto* taste = pnlKranz->findChild<QToolButton*>(Anzeige(zeile.name));
    return zeile.leiste == leiste && taste != nullptr && (!taste->isHidden() || ImMenue(*taste));
}

// Places the buttons of one bar from the left and returns where the next would stand, in pixels.
int Aufreihen(QWidget* pnlKranz, Leiste leiste, int x, int oben, const Leistenmass& mass) {
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        if (!Steht(pnlKranz, zeile, leiste)) {
            continue;
        }
        auto* taste = pnlKranz->findChild<QToolButton*>(Anzeige(zeile.name));
        InsMenue(*taste, Ausgelagert(zeile, mass));
        if (ImMenue(*taste)) {
            continue;
        }
        taste->setFont(mass.schrift);
        taste->setText(Aufschrift(zeile, mass));
        taste->setToolButtonStyle(taste->text().isEmpty() ? Qt::ToolButtonIconOnly
                                                          : Qt::ToolButtonTextBesideIcon);
        const int breite = Tastenbreite(zeile, mass);
        x += zeile.abstand ? mass.luecke : 0;
        taste->setGeometry(x, oben, breite, Pixel(leistenHoehe));
        x += breite;
    }
    return x;
}

// A button as the choice of the captions needs it: looked up and measured once, not at each try.
struct Gemessen {
    const Schaltflaeche* zeile;
    bool steht;
    int wortbreite; // of its caption with the gap before it
};

std::vector<Gemessen> Messen(const QWidget* pnlKranz, const QFont& schrift) {
    const QFontMetrics mass(schrift);
    std::vector<Gemessen> gemessen;
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        const QString wort = Anzeige(zeile.aufschrift);
        gemessen.push_back({&zeile, Steht(pnlKranz, zeile, zeile.leiste),
                            wort.isEmpty() ? 0 : bildluecke + mass.horizontalAdvance(wort)});
    }
    return gemessen;
}

// Width that a toolbar, what stands behind it and the constant buttons need together.
int Bedarf(std::span<const Gemessen> tasten, Leiste leiste, const Leistenmass& mass) {
    int bedarf =
        Pixel(2 * leistenRand + 525_tw + 120_tw) + 4 + 24 + 4 + (mass.imMenue.any() ? mehrBreite : 0);
    for (const auto& [zeile, steht, wortbreite] : tasten) {
        if (steht && (zeile->leiste == leiste || zeile->leiste == Leiste::Immer) &&
            !Ausgelagert(*zeile, mass)) {
            bedarf += tastenbildKante + polster + (OhneWort(*zeile, mass) ? 0 : wortbreite) +
                      (zeile->abstand ? mass.luecke : 0);
        }
    }
    return bedarf;
}

// As many captions as find their place beside the toolbar that stands: they go from the front of the list
// until the rest fits, and what still has room then comes back. Only where no caption is left to go do
// buttons.
Leistenmass LeistenmassFuer(const QWidget* pnlKranz) {
    Leistenmass mass{Schrift(8.25_pt), 7, {}, {}};
    const std::vector<Gemessen> tasten = Messen(pnlKranz, mass.schrift);
    const auto passt = [&] {
        return std::ranges::all_of(leistennamen, [&](const Leistenname& eintrag) {
            const auto* traeger = pnlKranz->findChild<QWidget*>(QLatin1String(eintrag.name));
            return traeger->isHidden() || Bedarf(tasten, eintrag.leiste, mass) <= pnlKranz->width();
        });
    };
    std::size_t weg = 0;
    while (weg < verzicht.size() && !passt()) {
        mass.ohneWort.set(weg++);
    }
    for (std::size_t i = 0; i < auslagern.size() && !passt(); ++i) {
        mass.imMenue.set(i);
    }
    while (weg > 0) {
        mass.ohneWort.reset(--weg);
        if (!passt()) {
            mass.ohneWort.set(weg);
        }
    }
    return mass;
}

// picSpezial stands at the right end of the quiz toolbar, pnlHBPun at that of the test toolbar.
void FKLeisteAnordnen(QWidget* pnlKranz, const Leistenmass& mass) {
    QWidget* picFK = Traeger(pnlKranz, Leiste::FK);
    const int ende = Aufreihen(pnlKranz, Leiste::FK, 0, 0, mass) + 4;
    picFK->setGeometry(Pixel(leistenRand), Pixel(leistenRand), ende + Pixel(525_tw), Pixel(leistenHoehe));
    picFK->findChild<QWidget*>(QStringLiteral("picSpezial"))
        ->setGeometry(picFK->width() - Pixel(525_tw), 0, Pixel(525_tw), Pixel(leistenHoehe));
    QWidget* picHB = Traeger(pnlKranz, Leiste::HB);
    const int endeHB = Aufreihen(pnlKranz, Leiste::HB, 0, 0, mass) + 4;
    picHB->setGeometry(Pixel(leistenRand), Pixel(leistenRand), endeHB + Pixel(525_tw), Pixel(leistenHoehe));
    picHB->findChild<QWidget*>(QStringLiteral("pnlHBPun"))
        ->setGeometry(picHB->width() - Pixel(525_tw), 0, Pixel(525_tw), Pixel(leistenHoehe));
}

} // namespace

void WerkzeugleistenBauen(QWidget* pnlKranz) {
    for (const auto& [leiste, name] : leistennamen) {
        auto* traeger = new QFrame(pnlKranz);
        traeger->setObjectName(QLatin1String(name));
        traeger->setVisible(leiste == Leiste::Kranz);
    }
    auto* picSpezial = new QFrame(Traeger(pnlKranz, Leiste::FK));
    picSpezial->setObjectName(QStringLiteral("picSpezial"));
    picSpezial->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    picSpezial->setAccessibleName(QStringLiteral("Verteilung der Fragen und Spezialfelder"));
    SpezialRasterAufbauen(picSpezial);
    picSpezial->installEventFilter(new Doppelklick(picSpezial, FK_Zeigen));
    new Panel(Traeger(pnlKranz, Leiste::HB), QStringLiteral("pnlHBPun"));
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        SchaltflaecheBauen(pnlKranz, zeile);
    }
    MehrBauen(pnlKranz);
    FlaggenBauen(pnlKranz);
}

void WerkzeugleistenAnordnen(QWidget* pnlKranz) {
    const Leistenmass mass = LeistenmassFuer(pnlKranz);
    QWidget* picKranz = Traeger(pnlKranz, Leiste::Kranz);
    picKranz->setGeometry(Pixel(leistenRand), Pixel(leistenRand), pnlKranz->width() - Pixel(2 * leistenRand),
                          Pixel(leistenHoehe));
    Aufreihen(pnlKranz, Leiste::Kranz, 0, 0, mass);
    FKLeisteAnordnen(pnlKranz, mass);
    // The constant buttons end at the right edge, above the toolbars' empty right part.
    const int laenge = Aufreihen(pnlKranz, Leiste::Immer, 0, Pixel(leistenRand), mass) +
                       (mass.imMenue.any() ? mehrBreite : 0);
    const int ende =
        Aufreihen(pnlKranz, Leiste::Immer, std::max(0, pnlKranz->width() - Pixel(leistenRand) - laenge),
                  Pixel(leistenRand), mass);
    MehrAnordnen(pnlKranz, ende, Pixel(leistenRand), Pixel(leistenHoehe));
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        if (zeile.leiste == Leiste::Immer) {
            pnlKranz->findChild<QWidget*>(Anzeige(zeile.name))->raise();
        }
    }
    FlaggenAnordnen(pnlKranz);
}
