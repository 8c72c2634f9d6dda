#include "periphery/zusatz.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace {

QString zusatzordner;

} // namespace

QObject* ZusatzLaden(const QString& name) {
    const QString ordner = zusatzordner.isEmpty() ? QCoreApplication::applicationDirPath() : zusatzordner;
    // The loader may go: the library stays, and asking again gives the same object.
    return QPluginLoader(ordner + u'/' + name).instance();
}

void ZusatzordnerVorgeben(const QString& ordner) {
    zusatzordner = ordner;
}
