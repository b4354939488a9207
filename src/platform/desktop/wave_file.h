// Reads a sound's file.
//
//     if (const std::optional<Samples> samples = ReadWave(folder.Path("sound/click.wav"))) { ... }
#pragma once

#include <SDL2/SDL_audio.h>
#include <SDL2/SDL_rwops.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace platform {

// As our files are, so that nothing is converted; a file of another kind is.
inline constexpr SDL_AudioFormat kSampleFormat = AUDIO_S16SYS;
inline constexpr int kSampleRate = 22050;  // a second
inline constexpr Uint8 kSampleChannels = 1;

using Samples = std::vector<Uint8>;

// The samples as above; none, with SDL's error set, when there is no such sound.
std::optional<Samples> ReadWave(const std::filesystem::path& file);
std::optional<Samples> ReadWave(SDL_RWops* source);  // closes it

}  // namespace platform
