// The plug-in libraries beside the program. Each brings one large library of the toolkit with it and is
// loaded the first time a window needs it, so that the start pays for none of them. A plug-in that isn't
// there, or doesn't fit, is no error: the window that asked does without.
#pragma once

#include <QObject>

// The plug-in of that name, loaded at the first call and kept to the end of the program; nullptr for none.
[[nodiscard]] QObject* ZusatzLaden(const QString& name);

// The same, as the interface that it offers.
template <class Schnittstelle>
[[nodiscard]] Schnittstelle* Zusatz(const QString& name) {
    return qobject_cast<Schnittstelle*>(ZusatzLaden(name));
}

// Where plug-ins are looked for; empty is the program's own folder.
void ZusatzordnerVorgeben(const QString& ordner);
