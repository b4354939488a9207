// Tells what happens on the desktop: what opens, what is reported, where the focus is, what changed.
//
//     Narrator narrator(desktop);
//     narrator.SetVoice(&voice);
//     narrator.Switch(true);               // from now on it listens and speaks; before, it costs nothing
//     narrator.Press(ui::Key::F4);         // the player wants to hear everything that is shown
//
// What the player does interrupts what is being said; what time brings about waits for its turn.
#pragma once

#include "ui/reading/reading.h"
#include "ui/reading/voice.h"
#include "ui/toolkit/desktop.h"

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace reading {

class Narrator {
public:
    explicit Narrator(ui::Desktop& desktop) : desktop_(desktop) {}
    Narrator(const Narrator&) = delete;
    Narrator& operator=(const Narrator&) = delete;

    void SetVoice(Voice* voice) { voice_ = voice; }  // null: nothing is said
    bool On() const { return on_; }
    void Switch(bool on);
    // A key that no control wanted. Returns whether it is one of the narrator's.
    bool Press(ui::Key key);
    // Whether the voice may be offered: it is off and the player was never told of it.
    bool MayOffer() const { return !on_ && !offered; }
    // Says it although off: that there is a voice, and how to have it.
    void Offer();
    // What the player has asked elsewhere, at once.
    void Answer(const std::string& line);
    // There is nobody who could say it: told in print.
    void TellNoVoice() const;

    // How the country stands, in a few lines.
    std::function<std::vector<std::string>()> strip;
    // Prints a message where the game prints its messages.
    std::function<void(std::string_view)> report;
    // It was switched on or off.
    std::function<void(bool)> onSwitched;
    bool offered = false;
    std::function<void()> onOffered;  // to be remembered

    struct Command {
        ui::Key key;
        std::string_view name;  // of the key, as it is said and as the console spells it
        std::string_view pad;   // what does it on a gamepad; empty: nothing
        std::string_view what;
        void (Narrator::*run)();
    };
    static std::span<const Command> Commands();

private:
    // What was said of a screen.
    struct Known {
        Memory memory;
        bool enabled;
    };
    // Where the player reads: a row of a screen, a cell of the row.
    struct Place {
        const ui::Form* form = nullptr;
        std::size_t row = 0;
        std::size_t cell = 0;
    };

    void Notice(ui::Cause cause);
    void NoticeForm(const ui::Form& form, std::vector<std::string>& lines);
    std::optional<std::string> Echo();
    const ui::Form* Front() const;
    void Remember();
    void Say(std::vector<std::string> lines, bool interrupt);
    void SayNow(const std::string& line);

    void Toggle() { Switch(!on_); }
    void Repeat();
    void ReadEverything();
    void ReadStrip();
    void TellKeys();
    void Slower() { ChangeRate(-20, "Slower"); }
    void Faster() { ChangeRate(20, "Faster"); }
    void ChangeRate(int by, std::string_view what);
    void Hush();
    void LineBefore() { MoveLine(false); }
    void LineAfter() { MoveLine(true); }
    void CellLeft() { MoveCell(false); }
    void CellRight() { MoveCell(true); }
    void RowAbove() { MoveRow(false); }
    void RowBelow() { MoveRow(true); }

    void MoveLine(bool forward);
    void MoveCell(bool forward);
    void MoveRow(bool forward);
    bool FindPlace(Page& page);
    void SayPlace(const Page& page);

    ui::Desktop& desktop_;
    Voice* voice_ = nullptr;
    bool on_ = false;
    int rate_ = 0;
    std::map<const ui::Form*, Known> known_;
    const ui::Form* front_ = nullptr;  // the screen that the player can use
    const ui::Control* focus_ = nullptr;
    bool answered_ = false;  // the key that was pressed has had its words
    std::string typed_;      // the focused text box, as last told
    std::size_t caret_ = 0;
    std::vector<std::string> last_;
    Place place_;
};

}  // namespace reading
