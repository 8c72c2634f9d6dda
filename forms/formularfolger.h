// For a window that shows something of the open form beside it: tells it when to look again, however the form
// changes, comes or goes. Many changes in a row are one look.
#pragma once

#include <QObject>
#include <QPointer>

#include <chrono>

class QTimer;
class QWidget;

class Formularfolger : public QObject {
    Q_OBJECT

public:
    // sammelzeit: how long after the first change the look comes; typing on and on doesn't put it off.
    Formularfolger(std::chrono::milliseconds sammelzeit, QObject* eltern);

    // A look will be due soon, for another reason than the form.
    void Bald();
    // By every look: nobody tells that a form goes, but its window does.
    void Nachgesehen();

Q_SIGNALS:
    void nachsehen();

private:
    QPointer<QWidget> beobachtet_; // the form's window whose end is waited for
    QTimer* bald_;
};
