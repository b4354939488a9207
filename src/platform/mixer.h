// SDL2_mixer, loaded when the first sound is wanted.
//
// It brings two dozen libraries for formats that we have not got. To link it would cost every start more time
// than SDL itself; as it is, they come after the first click's picture is on the screen.
#pragma once

#include <SDL2/SDL_mixer.h>

namespace platform {

struct Mixer {
    decltype(&::Mix_OpenAudioDevice) openAudioDevice = nullptr;
    decltype(&::Mix_CloseAudio) closeAudio = nullptr;
    decltype(&::Mix_AllocateChannels) allocateChannels = nullptr;
    decltype(&::Mix_LoadWAV_RW) loadWave = nullptr;
    decltype(&::Mix_FreeChunk) freeChunk = nullptr;
    decltype(&::Mix_PlayChannelTimed) playChannel = nullptr;
    decltype(&::Mix_HaltChannel) haltChannel = nullptr;
    decltype(&::Mix_Volume) volume = nullptr;
};

// Null when the library is not there. What is loaded stays.
const Mixer* LoadMixer();

}  // namespace platform
