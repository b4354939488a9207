#include "ui/reading/narrator.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace reading {

namespace {

constexpr int kFastest = 100;

void Append(std::vector<std::string>& lines, std::vector<std::string> more)
{
    std::move(more.begin(), more.end(), std::back_inserter(lines));
}

// A single blank is best said by its name.
std::string Letters(std::string_view text)
{
    return text == " " ? "blank" : std::string(text);
}

// What is said of a control that is no button in a row of a table.
std::vector<const Cell*> CellsOf(const Row& row)
{
    std::vector<const Cell*> cells;
    for (const Cell& cell : row.cells) {
        if (cell.control == nullptr || cell.control->GetKind() != ui::Control::Kind::CommandButton ||
            row.cells.size() == 1) {
            cells.push_back(&cell);
        }
    }
    return cells;
}

}  // namespace

std::span<const Narrator::Command> Narrator::Commands()
{
    using ui::Key;
    // clang-format off
    static constexpr Command kCommands[] = {
        {Key::F2,       "F2",        "the left stick pressed", "narration on and off",             &Narrator::Toggle},
        {Key::F3,       "F3",        "X",                      "what was said last, again",        &Narrator::Repeat},
        {Key::F4,       "F4",        "the right trigger",      "everything that is shown",         &Narrator::ReadEverything},
        {Key::F5,       "F5",        "Back",                   "how the country stands",           &Narrator::ReadStrip},
        {Key::F6,       "F6",        "the right stick pressed", "these keys",                      &Narrator::TellKeys},
        {Key::F7,       "F7",        "",                       "slower",                           &Narrator::Slower},
        {Key::F8,       "F8",        "",                       "faster",                           &Narrator::Faster},
        {Key::F9,       "F9",        "the left trigger",       "silence",                          &Narrator::Hush},
        {Key::PageUp,   "PageUp",    "the right stick up",     "the line before",                  &Narrator::LineBefore},
        {Key::PageDown, "PageDown",  "the right stick down",   "the next line",                    &Narrator::LineAfter},
        {Key::AltLeft,  "AltLeft",   "the right stick left",   "the figure to the left",           &Narrator::CellLeft},
        {Key::AltRight, "AltRight",  "the right stick right",  "the figure to the right, exactly", &Narrator::CellRight},
        {Key::AltUp,    "AltUp",     "",                       "the same figure one row up",       &Narrator::RowAbove},
        {Key::AltDown,  "AltDown",   "",                       "the same figure one row down",     &Narrator::RowBelow},
    };
    // clang-format on
    return kCommands;
}

bool Narrator::Press(ui::Key key)
{
    const std::span<const Command> commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [key](const Command& each) { return each.key == key; });
    if (command == commands.end()) {
        return false;
    }
    answered_ = true;
    if (on_ || key == ui::Key::F2) {
        (this->*command->run)();
    }
    return true;
}

void Narrator::Switch(bool on)
{
    if (on == on_) {
        return;
    }
    on_ = on;
    if (onSwitched) {
        onSwitched(on);
    }
    if (!on) {
        desktop_.onSettled = {};
        known_.clear();
        Say({"Narration is off."}, true);
        return;
    }
    desktop_.Refresh();
    std::vector<std::string> lines{"Narration is on. F2 turns it off again, F6 tells all its keys."};
    for (auto form = desktop_.Shown().rbegin(); form != desktop_.Shown().rend(); ++form) {
        Append(lines, Summary(Read(**form)));
    }
    Remember();
    if (focus_ != nullptr) {
        Append(lines, Lines(FocusLine(*focus_)));
    }
    Say(std::move(lines), true);
    desktop_.onSettled = [this](ui::Cause cause) { Notice(cause); };
}

void Narrator::Offer()
{
    if (!MayOffer()) {
        return;
    }
    Say({"This game can speak by itself. Press F2 to be governed by ear."}, false);
    offered = true;
    if (onOffered) {
        onOffered();
    }
}

void Narrator::TellNoVoice() const
{
    if (report) {
        report("Mr.President, this machine has no voice: Speech Dispatcher does not answer. What was to be "
               "said can "
               "still be read.");
    }
}

void Narrator::Say(std::vector<std::string> lines, bool interrupt)
{
    if (lines.empty()) {
        return;
    }
    answered_ = true;
    if (voice_ != nullptr) {
        voice_->Say(lines, interrupt);
    }
    last_ = std::move(lines);
}

void Narrator::SayNow(const std::string& line)
{
    Say(Lines(line), true);
}

void Narrator::Answer(const std::string& line)
{
    if (on_) {
        SayNow(line);
    }
}

// What happens ------------------------------------------------------------------------------------------------

void Narrator::Remember()
{
    known_.clear();
    for (const ui::Form* form : desktop_.Shown()) {
        known_.emplace(form, Known{Memory(Read(*form)), form->Enabled()});
    }
    front_ = Front();
    focus_ = desktop_.Focused();
    const ui::TextBox* box = desktop_.FocusedTextBox();
    typed_ = box == nullptr ? "" : box->Text();
    caret_ = box == nullptr ? 0 : box->Edit().Caret();
}

void Narrator::NoticeForm(const ui::Form& form, std::vector<std::string>& lines)
{
    const Page page = Read(form);
    const auto known = known_.find(&form);
    if (known == known_.end()) {
        Append(lines, Summary(page));
        return;
    }
    std::vector<std::string> news = known->second.memory.News(page);
    if (const ui::TextBox* box = desktop_.FocusedTextBox(); box != nullptr && box == focus_) {
        const Row* row = page.Find(*box);  // what is typed there is echoed
        const std::string line = row == nullptr ? "" : Line(*row);
        std::erase_if(news, [&line](const std::string& each) { return line.starts_with(each); });
    }
    Append(lines, std::move(news));
    if (form.Enabled() && !known->second.enabled) {
        Append(lines, Lines(Sentence(page.title + " answers again")));
    }
}

// What was typed or deleted in the focused text box, or the letter that the caret came to.
std::optional<std::string> Narrator::Echo()
{
    const ui::TextBox* box = desktop_.FocusedTextBox();
    if (box == nullptr || box != focus_) {
        return std::nullopt;
    }
    const std::string& now = box->Text();
    const std::size_t caret = box->Edit().Caret();
    if (now == typed_) {
        if (caret == caret_) {
            return std::nullopt;
        }
        return caret == now.size() ? "end" : Letters(now.substr(caret, box->Edit().Next(caret) - caret));
    }
    const auto same = static_cast<std::size_t>(
        std::mismatch(now.begin(), now.end(), typed_.begin(), typed_.end()).first - now.begin());
    std::size_t tail = 0;
    while (tail < now.size() - same && tail < typed_.size() - same &&
           now[now.size() - 1 - tail] == typed_[typed_.size() - 1 - tail]) {
        ++tail;
    }
    const std::string added = now.substr(same, now.size() - same - tail);
    return added.empty() ? "deleted " + Letters(typed_.substr(same, typed_.size() - same - tail))
                         : Letters(added);
}

void Narrator::Notice(ui::Cause cause)
{
    desktop_.Refresh();  // own screens wait for who looks
    std::vector<std::string> lines;
    for (const ui::Form* form :
         desktop_.Shown()) {  // the banner first; the desk's edge is read when asked for
        if (!form->GetDesign().fixture) {
            NoticeForm(*form, lines);
        }
    }
    if (const std::optional<std::string> echo = Echo()) {
        Append(lines, Lines(*echo));
    }
    if (const ui::Form* front = Front(); lines.empty() && front != nullptr && front != front_) {
        Append(lines, Lines(Sentence(Read(*front).title)));  // what stood before it has gone
    }
    const ui::Control* focus = desktop_.Focused();
    if (focus != nullptr && focus != focus_) {
        const std::string line = FocusLine(*focus);
        if (lines.empty() || lines.back() != line) {
            Append(lines, Lines(line));
        }
    }
    Remember();
    Say(std::move(lines), cause != ui::Cause::Time);
    answered_ = answered_ && cause != ui::Cause::Time;  // that was no answer to a key
    if (cause == ui::Cause::Key && !std::exchange(answered_, false)) {
        std::vector<std::string> nothing{"Nothing happens."};
        if (focus != nullptr) {
            Append(nothing, Lines(FocusLine(*focus)));
        }
        Say(std::move(nothing), true);
        answered_ = false;
    }
}

const ui::Form* Narrator::Front() const
{
    const std::vector<ui::Form*>& shown = desktop_.Shown();
    const auto front = std::find_if(shown.rbegin(), shown.rend(), [](const ui::Form* form) {
        return form->Enabled() && !form->GetDesign().backdrop && !form->GetDesign().fixture;
    });
    return front == shown.rend() ? nullptr : *front;
}

// What the player asks for ------------------------------------------------------------------------------------

void Narrator::Repeat()
{
    Say(last_, true);
}

void Narrator::ReadEverything()
{
    Say(ReadAll(desktop_), true);
}

void Narrator::ReadStrip()
{
    std::vector<std::string> lines = strip ? strip() : std::vector<std::string>();
    if (lines.empty()) {
        lines = {"No country yet."};
    }
    Say(std::move(lines), true);
}

void Narrator::TellKeys()
{
    std::vector<std::string> lines{
        "Tab and the arrows move, Return or Space press, Escape cancels.",
        "1 to 6 are the commands of the menu, F1 opens the manual.",
        "On a gamepad the cross moves, A presses, B cancels, the shoulders walk along the menu.",
    };
    for (const Command& command : Commands()) {
        std::string name(command.name);
        for (const std::string_view prefix : {"Alt", "Page"}) {
            if (name.starts_with(prefix)) {
                name.insert(prefix.size(), " ");
            }
        }
        if (!command.pad.empty()) {
            name += ", on a gamepad " + std::string(command.pad);
        }
        lines.push_back(Sentence(name + ": " + std::string(command.what)));
    }
    Say(std::move(lines), true);
}

void Narrator::ChangeRate(int by, std::string_view what)
{
    const int rate = std::clamp(rate_ + by, -kFastest, kFastest);
    const bool changed = std::exchange(rate_, rate) != rate;
    if (voice_ != nullptr) {
        voice_->SetRate(rate_);
    }
    SayNow(changed ? Sentence(std::string(what)) : "That is all the voice can do.");
}

void Narrator::Hush()
{
    if (voice_ != nullptr) {
        voice_->Silence();
    }
}

// Where the player reads --------------------------------------------------------------------------------------

// Reads the screen of the place. False when the place is new: on a screen that has come to the front.
bool Narrator::FindPlace(Page& page)
{
    const ui::Form* front = desktop_.Shown().empty() ? nullptr : desktop_.Shown().back();
    const bool shown =
        place_.form != nullptr && place_.form->Visible() && known_.contains(front) && place_.form == front;
    if (shown) {
        page = Read(*place_.form);
        if (place_.row < page.rows.size()) {
            return true;
        }
    }
    place_ = {front, 0, 0};
    page = front == nullptr ? Page{} : Read(*front);
    if (const ui::Control* focus = desktop_.Focused(); focus != nullptr) {
        if (const Row* row = page.Find(*focus)) {
            place_.row = row->number == 0 ? 0 : static_cast<std::size_t>(row - page.rows.data());
        }
    }
    return false;
}

void Narrator::SayPlace(const Page& page)
{
    if (place_.row >= page.rows.size()) {
        SayNow("There is nothing to read.");
        return;
    }
    const Row& row = page.rows[place_.row];
    const std::string place = PlaceOf(row);
    SayNow(Line(row) + (place.empty() ? "" : " " + place + "."));
}

void Narrator::MoveLine(bool forward)
{
    Page page;
    if (!FindPlace(page)) {
        place_.row = forward || page.rows.empty() ? 0 : page.rows.size() - 1;
        SayPlace(page);
        return;
    }
    place_.cell = 0;
    if (forward ? place_.row + 1 >= page.rows.size() : place_.row == 0) {
        SayNow(forward ? "That is the last line." : "That is the first line.");
        return;
    }
    place_.row = forward ? place_.row + 1 : place_.row - 1;
    SayPlace(page);
}

void Narrator::MoveCell(bool forward)
{
    Page page;
    const bool known = FindPlace(page);
    if (page.rows.empty()) {
        SayPlace(page);
        return;
    }
    const Row& row = page.rows[place_.row];
    const std::vector<const Cell*> cells = CellsOf(row);
    if (known && (forward ? place_.cell + 1 >= cells.size() : place_.cell == 0)) {
        SayNow(forward ? "That is the last figure of the row." : "That is the row's name.");
        return;
    }
    if (known) {
        place_.cell = forward ? place_.cell + 1 : place_.cell - 1;
    }
    place_.cell = std::min(place_.cell, cells.size() - 1);
    SayNow(SaidCell(row, *cells[place_.cell]));
}

void Narrator::MoveRow(bool forward)
{
    Page page;
    const bool known = FindPlace(page);
    if (page.rows.empty() || (known && (forward ? place_.row + 1 >= page.rows.size() : place_.row == 0))) {
        SayNow(forward ? "That is the last row." : "That is the first row.");
        return;
    }
    if (known) {
        place_.row = forward ? place_.row + 1 : place_.row - 1;
    }
    const Row& row = page.rows[place_.row];
    const std::vector<const Cell*> cells = CellsOf(row);
    SayNow(SaidCell(row, *cells[std::min(place_.cell, cells.size() - 1)]));
}

}  // namespace reading
