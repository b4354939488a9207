// The Swiss bank: what it takes, what it refuses, what it does not even hear.
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoNumber = "Mr.President, the bank accepts any amount that is a number. This one was "
                                  "not, and was filed under poetry.";

TEST(Bank, TakesRefusesOrIgnoresWhatIsTyped)
{
    struct Case {
        const char* why;
        std::int64_t money, swissBank;
        const char* typed;
        std::int64_t newMoney, newSwissBank;
        const char* banner;  // " " while the bank stays open
        bool heard;
    };
    constexpr std::int64_t kMost = 2147483647;
    // clang-format off
    const Case cases[] = {
        {"separators",                   5000, 10,    "1,500",     3500, 1510,  " ",               true},
        {"no separators",                5000, 10,    "1500",      3500, 1510,  " ",               true},
        {"nothing to take",              5000, 10,    "0",         5000, 10,    " ",               true},
        {"all of it",                    5000, 10,    "5000",      0,    5010,  " ",               true},
        {"each sum is rounded alone",    100,  0,     "2.5",       98,   2,     " ",               true},
        {"and to the even side",         101,  1,     "2.5",       98,   4,     " ",               true},
        {"one dollar too much",          5000, 10,    "5001",      5000, 10,    "In your dreams!", true},
        {"a little too much",            5000, 10,    "5000.01",   5000, 10,    "In your dreams!", true},
        {"more than there is anywhere",  5000, 10,    "9999999999999999999999", 5000, 10, "In your dreams!", true},
        {"nothing from a debt",          -1,   10,    "0",         -1,   10,    "In your dreams!", true},
        {"a negative amount",            5000, 10,    "-1",        5000, 10,    " ",               false},
        {"no number",                    5000, 10,    "all of it", 5000, 10,    kNoNumber,         true},
        {"an empty box",                 5000, 10,    "",          5000, 10,    kNoNumber,         true},
        {"a comma for cents",            5000, 10,    "12,5",      5000, 10,    kNoNumber,         true},
        {"a full account stays full",    5000, kMost, "1000",      4000, kMost, " ",               true},
    };
    // clang-format on
    test::TestGame game;
    game.StartGame();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        game.Set({{"Money", c.money}, {"SwissBank", c.swissBank}});
        game.Click("frmMain.Label5(1)");
        game.Click("frmTaxes.Command11");
        game.Type("frmBank.Text1", c.typed);
        game.TakeSounds();
        game.Click("frmBank.Command3");
        game.Expect({{"Money", c.newMoney}, {"SwissBank", c.newSwissBank}});
        EXPECT_EQ(game.Banner(), c.banner);
        EXPECT_EQ(game.Shown("frmBank"), std::string_view(c.banner) == " ");
        EXPECT_EQ(game.TakeSounds().size(), c.heard ? 1U : 0U);
    }
}

TEST(Bank, ProceedingTwiceMovesTheTreasuryOnce)
{
    test::TestGame game;
    game.StartGame();
    game.Click("frmMain.Label5(1)");
    game.Click("frmTaxes.Command11");
    for (int i = 0; i < 2; ++i) {
        game.Click("frmBank.Command3");
        game.Expect({{"Money", 0}, {"SwissBank", 50'000'000}});
        EXPECT_EQ(game.Text("frmBank.Label2"), "50,000,000");
        EXPECT_EQ(game.Text("frmBank.Text1"), "0");
        EXPECT_TRUE(game.Shown("frmBank"));
    }
}

// What was typed replaces the amount that stands there, and a Return alone moves nothing.
TEST(Bank, TypingReplacesTheAmount)
{
    test::TestGame game;
    game.StartGame();
    game.Click("frmMain.Label5(1)");
    game.Click("frmTaxes.Command11");
    game.Press(ui::Key::Return);
    game.Desktop().EnterText("700");
    game.Press(ui::Key::Tab);
    game.Press(ui::Key::Return);
    game.Expect({{"Money", 49'999'300}, {"SwissBank", 700}});
}

// Steps add up to all there is and no further; what is wrong is told before anything is sent; nothing moves
// until "Proceed".
TEST(Bank, HelpsWithTheAmountAndLetsGo)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"Money", 12'000'000}});
    game.Click("frmMain.Label5(1)");
    game.Click("frmTaxes.Command11");
    for (const char* expected : {"10,000,000", "12,000,000"}) {
        game.Click("frmBank.cmdStep(2)");
        EXPECT_EQ(game.Text("frmBank.Text1"), expected);
    }
    game.Type("frmBank.Text1", "12,000,001");
    game.Desktop().Refresh();
    EXPECT_EQ(game.Text("frmBank.lblAdvice"), "The treasury holds 12,000,000. The bank can count.");
    game.Click("frmBank.Command3");
    EXPECT_FALSE(game.Shown("frmBank"));
    game.Press(ui::Key::Return);
    EXPECT_TRUE(game.Shown("frmBank"));
    EXPECT_EQ(game.Text("frmBank.Text1"), "12,000,000");
    game.Type("frmBank.Text1", "5");
    game.Click("frmBank.cmdAll");
    EXPECT_EQ(game.Text("frmBank.Text1"), "12,000,000");
    game.Press(ui::Key::Escape);
    EXPECT_FALSE(game.Shown("frmBank"));
    game.Press(ui::Key::Return);
    EXPECT_FALSE(game.Shown("frmBank")) << "nothing was refused";
    game.Expect({{"Money", 12'000'000}, {"SwissBank", 0}});
}

}  // namespace
