// The page as the game sees it.
#pragma once

#include "files/program_folder.h"
#include "media/host.h"

namespace platform {

class PageHost : public media::Host {
public:
    explicit PageHost(files::ProgramFolder folder) : folder_(std::move(folder)) {}

    void PlayWave(std::string_view file) override;
    void SetVolume(int percent) override;
    void SwitchDisplayMode() override;
    void RestoreDisplayMode() override;
    void OpenDocument(std::string_view file, std::string_view chapter) override;
    void EndProgram() override { ended_ = true; }

    bool Ended() const { return ended_; }

private:
    files::ProgramFolder folder_;
    bool ended_ = false;
};

}  // namespace platform
