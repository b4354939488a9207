#include "platform/desktop/display_mode.h"

#include "platform/desktop/guard.h"
#include "platform/desktop/window_manager.h"
#include "ui/toolkit/geometry.h"

#include <algorithm>

namespace platform {

namespace {

bool IsGameMode(const SDL_DisplayMode& mode)
{
    constexpr unsigned kBytes = 4;
    return mode.w == ui::kSpaceWidth && mode.h == ui::kSpaceHeight &&
           SDL_BYTESPERPIXEL(mode.format) == kBytes;
}

// Puts a window that nobody manages over the whole display; gives its old place.
SDL_Rect PlaceAt(SDL_Window& window, int display, const SDL_DisplayMode& mode)
{
    SDL_Rect before{};
    SDL_GetWindowPosition(&window, &before.x, &before.y);
    SDL_GetWindowSize(&window, &before.w, &before.h);
    SDL_Rect bounds{};
    SDL_GetDisplayBounds(display, &bounds);
    SDL_SetWindowSize(&window, mode.w, mode.h);
    SDL_SetWindowPosition(&window, bounds.x, bounds.y);
    return before;
}

}  // namespace

std::optional<SDL_DisplayMode> FindGameMode(int display)
{
    for (int i = 0; i < SDL_GetNumDisplayModes(display); ++i) {
        SDL_DisplayMode mode{};
        if (SDL_GetDisplayMode(display, i, &mode) == 0 && IsGameMode(mode)) {
            return mode;
        }
    }
    return std::nullopt;
}

void EnterFullScreen(SDL_Window& window, Guard& guard, WindowPlace& before)
{
    if (IsFullScreen(window)) {
        return;
    }
    const int display = std::max(SDL_GetWindowDisplayIndex(&window), 0);
    SDL_DisplayMode desktop{};
    SDL_GetDesktopDisplayMode(display, &desktop);
    const std::optional<SDL_DisplayMode> mode = FindGameMode(display);
    const bool switches = mode && !IsGameMode(desktop);
    if (!HasWindowManager(window)) {
        before = PlaceAt(window, display, switches ? *mode : desktop);
    }
    if (switches) {
        guard.Remember();
        SDL_SetWindowDisplayMode(&window, &*mode);
        if (SDL_SetWindowFullscreen(&window, SDL_WINDOW_FULLSCREEN) == 0) {
            return;
        }
    }
    SDL_SetWindowFullscreen(&window, SDL_WINDOW_FULLSCREEN_DESKTOP);
}

void LeaveFullScreen(SDL_Window& window, Guard& guard, WindowPlace& before)
{
    if (!IsFullScreen(window)) {
        return;
    }
    SDL_SetWindowFullscreen(&window, 0);
    guard.Forget();
    if (before) {
        SDL_SetWindowSize(&window, before->w, before->h);
        SDL_SetWindowPosition(&window, before->x, before->y);
        before.reset();
    }
}

bool IsFullScreen(SDL_Window& window)
{
    return (SDL_GetWindowFlags(&window) & SDL_WINDOW_FULLSCREEN) != 0;
}

}  // namespace platform
