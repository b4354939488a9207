#include "platform/web/page_host.h"

#include "platform/web/page.h"

namespace platform {

void PageHost::PlayWave(std::string_view file)
{
    page::Play(folder_.Path(file).string());
}

// Who opens a page has not asked for his whole screen: the page's button and F11 do that.
void PageHost::SwitchDisplayMode() {}

void PageHost::RestoreDisplayMode()
{
    page::LeaveFullScreen();
}

void PageHost::OpenDocument(std::string_view file, std::string_view chapter)
{
    page::Open(file, chapter);
}

}  // namespace platform
