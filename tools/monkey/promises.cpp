#include "monkey/promises.h"

#include "core/society.h"

#include <algorithm>

namespace monkey {

namespace {

// A month whose story needs more events than this of somebody who presses everything has no end.
constexpr int kLongestMonth = 5000;

bool Answers(const ui::Form& form)
{
    const std::vector<ui::Control*>& controls = form.Controls();
    return form.onClick || std::any_of(controls.begin(), controls.end(), [](const ui::Control* control) {
               return control->onClick && control->Now().visible && control->Now().enabled;
           });
}

// Whether the game's own screens wait for the player; `but` does not count.
bool WaitsForPlayer(const ui::Desktop& desktop, const ui::Form* but)
{
    return std::any_of(desktop.Shown().begin(), desktop.Shown().end(), [&](const ui::Form* form) {
        return form != but && !form->GetDesign().own && desktop.TakesInput(*form) && Answers(*form);
    });
}

std::string Names(const ui::Desktop& desktop)
{
    std::string names;
    for (const ui::Form* form : desktop.Shown()) {
        names += (names.empty() ? "" : ", ") + form->Name();
    }
    return names;
}

}  // namespace

std::optional<std::string> Promises::Broken(Game& game)
{
    const ui::Desktop& desktop = game.GetDesktop();
    const bool pause = desktop.NextDue().has_value();
    if (!pause && !WaitsForPlayer(desktop, nullptr)) {
        return "something always answers: no control and no timer does on " + Names(desktop);
    }
    const auto modal = std::count_if(desktop.Shown().begin(), desktop.Shown().end(),
                                     [](const ui::Form* f) { return f->Modal(); });
    if (modal > 1) {
        return "one modal screen at most: " + std::to_string(modal) + " of " + Names(desktop);
    }
    if (game.GetMonth().IsOpen() && !pause && !WaitsForPlayer(desktop, &game.GetScreens().frmMain)) {
        return "an open month has somebody who closes it: only the menu answers on " + Names(desktop);
    }
    if (auto broken = MonthClosesAtLast(game)) {
        return broken;
    }
    return NumbersAgree(game);
}

std::optional<std::string> Promises::MonthClosesAtLast(Game& game)
{
    openFor_ = game.GetMonth().IsOpen() ? openFor_ + 1 : 0;
    if (openFor_ > kLongestMonth) {
        return "a month comes to its end: open for " + std::to_string(openFor_) + " events on " +
               Names(game.GetDesktop());
    }
    return std::nullopt;
}

// A month that has just been counted ends with FixNum: floors, sum and shares are as it would make them again. A game
// that was just loaded is as its file says.
std::optional<std::string> Promises::NumbersAgree(Game& game)
{
    const core::GameState& state = game.State();
    const std::int64_t before = std::exchange(months_, state.MonthsInPower);
    if (state.MonthsInPower != before + 1 || openFor_ != 1) {
        return std::nullopt;
    }
    core::GameState fixed = state;
    core::FixNum(fixed);
    for (const std::string_view name : {"Strength", "TotalStrength", "StrengthPct"}) {
        const core::Field* field = core::FindField(name);
        for (const core::Element& element : core::AllElements()) {
            if (element.field == field && element.Get(state) != element.Get(fixed)) {
                return "strengths at their floors, totals and shares agree: not so " + element.Name();
            }
        }
    }
    return std::nullopt;
}

}  // namespace monkey
