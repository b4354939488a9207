// Where a new president looks first, why the menu does not answer, and the handbook for machines without a browser.
#include "office/handbook_text.h"
#include "support/test_game.h"
#include "ui/toolkit/hands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace {

using testing::Each;
using testing::HasSubstr;

class Guide : public testing::Test {
protected:
    Guide() { game_.StartGame(); }

    std::string Line()
    {
        game_.Desktop().Touch();
        game_.Desktop().Refresh();
        return game_.Text("frmStrip.lblLine");
    }

    test::TestGame game_;
};

TEST_F(Guide, LeadsAPlayersFirstGameUntilTwoScreensWereOpened)
{
    const std::string usual = Line();
    game_.game.GetSettings().Change([](office::Settings& settings) { settings.firstSteps = true; });
    EXPECT_THAT(Line(), HasSubstr("police report, key 3"));
    game_.Press(ui::Key::Digit3);
    game_.Press(ui::Key::Escape);
    EXPECT_THAT(Line(), HasSubstr("taxes, key 2"));
    game_.Press(ui::Key::Digit2);
    game_.Press(ui::Key::Escape);
    EXPECT_EQ(Line(), usual);
}

TEST_F(Guide, TellsWhyTheMenuDoesNotAnswer)
{
    ui::Hands hands(game_.Desktop());
    game_.Click("frmMain.Label5(4)");
    EXPECT_THAT(Line(), HasSubstr("The country is speaking."));
    hands.PointerDown({40, 25});
    EXPECT_THAT(Line(), HasSubstr("The country is still speaking."));
    game_.game.GetMonth().Ask("The landowners are still in the room.");
    game_.Press(ui::Key::Digit2);
    EXPECT_THAT(Line(), HasSubstr("still in the room."));
    while (game_.Desktop().SkipPause()) {}
    EXPECT_THAT(Line(), testing::Not(HasSubstr("One thing at a time"))) << "it answers again";
}

TEST_F(Guide, HasAHandbookOfLinesThatFit)
{
    std::ifstream file(game_.game.Folder().Path("Data/Manual.htm"));
    std::stringstream html;
    html << file.rdbuf();
    const office::Handbook book = office::ReadHandbook(html.str());
    for (const std::string& line : book.lines) {
        const auto letters =
            std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xC0) != 0x80; });
        EXPECT_LE(letters, static_cast<std::ptrdiff_t>(office::kHandbookColumns)) << line;
    }
    EXPECT_THAT(book.lines, Each(testing::Not(testing::ContainsRegex("[<>{]|&[a-z]+;"))));
    EXPECT_EQ(book.lines.at(book.ChapterAt("murder")), "ASSASSINS");
    EXPECT_EQ(office::ReadHandbook("<p>One &amp; <b>two</b><table><tr><td>3<td>4</table>").lines,
              (std::vector<std::string>{"One & two", "", "3  |  4"}));
}

TEST_F(Guide, ReadsTheHandbookHereWhenItIsAskedForTwice)
{
    game_.Press(ui::Key::F1);
    EXPECT_FALSE(game_.Shown("frmHandbook"));
    game_.Press(ui::Key::F1);
    EXPECT_TRUE(game_.Shown("frmHandbook"));
    const std::string first = game_.Text("frmHandbook.lblLine(0)");
    game_.Press(ui::Key::Return);
    EXPECT_NE(game_.Text("frmHandbook.lblLine(0)"), first);
    game_.Press(ui::Key::Escape);
    EXPECT_FALSE(game_.Shown("frmHandbook"));
    EXPECT_EQ(game_.host.opened.size(), 2U) << "a viewer may come up all the same";
}

}  // namespace
