#include "platform/desktop/sdl_host.h"

#include "platform/desktop/audio.h"
#include "platform/desktop/viewer.h"
#include "platform/desktop/window.h"

namespace platform {

void SdlHost::Attach(Window* window, Audio* audio, const files::ProgramFolder& folder)
{
    window_ = window;
    audio_ = audio;
    folder_ = folder;
    SetVolume(volume_);
}

void SdlHost::PlayWave(std::string_view file)
{
    if (audio_ != nullptr) {
        audio_->Play(file);
    }
}

void SdlHost::SetVolume(int percent)
{
    volume_ = percent;
    if (audio_ != nullptr) {
        audio_->SetVolume(percent);
    }
}

void SdlHost::SwitchDisplayMode()
{
    if (window_ != nullptr) {
        window_->EnterFullScreen();
    }
}

void SdlHost::RestoreDisplayMode()
{
    if (window_ != nullptr) {
        window_->LeaveFullScreen();
    }
}

// In full screen the viewer would come up behind the game.
void SdlHost::OpenDocument(std::string_view file, std::string_view chapter)
{
    if (window_ != nullptr) {
        window_->StepAside();
        OpenInViewer(folder_.Path(file), chapter);
    }
}

}  // namespace platform
