// The measure for the start: what the toolkit alone takes to bring a window with a button on the screen.
#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    QWidget fenster;
    fenster.resize(480, 320);
    QVBoxLayout anordnung(&fenster);
    anordnung.addWidget(new QPushButton(QStringLiteral("Weiter")));
    fenster.show();
    return QCoreApplication::exec();
}
