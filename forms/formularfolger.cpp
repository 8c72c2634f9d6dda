#include "forms/formularfolger.h"

#include "core/formularfenster.h"
#include "forms/verlauf.h"

#include <QTimer>
#include <QWidget>

Formularfolger::Formularfolger(std::chrono::milliseconds sammelzeit, QObject* eltern)
    : QObject(eltern), bald_(new QTimer(this)) {
    bald_->setSingleShot(true);
    bald_->setInterval(sammelzeit);
    connect(bald_, &QTimer::timeout, this, &Formularfolger::nachsehen);
    BeiFormularaenderung(this, [this] { Bald(); });
}

void Formularfolger::Bald() {
    if (!bald_->isActive()) {
        bald_->start();
    }
}

void Formularfolger::Nachgesehen() {
    Formularfenster* form = OffenesFormular();
    QWidget* fenster = form == nullptr ? nullptr : form->fenster();
    if (fenster != nullptr && fenster != beobachtet_) {
        connect(fenster, &QObject::destroyed, this, &Formularfolger::Bald);
    }
    beobachtet_ = fenster;
}
