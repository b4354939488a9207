// A one-shot timer on the desktop's virtual clock.
//
//     main.Timer1.onTimer = [&] { ... };
//     main.Timer1.SetInterval(3000);   // fires once, 3 s from now; 0 disarms
#pragma once

#include "ui/toolkit/holder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ui {

class Timer {
public:
    Timer(Holder& holder, std::string_view name);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    const std::string& Name() const { return name_; }
    void SetInterval(std::int64_t milliseconds);
    bool Armed() const { return armed_; }
    std::int64_t Due() const { return due_; }  // on the virtual clock; only while armed
    void Fire();                               // disarms, then calls the handler

    std::function<void()> onTimer;

private:
    Holder& holder_;
    std::string name_;
    bool armed_ = false;
    std::int64_t due_ = 0;
};

}  // namespace ui
