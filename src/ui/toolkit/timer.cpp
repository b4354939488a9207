#include "ui/toolkit/timer.h"

#include "ui/toolkit/desktop.h"
#include "ui/toolkit/form.h"

namespace ui {

Timer::Timer(Form& form, std::string_view name) : form_(form), name_(name)
{
    form_.timers_.push_back(this);
}

void Timer::SetInterval(std::int64_t milliseconds)
{
    armed_ = milliseconds > 0;
    due_ = form_.GetDesktop().Now() + milliseconds;
}

void Timer::Fire()
{
    armed_ = false;
    if (onTimer) {
        onTimer();
    }
}

}  // namespace ui
