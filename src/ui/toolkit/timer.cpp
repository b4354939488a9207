#include "ui/toolkit/timer.h"

namespace ui {

Timer::Timer(Holder& holder, std::string_view name) : holder_(holder), name_(name)
{
    holder_.Add(*this);
}

void Timer::SetInterval(std::int64_t milliseconds)
{
    armed_ = milliseconds > 0;
    due_ = holder_.Now() + milliseconds;
}

void Timer::Fire()
{
    armed_ = false;
    if (onTimer) {
        onTimer();
    }
}

}  // namespace ui
