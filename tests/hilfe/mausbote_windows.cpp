#include "tests/hilfe/mausbote.h"

#include <QApplication>
#include <QHash>
#include <QProcess>
#include <QThread>

#include <windows.h>

namespace {

void Absenden(INPUT eingabe) {
    ::SendInput(1, &eingabe, sizeof eingabe);
}

void Maustaste(const QString& nummer, bool unten) {
    INPUT eingabe{};
    eingabe.type = INPUT_MOUSE;
    const bool links = nummer == QLatin1String("1");
    eingabe.mi.dwFlags = links   ? (unten ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP)
                         : unten ? MOUSEEVENTF_RIGHTDOWN
                                 : MOUSEEVENTF_RIGHTUP;
    Absenden(eingabe);
}

WORD Tastencode(const QString& name) {
    static const QHash<QString, WORD> codes{
        {QStringLiteral("shift"), VK_SHIFT},   {QStringLiteral("ctrl"), VK_CONTROL},
        {QStringLiteral("alt"), VK_MENU},      {QStringLiteral("Return"), VK_RETURN},
        {QStringLiteral("Escape"), VK_ESCAPE}, {QStringLiteral("Tab"), VK_TAB},
        {QStringLiteral("F4"), VK_F4}};
    return codes.value(name, static_cast<WORD>(name.at(0).toUpper().unicode()));
}

void Tastatur(WORD code, WORD zeichen, bool unten) {
    INPUT eingabe{};
    eingabe.type = INPUT_KEYBOARD;
    eingabe.ki.wVk = code;
    eingabe.ki.wScan = zeichen;
    eingabe.ki.dwFlags = (unten ? 0U : KEYEVENTF_KEYUP) | (zeichen != 0 ? KEYEVENTF_UNICODE : 0U);
    Absenden(eingabe);
}

void Kombination(const QString& tasten) {
    const QStringList namen = tasten.split(u'+');
    for (const QString& name : namen) {
        Tastatur(Tastencode(name), 0, true);
    }
    for (auto name = namen.rbegin(); name != namen.rend(); ++name) {
        Tastatur(Tastencode(*name), 0, false);
    }
}

class Bote {
public:
    explicit Bote(QStringList befehle) : rest_(std::move(befehle)) {}

    void Ausfuehren() {
        while (!rest_.isEmpty()) {
            Schritt(rest_.takeFirst());
            QThread::msleep(5);
        }
    }

private:
    void Schritt(const QString& befehl) {
        if (befehl == QLatin1String("mousemove")) {
            const int x = rest_.takeFirst().toInt();
            ::SetCursorPos(x, rest_.takeFirst().toInt());
        } else if (befehl == QLatin1String("click")) {
            Klicken();
        } else if (befehl.startsWith(QLatin1String("mouse"))) {
            Maustaste(rest_.takeFirst(), befehl == QLatin1String("mousedown"));
        } else if (befehl == QLatin1String("sleep")) {
            QThread::msleep(static_cast<unsigned long>(rest_.takeFirst().toDouble() * 1000));
        } else if (befehl == QLatin1String("key")) {
            Kombination(rest_.takeFirst());
        } else if (befehl == QLatin1String("type")) {
            Tippen();
        } else {
            Tastatur(Tastencode(rest_.takeFirst()), 0, befehl == QLatin1String("keydown"));
        }
    }

    void Klicken() {
        int anzahl = 1;
        if (rest_.first() == QLatin1String("--repeat")) {
            rest_.removeFirst();
            anzahl = rest_.takeFirst().toInt();
        }
        const QString taste = rest_.takeFirst();
        for (int i = 0; i < anzahl; ++i) {
            Maustaste(taste, true);
            Maustaste(taste, false);
        }
    }

    void Tippen() {
        const auto pause = static_cast<unsigned long>(rest_.at(1).toInt()); // behind --delay
        rest_ = rest_.mid(2);
        for (const QChar zeichen : rest_.takeFirst()) {
            Tastatur(0, zeichen.unicode(), true);
            Tastatur(0, zeichen.unicode(), false);
            QThread::msleep(pause);
        }
    }

    QStringList rest_;
};

// Wine moves the pointer of a display server, which answers in its own time; what it is sent must come from
// there, or a drag begins before its button is down.
void UeberDenBildschirm(const QStringList& befehle, Stelle aufrufer, const std::function<void()>& danach) {
    auto* prozess = new QProcess(qApp);
    QObject::connect(prozess, &QProcess::finished, qApp, [prozess, aufrufer, danach](int code) {
        if (code != 0) {
            Versagen(QStringLiteral("xdotool doesn't run"), aufrufer);
        }
        prozess->deleteLater();
        danach();
    });
    const QStringList aufruf{QStringLiteral("/wait"), QStringLiteral("/unix"),
                             QStringLiteral("/usr/bin/xdotool")};
    prozess->start(QStringLiteral("start"), aufruf + befehle);
}

} // namespace

void Senden(const QStringList& befehle, Stelle aufrufer, const std::function<void()>& danach) {
    if (qEnvironmentVariableIsSet("WINEPREFIX")) {
        UeberDenBildschirm(befehle, aufrufer, danach);
        return;
    }
    QThread* faden = QThread::create([befehle] { Bote(befehle).Ausfuehren(); });
    QObject::connect(faden, &QThread::finished, qApp, [faden, danach] {
        faden->deleteLater();
        danach();
    });
    faden->start();
}
