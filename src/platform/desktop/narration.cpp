#include "platform/desktop/narration.h"

#include "platform/desktop/screen_reader.h"

#include <SDL2/SDL_events.h>
#include <SDL2/SDL_timer.h>

namespace platform {

namespace {

// The loop sleeps until something happens; this is something.
void WakeLoop()
{
    SDL_Event event{};
    event.type = SDL_USEREVENT;
    SDL_PushEvent(&event);
}

}  // namespace

Narration::Narration(reading::Narrator& narrator) : narrator_(narrator), speech_(WakeLoop)
{
    narrator_.SetVoice(&speech_);
}

Narration::~Narration()
{
    narrator_.SetVoice(nullptr);
}

void Narration::OfferWhenWanted()
{
    if (narrator_.MayOffer()) {
        AskForScreenReader([wanted = wanted_] {
            *wanted = true;
            WakeLoop();
        });
    }
}

bool Narration::Speaking() const
{
    return speech_.Speaking(static_cast<std::int64_t>(SDL_GetTicks64()));
}

void Narration::Update()
{
    if (wanted_->exchange(false)) {
        narrator_.Offer();
    }
    if (speech_.TakeTrouble() && narrator_.On()) {
        narrator_.TellNoVoice();
    }
}

}  // namespace platform
