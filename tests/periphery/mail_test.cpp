// The mail to the makers, from the button and from the menu: the address that is handed to the system, and
// the pointer meanwhile.
#include "mainwindow/frmMDI.h"
#include "periphery/mail.h"
#include "periphery/uebergabe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const std::string anHersteller =
    "mailto:post@feldkranz.example?subject=Feldkranz!&body=Hier eine Anmerkung zu Feldkranz! :";

// Takes what is handed over, and notes the pointer at that moment.
struct Empfaenger {
    explicit Empfaenger(bool nimmtAn = true) {
        UebergabeErsetzen([this, nimmtAn](const std::string& adresse) {
            adressen.push_back(adresse);
            sanduhr = QGuiApplication::overrideCursor() != nullptr &&
                      QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
            return nimmtAn;
        });
    }
    ~Empfaenger() { UebergabeErsetzen({}); }
    Empfaenger(const Empfaenger&) = delete;
    Empfaenger& operator=(const Empfaenger&) = delete;

    std::vector<std::string> adressen;
    bool sanduhr = false;
};

} // namespace

class MailTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theButtonHandsOverTheMakersMailWithAnHourglass();
    void theMenuEntryHandsOverTheSameMail();
    void aMailProgramThatDoesNotStartReportsNothing();
    void theTextGoesOutAsItIs();
    void theSystemsOwnCommandGetsTheAddress();
};

void MailTest::theButtonHandsOverTheMakersMailWithAnHourglass() {
    const Programm programm;
    const Empfaenger empfaenger;
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdeMail")), Qt::LeftButton);
    QCOMPARE(empfaenger.adressen, std::vector{anHersteller});
    QVERIFY(empfaenger.sanduhr);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void MailTest::theMenuEntryHandsOverTheSameMail() {
    const Programm programm;
    const Empfaenger empfaenger;
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mHilfen(3)"));
    QCOMPARE(eintrag->text(), QStringLiteral("post@feldkranz.example"));
    eintrag->trigger();
    QCOMPARE(empfaenger.adressen, std::vector{anHersteller});
}

void MailTest::aMailProgramThatDoesNotStartReportsNothing() {
    const Programm programm;
    const Dialogfolge dialoge; // no message
    const Empfaenger empfaenger(false);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdeMail")), Qt::LeftButton);
    QCOMPARE(empfaenger.adressen.size(), std::size_t{1});
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void MailTest::theTextGoesOutAsItIs() {
    const Empfaenger empfaenger;
    MailSenden(nullptr, "a b@c", "50 % & mehr?", "ä\r\n#");
    QCOMPARE(empfaenger.adressen, std::vector{std::string("mailto:a b@c?subject=50 % & mehr?&body=ä\r\n#")});
}

// Only what the toolkit can't pass on as it is becomes %20 and the like.
void MailTest::theSystemsOwnCommandGetsTheAddress() {
    const QTemporaryDir ordner;
    const QString ziel = ordner.filePath(QStringLiteral("adresse"));
    QFile befehl(ordner.filePath(QStringLiteral("xdg-open")));
    QVERIFY(befehl.open(QIODevice::WriteOnly));
    befehl.write("#!/bin/sh\nprintf %s \"$*\" >\"" + ziel.toUtf8() + ".neu\"\nmv \"" + ziel.toUtf8() +
                 ".neu\" \"" + ziel.toUtf8() + "\"\n");
    befehl.close();
    befehl.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray pfad = qgetenv("PATH");
    qputenv("PATH", ordner.path().toUtf8() + ':' + pfad);
    MailAnHersteller();
    QFile adresse(ziel);
    QTRY_VERIFY(adresse.exists());
    QVERIFY(adresse.open(QIODevice::ReadOnly));
    qputenv("PATH", pfad);
    QCOMPARE(adresse.readAll(), QByteArray("mailto:post@feldkranz.example?subject=Feldkranz!"
                                           "&body=Hier%20eine%20Anmerkung%20zu%20Feldkranz!%20:"));
}

QTEST_MAIN(MailTest)
#include "mail_test.moc"
