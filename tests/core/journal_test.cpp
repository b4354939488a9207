#include "core/journal.h"

#include <gtest/gtest.h>

namespace {

using core::Who;

TEST(Journal, NamesEverybody)
{
    const struct {
        Who who;
        std::string_view name;
    } cases[] = {
        {core::WhoIs(core::Workers), "Workers"},
        {core::WhoIs(core::Prisoners), "Prisoners"},
        {core::WhoIs(core::PersonalArmy), ""},
        {core::FactionOf(7), "Police"},
        {core::FactionOf(8), ""},
        {core::FactionOf(0), ""},
        {core::NeighbourOf(1), "Hermosita"},
        {core::NeighbourOf(3), "Descalza"},
        {core::NeighbourOf(4), ""},
        {Who::Americans, "Americans"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(core::NameOf(c.who), c.name);
    }
}

TEST(Journal, TellsEachNoteAtOnceWithItsMonth)
{
    core::GameState state;
    state.MonthsInPower = 9;
    core::Journal journal(state);
    std::vector<core::Note> heard;
    journal.Listen([&heard](const core::Note& note) { heard.push_back(note); });
    journal.Add(core::Kind::Claim, Who::Landowners, 18'000'000);
    const core::Note expected{core::Kind::Claim, Who::Landowners, 18'000'000, 9};
    EXPECT_EQ(heard, std::vector{expected});
    EXPECT_EQ(journal.Notes(), heard);
}

}  // namespace
