#include "console/listing.h"

#include <array>
#include <cmath>
#include <limits>
#include <type_traits>

namespace console {

namespace {

constexpr std::array<std::string_view, 7> kKinds{"Label",   "CommandButton", "OptionButton", "TextBox",
                                                 "Picture", "Shape",         "Graph"};  // by Control::Kind

// A whole number is written without a fraction: 7, not 7.0.
template <class T> Json Number(T value)
{
    constexpr T kExact =
        2 / std::numeric_limits<T>::epsilon();  // up to here every whole number has its own T
    const bool minusZero = value == 0 && std::signbit(value);
    if (value == std::trunc(value) && std::abs(value) <= kExact && !minusZero) {
        return static_cast<std::int64_t>(value);
    }
    return static_cast<float>(value);
}

Json ListControl(const ui::Control& control)
{
    const ui::Control::State& now = control.Now();
    Json listed{
        {"name", control.Name()},  {"kind", kKinds.at(static_cast<std::size_t>(control.GetKind()))},
        {"text", now.text},        {"visible", now.visible},
        {"enabled", now.enabled},  {"fore", Hex(now.fore)},
        {"back", Hex(now.back)},   {"opaque", now.opaque},
        {"left", now.rect.left},   {"top", now.rect.top},
        {"width", now.rect.width}, {"height", now.rect.height},
    };
    if (!now.picture.empty()) {
        listed["picture"] = now.picture;
    }
    if (now.twips != 0) {
        listed["twips"] = now.twips;
    }
    return listed;
}

Json ListForm(const ui::Form& form)
{
    Json controls = Json::array();
    for (const ui::Control* control : form.Controls()) {
        controls.push_back(ListControl(*control));
    }
    Json listed{{"name", form.Name()}, {"modal", form.Modal()}, {"enabled", form.Enabled()}};
    if (form.GetDesign().own) {
        listed["own"] = true;
    }
    listed["controls"] = std::move(controls);
    return listed;
}

}  // namespace

std::string Hex(ui::Color color)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const unsigned part : {color.red, color.green, color.blue}) {
        text += kDigits[part >> 4U];
        text += kDigits[part & 0xFU];
    }
    return text;
}

Json ListScreens(const ui::Desktop& desktop)
{
    const auto& shown = desktop.Shown();
    Json forms = Json::array();
    const auto list = [&](const auto& wanted) {
        for (auto it = shown.rbegin(); it != shown.rend(); ++it) {
            if (wanted((*it)->GetDesign())) {
                forms.push_back(ListForm(**it));
            }
        }
    };
    using Design = ui::Form::Design;
    list([](const Design& each) { return !each.own && !each.backdrop; });
    list([](const Design& each) { return each.own; });
    list([](const Design& each) { return each.backdrop; });
    return forms;
}

Json ListTimers(const ui::Desktop& desktop)
{
    Json timers = Json::object();
    for (const ui::Form* form : desktop.Forms()) {
        for (const ui::Timer* timer : form->Timers()) {
            if (timer->Armed()) {
                timers[timer->Name()] = timer->Due() - desktop.Now();
            }
        }
    }
    return timers;
}

Json ValueOf(const core::Value& value)
{
    return std::visit(
        [](const auto& held) -> Json {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                return nullptr;
            } else if constexpr (std::is_same_v<T, float>) {
                return Number(held);
            } else {
                return held;
            }
        },
        value);
}

Json ListState(const core::GameState& state)
{
    Json::object_t fields;
    for (const core::Element& element : core::AllElements()) {
        // Straight into the vector below the map: names are told apart already, a search each time is slow.
        fields.Container::emplace_back(element.Name(), ValueOf(element.Get(state)));
    }
    return fields;
}

Json ListDraws(const std::vector<core::Chance::Drawn>& draws)
{
    Json listed = Json::array();
    for (const core::Chance::Drawn& drawn : draws) {
        listed.push_back(
            {{"n", Number(drawn.n)}, {"b", Number(drawn.b)}, {"r", Number(drawn.r)}, {"value", drawn.value}});
    }
    return listed;
}

Json ListNotes(const std::vector<core::Note>& notes)
{
    Json listed = Json::array();
    for (const core::Note& note : notes) {
        listed.push_back({{"kind", core::NameOf(note.kind)},
                          {"who", core::NameOf(note.who)},
                          {"amount", note.amount},
                          {"month", note.month}});
    }
    return listed;
}

}  // namespace console
