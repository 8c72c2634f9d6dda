// The control in which a document is read: the pages, a bar to turn and size them, a line to search in them,
// and a line that says where the reader is or why there is nothing to read. The pages themselves come from
// the plug-in (periphery/dokumentansicht.h); without it there is a button for the system's own viewer.
#pragma once

#include <QTimer>
#include <QWidget>

#include <string_view>

class Dokumentansicht;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;
class QToolButton;

class Dokumentleser : public QWidget {
    Q_OBJECT

public:
    explicit Dokumentleser(QWidget* eltern);

    // Shows a file of the file system. False where it can't be shown; the pages' place then says why.
    bool Laden(const QString& datei);

private:
    void LeisteBauen();
    QWidget* SuchzeileBauen();
    QPushButton* SystemleserBauen();
    QToolButton* TasteBauen(const char* name, std::string_view aufschrift, void (Dokumentleser::*routine)());
    void TastenVerbinden();
    void Kurztaste(const QKeySequence& taste, void (Dokumentleser::*routine)());

    void Zurueck();
    void Weiter();
    void SeiteGewaehlt();
    void Kleiner();
    void Groesser();
    void Breite();
    void GanzeSeite();
    void SucheBeginnen();
    void SucheVerlassen();
    void Suchen();
    void NaechsterFund();
    void VorigerFund();
    void FundZeigen(int fund);
    // Brings page number, buttons and the last line up to date.
    void Auffrischen();
    void StandEinordnen();

    Dokumentansicht* ansicht_ = nullptr; // none without the plug-in
    QToolBar* leiste_ = nullptr;
    QLineEdit* txtSeite_ = nullptr;
    QLabel* lblSeiten_ = nullptr;
    QWidget* suchzeile_ = nullptr;
    QLineEdit* txtSuche_ = nullptr;
    QLabel* lblStand_ = nullptr;
    QPushButton* cmdSystemleser_ = nullptr;
    QString datei_;
    QTimer verzoegerung_; // a search waits until the typing pauses
    QString gesucht_;
    int funde_ = 0;
    int fund_ = -1;
    bool geladen_ = false;
};
