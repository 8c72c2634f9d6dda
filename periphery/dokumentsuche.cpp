// Searching in the document that is read.
#include "periphery/dokumentansicht.h"
#include "periphery/dokumentleser.h"

#include <QLineEdit>

void Dokumentleser::SucheBeginnen() {
    txtSuche_->setFocus(Qt::ShortcutFocusReason);
    txtSuche_->selectAll();
}

void Dokumentleser::SucheVerlassen() {
    txtSuche_->clear();
    Suchen();
    if (ansicht_ != nullptr) {
        ansicht_->Steuerelement()->setFocus();
    }
}

void Dokumentleser::Suchen() {
    verzoegerung_.stop();
    if (ansicht_ == nullptr || txtSuche_->text() == gesucht_) {
        return;
    }
    gesucht_ = txtSuche_->text();
    funde_ = ansicht_->Suchen(gesucht_);
    fund_ = -1;
    if (funde_ > 0) {
        FundZeigen(ansicht_->FundAbHier());
    }
    Auffrischen();
}

void Dokumentleser::NaechsterFund() {
    if (txtSuche_->text() != gesucht_) {
        Suchen(); // and shows the first place
    } else if (funde_ > 0) {
        FundZeigen((fund_ + 1) % funde_);
    }
}

void Dokumentleser::VorigerFund() {
    if (txtSuche_->text() != gesucht_) {
        Suchen();
    } else if (funde_ > 0) {
        FundZeigen((fund_ + funde_ - 1) % funde_);
    }
}

void Dokumentleser::FundZeigen(int fund) {
    fund_ = fund;
    ansicht_->FundZeigen(fund);
    Auffrischen();
}
