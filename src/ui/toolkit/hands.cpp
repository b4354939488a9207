#include "ui/toolkit/hands.h"

#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr std::int64_t kAfterTyping = 1000;  // ms: an amount that is typed again must not end the month

constexpr std::int64_t kRead = 1000;  // ms that a pause lasts at least: nobody ends one that he has not seen
constexpr std::int64_t kCurious = 500;  // ms on one thing: he wants to know what it is
constexpr std::int64_t kShortly = 3;    // a short pause is a third of a full one

bool EndsPauses(Key key)
{
    return key == Key::Return || key == Key::Space || key == Key::Escape;
}

bool IsDigit(Key key)
{
    return key >= Key::Digit1 && key <= Key::Digit6;
}

}  // namespace

const Control* Hands::SeenAt(Point at) const
{
    const Form* form = desktop_.FormAt(at);
    if (form == nullptr) {
        return nullptr;
    }
    if (const Control* control = Desktop::ControlAt(*form, at)) {
        return control;
    }
    const std::vector<Control*>& controls = form->Controls();
    const auto it = std::find_if(controls.rbegin(), controls.rend(), [at](const Control* control) {
        return control->Now().visible && control->Place().Contains(at);
    });
    return it == controls.rend() ? nullptr : *it;
}

Hands::Seen Hands::Look(Point at) const
{
    Seen seen{.form = desktop_.FormAt(at)};
    if (seen.form == nullptr) {
        return seen;
    }
    seen.showings = seen.form->Showings();
    for (const Control* control : seen.form->Controls()) {
        if (control->Now().visible) {
            seen.parts.push_back({control, control->Text()});
        }
    }
    return seen;
}

bool Hands::WasThere(Point at) const
{
    const Form* form = desktop_.FormAt(at);
    if (form == nullptr || form != seen_.form || form->Showings() != seen_.showings) {
        return false;
    }
    const Control* control = Desktop::ControlAt(*form, at);
    const auto asItWas = [control](const Seen::Part& part) {
        return part.control == control &&
               (control->GetKind() == Control::Kind::TextBox || part.caption == control->Text());
    };
    return control == nullptr || std::any_of(seen_.parts.begin(), seen_.parts.end(), asItWas);
}

// Asked before anything happens, since what happens may take the text box away.
void Hands::NoteTyping()
{
    if (desktop_.FocusedTextBox() != nullptr) {
        lastTyping_ = desktop_.Now();
    }
}

bool Hands::CommandsMenu(Modifiers modifiers) const
{
    const std::vector<Form*>& shown = desktop_.Shown();
    return !modifiers.control && !modifiers.alt && desktop_.Now() - lastTyping_ >= kAfterTyping &&
           std::none_of(shown.begin(), shown.end(), [](const Form* form) { return form->GetDesign().asks; });
}

void Hands::Press(Key key, Modifiers modifiers)
{
    NoteTyping();
    if (key == Key::Hint) {
        Attend(desktop_.ShowsFocus() || watched_ == nullptr ? desktop_.Focused() : watched_, true);
        return;
    }
    if (EndsPauses(key) && desktop_.PauseEnd()) {
        EndPause();
        return;
    }
    if (!IsDigit(key) || desktop_.FocusedTextBox() != nullptr || CommandsMenu(modifiers)) {
        desktop_.Press(key, modifiers);
        rested_ = kCurious;  // the pointer was left lying
        Attend(desktop_.ShowsFocus() ? desktop_.Focused() : nullptr);
    }
}

void Hands::EnterText(std::string_view text)
{
    NoteTyping();
    desktop_.EnterText(text);
}

void Hands::Compose(std::string_view text)
{
    NoteTyping();
    desktop_.Compose(text);
}

void Hands::PointerDown(Point at, int clicks, bool shift, const Desktop::CaretAt& caretAt)
{
    NoteTyping();
    if (clicks <= 1) {
        seen_ = Look(at);
    } else if (!WasThere(at)) {
        return;
    }
    const Form* form = desktop_.FormAt(at);
    const bool ground = form == nullptr || form->GetDesign().backdrop;
    if (!ground && !desktop_.TakesInput(*form) && desktop_.onRefused) {
        desktop_.onRefused(*form);
    }
    if (desktop_.PauseEnd() && ground) {
        EndPause();
        return;
    }
    desktop_.PointerDown(at, clicks, shift, caretAt);
    LookAgain();
}

void Hands::PointerUp(Point at)
{
    NoteTyping();
    desktop_.PointerUp(at);
    Watch(SeenAt(at));
    LookAgain();
}

void Hands::PointerMove(Point at, const Desktop::CaretAt& caretAt)
{
    desktop_.PointerMove(at, caretAt);
    Watch(SeenAt(at));
}

void Hands::PointerLeave()
{
    desktop_.PointerLeave();
    Watch(nullptr);
}

void Hands::Watch(const Control* control)
{
    if (std::exchange(watched_, control) != control) {
        rested_ = 0;
        Attend(nullptr);
    }
}

// What was pressed may have put the words away, or changed the figures in them.
void Hands::LookAgain()
{
    if (attended_ != nullptr) {
        Attend(attended_ == watched_ ? watched_ : nullptr);
    }
}

void Hands::Rest(std::int64_t milliseconds)
{
    const bool curious = rested_ < kCurious;
    rested_ = std::min(rested_ + milliseconds, kCurious);
    if (watched_ != nullptr && curious && rested_ == kCurious) {
        Attend(watched_);
    }
}

void Hands::Attend(const Control* control, bool asked)
{
    const bool news = control != nullptr || attended_ != nullptr;
    attended_ = control;
    if (desktop_.onAttend && news) {
        desktop_.onAttend(control, asked);
    }
}

void Hands::EndPause()
{
    if (desktop_.PauseEnd() == pauseEnd_ && waited_ >= kRead) {
        desktop_.SkipPause();
    }
}

void Hands::LetTimePass(std::int64_t milliseconds)
{
    Rest(milliseconds);
    const std::optional<std::int64_t> end = desktop_.PauseEnd();
    if (!end) {
        desktop_.Advance(milliseconds);
        return;
    }
    waited_ = *end == pauseEnd_ ? waited_ + milliseconds : milliseconds;
    pauseEnd_ = *end;
    switch (desktop_.pauses) {
    case Pauses::Full:
        desktop_.Advance(milliseconds);
        break;
    case Pauses::Short:
        desktop_.Advance(std::min(milliseconds * kShortly, *end - desktop_.Now()));
        break;
    case Pauses::ByClick:
        break;  // the clock stands still
    }
}

std::optional<std::int64_t> Hands::Patience() const
{
    const std::optional<std::int64_t> timers = TimersPatience();
    if (watched_ == nullptr || rested_ == kCurious || !desktop_.onAttend) {
        return timers;
    }
    return std::min(timers.value_or(kCurious), kCurious - rested_);
}

std::optional<std::int64_t> Hands::TimersPatience() const
{
    const std::optional<std::int64_t> due = desktop_.NextDue();
    const bool pause = desktop_.PauseEnd().has_value();
    if (!due || (pause && desktop_.pauses == Pauses::ByClick)) {
        return std::nullopt;
    }
    const std::int64_t left = *due - desktop_.Now();
    return pause && desktop_.pauses == Pauses::Short ? (left + kShortly - 1) / kShortly : left;
}

}  // namespace ui
