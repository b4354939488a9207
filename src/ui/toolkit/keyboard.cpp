// The keyboard side of the desktop: focus, keys and typing.
#include "ui/toolkit/desktop.h"

#include <algorithm>
#include <iterator>

namespace ui {

namespace {

constexpr int kRingMargin = 10;

// Option buttons, menu items and rows of one kind form a group that the arrows walk through.
bool SameGroup(const Control& a, const Control& b)
{
    return &a.GetForm() == &b.GetForm() && a.GetKind() == b.GetKind();
}

std::string_view Digit(Key key)
{
    switch (key) {
    case Key::Digit1:
        return "1";
    case Key::Digit2:
        return "2";
    case Key::Digit3:
        return "3";
    case Key::Digit4:
        return "4";
    case Key::Digit5:
        return "5";
    case Key::Digit6:
        return "6";
    default:
        return {};
    }
}

}  // namespace

// The control that keys go to; none while its screen cannot be used.
Control* Desktop::Focused() const
{
    const bool usable = focus_ != nullptr && focus_->Focusable() && TakesInput(focus_->GetForm());
    return usable ? focus_ : nullptr;
}

TextBox* Desktop::FocusedTextBox() const
{
    return dynamic_cast<TextBox*>(Focused());
}

void Desktop::SetFocus(Control* control)
{
    if (control == focus_) {
        return;
    }
    for (const Control* touched : {focus_, control}) {
        if (touched != nullptr) {
            MarkDirty(Union(touched->Place(), touched->Row()).Grown(kRingMargin));
        }
    }
    if (auto* left = dynamic_cast<TextBox*>(focus_); left != nullptr) {
        left->Change([](TextEdit& edit) {
            edit.SetComposition({});
            edit.PlaceCaret(edit.Caret(), false);
        });
    }
    focus_ = control;
    if (auto* box = dynamic_cast<TextBox*>(control); box != nullptr) {
        box->Change([](TextEdit& edit) { edit.SelectAll(); });
    }
}

// Everything that Tab reaches, in reading order: the front screen first, then what stands behind it.
std::vector<Control*> Desktop::TabRing() const
{
    std::vector<Control*> ring;
    for (auto it = shown_.rbegin(); it != shown_.rend(); ++it) {
        if (TakesInput(**it)) {
            std::copy_if((*it)->Controls().begin(), (*it)->Controls().end(), std::back_inserter(ring),
                         [](const Control* control) { return control->Focusable(); });
        }
    }
    return ring;
}

void Desktop::MoveFocus(bool forward)
{
    const std::vector<Control*> ring = TabRing();
    if (ring.empty()) {
        return;
    }
    const auto size = static_cast<std::ptrdiff_t>(ring.size());
    const auto found = std::find(ring.begin(), ring.end(), Focused());
    std::ptrdiff_t at = forward ? 0 : size - 1;
    if (found != ring.end()) {
        at = (std::distance(ring.begin(), found) + (forward ? 1 : size - 1)) % size;
    }
    Control* control = ring[static_cast<std::size_t>(at)];
    SetFocus(control);
    if (control->onHover) {
        Dispatch(control->onHover);
    }
}

void Desktop::MoveWithinForm(bool forward)
{
    Control* focus = Focused();
    if (focus == nullptr) {
        MoveFocus(forward);
        return;
    }
    std::vector<Control*> group;
    for (Control* control : focus->GetForm().Controls()) {
        if (control->Focusable() && SameGroup(*control, *focus)) {
            group.push_back(control);
        }
    }
    const auto size = group.size();
    const auto at = static_cast<std::size_t>(std::find(group.begin(), group.end(), focus) - group.begin());
    Control* next = group[(at + (forward ? 1 : size - 1)) % size];
    if (next == focus) {
        return;
    }
    SetFocus(next);
    if (next->onHover) {
        Dispatch(next->onHover);
    }
    if (next->GetKind() == Control::Kind::OptionButton) {
        Run(*next);
    }
}

std::string Desktop::Clipboard() const
{
    return getClipboard ? getClipboard() : ownClipboard_;
}

bool Desktop::PressInTextBox(TextBox& box, Key key, Modifiers modifiers)
{
    using Move = TextEdit::Move;
    const bool word = modifiers.control;
    const auto move = [&](Move plain, Move byWord) {
        box.Change([&](TextEdit& edit) { edit.MoveCaret(word ? byWord : plain, modifiers.shift); });
        return true;
    };
    const auto change = [&](const std::function<void(TextEdit&)>& what) {
        box.Change(what);
        return true;
    };
    switch (key) {
    case Key::Left:
        return move(Move::Left, Move::WordLeft);
    case Key::Right:
        return move(Move::Right, Move::WordRight);
    case Key::Home:
        return move(Move::Home, Move::Home);
    case Key::End:
        return move(Move::End, Move::End);
    case Key::Backspace:
        return change([word](TextEdit& edit) { edit.Erase(false, word); });
    case Key::Delete:
        return change([word](TextEdit& edit) { edit.Erase(true, word); });
    case Key::Space:
        return change([](TextEdit& edit) { edit.Insert(" "); });
    case Key::SelectAll:
        return change([](TextEdit& edit) { edit.SelectAll(); });
    case Key::Paste:
        return change([this](TextEdit& edit) { edit.Insert(Clipboard()); });
    case Key::Copy:
    case Key::Cut: {
        const std::string selected = box.Edit().Selected();
        if (selected.empty()) {
            return true;
        }
        ownClipboard_ = selected;
        if (setClipboard) {
            setClipboard(selected);
        }
        return key == Key::Copy || change([](TextEdit& edit) { edit.Erase(true, false); });
    }
    default:
        break;
    }
    if (const std::string_view digit = Digit(key); !digit.empty()) {
        return change([digit](TextEdit& edit) { edit.Insert(digit); });
    }
    return false;
}

bool Desktop::PressOnFocus(Key key)
{
    Control* focus = Focused();
    const bool presses = key == Key::Space || key == Key::Return;
    if (focus == nullptr || !presses || focus->GetKind() == Control::Kind::TextBox) {
        return false;
    }
    Run(*focus);
    return true;
}

// Return presses the default button, Escape the cancelling one. A screen that is one big button (a title
// picture) takes any of the pressing keys.
bool Desktop::PressOnForm(Key key)
{
    Form* form = FrontForm();
    if (form == nullptr || (key != Key::Return && key != Key::Escape && key != Key::Space)) {
        return false;
    }
    Control* button = nullptr;
    if (key == Key::Return) {
        button = form->defaultButton;
    } else if (key == Key::Escape) {
        button = form->cancelButton;
    }
    if (button != nullptr) {
        return !Click(*button);
    }
    if (form->onClick) {
        return !Click(*form);
    }
    return false;
}

void Desktop::Press(Key key, Modifiers modifiers)
{
    NoteInput();
    PressKey(key, modifiers);
    Tell(Cause::Key);
}

void Desktop::PressKey(Key key, Modifiers modifiers)
{
    if (TextBox* box = FocusedTextBox(); box != nullptr && PressInTextBox(*box, key, modifiers)) {
        return;
    }
    SetKeyboardUsed(true);
    switch (key) {
    case Key::Tab:
        SetHovered(nullptr);  // one thing is lit at a time; the pointer lights again when it moves
        MoveFocus(!modifiers.shift);
        return;
    case Key::Up:
    case Key::Left:
        SetHovered(nullptr);
        MoveWithinForm(false);
        return;
    case Key::Down:
    case Key::Right:
        SetHovered(nullptr);
        MoveWithinForm(true);
        return;
    default:
        break;
    }
    if (!PressOnFocus(key) && !PressOnForm(key) && onKey) {
        onKey(key);
    }
    SetKeyboardUsed(true);  // also when the key has clicked a button for the player
}

void Desktop::EnterText(std::string_view text)
{
    if (TextBox* box = FocusedTextBox(); box != nullptr) {
        box->Change([text](TextEdit& edit) { edit.Insert(text); });
        Tell(Cause::Player);
    }
}

void Desktop::Compose(std::string_view text)
{
    if (TextBox* box = FocusedTextBox(); box != nullptr) {
        box->Change([text](TextEdit& edit) { edit.SetComposition(text); });
    }
}

}  // namespace ui
