// Form and question files against the bare work on the same bytes, and against files ten times as long.
#include "benchmarks/zeiten.h"
#include "catalogue/katalogdatei.h"
#include "core/datei.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "persistence/formulardatei.h"
#include "quizform/quizformular.h"
#include "testform/testformular.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <fstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace {

constexpr std::int64_t fragen = 100'000;

// The folder of all files measured; it goes with the program.
const QTemporaryDir& Ordner() {
    static const QTemporaryDir ordner;
    return ordner;
}

std::string Nativ(const std::string& name) {
    return (Ordner().path() + QLatin1Char('/')).toStdString() + name;
}

std::string Eigen(const std::string& name) {
    return EigenerPfad(QString::fromStdString(Nativ(name)));
}

// A board with every cell full. The texts are `mal` times as long as a usual one.
std::string VollesFormular(int mal) {
    std::string frage;
    std::string antwort;
    for (int i = 0; i < mal; ++i) {
        frage += "Wie heißt der größte Fluß, der über die Grenzen von fünf Ländern fließt ? ";
        antwort += "Donau (Österreich, Ungarn ...) ";
    }
    Stand.FormTyp = Formart::Quiz;
    FKForm.WissenTitel.fill("Länder und Flüsse");
    FKForm.FrageText.fill(frage);
    FKForm.AntwortText.fill(antwort);
    FKForm.FeldSpezial.fill("J");
    FKForm.FormNr = "17";
    return FormularBytes("FKFragen");
}

// A test with its ten rows full.
std::string VollerTest() {
    Stand.FormTyp = Formart::Test;
    HBForm.HBFach = HBForm.HBKopf2 = " Knoten und Bünde";
    HBForm.HBKopf1 = " Lernzielkontrolle Häuptlingsfreizeit";
    HBForm.HBKopf3 = " III";
    HBForm.HBFrageText.fill("Wie heißt der größte Knoten, mit dem man zwei gleich dicke Taue verbindet ? ");
    HBForm.HBAntwortText.fill("Kreuzknoten (Weberknoten, wenn die Taue ungleich sind)");
    HBForm.HBPunkte.fill(10);
    HBForm.HBGesamtpunkte = 100;
    return FormularBytes("HBFragen");
}

// A kind of form: how its bytes are asked for, and a full one of it in the model and as bytes.
struct Formart {
    const char* tag;
    std::string (*fuellen)();
};
constexpr Formart quiz{"FKFragen", [] { return VollesFormular(1); }};
constexpr Formart test{"HBFragen", VollerTest};

std::string Fragendatei(std::int64_t anzahl) {
    std::string bytes = "Fragen\r\n";
    for (std::int64_t i = 1; i <= anzahl; ++i) {
        bytes += std::to_string(i) + "\r\nWelches Tier h\xF6rt man in dieser Nacht am Flu\xDF rufen ?\r\n";
        bytes += "Die Eule\r\n10\r\n";
    }
    return bytes;
}

// --- Form files

void FormularLesenUndSpeichern(benchmark::State& lauf, const Formart& art) {
    DateiSchreiben(Eigen("form.FKR"), art.fuellen());
    for ([[maybe_unused]] auto _ : lauf) {
        const FormularErgebnis ergebnis = FormularAusBytes(DateiLesen(Eigen("form.FKR")), {});
        if (ergebnis.code != 0) {
            lauf.SkipWithError("no form file");
        }
        DateiSchreiben(Eigen("form.FKR"), FormularBytes(art.tag));
    }
}

// Copies the bytes to a new file, forces file and folder to the disk and renames it, as a save must.
void BytesKopieren(benchmark::State& lauf, const Formart& art) {
    DateiSchreiben(Eigen("roh.FKR"), art.fuellen());
    const std::string ziel = Nativ("roh.FKR");
    const std::string neben = Nativ("roh.neu");
    const int ordner = ::open(Ordner().path().toStdString().c_str(), O_RDONLY);
    for ([[maybe_unused]] auto _ : lauf) {
        std::string bytes(1U << 16U, '\0');
        const int quelle = ::open(ziel.c_str(), O_RDONLY);
        const ssize_t laenge = ::read(quelle, bytes.data(), bytes.size());
        ::close(quelle);
        const int neu = ::open(neben.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        if (::write(neu, bytes.data(), static_cast<std::size_t>(laenge)) != laenge || ::fsync(neu) != 0) {
            lauf.SkipWithError("not copied");
        }
        ::close(neu);
        if (::rename(neben.c_str(), ziel.c_str()) != 0 || ::fsync(ordner) != 0) {
            lauf.SkipWithError("not renamed");
        }
    }
    ::close(ordner);
}

// One way each, from or to a file on the disk.
void FormulareLesen(benchmark::State& lauf, const Formart& art) {
    DateiSchreiben(Eigen("lesen.FKR"), art.fuellen());
    for ([[maybe_unused]] auto _ : lauf) {
        if (FormularAusBytes(DateiLesen(Eigen("lesen.FKR")), {}).code != 0) {
            lauf.SkipWithError("no form file");
        }
    }
}

// As a save writes them, but for the forcing to the disk, which is the disk's affair and not the program's:
// the bytes go over those of the same length, since cutting a file first makes some file systems force it as
// well.
void FormulareSchreiben(benchmark::State& lauf, const Formart& art) {
    DateiSchreiben(Eigen("schreiben.FKR"), art.fuellen());
    const std::string ziel = Nativ("schreiben.FKR");
    for ([[maybe_unused]] auto _ : lauf) {
        std::ofstream datei(ziel, std::ios::binary | std::ios::in | std::ios::out);
        datei << FormularBytes(art.tag) << std::flush;
        if (!datei) {
            lauf.SkipWithError("not written");
        }
    }
}

// Without the disk: bytes into the model and back.
void FormularImSpeicher(benchmark::State& lauf) {
    const std::string bytes = VollesFormular(static_cast<int>(lauf.range(0)));
    for ([[maybe_unused]] auto _ : lauf) {
        const FormularErgebnis ergebnis = FormularAusBytes(bytes, {});
        if (ergebnis.code != 0 || FormularBytes("FKFragen") != bytes) {
            lauf.SkipWithError("not the same form");
        }
    }
    lauf.SetBytesProcessed(lauf.iterations() * static_cast<std::int64_t>(bytes.size()));
}

// --- Question files

// Gives the memory of the round before back to the system, outside the time that counts: every round takes
// fresh memory, as a program does that opens a file, whatever the file's length.
void FrischerSpeicher(benchmark::State& lauf) {
    lauf.PauseTiming();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    lauf.ResumeTiming();
}

void FragenInsModell(benchmark::State& lauf) {
    DateiSchreiben(Eigen("fragen.TXT"), Fragendatei(lauf.range(0)));
    for ([[maybe_unused]] auto _ : lauf) {
        FrischerSpeicher(lauf);
        Fragenliste liste;
        FragenLesen(DateiLesen(Eigen("fragen.TXT")), false, liste);
        if (liste.anzahl() != static_cast<std::size_t>(lauf.range(0))) {
            lauf.SkipWithError("not all questions");
        }
    }
}

void ZeilenInVektor(benchmark::State& lauf) {
    DateiSchreiben(Eigen("zeilen.TXT"), Fragendatei(fragen));
    for ([[maybe_unused]] auto _ : lauf) {
        FrischerSpeicher(lauf);
        std::ifstream datei(Nativ("zeilen.TXT"), std::ios::binary);
        std::vector<std::string> zeilen;
        for (std::string zeile; std::getline(datei, zeile);) {
            zeilen.push_back(zeile);
        }
        if (zeilen.size() != static_cast<std::size_t>(4 * fragen + 1)) {
            lauf.SkipWithError("not all lines");
        }
    }
}

BENCHMARK_CAPTURE(FormularLesenUndSpeichern, quiz, quiz)->UseRealTime();
BENCHMARK_CAPTURE(FormularLesenUndSpeichern, test, test)->UseRealTime();
BENCHMARK_CAPTURE(BytesKopieren, quiz, quiz)->UseRealTime();
BENCHMARK_CAPTURE(BytesKopieren, test, test)->UseRealTime();
BENCHMARK_CAPTURE(FormulareLesen, quiz, quiz)->UseRealTime();
BENCHMARK_CAPTURE(FormulareLesen, test, test)->UseRealTime();
BENCHMARK_CAPTURE(FormulareSchreiben, quiz, quiz)->UseRealTime();
BENCHMARK_CAPTURE(FormulareSchreiben, test, test)->UseRealTime();
BENCHMARK(FormularImSpeicher)->Arg(1)->Arg(10)->UseRealTime();
BENCHMARK(FragenInsModell)->Arg(fragen)->Arg(10 * fragen)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ZeilenInVektor)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    constexpr int runden = 11;
    std::string dauer = "--benchmark_min_time=0.05";
    std::vector<char*> argumente(argv, argv + argc);
    argumente.insert(argumente.begin() + 1, dauer.data()); // the command line's own comes later and wins
    int anzahl = static_cast<int>(argumente.size());
    benchmark::Initialize(&anzahl, argumente.data());
    Zeiten zeiten;
    // All in turn, round by round, so that a busy machine meets them alike.
    for (int runde = 0; runde < runden; ++runde) {
        benchmark::RunSpecifiedBenchmarks(&zeiten);
    }
    zeiten.Ausgeben();
    zeiten.Gegen("formular_datei", "FormularLesenUndSpeichern/quiz", "BytesKopieren/quiz");
    zeiten.Gegen("test_datei", "FormularLesenUndSpeichern/test", "BytesKopieren/test");
    zeiten.JeSekunde("formulare_lesen", "FormulareLesen/quiz");
    zeiten.JeSekunde("tests_lesen", "FormulareLesen/test");
    zeiten.JeSekunde("formulare_schreiben", "FormulareSchreiben/quiz");
    zeiten.JeSekunde("tests_schreiben", "FormulareSchreiben/test");
    zeiten.Wachstum("formular_zehnfach", "FormularImSpeicher10", "FormularImSpeicher1");
    zeiten.Gegen("fragen_lesen", "FragenInsModell" + std::to_string(fragen), "ZeilenInVektor");
    zeiten.Wachstum("fragen_zehnfach", "FragenInsModell" + std::to_string(10 * fragen),
                    "FragenInsModell" + std::to_string(fragen));
    return zeiten.versagt() ? 1 : 0;
}
