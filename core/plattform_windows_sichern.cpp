#include "core/plattform.h"
#include "core/plattform_windows.h"

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <optional>

namespace plattform {

namespace {

void AllesSchreiben(const Griff& datei, std::string_view bytes) {
    constexpr std::size_t stueck = std::size_t{1} << 24U;
    while (!bytes.empty()) {
        DWORD anzahl = 0;
        const auto wunsch = static_cast<DWORD>(std::min(bytes.size(), stueck));
        if (::WriteFile(datei.griff(), bytes.data(), wunsch, &anzahl, nullptr) == 0) {
            throw Schreibfehler(::GetLastError());
        }
        if (anzahl == 0) {
            throw Schreibfehler(ERROR_DISK_FULL);
        }
        bytes.remove_prefix(anzahl);
    }
}

// A share that can't force anything to its disk says so; there is nothing to wait for.
void Erzwingen(const Griff& datei) {
    if (::FlushFileBuffers(datei.griff()) != 0) {
        return;
    }
    if (const DWORD fehler = ::GetLastError();
        fehler != ERROR_INVALID_FUNCTION && fehler != ERROR_NOT_SUPPORTED) {
        throw Schreibfehler(fehler);
    }
}

[[nodiscard]] Griff ZumSchreibenOeffnen(const std::wstring& pfad, DWORD teilen) {
    Griff datei(::CreateFileW(pfad.c_str(), GENERIC_WRITE, teilen, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!datei.offen()) {
        throw Schreibfehler(::GetLastError());
    }
    return datei;
}

// The path behind the links that lead to a file: renaming over a link would put a file in its place.
[[nodiscard]] std::wstring LinksFolgen(const std::wstring& pfad) {
    const DWORD attribute = ::GetFileAttributesW(pfad.c_str());
    if (attribute == INVALID_FILE_ATTRIBUTES || (attribute & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return pfad;
    }
    const Griff ziel(::CreateFileW(pfad.c_str(), FILE_READ_ATTRIBUTES, allesTeilen, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    const DWORD laenge = ::GetFinalPathNameByHandleW(ziel.griff(), nullptr, 0, FILE_NAME_NORMALIZED);
    if (!ziel.offen() || laenge == 0) {
        throw Schreibfehler(::GetLastError());
    }
    std::wstring ende(laenge, L'\0');
    ende.resize(::GetFinalPathNameByHandleW(ziel.griff(), ende.data(), laenge, FILE_NAME_NORMALIZED));
    return ende;
}

struct Zielort {
    std::wstring pfad;
    std::wstring ordner; // with its backslash
    std::optional<Befund> vorher;
};

// The target of a save. A folder is 75, a file that the user may not write 70, by its attribute or because
// another program has it: renaming over it would pass by a write protection that he has put there.
[[nodiscard]] Zielort ZielFinden(const QString& ziel) {
    Zielort ort;
    ort.pfad = LinksFolgen(Systempfad(ziel));
    ort.ordner = ort.pfad.substr(0, ort.pfad.rfind(L'\\') + 1);
    if (ort.ordner.size() == ort.pfad.size()) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    try {
        ort.vorher = Befragen(ort.pfad);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.art() != Fehler::DateiNichtGefunden) {
            throw fehler.art() == Fehler::DateinameFalsch ? Schreibfehler(ERROR_ACCESS_DENIED) : fehler;
        }
        return ort;
    }
    if (ort.vorher->ordner()) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    if (ort.vorher->schreibgeschuetzt()) {
        throw Laufzeitfehler(Fehler::ZugriffVerweigert);
    }
    static_cast<void>(ZumSchreibenOeffnen(ort.pfad, allesTeilen));
    return ort;
}

// A new file that is removed again unless it is kept. It stays open until it has its name: nobody takes it
// for a scrap.
class NeueDatei {
public:
    NeueDatei() = default;
    NeueDatei(const NeueDatei&) = delete;
    NeueDatei& operator=(const NeueDatei&) = delete;
    NeueDatei(NeueDatei&&) = delete;
    NeueDatei& operator=(NeueDatei&&) = delete;
    ~NeueDatei() {
        if (!pfad_.empty()) {
            datei_.Schliessen();
            ::DeleteFileW(pfad_.c_str()); // what can't be removed stays as a scrap
        }
    }

    // 0 or the system's code.
    [[nodiscard]] DWORD Anlegen(std::wstring pfad) {
        datei_ = Griff(::CreateFileW(pfad.c_str(), GENERIC_READ | GENERIC_WRITE, allesTeilen, nullptr,
                                     CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!datei_.offen()) {
            return ::GetLastError();
        }
        pfad_ = std::move(pfad);
        return 0;
    }
    void Fuellen(std::string_view bytes) {
        AllesSchreiben(datei_, bytes);
        Erzwingen(datei_);
    }
    // Marks that the user may have given the old file.
    void AttributeUebernehmen(DWORD attribute) const {
        constexpr DWORD marken =
            FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
        if ((attribute & marken) != 0) {
            ::SetFileAttributesW(pfad_.c_str(), (attribute & marken) | FILE_ATTRIBUTE_ARCHIVE);
        }
    }
    // 0 or the system's code.
    [[nodiscard]] DWORD Umbenennen(const Zielort& ort);
    void Behalten() { pfad_.clear(); }

private:
    Griff datei_;
    std::wstring pfad_;
};

// The old file's place, with its dates, rights and streams; where the file system can't do that,
// at least in one step. The renaming is forced to the disk.
[[nodiscard]] bool Ersetzen(const Zielort& ort, const std::wstring& neu) {
    constexpr DWORD nurDieBytesZaehlen = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    if (ort.vorher &&
        ::ReplaceFileW(ort.pfad.c_str(), neu.c_str(), nullptr, nurDieBytesZaehlen, nullptr, nullptr) != 0) {
        return true;
    }
    const DWORD ersetzend = ort.vorher ? MOVEFILE_REPLACE_EXISTING : 0U;
    return ::MoveFileExW(neu.c_str(), ort.pfad.c_str(), ersetzend | MOVEFILE_WRITE_THROUGH) != 0;
}

DWORD NeueDatei::Umbenennen(const Zielort& ort) {
    // Scanners and synchronising programs look into a new file for a moment.
    constexpr int versuche = 10;
    constexpr DWORD pause = 30; // milliseconds
    for (int versuch = 1; !Ersetzen(ort, pfad_); ++versuch) {
        const DWORD fehler = ::GetLastError();
        const bool belegt = fehler == ERROR_SHARING_VIOLATION || fehler == ERROR_ACCESS_DENIED;
        if (!belegt || versuch == versuche) {
            return fehler;
        }
        ::Sleep(pause);
    }
    pfad_.clear();
    Erzwingen(datei_); // what the file system remembers of the renaming, too
    return 0;
}

[[nodiscard]] std::wstring Zufallsname() {
    return Restname(QRandomGenerator::system()->generate64()).toStdWString();
}

// The folder takes no new file, or lets none be renamed over the target, which may yet be written itself.
[[nodiscard]] bool Verschlossen(DWORD fehlercode) {
    constexpr std::array gruende{ERROR_ACCESS_DENIED,    ERROR_WRITE_PROTECT,   ERROR_SHARING_VIOLATION,
                                 ERROR_USER_MAPPED_FILE, ERROR_NOT_SAME_DEVICE, ERROR_PRIVILEGE_NOT_HELD};
    return std::ranges::find(gruende, static_cast<long>(fehlercode)) != gruende.end();
}

} // namespace

bool DauerhaftErsetzen(const QString& ziel, std::string_view bytes) {
    const Zielort ort = ZielFinden(ziel);
    NeueDatei neu;
    DWORD fehler = neu.Anlegen(ort.ordner + Zufallsname());
    if (fehler == 0) {
        neu.Fuellen(bytes);
        neu.AttributeUebernehmen(ort.vorher ? ort.vorher->attribute : 0);
        fehler = neu.Umbenennen(ort);
    }
    if (fehler == 0) {
        return true;
    }
    if (ort.vorher && Verschlossen(fehler)) {
        return false;
    }
    throw Schreibfehler(fehler);
}

void AnOrtUeberschreiben(const QString& ziel, std::string_view bytes) {
    const Griff datei = ZumSchreibenOeffnen(ZielFinden(ziel).pfad, FILE_SHARE_READ);
    // Cut off at the end only, so that a disk without room for more still holds what it held.
    AllesSchreiben(datei, bytes);
    if (::SetEndOfFile(datei.griff()) == 0) {
        throw Schreibfehler(::GetLastError());
    }
    Erzwingen(datei);
}

QString KopieAblegen(const QString& ziel, std::string_view bytes) {
    constexpr qsizetype namensrest = 60; // leaves room for the longest name that a file system takes
    const QString nummer = QString::number(QRandomGenerator::system()->generate64(), 16);
    // The folder for temporary files is the user's own, and outlives a restart of the machine.
    const QString pfad = QDir::tempPath() + QStringLiteral("/Feldkranz-") +
                         ziel.section(QLatin1Char('/'), -1).left(namensrest) + QLatin1Char('-') + nummer;
    NeueDatei kopie;
    if (const DWORD fehler = kopie.Anlegen(Systempfad(pfad)); fehler != 0) {
        throw Schreibfehler(fehler);
    }
    kopie.Fuellen(bytes);
    kopie.Behalten();
    return pfad;
}

} // namespace plattform
