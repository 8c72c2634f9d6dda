#include "periphery/mail.h"

#include "core/hauptfenster.h"
#include "core/konfiguration.h"
#include "core/oberflaeche.h"
#include "periphery/mailadresse.h"
#include "periphery/texte.h"
#include "periphery/uebergabe.h"

void MailSenden(const QWidget* /*fenster*/, std::string_view adresse, std::string_view betreff,
                std::string_view text) {
    const std::string ganz = MailAdresse(adresse, betreff, text);
    SanduhrZeigen();
    AnSystemUebergeben(ganz); // a mail program that doesn't start doesn't matter
    NormalerZeiger();
}

void MailAnHersteller() {
    MailSenden(Hauptfenster(), konfiguration::mail, periphertexte::mailBetreff, periphertexte::mailText);
}
