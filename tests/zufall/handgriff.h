// One step of the random hands as a value, and the line of words that it is in the protocol: a run is played
// again, and shortened, from such lines.
#pragma once

#include <QPoint>
#include <QString>

#include <cstdint>
#include <optional>

enum class Handlung : std::uint8_t {
    Klick,
    Doppelklick,
    Rechtsklick,
    Ziehen,
    Taste,
    Text,
    Einfuegen,
    Rad,
    Schliessen,
    Neustart, // of the whole program, with a fresh folder
};

// A place as a person would name it: the window, a control in it ("" for the window itself), a point in that.
struct Ort {
    QString fenster, element;
    QPoint stelle;
};

struct Handgriff {
    Handlung was = Handlung::Klick;
    Ort von, nach; // nach is the end of a drag
    Qt::KeyboardModifiers zusatz;
    int zahl = 0; // the key, or how far the wheel turns
    QString text;
};

[[nodiscard]] QString Worte(const Handgriff& schritt);
// No value for a line that is no step.
[[nodiscard]] std::optional<Handgriff> SchrittAus(const QString& zeile);
