#include "support/test_game.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace test {

namespace {

files::ProgramFolder Filled(const TemporaryFolder& folder)
{
    folder.FillWithAssets();
    return files::ProgramFolder(folder.Path());
}

void Fail(Where where, const std::string& message)
{
    ADD_FAILURE_AT(where.file, where.line) << message;
}

// What cannot be found is an error of the test itself: it ends there.
[[noreturn]] void Stop(Where where, const std::string& message)
{
    Fail(where, message);
    throw std::invalid_argument(message);
}

core::Element ElementOf(const std::string& name, Where where)
{
    const std::optional<core::Element> element = core::FindElement(name);
    if (!element) {
        Stop(where, "the record has no " + name);
    }
    return *element;
}

}  // namespace

// The record ------------------------------------------------------------------------------------------------

std::string Show(const core::Value& value)
{
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    if (const auto* fraction = std::get_if<float>(&value)) {
        return testing::PrintToString(*fraction);
    }
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? "nothing" : '"' + *text + '"';
}

void SetFields(core::GameState& state, const FieldValues& values, Where where)
{
    for (const auto& [name, value] : values) {
        if (const auto expected = ElementOf(name, where).Set(state, value)) {
            Stop(where, name + " takes " + *expected + ", not " + Show(value));
        }
    }
}

void ExpectFields(const core::GameState& state, const FieldValues& values, Where where)
{
    for (const auto& [name, value] : values) {
        const core::Value found = ElementOf(name, where).Get(state);
        if (found != value) {
            Fail(where, name + ": expected " + Show(value) + ", found " + Show(found));
        }
    }
}

std::vector<std::string> Changed(const core::GameState& before, const core::GameState& after)
{
    std::vector<std::string> names;
    for (const core::Element& element : core::AllElements()) {
        if (element.Get(before) != element.Get(after)) {
            names.push_back(element.Name());
        }
    }
    return names;
}

// The game --------------------------------------------------------------------------------------------------

TestGame::TestGame() : game(host, Filled(folder), core::Chance(), core::NumberFormat{})
{
    game.GetChance().onDraw = [this](const core::Chance::Drawn& drawn) { drawn_.push_back(drawn); };
    game.Start();
}

TestGame::TestGame(files::ProgramFolder programFolder)
    : game(host, std::move(programFolder), core::Chance(), core::NumberFormat{})
{
    game.GetChance().onDraw = [this](const core::Chance::Drawn& drawn) { drawn_.push_back(drawn); };
    game.Start();
}

void TestGame::StartGame(core::Level level, std::string_view name, Where where)
{
    Click("frmlogo", where);
    while (State().Difficulty != level) {
        Click("frmStart.Command2", where);
    }
    Click("frmStart.Command1", where);
    Type("frmName.Text1", name, where);
    Click("frmName.Command3", where);
    TakeSounds();
    TakeDrawn();
}

ui::Control* TestGame::Find(std::string_view control, Where where)
{
    ui::Control* found = Desktop().FindControl(control);
    if (found == nullptr && Desktop().FindForm(control) == nullptr) {
        Stop(where, "there is no " + std::string(control));
    }
    return found;
}

ui::Control& TestGame::Control(std::string_view name, Where where)
{
    ui::Control* control = Find(name, where);
    if (control == nullptr) {
        Stop(where, std::string(name) + " is a screen, not a control");
    }
    return *control;
}

ui::Form& TestGame::Form(std::string_view name, Where where)
{
    ui::Form* form = Desktop().FindForm(name);
    if (form == nullptr) {
        Stop(where, "there is no screen " + std::string(name));
    }
    return *form;
}

ui::Refusal TestGame::TryClick(std::string_view control, Where where)
{
    ui::Control* found = Find(control, where);
    return found != nullptr ? Desktop().Click(*found) : Desktop().Click(Form(control, where));
}

void TestGame::Click(std::string_view control, Where where)
{
    if (const ui::Refusal refusal = TryClick(control, where)) {
        Fail(where, "the click is refused: " + *refusal);
    }
}

std::string TestGame::ClickRefused(std::string_view control, Where where)
{
    return TryClick(control, where).value_or("");
}

void TestGame::Hover(std::string_view control, Where where)
{
    if (const ui::Refusal refusal = Desktop().Hover(Control(control, where))) {
        Fail(where, "the pointer is refused: " + *refusal);
    }
}

void TestGame::Type(std::string_view textBox, std::string_view text, Where where)
{
    auto* box = dynamic_cast<ui::TextBox*>(&Control(textBox, where));
    if (box == nullptr) {
        Stop(where, std::string(textBox) + " is no text box");
    }
    if (const ui::Refusal refusal = Desktop().Type(*box, text)) {
        Fail(where, "the text is refused: " + *refusal);
    }
}

void TestGame::Call(std::string_view routine, Where where)
{
    const std::function<void()>* found = game.FindRoutine(routine);
    if (found == nullptr) {
        Stop(where, "there is no routine " + std::string(routine));
    }
    Desktop().Dispatch(*found);
}

std::string TestGame::Text(std::string_view control, Where where)
{
    return Control(control, where).Text();
}

bool TestGame::Visible(std::string_view control, Where where)
{
    return Control(control, where).Now().visible;
}

bool TestGame::Shown(std::string_view form, Where where)
{
    return Form(form, where).Visible();
}

std::vector<std::string> TestGame::Front()
{
    std::vector<std::string> names;
    std::transform(Desktop().Shown().rbegin(), Desktop().Shown().rend(), std::back_inserter(names),
                   [](const ui::Form* form) { return form->Name(); });
    return names;
}

void TestGame::Tell(std::initializer_list<double> draws)
{
    for (const double r : draws) {
        game.GetChance().Tell(r);
    }
}

}  // namespace test
