// The game's one window: a surface to paint on, and full screen on and off.
//
//     Window window(guard);
//     if (SDL_Surface* surface = window.Surface()) {      // anew for every frame: it changes with the size
//         const ui::Rect dirty = window.Renewed() ? ui::kSpace : desktop.TakeDirty();
//         window.Present(painter.Paint(desktop, *surface, window.View(), dirty));
//     }
//
// It is drawn by the processor into shared memory: going through the graphics driver takes three times as
// long to start and five times the memory, and gains nothing for a picture that seldom changes.
#pragma once

#include "platform/desktop/display_mode.h"
#include "platform/desktop/guard.h"
#include "platform/frame.h"
#include "platform/viewport.h"

#include <SDL2/SDL_surface.h>
#include <SDL2/SDL_video.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace platform {

class Window : public Frame {
public:
    // SDL's video must be started. Throws std::runtime_error with SDL's reason.
    // The place is in pixels of the desktop; one that the desktop no longer has is moved into it, one without a width is
    // no place.
    explicit Window(Guard& guard, const ui::Rect& place = {});
    ~Window() override;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // 32 bits a pixel, of the window's present size; null while it has none (hidden, minimised).
    SDL_Surface* Surface();
    // What is on the window is lost or of the wrong size: the next frame must be painted wholly.
    void Renew() override { renewed_ = true; }
    bool Renewed() const { return renewed_; }
    void Present(const SDL_Rect& changed);
    Viewport View() const override { return view_; }

    void EnterFullScreen();
    void LeaveFullScreen();
    void ToggleFullScreen() override;
    // Of the window when it is neither full screen nor maximised, now or at last; without a width if never.
    ui::Rect Place() const;
    // Out of full screen for another program, and into it again when the player comes back from there.
    void StepAside();
    void FocusLost() override;
    void FocusGained() override;

    void SetIcon(SDL_Surface& icon) { SDL_SetWindowIcon(window_.get(), &icon); }

private:
    struct WindowDeleter {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };
    struct SurfaceDeleter {
        void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    };

    Guard& guard_;
    ui::Rect place_;
    WindowPlace before_;
    std::unique_ptr<SDL_Window, WindowDeleter> window_;
    // Where the window's own surface has another format than we paint in.
    std::unique_ptr<SDL_Surface, SurfaceDeleter> canvas_;
    Viewport view_;
    int width_ = 0;
    int height_ = 0;
    const void* pixels_ = nullptr;
    bool renewed_ = true;
    bool steppedAside_ = false;
    std::optional<std::uint64_t> lostFocus_;  // SDL's milliseconds
};

}  // namespace platform
