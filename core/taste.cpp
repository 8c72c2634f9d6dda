#include "core/taste.h"

#include "core/bilder.h"
#include "core/oberflaeche.h"

#include <QPushButton>

QPushButton* TasteBauen(const char* name, std::string_view aufschrift, std::string_view bild,
                        QWidget* eltern) {
    auto* taste = new QPushButton(Anzeige(aufschrift), eltern);
    taste->setObjectName(QLatin1String(name));
    taste->setFont(Schrift(9_pt));
    taste->setAutoDefault(true);
    TastenbildSetzen(taste, bild);
    return taste;
}
