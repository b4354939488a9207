// A program folder of a run's own, gone when the run is over: what the game may write is copied, pictures and sounds
// are links.
//
//     const console::PlayFolder folder;
//     session.Answer(folder.StartLine());      // start "/tmp/quenvale-play-a1b2c3"
#pragma once

#include <filesystem>
#include <string>

namespace console {

class PlayFolder {
public:
    PlayFolder();
    ~PlayFolder();
    PlayFolder(const PlayFolder&) = delete;
    PlayFolder& operator=(const PlayFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::string StartLine() const { return "start \"" + path_.string() + '"'; }

private:
    std::filesystem::path path_;
};

}  // namespace console
