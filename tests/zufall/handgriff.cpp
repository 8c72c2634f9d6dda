#include "tests/zufall/handgriff.h"

#include <QKeySequence>
#include <QStringList>
#include <QUrl>

#include <array>

namespace {

constexpr std::array namen{"klick", "doppelklick", "rechtsklick", "ziehen",     "taste",
                           "text",  "einfuegen",   "rad",         "schliessen", "neustart"};

struct Zusatzname {
    Qt::KeyboardModifier taste;
    const char* name;
};
constexpr std::array zusatznamen{Zusatzname{Qt::ShiftModifier, "Shift"},
                                 Zusatzname{Qt::ControlModifier, "Ctrl"}, Zusatzname{Qt::AltModifier, "Alt"}};

// One word, whatever is in it.
QString Kodiert(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "()[],;:!+=$&'*"));
}

QString Dekodiert(const QString& wort) {
    return QUrl::fromPercentEncoding(wort.toLatin1());
}

QString Wort(const Ort& ort) {
    return QStringLiteral("%1/%2@%3,%4")
        .arg(Kodiert(ort.fenster), Kodiert(ort.element))
        .arg(ort.stelle.x())
        .arg(ort.stelle.y());
}

Ort OrtAus(const QString& wort) {
    const QString wer = wort.section(u'@', 0, 0);
    const QString stelle = wort.section(u'@', 1);
    return {Dekodiert(wer.section(u'/', 0, 0)), Dekodiert(wer.section(u'/', 1)),
            QPoint(stelle.section(u',', 0, 0).toInt(), stelle.section(u',', 1).toInt())};
}

QString Wort(Qt::KeyboardModifiers zusatz) {
    QStringList teile;
    for (const Zusatzname& name : zusatznamen) {
        if (zusatz.testFlag(name.taste)) {
            teile.append(QLatin1String(name.name));
        }
    }
    return teile.isEmpty() ? QStringLiteral("ohne") : teile.join(u'+');
}

Qt::KeyboardModifiers ZusatzAus(const QString& wort) {
    Qt::KeyboardModifiers zusatz;
    for (const Zusatzname& name : zusatznamen) {
        zusatz.setFlag(name.taste, wort.split(u'+').contains(QLatin1String(name.name)));
    }
    return zusatz;
}

QStringList Angaben(const Handgriff& schritt) {
    switch (schritt.was) {
    case Handlung::Klick:
    case Handlung::Doppelklick:
    case Handlung::Rechtsklick:
        return {Wort(schritt.von), Wort(schritt.zusatz)};
    case Handlung::Ziehen:
        return {Wort(schritt.von), Wort(schritt.zusatz), Wort(schritt.nach)};
    case Handlung::Rad:
        return {Wort(schritt.von), Wort(schritt.zusatz), QString::number(schritt.zahl)};
    case Handlung::Taste:
        return {QKeySequence(QKeyCombination(schritt.zusatz, static_cast<Qt::Key>(schritt.zahl)))
                    .toString(QKeySequence::PortableText),
                Wort(schritt.zusatz), QString::number(schritt.zahl)};
    case Handlung::Text:
    case Handlung::Einfuegen:
        return {Kodiert(schritt.text)};
    case Handlung::Schliessen:
    case Handlung::Neustart:
        break;
    }
    return {Wort(schritt.von)};
}

} // namespace

QString Worte(const Handgriff& schritt) {
    return QLatin1String(namen.at(static_cast<std::size_t>(schritt.was))) + u' ' +
           Angaben(schritt).join(u' ');
}

std::optional<Handgriff> SchrittAus(const QString& zeile) {
    const QStringList worte = zeile.trimmed().split(u' ');
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (worte.constFirst() != QLatin1String(namen.at(i)) || worte.size() < 2) {
            continue;
        }
        Handgriff schritt{static_cast<Handlung>(i), {}, {}, {}, 0, {}};
        if (schritt.was == Handlung::Text || schritt.was == Handlung::Einfuegen) {
            schritt.text = Dekodiert(worte.at(1));
        } else if (schritt.was != Handlung::Taste) { // the key's name is for the reader
            schritt.von = OrtAus(worte.at(1));
        }
        schritt.zusatz = ZusatzAus(worte.value(2));
        schritt.nach = OrtAus(worte.value(3));
        schritt.zahl = worte.value(3).toInt();
        return schritt;
    }
    return std::nullopt;
}
