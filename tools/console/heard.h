// The console's voice: what would be said, as a list.
#pragma once

#include "ui/reading/voice.h"

#include <string>
#include <vector>

namespace console {

class Heard : public reading::Voice {
public:
    void Say(const std::vector<std::string>& lines, bool /*interrupt*/) override
    {
        spoken.insert(spoken.end(), lines.begin(), lines.end());
    }
    void Silence() override {}
    void SetRate(int /*rate*/) override {}

    std::vector<std::string> spoken;  // oldest first
};

}  // namespace console
