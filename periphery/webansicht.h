// The plug-in feldkranz_web: shows one web page, with the toolkit's library for them. What the page may do is
// periphery/webseite.h.
#pragma once

#include "periphery/netzansicht.h"

#include <QObject>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <memory>

class QWebEngineProfile;
class Webseite;

// Lets nothing through that the rule sends nowhere: no file, no data out of the page's own text.
class Torwaechter : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

public:
    explicit Torwaechter(std::function<Netzziel(const QUrl&)> ziel) : ziel_(std::move(ziel)) {}
    void interceptRequest(QWebEngineUrlRequestInfo& anfrage) override;

private:
    std::function<Netzziel(const QUrl&)> ziel_;
};

class Webansicht : public QWebEngineView, public Netzansicht {
    Q_OBJECT

public:
    Webansicht(QWidget* eltern, Netzregeln regeln);
    ~Webansicht() override;

    QWidget* Steuerelement() override { return this; }
    void Zeigen(const QUrl& adresse) override;
    // Sees the user's input before the page's own control, which comes and goes with the pages.
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

protected:
    void childEvent(QChildEvent* ereignis) override;

private:
    // The page goes before its profile, and that before its gatekeeper.
    std::unique_ptr<Torwaechter> torwaechter_;
    std::unique_ptr<QWebEngineProfile> profil_;
    std::unique_ptr<Webseite> seite_;
};

class Webzusatz : public QObject, public Netzzusatz {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "feldkranz.Netzzusatz/1")
    Q_INTERFACES(Netzzusatz)

public:
    Netzansicht* Bauen(QWidget* eltern, Netzregeln regeln) override;
};
