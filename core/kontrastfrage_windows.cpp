#include "core/kontrastfrage.h"

#include <windows.h>

void KontrastBeobachten(std::function<void(bool hoch)> sagen) {
    HIGHCONTRASTW stand{};
    stand.cbSize = sizeof stand;
    if (::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof stand, &stand, 0) != 0) {
        sagen((stand.dwFlags & HCF_HIGHCONTRASTON) != 0);
    }
}
