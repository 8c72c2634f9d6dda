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

Netzziel NetzzielFuer(std::string_view schema, std::string_view host, std::string_view eigenerHost) {
    if (host.empty() || (!Gleich(schema, "http") && !Gleich(schema, "https"))) {
        return Netzziel::Nirgends;
    }
    return Gleich(host, eigenerHost) ? Netzziel::Hier : Netzziel::Aussen;
}
