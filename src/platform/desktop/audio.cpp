#include "platform/desktop/audio.h"

#include "platform/desktop/quiet.h"

#include <SDL2/SDL.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <utility>

namespace platform {

namespace {

constexpr int kBytesASecond = kSampleRate * 2;
constexpr int kDucked = SDL_MIX_MAXVOLUME / 4;
constexpr int kWholeVolume = 100;  // percent
constexpr Uint16 kBuffer = 512;    // samples; 23 ms

constexpr std::int64_t kStaysOpen = 4000;    // ms after a sound's end
constexpr std::int64_t kLooksAgain = 60000;  // ms after there was no device

}  // namespace

Audio::~Audio()
{
    CloseDevice();
}

bool Audio::OpenDevice(std::int64_t now)
{
    if (Open() || now < retryAt_) {
        return Open();
    }
    const Quiet quiet;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
        SDL_AudioSpec wanted{};
        wanted.freq = kSampleRate;
        wanted.format = kSampleFormat;
        wanted.channels = kSampleChannels;
        wanted.samples = kBuffer;
        device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
        if (Open()) {
            SDL_PauseAudioDevice(device_, 0);
        } else {
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
        }
    }
    retryAt_ = Open() ? 0 : now + kLooksAgain;
    return Open();
}

void Audio::CloseDevice()
{
    if (Open()) {
        SDL_CloseAudioDevice(std::exchange(device_, 0));
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
}

// The last sound from there on, in bytes, in place of what has not yet been heard.
void Audio::Sound(std::size_t from)
{
    SDL_ClearQueuedAudio(device_);
    Samples heard(sounds_.size() - from);
    SDL_MixAudioFormat(heard.data(), sounds_.data() + from, kSampleFormat, static_cast<Uint32>(heard.size()),
                       (ducked_ ? kDucked : SDL_MIX_MAXVOLUME) * volume_ / kWholeVolume);
    SDL_QueueAudio(device_, heard.data(), static_cast<Uint32>(heard.size()));
}

void Audio::Duck(bool duck)
{
    if (std::exchange(ducked_, duck) != duck) {
        SoundRest();
    }
}

void Audio::SetVolume(int percent)
{
    if (std::exchange(volume_, percent) != percent) {
        SoundRest();
    }
}

// What has not yet been heard, anew.
void Audio::SoundRest()
{
    if (Open()) {
        const std::size_t left = SDL_GetQueuedAudioSize(device_);
        Sound(sounds_.size() - std::min(left, sounds_.size()));
    }
}

// The game goes on without a sound that cannot be read.
Samples Audio::Read(const std::string& file)
{
    const std::filesystem::path path = folder_.Path(file);
    std::optional<Samples> samples = ReadWave(path);
    if (!samples && told_.insert(file).second) {
        std::cerr << "quenvale: " << path.string() << ": " << SDL_GetError() << '\n';
    }
    return std::move(samples).value_or(Samples());
}

void Audio::Update(std::int64_t now)
{
    if (!wanted_.empty()) {
        const std::string file = std::exchange(wanted_, {});
        if (volume_ == 0 || !OpenDevice(now)) {
            return;
        }
        sounds_ = Read(file);
        Sound(0);
        quietAt_ = now + static_cast<std::int64_t>(sounds_.size()) * 1000 / kBytesASecond + kStaysOpen;
    } else if (Open() && now >= quietAt_) {
        CloseDevice();
    }
}

std::optional<std::int64_t> Audio::NextDue() const
{
    return Open() ? std::optional(quietAt_) : std::nullopt;
}

}  // namespace platform
