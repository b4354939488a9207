#include "platform/desktop/program.h"

#include "platform/desktop/event_loop.h"
#include "platform/desktop/narration.h"
#include "platform/desktop/quiet.h"
#include "platform/desktop/signals.h"
#include "platform/desktop/window_manager.h"

#include <SDL2/SDL.h>
#include <X11/Xlib.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace platform {

namespace {

// SDL's video, for as long as the object lives. It is not left to atexit, where it would hang on an X
// server that has died.
class Video {
public:
    Video()
    {
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
        SDL_SetHint(SDL_HINT_IME_SUPPORT_EXTENDED_TEXT, "1");
        NameTheSessionBus();
        Start();
        if (Invisible(SDL_GetCurrentVideoDriver())) {
            SDL_Quit();
            throw std::runtime_error("no display found (neither DISPLAY nor WAYLAND_DISPLAY leads to one)");
        }
    }
    ~Video() { SDL_Quit(); }
    Video(const Video&) = delete;
    Video& operator=(const Video&) = delete;

private:
    // SDL asks the session bus for the screen saver. Where no bus is named its library would start one, by a
    // program found through PATH: an address where nobody listens says that there is none.
    static void NameTheSessionBus()
    {
        if (std::getenv("DBUS_SESSION_BUS_ADDRESS") == nullptr) {
            const char* folder = std::getenv("XDG_RUNTIME_DIR");
            const std::string bus =
                (folder == nullptr ? std::string("/nonexistent") : folder) + std::string("/bus");
            setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + bus).c_str(), 0);
        }
    }
    static void Start()
    {
        const Quiet quiet;
        if (SDL_Init(SDL_INIT_VIDEO) != 0) {
            throw std::runtime_error(SDL_GetError());
        }
    }
    // SDL's last resort is a game that nobody can see. Who wants that must say so.
    static bool Invisible(std::string_view driver)
    {
        return (driver == "offscreen" || driver == "dummy") && std::getenv("SDL_VIDEODRIVER") == nullptr;
    }
};

// The server is gone: there is nothing to tidy up and nobody to talk to. The guard sees the pipe end.
int LeaveAtOnce(Display*)
{
    _exit(EXIT_FAILURE);
}

// A request that the server refused (a mode that has just gone, say) is no reason to end a game.
int GoOn(Display*, XErrorEvent*)
{
    return 0;
}

void PushQuit()
{
    SDL_Event event{};
    event.type = SDL_QUIT;
    SDL_PushEvent(&event);
}

void SetIcon(Window& window, const files::ProgramFolder& folder)
{
    constexpr int kSide = 64;
    Pictures pictures(folder);
    if (SDL_Surface* icon = pictures.Get("images/emblem.bmp", kSide, kSide)) {
        window.SetIcon(*icon);
    }
}

void RunInWindow(ui::Desktop& desktop, reading::Narrator& narrator, SdlHost& host,
                 const files::ProgramFolder& folder)
{
    Guard guard;  // first: a fork wants a program with one thread
    XSetIOErrorHandler(LeaveAtOnce);
    XSetErrorHandler(GoOn);  // before SDL, which hands on to this one and comes back to it at its end
    const Video video;
    const Signals signals(PushQuit);
    Window window(guard, host.place);
    QuitWhenDestroyed();
    Painter painter(folder);
    Audio audio(folder);
    host.Attach(&window, &audio, folder);
    Narration narration(narrator);
    EventLoop loop(desktop, host, window, painter, audio, &narration);
    loop.Show();
    SetIcon(window, folder);  // can wait until the player sees something
    narration.OfferWhenWanted();
    loop.Run();
    host.place = window.Place();
    host.Attach(nullptr, nullptr, folder);
}

}  // namespace

int Run(ui::Desktop& desktop, reading::Narrator& narrator, SdlHost& host, const files::ProgramFolder& folder)
{
    try {
        RunInWindow(desktop, narrator, host, folder);
    } catch (const std::runtime_error& error) {
        std::cerr << "quenvale: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    desktop.getClipboard = {};
    desktop.setClipboard = {};
    return Signals::ExitStatus();
}

}  // namespace platform
