#include "editor/frmEditor.h"

#include "core/fensterzeichen.h"
#include "core/hauptfenster.h"
#include "core/lesehilfe.h"
#include "core/oberflaeche.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "editor/editordateien.h"
#include "editor/editordaten.h"
#include "editor/texte.h"
#include "editor/zwischenablage.h"
#include "rules/spielwerte.h"
#include "tooltips/hinweise.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QShortcut>

frmEditor::frmEditor() {
    SystemschriftGeben(*this);
    setObjectName(QStringLiteral("frmEditor"));
    setProperty("tag", Anzeige(Fensterzeichen(Kindfenster::Editor)));
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    ToolbarBauen();
    FeldBauen();
    HinweiseSetzen(*this, editortexte::hinweise);
    for (auto* taste : findChildren<QAbstractButton*>()) {
        taste->setAccessibleName(taste->toolTip()); // a caption alone may be a word or a picture
    }
    setWindowTitle(Anzeige(editortexte::fenstertitel));
    NamenZeigen("");
    Verbinden();
    Sperren(false);
    SicherungZeigen();
}

void frmEditor::Verbinden() {
    TastenVerbinden();
    connect(txtNotiz, &QPlainTextEdit::textChanged, this, [] { EditorStatusSetzen(true); });
    // The rule asks at each release of mouse or key; the selection can also change through the menu.
    connect(txtNotiz, &QPlainTextEdit::selectionChanged, this, &frmEditor::TastenFreigeben);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &frmEditor::ZwischenablageLesen);
    ZwischenablageLesen();
    const auto* speichern =
        new QShortcut(QKeySequence::Save, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(speichern, &QShortcut::activated, Taste(QStringLiteral("cmdDatei(0)")), &QAbstractButton::click);
}

void frmEditor::TastenVerbinden() {
    for (std::size_t i = 0; i < cmdCopy_.size(); ++i) {
        cmdCopy_.at(i) = Taste(QStringLiteral("cmdCopy(%1)").arg(i));
        connect(cmdCopy_.at(i), &QAbstractButton::clicked, this,
                [this, i] { ZwischenablageBefehl(*this, i); });
    }
    const auto beiKlick = [this](const char* name, auto befehl) {
        connect(Taste(QLatin1String(name)), &QAbstractButton::clicked, this, befehl);
    };
    beiKlick("cmdDatei(0)", [this] { KatalogSpeichern(*this, Namensfrage::NurOhneDatei); });
    beiKlick("cmdDatei(1)", [this] { KatalogLaden(*this); });
    beiKlick("cmdDatei(2)", [this] { KatalogSpeichern(*this, Namensfrage::Immer); });
    beiKlick("grpBackUp", [](bool an) { Spiel.OptionDatei = an; });
    beiKlick("cmdSchreiben", [this] { Sperren(true); });
    beiKlick("cmdNichtSchreiben", [this] { Sperren(false); });
    // The help button has no action: it is meant.
    beiKlick("cmdEnde", [this] {
        SoundSpielen("falscherWeg");
        QWidget* rahmen = parentWidget();
        (rahmen != nullptr ? rahmen : this)->close();
    });
}

QAbstractButton* frmEditor::Taste(const QString& name) const {
    return findChild<QAbstractButton*>(name);
}

void frmEditor::TextZeigen(std::string_view text, std::string_view pfad) {
    NamenZeigen(pfad);
    pnlLaufname->repaint(); // a long text takes its time
    pnlDatei->repaint();
    txtNotiz->Fuellen(text, std::string(editortexte::ichLade) + NurDateiname(pfad));
    TastenFreigeben();
}

void frmEditor::NamenZeigen(std::string_view pfad) {
    pnlLaufname->setCaption(Anzeige(Editor.BemerkungMarke + " "));
    pnlDatei->setCaption(Anzeige(NurDateiname(pfad) + " "));
}

void frmEditor::LampenZeigen(bool rot) {
    Taste(QStringLiteral("cmdTexteingabeRot"))->setVisible(rot);
    Taste(QStringLiteral("cmdTexteingabeGruen"))->setVisible(!rot);
}

// The names of the two buttons say the state that they leave, their tips what a click does.
void frmEditor::Sperren(bool gesperrt) {
    txtNotiz->setEnabled(!gesperrt);
    Taste(QStringLiteral("cmdSchreiben"))->setVisible(!gesperrt);
    Taste(QStringLiteral("cmdNichtSchreiben"))->setVisible(gesperrt);
    TastenFreigeben();
    if (gesperrt) {
        Taste(QStringLiteral("cmdNichtSchreiben"))->setFocus();
    } else {
        txtNotiz->setFocus();
    }
}

void frmEditor::TastenFreigeben() {
    const bool markiert = txtNotiz->textCursor().hasSelection();
    const bool frei = txtNotiz->isEnabled();
    // A locked text is copied from, but neither a key nor a button changes it.
    const std::array<bool, 8> benutzbar{markiert,
                                        markiert,
                                        markiert && frei,
                                        markiert && frei,
                                        ablageHatText_ && frei,
                                        markiert && frei,
                                        ablageHatText_,
                                        frei};
    for (std::size_t i = 0; i < cmdCopy_.size(); ++i) {
        cmdCopy_.at(i)->setEnabled(benutzbar.at(i));
    }
}

void frmEditor::ZwischenablageLesen() {
    const QMimeData* daten = QGuiApplication::clipboard()->mimeData();
    ablageHatText_ = daten != nullptr && daten->hasText();
    TastenFreigeben();
}

void frmEditor::SicherungZeigen() {
    Taste(QStringLiteral("grpBackUp"))->setChecked(Spiel.OptionDatei);
}

void frmEditor::closeEvent(QCloseEvent* ereignis) {
    if (!TextGesichert(*this)) {
        ereignis->ignore();
        return;
    }
    Stand.EditorGeaendert = false;
    ereignis->accept();
    Q_EMIT geschlossen();
}

bool frmEditor::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::WindowActivate || ereignis->type() == QEvent::Enter) {
        SicherungZeigen(); // the settings and the file dialog have the same switch
    }
    if (ereignis->type() == QEvent::WindowActivate) {
        ZwischenablageLesen(); // not every system tells of a change while another program is in front
    }
    return QWidget::event(ereignis);
}
