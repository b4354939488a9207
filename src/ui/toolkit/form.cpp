#include "ui/toolkit/form.h"

#include <utility>

namespace ui {

namespace {

constexpr int kShadowMargin = 16;  // sheets and their shadows reach beyond the form's place

}  // namespace

Form::Form(Stage& stage, const Design& design)
    : stage_(stage), design_(design), name_(design.name), rect_(design.rect), back_(design.back)
{
    stage_.Add(*this);
}

Control* Form::Find(std::string_view name) const
{
    for (Control* control : controls_) {
        if (control->Name() == name) {
            return control;
        }
    }
    return nullptr;
}

void Form::MarkDirty(const Rect& rect) const
{
    if (visible_) {
        stage_.MarkDirty(rect);
    }
}

void Form::MarkDirty() const
{
    MarkDirty(rect_.Grown(kShadowMargin));
}

void Form::SetRect(const Rect& rect)
{
    if (rect_ == rect) {
        return;
    }
    MarkDirty();
    rect_ = rect;
    MarkDirty();
}

void Form::SetBack(Color color)
{
    if (back_ != color) {
        back_ = color;
        MarkDirty();
    }
}

void Form::SetShade(int percent)
{
    if (shade_ != percent) {
        shade_ = percent;
        MarkDirty();
    }
}

void Form::SetDecor(std::span<const Decor> decor)
{
    design_.decor = decor;
    MarkDirty();
}

void Form::SetEnabled(bool enabled)
{
    if (enabled_ != enabled) {
        enabled_ = enabled;
        MarkDirty();  // a menu that does not answer looks so
    }
}

void Form::Load()
{
    if (loaded_) {
        return;
    }
    loaded_ = true;
    if (onLoad) {
        onLoad();
    }
}

void Form::Present(bool modal)
{
    Load();
    modal_ = modal && !design_.own;
    visible_ = true;
    ++showings_;
    stage_.BringToFront(*this);
    MarkAll();
}

// A screen that comes or goes may change what others show; a note does not.
void Form::MarkAll() const
{
    stage_.MarkDirty(design_.note ? rect_ : kSpace);
}

void Form::Show()
{
    Present(false);
}

void Form::ShowModal(std::function<void()> afterwards)
{
    afterwards_ = std::move(afterwards);
    Present(true);
}

void Form::Withdraw()
{
    MarkAll();
    visible_ = false;
    modal_ = false;
    stage_.Remove(*this);
    if (afterwards_) {
        stage_.AfterEvent(std::exchange(afterwards_, {}));
    }
}

void Form::Unload()
{
    afterwards_ = {};
    Hide();
    if (!loaded_) {
        return;
    }
    loaded_ = false;
    enabled_ = true;
    rect_ = design_.rect;
    back_ = design_.back;
    shade_ = 0;
    for (Timer* timer : timers_) {
        timer->SetInterval(0);
    }
    for (Control* control : controls_) {
        control->Reset();
    }
}

}  // namespace ui
