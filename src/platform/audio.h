// The sounds, one at a time: a new one cuts the last. No device means a silent game, never an error.
//
//     audio.Play("sound/click.wav");      // only remembered
//     audio.Update(now);                  // after the frame: opens the device if need be and starts it
//
// An open device wakes the program some forty times a second for ever, so it is opened for the first sound
// and closed again when it has been quiet for a while; NextDue says when Update wants to be called for that.
#pragma once

#include "files/program_folder.h"
#include "platform/mixer.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

class Audio {
public:
    explicit Audio(const files::ProgramFolder& folder) : folder_(folder) {}
    ~Audio();
    Audio(const Audio&) = delete;
    Audio& operator=(const Audio&) = delete;

    void Play(std::string_view file) { wanted_ = file; }
    // Milliseconds of any steady clock.
    void Update(std::int64_t now);
    // Lower while somebody speaks.
    void Duck(bool duck);
    std::optional<std::int64_t> NextDue() const;
    bool Open() const { return mixer_ != nullptr; }

private:
    struct ChunkDeleter {
        void operator()(Mix_Chunk* chunk) const { LoadMixer()->freeChunk(chunk); }
    };
    using Chunk = std::unique_ptr<Mix_Chunk, ChunkDeleter>;

    bool OpenDevice(std::int64_t now);
    void CloseDevice();
    Mix_Chunk* Load(const std::string& file);

    files::ProgramFolder folder_;
    std::string wanted_;
    std::map<std::string, Chunk> kept_;  // short ones, which are heard all the time
    Chunk current_;                      // else the one that sounds
    bool ducked_ = false;
    const Mixer* mixer_ = nullptr;  // while the device is open
    std::int64_t quietAt_ = 0;      // when the device may be closed
    std::int64_t retryAt_ = 0;      // when a device is looked for again
};

}  // namespace platform
