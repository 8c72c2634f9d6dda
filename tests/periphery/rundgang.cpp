#include "tests/periphery/rundgang.h"

#include "core/oberflaeche.h"
#include "tooltips/hinweise.h"

#include <QFontMetrics>

#include <algorithm>
#include <array>

namespace {

// The beginnings of the names of controls.
constexpr std::array arten{"brw", "chk", "cmb", "cmd", "dir", "drv", "fil", "fra", "grd", "grp",
                           "img", "lbl", "opt", "pic", "pnl", "shp", "spn", "tab", "txt", "WebBrowser"};

// Labels and the surfaces beneath other controls may leave the telling to what is around them.
constexpr std::array fuerAndere{"lbl", "pic", "img"};

enum class Fehlt { Status, Alles };
struct Ausnahme {
    const char* fenster;
    const char* name; // without an index: all members of an array
    Fehlt was;
    const char* grund;
};
constexpr std::array ausnahmen{
    Ausnahme{"frmMDI", "cmdSpielregel", Fehlt::Status, "leaves the last status text standing"},
    Ausnahme{"frmMDI", "picKranz", Fehlt::Status, "leaves the last status text standing"},
    Ausnahme{"frmMDI", "picSystray", Fehlt::Alles, "only carries a picture, never shown"},
    Ausnahme{"frmEditor", "cmdDatei(2)", Fehlt::Status, "leaves the last status text standing"},
    Ausnahme{"frmEditor", "grpBackUp", Fehlt::Status, "leaves the last status text standing"},
    Ausnahme{"frmEditor", "cmdEnde", Fehlt::Status, "leaves the last status text standing"},
    Ausnahme{"frmFKFragen", "shpFrage", Fehlt::Alles, "the frame lies behind its cell"},
    Ausnahme{"frmFKFragen", "picBildAufnehmen", Fehlt::Alles, "only carries a picture, never shown"},
    Ausnahme{"frmFKFragen", "picBildAblegen", Fehlt::Alles, "only carries a picture, never shown"},
    Ausnahme{"frmFKFragen", "picBildNein", Fehlt::Alles, "only carries a picture, never shown"},
    Ausnahme{"frmFKformulare", "filDateiliste", Fehlt::Status, "leaves the last status text standing"},
    Ausnahme{"frmBrowser", "picAddress", Fehlt::Alles, "part of the window, never shown"},
    Ausnahme{"frmAuswahl", "cmbNr", Fehlt::Alles, "a list that only stores, never shown"},
    Ausnahme{"frmAuswahl", "cmbAntwort", Fehlt::Alles, "a list that only stores, never shown"},
    Ausnahme{"frmAuswahl", "cmbPunkte", Fehlt::Alles, "a list that only stores, never shown"},
};

template <class Liste>
bool Beginnt(const QString& name, const Liste& anfaenge) {
    return std::ranges::any_of(anfaenge,
                               [&](const char* anfang) { return name.startsWith(QLatin1String(anfang)); });
}

// The window that a control belongs to: the quiz form's cells are no controls of the main window.
const QWidget* EigenesFenster(const QWidget* teil) {
    while (teil != nullptr && !teil->objectName().startsWith(QLatin1String("frm"))) {
        teil = teil->parentWidget();
    }
    return teil;
}

QList<QWidget*> Teile(const QWidget& fenster) {
    QList<QWidget*> teile;
    for (QWidget* teil : fenster.findChildren<QWidget*>()) {
        if (EigenesFenster(teil) == &fenster && Beginnt(teil->objectName(), arten)) {
            teile.append(teil);
        }
    }
    return teile;
}

bool Ausgenommen(const QWidget& fenster, const QString& teil, Fehlt was) {
    const QString name = teil.section(u'(', 0, 0);
    return std::ranges::any_of(ausnahmen, [&](const Ausnahme& zeile) {
        return fenster.objectName() == QLatin1String(zeile.fenster) &&
               (name == QLatin1String(zeile.name) || teil == QLatin1String(zeile.name)) &&
               (zeile.was == Fehlt::Alles || zeile.was == was);
    });
}

// The help panel shows two lines of its smaller face beside the panels for a question.
bool PasstInsHilfepanel(const QString& status) {
    const QRect flaeche(0, 0, Pixel(3600 - 60), Pixel(375));
    const int umbruch = static_cast<int>(Qt::AlignLeft) | Qt::TextWordWrap;
    return flaeche.contains(QFontMetrics(Schrift(7.5)).boundingRect(flaeche, umbruch, status));
}

// Whether the keyboard or a click may lead the user there: inner parts of a control follow their control.
bool Erreichbar(const QWidget& teil, const QWidget& fenster) {
    return teil.focusPolicy() != Qt::NoFocus && teil.isVisibleTo(&fenster) &&
           EigenesFenster(&teil) == &fenster;
}

// Controls that the user can reach, whatever their name, and that neither they nor what is around them tells
// about.
QStringList StummeImWeg(const QWidget& fenster) {
    QStringList stumme;
    for (QWidget* teil : fenster.findChildren<QWidget*>()) {
        const QString name = teil->objectName();
        if (Erreichbar(*teil, fenster) && HinweisstelleVon(teil).element == nullptr &&
            !Ausgenommen(fenster, name, Fehlt::Alles)) {
            stumme << QStringLiteral("%1.%2 (%3): reached, and nothing to tell")
                          .arg(fenster.objectName(), name, QLatin1String(teil->metaObject()->className()));
        }
    }
    return stumme;
}

} // namespace

namespace rundgang {

QStringList Maengel(const QWidget& fenster) {
    QStringList maengel;
    for (QWidget* teil : Teile(fenster)) {
        const QString name = teil->objectName();
        const auto fehlt = [&](const char* was) {
            maengel << QStringLiteral("%1.%2: %3").arg(fenster.objectName(), name, QLatin1String(was));
        };
        if (Ausgenommen(fenster, name, Fehlt::Alles)) {
            continue;
        }
        const QWidget* spricht = HinweisstelleVon(teil).element;
        if (spricht == nullptr || (spricht != teil && !Beginnt(name, fuerAndere))) {
            fehlt("nothing to tell");
            continue;
        }
        const QString status = Hinweisstatus(*spricht);
        if (spricht->toolTip().trimmed().isEmpty()) {
            fehlt("no tip");
        }
        if (Hinweistitel(*spricht).trimmed().isEmpty()) {
            fehlt("no title");
        }
        if (status.trimmed().isEmpty() && !Ausgenommen(fenster, name, Fehlt::Status)) {
            fehlt("no status text");
        }
        if (!PasstInsHilfepanel(status)) {
            fehlt("the status text doesn't fit the help panel");
        }
        if (spricht->accessibleDescription() != spricht->toolTip()) {
            fehlt("the description for screen readers isn't the tip");
        }
    }
    return maengel + StummeImWeg(fenster);
}

int Anzahl(const QWidget& fenster) {
    return static_cast<int>(Teile(fenster).size());
}

} // namespace rundgang
