#include "platform/input.h"

#include <SDL2/SDL_clipboard.h>
#include <SDL2/SDL_keyboard.h>
#include <SDL2/SDL_stdinc.h>

#include <algorithm>
#include <iterator>
#include <optional>

namespace platform {

namespace {

using ui::Key;

enum class When : std::uint8_t {
    Always,
    Once,       // not again while it is held down
    NotTyping,  // once, and in a text box it is a character
    Control,    // together with the control key
    Alt,        // together with the left Alt key
};

struct KeyRow {
    SDL_Keycode code;
    When when;
    Key key;
};

constexpr KeyRow kKeys[] = {
    {SDLK_UP, When::Alt, Key::AltUp},
    {SDLK_DOWN, When::Alt, Key::AltDown},
    {SDLK_LEFT, When::Alt, Key::AltLeft},
    {SDLK_RIGHT, When::Alt, Key::AltRight},
    {SDLK_RETURN, When::Once, Key::Return},
    {SDLK_KP_ENTER, When::Once, Key::Return},
    {SDLK_ESCAPE, When::Once, Key::Escape},
    {SDLK_F1, When::Once, Key::F1},
    {SDLK_TAB, When::Always, Key::Tab},
    {SDLK_UP, When::Always, Key::Up},
    {SDLK_DOWN, When::Always, Key::Down},
    {SDLK_LEFT, When::Always, Key::Left},
    {SDLK_RIGHT, When::Always, Key::Right},
    {SDLK_HOME, When::Always, Key::Home},
    {SDLK_END, When::Always, Key::End},
    {SDLK_BACKSPACE, When::Always, Key::Backspace},
    {SDLK_DELETE, When::Always, Key::Delete},
    {SDLK_SPACE, When::NotTyping, Key::Space},
    {SDLK_1, When::NotTyping, Key::Digit1},
    {SDLK_2, When::NotTyping, Key::Digit2},
    {SDLK_3, When::NotTyping, Key::Digit3},
    {SDLK_4, When::NotTyping, Key::Digit4},
    {SDLK_5, When::NotTyping, Key::Digit5},
    {SDLK_6, When::NotTyping, Key::Digit6},
    {SDLK_KP_1, When::NotTyping, Key::Digit1},
    {SDLK_KP_2, When::NotTyping, Key::Digit2},
    {SDLK_KP_3, When::NotTyping, Key::Digit3},
    {SDLK_KP_4, When::NotTyping, Key::Digit4},
    {SDLK_KP_5, When::NotTyping, Key::Digit5},
    {SDLK_KP_6, When::NotTyping, Key::Digit6},
    {SDLK_a, When::Control, Key::SelectAll},
    {SDLK_c, When::Control, Key::Copy},
    {SDLK_INSERT, When::Control, Key::Copy},
    {SDLK_x, When::Control, Key::Cut},
    {SDLK_v, When::Control, Key::Paste},
    {SDLK_F2, When::Once, Key::F2},
    {SDLK_F3, When::Once, Key::F3},
    {SDLK_F4, When::Once, Key::F4},
    {SDLK_F5, When::Once, Key::F5},
    {SDLK_F6, When::Once, Key::F6},
    {SDLK_F7, When::Once, Key::F7},
    {SDLK_F8, When::Once, Key::F8},
    {SDLK_F9, When::Once, Key::F9},
    {SDLK_PAGEUP, When::Always, Key::PageUp},
    {SDLK_PAGEDOWN, When::Always, Key::PageDown},
};

// The row's digits give characters on many layouts only together with Shift; the key itself counts then.
constexpr SDL_Scancode kDigitRow[] = {SDL_SCANCODE_1, SDL_SCANCODE_2, SDL_SCANCODE_3,
                                      SDL_SCANCODE_4, SDL_SCANCODE_5, SDL_SCANCODE_6};

bool Holds(const SDL_Keysym& key, int modifier)
{
    return (key.mod & modifier) != 0;
}

std::optional<Key> Find(const SDL_KeyboardEvent& event, bool typing)
{
    // The right Alt key is reported with Control on some layouts and is no shortcut then.
    const bool control = Holds(event.keysym, KMOD_CTRL) && !Holds(event.keysym, KMOD_ALT);
    const bool once = event.repeat == 0;
    const auto wanted = [&](const KeyRow& row) {
        return row.code == event.keysym.sym &&
               (row.when == When::Always || (row.when == When::Once && once) ||
                (row.when == When::NotTyping && once && !typing) || (row.when == When::Control && control) ||
                (row.when == When::Alt && Holds(event.keysym, KMOD_LALT)));
    };
    const auto* const row = std::find_if(std::begin(kKeys), std::end(kKeys), wanted);
    if (row != std::end(kKeys)) {
        return row->key;
    }
    const auto* const digit = std::find(std::begin(kDigitRow), std::end(kDigitRow), event.keysym.scancode);
    if (digit != std::end(kDigitRow) && once && !typing) {
        return static_cast<Key>(static_cast<int>(Key::Digit1) + (digit - std::begin(kDigitRow)));
    }
    return std::nullopt;
}

SDL_SystemCursor SystemCursor(ui::PointerShape shape)
{
    switch (shape) {
    case ui::PointerShape::Hand:
        return SDL_SYSTEM_CURSOR_HAND;
    case ui::PointerShape::Text:
        return SDL_SYSTEM_CURSOR_IBEAM;
    case ui::PointerShape::Arrow:
        break;
    }
    return SDL_SYSTEM_CURSOR_ARROW;
}

// Not one of the keys that have a name only.
bool IsLetter(SDL_Keycode key)
{
    return (key & SDLK_SCANCODE_MASK) == 0 && key > SDLK_SPACE && key != SDLK_DELETE;
}

std::string FromClipboard()
{
    char* text = SDL_GetClipboardText();
    std::string copy = text == nullptr ? "" : text;
    SDL_free(text);
    return copy;
}

}  // namespace

Input::Input(ui::Desktop& desktop, ui::Hands& hands, Painter& painter, Frame& frame)
    : desktop_(desktop)
    , hands_(hands)
    , painter_(painter)
    , frame_(frame)
    , caretAt_([this](const ui::TextBox& box, int x) { return painter_.CaretAt(box, x); })
{
    desktop_.getClipboard = FromClipboard;
    desktop_.setClipboard = [](const std::string& text) { SDL_SetClipboardText(text.c_str()); };
    SDL_StopTextInput();  // SDL starts with it
}

void Input::HandleKey(const SDL_KeyboardEvent& event)
{
    const SDL_Keysym& pressed = event.keysym;
    const bool altReturn = pressed.sym == SDLK_RETURN && Holds(pressed, KMOD_ALT);
    if (pressed.sym == SDLK_F11 || altReturn) {
        if (event.repeat == 0) {
            frame_.ToggleFullScreen();
        }
        return;
    }
    const ui::Modifiers modifiers{.shift = Holds(pressed, KMOD_SHIFT),
                                  .control = Holds(pressed, KMOD_CTRL),
                                  .alt = Holds(pressed, KMOD_ALT)};
    if (pressed.sym == SDLK_INSERT && modifiers.shift) {
        hands_.Press(Key::Paste);
    } else if (pressed.sym == SDLK_DELETE && modifiers.shift) {
        hands_.Press(Key::Cut);
    } else if (const std::optional<Key> key = Find(event, typing_)) {
        hands_.Press(*key, modifiers);
    } else if (IsLetter(pressed.sym) && !typing_ && !modifiers.control && !modifiers.alt) {
        hands_.JumpTo(static_cast<char32_t>(pressed.sym));
    }
}

void Input::HandleMotion(int x, int y)
{
    const Viewport view = frame_.View();
    if (view.Contains(x, y) || pressed_) {  // a selection may be drawn out beyond the picture
        pointer_ = view.ToPicture(x, y);
        hands_.PointerMove(*pointer_, caretAt_);
    } else {
        pointer_.reset();
        hands_.PointerLeave();
    }
}

// Presses in the bars beside the picture are dropped; one that began in the picture ends anywhere.
void Input::HandleButton(const SDL_MouseButtonEvent& event)
{
    const Viewport view = frame_.View();
    const ui::Point at = view.ToPicture(event.x, event.y);
    if (event.button != SDL_BUTTON_LEFT) {
        return;
    }
    if (event.state == SDL_RELEASED) {
        if (pressed_) {
            hands_.PointerUp(at);
        }
        pressed_ = false;
    } else if (view.Contains(event.x, event.y)) {
        pressed_ = true;
        hands_.PointerMove(at, caretAt_);  // a touch comes without having moved there
        hands_.PointerDown(at, event.clicks, (SDL_GetModState() & KMOD_SHIFT) != 0, caretAt_);
    }
}

void Input::Handle(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_MOUSEMOTION:
        HandleMotion(event.motion.x, event.motion.y);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        HandleButton(event.button);
        break;
    case SDL_KEYDOWN:
        HandleKey(event.key);
        break;
    case SDL_TEXTINPUT:
        hands_.EnterText(event.text.text);
        break;
    case SDL_TEXTEDITING:
        hands_.Compose(event.edit.text);
        break;
    case SDL_TEXTEDITING_EXT:
        hands_.Compose(event.editExt.text);
        SDL_free(event.editExt.text);
        break;
    case SDL_WINDOWEVENT:
        HandleWindow(event.window);
        break;
    default:
        break;
    }
}

void Input::HandleWindow(const SDL_WindowEvent& event)
{
    switch (event.event) {
    case SDL_WINDOWEVENT_LEAVE:
        pointer_.reset();
        hands_.PointerLeave();
        break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
        frame_.Renew();
        break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
        frame_.FocusLost();
        break;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        frame_.FocusGained();
        break;
    default:
        break;
    }
}

void Input::Follow()
{
    FollowFocus();
    FollowPointer();
}

void Input::FollowPointer()
{
    const ui::PointerShape shape = pointer_ ? desktop_.ShapeAt(*pointer_) : ui::PointerShape::Arrow;
    if (shape == shape_) {
        return;
    }
    shape_ = shape;
    auto& cursor = cursors_[shape];
    if (!cursor) {
        cursor.reset(SDL_CreateSystemCursor(SystemCursor(shape)));
    }
    SDL_SetCursor(cursor.get());
}

void Input::FollowFocus()
{
    const ui::TextBox* box = desktop_.FocusedTextBox();
    const bool typing = box != nullptr;
    if (typing != typing_) {
        typing_ = typing;
        typing ? SDL_StartTextInput() : SDL_StopTextInput();
    }
    const ui::Rect caret = typing ? painter_.CaretPlace(*box) : ui::Rect{};
    if (typing && caret != caret_) {
        const SDL_Rect place = frame_.View().Cover(caret);
        SDL_SetTextInputRect(&place);
    }
    caret_ = caret;
}

}  // namespace platform
