#include "golden/player.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace test {

namespace {

constexpr int kMostAnswers = 60;  // a month's story has fewer
constexpr int kCandidates = 10;
constexpr int kAllies = 6;

// A screen that wants an answer, and how often of ten the first button is pressed and not the second.
struct Question {
    std::string form;
    const char* first;
    const char* second;
    int firstOfTen;
};
const std::array<Question, 12> kQuestions{{
    {"frmUSA", "Command1", "Command1", 10},
    {"frmMes", "Command1", "Command1", 10},
    {"frmMes1", "Command1", "Command1", 10},
    {"frmMes3", "Command1", "Command1", 10},
    {"frmAFailed", "Command1", "Command2", 5},
    {"frmRev", "Command1", "Command2", 1},
    {"frmGRev", "Command1", "Command2", 1},
    {"frmPrRev", "Command1", "Command2", 1},
    {"frmMes2", "Command1", "Command2", 2},
    {"frmShow2", "Command1", "Command3", 5},
    {"frmRandom2", "Command1", "Command2", 5},
    {"frmNewspaper", "Command1", "Command1", 10},
}};

}  // namespace

void Player::GovernAMonth()
{
    if (Often(6)) {
        SetTaxes();
    }
    for (int actions = Pick(3); actions > 0; --actions) {
        Act();
    }
    if (Often(2)) {
        ReadReports();
    }
    Press("frmMain.Label5(4)");
    LetTimersFire();
    for (int i = 0; i < kMostAnswers && !Fallen() && Answer(); ++i) {
        LetTimersFire();
    }
    EXPECT_TRUE(Fallen() || game_.Form("frmMain").Enabled()) << "the month does not end";
}

void Player::Press(const std::string& control)
{
    game_.ClickRefused(control);
    Passed();
}

void Player::Passed() const
{
    if (onPress) {
        onPress();
    }
}

void Player::SetTaxes()
{
    Press("frmMain.Label5(1)");
    for (int presses = Pick(6); presses > 0; --presses) {
        Press("frmTaxes.Command" + std::to_string(1 + Pick(10)));
    }
    if (Often(1)) {
        Bank();
    }
}

// A share of what there is, and now and then far too much.
void Player::Bank()
{
    Press("frmTaxes.Command11");
    const std::int64_t money = game_.State().Money;
    game_.Type("frmBank.Text1", std::to_string(money / (5 + Pick(20)) + (Often(1) ? 1'000'000'000 : 0)));
    Press("frmBank.Command3");
}

void Player::Act()
{
    Press("frmMain.Label5(0)");
    Press("frmActions.Command1(" + std::to_string(1 + Pick(25)) + ")");
    if (game_.Shown("frmShow")) {
        Press(Often(8) ? "frmShow.Command3" : "frmShow.Command1");
    }
    PickChief("frmPolc");
    PickChief("frmArmyC");
}

void Player::ReadReports()
{
    Press("frmMain.Label5(2)");
    Press("frmPolice.Command3");
    Press("frmMain.Label5(3)");
    Press(Often(5) ? "frmArmy.Command1" : "frmArmy.Command2");
}

// Presses a button of the front screen that has a question; false when none has one.
bool Player::Answer()
{
    for (const std::string& form : game_.Front()) {
        if (form == "frmChoose") {
            AskForHelp();
            return true;
        }
        if (form == "frmPolc" || form == "frmArmyC") {
            PickChief(form);
            return true;
        }
        for (const Question& question : kQuestions) {
            if (form == question.form) {
                Press(form + "." + (Often(question.firstOfTen) ? question.first : question.second));
                return true;
            }
        }
    }
    return false;
}

// Mostly the strongest of those who can be asked; flees when nobody can.
void Player::AskForHelp()
{
    const core::GameState& state = game_.State();
    int ally = 1 + Pick(kAllies);
    for (int other = 1; other <= kAllies && Often(9); ++other) {
        const auto strength = [&state](int button) {
            const auto faction =
                static_cast<std::int64_t>(state.ChoiceFaction.at(static_cast<std::size_t>(button)));
            return faction == 0 ? 0 : std::int64_t{state.Strength[core::GroupOfFaction(faction)]};
        };
        const std::string button = "frmChoose.Command1(" + std::to_string(other) + ")";
        ally = game_.Visible(button) && strength(other) > strength(ally) ? other : ally;
    }
    Press("frmChoose.Command2");
    Press("frmChoose.Command1(" + std::to_string(ally) + ")");
}

void Player::LetTimersFire()
{
    const auto armed = [this] {
        for (const ui::Timer* timer : game_.Form("frmMain").Timers()) {
            if (timer->Armed()) {
                return true;
            }
        }
        return false;
    };
    constexpr std::int64_t kStep = 500;  // milliseconds
    for (int i = 0; i < kMostAnswers && armed(); ++i) {
        game_.Wait(kStep);
        Passed();
    }
}

// Some are no candidates, and a click on them does nothing.
void Player::PickChief(const std::string& form)
{
    const int first = Pick(kCandidates);
    for (int i = 0; i < kCandidates && game_.Form(form).Modal() && game_.Shown(form); ++i) {
        Press(form + ".Label1(" + std::to_string(1 + (first + i) % kCandidates) + ")");
    }
}

}  // namespace test
