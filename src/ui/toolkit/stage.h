// What a screen asks of the desktop on which it stands.
//
// Screens are built on a Stage and know no more of it; only Desktop is one. So a screen's header knows nothing
// of keys, pointers and focus, and the desktop may know all of its screens.
#pragma once

#include "ui/toolkit/geometry.h"

#include <cstdint>
#include <functional>

namespace ui {

class Form;
class Timer;

class Stage {
public:
    virtual void Add(Form& form) = 0;  // once, when the screen is built
    virtual void Add(Timer& timer) = 0;
    virtual void BringToFront(Form& form) = 0;                  // in front of all that may stand behind it
    virtual void Remove(Form& form) = 0;                        // it is no longer shown
    virtual void AfterEvent(std::function<void()> action) = 0;  // when the running handler has returned
    virtual void MarkDirty(const Rect& rect) = 0;
    virtual std::int64_t Now() const = 0;  // milliseconds on the virtual clock

protected:
    Stage() = default;
    ~Stage() = default;
    Stage(const Stage&) = default;
    Stage& operator=(const Stage&) = default;
};

}  // namespace ui
