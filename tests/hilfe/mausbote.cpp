#include "tests/hilfe/mausbote.h"

#include <QApplication>
#include <QProcess>

void Senden(const QStringList& befehle, Stelle aufrufer, const std::function<void()>& danach) {
    auto* prozess = new QProcess(qApp);
    QObject::connect(prozess, &QProcess::errorOccurred, qApp, [aufrufer, danach](QProcess::ProcessError) {
        Versagen(QStringLiteral("xdotool doesn't run"), aufrufer);
        danach();
    });
    QObject::connect(prozess, &QProcess::finished, qApp, [prozess, aufrufer, danach](int code) {
        if (code != 0) {
            Versagen(QString::fromLocal8Bit(prozess->readAllStandardError()), aufrufer);
        }
        prozess->deleteLater();
        danach();
    });
    prozess->start(QStringLiteral("xdotool"), befehle);
}
