#include "office/farewell_rules.h"

#include "core/numbers.h"
#include "text/short_text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace office {

namespace {

constexpr std::size_t kNameShown = 26;  // columns
constexpr std::size_t kHelicopter = 25;
constexpr std::int64_t kMillion = 1'000'000;

const core::Note* LastOf(const std::vector<core::Note>& notes, core::Kind kind)
{
    for (std::size_t i = notes.size(); i > 0; --i) {
        if (notes[i - 1].kind == kind) {
            return &notes[i - 1];
        }
    }
    return nullptr;
}

End EndOf(const core::GameState& state, const std::vector<core::Note>& notes)
{
    if (state.Dead != 1) {
        return End::Escaped;
    }
    if (LastOf(notes, core::Kind::Flight) != nullptr) {
        return End::Executed;
    }
    return LastOf(notes, core::Kind::Battle) != nullptr ? End::Basement : End::Assassinated;
}

void Replace(std::string& text, std::string_view what, std::string_view with)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
}

}  // namespace

Obituary ObituaryOf(const core::GameState& state, const std::vector<core::Note>& notes)
{
    Obituary of{.end = EndOf(state, notes),
                .byHelicopter = state.ActionDone[kHelicopter] == 1,
                .ownArmy = state.Population[core::PersonalArmy] > 0,
                .name = text::Shortened(state.PlayerName, kNameShown),
                .months = state.MonthsInPower,
                .fortune = state.SwissBank};
    if (const core::Note* flight = LastOf(notes, core::Kind::Flight)) {
        of.byHelicopter = flight->amount == 1;
    }
    if (const core::Note* end = LastOf(notes, core::Kind::End)) {
        of.killer = end->who;
    }
    for (const core::Kind uprising : {core::Kind::Revolution, core::Kind::Revolt}) {
        if (const core::Note* note = LastOf(notes, uprising)) {
            of.rebels = note->who;
        }
    }
    return of;
}

const FarewellPage& PageFor(const Obituary& of)
{
    std::vector<const FarewellPage*> fitting;
    for (const FarewellPage& page : FarewellPages()) {
        if (page.end == of.end && page.isTrue(of)) {
            fitting.push_back(&page);
        }
    }
    const auto turn = static_cast<std::size_t>(std::max<std::int64_t>(of.months + of.fortune / kMillion, 0));
    return *fitting.at(turn % fitting.size());
}

std::string Term(std::int64_t months)
{
    return core::Digits(months) + (months == 1 ? " month" : " months");
}

std::string Filled(std::string_view text, const Obituary& of)
{
    std::string filled(text);
    Replace(filled, "{killer}", core::NameOf(of.killer));
    Replace(filled, "{term}", Term(of.months));
    Replace(filled, "{name}", of.name);
    return filled;
}

std::string RankLine(int place, std::string_view points)
{
    static constexpr std::array<std::string_view, 10> kPlaces{
        "First", "Second", "Third", "Fourth", "Fifth", "Sixth", "Seventh", "Eighth", "Ninth", "Tenth"};
    if (place < 0) {
        return "Not among the ten";
    }
    return std::string(kPlaces.at(static_cast<std::size_t>(place))) + " place, " + std::string(points) +
           " points";
}

}  // namespace office
