#include "platform/web/twin.h"

#include "platform/web/page.h"
#include "ui/reading/page.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace platform {

namespace {

using Kind = ui::Control::Kind;
using nlohmann::json;

std::string_view KindOf(const ui::Control& control)
{
    switch (control.GetKind()) {
    case Kind::CommandButton:
        return "button";
    case Kind::OptionButton:
        return "option";
    case Kind::TextBox:
        return "field";
    default:
        return control.onClick ? "button" : "text";
    }
}

json Thing(const ui::Desktop& desktop, const reading::Cell& cell, std::vector<const ui::Control*>& told)
{
    json thing{{"said", cell.said}};
    if (!cell.heading.empty()) {
        thing["heading"] = cell.heading;
    }
    if (cell.control == nullptr) {
        return thing;
    }
    const ui::Control& control = *cell.control;
    const std::string_view kind = KindOf(control);
    thing["kind"] = kind;
    if (kind == "text") {
        return thing;
    }
    thing["id"] = told.size();
    told.push_back(&control);
    thing["enabled"] = control.Now().enabled;
    if (control.GetKind() == Kind::OptionButton) {
        thing["chosen"] = control.Now().chosen;
    }
    if (control.GetKind() == Kind::TextBox) {
        thing["value"] = control.Text();
    }
    if (desktop.Focused() == &control) {
        thing["focused"] = true;
    }
    return thing;
}

json Screen(const ui::Desktop& desktop, const ui::Form& form, std::vector<const ui::Control*>& told)
{
    const reading::Page page = reading::Read(form);
    json screen{{"name", form.Name()},
                {"title", page.title},
                {"usable", desktop.TakesInput(form)},
                {"modal", form.Modal()},
                {"rows", json::array()}};
    for (const reading::Row& row : page.rows) {
        json things = json::array();
        for (const reading::Cell& cell : row.cells) {
            things.push_back(Thing(desktop, cell, told));
        }
        json said{{"things", std::move(things)}};
        if (row.number > 0) {
            said["title"] = row.title;
            said["number"] = row.number;
        }
        screen["rows"].push_back(std::move(said));
    }
    if (form.onClick) {
        screen["goesOn"] = true;
    }
    return screen;
}

}  // namespace

void Twin::Tell()
{
    told_.clear();
    json screens = json::array();
    const std::vector<ui::Form*>& shown = desktop_.Shown();
    for (auto form = shown.rbegin(); form != shown.rend(); ++form) {
        screens.push_back(Screen(desktop_, **form, told_));
    }
    std::string twin = screens.dump(-1, ' ', false, json::error_handler_t::replace);
    if (twin != last_) {
        page::Tell(twin);
        last_ = std::move(twin);
    }
}

void Twin::Do(const std::string& what, int control, const std::string& text)
{
    if (what == "go on") {
        if (ui::Form* form = desktop_.FindForm(text)) {
            desktop_.Click(*form);
        }
        return;
    }
    if (control < 0 || static_cast<std::size_t>(control) >= told_.size()) {
        return;
    }
    // Handed out as what is only looked at; the desktop owns them all and asks them again whether they answer.
    auto& meant = const_cast<ui::Control&>(*told_[static_cast<std::size_t>(control)]);
    if (what == "press") {
        desktop_.Click(meant);
    } else if (what == "focus" && meant.Focusable()) {
        desktop_.FocusByKey(meant);
    } else if (what == "type" && meant.GetKind() == Kind::TextBox) {
        desktop_.Type(static_cast<ui::TextBox&>(meant), text);
    }
}

}  // namespace platform
