#include "start/empfang.h"

#include "core/plattform.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>

#include <utility>

namespace {

// Both sides say these first and last; another version of the program understands the same.
const QByteArray gruss = QByteArrayLiteral("Feldkranz 1\n");
const QByteArray dank = QByteArrayLiteral("ok\n");
constexpr qint64 laengsteNachricht = 65536;

// Waits until that many bytes have come, or the time is over.
[[nodiscard]] bool Warten(QLocalSocket& leitung, qint64 bytes, const QDeadlineTimer& ende) {
    while (leitung.bytesAvailable() < bytes) {
        if (!leitung.waitForReadyRead(static_cast<int>(ende.remainingTime()))) {
            return false;
        }
    }
    return true;
}

[[nodiscard]] bool Antwortet(QLocalSocket& leitung, const QByteArray& wie, const QDeadlineTimer& ende) {
    return Warten(leitung, wie.size(), ende) && leitung.read(wie.size()) == wie;
}

} // namespace

QString Empfangsort(const QString& programmordner) {
    const QString wirklich = QDir(programmordner).canonicalPath();
    const QString gemeint = wirklich.isEmpty() ? programmordner : wirklich;
    const QByteArray kennung = QCryptographicHash::hash(
        (QDir::homePath() + QLatin1Char('\n') + gemeint).toUtf8(), QCryptographicHash::Sha256);
    return plattform::Anschluss(QStringLiteral("feldkranz-") +
                                QString::fromLatin1(kennung.toHex().first(16)));
}

class Empfang::Stelle {
public:
    Stelle(const QString& ort, Annahme annahme);
    [[nodiscard]] bool laeuft() const { return server_.isListening(); }

private:
    void Annehmen();
    void Lesen(QLocalSocket& leitung) const;

    QLockFile sperre_; // who holds it receives
    QLocalServer server_;
    Annahme annahme_;
};

Empfang::Stelle::Stelle(const QString& ort, Annahme annahme)
    : sperre_(QDir::temp().filePath(ort) + QStringLiteral(".lock")), annahme_(std::move(annahme)) {
    sperre_.setStaleLockTime(0); // a lock is old when its program has gone, however long it runs
    if (ort.isEmpty() || !sperre_.tryLock(0)) {
        return;
    }
    QLocalServer::removeServer(ort); // of a program that was killed
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Annehmen(); });
    server_.listen(ort); // where that fails, each start is one of its own
}

void Empfang::Stelle::Annehmen() {
    while (QLocalSocket* leitung = server_.nextPendingConnection()) {
        leitung->setReadBufferSize(laengsteNachricht);
        QObject::connect(leitung, &QLocalSocket::disconnected, leitung, &QObject::deleteLater);
        QObject::connect(leitung, &QLocalSocket::readyRead, leitung, [this, leitung] { Lesen(*leitung); });
        leitung->write(gruss);
    }
}

void Empfang::Stelle::Lesen(QLocalSocket& leitung) const {
    QDataStream strom(&leitung);
    strom.setVersion(QDataStream::Qt_6_4);
    strom.startTransaction();
    QString datei;
    strom >> datei;
    if (strom.commitTransaction()) {
        leitung.write(dank);
        leitung.disconnectFromServer();
        annahme_(datei);
    }
}

Empfang::Empfang(const QString& ort, Annahme annahme)
    : stelle_(std::make_unique<Stelle>(ort, std::move(annahme))) {}

Empfang::~Empfang() = default;

bool Empfang::laeuft() const {
    return stelle_->laeuft();
}

bool DateiUebergeben(const QString& ort, const QString& datei, std::chrono::milliseconds frist) {
    const QDeadlineTimer ende(frist);
    QLocalSocket leitung;
    leitung.connectToServer(ort);
    // One that doesn't greet hangs: it learns nothing, so that it opens nothing when it wakes.
    if (ort.isEmpty() || !leitung.waitForConnected(static_cast<int>(ende.remainingTime())) ||
        !Antwortet(leitung, gruss, ende)) {
        return false;
    }
    QDataStream strom(&leitung);
    strom.setVersion(QDataStream::Qt_6_4);
    strom << datei;
    return Antwortet(leitung, dank, ende);
}
