// Who says it: the window's is the machine's speech service, the console's a list.
#pragma once

#include <string>
#include <vector>

namespace reading {

class Voice {
public:
    virtual ~Voice() = default;

    // The lines in their order, after what is being said, or at once instead of it. Never waits.
    virtual void Say(const std::vector<std::string>& lines, bool interrupt) = 0;
    virtual void Silence() = 0;
    // From -100, slow, to 100, fast; 0 is as the player has set his voice.
    virtual void SetRate(int rate) = 0;
};

}  // namespace reading
