// The hall of fame: the ten best presidents, best first, and what is said about each.
//
//     persist::Enter(hall, persist::EntryOf(state), state.Dead == 1);
//     label.SetText(persist::Sentence(hall[0], format));
//
// The victims do not count. A president who died is placed as if he had scored nothing, and then shown with
// all that he scored.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "files/text_records.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace persist {

struct HallEntry {
    std::string name{};
    core::i32 fortune{};
    core::i16 months{};
    core::u8 assassinations{};
    core::u8 revolutions{};
    core::i32 victims{};
    core::u8 level{};  // a core::Level
};

inline constexpr std::size_t kHallPlaces = 10;
using HallList = std::array<HallEntry, kHallPlaces>;

HallEntry EntryOf(const core::GameState& state);

// What a game was worth, in dollars, before and after its level's factor (easy 1, normal 1.2, hard 1.4):
//     fortune + 2,000,000 a month + 5,000,000 an attempt + 10,000,000 a revolution
std::int64_t PlainScore(const HallEntry& entry);
double LevelFactor(std::int64_t level);
// Rounded once, half to even.
std::int64_t Score(const HallEntry& entry);

// The score as it is shown: in hundreds of thousands.
std::string ShownScore(double score, const core::NumberFormat& format);

// Puts the entry before the first that scored no more than it; none of the ten need be so.
void Enter(HallList& hall, const HallEntry& entry, bool dead);

std::string Sentence(const HallEntry& entry, const core::NumberFormat& format);

// The file: ten entries of seven records, one value a line, the level as its number.
std::string WriteHall(const HallList& hall);
files::Result<HallList> ReadHall(const std::vector<files::Item>& items, std::string_view file);

// A list to begin with where there is none: ten presidents whom nobody remembers.
HallList FreshHall();

}  // namespace persist
