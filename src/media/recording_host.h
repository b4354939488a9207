// A host without window and sound device: it remembers what the game asked for.
//
//     media::RecordingHost host;
//     Game game(host, files::ProgramFolder::Find(), core::Chance());
//     ... host.sounds ...               // {"sound/quake.wav", "sound/click.wav"}
#pragma once

#include "media/host.h"

#include <string>
#include <string_view>
#include <vector>

namespace media {

class RecordingHost : public Host {
public:
    void PlayWave(std::string_view file) override { sounds.emplace_back(file); }
    void SwitchDisplayMode() override { ++switched; }
    void RestoreDisplayMode() override { ++restored; }
    void OpenDocument(std::string_view file, std::string_view chapter) override
    {
        opened.emplace_back(file);
        chapters.emplace_back(chapter);
    }
    void EndProgram() override { ended = true; }

    std::vector<std::string> sounds;  // started, oldest first
    std::vector<std::string> opened;
    std::vector<std::string> chapters;  // at which
    int switched = 0;
    int restored = 0;
    bool ended = false;
};

}  // namespace media
