// What the dice may show: keys, favourite commands, texts.
#pragma once

#include "tests/zufall/handgriff.h"

#include <QString>

#include <array>
#include <vector>

namespace wuerfeltafel {

inline constexpr std::array tasten{
    Qt::Key_Tab,   Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Escape, Qt::Key_Return,
    Qt::Key_Enter, Qt::Key_Space, Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,
    Qt::Key_Home,  Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace,
    Qt::Key_F1,    Qt::Key_F2,    Qt::Key_F4,     Qt::Key_F6,       Qt::Key_F8,     Qt::Key_F8,
    Qt::Key_F8,    Qt::Key_F9,    Qt::Key_F10,    Qt::Key_Menu,     Qt::Key_Insert};
inline constexpr std::array strgtasten{Qt::Key_A,   Qt::Key_C,    Qt::Key_V,   Qt::Key_X,        Qt::Key_Z,
                                       Qt::Key_Y,   Qt::Key_N,    Qt::Key_O,   Qt::Key_S,        Qt::Key_P,
                                       Qt::Key_Q,   Qt::Key_F,    Qt::Key_B,   Qt::Key_W,        Qt::Key_F4,
                                       Qt::Key_Tab, Qt::Key_Home, Qt::Key_End, Qt::Key_Backspace};

// What leads to where much can be done.
struct Liebling {
    Handlung was;
    const char* fenster;
    const char* element;
    int hoehe; // where in it
};
inline constexpr std::array lieblinge{Liebling{Handlung::Klick, "frmMDI", "cmdNeuFK", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdNeuHB", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdLaden", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdDateiliste", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdAuswahl(0)", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdAuswahl(1)", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdEdit", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdIni", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdDateiFK(3)", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdDateiHB(3)", 4},
                                      Liebling{Handlung::Klick, "frmMDI", "cmdDruckenFK(2)", 4},
                                      Liebling{Handlung::Klick, "frmFKformulare", "cmdNeuFK", 4},
                                      Liebling{Handlung::Klick, "frmFKformulare", "cmdNeuHB", 4},
                                      Liebling{Handlung::Doppelklick, "frmFKformulare", "filDateiliste", 8},
                                      Liebling{Handlung::Doppelklick, "frmFKformulare", "filDateiliste", 24},
                                      Liebling{Handlung::Doppelklick, "frmFKformulare", "filDateiliste", 42}};
// Beginnings of the names of what gives or takes a question.
inline constexpr std::array ziehbares{"txtFrage", "txtAntwort", "pnlCopy", "picJoker",
                                      "pnlNr",    "cmdMuell",   "lst",     "pnlFrage"};

inline const std::vector<QString>& Texte() {
    static const std::vector<QString> texte{QStringLiteral("A"),
                                            QStringLiteral("Wie viele Beine hat eine Spinne ?"),
                                            QStringLiteral("acht"),
                                            QStringLiteral("äöüß ÄÖÜ"),
                                            QStringLiteral("Er sagte \"ja\""),
                                            QStringLiteral("7"),
                                            QStringLiteral("-1"),
                                            QStringLiteral("99999"),
                                            QStringLiteral("20"),
                                            QStringLiteral("3,5"),
                                            QStringLiteral("a,b;c|d#e"),
                                            QStringLiteral("łódź → 日本 \U0001F600"),
                                            QStringLiteral("eins\nzwei\n\ndrei"),
                                            QStringLiteral("\t"),
                                            QStringLiteral("   "),
                                            QStringLiteral("<b>fett</b> &amp; &x"),
                                            QStringLiteral("PROBE"),
                                            QStringLiteral("probe.fkr"),
                                            QStringLiteral("Probe.bak"),
                                            QStringLiteral("..\\x"),
                                            QStringLiteral("../x"),
                                            QStringLiteral("*.FKR"),
                                            QStringLiteral("*.*"),
                                            QStringLiteral("CON"),
                                            QStringLiteral("a/b\\c:d?"),
                                            QStringLiteral("[FKINI]"),
                                            QStringLiteral("#TRUE#"),
                                            QStringLiteral("01.02.2026"),
                                            QStringLiteral("\r\n"),
                                            QStringLiteral("wort ").repeated(60),
                                            QStringLiteral("x").repeated(300)};
    return texte;
}

} // namespace wuerfeltafel
