#include "periphery/mailadresse.h"

void MailTeilAnhaengen(std::string& schwanz, std::string_view teil) {
    schwanz += schwanz.empty() ? '?' : '&';
    schwanz += teil;
}

std::string MailAdresse(std::string_view adresse, std::string_view betreff, std::string_view text) {
    std::string schwanz;
    if (!betreff.empty()) {
        MailTeilAnhaengen(schwanz, "subject=" + std::string(betreff));
    }
    if (!text.empty()) {
        MailTeilAnhaengen(schwanz, "body=" + std::string(text));
    }
    return "mailto:" + std::string(adresse) + schwanz;
}
