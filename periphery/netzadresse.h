// Addresses of the web: the makers' download page, and where a link may lead. Knows no network.
#pragma once

#include <string>
#include <string_view>

// Address of the download page on a server that is given without a slash at its end.
[[nodiscard]] std::string Downloadseite(std::string_view server);

// Where an address is shown: in the homepage's window, in the system's own browser, or nowhere.
enum class Netzziel { Hier, Aussen, Nirgends };

// Only http and https lead anywhere, and only the makers' own host stays in the window; where their page came
// encrypted, a plain address of theirs doesn't. Upper and lower case of scheme and host make no difference.
[[nodiscard]] Netzziel NetzzielFuer(std::string_view schema, std::string_view host,
                                    std::string_view eigenesSchema, std::string_view eigenerHost);
