// Quenvale as src/app/main.cpp starts it, but for its dice: they fall by the seed in the one argument, so that the
// console can play the same game beside the window. QUENVALE_PAD names a pipe: there is a gamepad then, whose buttons
// are pressed by the numbers that come through it.
#include "app/game.h"
#include "app/kept_settings.h"
#include "platform/desktop/program.h"

#include <SDL2/SDL.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

namespace {

constexpr int kAxes = 6;
constexpr auto kHeld = std::chrono::milliseconds(40);

void PressButtons(const std::string& pipe)
{
    while (SDL_WasInit(SDL_INIT_VIDEO) == 0) {
        std::this_thread::sleep_for(kHeld);
    }
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
    SDL_Joystick* pad = SDL_JoystickOpen(
        SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, kAxes, SDL_CONTROLLER_BUTTON_MAX, 0));
    std::ifstream numbers(pipe);
    for (int button = 0; numbers >> button;) {
        for (const Uint8 state : {Uint8{1}, Uint8{0}}) {
            SDL_JoystickSetVirtualButton(pad, button, state);
            SDL_Event wake{};
            wake.type = SDL_USEREVENT;
            SDL_PushEvent(&wake);
            std::this_thread::sleep_for(kHeld);
        }
    }
}

}  // namespace

int main(int count, char** words)
{
    std::setlocale(LC_ALL, "");
    platform::SdlHost host;
    core::Chance chance;
    chance.Seed(count > 1 ? std::stoull(words[1]) : 0);
    Game game(host, files::ProgramFolder::Find(), chance);
    host.place = UseSettings(game);
    game.Autosave(true);
    game.Start();
    if (const char* pipe = std::getenv("QUENVALE_PAD")) {
        std::thread(PressButtons, pipe).detach();
    }
    return platform::Run(game.GetDesktop(), game.GetNarrator(), host, game.Folder());
}
