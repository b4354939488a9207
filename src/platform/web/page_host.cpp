#include "platform/web/page_host.h"

#include "platform/web/page.h"

namespace platform {

void PageHost::PlayWave(std::string_view file)
{
    page::Play(folder_.Path(file).string());
}

void PageHost::SetVolume(int percent)
{
    page::SetVolume(percent);
}

// Who opens a page has not asked for his whole screen: his settings say when he has.
void PageHost::SwitchDisplayMode()
{
    page::EnterFullScreen();
}

void PageHost::RestoreDisplayMode()
{
    page::LeaveFullScreen();
}

void PageHost::OpenDocument(std::string_view file, std::string_view chapter)
{
    page::Open(file, chapter);
}

}  // namespace platform
