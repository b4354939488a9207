// A host for games that nobody watches: no sound, no window, no document.
#pragma once

#include "media/host.h"

#include <string_view>

namespace media {

class SilentHost : public Host {
public:
    void PlayWave(std::string_view /*file*/) override {}
    void SwitchDisplayMode() override {}
    void RestoreDisplayMode() override {}
    void OpenDocument(std::string_view /*file*/, std::string_view /*chapter*/) override {}
    void EndProgram() override {}
};

}  // namespace media
