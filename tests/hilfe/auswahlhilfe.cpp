#include "tests/hilfe/auswahlhilfe.h"

#include "mainwindow/frmMDI.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>

void ListeWaehlen(QComboBox* liste, const QString& text, Stelle aufrufer) {
    const int stelle = liste->findText(text);
    if (stelle < 0) {
        VersagenUndEnde(QStringLiteral("The list has no entry %1").arg(text), aufrufer);
    }
    liste->showPopup();
    const auto offen = [liste] { return liste->view()->isVisible(); };
    if (!WartenBis(offen)) {
        VersagenUndEnde(QStringLiteral("The list never opened"), aufrufer);
    }
    liste->view()->setCurrentIndex(liste->model()->index(stelle, 0));
    QTest::keyClick(liste->view(), Qt::Key_Return);
    if (!WartenBis([&] { return !offen(); })) {
        VersagenUndEnde(QStringLiteral("The list never closed"), aufrufer);
    }
}

void FrageWaehlen(const QWidget* auswahl, const QString& thema, const QString& unterthema, int frage,
                  Stelle aufrufer) {
    for (const auto& [name, text] : {std::pair{"cmbThemen", thema}, std::pair{"cmbUnter", unterthema}}) {
        auto* liste = Finden<QComboBox>(auswahl, QLatin1String(name), aufrufer);
        if (liste->currentText() != text) {
            ListeWaehlen(liste, text, aufrufer);
        }
    }
    auto* fragen = Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"), aufrufer);
    ListeWaehlen(fragen, fragen->itemText(frage), aufrufer);
}

QWidget* AuswahlOeffnen(const Programm& programm, const QString& taste, Ecke ecke, bool gewaehlt,
                        Stelle aufrufer) {
    QTest::mouseClick(Finden(programm.haupt(), taste), Qt::LeftButton);
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"), aufrufer);
    const QSize rahmen = auswahl->frameGeometry().size();
    auswahl->move(1600 - rahmen.width(), ecke == Ecke::Oben ? 60 : 1150 - rahmen.height());
    // The window manager moves it in its own time; the mouse must not come before.
    const bool angekommen = WartenBis([auswahl] {
        const QWidget* dort = QApplication::widgetAt(auswahl->mapToGlobal(auswahl->rect().center()));
        return dort != nullptr && dort->window() == auswahl;
    });
    if (!angekommen) {
        VersagenUndEnde(QStringLiteral("The selection dialog never got to its place"), aufrufer);
    }
    if (gewaehlt) {
        FrageWaehlen(auswahl, QStringLiteral("Tiere"), QStringLiteral("Haustiere"), 0, aufrufer);
    }
    return auswahl;
}
