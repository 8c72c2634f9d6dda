// The command that prepares a mail. Which program opens is the system's choice; one that doesn't start is not
// reported.
#pragma once

#include <string_view>

class QWidget;

// Hands a mail to the system's mail program: address, subject and body, the last two left out where empty.
// fenster is the window that asks; the pointer is an hourglass meanwhile.
void MailSenden(const QWidget* fenster, std::string_view adresse, std::string_view betreff,
                std::string_view text);

// The makers' mail, as the toolbar and the menu send it.
void MailAnHersteller();
