#include "monkey/monkey.h"

#include "monkey/damage.h"

#include <algorithm>
#include <array>

namespace monkey {

namespace {

// What ends the program, or leaves the game for another.
constexpr std::array<std::string_view, 4> kWaysOut{"frmStart.Command3", "frmStart.Command4",
                                                   "frmStart.cmdContinue", "frmMain.Label5(5)"};

std::string NameOf(const ui::Control& control)
{
    return control.GetForm().Name() + "." + control.Name();
}

std::vector<std::string> WhatAnswers(const ui::Desktop& desktop, bool textBoxes)
{
    std::vector<std::string> names;
    for (const ui::Form* form : desktop.Shown()) {
        if (!desktop.TakesInput(*form)) {
            continue;
        }
        if (form->onClick && !textBoxes) {
            names.push_back(form->Name());
        }
        for (const ui::Control* control : form->Controls()) {
            const bool answers = textBoxes ? control->GetKind() == ui::Control::Kind::TextBox
                                           : static_cast<bool>(control->onClick);
            if (answers && control->Now().visible && control->Now().enabled) {
                names.push_back(NameOf(*control));
            }
        }
    }
    return names;
}

}  // namespace

std::size_t Monkey::Pick(std::size_t count)
{
    return static_cast<std::size_t>(dice_.Draw(static_cast<double>(count), 0));
}

std::string Monkey::Plan(const std::vector<std::string>& lines)
{
    planned_.insert(planned_.end(), lines.begin() + 1, lines.end());
    return lines.front();
}

void Monkey::Begin(std::uint64_t seed)
{
    planned_ = {"start", "seed " + std::to_string(seed), "autosave on", "click frmlogo"};
}

std::string Monkey::Next(Game* game, bool ended)
{
    struct Habit {
        std::size_t weight;
        std::string (Monkey::*line)(Game&);
    };
    // clang-format off
    static constexpr std::array kEverything{
        Habit{560, &Monkey::ClickOnWhatAnswers}, Habit{160, &Monkey::Wait},   Habit{120, &Monkey::PressKey},
        Habit{ 45, &Monkey::NextMonth},          Habit{ 30, &Monkey::Hover},  Habit{ 30, &Monkey::Type},
        Habit{ 30, &Monkey::ClickAnywhere},      Habit{  8, &Monkey::Load},   Habit{  8, &Monkey::Spoil},
        Habit{  6, &Monkey::Save},               Habit{  2, &Monkey::Switch}, Habit{  1, &Monkey::Paint},
        Habit{  1, &Monkey::StartAgain},
    };
    static constexpr std::array kGoverns{
        Habit{550, &Monkey::Govern}, Habit{300, &Monkey::Wait}, Habit{150, &Monkey::NextMonth},
    };
    // clang-format on
    const std::span<const Habit> habits =
        habits_ == Habits::Everything ? std::span<const Habit>(kEverything) : kGoverns;
    if (planned_.empty() && (game == nullptr || ended)) {
        Begin(Pick(1'000'000));
    }
    if (!planned_.empty()) {
        std::string line = planned_.front();
        planned_.pop_front();
        return line;
    }
    std::size_t sum = 0;
    for (const Habit& habit : habits) {
        sum += habit.weight;
    }
    std::size_t left = Pick(sum);
    const Habit* chosen = habits.data();
    while (left >= chosen->weight) {
        left -= chosen->weight;
        ++chosen;
    }
    return (this->*chosen->line)(*game);
}

std::string Monkey::ClickOnWhatAnswers(Game& game)
{
    const std::vector<std::string> names = WhatAnswers(game.GetDesktop(), false);
    return names.empty() ? Wait(game) : "click " + OneOf(names);
}

std::string Monkey::ClickAnywhere(Game& game)
{
    const ui::Form& form = *OneOf(game.GetDesktop().Forms());
    return "click " + (form.Controls().empty() ? form.Name() : NameOf(*OneOf(form.Controls())));
}

std::string Monkey::Hover(Game& game)
{
    std::string line = ClickAnywhere(game);
    line.replace(0, std::string_view("click").size(), "hover");
    return line;
}

// Names that are empty, too long, in quotes, from right to left, with marks that join and with bytes that end lines.
std::string Monkey::Type(Game& game)
{
    static const std::string kLong(300, 'W');
    static const std::array<std::string, 8> kTexts{R"("")",
                                                   R"("Ada")",
                                                   '"' + kLong + '"',
                                                   R"("a\"b,c\r\n\"d")",
                                                   R"("\u202e\u05d0\u05d1")",
                                                   R"("e\u0301\u200d\u0301")",
                                                   R"("\ud83d\udc51\u0000\u0007")",
                                                   R"("-99999999999999999999")"};
    const std::vector<std::string> boxes = WhatAnswers(game.GetDesktop(), true);
    return boxes.empty() ? PressKey(game) : "type " + OneOf(boxes) + " " + OneOf(kTexts);
}

std::string Monkey::PressKey(Game& /*game*/)
{
    static constexpr std::array<std::string_view, 15> kKeys{"Return", "Return", "Escape", "Tab",  "Tab",
                                                            "Space",  "Up",     "Down",   "Left", "Right",
                                                            "F1",     "1",      "2",      "4",    "5"};
    const auto commands = reading::Narrator::Commands();
    const std::size_t key = Pick(kKeys.size() + commands.size());
    return "key " + std::string(key < kKeys.size() ? kKeys[key] : commands[key - kKeys.size()].name);
}

std::string Monkey::Wait(Game& game)
{
    constexpr std::array kLengths{1, 40, 700, 3000, 6000};
    return game.GetDesktop().NextDue() && Pick(3) == 0 ? "skip" : "wait " + std::to_string(OneOf(kLengths));
}

std::string Monkey::NextMonth(Game& /*game*/)
{
    return Plan({"click frmMain.Label5(4)", "wait 3000"});
}

std::string Monkey::Govern(Game& game)
{
    std::vector<std::string> names = WhatAnswers(game.GetDesktop(), false);
    std::erase_if(names, [](const std::string& name) {
        return std::find(kWaysOut.begin(), kWaysOut.end(), name) != kWaysOut.end();
    });
    return names.empty() ? Wait(game) : "click " + OneOf(names);
}

std::string Monkey::Save(Game& /*game*/)
{
    const std::string slot = std::to_string(1 + Pick(5));
    return Plan({"click frmMain.Label5(5)", "click frmOptions.Label5(6)", "click frmSave.Option" + slot,
                 "click frmSave.Command1", "click frmSave.Command1"});
}

// From the menu or from the start, whichever stands open.
std::string Monkey::Load(Game& /*game*/)
{
    const std::string slot = std::to_string(1 + Pick(5));
    std::vector<std::string> lines{"click frmMain.Label5(5)", "click frmOptions.Label5(7)",
                                   "click frmStart.Command4", "click frmLoad.Option" + slot,
                                   "click frmLoad.Command1",  "click frmLoad.Command1"};
    if (Pick(4) == 0) {
        lines.insert(lines.begin(), "# damage Save/Save" + slot + " " + std::to_string(Pick(1'000'000)));
    }
    return Plan(lines);
}

std::string Monkey::Spoil(Game& /*game*/)
{
    return "# damage " + std::string(OneOf(WrittenFiles())) + " " + std::to_string(Pick(1'000'000));
}

std::string Monkey::Paint(Game& /*game*/)
{
    constexpr std::array<std::string_view, 5> kSizes{"800 600", "1 1", "333 801", "1280 720", "1600 40"};
    return R"(shot "/dev/null" )" + std::string(OneOf(kSizes));
}

std::string Monkey::Switch(Game& /*game*/)
{
    constexpr std::array<std::string_view, 5> kSwitches{"narration on", "narration off", "autosave on",
                                                        "variants on", "read"};
    return std::string(OneOf(kSwitches));
}

std::string Monkey::StartAgain(Game& /*game*/)
{
    Begin(Pick(1'000'000));
    return Plan({"# here the program is started anew"});
}

}  // namespace monkey
