#include "platform/desktop/event_loop.h"

#include <SDL2/SDL_timer.h>

#include <algorithm>
#include <limits>

namespace platform {

namespace {

std::int64_t Now()
{
    return static_cast<std::int64_t>(SDL_GetTicks64());
}

}  // namespace

EventLoop::EventLoop(ui::Desktop& desktop, SdlHost& host, Window& window, Painter& painter, Audio& audio,
                     Narration* narration)
    : desktop_(desktop)
    , host_(host)
    , window_(window)
    , painter_(painter)
    , audio_(audio)
    , narration_(narration)
    , hands_(desktop)
    , input_(desktop, hands_, painter, window)
    , passed_(Now())
{}

bool EventLoop::Speaking() const
{
    return narration_ != nullptr && narration_->Speaking();
}

// A pause waits for who is being told something: also when the sentence's end is what has woken the loop.
void EventLoop::LetTimePass(bool held)
{
    const std::int64_t now = Now();
    if (!held) {
        hands_.LetTimePass(now - passed_);
    }
    passed_ = now;
}

int EventLoop::Patience() const
{
    std::int64_t wait = std::numeric_limits<int>::max();
    const std::int64_t since = Now() - passed_;
    const std::optional<std::int64_t> left = hands_.Patience();
    if (desktop_.NextDue() && Speaking()) {
        wait = narration_->NextDue().value_or(Now()) - Now();
    } else if (left) {
        wait = std::min(wait, *left - since);
    }
    if (const auto due = audio_.NextDue()) {
        wait = std::min(wait, *due - Now());
    }
    return wait == std::numeric_limits<int>::max() ? -1 : static_cast<int>(std::max<std::int64_t>(wait, 0));
}

void EventLoop::Show()
{
    desktop_.Refresh();
    if (!window_.Renewed() && !desktop_.Dirty()) {
        return;
    }
    SDL_Surface* surface = window_.Surface();
    if (surface == nullptr) {
        return;
    }
    const ui::Rect dirty = desktop_.TakeDirty();
    window_.Present(
        painter_.Paint(desktop_, *surface, window_.View(), window_.Renewed() ? ui::kSpace : dirty));
}

// Everything that has come in so far, so that a burst of motion costs one frame.
void EventLoop::HandleAll(SDL_Event& event)
{
    do {
        if (event.type == SDL_QUIT) {
            host_.EndProgram();
        } else {
            input_.Handle(event);
            gamepad_.Handle(event);
            input_.Follow();
        }
    } while (!host_.Ended() && SDL_PollEvent(&event) == 1);
}

void EventLoop::Run()
{
    gamepad_.Look();
    while (!host_.Ended()) {
        Show();
        input_.Follow();
        if (narration_ != nullptr) {
            narration_->Update();
            audio_.Duck(narration_->Speaking());
        }
        audio_.Update(Now());  // behind the frame, which the player is waiting for
        if (host_.onIdle) {
            host_.onIdle();
        }
        SDL_Event event{};
        const bool held = desktop_.NextDue() && Speaking();
        const bool happened = SDL_WaitEventTimeout(&event, Patience()) == 1;
        LetTimePass(held);
        if (happened && !host_.Ended()) {
            HandleAll(event);
        }
    }
}

}  // namespace platform
