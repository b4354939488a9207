// What the game asks of the machine it runs on. The window, the console and the tests each have one.
//
// No call blocks and none reports failure: a missing sound is silent, a display that cannot switch stays
// as it is, and the caller tells the player where the manual lies in any case.
#pragma once

#include <string_view>

namespace media {

class Host {
public:
    virtual ~Host() = default;

    // Paths are below the program folder and use '/': "sound/click.wav". A new sound cuts the last one.
    virtual void PlayWave(std::string_view file) = 0;
    // In percent; a host that makes no sound has none to lower.
    virtual void SetVolume(int /*percent*/) {}
    // Full screen at 800 x 600 x 32 if the display offers exactly that, else scaled.
    virtual void SwitchDisplayMode() = 0;
    virtual void RestoreDisplayMode() = 0;
    // Hands a document to the viewer of its kind, at one of its chapters (the name of a mark in it) or its start.
    virtual void OpenDocument(std::string_view file, std::string_view chapter) = 0;
    // The program ends when the running event has been handled.
    virtual void EndProgram() = 0;
};

}  // namespace media
