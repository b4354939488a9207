#include "platform/web/page.h"

#include <emscripten.h>

#include <string>

// clang-format off
EM_JS(int, page_width, (), { return Module.page.width(); });
EM_JS(int, page_height, (), { return Module.page.height(); });
EM_JS(void, page_put, (const void* pixels, int pitch, int left, int top, int width, int height), {
    Module.page.put(HEAPU8, pixels, pitch, left, top, width, height);
});
EM_JS(void, page_toggle_full_screen, (), { Module.page.toggleFullScreen(); });
EM_JS(void, page_enter_full_screen, (), { Module.page.enterFullScreen(); });
EM_JS(void, page_leave_full_screen, (), { Module.page.leaveFullScreen(); });
EM_JS(void, page_play, (const char* path), { Module.page.play(UTF8ToString(path)); });
EM_JS(void, page_set_volume, (int percent), { Module.page.setVolume(percent); });
EM_JS(int, page_say, (const char* line, int interrupt, int rate), {
    return Module.page.say(UTF8ToString(line), interrupt !== 0, rate);
});
EM_JS(void, page_silence, (), { Module.page.silence(); });
EM_JS(void, page_open, (const char* file, const char* chapter), {
    Module.page.open(UTF8ToString(file), UTF8ToString(chapter));
});
EM_JS(void, page_wake_in, (int milliseconds), { Module.page.wakeIn(milliseconds); });
EM_JS(int, page_fetch, (const char* path), { return Module.page.fetch(UTF8ToString(path)); });
EM_JS(void, page_tell, (const char* twin), { Module.page.tell(UTF8ToString(twin)); });
EM_JS(void, page_typing, (int typing), { Module.page.typing(typing !== 0); });
EM_JS(void, page_keep, (), { Module.page.keep(); });
EM_JS(void, page_ended, (), { Module.page.ended(); });
// clang-format on

namespace page {

int Width()
{
    return page_width();
}

int Height()
{
    return page_height();
}

void Put(const void* pixels, int pitch, int left, int top, int width, int height)
{
    page_put(pixels, pitch, left, top, width, height);
}

void ToggleFullScreen()
{
    page_toggle_full_screen();
}

void EnterFullScreen()
{
    page_enter_full_screen();
}

void LeaveFullScreen()
{
    page_leave_full_screen();
}

void Play(std::string_view path)
{
    page_play(std::string(path).c_str());
}

void SetVolume(int percent)
{
    page_set_volume(percent);
}

bool Say(std::string_view line, bool interrupt, int rate)
{
    return page_say(std::string(line).c_str(), interrupt ? 1 : 0, rate) != 0;
}

void Silence()
{
    page_silence();
}

void Open(std::string_view file, std::string_view chapter)
{
    page_open(std::string(file).c_str(), std::string(chapter).c_str());
}

void WakeIn(int milliseconds)
{
    page_wake_in(milliseconds);
}

bool Fetch(std::string_view path)
{
    return page_fetch(std::string(path).c_str()) != 0;
}

void Tell(std::string_view twin)
{
    page_tell(std::string(twin).c_str());
}

void Typing(bool typing)
{
    page_typing(typing ? 1 : 0);
}

void Keep()
{
    page_keep();
}

void Ended()
{
    page_ended();
}

}  // namespace page
