#include "platform/web/page_voice.h"

#include "platform/web/page.h"

namespace platform {

void PageVoice::Say(const std::vector<std::string>& lines, bool interrupt)
{
    for (const std::string& line : lines) {
        if (!page::Say(line, interrupt, rate_)) {
            trouble_ = !std::exchange(told_, true);
            return;
        }
        interrupt = false;
    }
}

void PageVoice::Silence()
{
    page::Silence();
}

}  // namespace platform
