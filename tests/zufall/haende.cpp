#include "tests/zufall/haende.h"

#include "core/ziehen.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

namespace {

constexpr int klickpause = 2000; // between two clicks that are no double click

// Where a key goes: the window with the focus, unless a dialog stands over it.
QWindow* Tastenfenster() {
    if (const QWidget* dialog = QApplication::activeModalWidget(); dialog != nullptr) {
        return dialog->windowHandle();
    }
    return QGuiApplication::focusWindow();
}

// As the keyboard sends it: the shortcuts are asked first.
void TasteSenden(int taste, Qt::KeyboardModifiers zusatz, const QString& text) {
    QPointer<QWindow> fenster = Tastenfenster();
    if (fenster.isNull()) {
        return;
    }
    if (!qt_sendShortcutOverrideEvent(fenster, 0, taste, zusatz, text) && !fenster.isNull()) {
        qt_handleKeyEvent(fenster, QEvent::KeyPress, taste, zusatz, text);
    }
    if (!fenster.isNull()) {
        qt_handleKeyEvent(fenster, QEvent::KeyRelease, taste, zusatz, text);
    }
}

QString TextDer(int taste, Qt::KeyboardModifiers zusatz) {
    if ((zusatz & ~Qt::ShiftModifier) != Qt::NoModifier) {
        return {};
    }
    switch (taste) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QStringLiteral("\r");
    case Qt::Key_Tab:
        return QStringLiteral("\t");
    case Qt::Key_Escape:
        return QStringLiteral("\x1b");
    case Qt::Key_Backspace:
        return QStringLiteral("\b");
    case Qt::Key_Delete:
        return QStringLiteral("\x7f");
    default:
        break;
    }
    if (taste > 0xff) {
        return {};
    }
    const QChar zeichen(taste);
    return zusatz.testFlag(Qt::ShiftModifier) ? QString(zeichen) : QString(zeichen.toLower());
}

} // namespace

void Haende::beginnen(const Handgriff& schritt) {
    if (schritt.was == Handlung::Taste) {
        Tasten(schritt.zahl, schritt.zusatz, TextDer(schritt.zahl, schritt.zusatz));
        return;
    }
    if (schritt.was == Handlung::Text) {
        Tippen(schritt.text);
        return;
    }
    if (schritt.was == Handlung::Einfuegen) {
        striche_.emplace_back([text = schritt.text] { QGuiApplication::clipboard()->setText(text); });
        Tasten(Qt::Key_V, Qt::ControlModifier, {});
        return;
    }
    const std::optional<Treffer> ort = Suchen(schritt.von);
    if (schritt.was == Handlung::Neustart) {
        striche_.emplace_back([] { QCoreApplication::exit(0); });
        return;
    }
    if (!ort) {
        return;
    }
    switch (schritt.was) {
    case Handlung::Ziehen:
        Ziehen(*ort, schritt);
        break;
    case Handlung::Rad:
        Drehen(*ort, schritt);
        break;
    case Handlung::Schliessen:
        Schliessen(*ort);
        break;
    default:
        Klicken(*ort, schritt.was == Handlung::Rechtsklick ? Qt::RightButton : Qt::LeftButton, schritt);
    }
}

void Haende::strich() {
    const std::function<void()> strich = std::move(striche_.front());
    striche_.pop_front();
    strich();
    // A drag that has lost its end would keep the program; Esc lets go of it.
    if (striche_.empty() && AktuellesZiehBild() != ZiehBild::Keins) {
        Tasten(Qt::Key_Escape, Qt::NoModifier, QStringLiteral("\x1b"));
    }
}

void Haende::Maus(const QPointer<QWindow>& fenster, QPoint stelle, QEvent::Type art, Qt::MouseButton taste,
                  Qt::KeyboardModifiers zusatz) {
    if (fenster.isNull()) {
        return;
    }
    const bool unten = art == QEvent::MouseButtonPress || (art == QEvent::MouseMove && taste != Qt::NoButton);
    ++zeit_;
    qt_handleMouseEvent(fenster, stelle, fenster->mapToGlobal(stelle), unten ? taste : Qt::NoButton,
                        art == QEvent::MouseMove ? Qt::NoButton : taste, art, zusatz, zeit_);
}

void Haende::Klicken(const Treffer& ort, Qt::MouseButton taste, const Handgriff& schritt) {
    zeit_ += klickpause;
    const QPointer<QWindow> fenster = ort.fenster->windowHandle();
    const auto maus = [this, fenster, stelle = ort.stelle, taste, zusatz = schritt.zusatz](QEvent::Type art) {
        return [=, this] { Maus(fenster, stelle, art, taste, zusatz); };
    };
    striche_.emplace_back([=, this, stelle = ort.stelle] {
        Maus(fenster, stelle, QEvent::MouseMove, Qt::NoButton, Qt::NoModifier);
    });
    for (int i = 0; i < (schritt.was == Handlung::Doppelklick ? 2 : 1); ++i) {
        striche_.emplace_back(maus(QEvent::MouseButtonPress));
        striche_.emplace_back(maus(QEvent::MouseButtonRelease));
    }
}

void Haende::Ziehen(const Treffer& von, const Handgriff& schritt) {
    zeit_ += klickpause;
    const QPointer<QWindow> fenster = von.fenster->windowHandle();
    // The end may lie in another window; to the window that was pressed in it is a place outside.
    QPoint ziel = von.stelle + QPoint(40, 30);
    if (const std::optional<Treffer> nach = Suchen(schritt.nach); nach) {
        ziel = von.fenster->mapFromGlobal(nach->fenster->mapToGlobal(nach->stelle));
    }
    const Qt::KeyboardModifiers zusatz = schritt.zusatz;
    const auto strich = [this, fenster, zusatz](QPoint stelle, QEvent::Type art, Qt::MouseButton taste) {
        striche_.emplace_back([=, this] { Maus(fenster, stelle, art, taste, zusatz); });
    };
    strich(von.stelle, QEvent::MouseMove, Qt::NoButton);
    strich(von.stelle, QEvent::MouseButtonPress, Qt::LeftButton);
    strich((von.stelle + ziel) / 2, QEvent::MouseMove, Qt::LeftButton);
    strich(ziel + QPoint(1, 0), QEvent::MouseMove, Qt::LeftButton);
    strich(ziel, QEvent::MouseMove, Qt::LeftButton);
    strich(ziel, QEvent::MouseButtonRelease, Qt::LeftButton);
}

void Haende::Tasten(int taste, Qt::KeyboardModifiers zusatz, const QString& text) {
    striche_.emplace_back([=] { TasteSenden(taste, zusatz, text); });
}

void Haende::Tippen(const QString& text) {
    for (const QChar zeichen : text.left(40)) {
        const bool ende = zeichen == u'\n' || zeichen == u'\r';
        const int taste = ende                      ? static_cast<int>(Qt::Key_Return)
                          : zeichen == u'\t'        ? static_cast<int>(Qt::Key_Tab)
                          : zeichen.unicode() < 128 ? static_cast<int>(zeichen.toUpper().unicode())
                                                    : static_cast<int>(Qt::Key_unknown);
        const bool gross = zeichen.isUpper();
        Tasten(taste, gross ? Qt::ShiftModifier : Qt::NoModifier,
               ende ? QStringLiteral("\r") : QString(zeichen));
    }
}

void Haende::Drehen(const Treffer& ort, const Handgriff& schritt) {
    const QPointer<QWindow> fenster = ort.fenster->windowHandle();
    striche_.emplace_back([fenster, stelle = ort.stelle, schritt] {
        if (!fenster.isNull()) {
            QWheelEvent rad(stelle, fenster->mapToGlobal(stelle), QPoint(), QPoint(0, schritt.zahl),
                            Qt::NoButton, schritt.zusatz, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(fenster, &rad);
        }
    });
}

void Haende::Schliessen(const Treffer& ort) {
    striche_.emplace_back([fenster = QPointer<QWidget>(ort.fenster)] {
        if (!fenster.isNull()) {
            fenster->close();
        }
    });
}
