#include "platform/audio.h"

#include "files/whole_file.h"
#include "platform/quiet.h"

#include <SDL2/SDL.h>

#include <utility>

namespace platform {

namespace {

// As our files are, so that nothing is converted.
constexpr int kRate = 22050;
constexpr int kBytesASecond = kRate * 2;
constexpr int kChannels = 1;
constexpr int kDucked = MIX_MAX_VOLUME / 4;
constexpr int kBuffer = 512;  // samples; 23 ms

constexpr std::int64_t kStaysOpen = 4000;    // ms after a sound's end
constexpr std::int64_t kLooksAgain = 60000;  // ms after there was no device
constexpr Uint32 kShort = 64 * 1024;         // bytes

}  // namespace

Audio::~Audio()
{
    CloseDevice();
}

bool Audio::OpenDevice(std::int64_t now)
{
    if (mixer_ != nullptr || now < retryAt_) {
        return mixer_ != nullptr;
    }
    const Quiet quiet;
    const Mixer* mixer = LoadMixer();
    if (mixer != nullptr && SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
        if (mixer->openAudioDevice(kRate, AUDIO_S16SYS, kChannels, kBuffer, nullptr, 0) == 0) {
            mixer_ = mixer;
            mixer_->allocateChannels(1);
            mixer_->volume(-1, ducked_ ? kDucked : MIX_MAX_VOLUME);
        } else {
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
        }
    }
    retryAt_ = mixer_ != nullptr ? 0 : now + kLooksAgain;
    return mixer_ != nullptr;
}

void Audio::CloseDevice()
{
    if (mixer_ != nullptr) {
        mixer_->haltChannel(-1);
        current_.reset();
        kept_.clear();
        mixer_->closeAudio();
        mixer_ = nullptr;
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
}

Mix_Chunk* Audio::Load(const std::string& file)
{
    if (const auto known = kept_.find(file); known != kept_.end()) {
        return known->second.get();
    }
    const std::filesystem::path path = folder_.Path(file);
    SDL_RWops* source = files::IsRegularFile(path) ? SDL_RWFromFile(path.c_str(), "rb") : nullptr;
    Chunk chunk(source == nullptr ? nullptr : mixer_->loadWave(source, 1));
    if (!chunk) {
        return nullptr;
    }
    Chunk& home = chunk->alen <= kShort ? kept_[file] : current_;
    home = std::move(chunk);
    return home.get();
}

void Audio::Duck(bool duck)
{
    if (std::exchange(ducked_, duck) != duck && mixer_ != nullptr) {
        mixer_->volume(-1, duck ? kDucked : MIX_MAX_VOLUME);
    }
}

void Audio::Update(std::int64_t now)
{
    if (!wanted_.empty()) {
        const std::string file = std::exchange(wanted_, {});
        if (!OpenDevice(now)) {
            return;
        }
        mixer_->haltChannel(0);
        current_.reset();
        if (Mix_Chunk* chunk = Load(file)) {
            mixer_->playChannel(0, chunk, 0, -1);
            quietAt_ = now + std::int64_t{chunk->alen} * 1000 / kBytesASecond + kStaysOpen;
        } else {
            quietAt_ = now + kStaysOpen;
        }
    } else if (mixer_ != nullptr && now >= quietAt_) {
        CloseDevice();
    }
}

std::optional<std::int64_t> Audio::NextDue() const
{
    return mixer_ != nullptr ? std::optional(quietAt_) : std::nullopt;
}

}  // namespace platform
