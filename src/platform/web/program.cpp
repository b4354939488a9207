#include "platform/web/program.h"

#include <SDL2/SDL.h>
#include <emscripten.h>

#include <iostream>
#include <memory>

namespace platform {

namespace {

// What lives as long as the page.
struct Parts {
    CanvasFrame frame;
    Painter painter;
    PageLoop loop;

    Parts(const Played& played, const files::ProgramFolder& folder)
        : painter(folder), loop(played, frame, painter)
    {}
};

std::unique_ptr<Parts>& TheParts()
{
    static std::unique_ptr<Parts> parts;
    return parts;
}

}  // namespace

void Start(const Played& played, const files::ProgramFolder& folder)
{
    SDL_SetHint(SDL_HINT_EMSCRIPTEN_KEYBOARD_ELEMENT, "#canvas");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_Init(SDL_INIT_VIDEO) != 0 || SDL_CreateWindow("Quenvale", 0, 0, ui::kSpaceWidth, ui::kSpaceHeight,
                                                          SDL_WINDOW_RESIZABLE) == nullptr) {
        std::cerr << "quenvale: " << SDL_GetError() << '\n';
        return;
    }
    TheParts() = std::make_unique<Parts>(played, folder);
    TheParts()->loop.Start();
}

}  // namespace platform

// What the page's script calls.
extern "C" {

EMSCRIPTEN_KEEPALIVE void quenvale_step()
{
    platform::TheParts()->loop.Step();
}

EMSCRIPTEN_KEEPALIVE void quenvale_resized()
{
    platform::TheParts()->loop.Resized();
}

EMSCRIPTEN_KEEPALIVE void quenvale_files_came()
{
    platform::TheParts()->loop.FilesCame();
}

EMSCRIPTEN_KEEPALIVE void quenvale_kept(int answer)
{
    platform::TheParts()->loop.Kept(answer);
}

EMSCRIPTEN_KEEPALIVE void quenvale_do(const char* what, int control, const char* text)
{
    platform::TheParts()->loop.Do(what, control, text);
}
}
