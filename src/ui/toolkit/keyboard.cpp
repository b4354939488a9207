// The keyboard side of the desktop: focus, keys and typing.
#include "ui/toolkit/desktop.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

namespace ui {

namespace {

constexpr int kRingMargin = 10;

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

Direction TowardsBy(Key arrow)
{
    switch (arrow) {
    case Key::Up:
        return Direction::Up;
    case Key::Down:
        return Direction::Down;
    case Key::Left:
        return Direction::Left;
    default:
        return Direction::Right;
    }
}

char32_t FirstLetter(const std::string& text)
{
    auto first = text.begin();
    return text.empty() || !utf8::is_valid(text) ? 0 : utf8::unchecked::next(first);
}

char32_t SmallLetter(char32_t letter)
{
    return letter >= U'A' && letter <= U'Z' ? letter - U'A' + U'a' : letter;
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
    FocusByKey(*ring[static_cast<std::size_t>(at)]);
}

void Desktop::FocusByKey(Control& control)
{
    SetFocus(&control);
    if (control.onHover) {
        Dispatch(control.onHover);
    }
}

// An option that an arrow reaches is chosen, as everywhere.
void Desktop::MoveTowards(Direction direction)
{
    const Control* focus = Focused();
    if (focus == nullptr) {
        MoveFocus(direction == Direction::Down || direction == Direction::Right);
        return;
    }
    std::vector<Control*> others = TabRing();
    std::erase_if(others, [&](const Control* control) {
        const Rect& place = control->Place();
        const Point middle{place.left + place.width / 2, place.top + place.height / 2};
        return control == focus || FormAt(middle) != &control->GetForm();  // or covered
    });
    std::vector<Rect> places(others.size());
    const auto placeOf = [](const Control* control) { return control->Place(); };
    std::transform(others.begin(), others.end(), places.begin(), placeOf);
    std::optional<std::size_t> next = NearestTowards(focus->Place(), places, direction);
    if (!next) {
        for (std::size_t i = 0; i < others.size(); ++i) {
            places[i] = &others[i]->GetForm() == &focus->GetForm() ? places[i] : Rect{};
        }
        next = RoundFromBehind(focus->Place(), places, direction);
    }
    if (next) {
        Control& control = *others[*next];
        FocusByKey(control);
        if (control.GetKind() == Control::Kind::OptionButton) {
            Run(control);
        }
    }
}

void Desktop::JumpTo(char32_t letter)
{
    const Form* form = FrontForm();
    if (form == nullptr || FocusedTextBox() != nullptr) {
        return;
    }
    std::vector<Control*> found;
    std::copy_if(form->Controls().begin(), form->Controls().end(), std::back_inserter(found),
                 [letter](const Control* control) {
                     return control->Focusable() &&
                            SmallLetter(FirstLetter(control->Text())) == SmallLetter(letter);
                 });
    if (!found.empty()) {
        const auto at = std::find(found.begin(), found.end(), Focused());
        SetKeyboardUsed(true);
        SetHovered(nullptr);
        FocusByKey(at == found.end() || at + 1 == found.end() ? *found.front() : **(at + 1));
    }
}

// Past screens that have gone too: from the bank over the taxes to the menu's command.
Control* Desktop::WhereItCameFrom(const Form* form) const
{
    constexpr int kFarEnough = 8;  // screens that open each other in turn
    for (int i = 0; i < kFarEnough; ++i) {
        const auto found = cameFrom_.find(form);
        if (found == cameFrom_.end()) {
            return nullptr;
        }
        if (found->second->Focusable() && TakesInput(found->second->GetForm())) {
            return found->second;
        }
        form = &found->second->GetForm();
    }
    return nullptr;
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
    case Key::Down:
    case Key::Left:
    case Key::Right:
        SetHovered(nullptr);
        MoveTowards(TowardsBy(key));
        return;
    default:
        break;
    }
    const Form* left = key == Key::Escape ? FrontForm() : nullptr;
    if (!PressOnFocus(key) && !PressOnForm(key) && onKey) {
        onKey(key);
    }
    if (left != nullptr && !left->Visible() && Focused() == nullptr) {
        SetFocus(WhereItCameFrom(left));
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
