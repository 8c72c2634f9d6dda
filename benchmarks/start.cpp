// From the start of the process to the start window painted on the screen, and the peak of its memory then:
// the program as it is shipped against a bare one with one window and one button. The screen is watched from
// outside through the display server, so that neither program knows that it is measured. Needs a screen
// without a window manager and with a black ground.
#include "benchmarks/kennzahl.h"

#include <xcb/xcb.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using Uhr = std::chrono::steady_clock;
constexpr auto frist = std::chrono::seconds(20);

struct Frei {
    void operator()(void* zeiger) const {
        std::free(zeiger);
    } // NOLINT: the library hands out malloc's memory
};
template <class T>
using Antwort = std::unique_ptr<T, Frei>;

struct Fensterlage {
    xcb_window_t fenster = 0;
    std::int16_t mitte = 0;
    std::uint16_t breite = 0;
};

class Schirm {
public:
    Schirm() : verbindung_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(verbindung_) != 0) {
            std::cerr << "No display\n";
            std::exit(1);
        }
        wurzel_ = xcb_setup_roots_iterator(xcb_get_setup(verbindung_)).data->root;
        const std::uint32_t maske = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(verbindung_, wurzel_, XCB_CW_EVENT_MASK, &maske);
        xcb_flush(verbindung_);
    }
    ~Schirm() { xcb_disconnect(verbindung_); }
    Schirm(const Schirm&) = delete;
    Schirm& operator=(const Schirm&) = delete;

    // The next window that a program puts on the screen, or none at all in time.
    [[nodiscard]] Fensterlage FensterAbwarten() const {
        const auto bis = Uhr::now() + frist;
        while (Uhr::now() < bis) {
            const Antwort<xcb_generic_event_t> ereignis(xcb_poll_for_event(verbindung_));
            if (!ereignis) {
                std::this_thread::sleep_for(std::chrono::microseconds(200));
            } else if ((ereignis->response_type & 0x7fU) == XCB_MAP_NOTIFY) {
                const auto* da = reinterpret_cast<const xcb_map_notify_event_t*>(ereignis.get());
                if (const Fensterlage lage = LageVon(da->window); lage.breite > 50) {
                    return lage;
                }
            }
        }
        return {};
    }

    // Waits until anything but the black ground shows in the window's middle line.
    [[nodiscard]] bool GemaltAbwarten(const Fensterlage& lage) const {
        const auto bis = Uhr::now() + frist;
        while (Uhr::now() < bis) {
            const Antwort<xcb_get_image_reply_t> bild(
                xcb_get_image_reply(verbindung_,
                                    xcb_get_image(verbindung_, XCB_IMAGE_FORMAT_Z_PIXMAP, lage.fenster, 0,
                                                  lage.mitte, lage.breite, 1, 0x00ffffffU),
                                    nullptr));
            if (bild) {
                const std::uint8_t* anfang = xcb_get_image_data(bild.get());
                const std::uint8_t* ende = anfang + xcb_get_image_data_length(bild.get());
                for (const std::uint8_t* byte = anfang; byte != ende; ++byte) {
                    if (*byte != 0) {
                        return true;
                    }
                }
            }
            std::this_thread::sleep_for(std::chrono::microseconds(300));
        }
        return false;
    }

    // Forgets what came from a program that has ended.
    void Leeren() const {
        while (Antwort<xcb_generic_event_t>(xcb_poll_for_event(verbindung_))) {
        }
    }

private:
    [[nodiscard]] Fensterlage LageVon(xcb_window_t fenster) const {
        const Antwort<xcb_get_geometry_reply_t> lage(
            xcb_get_geometry_reply(verbindung_, xcb_get_geometry(verbindung_, fenster), nullptr));
        if (!lage) {
            return {};
        }
        return {fenster, static_cast<std::int16_t>(lage->height / 2), lage->width};
    }

    xcb_connection_t* verbindung_;
    xcb_window_t wurzel_ = 0;
};

struct Start {
    double millisekunden = 0.0;
    double mebibyte = 0.0;
};

// Peak of the resident memory in MiB.
double Spitze(pid_t prozess) {
    std::ifstream status("/proc/" + std::to_string(prozess) + "/status");
    std::string zeile;
    while (std::getline(status, zeile)) {
        if (zeile.starts_with("VmHWM:")) {
            return std::stod(zeile.substr(6)) / 1024.0;
        }
    }
    return 0.0;
}

Start Messen(const Schirm& schirm, const char* programm) {
    schirm.Leeren();
    const auto anfang = Uhr::now();
    const pid_t prozess = fork();
    if (prozess == 0) {
        execl(programm, programm, static_cast<char*>(nullptr)); // NOLINT: the call's own way of ending
        _exit(127);
    }
    Start ergebnis;
    const Fensterlage lage = schirm.FensterAbwarten();
    const bool gemalt = lage.fenster != 0 && schirm.GemaltAbwarten(lage);
    ergebnis.millisekunden = std::chrono::duration<double, std::milli>(Uhr::now() - anfang).count();
    std::this_thread::sleep_for(std::chrono::milliseconds(150)); // what start-up still does counts as memory
    ergebnis.mebibyte = Spitze(prozess);
    kill(prozess, SIGKILL);
    waitpid(prozess, nullptr, 0);
    if (!gemalt) {
        std::cerr << programm << " brought no window on the screen\n";
        std::exit(1);
    }
    return ergebnis;
}

} // namespace

int main() {
    constexpr int laeufe = 31;
    const Schirm schirm;
    std::vector<double> speicherUnser;
    std::vector<double> speicherSchlicht;
    const Paar zeiten = Abwechselnd(
        laeufe,
        [&] {
            const Start start = Messen(schirm, FELDKRANZ);
            speicherUnser.push_back(start.mebibyte);
            return start.millisekunden;
        },
        [&] {
            const Start start = Messen(schirm, SCHLICHT);
            speicherSchlicht.push_back(start.mebibyte);
            return start.millisekunden;
        });
    Verhaeltnis("start_zeit", zeiten.unser, zeiten.schlicht, "ms");
    Verhaeltnis("start_speicher", Median(speicherUnser), Median(speicherSchlicht), "MiB");
    return 0;
}
