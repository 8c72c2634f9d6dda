#include "mainwindow/mehrmenue.h"

#include "core/oberflaeche.h"
#include "mainwindow/schaltflaechen.h"
#include "mainwindow/texte.h"
#include "tooltips/hinweise.h"

#include <QMenu>
#include <QToolButton>

namespace {

constexpr const char* marke = "imMenue"; // on a button that the menu has taken

QToolButton* Mehr(const QWidget* pnlKranz) {
    return pnlKranz->findChild<QToolButton*>(QStringLiteral("cmdMehr"));
}

QToolButton* Taste(const QWidget* pnlKranz, const Schaltflaeche& zeile) {
    return pnlKranz->findChild<QToolButton*>(Anzeige(zeile.name));
}

// The entries are the buttons as they are at this moment, and do what these do.
void Fuellen(QMenu& menue, const QWidget* pnlKranz) {
    menue.clear();
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        QToolButton* taste = Taste(pnlKranz, zeile);
        if (!ImMenue(*taste) || !taste->parentWidget()->isVisible()) {
            continue;
        }
        QAction* eintrag = menue.addAction(taste->icon(), Anzeige(zeile.aufschrift));
        eintrag->setObjectName(taste->objectName());
        eintrag->setToolTip(Anzeige(zeile.tipp));
        eintrag->setStatusTip(Anzeige(zeile.status));
        eintrag->setCheckable(taste->isCheckable());
        eintrag->setChecked(taste->isChecked());
        eintrag->setEnabled(taste->isEnabled());
        QObject::connect(eintrag, &QAction::triggered, taste, &QAbstractButton::click);
    }
}

} // namespace

void MehrBauen(QWidget* pnlKranz) {
    auto* mehr = new QToolButton(pnlKranz);
    mehr->setObjectName(QStringLiteral("cmdMehr"));
    mehr->setText(QStringLiteral("»"));
    mehr->setFont(Schrift(11_pt, true));
    mehr->setAccessibleName(Anzeige(kerntexte::mehr));
    mehr->setFocusPolicy(Qt::StrongFocus); // typed text reaches the stored copy before a command runs
    mehr->setPopupMode(QToolButton::InstantPopup);
    mehr->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    HinweisSetzen(mehr, kerntexte::mehrTipp, kerntexte::mehr, kerntexte::mehrStatus);
    auto* menue = new QMenu(mehr);
    menue->setToolTipsVisible(true);
    QObject::connect(menue, &QMenu::aboutToShow, menue, [menue, pnlKranz] { Fuellen(*menue, pnlKranz); });
    mehr->setMenu(menue);
    mehr->hide();
}

void InsMenue(QAbstractButton& taste, bool hinein) {
    if (ImMenue(taste) != hinein) {
        taste.setProperty(marke, hinein);
        taste.setVisible(!hinein);
    }
}

bool ImMenue(const QAbstractButton& taste) {
    return taste.property(marke).toBool();
}

void MehrAnordnen(QWidget* pnlKranz, int x, int y, int hoehe) {
    bool etwas = false;
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        const QToolButton* taste = Taste(pnlKranz, zeile);
        etwas = etwas || (ImMenue(*taste) && taste->parentWidget()->isVisibleTo(pnlKranz));
    }
    QToolButton* mehr = Mehr(pnlKranz);
    mehr->setVisible(etwas);
    mehr->setGeometry(x, y, mehrBreite, hoehe);
    mehr->raise();
}
