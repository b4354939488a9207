// The sound cues: one small routine for each file, so that a file is named in one place.
#pragma once

#include "media/host.h"

namespace media {

class Sound {
public:
    explicit Sound(Host& host) : host_(host) {}

    void SoundClick() { host_.PlayWave("sound/click.wav"); }
    void SoundAssasin5() { host_.PlayWave("sound/Assasin5.wav"); }
    void SoundCroud() { host_.PlayWave("sound/croud.wav"); }
    void SoundHeliNo() { host_.PlayWave("sound/heliNo.wav"); }
    void SoundHeliOK() { host_.PlayWave("sound/heliOK.wav"); }
    void SoundTwister() { host_.PlayWave("sound/twister.wav"); }
    void SoundQuake() { host_.PlayWave("sound/quake.wav"); }
    void SoundRev() { host_.PlayWave("sound/rev.wav"); }
    void PlayWave(std::string_view file) { host_.PlayWave(file); }

private:
    Host& host_;
};

}  // namespace media
