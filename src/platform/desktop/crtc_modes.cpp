#include "platform/desktop/crtc_modes.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>

#include <algorithm>
#include <memory>

namespace platform {

namespace {

struct DisplayCloser {
    void operator()(Display* display) const { XCloseDisplay(display); }
};
struct ResourcesDeleter {
    void operator()(XRRScreenResources* resources) const { XRRFreeScreenResources(resources); }
};
struct CrtcDeleter {
    void operator()(XRRCrtcInfo* crtc) const { XRRFreeCrtcInfo(crtc); }
};
using Connection = std::unique_ptr<Display, DisplayCloser>;
using Resources = std::unique_ptr<XRRScreenResources, ResourcesDeleter>;
using Crtc = std::unique_ptr<XRRCrtcInfo, CrtcDeleter>;

int Ignore(Display*, XErrorEvent*)
{
    return 0;
}

Connection Connect()
{
    Connection display(XOpenDisplay(nullptr));
    int eventBase = 0;
    int errorBase = 0;
    if (display && XRRQueryExtension(display.get(), &eventBase, &errorBase) == 0) {
        display.reset();
    }
    return display;
}

Resources Query(Display* display)
{
    return Resources(XRRGetScreenResourcesCurrent(display, DefaultRootWindow(display)));
}

// Of one crtc; without a mode when it is off.
CrtcMode Read(Display* display, XRRScreenResources* resources, RRCrtc id)
{
    CrtcMode read;
    read.crtc = id;
    if (const Crtc info{XRRGetCrtcInfo(display, resources, id)}) {
        read.mode = info->mode;
        read.x = info->x;
        read.y = info->y;
        read.rotation = info->rotation;
        read.outputs.assign(info->outputs, info->outputs + info->noutput);
    }
    return read;
}

ScreenModes Read(Display* display, XRRScreenResources* resources)
{
    const int screen = DefaultScreen(display);
    ScreenModes modes{.width = DisplayWidth(display, screen),
                      .height = DisplayHeight(display, screen),
                      .widthInMm = DisplayWidthMM(display, screen),
                      .heightInMm = DisplayHeightMM(display, screen)};
    for (int i = 0; i < resources->ncrtc; ++i) {
        modes.crtcs.push_back(Read(display, resources, resources->crtcs[i]));
    }
    return modes;
}

void Set(Display* display, XRRScreenResources* resources, CrtcMode wanted)
{
    XRRSetCrtcConfig(display, resources, wanted.crtc, CurrentTime, wanted.x, wanted.y, wanted.mode,
                     wanted.rotation, wanted.outputs.data(), static_cast<int>(wanted.outputs.size()));
}

}  // namespace

ScreenModes ReadScreenModes()
{
    const Connection display = Connect();
    const Resources resources = display ? Query(display.get()) : nullptr;
    return resources ? Read(display.get(), resources.get()) : ScreenModes{};
}

void RestoreScreenModes(const ScreenModes& modes)
{
    const Connection display = modes.crtcs.empty() ? nullptr : Connect();
    const Resources resources = display ? Query(display.get()) : nullptr;
    if (!resources) {
        return;
    }
    XSetErrorHandler(Ignore);
    XGrabServer(display.get());
    const ScreenModes now = Read(display.get(), resources.get());
    std::vector<CrtcMode> wrong;
    for (const CrtcMode& crtc : now.crtcs) {
        const auto wanted = std::find_if(modes.crtcs.begin(), modes.crtcs.end(),
                                         [&crtc](const CrtcMode& each) { return each.crtc == crtc.crtc; });
        if (wanted != modes.crtcs.end() && *wanted != crtc) {
            wrong.push_back(*wanted);
            // The screen's size cannot change under an output that would then show more than there is.
            Set(display.get(), resources.get(), {.crtc = crtc.crtc, .rotation = RR_Rotate_0});
        }
    }
    if (now.width != modes.width || now.height != modes.height) {
        XRRSetScreenSize(display.get(), DefaultRootWindow(display.get()), modes.width, modes.height,
                         modes.widthInMm, modes.heightInMm);
    }
    for (const CrtcMode& crtc : wrong) {
        Set(display.get(), resources.get(), crtc);
    }
    XUngrabServer(display.get());
    XSync(display.get(), False);
}

}  // namespace platform
