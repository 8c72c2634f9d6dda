#include "persistence/journal.h"

#include "core/plattform.h"
#include "persistence/journalname.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <new>
#include <thread>
#include <utility>
#include <vector>

namespace {

// Out of sight, and beside the journal: whoever carries the folder away carries the mark with it.
QString Sperrpfad(const QString& pfad) {
    const QFileInfo datei(pfad);
    return datei.path() + QStringLiteral("/.") + datei.fileName() + QStringLiteral(".lock");
}

std::unique_ptr<QLockFile> Sperre(const QString& pfad) {
    auto sperre = std::make_unique<QLockFile>(Sperrpfad(pfad));
    sperre->setStaleLockTime(0); // a program that runs for days keeps its own
    return sperre;
}

QByteArray Marke(const QString& pfad) {
    QFile datei(Sperrpfad(pfad));
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

// The toolkit takes the file away with the lock; as a mark it stays.
void MarkeLassen(const QString& pfad, const QByteArray& marke) {
    QFile datei(Sperrpfad(pfad));
    if (datei.open(QIODevice::WriteOnly)) {
        datei.write(marke); // without it the journal counts as a backup like others: nothing is lost
    }
}

struct Eigenes {
    QString pfad;
    std::unique_ptr<QLockFile> sperre;
};

void Wegnehmen(Eigenes& eigenes) {
    if (!eigenes.pfad.isEmpty()) {
        QFile::remove(eigenes.pfad); // one that can't be removed shows as what it is, a backup
    }
    eigenes = {};
}

bool Gesperrt(QLockFile& sperre) {
    if (sperre.tryLock(0)) {
        return true;
    }
    if (sperre.error() != QLockFile::LockFailedError) {
        throw Laufzeitfehler(Fehler::PfadZugriff); // no lock can be made there, and so no file either
    }
    return false;
}

Eigenes FreierName(const Journalort& ort) {
    if (!QFileInfo(ort.ordner).isDir()) {
        throw Laufzeitfehler(Fehler::PfadNichtGefunden);
    }
    for (int nummer = 0;; ++nummer) {
        const QString pfad =
            QDir(ort.ordner).filePath(QString::fromStdString(Journalname(ort.dateiname, nummer)));
        if (QFileInfo::exists(pfad) || QFileInfo(pfad).isSymLink()) {
            continue;
        }
        std::unique_ptr<QLockFile> sperre = Sperre(pfad);
        if (Gesperrt(*sperre)) {
            return {pfad, std::move(sperre)};
        }
    }
}

} // namespace

class Journal::Arbeiter {
public:
    enum class Was : std::uint8_t { Schreiben, Uebernehmen, Entfernen };
    struct Auftrag {
        Was was = Was::Entfernen;
        QString pfad{};                       // taken over
        Journalort ort{};                     // written
        std::function<std::string()> bytes{}; // written
    };

    explicit Arbeiter(std::function<void(const Laufzeitfehler&)> gescheitert)
        : gescheitert_(std::move(gescheitert)), faden_([this] { Laufen(); }) {}

    ~Arbeiter() {
        {
            const std::lock_guard riegel(schloss_);
            ende_ = true;
        }
        wecken_.notify_all();
        faden_.join();
        for (Eigenes* eigenes : {&eigenes_, &uebernommen_}) {
            if (eigenes->sperre != nullptr && QFileInfo::exists(eigenes->pfad)) {
                const QByteArray marke = Marke(eigenes->pfad);
                eigenes->sperre->unlock();
                MarkeLassen(eigenes->pfad, marke);
            }
        }
    }

    Arbeiter(const Arbeiter&) = delete;
    Arbeiter& operator=(const Arbeiter&) = delete;

    // What is about to be written is out of date as soon as something else is asked for, but for a journal
    // that is only taken over.
    void Auftragen(Auftrag auftrag) {
        {
            const std::lock_guard riegel(schloss_);
            if (auftrag.was != Was::Uebernehmen) {
                std::erase_if(auftraege_, [](const Auftrag& a) { return a.was == Was::Schreiben; });
            }
            auftraege_.push_back(std::move(auftrag));
        }
        wecken_.notify_all();
    }

    void Abwarten() {
        std::unique_lock riegel(schloss_);
        fertig_.wait(riegel, [this] { return !arbeitet_ && auftraege_.empty(); });
    }

private:
    void Laufen() {
        std::unique_lock riegel(schloss_);
        for (;;) {
            wecken_.wait(riegel, [this] { return ende_ || !auftraege_.empty(); });
            if (auftraege_.empty()) {
                return;
            }
            const Auftrag auftrag = std::move(auftraege_.front());
            auftraege_.pop_front();
            arbeitet_ = true;
            riegel.unlock();
            Erledigen(auftrag);
            riegel.lock();
            arbeitet_ = false;
            fertig_.notify_all();
        }
    }

    void Erledigen(const Auftrag& auftrag) {
        if (auftrag.was == Was::Entfernen) {
            Wegnehmen(eigenes_);
            Wegnehmen(uebernommen_);
        } else if (auftrag.was == Was::Uebernehmen) {
            AltesUebernehmen(auftrag.pfad);
        } else {
            Schreiben(auftrag.ort, auftrag.bytes);
        }
    }

    // One that another program has taken meanwhile stays that one's.
    void AltesUebernehmen(const QString& pfad) {
        std::unique_ptr<QLockFile> sperre = Sperre(pfad);
        if (sperre->tryLock(0)) {
            uebernommen_ = {pfad, std::move(sperre)};
        }
    }

    void Schreiben(const Journalort& ort, const std::function<std::string()>& bytes) {
        try {
            if (eigenes_.sperre == nullptr || !(ort == ort_)) {
                Eigenes neues = FreierName(ort);
                Wegnehmen(eigenes_);
                eigenes_ = std::move(neues);
                ort_ = ort;
            }
            if (!plattform::DauerhaftErsetzen(eigenes_.pfad, bytes())) {
                throw Laufzeitfehler(Fehler::ZugriffVerweigert);
            }
            gemeldet_ = false;
        } catch (const Laufzeitfehler& fehler) {
            Melden(fehler);
        } catch (const std::bad_alloc&) {
            Melden(Laufzeitfehler(Fehler::SpeicherVoll));
        }
    }

    void Melden(const Laufzeitfehler& fehler) {
        // The place may be another one when it can be written again.
        if (!QFileInfo::exists(eigenes_.pfad)) {
            eigenes_ = {};
        }
        if (!std::exchange(gemeldet_, true) && gescheitert_) {
            gescheitert_(fehler);
        }
    }

    std::function<void(const Laufzeitfehler&)> gescheitert_;
    std::mutex schloss_;
    std::condition_variable wecken_, fertig_;
    std::deque<Auftrag> auftraege_;
    bool ende_ = false;
    bool arbeitet_ = false;

    // The thread's own.
    Eigenes eigenes_, uebernommen_;
    Journalort ort_;
    bool gemeldet_ = false;
    std::thread faden_; // last: it uses all the others
};

Journal::Journal(std::function<void(const Laufzeitfehler&)> gescheitert)
    : arbeiter_(std::make_unique<Arbeiter>(std::move(gescheitert))) {}

Journal::~Journal() = default;

void Journal::Schreiben(Journalort ort, std::function<std::string()> bytes) {
    arbeiter_->Auftragen({Arbeiter::Was::Schreiben, {}, std::move(ort), std::move(bytes)});
}

void Journal::Uebernehmen(const QString& pfad) {
    arbeiter_->Auftragen({Arbeiter::Was::Uebernehmen, pfad, {}, {}});
}

void Journal::Entfernen() {
    arbeiter_->Auftragen({});
}

void Journal::Abwarten() {
    arbeiter_->Abwarten();
}

bool JournalVerwaist(const QString& pfad) {
    const QByteArray marke = Marke(pfad);
    if (marke.isEmpty() || !QFileInfo::exists(pfad)) {
        return false;
    }
    const std::unique_ptr<QLockFile> sperre = Sperre(pfad);
    if (!sperre->tryLock(0)) {
        return false;
    }
    sperre->unlock();
    MarkeLassen(pfad, marke);
    return true;
}

bool JournalInArbeit(const QString& pfad) {
    return !Marke(pfad).isEmpty() && QFileInfo::exists(pfad) && !JournalVerwaist(pfad);
}

std::vector<QString> VerwaisteJournale(const QString& ordner, const std::string* dateiname) {
    std::vector<QString> pfade;
    const QFileInfoList dateien = QDir(ordner).entryInfoList({QStringLiteral("~*")}, QDir::Files);
    for (const QFileInfo& datei : dateien) {
        const std::string name = datei.fileName().toStdString();
        const bool passt = dateiname == nullptr ? IstJournalname(name) : IstJournalVon(name, *dateiname);
        if (passt && JournalVerwaist(datei.filePath())) {
            pfade.push_back(datei.filePath());
        }
    }
    return pfade;
}
