#include "periphery/netzadresse.h"

#include <algorithm>

namespace {

char Klein(char zeichen) {
    return zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen - 'A' + 'a') : zeichen;
}

bool Gleich(std::string_view links, std::string_view rechts) {
    return std::ranges::equal(links, rechts, {}, Klein, Klein);
}

} // namespace

std::string Downloadseite(std::string_view server) {
    return std::string(server) + "/modules.php?op=modload&name=Downloads&file=index&req=viewsdownload&sid=18";
}

Netzziel NetzzielFuer(std::string_view schema, std::string_view host, std::string_view eigenesSchema,
                      std::string_view eigenerHost) {
    const bool verschluesselt = Gleich(schema, "https");
    if (host.empty() || (!verschluesselt && !Gleich(schema, "http"))) {
        return Netzziel::Nirgends;
    }
    const bool sicher = verschluesselt || !Gleich(eigenesSchema, "https");
    return sicher && Gleich(host, eigenerHost) ? Netzziel::Hier : Netzziel::Aussen;
}
