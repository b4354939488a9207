#include "platform/desktop/wave_file.h"

#include "files/whole_file.h"

#include <SDL2/SDL_error.h>

#include <memory>
#include <system_error>

namespace platform {

namespace {

// Samples a second. What a broken head tells beyond them would be stretched to hours.
constexpr int kSlowest = 4000;
constexpr int kFastest = 192000;

struct StreamDeleter {
    void operator()(SDL_AudioStream* stream) const { SDL_FreeAudioStream(stream); }
};

}  // namespace

std::optional<Samples> ReadWave(const std::filesystem::path& file)
{
    std::error_code error;
    if (std::filesystem::exists(file, error) && !files::IsRegularFile(file)) {
        SDL_SetError("expected a sound, found a folder, a pipe or a device");
        return std::nullopt;
    }
    SDL_RWops* source = SDL_RWFromFile(file.c_str(), "rb");
    return source == nullptr ? std::nullopt : ReadWave(source);
}

std::optional<Samples> ReadWave(SDL_RWops* source)
{
    SDL_AudioSpec spec{};
    Uint8* bytes = nullptr;
    Uint32 size = 0;
    if (SDL_LoadWAV_RW(source, 1, &spec, &bytes, &size) == nullptr) {
        return std::nullopt;
    }
    const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> wave(bytes, SDL_FreeWAV);
    if (spec.format == kSampleFormat && spec.channels == kSampleChannels && spec.freq == kSampleRate) {
        return Samples(bytes, bytes + size);
    }
    if (spec.freq < kSlowest || spec.freq > kFastest) {
        SDL_SetError("expected %d to %d samples a second, found %d", kSlowest, kFastest, spec.freq);
        return std::nullopt;
    }
    const std::unique_ptr<SDL_AudioStream, StreamDeleter> stream(SDL_NewAudioStream(
        spec.format, spec.channels, spec.freq, kSampleFormat, kSampleChannels, kSampleRate));
    if (!stream || SDL_AudioStreamPut(stream.get(), bytes, static_cast<int>(size)) != 0 ||
        SDL_AudioStreamFlush(stream.get()) != 0) {
        return std::nullopt;
    }
    Samples samples(static_cast<std::size_t>(SDL_AudioStreamAvailable(stream.get())));
    SDL_AudioStreamGet(stream.get(), samples.data(), static_cast<int>(samples.size()));
    return samples;
}

}  // namespace platform
