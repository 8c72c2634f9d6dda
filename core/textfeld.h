// Text boxes that take what code page 1252 holds: anything else that is typed, pasted or dropped is replaced
// by its nearest equivalent or left outside, and the status help names what it was. Setting a text that
// stands there already changes nothing.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include <utility>

// The click that enters a box: the press puts the place to type there and would undo what entering selected.
class Eintrittsklick {
public:
    // The box took the focus; as the press itself arrives in the same breath, what comes later is another
    // one.
    void Betreten(QWidget* feld, Qt::FocusReason grund);
    void Gedrueckt(bool allesGewaehlt) { wiederWaehlen_ = betreten_ && allesGewaehlt; }
    // Once after such a click: everything is to be selected again.
    [[nodiscard]] bool Losgelassen() { return std::exchange(wiederWaehlen_, false); }

private:
    bool betreten_ = false;
    bool wiederWaehlen_ = false;
};

// What a box can take back and do again by itself. Where it can't, its keys for that go on to whoever keeps
// the history of more than one box.
class Eigenverlauf {
public:
    Eigenverlauf() = default;
    Eigenverlauf(const Eigenverlauf&) = delete;
    Eigenverlauf& operator=(const Eigenverlauf&) = delete;
    virtual ~Eigenverlauf() = default;

    // True when there was something to go back, or forward, to.
    virtual bool EigenesZurueck() = 0;
    virtual bool EigenesVor() = 0;
    // True when there is something that could be done again.
    [[nodiscard]] virtual bool EigenesKommt() const = 0;
    // The text stays; nothing of it can be taken back here any more.
    virtual void EigenesVergessen() = 0;
};

// Several lines; Tab moves on to the next control.
class Textfeld : public QPlainTextEdit, public Eigenverlauf {
    Q_OBJECT

public:
    explicit Textfeld(QWidget* eltern, const QString& name);

    // Text as the model has it: UTF-8 with CR LF.
    [[nodiscard]] std::string text() const;
    void setText(std::string_view text);
    // The back colour; an invalid one is system face.
    void setGrund(const QColor& farbe);
    void setZentriert(bool zentriert);

    bool EigenesZurueck() override;
    bool EigenesVor() override;
    [[nodiscard]] bool EigenesKommt() const override;
    void EigenesVergessen() override;

    // From now on the text is that of a whole text file: each line may be as long as a form file's reader
    // takes a text, and the text has no limit; a zero byte, with which it wouldn't be opened again, stays
    // outside.
    void setGanzeDatei() { ganzeDatei_ = true; }

Q_SIGNALS:
    // The focus has moved here from another control, or from here to another one; also when that happened
    // while another window was in front, as soon as this one is again.
    void fokusErhalten();
    void fokusVerloren();
    // A menu or another window is in between; the box keeps the focus, and its selection.
    void fokusUnterbrochen();
    // Another text stands here than before, typed, pasted, undone or set.
    void textAnders();

protected:
    bool event(QEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void insertFromMimeData(const QMimeData* daten) override;

    // Text that comes out of a file holds nothing that would have to stay outside: no look at it.
    void setUngeprueft(bool ungeprueft) { ungeprueft_ = ungeprueft; }

private:
    void Betreten();
    void Verlassen();
    void AuswahlAufheben();
    void TextVergleichen();
    void NurErlaubteZeichen(int stelle, int neu);
    [[nodiscard]] QString Gekuerzt(const QString& erlaubt, const QTextCursor& neues) const;

    Eintrittsklick eintritt_;
    QString bisher_;    // the text as of the last comparison, of a box that isn't a whole file
    bool drin_ = false; // the focus came here, and its leaving hasn't been told yet
    bool ganzeDatei_ = false;
    bool ungeprueft_ = false;
};

// One line.
class Textzeile : public QLineEdit, public Eigenverlauf {
    Q_OBJECT

public:
    explicit Textzeile(QWidget* eltern, const QString& name);

    [[nodiscard]] std::string wert() const;
    void setWert(std::string_view text);

    bool EigenesZurueck() override;
    bool EigenesVor() override;
    [[nodiscard]] bool EigenesKommt() const override;
    void EigenesVergessen() override;

protected:
    bool event(QEvent* ereignis) override;
    // Entering the line selects its whole text.
    void focusInEvent(QFocusEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;

private:
    Eintrittsklick eintritt_;
};

// Says in the status help, once the focus is where it goes, that a text with a straight quotation mark won't
// come back whole; wo names its place. Nothing for any other text.
void AnfuehrungMelden(QWidget* feld, std::string_view text, const std::string& wo);

// Selects the whole text of the box.
void TextMarkieren(QLineEdit* zeile);
void TextMarkieren(QPlainTextEdit* feld);
