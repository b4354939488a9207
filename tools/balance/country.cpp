#include "balance/country.h"

#include "core/numbers.h"
#include "core/officers.h"
#include "core/thresholds.h"
#include "instruments/action_refusals.h"
#include "instruments/chief_rules.h"
#include "persist/hall_of_fame.h"

#include <algorithm>
#include <array>

namespace balance {

namespace {

constexpr int kMostSteps = 200;                                          // a month's story has fewer
constexpr int kArmyPages = 10, kDisasterPages = 20, kGoodNewsPage = 30;  // the police's from 1
constexpr std::int64_t kPoints = 100'000;  // of the score make a point in the hall

bool NothingIsRed(const core::GameState& state)
{
    const auto quiet = [](std::int64_t opposition) { return opposition < core::kWarnedOfStartAt; };
    return std::all_of(state.Opposition.begin(), state.Opposition.begin() + core::kFactions, quiet) &&
           state.Strength[core::Guerrillas] < core::kGuerrillasRaidAt &&
           state.Strength[core::Prisoners] < core::kPrisonersRiseAt;
}

files::ProgramFolder Remembering(files::ProgramFolder folder)
{
    folder.Remember();
    return folder;
}

}  // namespace

std::size_t Bot::Officer(const Country& country, bool army)
{
    const core::OfficerTable& table = army ? country.state.ArmyChiefs : country.state.PoliceChiefs;
    std::size_t best = 0;
    std::int64_t least = 0;
    for (std::size_t row = 1; row < core::kOfficers; ++row) {
        const std::int64_t ambition = core::NumberOf(table[row][core::kAmbition]);
        if (instruments::IsCandidate(table, row) && (best == 0 || ambition < least)) {
            least = ambition;
            best = row;
        }
    }
    return best;
}

Country::Country(const Deck& deck)
    : deck_(deck)
    , game_(host_, Remembering(deck.folder), core::Chance(), core::NumberFormat())
    , state(game_.State())
    , chance(game_.GetChance())
    , desktop_(game_.GetDesktop())
    , screens_(game_.GetScreens())
    , questions_(Questions())
{
    game_.GetJournal().Listen([this](const core::Note& note) { Hear(note); });
}

// The screens that wait for an answer.
std::vector<Country::Question> Country::Questions()
{
    screens::Screens& s = screens_;
    return {{&s.frmRev, &Country::Face},
            {&s.frmGRev, &Country::Face},
            {&s.frmPrRev, &Country::Face},
            {&s.frmChoose, &Country::ChooseAlly},
            {&s.frmMes2, &Country::ChooseAlly},
            {&s.frmPolc, &Country::ChooseOfficer},
            {&s.frmArmyC, &Country::ChooseOfficer},
            {&s.frmShow2, &Country::AnswerRequest},
            {&s.frmRandom2, &Country::AnswerDeal},
            {&s.frmAFailed, &Country::AnswerPlot},
            {&s.frmUSA, &Country::Nod},
            {&s.frmMes, &Country::Nod},
            {&s.frmMes1, &Country::Nod},
            {&s.frmMes3, &Country::Nod},
            {&s.frmNewspaper, &Country::Nod}};
}

void Country::ClearTheDesk()
{
    game_.GetMonth().Forget();
    const std::vector<ui::Form*> shown = desktop_.Shown();
    for (ui::Form* form : shown) {
        if (form != &screens_.frmMain && form != &screens_.frmMonthBanner) {
            form->Unload();
        }
    }
    for (ui::Timer* timer : screens_.frmMain.Timers()) {
        timer->SetInterval(0);
    }
    screens_.frmMain.SetEnabled(true);
    ending = Ending::None;
    ally_ = 0;
    struck_ = false;
}

void Country::Begin(std::int64_t level, std::uint64_t seed)
{
    ClearTheDesk();
    screens_.frmMain.Unload();
    chance.Seed(seed);
    state = core::GameState{};
    state.Difficulty = level;
    screens_.frmMonthBanner.Show();
    screens_.frmMain.Show();
}

Country::Moment Country::Now() const
{
    const bool uprising =
        asking_ == &screens_.frmRev || asking_ == &screens_.frmGRev || asking_ == &screens_.frmPrRev;
    return {state, chance, uprising};
}

void Country::Put(const Moment& moment, Bot& bot)
{
    ClearTheDesk();
    if (!screens_.frmMain.Visible()) {
        Begin(moment.state.Difficulty, 0);
    }
    state = moment.state;
    chance = moment.chance;
    if (moment.uprising) {
        screens_.frmRev.ShowModal();
        Carry(bot);
    }
}

bool Country::Allows(std::int64_t action) const
{
    return !banned[static_cast<std::size_t>(action)] && action != core::kNoAction &&
           !instruments::RefusedBySituation(state, action) && !instruments::RefusedAsDone(state, action);
}

bool Country::Act(std::int64_t action, Bot& bot)
{
    if (!Allows(action)) {
        return false;
    }
    Click(screens_.frmMain.Label5[screens::kMenuActions]);
    Click(screens_.frmActions.Command1[static_cast<int>(action)]);
    Click(screens_.frmShow.Command3);
    Carry(bot);
    return true;
}

bool Country::Raise(core::Group faction)
{
    screens::FrmTaxes& taxes = screens_.frmTaxes;
    const std::array<ui::CommandButton*, core::kTaxed> more{&taxes.Command1, &taxes.Command4, &taxes.Command6,
                                                            &taxes.Command8, &taxes.Command10};
    const std::int64_t before = state.TaxRate[faction];
    if (!taxes.Visible()) {
        Click(screens_.frmMain.Label5[screens::kMenuTaxes]);
    }
    Click(*more.at(faction));
    return state.TaxRate[faction] != before;
}

void Country::Save(std::int64_t dollars)
{
    const std::int64_t moved = std::min<std::int64_t>(dollars, state.Money);
    if (moved <= 0) {
        return;
    }
    Click(screens_.frmMain.Label5[screens::kMenuTaxes]);
    Click(screens_.frmTaxes.Command11);
    screens_.frmBank.Text1.SetText(core::Digits(moved));
    Click(screens_.frmBank.Command3);
}

bool Country::NextMonth(Bot& bot)
{
    const std::int64_t before = state.MonthsInPower;
    link_ = Link::Quiet;
    asked_ = false;
    Click(screens_.frmMain.Label5[screens::kMenuNextMonth]);
    if (state.MonthsInPower == before) {
        return false;
    }
    Carry(bot);
    if (tally != nullptr) {
        ++tally->months;
        ++tally->links[static_cast<std::size_t>(link_)];
        tally->calm += link_ == Link::Quiet && !asked_ && NothingIsRed(state) ? 1 : 0;
    }
    return true;
}

// Until the desk is free or the game is over.
void Country::Carry(Bot& bot)
{
    for (int step = 0; step < kMostSteps && ending == Ending::None; ++step) {
        if (!Answer(bot) && !desktop_.SkipPause()) {
            return;
        }
        if (struck_ && state.Dead == 1) {
            ending = Ending::Cia;
        }
    }
}

bool Country::Answer(Bot& bot)
{
    const std::vector<ui::Form*>& shown = desktop_.Shown();
    for (auto form = shown.rbegin(); form != shown.rend(); ++form) {
        const auto question = std::find_if(questions_.begin(), questions_.end(),
                                           [form](const Question& each) { return each.form == *form; });
        if (question != questions_.end()) {
            asking_ = *form;
            (this->*question->answer)(bot);
            asking_ = nullptr;
            return true;
        }
    }
    return false;
}

void Country::Face(Bot& bot)
{
    ally_ = bot.Ally(*this);
    const bool flees = ally_ == 0;
    if (asking_ == &screens_.frmRev) {
        Click(flees ? screens_.frmRev.Command1 : screens_.frmRev.Command2);
    } else if (asking_ == &screens_.frmGRev) {
        Click(flees ? screens_.frmGRev.Command1 : screens_.frmGRev.Command2);
    } else {
        Click(flees ? screens_.frmPrRev.Command1 : screens_.frmPrRev.Command2);
    }
}

void Country::ChooseAlly(Bot& /*bot*/)
{
    if (asking_ == &screens_.frmMes2) {
        Click(screens_.frmMes2.Command2);
        return;
    }
    screens::FrmChoose& choose = screens_.frmChoose;
    for (int button = 1; button < choose.Command1.End(); ++button) {
        if (choose.Command1[button].Now().visible &&
            state.ChoiceFaction.at(static_cast<std::size_t>(button)) == ally_) {
            Click(choose.Command1[button]);
            return;
        }
    }
    Click(choose.Command2);  // nobody is left
}

void Country::ChooseOfficer(Bot& bot)
{
    const bool army = asking_ == &screens_.frmArmyC;
    const auto row = static_cast<int>(bot.Officer(*this, army));
    Click(army ? screens_.frmArmyC.Label1[row] : screens_.frmPolc.Label1[row]);
}

void Country::AnswerRequest(Bot& bot)
{
    Click(bot.Grant(*this) ? screens_.frmShow2.Command1 : screens_.frmShow2.Command3);
}

void Country::AnswerDeal(Bot& bot)
{
    Click(bot.Accept(*this) ? screens_.frmRandom2.Command1 : screens_.frmRandom2.Command2);
}

void Country::AnswerPlot(Bot& bot)
{
    Click(bot.Execute(*this) ? screens_.frmAFailed.Command1 : screens_.frmAFailed.Command2);
}

void Country::Nod(Bot& /*bot*/)
{
    for (ui::CommandButton* button :
         {&screens_.frmUSA.Command1, &screens_.frmMes.Command1, &screens_.frmMes1.Command1,
          &screens_.frmMes3.Command1, &screens_.frmNewspaper.Command1}) {
        if (&button->GetForm() == asking_) {
            Click(*button);
        }
    }
    if (screens_.frmMes.Visible()) {  // it stays until the bang
        desktop_.SkipPause();
    }
}

void Country::NotePage(int page)
{
    if (tally != nullptr) {
        tally->repeatedPages += tally->pages.insert(page).second ? 0 : 1;
    }
}

void Country::Count(Link link)
{
    link_ = link_ == Link::Quiet ? link : link_;
}

// What the game writes into its journal says what has happened.
void Country::Hear(const core::Note& note)
{
    using core::Kind;
    const auto at = static_cast<std::size_t>(std::max<std::int64_t>(note.amount, 0));
    switch (note.kind) {
    case Kind::Action:
        if (tally != nullptr) {
            ++tally->actions.at(at);
        }
        break;
    case Kind::Request:
        asked_ = true;
        if (tally != nullptr) {
            ++tally->requests.at(at);
        }
        break;
    case Kind::Ally:
        if (tally != nullptr) {
            ++tally->allies.at(static_cast<std::size_t>(note.who));
        }
        break;
    case Kind::End:
        ending = note.amount == 1                ? Ending::Escaped
                 : note.who != core::Who::Nobody ? Ending::Assassin
                 : last_ == Kind::Flight         ? Ending::Executed
                                                 : Ending::Basement;
        break;
    case Kind::Flight:
        if (tally != nullptr) {
            ++tally->flights.at(at);
        }
        break;
    case Kind::Attempt:
        struck_ = note.who == core::Who::Americans;
        Count(struck_ ? Link::Cia : Link::Attempt);
        break;
    case Kind::Revolt:
        Count(note.who == core::Who::Prisoners ? Link::Prisoners : Link::Guerrillas);
        break;
    case Kind::War:
        Count(Link::War);
        break;
    case Kind::Coup:
        Count(Link::Coup);
        break;
    case Kind::Revolution:
        Count(Link::Revolution);
        break;
    case Kind::ChiefGone:
        Count(Link::ChiefGone);
        NotePage(static_cast<int>(note.amount) + (note.who == core::Who::Army ? kArmyPages : 0));
        break;
    case Kind::Disaster:
        Count(Link::Disaster);
        NotePage(static_cast<int>(note.amount) + kDisasterPages);
        break;
    case Kind::Demand:
        Count(Link::Demand);
        break;
    case Kind::Damage:
    case Kind::Claim:
        Count(Link::Damage);
        break;
    case Kind::GoodNews:
        Count(Link::GoodNews);
        NotePage(kGoodNewsPage);
        break;
    default:
        break;
    }
    last_ = note.kind;
}

std::int64_t Country::Points() const
{
    return ending == Ending::Escaped ? persist::Score(persist::EntryOf(state)) / kPoints : 0;
}

}  // namespace balance
