// The sounds, one at a time: a new one cuts the last. No device means a silent game, never an error. A file that cannot be
// read is told once on standard error.
//
//     audio.Play("sound/click.wav");      // only remembered
//     audio.Update(now);                  // after the frame: opens the device if need be and starts it
//
// An open device wakes the program some forty times a second for ever, so it is opened for the first sound
// and closed again when it has been quiet for a while; NextDue says when Update wants to be called for that.
#pragma once

#include "files/program_folder.h"
#include "platform/desktop/wave_file.h"

#include <SDL2/SDL_audio.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
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
    // In percent; at none nothing is played, and no device opened for it.
    void SetVolume(int percent);
    // Lower while somebody speaks.
    void Duck(bool duck);
    std::optional<std::int64_t> NextDue() const;
    bool Open() const { return device_ != 0; }

private:
    bool OpenDevice(std::int64_t now);
    void CloseDevice();
    void Sound(std::size_t from);
    void SoundRest();
    Samples Read(const std::string& file);

    files::ProgramFolder folder_;
    std::string wanted_;
    Samples sounds_;                // the last one
    std::set<std::string> told_{};  // the files that cannot be read
    int volume_ = 100;              // percent
    bool ducked_ = false;
    SDL_AudioDeviceID device_ = 0;  // 0: closed
    std::int64_t quietAt_ = 0;      // when the device may be closed
    std::int64_t retryAt_ = 0;      // when a device is looked for again
};

}  // namespace platform
