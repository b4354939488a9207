#include "platform/desktop/audio.h"

#include "files/whole_file.h"
#include "platform/desktop/quiet.h"

#include <SDL2/SDL.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

namespace platform {

namespace {

// As our files are, so that nothing is converted; a file of another kind is.
constexpr SDL_AudioFormat kFormat = AUDIO_S16SYS;
constexpr int kRate = 22050;
constexpr int kBytesASecond = kRate * 2;
constexpr Uint8 kChannels = 1;
constexpr int kDucked = SDL_MIX_MAXVOLUME / 4;
constexpr int kWholeVolume = 100;  // percent
constexpr Uint16 kBuffer = 512;    // samples; 23 ms

constexpr std::int64_t kStaysOpen = 4000;    // ms after a sound's end
constexpr std::int64_t kLooksAgain = 60000;  // ms after there was no device

using Samples = std::vector<Uint8>;

struct StreamDeleter {
    void operator()(SDL_AudioStream* stream) const { SDL_FreeAudioStream(stream); }
};

// A wave file's samples as the device takes them; none when it cannot be read.
Samples ReadWave(const std::filesystem::path& path)
{
    SDL_AudioSpec spec{};
    Uint8* bytes = nullptr;
    Uint32 size = 0;
    if (!files::IsRegularFile(path) || SDL_LoadWAV(path.c_str(), &spec, &bytes, &size) == nullptr) {
        return {};
    }
    const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> wave(bytes, SDL_FreeWAV);
    if (spec.format == kFormat && spec.channels == kChannels && spec.freq == kRate) {
        return {bytes, bytes + size};
    }
    const std::unique_ptr<SDL_AudioStream, StreamDeleter> stream(
        SDL_NewAudioStream(spec.format, spec.channels, spec.freq, kFormat, kChannels, kRate));
    if (!stream || SDL_AudioStreamPut(stream.get(), bytes, static_cast<int>(size)) != 0 ||
        SDL_AudioStreamFlush(stream.get()) != 0) {
        return {};
    }
    Samples samples(static_cast<std::size_t>(SDL_AudioStreamAvailable(stream.get())));
    SDL_AudioStreamGet(stream.get(), samples.data(), static_cast<int>(samples.size()));
    return samples;
}

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
        wanted.freq = kRate;
        wanted.format = kFormat;
        wanted.channels = kChannels;
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
    SDL_MixAudioFormat(heard.data(), sounds_.data() + from, kFormat, static_cast<Uint32>(heard.size()),
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

void Audio::Update(std::int64_t now)
{
    if (!wanted_.empty()) {
        const std::string file = std::exchange(wanted_, {});
        if (volume_ == 0 || !OpenDevice(now)) {
            return;
        }
        sounds_ = ReadWave(folder_.Path(file));
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
