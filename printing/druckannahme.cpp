#include "printing/druckannahme.h"

#include <QLibrary>

bool AuftragAngenommen() {
#ifdef Q_OS_UNIX
    // The library of the print service is in the process already, by the toolkit's plug-in; its last status
    // is one of IPP, where everything below 0x100 is a success.
    using Letzter = int (*)();
    static const Letzter letzter = [] {
        return reinterpret_cast<Letzter>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
    }();
    return letzter == nullptr || (letzter() >= 0 && letzter() < 0x100);
#else
    return true; // the toolkit reports the failure by the printer's state
#endif
}
