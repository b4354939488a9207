// The narrator's voice on a page: the browser's own.
//
//     PageVoice voice;
//     narrator.SetVoice(&voice);
//     voice.Say({"The menu."}, true);
//     voice.TakeTrouble()              // once, when the browser has no voice
#pragma once

#include "ui/reading/voice.h"

#include <string>
#include <utility>
#include <vector>

namespace platform {

class PageVoice final : public reading::Voice {
public:
    void Say(const std::vector<std::string>& lines, bool interrupt) override;
    void Silence() override;
    void SetRate(int rate) override { rate_ = rate; }

    bool TakeTrouble() { return std::exchange(trouble_, false); }

private:
    int rate_ = 0;
    bool trouble_ = false;
    bool told_ = false;
};

}  // namespace platform
