#include "tests/hilfe/dialogfolge.h"

#include "dialogs/modal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace {

// A loop of questions that nobody expected mustn't run for ever.
constexpr int hoechstensUnerwartet = 40;

QString OhneZugriff(QString text) {
    return text.remove(u'&').trimmed();
}

bool NameStimmt(const QDialog& dialog, const QString& name) {
    return dialog.objectName() == name || QLatin1String(dialog.metaObject()->className()) == name;
}

// Usable as a user sees it: visible, in use and within the dialog's frame.
bool Erreichbar(const QDialog& dialog, const QAbstractButton& taste) {
    const QRect flaeche(taste.mapTo(&dialog, QPoint(0, 0)), taste.size());
    return taste.isVisible() && taste.isEnabled() && dialog.rect().contains(flaeche.center());
}

QAbstractButton* TasteFinden(const QDialog& dialog, const QString& taste) {
    for (auto* knopf : dialog.findChildren<QAbstractButton*>()) {
        if ((knopf->objectName() == taste || OhneZugriff(knopf->text()) == OhneZugriff(taste)) &&
            Erreichbar(dialog, *knopf)) {
            return knopf;
        }
    }
    return nullptr;
}

QString TastenDa(const QDialog& dialog) {
    QStringList namen;
    for (const auto* knopf : dialog.findChildren<QAbstractButton*>()) {
        if (Erreichbar(dialog, *knopf)) {
            namen.append(QStringLiteral("%1 \"%2\"").arg(knopf->objectName(), knopf->text()));
        }
    }
    return namen.join(QStringLiteral(", "));
}

QString Beschrieben(const QDialog& dialog) {
    return QStringLiteral("%1 \"%2\" with the text \"%3\"")
        .arg(dialog.objectName().isEmpty() ? QString::fromLatin1(dialog.metaObject()->className())
                                           : dialog.objectName(),
             dialog.windowTitle(), Dialogtext(dialog));
}

void Vergleichen(const QDialog& dialog, const ErwarteterDialog& soll, Stelle stelle) {
    if (soll.titel && dialog.windowTitle() != *soll.titel) {
        Versagen(QStringLiteral("%1 should have the title \"%2\"").arg(Beschrieben(dialog), *soll.titel),
                 stelle);
    }
    if (soll.text && Dialogtext(dialog) != *soll.text) {
        Versagen(QStringLiteral("%1 should say \"%2\"").arg(Beschrieben(dialog), *soll.text), stelle);
    }
}

void Druecken(QDialog& dialog, const QString& taste, Stelle stelle) {
    if (taste == durchRahmen) {
        dialog.close();
    } else if (QAbstractButton* knopf = TasteFinden(dialog, taste); knopf != nullptr) {
        QTest::mouseClick(knopf, Qt::LeftButton);
    } else {
        Versagen(QStringLiteral("%1 has no button \"%2\" in reach; it has %3")
                     .arg(Beschrieben(dialog), taste, TastenDa(dialog)),
                 stelle);
        dialog.reject();
    }
}

// Compares and clicks once the dialog is painted; a click may open the next dialog, so nothing here is held
// on to that goes with the dialog.
void Bedienen(QDialog& vorhanden, const ErwarteterDialog& soll, Stelle stelle) {
    const QPointer<QDialog> dialog(&vorhanden);
    Vergleichen(vorhanden, soll, stelle);
    if (soll.vorher) {
        soll.vorher(vorhanden);
    }
    for (const QString& taste : soll.tasten) {
        if (QDialog* offen = dialog; offen != nullptr && offen->isVisible()) {
            Druecken(*offen, taste, stelle);
        } else {
            Versagen(QStringLiteral("%1 had gone before \"%2\" was clicked").arg(soll.name, taste), stelle);
        }
    }
    if (QDialog* offen = dialog; offen != nullptr && offen->isVisible()) {
        Versagen(Beschrieben(*offen) + QStringLiteral(" is still open after the last click"), stelle);
        offen->reject();
    }
}

// The window manager gives the focus back in its own time; what a test types next would get lost before.
// Under load it may forget to, when a window comes and goes too fast for it.
void FokusZurueck(const QPointer<QWidget>& fenster) {
    const auto aktiv = [&fenster] {
        const QWidget* noch = fenster;
        return noch == nullptr || !noch->isVisible() || noch->isActiveWindow();
    };
    if (!WartenBis(aktiv, 500)) {
        fenster->activateWindow();
        (void)WartenBis(aktiv, 3000);
    }
}

} // namespace

QString Dialogtext(const QDialog& dialog) {
    if (const auto* kasten = qobject_cast<const QMessageBox*>(&dialog)) {
        return kasten->text();
    }
    for (const QString& name :
         {QStringLiteral("lblMeldung"), QStringLiteral("lblNachrichtentext"), QStringLiteral("lblInput")}) {
        if (const auto* schrift = dialog.findChild<QLabel*>(name)) {
            return schrift->text().replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        }
    }
    return {};
}

Dialogfolge::Dialogfolge(Stelle stelle) : stelle_(stelle) {
    ModalHandlerSetzen([this](QDialog& dialog) { return Beantworten(dialog); });
}

Dialogfolge::~Dialogfolge() {
    ModalHandlerSetzen({});
    for (const Auftrag& auftrag : auftraege_) {
        Versagen(QStringLiteral("%1 with the text \"%2\" didn't come")
                     .arg(auftrag.dialog.name, auftrag.dialog.text.value_or(QString())),
                 auftrag.stelle);
    }
}

void Dialogfolge::erwarte(ErwarteterDialog dialog, Stelle stelle) {
    auftraege_.push_back({std::move(dialog), stelle});
}

void Dialogfolge::meldung(const QString& text, const QString& taste, Stelle stelle) {
    erwarte({QStringLiteral("frmMeldung"),
             QString(),
             text,
             {QStringLiteral("cmdKenntnis")},
             [taste, stelle](const QDialog& dialog) {
                 const auto* knopf = dialog.findChild<QAbstractButton*>(QStringLiteral("cmdKenntnis"));
                 if (knopf == nullptr || knopf->text() != taste) {
                     Versagen(
                         QStringLiteral("%1 should have the button \"%2\"").arg(Beschrieben(dialog), taste),
                         stelle);
                 }
             }},
            stelle);
}

void Dialogfolge::frage(const QString& titel, const QString& text, int antwort, Stelle stelle) {
    const int index = antwort == 6 ? 0 : antwort == 7 ? 1 : antwort == 2 ? 2 : 4;
    erwarte({QStringLiteral("frmNachricht"),
             titel + u' ',
             text,
             {QStringLiteral("cmdAntwort(%1)").arg(index)},
             {}},
            stelle);
}

void Dialogfolge::eingabe(const QString& titel, const QString& text, const QString& zeile,
                          const QString& taste, Stelle stelle) {
    erwarte({QStringLiteral("frmInput"),
             titel,
             text,
             {taste},
             [zeile, stelle](const QDialog& dialog) {
                 auto* feld = dialog.findChild<QLineEdit*>(QStringLiteral("txtInput"));
                 if (feld == nullptr) {
                     Versagen(QStringLiteral("frmInput has no txtInput"), stelle);
                     return;
                 }
                 feld->selectAll();
                 QTest::keyClick(feld, Qt::Key_Delete);
                 QTest::keyClicks(feld, zeile);
             }},
            stelle);
}

void Dialogfolge::kasten(const QString& titel, const QString& text, const QString& taste, Stelle stelle) {
    erwarte({QStringLiteral("QMessageBox"), titel, text, {taste}, {}}, stelle);
}

bool Dialogfolge::Beantworten(QDialog& dialog) {
    if (auftraege_.empty() || !NameStimmt(dialog, auftraege_.front().dialog.name)) {
        Unerwartet(dialog);
        return true;
    }
    const QPointer<QWidget> vorher = QApplication::activeWindow();
    const Auftrag auftrag = std::move(auftraege_.front());
    auftraege_.pop_front();
    QTimer uhr;
    int blicke = 0;
    QObject::connect(&uhr, &QTimer::timeout, &dialog, [&] {
        const QWindow* fenster = dialog.windowHandle();
        const bool da = fenster != nullptr && fenster->isExposed();
        ++blicke;
        // A dialog that gets no focus or no paint is driven all the same after a while, so that nothing
        // hangs.
        if ((da && dialog.isActiveWindow()) || (da && blicke > 100) || blicke > 1000) {
            uhr.stop();
            Bedienen(dialog, auftrag.dialog, auftrag.stelle);
        }
    });
    uhr.start(5);
    dialog.exec();
    FokusZurueck(vorher);
    return true;
}

void Dialogfolge::Unerwartet(QDialog& dialog) {
    const QString erwartet = auftraege_.empty() ? QStringLiteral("nothing more")
                                                : auftraege_.front().dialog.name + u' ' +
                                                      auftraege_.front().dialog.text.value_or(QString());
    Versagen(QStringLiteral("Unexpected: %1; expected was %2").arg(Beschrieben(dialog), erwartet), stelle_);
    if (++unerwartete_ > hoechstensUnerwartet) {
        qFatal("Too many unexpected dialogs, the last was %s", qPrintable(Beschrieben(dialog)));
    }
    // A question that comes again until it is answered takes one of its buttons sooner or later.
    const auto knoepfe = dialog.findChildren<QAbstractButton*>();
    const qsizetype stelle = unerwartete_ - 2;
    if (stelle >= 0 && !knoepfe.isEmpty()) {
        knoepfe.at(stelle % knoepfe.size())->click();
    }
    dialog.reject();
}
