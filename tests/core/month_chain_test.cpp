#include "core/month_chain.h"

#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Chain : public testing::Test {
protected:
    std::function<void()> Tells(const char* what)
    {
        return [this, what] { story.push_back(what); };
    }
    void WireAll()
    {
        chain.cia = Tells("cia");
        chain.war = Tells("war");
        chain.prisoners = Tells("prisoners");
        chain.guerillas = Tells("guerillas");
        chain.otherwise = Tells("otherwise");
    }

    ui::Desktop desktop;
    screens::FrmMain main{desktop};
    screens::FrmMonthBanner banner{desktop};
    core::GameState state;
    core::MonthChain chain{state, main, banner};
    std::vector<std::string> story;
};

TEST_F(Chain, RunsTheFirstEventThatIsDueAndNoOther)
{
    WireAll();
    const struct {
        const char* why;
        test::FieldValues fields;
        const char* event;
    } cases[] = {
        {"a quiet month",
         {{"AmericanHostility", 70}, {"Strength[Prisoners]", 11}, {"Strength[Guerrillas]", 14}},
         "otherwise"},
        {"the Americans go first",
         {{"AmericanHostility", 71}, {"War", 1}, {"Strength[Prisoners]", 12}, {"Strength[Guerrillas]", 15}},
         "cia"},
        {"a war before the prisoners", {{"War", 3}, {"Strength[Prisoners]", 12}}, "war"},
        {"the prisoners before the guerrillas",
         {{"Strength[Prisoners]", 12}, {"Strength[Guerrillas]", 20}},
         "prisoners"},
        {"the guerrillas", {{"Strength[Guerrillas]", 15}}, "guerillas"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        state = {};
        test::SetFields(state, c.fields);
        story.clear();
        main.Timer1.SetInterval(3000);
        desktop.Advance(3000);
        EXPECT_THAT(story, ElementsAre(c.event));
        EXPECT_FALSE(main.Timer1.Armed());
    }
}

TEST_F(Chain, PassesTheMonthOnWhereALinkIsMissing)
{
    WireAll();
    chain.cia = {};
    test::SetFields(state, {{"AmericanHostility", 100}, {"Strength[Guerrillas]", 15}});
    chain.Timer1_Timer();
    EXPECT_THAT(story, ElementsAre("guerillas"));
}

TEST_F(Chain, MournsFourSecondsBeforeTheHallOfFame)
{
    chain.hallOfFame = Tells("hall");
    main.Timer6.SetInterval(5500);
    desktop.Advance(5499);
    EXPECT_EQ(std::int64_t{state.Dead}, 0);
    desktop.Advance(1);
    EXPECT_EQ(banner.Label1.Text(), " Y O U   A R E   D E A D ! ");
    EXPECT_EQ(std::int64_t{state.Dead}, 1);
    EXPECT_TRUE(main.Visible());
    desktop.Advance(3999);
    EXPECT_THAT(story, IsEmpty());
    desktop.Advance(1);
    EXPECT_EQ(banner.Label1.Text(), " ");
    EXPECT_THAT(story, ElementsAre("hall"));
    desktop.Advance(1'000'000);
    EXPECT_EQ(story.size(), 1U);
}

TEST_F(Chain, TriesTheAnnouncedAttempt)
{
    chain.assassination = Tells("attempt");
    main.Timer5.SetInterval(5500);
    desktop.Advance(5500);
    EXPECT_THAT(story, ElementsAre("attempt"));
}

}  // namespace
