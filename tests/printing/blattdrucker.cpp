// Prints the probe sheets into the folder that is named, in a process of its own: what the toolkit draws by
// lots anew in each process can differ between two runs only.
#include "tests/printing/probeblaetter.h"

#include <QGuiApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock");
    const QGuiApplication anwendung(argc, argv);
    if (argc != 2) {
        return 2;
    }
    const std::string ordner = std::string(argv[1]) + "/";
    QuizblattDrucken(VollesQuizblatt(), Papier::A4Quer, 1_mm, ordner + "Quiz.pdf");
    TestblattDrucken(VollesTestblatt(), ordner + "Test.pdf");
    return 0;
}
