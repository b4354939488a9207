// The player's hands at the window, on their way to the desktop.
//
// The desktop takes every press at its word, as it must: whoever asks it by name means what he says. Hands mean
// less than they do. They press twice where once was meant, and type on when the text box has gone. What no
// player can have meant stops here, by rules that hold for every screen:
//
// - The second press of a double click answers nothing that was not there at the first: no other screen than the
//   first did, and no button that has been given another caption.
// - A digit is a command of the menu only by itself, a second after the last typing, and while nothing is asked.
//
// They also look. Half a second after the pointer has come to rest on something, or at once when a key has brought the
// focus there, whoever explains it is told (Desktop::onAttend).
//
// And they need not wait: from its second second on, a press on the ground, Return, Space or Escape ends a pause.
// The player's time passes here too, since pauses last as long as he likes (Desktop::pauses). The order of events
// is that of the virtual clock, which knows full pauses only.
#pragma once

#include "ui/toolkit/desktop.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

class Hands {
public:
    explicit Hands(Desktop& desktop) : desktop_(desktop) {}

    void Press(Key key, Modifiers modifiers = {});
    void EnterText(std::string_view text);
    void Compose(std::string_view text);
    void JumpTo(char32_t letter) { desktop_.JumpTo(letter); }

    // `clicks` is 1 for the first press of a series, 2 for that which makes a double click, and so on.
    void PointerDown(Point at, int clicks = 1, bool shift = false, const Desktop::CaretAt& caretAt = {});
    void PointerUp(Point at);
    void PointerMove(Point at, const Desktop::CaretAt& caretAt = {});
    void PointerLeave();

    // Milliseconds of the player's time: those that pass, and those until something falls due.
    void LetTimePass(std::int64_t milliseconds);
    std::optional<std::int64_t> Patience() const;

private:
    // The screen under the first press of a series, as it was then.
    struct Seen {
        struct Part {
            const Control* control;
            std::string caption;
        };
        const Form* form = nullptr;
        unsigned showings = 0;  // tells it from the same screen with a later question
        std::vector<Part> parts{};
    };

    // The control there that does something, else the front one that is to be seen; null on the bare ground.
    const Control* SeenAt(Point at) const;
    Seen Look(Point at) const;
    bool WasThere(Point at) const;
    void NoteTyping();
    bool CommandsMenu(Modifiers modifiers) const;
    void EndPause();
    void Watch(const Control* control);
    void Rest(std::int64_t milliseconds);
    void LookAgain();
    void Attend(const Control* control, bool asked = false);
    std::optional<std::int64_t> TimersPatience() const;

    Desktop& desktop_;
    Seen seen_;
    const Control* watched_ = nullptr;   // under the pointer
    std::int64_t rested_ = 0;            // on it, in milliseconds
    const Control* attended_ = nullptr;  // as last told
    std::int64_t pauseEnd_ = -1;         // of the pause that runs, on the virtual clock
    std::int64_t waited_ = 0;            // in that pause
    std::int64_t lastTyping_ = std::numeric_limits<std::int64_t>::min() / 2;
};

}  // namespace ui
