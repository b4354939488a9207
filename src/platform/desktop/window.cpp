#include "platform/desktop/window.h"

#include "platform/canvas.h"
#include "platform/desktop/display_mode.h"

#include <SDL2/SDL_hints.h>
#include <SDL2/SDL_timer.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace platform {

namespace {

constexpr int kSmallestWidth = 320;
constexpr int kSmallestHeight = 240;

// ms: window managers take the focus away and give it back while the mode changes; nobody reads so fast.
constexpr std::uint64_t kLookedAway = 1000;

// On the display that the wanted place is on, or the first one.
SDL_Rect WithinDesktop(const ui::Rect& wanted)
{
    SDL_Rect place{wanted.left, wanted.top, wanted.width, wanted.height};
    SDL_Rect room{};
    if (SDL_GetDisplayUsableBounds(std::max(SDL_GetRectDisplayIndex(&place), 0), &room) == 0) {
        place.w = std::clamp(place.w, std::min(kSmallestWidth, room.w), room.w);
        place.h = std::clamp(place.h, std::min(kSmallestHeight, room.h), room.h);
        place.x = std::clamp(place.x, room.x, room.x + room.w - place.w);
        place.y = std::clamp(place.y, room.y, room.y + room.h - place.h);
    }
    return place;
}

}  // namespace

Window::Window(Guard& guard, const ui::Rect& place) : guard_(guard), place_(place)
{
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    window_.reset(SDL_CreateWindow("Quenvale", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                   ui::kSpaceWidth, ui::kSpaceHeight, SDL_WINDOW_RESIZABLE));
    if (!window_) {
        throw std::runtime_error(SDL_GetError());
    }
    if (place_.width > 0) {
        const SDL_Rect within = WithinDesktop(place_);
        SDL_SetWindowSize(window_.get(), within.w, within.h);
        SDL_SetWindowPosition(window_.get(), within.x, within.y);
    }
    SDL_SetWindowMinimumSize(window_.get(), kSmallestWidth, kSmallestHeight);
}

// The mode goes back before the guard is told that all is well.
Window::~Window()
{
    LeaveFullScreen();
}

SDL_Surface* Window::Surface()
{
    if ((SDL_GetWindowFlags(window_.get()) & (SDL_WINDOW_HIDDEN | SDL_WINDOW_MINIMIZED)) != 0) {
        return nullptr;
    }
    SDL_Surface* surface = SDL_GetWindowSurface(window_.get());
    if (surface == nullptr || surface->w <= 0 || surface->h <= 0) {
        return nullptr;
    }
    if (surface->w != width_ || surface->h != height_ || surface->pixels != pixels_) {
        width_ = surface->w;
        height_ = surface->h;
        pixels_ = surface->pixels;
        view_ = Viewport::Fit(width_, height_);
        canvas_.reset(Canvas::Suits(*surface)
                          ? nullptr
                          : SDL_CreateRGBSurfaceWithFormat(0, width_, height_, 32, SDL_PIXELFORMAT_RGB888));
        SDL_FillRect(surface, nullptr, 0);
        renewed_ = true;
    }
    return canvas_ ? canvas_.get() : surface;
}

void Window::Present(const SDL_Rect& changed)
{
    SDL_Rect area = std::exchange(renewed_, false) ? SDL_Rect{0, 0, width_, height_} : changed;
    if (area.w <= 0 || area.h <= 0) {
        return;
    }
    if (canvas_) {
        SDL_Rect place = area;
        SDL_BlitSurface(canvas_.get(), &area, SDL_GetWindowSurface(window_.get()), &place);
    }
    SDL_UpdateWindowSurfaceRects(window_.get(), &area, 1);
}

void Window::EnterFullScreen()
{
    steppedAside_ = false;
    place_ = Place();
    platform::EnterFullScreen(*window_, guard_, before_);
    Renew();
}

void Window::LeaveFullScreen()
{
    steppedAside_ = false;
    platform::LeaveFullScreen(*window_, guard_, before_);
    Renew();
}

void Window::StepAside()
{
    const bool full = IsFullScreen(*window_);
    LeaveFullScreen();
    steppedAside_ = full;
    lostFocus_.reset();
}

void Window::FocusLost()
{
    lostFocus_ = SDL_GetTicks64();
}

void Window::FocusGained()
{
    const bool wasAway = lostFocus_ && SDL_GetTicks64() - *lostFocus_ >= kLookedAway;
    lostFocus_.reset();
    if (steppedAside_ && wasAway) {
        EnterFullScreen();
    }
}

void Window::ToggleFullScreen()
{
    IsFullScreen(*window_) ? LeaveFullScreen() : EnterFullScreen();
}

ui::Rect Window::Place() const
{
    constexpr Uint32 kElsewhere = SDL_WINDOW_FULLSCREEN | SDL_WINDOW_MAXIMIZED | SDL_WINDOW_MINIMIZED;
    if ((SDL_GetWindowFlags(window_.get()) & kElsewhere) != 0) {
        return place_;
    }
    ui::Rect place{};
    SDL_GetWindowPosition(window_.get(), &place.left, &place.top);
    SDL_GetWindowSize(window_.get(), &place.width, &place.height);
    return place;
}

}  // namespace platform
