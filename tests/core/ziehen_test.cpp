#include "core/ziehen.h"

#include "core/ziehbilder.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>
#include <optional>
#include <vector>

namespace {

QPoint ImFenster(const QWidget* element) {
    return element->mapTo(element->window(), element->rect().center());
}

void EscDruecken() {
    QTest::keyClick(QGuiApplication::topLevelWindows().constFirst(), Qt::Key_Escape);
}

// Plays a user's hand while a drag runs. A step is taken again and again until it says that it has had its
// effect; a step that never has ends the drag.
class Hand : public QObject {
public:
    using Schritt = std::function<bool()>;

    explicit Hand(std::vector<Schritt> schritte) : schritte_(std::move(schritte)) { startTimer(5); }
    ~Hand() override {
        if (naechster_ < schritte_.size()) {
            QTest::qFail("the drag ended before the hand had done all its steps", __FILE__, __LINE__);
        }
    }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

protected:
    void timerEvent(QTimerEvent* /*ereignis*/) override {
        if (naechster_ < schritte_.size() && schritte_[naechster_]()) {
            ++naechster_;
        } else if (++versuche_ > 1000) {
            EscDruecken();
        }
    }

private:
    std::vector<Schritt> schritte_;
    std::size_t naechster_ = 0;
    int versuche_ = 0;
};

// Moves over a control until that picture shows.
Hand::Schritt Ueber(const QWidget* element, ZiehBild bild) {
    return [element = QPointer(element), bild, hin = 0]() mutable {
        if (element != nullptr) {
            hin = 1 - hin;
            QTest::mouseMove(element->window()->windowHandle(), ImFenster(element) + QPoint(hin, 0));
        }
        return AktuellesZiehBild() == bild;
    };
}

Hand::Schritt Loslassen(const QWidget* element) {
    return [element = QPointer(element)] {
        QTest::mouseRelease(element->window()->windowHandle(), Qt::LeftButton, {}, ImFenster(element));
        return true;
    };
}

Hand::Schritt Esc() {
    return [] {
        EscDruecken();
        return true;
    };
}

Hand::Schritt Einmal(std::function<void()> tun) {
    return [tun = std::move(tun)] {
        tun();
        return true;
    };
}

ZiehBild BildAmZeiger() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    for (const auto bild : {ZiehBild::Aufnehmen, ZiehBild::Ablegen, ZiehBild::Nein, ZiehBild::Atom}) {
        if (cursor != nullptr &&
            cursor->pixmap().toImage() == Ziehpixmap(bild, cursor->pixmap().devicePixelRatio()).toImage()) {
            return bild;
        }
    }
    return ZiehBild::Keins;
}

} // namespace

Q_DECLARE_METATYPE(ZiehBild)

// A question as the selection dialog drags it.
Ziehwert Frage(const char* text) {
    return {Zugart::Auswahl, Formart::Keine, 0, text, ""};
}

class ZiehenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { fenster_.reset(); }

    void aDropRunsTheTargetsStepsAfterTheDragHasEnded();
    void eachPlaceShowsItsPictureAtThePointer();
    void aDropOnWhatIsNoTargetDoesNothing();
    void aControlInsideATargetThatTakesNothingTakesNothing();
    void aTextBoxThatIsNoTargetDoesNotTakeTheQuestionAsText();
    void escapeCancels();
    void aDropOnTheSourceItselfIsADrop();
    void aSourceThatDisappearsMeanwhileLeavesTheDropWithoutEffect();
    void aTargetThatDisappearsMeanwhileLeavesTheDropWithoutEffect();
    void aTargetMayDestroyItselfInItsSteps();
    void theTargetMayAskModalQuestions();
    void aSecondDragDuringTheFirstIsRefused();
    void foreignTextStaysTheTextBoxsOwnBusiness();
    void theKeysDoWhatTheMouseDoes();
    void escapeLetsGoOfAHeldQuestion();
    void aHeldQuestionGoesOnlyToATarget();
    void theKeyAloneStartsNothing();
    void aRefusedPressHoldsNothing();

private:
    void Ziehe(std::vector<Hand::Schritt> schritte) {
        Hand hand(std::move(schritte));
        Ziehen(quelle_, Frage("Wer weiß es?"));
    }

    std::unique_ptr<QWidget> fenster_;
    QPointer<QPlainTextEdit> quelle_, ziel_, zeile_, innen_;
    QPointer<QLabel> muell_, rahmen_, frei_;
    int abgelegt_ = 0;
};

void ZiehenTest::init() {
    fenster_ = std::make_unique<QWidget>();
    fenster_->setGeometry(100, 100, 420, 320);
    quelle_ = new QPlainTextEdit(QStringLiteral("Wer weiß es?"), fenster_.get());
    quelle_->setGeometry(10, 10, 150, 60);
    ziel_ = new QPlainTextEdit(fenster_.get());
    ziel_->setGeometry(200, 10, 150, 60);
    zeile_ = new QPlainTextEdit(fenster_.get());
    zeile_->setGeometry(200, 100, 150, 60);
    muell_ = new QLabel(fenster_.get());
    muell_->setGeometry(10, 100, 150, 60);
    frei_ = new QLabel(fenster_.get());
    frei_->setGeometry(10, 200, 150, 60);
    rahmen_ = new QLabel(fenster_.get());
    rahmen_->setGeometry(200, 200, 200, 100);
    innen_ = new QPlainTextEdit(rahmen_);
    innen_->setGeometry(20, 20, 120, 60);
    abgelegt_ = 0;
    KeinZiel(fenster_.get());
    KeinZiel(innen_);
    ZielEinrichten(ziel_, ZiehBild::Ablegen, [this](const Ziehwert& wert) {
        ++abgelegt_;
        ziel_->setPlainText(QString::fromStdString(wert.frage));
    });
    ZielEinrichten(muell_, ZiehBild::Atom, [this](const Ziehwert&) { abgelegt_ += 100; });
    ZielEinrichten(rahmen_, ZiehBild::Ablegen, [this](const Ziehwert&) { abgelegt_ += 1000; });
    fenster_->show();
    QVERIFY(QTest::qWaitForWindowExposed(fenster_.get()));
}

void ZiehenTest::aDropRunsTheTargetsStepsAfterTheDragHasEnded() {
    std::optional<ZiehBild> inDenSchritten;
    ZielEinrichten(muell_, ZiehBild::Atom, [&](const Ziehwert&) { inDenSchritten = AktuellesZiehBild(); });
    Ziehe({Ueber(quelle_, ZiehBild::Aufnehmen), Ueber(muell_, ZiehBild::Atom),
           Einmal([&] { QVERIFY(!inDenSchritten.has_value()); }), Loslassen(muell_)});
    QCOMPARE(inDenSchritten, std::optional(ZiehBild::Keins));
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Loslassen(ziel_)});
    QCOMPARE(ziel_->toPlainText(), QStringLiteral("Wer weiß es?"));
}

void ZiehenTest::eachPlaceShowsItsPictureAtThePointer() {
    // The middle of the frame shall be its own ground and not the box inside it.
    innen_->setGeometry(130, 10, 60, 60);
    const std::vector<std::pair<QWidget*, ZiehBild>> weg{
        {quelle_, ZiehBild::Aufnehmen}, {ziel_, ZiehBild::Ablegen}, {zeile_, ZiehBild::Nein},
        {muell_, ZiehBild::Atom},       {frei_, ZiehBild::Nein},    {rahmen_, ZiehBild::Ablegen},
        {innen_, ZiehBild::Nein},       {muell_, ZiehBild::Atom},   {quelle_, ZiehBild::Aufnehmen}};
    std::vector<Hand::Schritt> schritte;
    std::size_t gesehen = 0;
    for (const auto& [ort, bild] : weg) {
        schritte.push_back(Ueber(ort, bild));
        schritte.emplace_back([&gesehen, bild = bild] {
            const bool da = BildAmZeiger() == bild;
            gesehen += da ? 1 : 0;
            return da;
        });
    }
    schritte.push_back(Esc());
    Ziehe(schritte);
    QCOMPARE(gesehen, weg.size());
}

void ZiehenTest::aDropOnWhatIsNoTargetDoesNothing() {
    Ziehe({Ueber(frei_, ZiehBild::Nein), Loslassen(frei_)});
    QCOMPARE(abgelegt_, 0);
}

void ZiehenTest::aControlInsideATargetThatTakesNothingTakesNothing() {
    Ziehe({Ueber(innen_, ZiehBild::Nein), Loslassen(innen_)});
    QCOMPARE(abgelegt_, 0);
    QCOMPARE(innen_->toPlainText(), QString());
}

void ZiehenTest::aTextBoxThatIsNoTargetDoesNotTakeTheQuestionAsText() {
    Ziehe({Ueber(zeile_, ZiehBild::Nein), Loslassen(zeile_)});
    QCOMPARE(zeile_->toPlainText(), QString());
    QCOMPARE(quelle_->toPlainText(), QStringLiteral("Wer weiß es?"));
}

void ZiehenTest::escapeCancels() {
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Esc()});
    QCOMPARE(abgelegt_, 0);
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
}

void ZiehenTest::aDropOnTheSourceItselfIsADrop() {
    ZielEinrichten(quelle_, ZiehBild::Ablegen, [this](const Ziehwert&) { ++abgelegt_; });
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Ueber(quelle_, ZiehBild::Ablegen), Loslassen(quelle_)});
    QCOMPARE(abgelegt_, 1);
}

void ZiehenTest::aSourceThatDisappearsMeanwhileLeavesTheDropWithoutEffect() {
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Einmal([this] { delete quelle_; }), Ueber(muell_, ZiehBild::Atom),
           Loslassen(muell_)});
    QCOMPARE(abgelegt_, 0);
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
}

void ZiehenTest::aTargetThatDisappearsMeanwhileLeavesTheDropWithoutEffect() {
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Einmal([this] { delete ziel_; }), Loslassen(frei_)});
    QCOMPARE(abgelegt_, 0);
}

void ZiehenTest::aTargetMayDestroyItselfInItsSteps() {
    ZielEinrichten(ziel_, ZiehBild::Ablegen, [this](const Ziehwert&) {
        delete ziel_;
        ++abgelegt_;
    });
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Loslassen(ziel_)});
    QCOMPARE(abgelegt_, 1);
    QVERIFY(ziel_.isNull());
}

void ZiehenTest::theTargetMayAskModalQuestions() {
    int antwort = 0;
    ZielEinrichten(ziel_, ZiehBild::Ablegen, [this, &antwort](const Ziehwert&) {
        QDialog frage(fenster_.get());
        QTimer::singleShot(0, &frage, [&frage] { QTest::keyClick(&frage, Qt::Key_Escape); });
        antwort = frage.exec() == QDialog::Rejected ? 2 : 1;
    });
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Loslassen(ziel_)});
    QCOMPARE(antwort, 2);
}

void ZiehenTest::aSecondDragDuringTheFirstIsRefused() {
    Ziehe({Ueber(ziel_, ZiehBild::Ablegen), Einmal([this] { Ziehen(zeile_, Frage("Eine andere")); }),
           Loslassen(ziel_)});
    QCOMPARE(ziel_->toPlainText(), QStringLiteral("Wer weiß es?"));
}

void ZiehenTest::foreignTextStaysTheTextBoxsOwnBusiness() {
    QMimeData daten;
    daten.setText(QStringLiteral("von draußen"));
    QDragEnterEvent hinein(QPoint(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(ziel_->viewport(), &hinein);
    QVERIFY(hinein.isAccepted());
    QDropEvent fall(QPointF(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(ziel_->viewport(), &fall);
    QCOMPARE(ziel_->toPlainText(), QStringLiteral("von draußen"));
    QCOMPARE(abgelegt_, 0);
}

void ZiehenTest::theKeysDoWhatTheMouseDoes() {
    Qt::KeyboardModifiers gedrueckt = Qt::NoModifier;
    TastenEinrichten(quelle_, [&](Qt::KeyboardModifiers zusatz) {
        gedrueckt = zusatz;
        Ziehen(quelle_, Frage("Wer weiß es?"));
    });
    QTest::keyClick(quelle_, Qt::Key_F8, Qt::ControlModifier);
    QCOMPARE(gedrueckt, Qt::KeyboardModifiers(Qt::ControlModifier));
    QVERIFY(OhneMausGehalten());
    QTest::keyClick(ziel_, Qt::Key_F8);
    QCOMPARE(ziel_->toPlainText(), QStringLiteral("Wer weiß es?"));
    QVERIFY(!OhneMausGehalten());
    QTest::keyClick(ziel_, Qt::Key_F8);
    QCOMPARE(abgelegt_, 1);
    QTest::keyClick(quelle_, Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(gedrueckt, Qt::KeyboardModifiers(Qt::ShiftModifier));
    OhneMausLoslassen();
}

void ZiehenTest::escapeLetsGoOfAHeldQuestion() {
    QVERIFY(OhneMausAufnehmen([this] { Ziehen(quelle_, Frage("Wer weiß es?")); }));
    QTest::keyClick(ziel_, Qt::Key_Escape);
    QVERIFY(!OhneMausGehalten());
    QTest::keyClick(ziel_, Qt::Key_F8);
    QCOMPARE(abgelegt_, 0);
}

void ZiehenTest::aHeldQuestionGoesOnlyToATarget() {
    QVERIFY(OhneMausAufnehmen([this] { Ziehen(quelle_, Frage("Wer weiß es?")); }));
    QVERIFY(!OhneMausAblegen(zeile_));
    QVERIFY(!OhneMausAblegen(innen_));
    QVERIFY(OhneMausGehalten());
    delete quelle_;
    QVERIFY(!OhneMausAblegen(ziel_));
    QCOMPARE(abgelegt_, 0);
}

void ZiehenTest::theKeyAloneStartsNothing() {
    int gedrueckt = 0;
    TastenEinrichten(quelle_, [&](Qt::KeyboardModifiers) { ++gedrueckt; });
    QTest::keyClick(quelle_, Qt::Key_F8);
    QTest::keyClick(quelle_, Qt::Key_F8, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(quelle_, Qt::Key_F8, Qt::AltModifier);
    QCOMPARE(gedrueckt, 0);
}

void ZiehenTest::aRefusedPressHoldsNothing() {
    QVERIFY(!OhneMausAufnehmen([] {}));
    QVERIFY(!OhneMausGehalten());
}

QTEST_MAIN(ZiehenTest)
#include "ziehen_test.moc"
