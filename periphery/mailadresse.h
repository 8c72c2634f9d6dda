// The address with which a prepared mail is handed to the system's mail program. Only builds text: nothing is
// escaped, and that is meant. Sending is periphery/mail.h.
#pragma once

#include <string>
#include <string_view>

// Appends a part ("subject=...") to the tail of an address: behind "?" where the tail is empty, else "&".
void MailTeilAnhaengen(std::string& schwanz, std::string_view teil);

// "mailto:" with address, and subject and body where they aren't empty.
[[nodiscard]] std::string MailAdresse(std::string_view adresse, std::string_view betreff,
                                      std::string_view text);
