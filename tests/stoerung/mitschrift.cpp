#include "tests/stoerung/mitschrift.h"

#include "dialogs/modal.h"
#include "tests/hilfe/dialogfolge.h"

#include <QAbstractButton>
#include <QTimer>

#include <utility>

namespace {

// A message that comes again and again would never end.
constexpr int hoechstens = 8;

} // namespace

Mitschrift::Mitschrift() {
    ModalHandlerSetzen([this](QDialog& dialog) {
        QTimer::singleShot(0, &dialog, [this, &dialog] { Beantworten(dialog); });
        dialog.exec();
        return true;
    });
}

Mitschrift::~Mitschrift() {
    ModalHandlerSetzen({});
}

QStringList Mitschrift::Holen() {
    seitHolen_ = 0;
    return std::exchange(texte_, {});
}

QStringList Mitschrift::Fragen() {
    return std::exchange(fragen_, {});
}

void Mitschrift::Beantworten(QDialog& dialog) {
    const QString name = dialog.objectName();
    const bool meldung = name == QStringLiteral("frmMeldung");
    if (name == QStringLiteral("frmNachricht")) {
        fragen_ << Dialogtext(dialog);
    } else {
        texte_ << (meldung ? QString() : name + QStringLiteral(": ")) + Dialogtext(dialog);
    }
    if (++seitHolen_ > hoechstens) {
        qFatal("The dialogs have no end, the last was %s", qPrintable(Dialogtext(dialog)));
    }
    const QStringList tasten{QStringLiteral("cmdKenntnis"), QStringLiteral("cmdAntwort(4)"),
                             ablehnen_ ? QStringLiteral("cmdAntwort(2)") : QStringLiteral("cmdAntwort(0)")};
    for (const QString& taste : tasten) {
        auto* knopf = dialog.findChild<QAbstractButton*>(taste);
        if (knopf != nullptr && knopf->isVisible() && knopf->isEnabled()) {
            knopf->click();
            return;
        }
    }
    dialog.close(); // as by its frame: a stock box takes that for Abbrechen
}
