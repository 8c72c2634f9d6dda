// The choices of the window that fills a form: from which themes, under which conditions. One kind for each
// kind of form; what a choice means is the model's.
#pragma once

#include "filling/fuellauftrag.h"
#include "forms/formularstand.h"

#include <QWidget>

#include <memory>
#include <string>

class QBoxLayout;
class QCheckBox;

class Fuellwahl : public QWidget {
    Q_OBJECT

public:
    // The choices that go with the open form.
    [[nodiscard]] static Fuellwahl* Fuer(const Formularstand& stand, QWidget* eltern);

    // What is to be filled on a form as it stands, by the choices made.
    [[nodiscard]] virtual Fuellauftrag auftrag(std::shared_ptr<const Fragenvorrat> vorrat,
                                               const Formularstand& stand) const = 0;
    [[nodiscard]] virtual Vorschlag vorschlag(const Fuellauftrag& auftrag, std::uint64_t saat) const = 0;
    [[nodiscard]] virtual std::string befund(const Fuellauftrag& auftrag,
                                             const Vorschlag& vorschlag) const = 0;
    // Shows what belongs to the choices themselves.
    virtual void Zeigen(const Fuellauftrag& auftrag) = 0;
    // Notes the form's part in the choices: its titles.
    virtual void StandZeigen(const Formularstand& stand) = 0;

Q_SIGNALS:
    void anders();

protected:
    explicit Fuellwahl(QWidget* eltern);
    // A switch that is kept between two evenings under its own name; on where nothing is kept.
    QCheckBox* SchalterBauen(const char* name, std::string_view aufschrift);
    // The switch that all choices have; once, when those before it in the order of Tab are made.
    QCheckBox* UnbenutztBauen();
    [[nodiscard]] bool nurUnbenutzte() const;

private:
    QCheckBox* chkUnbenutzt_ = nullptr;
};
