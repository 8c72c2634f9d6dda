#include "abbildschritte.h"

#include "tests/hilfe/finden.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

namespace {

// Which drives there are is the machine's affair: the first one, which each has, stands for all.
void LaufwerkeBegrenzen(const QDialog& dialog) {
    for (auto* taste : dialog.findChildren<QWidget*>()) {
        if (taste->objectName().startsWith(QLatin1String("cmdLaufwerk(")) &&
            taste->objectName() != QLatin1String("cmdLaufwerk(0)")) {
            delete taste;
        }
    }
    auto* liste = Finden<QComboBox>(&dialog, QStringLiteral("drvList"));
    while (liste->count() > 1) {
        liste->removeItem(1);
    }
}

} // namespace

ErwarteterDialog Irgendeiner(const char* dialog, const char* taste) {
    return {QLatin1String(dialog), std::nullopt, std::nullopt, {QLatin1String(taste)}};
}

void Einstellen(const Abbildlauf& lauf, const std::function<void(const QDialog&, Dialogfolge&)>& arbeit) {
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmIni"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdEinOK")},
                     [&](const QDialog& dialog) { arbeit(dialog, dialoge); }});
    lauf.Druecken(QStringLiteral("cmdIni"));
    QVERIFY(dialoge.fertig());
}

void BrettVerkleinern(const Abbildlauf& lauf) {
    Einstellen(lauf, [](const QDialog& dialog, Dialogfolge& dialoge) {
        for (const char* taste : {"cmdWissenMinus", "cmdFragenMinus"}) {
            for (int i = 0; i < 3; ++i) {
                dialoge.erwarte(Irgendeiner("frmNachricht", "cmdAntwort(4)"));
                Abbildlauf::Druecken(&dialog, QLatin1String(taste));
            }
        }
    });
}

void DateidialogZeigen(const Abbildlauf& lauf, const QString& taste,
                       const std::function<void(QDialog&)>& arbeit) {
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdAbbrechen")},
                     [&arbeit](QDialog& dialog) {
                         LaufwerkeBegrenzen(dialog);
                         arbeit(dialog);
                     }});
    if (taste == QLatin1String("cmdLaden")) {
        dialoge.erwarte(Irgendeiner("frmMeldung", "cmdKenntnis")); // that nothing was chosen
    }
    lauf.Druecken(taste);
    QVERIFY(dialoge.fertig());
}

void InOffenerListeWaehlen(const QWidget* fenster, const char* liste, int stelle) {
    auto* box = Finden<QComboBox>(fenster, QLatin1String(liste));
    QTRY_VERIFY(box->view()->isVisible());
    box->view()->setCurrentIndex(box->model()->index(stelle, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTRY_VERIFY(!box->view()->isVisible());
}

void Waehlen(const QWidget* fenster, const char* liste, int stelle) {
    auto* box = Finden<QComboBox>(fenster, QLatin1String(liste));
    box->setCurrentIndex(stelle);
    Q_EMIT box->activated(stelle);
}

void Tippen(QWidget* feld, const QString& text) {
    feld->setFocus();
    if (!WartenBis([feld] { return feld->hasFocus(); })) {
        Versagen(feld->objectName() + QStringLiteral(" never got the focus"), Stelle::hier());
    }
    // As events of their own: the test library doesn't know the keys of all characters.
    for (const QChar zeichen : text) {
        QTest::sendKeyEvent(QTest::Click, feld, Qt::Key_unknown, QString(zeichen), Qt::NoModifier);
    }
}
