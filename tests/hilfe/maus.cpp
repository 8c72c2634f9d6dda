#include "tests/hilfe/maus.h"

#include "tests/hilfe/mausbote.h"

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHash>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace {

constexpr int frist = 60000;      // for a gesture, milliseconds
constexpr int bedenkzeit = 30000; // for the state over the target

// Sees the events that come from the display server.
class Zaehlwerk : public QObject {
public:
    Zaehlwerk() { qApp->installEventFilter(this); }
    [[nodiscard]] int gesehen(QEvent::Type art) const { return gesehen_.value(art); }
    // The key that was pressed closed its window, and its release may reach nobody.
    [[nodiscard]] bool tastenfensterGing() const {
        return gesehen(QEvent::KeyPress) > 0 && (tastenfenster_ == nullptr || !tastenfenster_->isVisible());
    }

protected:
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override {
        // Each event passes here first on its way to the window.
        if (empfaenger->isWindowType()) {
            ++gesehen_[ereignis->type()];
            if (ereignis->type() == QEvent::KeyPress) {
                tastenfenster_ = static_cast<QWindow*>(empfaenger);
            }
        }
        return false;
    }

private:
    QHash<QEvent::Type, int> gesehen_;
    QPointer<QWindow> tastenfenster_;
};

// The place on the screen in the server's own pixels, which differ from the toolkit's on a scaled screen.
QStringList Ort(QPoint global) {
    const QScreen* schirm = QApplication::screenAt(global);
    const double faktor = schirm != nullptr ? schirm->devicePixelRatio() : 1.0;
    return {QString::number(qRound(global.x() * faktor)), QString::number(qRound(global.y() * faktor))};
}

// The window manager puts a window into its frame in its own time, and moves it by that.
bool HatSeinenRahmen(const QWidget& fenster) {
    const bool ohne =
        fenster.windowFlags().testAnyFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    const Qt::WindowType art = fenster.windowType();
    return ohne || art == Qt::Popup || art == Qt::ToolTip || art == Qt::SplashScreen ||
           !fenster.windowHandle()->frameMargins().isNull();
}

void RahmenAbwarten(const QWidget& fenster, Stelle aufrufer) {
    if (!WartenBis([&fenster] { return HatSeinenRahmen(fenster); }, bedenkzeit)) {
        Versagen(QStringLiteral("%1 got no frame").arg(fenster.objectName()), aufrufer);
    }
}

QPoint Global(const QWidget* ziel, std::optional<QPoint> stelle, Stelle aufrufer) {
    if (ziel == nullptr || !ziel->isVisible()) {
        VersagenUndEnde(QStringLiteral("%1 isn't visible: the mouse can't reach it")
                            .arg(ziel != nullptr ? ziel->objectName() : QStringLiteral("Nothing")),
                        aufrufer);
    }
    RahmenAbwarten(*ziel->window(), aufrufer);
    const QPoint ort = stelle ? *stelle : ziel->rect().center();
    QPoint global;
    const QWidget* getroffen = nullptr;
    // The window manager may still be raising the window.
    const bool frei = WartenBis(
        [&] {
            global = ziel->mapToGlobal(ort);
            getroffen = QApplication::widgetAt(global);
            return getroffen != nullptr && (getroffen == ziel || ziel->isAncestorOf(getroffen));
        },
        bedenkzeit);
    if (!frei) {
        Versagen(QStringLiteral("%1 is covered there by %2")
                     .arg(ziel->objectName(), getroffen != nullptr
                                                  ? getroffen->objectName() + u' ' +
                                                        QLatin1String(getroffen->metaObject()->className())
                                                  : QStringLiteral("something else")),
                 aufrufer);
    }
    return global;
}

QStringList Umschalter(Qt::KeyboardModifiers tasten, const QString& befehl) {
    QStringList befehle;
    if (tasten.testFlag(Qt::ShiftModifier)) {
        befehle << befehl << QStringLiteral("shift");
    }
    if (tasten.testFlag(Qt::ControlModifier)) {
        befehle << befehl << QStringLiteral("ctrl");
    }
    if (tasten.testFlag(Qt::AltModifier)) {
        befehle << befehl << QStringLiteral("alt");
    }
    return befehle;
}

// Sends and waits until the process has ended and the program has seen so many events of the kind.
void SendenUndWarten(const QStringList& befehle, QEvent::Type art, int anzahl, Stelle aufrufer) {
    const Zaehlwerk zaehlwerk;
    bool fertig = false;
    Senden(befehle, aufrufer, [&fertig] { fertig = true; });
    const auto angekommen = [&] {
        return zaehlwerk.gesehen(art) >= anzahl ||
               (art == QEvent::KeyRelease && zaehlwerk.tastenfensterGing());
    };
    if (!WartenBis([&] { return fertig && angekommen(); }, frist)) {
        Versagen(QStringLiteral("The program didn't see: xdotool ") + befehle.join(u' '), aufrufer);
        // The callback above must not outlive the flag that it sets.
        (void)WartenBis([&fertig] { return fertig; }, frist);
    }
}

void KlickenMit(const QWidget* ziel, const QStringList& klick, int anzahl, Qt::KeyboardModifiers tasten,
                std::optional<QPoint> stelle, Stelle aufrufer) {
    QStringList befehle{QStringLiteral("mousemove")};
    befehle << Ort(Global(ziel, stelle, aufrufer)) << Umschalter(tasten, QStringLiteral("keydown")) << klick
            << Umschalter(tasten, QStringLiteral("keyup"));
    SendenUndWarten(befehle, QEvent::MouseButtonRelease, anzahl, aufrufer);
}

// One drag. The steps hang on the clock, because the program is inside its own drag loop most of the time.
class Zug : public QObject {
public:
    Zug(QPoint von, QPoint nach, Qt::KeyboardModifiers tasten, std::function<bool()> ueberZiel,
        Stelle aufrufer)
        : von_(von), nach_(nach), tasten_(tasten), ueberZiel_(std::move(ueberZiel)), aufrufer_(aufrufer) {
        Senden(Hinweg(), aufrufer, [this] { Ankommen(); });
    }
    [[nodiscard]] bool fertig() const { return fertig_; }

private:
    [[nodiscard]] QStringList Hinweg() const {
        QStringList befehle = QStringList{QStringLiteral("mousemove")} << Ort(von_);
        befehle << Umschalter(tasten_, QStringLiteral("keydown"));
        befehle << QStringLiteral("mousedown") << QStringLiteral("1");
        constexpr int schritte = 10;
        for (int schritt = 1; schritt <= schritte; ++schritt) {
            const QPoint ort = von_ + (nach_ - von_) * schritt / schritte;
            befehle << QStringLiteral("sleep") << QStringLiteral("0.02") << QStringLiteral("mousemove")
                    << Ort(ort);
        }
        return befehle;
    }

    void Ankommen() {
        seit_.start();
        QObject::connect(&uhr_, &QTimer::timeout, this, [this] { Pruefen(); });
        uhr_.start(20);
    }

    void Pruefen() {
        const bool angekommen = (QCursor::pos() - nach_).manhattanLength() <= 2;
        const bool gut = angekommen && seit_.elapsed() > 100 && (!ueberZiel_ || ueberZiel_());
        if (!gut && seit_.elapsed() < bedenkzeit) {
            if (angekommen) {
                Anstossen();
            }
            return;
        }
        uhr_.stop();
        if (!gut) {
            Versagen(QStringLiteral("The state over the target never came"), aufrufer_);
        }
        QStringList befehle{QStringLiteral("mouseup"), QStringLiteral("1")};
        befehle << Umschalter(tasten_, QStringLiteral("keyup"));
        Senden(befehle, aufrufer_, [this] { fertig_ = true; });
    }

    // On a busy machine the last movement may have come before the drag was listening, and a pointer that
    // stands still says nothing more: it steps one pixel aside now and then.
    void Anstossen() {
        if (anstoss_.isValid() && anstoss_.elapsed() < 1000) {
            return;
        }
        anstoss_.start();
        daneben_ = !daneben_;
        Senden(QStringList{QStringLiteral("mousemove")} << Ort(nach_ + QPoint(daneben_ ? 1 : 0, 0)),
               aufrufer_, [] {});
    }

    QPoint von_, nach_;
    QElapsedTimer anstoss_;
    bool daneben_ = false;
    Qt::KeyboardModifiers tasten_;
    std::function<bool()> ueberZiel_;
    Stelle aufrufer_;
    QTimer uhr_;
    QElapsedTimer seit_;
    bool fertig_ = false;
};

} // namespace

namespace maus {

void Bewegen(const QWidget* ziel, std::optional<QPoint> stelle, Stelle aufrufer) {
    const QPoint global = Global(ziel, stelle, aufrufer);
    bool fertig = false;
    Senden(QStringList{QStringLiteral("mousemove")} << Ort(global), aufrufer, [&fertig] { fertig = true; });
    if (!WartenBis([&] { return fertig && (QCursor::pos() - global).manhattanLength() <= 2; }, frist)) {
        VersagenUndEnde(QStringLiteral("The pointer didn't get there"), aufrufer);
    }
    QCoreApplication::processEvents();
}

void Klicken(const QWidget* ziel, Qt::KeyboardModifiers tasten, std::optional<QPoint> stelle,
             Stelle aufrufer) {
    KlickenMit(ziel, {QStringLiteral("click"), QStringLiteral("1")}, 1, tasten, stelle, aufrufer);
}

void Druecken(const QWidget* ziel, Qt::KeyboardModifiers tasten, Stelle aufrufer) {
    QStringList befehle{QStringLiteral("mousemove")};
    befehle << Ort(Global(ziel, {}, aufrufer)) << Umschalter(tasten, QStringLiteral("keydown"))
            << QStringList{QStringLiteral("click"), QStringLiteral("1")}
            << Umschalter(tasten, QStringLiteral("keyup"));
    SendenUndWarten(befehle, QEvent::MouseButtonPress, 1, aufrufer);
}

void Doppelklicken(const QWidget* ziel, std::optional<QPoint> stelle, Stelle aufrufer) {
    KlickenMit(ziel,
               {QStringLiteral("click"), QStringLiteral("1"), QStringLiteral("click"), QStringLiteral("1")},
               2, Qt::NoModifier, stelle, aufrufer);
}

void DoppeltDruecken(const QWidget* ziel, std::optional<QPoint> stelle, Stelle aufrufer) {
    QStringList befehle{QStringLiteral("mousemove")};
    befehle << Ort(Global(ziel, stelle, aufrufer)) << QStringLiteral("click") << QStringLiteral("--repeat")
            << QStringLiteral("2") << QStringLiteral("1");
    SendenUndWarten(befehle, QEvent::MouseButtonDblClick, 1, aufrufer);
}

void RechtsKlicken(const QWidget* ziel, Stelle aufrufer) {
    KlickenMit(ziel, {QStringLiteral("click"), QStringLiteral("3")}, 1, Qt::NoModifier, {}, aufrufer);
}

void Ziehen(const QWidget* von, const QWidget* nach, Qt::KeyboardModifiers tasten,
            const std::function<bool()>& ueberZiel, Stelle aufrufer) {
    const Zug zug(Global(von, {}, aufrufer), Global(nach, {}, aufrufer), tasten, ueberZiel, aufrufer);
    if (!WartenBis([&zug] { return zug.fertig(); }, 2 * frist)) {
        VersagenUndEnde(QStringLiteral("The drag didn't end"), aufrufer);
    }
    // The release is on its way from the server still; what the drop does hangs on the loop as well.
    (void)WartenBis([] { return QGuiApplication::mouseButtons() == Qt::NoButton; }, 1000);
    QCoreApplication::processEvents();
}

void Tippen(const QString& text, Stelle aufrufer) {
    SendenUndWarten({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("8"), text},
                    QEvent::KeyRelease, static_cast<int>(text.size()), aufrufer);
}

void Taste(const QString& taste, Stelle aufrufer) {
    SendenUndWarten({QStringLiteral("key"), taste}, QEvent::KeyRelease, 1, aufrufer);
}

} // namespace maus
