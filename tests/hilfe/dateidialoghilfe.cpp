#include "tests/hilfe/dateidialoghilfe.h"

#include "tests/hilfe/finden.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

namespace {

void OrdnerOeffnen(const QDialog& dialog, const QString& ordner, Stelle stelle) {
    auto* liste = Finden<QListWidget>(&dialog, QStringLiteral("dirVerzeichnisliste"));
    const auto treffer = liste->findItems(ordner, Qt::MatchExactly);
    if (treffer.size() != 1) {
        Versagen(QStringLiteral("The folder %1 isn't listed once").arg(ordner), stelle);
        return;
    }
    const QPoint ort = liste->visualItemRect(treffer.first()).center();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, ort);
}

} // namespace

void DateidialogErwarten(Dialogfolge& dialoge, const std::optional<QString>& titel, const QString& name,
                         const QString& taste, Stelle stelle) {
    DateidialogErwarten(dialoge, titel, QString(), name, taste, stelle);
}

void DateidialogErwarten(Dialogfolge& dialoge, const std::optional<QString>& titel, const QString& ordner,
                         const QString& name, const QString& taste, Stelle stelle) {
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     titel,
                     std::nullopt,
                     {taste},
                     [ordner, name, stelle](const QDialog& dialog) {
                         if (!ordner.isEmpty()) {
                             OrdnerOeffnen(dialog, QStringLiteral(".."), stelle);
                             OrdnerOeffnen(dialog, ordner, stelle);
                         }
                         if (!name.isEmpty()) {
                             auto* feld = Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"));
                             feld->setFocus();
                             feld->selectAll();
                             QTest::keyClicks(feld, name);
                         }
                     }},
                    stelle);
}
