// The console's protocol, line by line.
#include "console/session.h"

#include "console/listing.h"
#include "core/fields.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using console::Session;
using nlohmann::ordered_json;

// A session with a program folder of its own.
class Console : public testing::Test {
protected:
    Console() { folder_.FillWithAssets(); }

    std::string StartLine() const { return "start " + ordered_json(folder_.Path().string()).dump(); }

    // The reply as it is printed; "" for a line that is passed over.
    std::string Ask(std::string_view line) { return session_.Answer(line).value_or(""); }
    ordered_json Reply(std::string_view line) { return ordered_json::parse(Ask(line)); }

    void Expect(std::string_view line, std::string_view reply) { EXPECT_EQ(Ask(line), reply) << line; }
    void Do(std::string_view line) { Expect(line, R"({"ok":true})"); }
    void StartGame()
    {
        Do(StartLine());
        for (const char* line : {"seed 7", "click frmlogo", "click frmStart.Command1",
                                 R"(type frmName.Text1 "Ada")", "click frmName.Command3"}) {
            Do(line);
        }
    }

    // Everything that reading requests tell.
    std::string Everything()
    {
        std::string all;
        for (const char* line : {"screen", "timers", "program", "state"}) {
            all += Ask(line) + '\n';
        }
        return all;
    }

    test::TemporaryFolder folder_;
    Session session_;
};

TEST_F(Console, PlaysTheFirstMonth)
{
    Do(StartLine());
    Do("seed 7");
    Do("click frmlogo");
    Do("click frmStart.Command1");
    Do(R"(type frmName.Text1 "Ada")");
    Do("click frmName.Command3");
    Do("click frmMain.Label5(4)");
    Expect("banner", R"({"ok":true,"text":"You are in power for 2 months","back":"000000"})");
    Expect("timers", R"({"ok":true,"timers":{"Timer1":3000}})");
    Do("draws 0.999 0.999");  // no event and no request
    Do("wait 2999");
    Expect("timers", R"({"ok":true,"timers":{"Timer1":1}})");
    Do("wait 1");
    Expect("timers", R"({"ok":true,"timers":{}})");
    Expect("get MonthsInPower", R"({"ok":true,"value":2})");
    Expect("sounds", R"({"ok":true,"sounds":["sound/quake.wav","sound/click.wav","sound/click.wav",)"
                     R"("sound/click.wav","sound/click.wav"]})");
    Expect("sounds", R"({"ok":true,"sounds":[]})");
    Expect("program", R"({"ok":true,"ended":false,"switched":1,"restored":0,"opened":[]})");
}

TEST_F(Console, PassesOverBlankLinesAndRemarks)
{
    for (const char* line : {"", "   ", "\t", "\r", "# start", "#"}) {
        EXPECT_EQ(session_.Answer(line), std::nullopt) << '"' << line << '"';
    }
}

TEST_F(Console, RefusesWithTheWrongWordAndChangesNothing)
{
    StartGame();
    const std::string before = Everything();
    const struct {
        const char* line;
        const char* word;  // that the error names
    } cases[] = {
        {"clack frmMain", "clack"},
        {"CLICK frmMain", "CLICK"},
        {"\"click\" frmMain", "click"},
        {" # a remark starts its line", "#"},
        {"click", "end of the line"},
        {"click frmNobody", "frmNobody"},
        {"click frmMain.Label5", "frmMain.Label5"},
        {"click frmMain.Label5(6)", "frmMain.Label5(6)"},
        {"click frmMain.Label5(4) now", "now"},
        {"click \"frmMain\"", "\"frmMain\""},
        {"click frmArmy", "frmArmy"},
        {"click frmArmy.Command1", "frmArmy"},
        {"click frmMonthBanner.Label1", "frmMonthBanner is disabled"},
        {"hover frmArmy.Command1", "frmArmy"},
        {"type frmMain.Label5(0) \"x\"", "frmMain.Label5(0)"},
        {"type frmMain \"x\"", "frmMain is no text box"},
        {"type frmName.Text1 \"x\"", "frmName"},
        {"type frmName.Text1 x", "x"},
        {"type frmName.Text1", "end of the line"},
        {"type frmName.Text1 \"x", "\"x"},
        {"type frmName.Text1 \"x\"y", "\"x\""},
        {"type frmName.Text1 \"\\q\"", "\\q"},
        {"type frmName.Text1 \"\xFF\"", "no JSON string"},
        {"key Enter", "Enter"},
        {"key", "end of the line"},
        {"wait", "end of the line"},
        {"wait -1", "-1"},
        {"wait 1.5", "1.5"},
        {"wait 9223372036854775807", "9223372036854775807"},
        {"screen 1", "1"},
        {"timers all", "all"},
        {"get Gold", "Gold"},
        {"get Strength", "Strength"},
        {"set Money", "end of the line"},
        {"set Money 1 2", "2"},
        {"set Money 1.5", "1.5"},
        {"set Money 1e999", "1e999"},
        {"set Money 0x10", "0x10"},
        {"set Money +1", "+1"},
        {"set Money null", "null"},
        {"set Money \"1\"", "\"1\""},
        {"set PlayerName Ada", "Ada"},
        {"set StrengthPct[Army] 1e39", "1e39"},
        {"set Gold 1", "Gold"},
        {"call", "end of the line"},
        {"call fixnum", "fixnum"},
        {"seed", "end of the line"},
        {"seed -1", "-1"},
        {"draws", "end of the line"},
        {"draws 1", "1"},
        {"draws 0.5 -0.1", "-0.1"},
        {"shot", "end of the line"},
        {"shot file.png", "file.png"},
        {"shot \"/nowhere/at/all.png\"", "/nowhere/at/all.png"},
        {"start nowhere", "nowhere"},
        {"start \"/nowhere\"", "/nowhere"},
        {"start \"/\" twice", "twice"},
    };
    for (const auto& c : cases) {
        const ordered_json reply = Reply(c.line);
        EXPECT_EQ(reply.at("ok"), false) << c.line;
        EXPECT_THAT(reply.at("error").get<std::string>(), testing::HasSubstr(c.word)) << c.line;
        EXPECT_EQ(reply.size(), 2U) << c.line;
    }
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(Reply("drawn").at("drawn").size(), 70U) << "a refused draws tells nothing";
    Do("set PoliceChiefs[0][2] 9");
    Do("call EndOfTurn");
    EXPECT_NE(Reply("drawn").at("drawn").at(0).at("r"), 0.5);
}

TEST_F(Console, CallsTheCuesByTheirNames)
{
    Do(StartLine());
    Do("click frmlogo");
    Do("click frmStart.Command1");
    Reply("sounds");
    for (const char* cue : {"Click", "Assasin5", "Croud", "HeliNo", "HeliOK", "Twister", "Quake", "Rev"}) {
        Do(std::string("call Sound") + cue);
    }
    Expect("sounds", R"({"ok":true,"sounds":["sound/click.wav","sound/Assasin5.wav","sound/croud.wav",)"
                     R"("sound/heliNo.wav","sound/heliOK.wav","sound/twister.wav","sound/quake.wav",)"
                     R"("sound/rev.wav"]})");
}

TEST_F(Console, WantsStartFirst)
{
    for (const char* line : {"screen", "click frmlogo", "state", "wait 1", "seed 1"}) {
        EXPECT_EQ(Reply(line).at("error"), "the first request must be start") << line;
    }
    EXPECT_EQ(Reply("call FixNum").at("ok"), false);
    Do(StartLine());
    EXPECT_EQ(Reply("call FixNum").at("ok"), false) << "no game has begun";
}

TEST_F(Console, ListsScreensFromTheFront)
{
    StartGame();
    Do("click frmMain.Label5(3)");
    const ordered_json forms = Reply("screen").at("forms");
    ASSERT_EQ(forms.size(), 3U);
    EXPECT_EQ(forms[0].at("name"), "frmArmy");
    EXPECT_EQ(forms[1].at("name"), "frmMain");
    EXPECT_EQ(forms[2].at("name"), "frmMonthBanner");
    EXPECT_EQ(forms[2].at("enabled"), false);

    EXPECT_EQ(
        forms[1].at("controls")[3].dump(),
        R"x({"name":"Label5(3)","kind":"Picture","text":"Army","visible":true,"enabled":true,)x"
        R"x("fore":"F3E7C9","back":"000000","opaque":false,"left":400,"top":0,"width":133,"height":48,)x"
        R"x("picture":"images/3b.bmp"})x");
    for (const ordered_json& control : forms[0].at("controls")) {
        if (control.at("name") == "Label8") {
            EXPECT_EQ(control.at("visible"), false) << "hidden controls are listed";
            EXPECT_FALSE(control.contains("picture"));
        }
    }
    Do("hover frmMain.Label5(3)");
    EXPECT_EQ(Reply("screen").at("forms")[1].at("controls")[3].at("picture"), "images/3a.bmp");
    Expect("text frmMain", R"({"ok":true,"text":"Quenvale"})");
    Expect("text frmStart.Command1", R"({"ok":true,"text":"Start Game"})");
}

TEST_F(Console, ListsModalScreensBeforeAllOthers)
{
    Do(StartLine());
    Do("click frmlogo");
    Do("click frmStart.Command1");
    const ordered_json forms = Reply("screen").at("forms");
    EXPECT_EQ(forms[0].at("name"), "frmName");
    EXPECT_EQ(forms[0].at("modal"), true);
    EXPECT_EQ(Reply("click frmMain.Label5(0)").at("error"), "frmMain waits behind frmName");
}

TEST_F(Console, KeepsTheRecordsOrderAndValues)
{
    StartGame();
    Do("set PoliceChiefs[3][1] \"Gr\\u00fcn, \\\"der\\\" J\"");
    Do("set ArmyChiefs[1][2] -5");
    Do("set AttackingFaction 6");
    Do("set AttemptStrength[3][1] 200");
    Do("set Strength[PersonalArmy] 2e2");
    const ordered_json state = Reply("state").at("state");
    std::vector<std::string> names;
    for (const core::Element& element : core::AllElements()) {
        names.push_back(element.Name());
    }
    std::vector<std::string> listed;
    for (const auto& [name, value] : state.items()) {
        listed.push_back(name);
        EXPECT_EQ(Reply("get " + name).at("value"), value) << name;
    }
    EXPECT_EQ(listed, names);
    EXPECT_EQ(listed.back(), "AttackingFaction");
    EXPECT_EQ(state.at("PoliceChiefs[3][1]"), "Gr\u00fcn, \"der\" J");
    EXPECT_EQ(state.at("ArmyChiefs[1][2]"), -5);
    EXPECT_EQ(state.at("AttackingFaction"), 6);
    EXPECT_EQ(state.at("AttemptStrength[3][1]"), 200);
    EXPECT_EQ(state.at("Strength[PersonalArmy]"), 200);
}

TEST(Listing, ShowsEmptyCellsAndExactLengths)
{
    core::GameState state;
    state.PoliceChiefs[1][0] = std::monostate{};
    const console::Json listed = console::ListState(state);
    EXPECT_TRUE(listed.at("PoliceChiefs[1][0]").is_null());
    EXPECT_EQ(listed.at("PoliceChiefs[1][1]"), 0);

    ui::Desktop desktop;
    ui::Form form(desktop, {.name = "frmBars"});
    constexpr ui::TextStyle kStyle{};
    ui::Shape bar(form, "Rpro(1)", {10, 20, 13, 13}, "", kStyle, {.back = ui::Rgb(0xFF0000), .twips = 195});
    form.Show();
    bar.SetTwips(10995);
    EXPECT_EQ(console::ListScreens(desktop)[0].at("controls")[0].dump(),
              R"x({"name":"Rpro(1)","kind":"Shape","text":"","visible":true,"enabled":true,)x"
              R"x("fore":"000000","back":"FF0000","opaque":true,"left":10,"top":20,"width":13,)x"
              R"x("height":13,"twips":10995})x");
    form.Unload();
    EXPECT_EQ(bar.Now().twips, 195);
}

// The shortest decimal that reads back as the same float, compared with the standard library's.
TEST_F(Console, PrintsFloatsAsTheShortestDecimal)
{
    StartGame();
    std::mt19937 random(1);
    std::vector<float> values{0.0F, 0.1F, 100.0F, 33.333332F, 16.777216F, -7.5F, 1e-7F, 1e20F};
    for (int i = 0; i < 2000; ++i) {
        values.push_back(std::uniform_real_distribution<float>(0, 100)(random));
    }
    for (const float value : values) {
        std::array<char, 64> exact{};
        const auto end = std::to_chars(exact.begin(), exact.end(), value);
        const std::string shortest(exact.data(), end.ptr);
        Do("set StrengthPct[Army] " + shortest);
        const std::string reply = Ask("get StrengthPct[Army]");
        const std::string printed = reply.substr(19, reply.size() - 20);
        float back = 0;
        std::from_chars(printed.data(), printed.data() + printed.size(), back);
        EXPECT_EQ(back, value) << printed;
        if (shortest.find('e') == std::string::npos) {
            EXPECT_EQ(printed, shortest);
        }
    }
}

TEST_F(Console, StartsAnew)
{
    StartGame();
    Do("click frmMain.Label5(4)");
    Do("draws 0.25 0.75");
    Do("set PlayerName \"Somebody\"");
    EXPECT_EQ(Reply("start \"/nowhere\"").at("ok"), false);
    Expect("banner", R"({"ok":true,"text":"You are in power for 2 months","back":"000000"})");

    Do(StartLine());
    EXPECT_EQ(Reply("screen").at("forms").size(), 1U);
    EXPECT_EQ(Reply("screen").at("forms")[0].at("name"), "frmlogo");
    for (const char* request : {"timers", "sounds", "drawn"}) {
        EXPECT_TRUE(Reply(request).at(request).empty()) << request;
    }
    Expect("program", R"({"ok":true,"ended":false,"switched":0,"restored":0,"opened":[]})");
    const ordered_json state = Reply("state").at("state");
    for (const auto& [name, value] : state.items()) {
        EXPECT_TRUE(value == 0 || value == "") << name << " is " << value;
    }
    Do("click frmlogo");
    Do("click frmStart.Command1");
    EXPECT_NE(Reply("drawn").at("drawn")[0].at("r"), 0.25) << "the told draws are forgotten";
}

TEST_F(Console, AnswersOnlyWhatReadsOnceTheProgramHasEnded)
{
    Do(StartLine());
    Do("click frmlogo");
    Do("click frmStart.Command3");
    Expect("program", R"({"ok":true,"ended":true,"switched":1,"restored":1,"opened":[]})");
    for (const char* line : {"click frmStart.Command1", "hover frmStart.Command1", "type frmName.Text1 \"x\"",
                             "key Return", "wait 1", "set Money 1", "call FixNum", "seed 1", "draws 0.5"}) {
        EXPECT_EQ(Reply(line).at("ok"), false) << line;
    }
    for (const char* line : {"screen", "text frmStart.Label1", "banner", "sounds", "timers", "program",
                             "get Money", "state", "drawn"}) {
        EXPECT_EQ(Reply(line).at("ok"), true) << line;
    }
    Do(StartLine());
    Do("click frmlogo");
}

TEST_F(Console, TellsTheDice)
{
    StartGame();
    Do("set PoliceChiefs[0][2] 9");
    Do("draws 0.99999999999 0.5");
    Reply("drawn");
    Do("call EndOfTurn");
    Do("call EndOfTurn");
    EXPECT_EQ(Ask("drawn"), R"({"ok":true,"drawn":[{"n":9,"b":1,"r":0.99999994,"value":9},)"
                            R"({"n":9,"b":1,"r":0.5,"value":5}]})");
    Expect("drawn", R"({"ok":true,"drawn":[]})");
}

TEST_F(Console, PlaysTheSameGameFromTheSameSeed)
{
    const auto play = [this](const std::string& seed) {
        StartGame();
        Do("seed " + seed);
        std::string told;
        for (int month = 0; month < 3; ++month) {
            Do("call CreateChiefs");
            Do("call EndOfTurn");
            Do("wait 10000");
            told += Ask("state") + Ask("drawn");
        }
        return told;
    };
    const std::string once = play("42");
    EXPECT_EQ(play("42"), once);
    EXPECT_NE(play("43"), once);
}

TEST_F(Console, FiresTimersInTheOrderOfTheirTimes)
{
    StartGame();
    Do("call Timer6_Timer");  // the death message, and four seconds until the end
    Expect("timers", R"({"ok":true,"timers":{"Timer4":4000}})");
    Do("wait 0");
    Do("wait 1500");
    Do("click frmMain.Label5(4)");
    Expect("timers", R"({"ok":true,"timers":{"Timer1":3000,"Timer4":2500}})");
    Do("wait 2500");
    Expect("timers", R"({"ok":true,"timers":{"Timer1":500}})");
    EXPECT_EQ(Reply("banner").at("text"), " ");
}

TEST_F(Console, SkipsToTheEndOfAPause)
{
    StartGame();
    EXPECT_EQ(Reply("skip").at("ok"), false) << "nothing is waited for";
    Do("click frmMain.Label5(4)");
    Do("call Timer6_Timer");  // four seconds until the end
    Do("skip");
    EXPECT_EQ(Reply("timers").at("timers").dump(), R"({"Timer4":1000})") << "the nearer one, and no further";
}

TEST_F(Console, PressesKeys)
{
    Do(StartLine());
    Do("key Return");
    EXPECT_EQ(Reply("screen").at("forms")[0].at("name"), "frmStart");
    Do("key Tab");
    Do("key Space");
    Expect("text frmStart.Command2", R"({"ok":true,"text":"Level Hard"})");
    Do("key Up");
    Do("key Return");
    Do("key 4");
    Do("key Return");
    Expect("get PlayerName", R"({"ok":true,"value":"4"})");
    Do("key 4");
    EXPECT_EQ(Reply("screen").at("forms")[0].at("name"), "frmArmy");
}

TEST_F(Console, ShootsTheScreen)
{
    StartGame();
    Do("shot " + ordered_json(folder_.Path("shot.png").string()).dump());
    const std::string shot = folder_.Read("shot.png");
    EXPECT_EQ(shot.substr(1, 3), "PNG");
    EXPECT_EQ(shot.substr(16, 8), std::string("\0\0\3\x20\0\0\2\x58", 8)) << "800 x 600";
    // White letters of the banner, and the dark edge of the desk at the lower left corner.
    EXPECT_NE(shot.find("\xFF\xFF\xFF\xFF\xFF\xFF"), std::string::npos);
    EXPECT_LT(static_cast<unsigned char>(shot[shot.size() - 12 - 8 - 2400]), 0x30);
    // As a larger window would show it.
    Do("shot " + ordered_json(folder_.Path("wide.png").string()).dump() + " 1067 600");
    EXPECT_EQ(folder_.Read("wide.png").substr(16, 8), std::string("\0\0\4\x2B\0\0\2\x58", 8));
}

}  // namespace
