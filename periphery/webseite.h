// A web page that may do little: it is shown, and its links are followed where the caller's rule lets them.
// It opens no window and no dialog, reads no file, gets no permission and leaves nothing behind.
#pragma once

#include "periphery/netzansicht.h"

#include <QElapsedTimer>
#include <QWebEnginePage>

class QWebEngineLoadingInfo;
class QWebEngineNewWindowRequest;

class Webseite : public QWebEnginePage {
    Q_OBJECT

public:
    Webseite(QWebEngineProfile* profil, Netzregeln regeln);

    // The user has clicked or pressed a key that follows links. Only that proves it: to the library, a script
    // that clicks a link looks the same. Each input lets one link be followed, shortly after it.
    void Eingegeben();
    // A file that the page would have stored: the user's own browser may, if he followed a link to it.
    void DateiAbgeben(const QUrl& adresse);

protected:
    bool acceptNavigationRequest(const QUrl& adresse, NavigationType art, bool hauptrahmen) override;
    QStringList chooseFiles(FileSelectionMode art, const QStringList& alte,
                            const QStringList& arten) override;
    void javaScriptAlert(const QUrl& quelle, const QString& text) override;
    bool javaScriptConfirm(const QUrl& quelle, const QString& text) override;
    bool javaScriptPrompt(const QUrl& quelle, const QString& text, const QString& vorgabe,
                          QString* antwort) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel stufe, const QString& text, int zeile,
                                  const QString& quelle) override;

private:
    void Einschraenken();
    void WuenscheAblehnen();
    void Melden(bool gelungen);
    void LadenVerfolgen(const QWebEngineLoadingInfo& stand);
    void FensterErsetzen(const QWebEngineNewWindowRequest& wunsch);
    // Whether the user's own input is behind what happens now; uses it up.
    bool EingabeVerbrauchen();
    bool VomBenutzer(const QUrl& adresse, NavigationType art);
    // What the user followed and isn't shown here: to the system's browser, or nowhere.
    void Abgeben(const QUrl& adresse);

    Netzregeln regeln_;
    bool steht_ = false;    // a page is shown
    QElapsedTimer eingabe_; // since the user's last input; invalid once that is used up
    QUrl gefolgt_;          // where the link has led that the user followed last, while that isn't settled
    QUrl verlangt_;         // the followed link that wanted a window of its own and is loaded here
};
