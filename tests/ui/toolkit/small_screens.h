// Small screens for the tests of the toolkit: a menu bar behind, a sheet in front, a question.
#pragma once

#include "ui/toolkit/desktop.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string>
#include <vector>

namespace test {

inline constexpr ui::TextStyle kPlain{};

inline constexpr std::array<ui::ElementRow, 3> kItemRows{{
    {0, {0, 0, 100, 50}, "first", &kPlain, {.tabStop = true}},
    {1, {100, 0, 100, 50}, "second", &kPlain, {.tabStop = true}},
    {2, {200, 0, 100, 50}, "third", &kPlain, {.tabStop = true}},
}};

struct Backdrop : ui::Form {
    explicit Backdrop(ui::Stage& stage)
        : Form(stage, {.name = "frmBack", .rect = ui::kSpace, .opaque = true, .backdrop = true})
    {}
    ui::Label message{*this, "Label1", {100, 300, 600, 100}, "", kPlain};
};

struct Bar : ui::Form {
    explicit Bar(ui::Stage& stage) : Form(stage, {.name = "frmBar", .rect = {0, 0, 800, 50}}) {}
    ui::ControlArray<ui::Picture> items{*this, "Item", kItemRows};
    ui::Timer first{*this, "Timer1"};
    ui::Timer second{*this, "Timer2"};
};

struct Sheet : ui::Form {
    explicit Sheet(ui::Stage& stage)
        : Form(stage, {.name = "frmSheet", .rect = {100, 100, 400, 300}, .back = ui::Rgb(0xF3E7C9)})
    {}
    ui::Label title{*this, "Label1", {110, 110, 200, 30}, "Sheet", kPlain};
    ui::OptionButton low{*this, "Option1", {110, 150, 100, 30}, "low", kPlain};
    ui::OptionButton high{*this, "Option2", {110, 190, 100, 30}, "high", kPlain};
    ui::CommandButton no{*this, "Command1", {110, 300, 100, 40}, "No", kPlain};
    ui::CommandButton yes{*this, "Command2", {230, 300, 100, 40}, "Yes", kPlain, {.enabled = false}};
    ui::Shape bar{*this, "Shape1", {110, 360, 10, 10}, "", kPlain, {.back = ui::Rgb(0xFF0000)}};
    ui::Timer timer{*this, "Timer1"};
};

struct Question : ui::Form {
    explicit Question(ui::Stage& stage) : Form(stage, {.name = "frmAsk", .rect = {150, 190, 500, 200}})
    {
        initialFocus = &box;
        defaultButton = &ok;
        cancelButton = &cancel;
    }
    ui::TextBox box{*this, "Text1", {160, 200, 300, 40}, "nobody", kPlain};
    ui::CommandButton ok{*this, "Command1", {160, 300, 100, 40}, "OK", kPlain};
    ui::CommandButton cancel{*this, "Command2", {300, 300, 100, 40}, "Cancel", kPlain};
};

struct Card : ui::Form {
    explicit Card(ui::Stage& stage)
        : Form(stage, {.name = "frmCard", .rect = {0, 500, 800, 100}, .asks = true})
    {}
};

struct SmallScreens {
    ui::Desktop desktop;
    Backdrop back{desktop};
    Bar bar{desktop};
    Sheet sheet{desktop};
    Question ask{desktop};
    Card card{desktop};
    std::vector<std::string> story;  // what the handlers wrote down

    std::function<void()> Tells(std::string what)
    {
        return [this, what = std::move(what)] { story.push_back(what); };
    }
    std::vector<std::string> Front() const
    {
        std::vector<std::string> names;
        for (auto it = desktop.Shown().rbegin(); it != desktop.Shown().rend(); ++it) {
            names.push_back((*it)->Name());
        }
        return names;
    }
};

}  // namespace test
