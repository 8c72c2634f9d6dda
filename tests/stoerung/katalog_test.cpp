// Saving a catalogue file from the editor while the disk fails, in the editor's real window.
#include "persistence/dateiblick.h"
#include "tests/editor/editorlauf.h"
#include "tests/stoerung/platte.h"

#include <cerrno>

class StoerungKatalogTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened();
    void whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost();
    void whicheverCallFailsAnotherProgramsWorkStays();
    void aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing();
    void aDiskLosesNothingAndIsToldAsItIs_data() { PlattenEintragen(); }
    void aDiskLosesNothingAndIsToldAsItIs();
    void aSlowDiskIsWaitedForUnderTheHourglass();
    void aTextThatCanNotBeSavedIsNotClosed();

private:
    Speicherfall Fall();
};

// The file loaded, with something typed into it.
void StoerungKatalogTest::init() {
    Anfangen();
    Geladen();
    Tippen(editor, QStringLiteral("getippt "));
    QVERIFY(IstRot(editor));
}

Speicherfall StoerungKatalogTest::Fall() {
    Speicherfall fall;
    fall.ordner = lauf.programm().ordner().nativ(QStringLiteral("WISSEN"));
    fall.name = QStringLiteral("KN.TXT");
    fall.alt = knoten;
    fall.speichern = [this] { Druecken(editor, cmdDatei0); };
    fall.ungesichert = [this] { return IstRot(editor) && Stand.EditorGeaendert; };
    fall.aendern = [] { EditorStatusSetzen(true); };
    fall.kennen = [] {
        Editor.Kenntnis =
            Dateikenntnis(StandVon(std::string_view(knoten.data(), static_cast<std::size_t>(knoten.size()))));
    };
    fall.fremdfrage = {QStringLiteral("Die Fragendatei"), fall.name};
    fall.inhalt = [this] { return Text(editor); };
    fall.bedienen = [this] { Tippen(editor, QStringLiteral("x")); };
    fall.gelungen = {QStringLiteral("Fragen sind gespeichert unter\n[ KN.TXT ] !"),
                     QStringLiteral("Ganz große Klasse")};
    fall.gescheitert = [](const Fehlgrund& grund) {
        return Fehlerbericht(QStringLiteral("Notiz : cmdDatei"), grund);
    };
    return fall;
}

void StoerungKatalogTest::whicheverCallFailsTheFileIsWholeAndTheWindowSaysWhatHappened() {
    Speicherprobe probe(Fall());
    const QString klagen =
        probe.JederVersagt({ENOSPC, EDQUOT, EROFS, EACCES, EIO, ENAMETOOLONG, EWOULDBLOCK});
    QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
    QVERIFY2(probe.gelungene() > 20 && probe.gescheiterte() > 40, "the calls aren't caught");
}

void StoerungKatalogTest::whicheverCallFailsWhileTheFileIsWrittenInPlaceNothingIsLost() {
    const Speicherfall fall = Fall();
    Speicherprobe probe(fall);
    const QString klagen = probe.JederVersagt({ENOSPC, EACCES, EIO}, Verschlossen(fall.ordner.toStdString()));
    QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
    QVERIFY2(probe.gerufen("ftruncate"), "no file was written in place");
}

void StoerungKatalogTest::whicheverCallFailsAnotherProgramsWorkStays() {
    Speicherprobe probe(Fall());
    const QString klage = probe.FremdesBleibt({EIO, EACCES, ENODEV, ENOMEM});
    QVERIFY2(klage.isEmpty(), qPrintable(klage));
}

void StoerungKatalogTest::aDiskThatGoesForGoodInTheMiddleOfASaveLosesNothing() {
    const Speicherfall fall = Fall();
    Speicherprobe probe(fall);
    for (const Regel& immer : {Regel(), Verschlossen(fall.ordner.toStdString())}) {
        const QString klagen = probe.KaputtAb(immer) + probe.VollAb(immer);
        QVERIFY2(klagen.isEmpty(), qPrintable(klagen));
    }
}

void StoerungKatalogTest::aDiskLosesNothingAndIsToldAsItIs() {
    QFETCH(const int, platte);
    PlatteErproben(Fall(), Platten().at(static_cast<std::size_t>(platte)));
}

void StoerungKatalogTest::aSlowDiskIsWaitedForUnderTheHourglass() {
    LangsamErproben(Fall());
}

void StoerungKatalogTest::aTextThatCanNotBeSavedIsNotClosed() {
    const Speicherfall fall = Fall();
    const QString inhalt = fall.inhalt();
    const Stoerung voll({fall.ordner.toStdString()},
                        [](const Aufruf& aufruf) { return aufruf.name == "write" ? ENOSPC : 0; });
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 6);
    FehlerErwarten(dialoge, QStringLiteral("61 : Datenträger voll"));
    RahmenSchliessen(editor);
    QVERIFY(dialoge.fertig());
    QVERIFY(editor->isVisible());
    Unveraendert(inhalt, QStringLiteral("KN.TXT "));
    QCOMPARE(Dateibytes(fall.pfad()), knoten);
}

QTEST_MAIN(StoerungKatalogTest)
#include "katalog_test.moc"
