// The machine as the game sees it, when it runs in a window.
//
//     SdlHost host;
//     Game game(host, folder, ...);        // may already be built: until Run nothing can be heard or seen
//     return platform::Run(game.GetDesktop(), host, folder);
#pragma once

#include "files/program_folder.h"
#include "media/host.h"
#include "ui/toolkit/geometry.h"

#include <functional>

namespace platform {

class Audio;
class Window;

class SdlHost : public media::Host {
public:
    void PlayWave(std::string_view file) override;
    void SetVolume(int percent) override;
    void SwitchDisplayMode() override;
    void RestoreDisplayMode() override;
    void OpenDocument(std::string_view file, std::string_view chapter) override;
    void EndProgram() override { ended_ = true; }

    // Where the window was left the last time, told before Run; where it is left now, after it.
    ui::Rect place{};  // pixels of the desktop; no width: unknown

    // Called whenever all that happened has been handled and shown, before the next wait: for who plays by himself.
    std::function<void()> onIdle;

    bool Ended() const { return ended_; }
    // Null for both when the window is gone.
    void Attach(Window* window, Audio* audio, const files::ProgramFolder& folder);

private:
    Window* window_ = nullptr;
    Audio* audio_ = nullptr;
    files::ProgramFolder folder_{{}};
    int volume_ = 100;  // percent
    bool ended_ = false;
};

}  // namespace platform
