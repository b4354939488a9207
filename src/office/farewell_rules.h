// What El Faro prints about a president when his game has ended.
//
//     const Obituary of = ObituaryOf(state, notes);       // how it really was
//     const FarewellPage& page = PageFor(of);             // one of the pages that are true of it
//     Filled(page.left.text, of)                          // "... after 27 months ..."
#pragma once

#include "core/game_state.h"
#include "core/journal.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace office {

enum class End { Executed, Basement, Assassinated, Escaped };

struct Obituary {
    End end{};
    core::Who killer = core::Who::Nobody;  // of an assassination
    core::Who rebels = core::Who::Nobody;  // who began the last uprising
    bool byHelicopter = false;             // the flight
    bool ownArmy = false;                  // the president had a personal army
    std::string name{};                    // short enough for a line
    std::int64_t months = 0;
    std::int64_t fortune = 0;  // the Swiss account, dollars
};

// From the last month's notes; where they are missing (a routine was called by its name), from the record alone.
Obituary ObituaryOf(const core::GameState& state, const std::vector<core::Note>& notes);

struct Column {
    std::string_view title;
    std::string_view text;
};

// Texts hold {name}, {term} ("27 months") and {killer} ("Workers").
struct FarewellPage {
    End end;
    bool (*isTrue)(const Obituary&);
    std::string_view headline;
    std::string_view deck;  // two lines
    std::string_view below;
    std::string_view caption;
    Column left;
    Column right;
    std::string_view theEnd;  // in the black frame
};

std::span<const FarewellPage> FarewellPages();

// Of the pages that are true, the one that the months and the fortune point at: no chance is drawn, and games that
// end alike still read differently.
const FarewellPage& PageFor(const Obituary& of);
std::string Filled(std::string_view text, const Obituary& of);
std::string Term(std::int64_t months);  // "1 month", "27 months"

// "Third place, 4,236 points" and "Not among the ten"; places count from 0.
std::string RankLine(int place, std::string_view points);

}  // namespace office
