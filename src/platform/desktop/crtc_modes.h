// The modes of an X server's outputs: written down, and set again. Each call has a connection of its own.
#pragma once

#include <vector>

namespace platform {

struct CrtcMode {
    unsigned long crtc = 0;
    unsigned long mode = 0;
    int x = 0;
    int y = 0;
    unsigned short rotation = 0;
    std::vector<unsigned long> outputs{};

    bool operator==(const CrtcMode&) const = default;
};

// The whole picture that the outputs show parts of, and who shows which part.
struct ScreenModes {
    int width = 0;
    int height = 0;
    int widthInMm = 0;
    int heightInMm = 0;
    std::vector<CrtcMode> crtcs{};
};

// No crtcs without a server that has the RandR extension.
ScreenModes ReadScreenModes();
// Sets what differs. Outputs that are gone by now are left out.
void RestoreScreenModes(const ScreenModes& modes);

}  // namespace platform
