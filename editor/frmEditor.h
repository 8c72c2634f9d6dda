// The window of the editor: a toolbar, two panels that name the file, the text field. It builds and places
// its controls and passes their events on; loading, saving and the closing question are editordateien.h, the
// clipboard commands editorablage.h, opening and unloading it editor.h.
#pragma once

#include "core/panel.h"
#include "editor/notizfeld.h"

#include <QAbstractButton>
#include <QWidget>

#include <array>
#include <string_view>

class frmEditor : public QWidget {
    Q_OBJECT

public:
    frmEditor();

    // Shows a text that was read, with its mark and its file's name.
    void TextZeigen(std::string_view text, std::string_view pfad);
    // The mark and the name of the file at that path on their panels.
    void NamenZeigen(std::string_view pfad);
    // Lights one of the two lamps.
    void LampenZeigen(bool rot);
    // Takes the clipboard's buttons into and out of use, by the selection, the clipboard and the lock.
    void TastenFreigeben();
    // The switch shows OptionDatei.
    void SicherungZeigen();

    Notizfeld* txtNotiz = nullptr;
    Panel* pnlLaufname = nullptr;
    Panel* pnlDatei = nullptr;

Q_SIGNALS:
    // The window has been closed after its check and is about to go.
    void geschlossen();

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    void ToolbarBauen();
    void FeldBauen();
    void Verbinden();
    void TastenVerbinden();
    void Sperren(bool gesperrt);
    void AblageLesen();
    [[nodiscard]] QAbstractButton* Taste(const QString& name) const;

    Panel* pnlToolbar_ = nullptr;
    Panel* pnlEdit_ = nullptr;
    Panel* pnlNotiz_ = nullptr;
    std::array<QAbstractButton*, 8> cmdCopy_{};
    bool ablageHatText_ = false; // asked for when the clipboard changes, not at every key
};
