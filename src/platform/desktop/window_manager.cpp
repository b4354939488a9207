#include "platform/desktop/window_manager.h"

#include <SDL2/SDL_events.h>
#include <SDL2/SDL_syswm.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace platform {

namespace {

int Filter(void*, SDL_Event* event)
{
    if (event->type != SDL_SYSWMEVENT) {
        return 1;
    }
    const SDL_SysWMmsg& message = *event->syswm.msg;
    const XEvent& x = message.msg.x11.event;
    if (message.subsystem != SDL_SYSWM_X11 || x.type != DestroyNotify ||
        x.xdestroywindow.event != x.xdestroywindow.window) {
        return 0;
    }
    event->type = SDL_QUIT;
    return 1;
}

}  // namespace

void QuitWhenDestroyed()
{
    SDL_SetEventFilter(Filter, nullptr);
    SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
}

bool HasWindowManager(SDL_Window& window)
{
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(&window, &info) != SDL_TRUE || info.subsystem != SDL_SYSWM_X11) {
        return true;
    }
    Display* display = info.info.x11.display;
    const Atom check = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
    Atom type = None;
    int format = 0;
    unsigned long items = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), check, 0, 1, False, XA_WINDOW, &type, &format,
                       &items, &left, &value);
    if (value != nullptr) {
        XFree(value);
    }
    return items != 0;
}

}  // namespace platform
