#include "platform/desktop/speech_library.h"

#include <SDL2/SDL_loadso.h>

#include <optional>

namespace platform {

namespace {

template <class Function> bool Find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(SDL_LoadFunction(library, name));
    return function != nullptr;
}

std::optional<SpeechLibrary> Load()
{
    void* object = SDL_LoadObject("libspeechd.so.2");
    SpeechLibrary library;
    const bool complete = object != nullptr && Find(object, "spd_open2", library.open) &&
                          Find(object, "spd_close", library.close) && Find(object, "spd_say", library.say) &&
                          Find(object, "spd_cancel", library.cancel) &&
                          Find(object, "spd_set_notification_on", library.notify) &&
                          Find(object, "spd_set_voice_rate", library.rate) &&
                          Find(object, "spd_set_language", library.language);
    return complete ? std::optional(library) : std::nullopt;
}

}  // namespace

const SpeechLibrary* LoadSpeechLibrary()
{
    static const std::optional<SpeechLibrary> library = Load();
    return library ? &*library : nullptr;
}

}  // namespace platform
