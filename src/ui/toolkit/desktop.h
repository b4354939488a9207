// The desktop: which screens are shown, in which order, where the focus is, and what time it is.
//
//     ui::Desktop desktop;
//     FrmName name(desktop);
//     name.ShowModal();
//     desktop.Type(name.Text1, "Ada");
//     desktop.Click(name.Command3);        // nullopt: done; else the reason of the refusal
//     desktop.Advance(3000);               // three seconds pass; timers fire in due order
//
// A front end feeds it the pointer, keys and time, and repaints TakeDirty() when that is not empty.
// Nothing here blocks, sleeps or reads a clock.
#pragma once

#include "ui/toolkit/eye.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/stage.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

enum class Key : std::uint8_t {
    Return,
    Escape,
    Tab,
    Space,
    Up,
    Down,
    Left,
    Right,
    Home,
    End,
    Backspace,
    Delete,
    F1,
    Digit1,
    Digit2,
    Digit3,
    Digit4,
    Digit5,
    Digit6,
    SelectAll,
    Copy,
    Cut,
    Paste,
    // For the voice; no control wants them.
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    PageUp,
    PageDown,
    AltUp,
    AltDown,
    AltLeft,
    AltRight,
    PreviousCommand,  // a gamepad's: along the menu, to the options, and for a hint
    NextCommand,
    Options,
    Hint,
};

// What the pointer looks like over a place, so that one sees what can be pressed.
enum class PointerShape : std::uint8_t { Arrow, Hand, Text };

// How long a pause lasts for a player at the window.
enum class Pauses : std::uint8_t {
    Full,
    Short,    // a third
    ByClick,  // until he ends it
};

struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
};

// Who brought something about: the player, or a timer. Key: what a pressed key did is told, and the key is done.
enum class Cause : std::uint8_t { Player, Key, Time };

// Why the player cannot do that now; none when it was done.
using Refusal = std::optional<std::string>;

class Desktop final : public Stage {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    // Screens -------------------------------------------------------------------------------------
    const std::vector<Form*>& Forms() const { return forms_; }  // all that exist
    const std::vector<Form*>& Shown() const { return shown_; }  // back to front
    const Form* Note() const { return note_; }                  // in front of them all, or null
    Form* FindForm(std::string_view name) const;
    Control* FindControl(std::string_view name) const;      // "frmMain.Label5(4)"; null when there is none
    bool TakesInput(const Form& form) const;                // shown, enabled, and behind no modal screen
    Form* ModalForm() const;                                // the front modal one, or null
    Form* FormAt(Point at) const;                           // the front one there, or null
    static Control* ControlAt(const Form& form, Point at);  // that does something there, enabled or not

    // What a player does, by name. The rules are those of the pointer: the screen must be shown and
    // enabled, no other screen modal, the control visible and enabled.
    Refusal Click(Form& form);
    Refusal Click(Control& control);
    Refusal Hover(Form& form);
    Refusal Hover(Control& control);
    Refusal Type(TextBox& box, std::string_view text);  // replaces the text
    void Press(Key key, Modifiers modifiers = {});
    void EnterText(std::string_view text);  // into the focused text box, if any
    void Compose(std::string_view text);

    // The pointer, in picture space. CaretAt tells which offset of a box's text lies under x.
    using CaretAt = std::function<std::size_t(const TextBox&, int x)>;
    void PointerMove(Point at, const CaretAt& caretAt = {});
    void PointerDown(Point at, int clicks = 1, bool shift = false, const CaretAt& caretAt = {});
    void PointerUp(Point at);
    void PointerLeave();

    Control* Focused() const;
    bool ShowsFocus() const { return keyboardUsed_; }  // the ring appears with a key, and goes with a click
    void SetFocus(Control* control);
    void FocusByKey(Control& control);  // and lights it up, as the pointer would
    TextBox* FocusedTextBox() const;
    const Control* Hovered() const { return hovered_; }
    const Control* Pressed() const { return pressed_; }

    // Before each click and key of the player is looked at.
    std::function<void()> onInput;
    // To the next button of the front screen whose caption begins with that letter.
    void JumpTo(char32_t letter);
    PointerShape ShapeAt(Point at) const;

    // Keys that no control wanted (F1, the menu's digits). Returns whether it was used.
    std::function<bool(Key)> onKey;
    // The player looks at a control: the pointer rests on it, or the focus has come to it by a key. Null: no more.
    // `asked`: he has pressed the key for it.
    std::function<void(const Control*, bool asked)> onAttend;
    // The player has pressed a screen that does not take it: why not, is to be told.
    std::function<void(const Form&)> onRefused;
    // After everything that happened, when all that it left to do is done: for who tells what is shown. Only reads.
    std::function<void(Cause)> onSettled;

    // The clipboard of the system; without a front end texts are copied into an own one.
    std::function<std::string()> getClipboard;
    std::function<void(const std::string&)> setClipboard;

    // Time ----------------------------------------------------------------------------------------
    std::int64_t Now() const override { return now_; }  // milliseconds since the start
    void Advance(std::int64_t milliseconds);
    std::optional<std::int64_t> NextDue() const;  // of the next armed timer
    // The end of the pause that runs: a timer is armed, and no screen takes input until it fires.
    std::optional<std::int64_t> PauseEnd() const;
    bool SkipPause();  // until the next armed timer has fired; false when there is none
    Pauses pauses = Pauses::Full;

    // Own screens follow the record only when somebody is about to look: a front end calls Refresh before it
    // paints or lists, and nothing is computed while nothing happened. Who changes the record from outside says so.
    std::function<void()> onRefresh;
    void Refresh();
    void Touch() { stale_ = true; }
    // How often the player has used a screen that is not an own one.
    std::uint64_t Uses() const { return uses_; }

    // Runs a routine as an event: what modal screens left to do afterwards is done before it returns.
    void Dispatch(const std::function<void()>& event);

    // Painting ------------------------------------------------------------------------------------
    void MarkDirty(const Rect& rect) override
    {
        dirty_ = Union(dirty_, Intersection(rect, kSpace));
        stale_ = true;
    }
    bool Dirty() const { return !dirty_.Empty(); }
    Rect TakeDirty();

private:
    void Add(Form& form) override { forms_.push_back(&form); }
    void Add(Timer& timer) override { timers_.push_back(&timer); }
    void BringToFront(Form& form) override;
    void Remove(Form& form) override;
    void AfterEvent(std::function<void()> action) override { pending_.push_back(std::move(action)); }

    void Settle();
    void Tell(Cause cause) const;
    Timer* NextTimer() const;

    Refusal Refused(const Form& form) const;
    Refusal Refused(const Control& control) const;
    Form* FrontForm() const;
    void Run(Control& control);
    void NoteInput() const;
    void Use(const Form& form);
    void PutOwnAway();
    void SetHovered(Control* control);
    void SetPressed(Control* control);
    void SetKeyboardUsed(bool used);

    std::vector<Control*> TabRing() const;
    void PressKey(Key key, Modifiers modifiers);
    void MoveFocus(bool forward);
    void MoveTowards(Direction direction);
    Control* WhereItCameFrom(const Form* form) const;
    bool PressInTextBox(TextBox& box, Key key, Modifiers modifiers);
    bool PressOnFocus(Key key);
    bool PressOnForm(Key key);
    std::string Clipboard() const;

    std::vector<Form*> forms_;
    std::vector<Timer*> timers_;  // of all forms
    std::vector<Form*> shown_;
    Form* note_ = nullptr;
    std::vector<std::function<void()>> pending_;
    int depth_ = 0;
    Cause cause_ = Cause::Player;
    Control* focus_ = nullptr;
    Control* lastFocus_ = nullptr;              // before its screen went
    std::map<const Form*, Control*> cameFrom_;  // the focus before a screen was shown
    Control* hovered_ = nullptr;
    Control* pressed_ = nullptr;
    Form* pressedForm_ = nullptr;
    bool keyboardUsed_ = false;
    bool stale_ = true;
    std::uint64_t uses_ = 0;
    std::int64_t now_ = 0;
    Rect dirty_ = kSpace;
    std::string ownClipboard_;
};

}  // namespace ui
