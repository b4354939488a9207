#include "platform/mixer.h"

#include <SDL2/SDL_loadso.h>

#include <optional>

namespace platform {

namespace {

template <class Function> bool Find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(SDL_LoadFunction(library, name));
    return function != nullptr;
}

std::optional<Mixer> Load()
{
    void* library = SDL_LoadObject("libSDL2_mixer-2.0.so.0");
    Mixer mixer;
    const bool complete =
        library != nullptr && Find(library, "Mix_OpenAudioDevice", mixer.openAudioDevice) &&
        Find(library, "Mix_CloseAudio", mixer.closeAudio) &&
        Find(library, "Mix_AllocateChannels", mixer.allocateChannels) &&
        Find(library, "Mix_LoadWAV_RW", mixer.loadWave) && Find(library, "Mix_FreeChunk", mixer.freeChunk) &&
        Find(library, "Mix_PlayChannelTimed", mixer.playChannel) &&
        Find(library, "Mix_HaltChannel", mixer.haltChannel) && Find(library, "Mix_Volume", mixer.volume);
    return complete ? std::optional(mixer) : std::nullopt;
}

}  // namespace

const Mixer* LoadMixer()
{
    static const std::optional<Mixer> mixer = Load();
    return mixer ? &*mixer : nullptr;
}

}  // namespace platform
