#include "dialogs/meldung.h"

#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/plattform.h"
#include "core/programmstand.h"
#include "dialogs/einzelfenster.h"
#include "dialogs/fehlertexte.h"
#include "dialogs/frmMeldung.h"
#include "dialogs/frmNachricht.h"
#include "dialogs/klangtabelle.h"
#include "dialogs/modal.h"

#include <QMessageBox>
#include <QPushButton>

#include <array>
#include <optional>
#include <string>

void Meldung(const MeldungsText& meldung, std::initializer_list<std::string_view> werte) {
    const std::string text = Einsetzen(meldung.text, werte);
    std::optional<Laufzeitfehler> bildfehler;
    {
        frmMeldung fenster({meldung.bild, text, meldung.nummer, meldung.taste});
        ModalZeigen(fenster);
        bildfehler = fenster.bildfehler();
    }
    // Only now: a report inside the message it is about would meet the same missing picture again.
    BildfehlerMelden("MELDUNG.bmp", bildfehler);
}

Antwort Nachricht(const NachrichtText& frage, std::initializer_list<std::string_view> werte,
                  Antwort beimSchliessen) {
    const std::string text = Einsetzen(frage.text, werte);
    frmNachricht& fenster = Einzelfenster<frmNachricht>("NACHRICHT.bmp");
    fenster.Stellen({frage.bild, frage.titel, text, frage.tasten, frage.nummer}, beimSchliessen);
    ModalZeigen(fenster);
    return fenster.antwort();
}

bool NachrichtJaNein(const NachrichtText& frage, std::initializer_list<std::string_view> werte) {
    for (;;) {
        const Antwort antwort = Nachricht(frage, werte);
        if (antwort == Antwort::Ja || antwort == Antwort::Nein) {
            return antwort == Antwort::Ja;
        }
    }
}

bool ErsetzenErlaubt(const NachrichtText& frage) {
    Antwort antwort = Nachricht(frage);
    while (antwort != Antwort::Ja && antwort != Antwort::Abbrechen) {
        antwort = Nachricht(frage);
    }
    return antwort == Antwort::Ja;
}

bool Bestaetigt(const NachrichtText& frage, std::initializer_list<std::string_view> werte) {
    return Nachricht(frage, werte) != Antwort::Abbrechen;
}

void FehlerMelden(std::string_view ort, const Laufzeitfehler& fehler) {
    const Fehlerbericht bericht = FehlerberichtBilden(ort, fehler.nummer(), fehler.text());
    Meldung({1, bericht.text, "1", bericht.taste});
}

void SoundSpielen(std::string_view name) {
    const std::string_view datei = KlangDatei(name);
    if (!datei.empty()) {
        // A file that is missing or can't be played is passed over: there is nothing to fall back on.
        plattform::KlangAbspielen(NativerPfad(Stand.AppPfad + std::string(datei)));
    }
}

bool Systemkasten(Kastenart art, std::string_view titel, std::string_view text, bool abbrechen) {
    constexpr std::array bilder{QMessageBox::NoIcon, QMessageBox::Question, QMessageBox::Warning};
    QMessageBox kasten(bilder[static_cast<std::size_t>(art)], Anzeige(titel), Anzeige(text));
    kasten.setTextFormat(Qt::PlainText);
    kasten.addButton(QMessageBox::Ok);
    if (abbrechen) {
        kasten.addButton(QMessageBox::Cancel)->setText(QStringLiteral("Abbrechen"));
    }
    ModalZeigen(kasten);
    return kasten.clickedButton() != nullptr && kasten.clickedButton() == kasten.button(QMessageBox::Ok);
}
