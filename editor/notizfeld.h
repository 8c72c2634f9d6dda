// The editor's text field: a whole catalogue file, with lines as long as the screen can show them. Long files
// go into it bit by bit, beside the progress bar; what is copied and pasted keeps every character.
#pragma once

#include "core/textfeld.h"

class Notizfeld : public Textfeld {
    Q_OBJECT

public:
    explicit Notizfeld(QWidget* eltern);

    // Shows the text of a file (UTF-8 with CR LF) from its beginning. Nothing can be undone behind it. What
    // the status line says beside the progress bar is in meldung.
    void Fuellen(std::string_view text, std::string_view meldung);

    // The selected text with line feeds, "" for none.
    [[nodiscard]] QString Markiert() const;
    // Puts a text in the place of the selection and brings the cursor into sight.
    void Ersetzen(const QString& text);

protected:
    // A protected blank is none to be replaced by a plain one.
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void StueckZeigen(qsizetype stelle, qsizetype groesse);
};
