// What a control or a timer asks of the screen that holds it; only Form is one.
#pragma once

#include "ui/toolkit/geometry.h"

#include <cstdint>

namespace ui {

class Control;
class Form;
class Timer;

class Holder {
public:
    virtual Form& GetForm() = 0;
    virtual void Add(Control& control) = 0;  // once, when it is built, in the order of the rows
    virtual void Add(Timer& timer) = 0;
    virtual void MarkDirty(const Rect& rect) const = 0;  // nothing while the screen is not shown
    virtual std::int64_t Now() const = 0;                // milliseconds on the virtual clock

protected:
    Holder() = default;
    ~Holder() = default;
    Holder(const Holder&) = default;
    Holder& operator=(const Holder&) = default;
};

}  // namespace ui
