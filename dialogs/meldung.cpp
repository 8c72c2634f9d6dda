#include "dialogs/meldung.h"

#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/plattform.h"
#include "core/zustand.h"
#include "dialogs/einzelfenster.h"
#include "dialogs/fehlertexte.h"
#include "dialogs/frmMeldung.h"
#include "dialogs/frmNachricht.h"
#include "dialogs/klangtabelle.h"
#include "dialogs/modal.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <array>

void Meldung(int /*flag*/, int bildNr, std::string_view text, std::string_view nummer,
             std::string_view antwortText) {
    MeldungBild = static_cast<std::int16_t>(bildNr);
    MeldungNummer = nummer;
    std::optional<Laufzeitfehler> bildfehler;
    {
        frmMeldung fenster;
        fenster.Beschriften(Anzeige(text), Anzeige(antwortText));
        ModalZeigen(fenster);
        bildfehler = fenster.bildfehler();
    }
    // Only now: a report inside the message it is about would meet the same missing picture again.
    BildfehlerMelden("MELDUNG.bmp", bildfehler);
}

void Meldung(const MeldungsText& meldung) {
    Meldung(0, meldung.bild, meldung.text, meldung.nummer, meldung.taste);
}

void Meldung(const MeldungsText& meldung, std::initializer_list<std::string_view> werte) {
    Meldung(0, meldung.bild, Einsetzen(meldung.text, werte), meldung.nummer, meldung.taste);
}

int Nachricht(int bildNr, std::string_view titel, std::string_view text, int tastenArt, int nummer) {
    frmNachricht& fenster = Einzelfenster<frmNachricht>("NACHRICHT.bmp");
    NachrichtTasten = static_cast<std::int16_t>(tastenArt);
    NachrichtBild = static_cast<std::int16_t>(bildNr);
    NachrichtNummer = std::to_string(nummer);
    fenster.Stellen(Anzeige(text), Anzeige(titel) + QLatin1Char(' '));
    ModalZeigen(fenster);
    return NachrichtAntwort;
}

int Nachricht(const NachrichtText& frage) {
    return Nachricht(frage.bild, frage.titel, frage.text, frage.tasten, frage.nummer);
}

int Nachricht(const NachrichtText& frage, std::initializer_list<std::string_view> werte) {
    return Nachricht(frage.bild, frage.titel, Einsetzen(frage.text, werte), frage.tasten, frage.nummer);
}

void FehlerMelden(std::string_view ort, const Laufzeitfehler& fehler) {
    const Fehlerbericht bericht = FehlerberichtBilden(ort, fehler.nummer(), fehler.text());
    Meldung(0, 1, bericht.text, "1", bericht.taste);
}

void SoundSpielen(std::string_view name) {
    if (SoundSignal == 1) {
        for (int i = 0; i < 4; ++i) {
            QApplication::beep();
        }
        return;
    }
    const std::string_view datei = KlangDatei(name);
    if (!datei.empty()) {
        // A file that is missing or can't be played is passed over: there is nothing to fall back on.
        plattform::KlangAbspielen(NativerPfad(AppPfad + std::string(datei)));
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
