// A web page that may do little: it is shown, and its links are followed where the caller's rule lets them.
// It opens no window and no dialog, reads no file, gets no permission and leaves nothing behind.
#pragma once

#include "periphery/netzansicht.h"

#include <QWebEnginePage>

class Webseite : public QWebEnginePage {
    Q_OBJECT

public:
    Webseite(QWebEngineProfile* profil, Netzregeln regeln);

    // What a link leads to that isn't shown here: to the system's browser, if the user followed it.
    void Abgeben(const QUrl& adresse) const;
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

    Netzregeln regeln_;
    QUrl gefolgt_; // the link that the user followed last
};
