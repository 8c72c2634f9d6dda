// Where the program finds its things: all in one folder with it, or, installed, in the system's places and
// in a folder of the person's. Makes nothing.
#pragma once

#include <QString>

struct Startorte {
    QString programmordner; // the person's forms, settings and catalogue
    QString lieferung;      // what that folder is made of; "" where it is the program's own
    QString zusatzordner;   // the plug-ins

    friend bool operator==(const Startorte&, const Startorte&) = default;
};

// ausfuehrbar: the folder in which the executable lies; datenheim: where the person's programs keep their
// data. Installed is a program that has the delivered folders in the system's place, and none beside it.
[[nodiscard]] Startorte StartorteFinden(const QString& ausfuehrbar, const QString& datenheim);

// $XDG_DATA_HOME or what stands for it.
[[nodiscard]] QString Datenheim();
