#include "ui/toolkit/desktop.h"

#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr int kRingMargin = 10;

}  // namespace

// Screens ---------------------------------------------------------------------------------------------

Form* Desktop::FindForm(std::string_view name) const
{
    const auto it =
        std::find_if(forms_.begin(), forms_.end(), [name](const Form* form) { return form->Name() == name; });
    return it == forms_.end() ? nullptr : *it;
}

Control* Desktop::FindControl(std::string_view name) const
{
    const auto dot = name.find('.');
    const Form* form = dot == std::string_view::npos ? nullptr : FindForm(name.substr(0, dot));
    return form == nullptr ? nullptr : form->Find(name.substr(dot + 1));
}

Form* Desktop::ModalForm() const
{
    const auto it =
        std::find_if(shown_.rbegin(), shown_.rend(), [](const Form* form) { return form->Modal(); });
    return it == shown_.rend() ? nullptr : *it;
}

Form* Desktop::FrontForm() const
{
    for (auto it = shown_.rbegin(); it != shown_.rend(); ++it) {
        if (TakesInput(**it) && !(*it)->GetDesign().fixture) {
            return *it;
        }
    }
    return nullptr;
}

// Somebody else's screen wants the place.
void Desktop::PutOwnAway()
{
    for (std::size_t i = shown_.size(); i > 0; --i) {
        Form& form = *shown_[i - 1];
        if (form.GetDesign().own && !form.GetDesign().fixture) {
            form.Hide();
        }
    }
    if (note_ != nullptr) {
        note_->Hide();
    }
}

void Desktop::Use(const Form& form)
{
    const Form::Design& design = form.GetDesign();
    if (design.own && !design.fixture) {
        return;
    }
    PutOwnAway();
    if (!design.own && !design.backdrop) {
        ++uses_;
    }
}

void Desktop::BringToFront(Form& form)
{
    const Form::Design& design = form.GetDesign();
    if (design.note) {
        note_ = &form;
        return;
    }
    if (!design.own && !design.backdrop) {
        PutOwnAway();
    }
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    auto place = shown_.end();
    if (design.backdrop) {
        place = shown_.begin();
    } else if (design.fixture) {
        place = std::find_if(shown_.begin(), shown_.end(),
                             [](const Form* other) { return !other->GetDesign().backdrop; });
    } else if (!form.Modal()) {
        place = std::find_if(shown_.begin(), shown_.end(), [](const Form* other) { return other->Modal(); });
    }
    shown_.insert(place, &form);
    const bool hasFocus = focus_ != nullptr && &focus_->GetForm() == &form;
    const bool wantsFocus = !design.own || form.initialFocus != nullptr;
    Control* from = focus_ != nullptr ? focus_ : lastFocus_;
    if (wantsFocus && from != nullptr && &from->GetForm() != &form) {
        cameFrom_[&form] = from;
    }
    if (wantsFocus && TakesInput(form) && !hasFocus) {
        SetFocus(form.initialFocus);
    }
}

void Desktop::Remove(Form& form)
{
    note_ = note_ == &form ? nullptr : note_;
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    const auto belongs = [&form](const Control* control) {
        return control != nullptr && &control->GetForm() == &form;
    };
    if (belongs(focus_)) {
        lastFocus_ = std::exchange(focus_, nullptr);
    }
    if (belongs(hovered_)) {
        hovered_ = nullptr;
    }
    if (belongs(pressed_)) {
        pressed_ = nullptr;
    }
}

bool Desktop::TakesInput(const Form& form) const
{
    const Form* modal = ModalForm();
    return form.Visible() && form.Enabled() && (modal == nullptr || modal == &form);
}

// Events ----------------------------------------------------------------------------------------------

void Desktop::Dispatch(const std::function<void()>& event)
{
    struct Running {
        int& depth;
        explicit Running(int& d) : depth(d) { ++depth; }
        ~Running() { --depth; }
    };
    {
        const Running running(depth_);  // also when a handler throws
        stale_ = true;
        event();
    }
    Settle();
    Tell(cause_);
}

void Desktop::Tell(Cause cause) const
{
    if (onSettled && depth_ == 0) {
        onSettled(cause);
    }
}

void Desktop::Settle()
{
    while (depth_ == 0 && !pending_.empty()) {
        const std::function<void()> action = std::move(pending_.front());
        pending_.erase(pending_.begin());
        Dispatch(action);
    }
}

Refusal Desktop::Refused(const Form& form) const
{
    if (!form.Visible()) {
        return form.Name() + " is not shown";
    }
    const Form* modal = ModalForm();
    if (modal != nullptr && modal != &form) {
        return form.Name() + " waits behind " + modal->Name();
    }
    if (!form.Enabled()) {
        return form.Name() + " is disabled";
    }
    return std::nullopt;
}

Refusal Desktop::Refused(const Control& control) const
{
    if (Refusal refusal = Refused(control.GetForm())) {
        return refusal;
    }
    const auto because = [&control](const char* reason) {
        return control.GetForm().Name() + "." + control.Name() + reason;
    };
    if (!control.Now().visible) {
        return because(" is hidden");
    }
    if (!control.Now().enabled) {
        return because(" is disabled");
    }
    return std::nullopt;
}

void Desktop::Run(Control& control)
{
    Use(control.GetForm());
    if (control.GetKind() == Control::Kind::OptionButton) {
        for (Control* other : control.GetForm().Controls()) {
            if (other->GetKind() == Control::Kind::OptionButton) {
                other->SetChosen(other == &control);
            }
        }
    }
    const std::function<void()>& own = control.onClick;
    const std::function<void()>& handler = own ? own : control.GetForm().onClick;
    if (handler) {
        Dispatch(handler);
    }
}

void Desktop::NoteInput() const
{
    if (onInput) {
        onInput();
    }
}

Refusal Desktop::Click(Form& form)
{
    Refusal refusal = Refused(form);
    NoteInput();
    if (!refusal) {
        Use(form);
    }
    if (!refusal && form.onClick) {
        Dispatch(form.onClick);
    }
    return refusal;
}

Refusal Desktop::Click(Control& control)
{
    Refusal refusal = Refused(control);
    NoteInput();
    if (!refusal) {
        SetKeyboardUsed(false);
        if (control.Focusable()) {
            SetFocus(&control);
        }
        Run(control);
        Tell(Cause::Player);
    }
    return refusal;
}

Refusal Desktop::Hover(Form& form)
{
    Refusal refusal = Refused(form);
    if (!refusal) {
        SetHovered(nullptr);
    }
    return refusal;
}

Refusal Desktop::Hover(Control& control)
{
    Refusal refusal = Refused(control);
    if (!refusal) {
        SetHovered(&control);
        if (control.onHover) {
            Dispatch(control.onHover);
        }
    }
    return refusal;
}

Refusal Desktop::Type(TextBox& box, std::string_view text)
{
    Refusal refusal = Refused(box);
    if (!refusal) {
        SetFocus(&box);
        box.Change([text](TextEdit& edit) { edit.SetText(text); });
        Tell(Cause::Player);
    }
    return refusal;
}

void Desktop::SetKeyboardUsed(bool used)
{
    if (std::exchange(keyboardUsed_, used) != used && Focused() != nullptr) {
        MarkDirty(Focused()->Place().Grown(kRingMargin));
    }
}

// The pointer -----------------------------------------------------------------------------------------

Form* Desktop::FormAt(Point at) const
{
    for (auto it = shown_.rbegin(); it != shown_.rend(); ++it) {
        if ((*it)->Place().Contains(at)) {
            return *it;
        }
    }
    return nullptr;
}

Control* Desktop::ControlAt(const Form& form, Point at)
{
    const std::vector<Control*>& controls = form.Controls();
    const auto hit = [at](const Control* control) {
        return control->Now().visible && (control->Place().Contains(at) || control->Row().Contains(at)) &&
               (control->onClick || control->onHover || control->Now().tabStop);
    };
    const auto it = std::find_if(controls.rbegin(), controls.rend(), hit);
    return it == controls.rend() ? nullptr : *it;
}

PointerShape Desktop::ShapeAt(Point at) const
{
    const Form* form = FormAt(at);
    if (form == nullptr || !TakesInput(*form)) {
        return PointerShape::Arrow;
    }
    const Control* control = ControlAt(*form, at);
    if (control == nullptr) {
        return form->onClick ? PointerShape::Hand : PointerShape::Arrow;
    }
    if (!control->Now().enabled) {
        return PointerShape::Arrow;
    }
    if (control->GetKind() == Control::Kind::TextBox) {
        return PointerShape::Text;
    }
    const bool acts = control->onClick || form->onClick || control->GetKind() == Control::Kind::OptionButton;
    return acts ? PointerShape::Hand : PointerShape::Arrow;
}

void Desktop::SetHovered(Control* control)
{
    if (control == hovered_) {
        return;
    }
    for (const Control* touched : {hovered_, control}) {
        if (touched != nullptr) {
            MarkDirty(Union(touched->Place(), touched->Row()).Grown(kRingMargin));
        }
    }
    hovered_ = control;
}

void Desktop::SetPressed(Control* control)
{
    for (const Control* touched : {pressed_, control}) {
        if (touched != nullptr) {
            MarkDirty(touched->Place().Grown(kRingMargin));
        }
    }
    pressed_ = control;
}

void Desktop::PointerMove(Point at, const CaretAt& caretAt)
{
    TextBox* dragged = pressed_ == nullptr ? nullptr : dynamic_cast<TextBox*>(pressed_);
    if (dragged != nullptr && caretAt) {
        const std::size_t offset = caretAt(*dragged, at.x);
        dragged->Change([offset](TextEdit& edit) { edit.PlaceCaret(offset, true); });
        return;
    }
    const Form* form = FormAt(at);
    Control* control = form != nullptr && TakesInput(*form) ? ControlAt(*form, at) : nullptr;
    if (control != nullptr && !control->Now().enabled) {
        control = nullptr;
    }
    const bool entered = control != hovered_;
    SetHovered(control);
    if (entered && control != nullptr && control->onHover) {
        Dispatch(control->onHover);
    }
}

void Desktop::PointerLeave()
{
    SetHovered(nullptr);
}

void Desktop::PointerDown(Point at, int clicks, bool shift, const CaretAt& caretAt)
{
    NoteInput();
    Form* form = FormAt(at);
    pressedForm_ = form != nullptr && TakesInput(*form) ? form : nullptr;
    if (pressedForm_ == nullptr) {
        PutOwnAway();  // a click beside everything
    }
    Control* control = pressedForm_ == nullptr ? nullptr : ControlAt(*pressedForm_, at);
    if (control != nullptr && !control->Now().enabled) {
        pressedForm_ = nullptr;  // a disabled control swallows the click
        control = nullptr;
    }
    SetPressed(control);
    if (control == nullptr) {
        return;
    }
    SetKeyboardUsed(false);
    if (control->Focusable()) {
        SetFocus(control);
    }
    if (auto* box = dynamic_cast<TextBox*>(control); box != nullptr && caretAt) {
        const std::size_t offset = caretAt(*box, at.x);
        box->Change([offset, clicks, shift](TextEdit& edit) {
            if (clicks >= 3) {
                edit.SelectAll();
            } else if (clicks == 2) {
                edit.SelectWordAt(offset);
            } else {
                edit.PlaceCaret(offset, shift);
            }
        });
    }
}

// A press becomes a click when the pointer is let go over the same control, as everywhere.
void Desktop::PointerUp(Point at)
{
    Control* control = pressed_;
    Form* form = std::exchange(pressedForm_, nullptr);
    SetPressed(nullptr);
    if (form == nullptr || FormAt(at) != form || ControlAt(*form, at) != control) {
        return;
    }
    if (control == nullptr) {
        Click(*form);
    } else {
        Click(*control);
    }
}

// Time ------------------------------------------------------------------------------------------------

// Those of one moment fire in the order in which they were made.
Timer* Desktop::NextTimer() const
{
    Timer* next = nullptr;
    for (Timer* timer : timers_) {
        if (timer->Armed() && (next == nullptr || timer->Due() < next->Due())) {
            next = timer;
        }
    }
    return next;
}

std::optional<std::int64_t> Desktop::NextDue() const
{
    const Timer* next = NextTimer();
    return next == nullptr ? std::nullopt : std::optional(next->Due());
}

std::optional<std::int64_t> Desktop::PauseEnd() const
{
    return FrontForm() == nullptr ? NextDue() : std::nullopt;
}

bool Desktop::SkipPause()
{
    const std::optional<std::int64_t> due = NextDue();
    if (due) {
        Advance(std::max<std::int64_t>(*due - now_, 0));
    }
    return due.has_value();
}

void Desktop::Advance(std::int64_t milliseconds)
{
    const std::int64_t until = now_ + milliseconds;
    for (Timer* timer = NextTimer(); timer != nullptr && timer->Due() <= until; timer = NextTimer()) {
        now_ = std::max(now_, timer->Due());
        cause_ = Cause::Time;
        Dispatch([timer] { timer->Fire(); });
        cause_ = Cause::Player;
    }
    now_ = until;
}

void Desktop::Refresh()
{
    if (stale_ && onRefresh) {
        onRefresh();
    }
    stale_ = false;
}

Rect Desktop::TakeDirty()
{
    return std::exchange(dirty_, Rect{});
}

}  // namespace ui
