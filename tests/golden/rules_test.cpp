// Every rule on a thousand records, and what it makes of them in one number: those in rules.txt, a line a rule.
//
// The records are drawn, most of their values near a limit of some rule, so that each branch is gone through on both
// sides. A line that differs names the rule that does something else; what it should do, its own tests say.
// `tools/golden --renew` writes rules.txt anew.
#include "core/budget.h"
#include "core/cards.h"
#include "core/fields.h"
#include "core/month_rules.h"
#include "core/officers.h"
#include "core/society.h"
#include "core/start_values.h"
#include "events/card_effects.h"
#include "events/disasters.h"
#include "events/event_rules.h"
#include "events/proposal_rules.h"
#include "events/request_draw.h"
#include "golden/sum.h"
#include "instruments/action_refusals.h"
#include "instruments/chief_rules.h"
#include "instruments/report_rules.h"
#include "instruments/tax_rules.h"
#include "office/chronicle_rules.h"
#include "office/farewell_rules.h"
#include "office/margin_rules.h"
#include "office/slip_rules.h"
#include "office/strip_words.h"
#include "office/telling.h"
#include "persist/hall_of_fame.h"
#include "persist/saved_game.h"
#include "text/short_text.h"
#include "threats/assassination_rules.h"
#include "threats/civil_war_rules.h"
#include "threats/intelligence_rules.h"
#include "threats/revolt_rules.h"
#include "threats/revolution_rules.h"
#include "threats/war_rules.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

namespace {

using core::Chance;
using core::GameState;
using test::Sum;

constexpr int kRecords = 1000;

// Fields that say which, not how much, and flags: their last value; the first is 0.
const std::map<std::string_view, std::int64_t> kCodes{{"Difficulty", 2},
                                                      {"War", 3},
                                                      {"GuerrillaWar", 1},
                                                      {"AidAsked", 1},
                                                      {"AidWait", 3},
                                                      {"IslandsSold", 3},
                                                      {"PoliceNoInfo", 1},
                                                      {"ActionDone", 1},
                                                      {"AssassinWait", 2},
                                                      {"RevolutionWait", 2},
                                                      {"RevolutionStarter", 7},
                                                      {"Revolutionaries", 1},
                                                      {"ChoiceFaction", 7},
                                                      {"AllyFaction", 7},
                                                      {"OutsiderRevolt", 1},
                                                      {"FactionAttempts", 9},
                                                      {"DealCode", 7},
                                                      {"USBases", 2},
                                                      {"NewsKind", 2},
                                                      {"EventDone", 1},
                                                      {"ChiefNewsDone", 1},
                                                      {"GoodNewsDone", 1},
                                                      {"AirBase", 1},
                                                      {"NavalBase", 1},
                                                      {"RequestDraw", 8},
                                                      {"RequestFaction", 5},
                                                      {"RequestDone", 1},
                                                      {"WarThisMonth", 1},
                                                      {"AttackingFaction", 7},
                                                      {"ActionChoice", 25},
                                                      {"AssassinSoundPlayed", 1},
                                                      {"Dead", 1},
                                                      {"AssassinationAttempts", 9}};
// What rules ask for, and what is next to it.
constexpr std::int64_t kLimits[] = {-1, 0,  1,  2,  3,  4,  5,  11, 12, 13,  14, 15, 16,
                                    19, 20, 21, 29, 30, 31, 39, 40, 41, 49,  50, 51, 54,
                                    55, 56, 64, 65, 66, 70, 71, 72, 99, 100, 101};

// One of the records: mostly the start of a game, here and there something else.
class Writer {
public:
    explicit Writer(Chance& chance) : chance_(chance) {}

    GameState Write(const std::vector<std::string>& names)
    {
        GameState state;
        core::SetStartValues(state);
        core::DrawNeighbours(state, chance_);
        core::CreateChiefs(state, chance_, names);
        for (const core::Element& each : core::AllElements()) {
            if (const core::Value was = each.Get(state); std::holds_alternative<std::int64_t>(was)) {
                each.Set(state, Instead(each.field->name, std::get<std::int64_t>(was)));
            }
        }
        for (core::OfficerTable* table : {&state.PoliceChiefs, &state.ArmyChiefs}) {
            for (std::size_t row = 1; row < table->size(); ++row) {
                if (Pick(3) == 0) {
                    instruments::Appoint(*table, row);
                }
            }
            (*table)[0][core::kAbility] = core::i32{Pick(12)};
            (*table)[0][core::kAmbition] = core::i32{Pick(12)};
        }
        state.PlayerName = std::string(static_cast<std::size_t>(Pick(40)), 'm') + " Ada";
        return state;
    }

private:
    std::int64_t Pick(std::int64_t count) { return chance_.Between(0, count - 1); }

    std::int64_t Instead(std::string_view name, std::int64_t was)
    {
        if (name == "PoliceChiefs" || name == "ArmyChiefs") {
            return was;
        }
        if (const auto code = kCodes.find(name); code != kCodes.end()) {
            return Pick(3) == 0 ? 0 : Pick(code->second + 1);
        }
        if (name == "CoupState") {
            constexpr std::int64_t kCoups[] = {0, 1, 2, 11, 22};
            return kCoups[Pick(5)];
        }
        constexpr std::int64_t kMuch = 100'000'000;
        switch (Pick(8)) {
        case 0:
            return Pick(4);
        case 1:
        case 2:
            return was > 1000 ? was : kLimits[Pick(std::size(kLimits))];
        case 3:
            return was * (50 + Pick(100)) / 100;
        case 4:
            return was > 1000 ? Pick(4 * kMuch) - kMuch : Pick(110);
        default:
            return was;
        }
    }

    Chance& chance_;
};

struct Case {
    GameState state;
    Chance chance;
    std::int64_t pick = 0;  // 0 .. 999: the rule's argument, if it takes one
    Sum& sum;
    const std::vector<std::string>& names;  // of officers

    template <class T> void Tell(const std::optional<T>& value)
    {
        sum.Add(value.has_value());
        if (value) {
            sum.Add(*value);
        }
    }
    std::int64_t Of(std::int64_t first, std::int64_t last) const { return first + pick % (last - first + 1); }
};

const core::NumberFormat kFormat;

std::vector<core::Note> DrawNotes(Case& c)
{
    std::vector<core::Note> notes;
    for (std::int64_t i = c.chance.Between(0, 4); i > 0; --i) {
        notes.push_back({static_cast<core::Kind>(c.chance.Between(0, static_cast<int>(core::Kind::End))),
                         static_cast<core::Who>(c.chance.Between(0, static_cast<int>(core::Who::Americans))),
                         c.chance.Between(0, 3), c.state.MonthsInPower});
    }
    return notes;
}

persist::Chronicle DrawChronicle(Case& c)
{
    persist::Chronicle rows;
    for (std::int64_t i = 0; i < 1 + c.pick % 5; ++i) {
        c.state.MonthsInPower = i + 1;
        rows.push_back(office::RowOf(c.state, DrawNotes(c)));
        core::UpdatePopularity(c.state);
        c.state.PoliceNoInfo = c.chance.Between(0, 1);
        for (core::i16& opposition : c.state.Opposition) {
            opposition += c.chance.Between(-20, 20);
        }
    }
    return rows;
}

void Tell(const ui::Chart& chart, Sum& sum)
{
    std::ostringstream text;
    text << chart.low << ' ' << chart.high;
    for (const ui::Curve& curve : chart.curves) {
        for (const std::optional<double>& value : curve.values) {
            text << ' ' << value.value_or(-1);
        }
        text << curve.color.red << ',' << curve.color.green << ',' << curve.color.blue << curve.dashed
             << curve.hatched;
    }
    for (const ui::Limit& limit : chart.limits) {
        text << '|' << limit.value << limit.dotted;
    }
    for (const ui::GraphEvent& event : chart.events) {
        text << '!' << event.at << static_cast<int>(event.mark);
    }
    sum.Add(text.str());
}

void TellChronicle(Case& c)
{
    const persist::Chronicle rows = DrawChronicle(c);
    c.sum.Add(persist::PrintChronicle(rows));
    for (const office::LogLine& line : office::LogOf(rows, kFormat)) {
        c.sum.Add(line.month);
        c.sum.Add(static_cast<int>(line.mark));
        c.sum.Add(line.text);
    }
    for (std::size_t i = 0; i < office::kSeries; ++i) {
        const auto series = static_cast<office::Series>(i);
        c.sum.Add(office::NameOf(series));
        c.Tell(office::LastOf(series, rows));
        c.sum.Add(
            office::IsOverLimit(series, kLimits[static_cast<std::size_t>(c.pick) % std::size(kLimits)]));
        Tell(office::ChartOf(series, rows), c.sum);
        c.sum.Add(office::SaidOf(series, rows));
    }
    c.sum.Add(office::SaidOfMoney(rows));
    Tell(office::MoneyOf(rows), c.sum);
}

void TellMargin(Case& c)
{
    for (const office::Money& money :
         {office::MoneyOfAction(c.state, c.Of(1, 25)), office::MoneyOfRequest(c.state, c.Of(1, 7))}) {
        c.sum.Add(office::Told(money, kFormat));
    }
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        const office::Known known = office::KnownOf(c.state, static_cast<core::Group>(g));
        c.Tell(known.strength);
        c.Tell(known.opposition);
    }
    c.Tell(office::HostilityOf(c.state));
}

void TellSlip(Case& c)
{
    const office::Standing before = office::StandingOf(c.state);
    c.state.PoliceNoInfo = c.pick % 2;
    c.state.Population[core::Guerrillas] += c.chance.Between(-20, 20);
    c.state.Strength[core::Guerrillas] += c.chance.Between(-2, 2);
    const office::Standing after = office::StandingOf(c.state);
    for (const std::string& line : office::Happenings(DrawNotes(c), before, after, kFormat)) {
        c.sum.Add(line);
    }
    for (std::size_t row = 0; row < office::kStandingRows; ++row) {
        c.Tell(office::Figure(after, row));
        c.Tell(office::Change(before, after, row));
    }
    c.sum.Add(after.treasury);
    c.sum.Add(after.balance);
    c.sum.Add(office::QuietLine(c.pick));
    c.Tell(office::ToldAction(c.pick % 28));
}

void TellStrip(Case& c)
{
    const office::Strip strip = office::StripOf(c.state);
    for (const std::string& line : office::SpokenStrip(strip)) {
        c.sum.Add(line);
    }
    c.Tell(strip.favour);
    for (const office::Warning& each : strip.warnings) {
        c.sum.Add(static_cast<int>(each.alarm) * 100 + static_cast<int>(each.group));
    }
}

void TellFarewell(Case& c)
{
    constexpr std::int64_t kFortunes[] = {0,          999'999,    1'000'000, 19'999'999,
                                          20'000'000, 79'999'999, 80'000'000};
    constexpr std::int64_t kReigns[] = {1, 6, 7, 35, 36, 100};
    c.state.SwissBank = kFortunes[c.pick % 7];
    c.state.MonthsInPower = kReigns[c.pick / 7 % 6];
    const office::Obituary of = office::ObituaryOf(c.state, DrawNotes(c));
    c.sum.Add(of.ownArmy);
    c.sum.Add(of.byHelicopter);
    const office::FarewellPage& page = office::PageFor(of);
    for (const std::string_view text : {page.headline, page.deck, page.below, page.caption, page.left.title,
                                        page.left.text, page.right.title, page.right.text, page.theEnd}) {
        c.sum.Add(office::Filled(text, of));
    }
    c.sum.Add(office::Term(c.pick));
    c.sum.Add(office::RankLine(static_cast<int>(c.pick % 10), "points"));
}

void TellHall(Case& c)
{
    const persist::HallEntry entry = persist::EntryOf(c.state);
    c.sum.Add(persist::PlainScore(entry));
    c.sum.Add(persist::Score(entry));
    c.sum.Add(persist::ShownScore(static_cast<double>(persist::Score(entry)) / 7, kFormat));
    c.sum.Add(persist::Sentence(entry, kFormat));
    persist::HallList hall = persist::FreshHall();
    if (const auto place = persist::Enter(hall, entry, c.pick % 2 == 0)) {
        c.sum.Add(static_cast<int>(*place));
    }
    c.sum.Add(persist::WriteHall(hall));
}

void TellForecast(Case& c)
{
    const threats::Forecast forecast = threats::Foresee(c.state);
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        c.sum.Add(forecast.starters[n]);
        c.sum.Add(forecast.supporters[n]);
        c.sum.Add(forecast.assassins[n]);
    }
    c.sum.Add(threats::ReportOn(forecast));
}

void TellChiefs(Case& c)
{
    for (const core::OfficerTable* table : {&c.state.PoliceChiefs, &c.state.ArmyChiefs}) {
        c.sum.Add(static_cast<int>(instruments::UsedRows(*table)));
        c.sum.Add(instruments::HasCandidates(*table));
        c.sum.Add(instruments::IsCandidate(*table, static_cast<std::size_t>(c.Of(0, 12))));
        c.sum.Add(core::ChiefInOffice(*table));
        c.sum.Add(instruments::ChiefBetrays(c.state, c.chance, *table, core::Army, 15));
    }
}

void TellReport(Case& c)
{
    c.sum.Add(static_cast<int>(instruments::WhyNoReport(c.state)));
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        c.sum.Add(static_cast<int>(instruments::OppositionDanger(c.state.Opposition[g])));
        c.sum.Add(static_cast<int>(instruments::OutsiderDanger(c.state.Strength[g])));
    }
    c.sum.Add(instruments::AmericansAreDangerous(c.state));
    instruments::CountTheCountry(c.state);
}

struct Rule {
    const char* name;
    void (*apply)(Case&);
};
const Rule kRules[] = {
    {"start",
     [](Case& c) {
         c.state.Difficulty = c.Of(0, 3);
         core::SetStartValues(c.state);
         core::DrawNeighbours(c.state, c.chance);
         c.state.ChiefNameSeed = c.Of(1, 109);
         core::CreateChiefs(c.state, c.chance, c.names);
     }},
    {"taxes", [](Case& c) { core::UpdateTaxIncome(c.state); }},
    {"expenses", [](Case& c) { core::UpdateExpTotal(c.state); }},
    {"balance",
     [](Case& c) {
         for (const std::int64_t sum : {core::Balance(c.state), core::BalanceNow(c.state),
                                        core::PeacefulExpState(c.state), core::PersonalArmyPay(c.state)}) {
             c.sum.Add(sum);
         }
     }},
    {"turn", [](Case& c) { core::TurnMonth(c.state); }},
    {"close", [](Case& c) { core::CloseMonth(c.state); }},
    {"accounts", [](Case& c) { core::SettleAccounts(c.state); }},
    {"covered", [](Case& c) { c.sum.Add(core::TreasuryCovers(c.state)); }},
    {"count", [](Case& c) { core::CountMonth(c.state); }},
    {"police report", [](Case& c) { core::DecidePoliceReport(c.state, c.chance); }},
    {"clear revolution", [](Case& c) { core::ClearRevolution(c.state); }},
    {"clear game", [](Case& c) { core::ClearGame(c.state); }},
    {"popularity", [](Case& c) { core::UpdatePopularity(c.state); }},
    {"population", [](Case& c) { core::UpdateTotalPopulation(c.state); }},
    {"strength",
     [](Case& c) {
         core::UpdateTotalStrength(c.state);
         core::UpdateStrengthShares(c.state);
     }},
    {"bounds", [](Case& c) { core::FixNum(c.state); }},
    {"actions", [](Case& c) { events::ApplyActionEffect(c.Of(1, 25), c.state); }},
    {"requests", [](Case& c) { events::ApplyRequestEffect(c.Of(1, 7), c.state); }},
    {"disasters", [](Case& c) { events::ApplyDisaster(static_cast<std::size_t>(c.Of(1, 3)), c.state); }},
    {"good news", [](Case& c) { events::ApplyGoodNews(c.state); }},
    {"events",
     [](Case& c) {
         const events::Event event = events::DrawEvent(c.state, c.chance);
         c.sum.Add(static_cast<int>(event.kind) * 10 + static_cast<int>(event.number));
         c.sum.Add(static_cast<int>(events::ClaimOf(static_cast<std::size_t>(c.Of(1, 3)))));
     }},
    {"accept", [](Case& c) { events::Accept(c.state); }},
    {"refuse", [](Case& c) { events::Refuse(c.state); }},
    {"aid", [](Case& c) { c.sum.Add(events::GrantAid(c.state)); }},
    {"damage", [](Case& c) { c.sum.Add(events::DamageOf(c.state)); }},
    {"request drawn",
     [](Case& c) {
         c.sum.Add(events::DrawRequest(c.state, c.chance));
         c.sum.Add(events::NobodyToRelease(c.state));
     }},
    {"refusals",
     [](Case& c) {
         c.Tell(instruments::RefusedBySituation(c.state, c.Of(1, 25)));
         c.Tell(instruments::RefusedAsDone(c.state, c.Of(1, 25)));
     }},
    {"chiefs", TellChiefs},
    {"report", TellReport},
    {"tax steps",
     [](Case& c) {
         c.sum.Add(instruments::RaiseTax(c.state, static_cast<core::Group>(c.Of(0, 4))));
         c.sum.Add(instruments::CutTax(c.state, static_cast<core::Group>(c.pick / 7 % 5)));
     }},
    {"tax range", [](Case& c) { instruments::KeepTaxesInRange(c.state); }},
    {"plotters",
     [](Case& c) {
         c.sum.Add(threats::DrawPlotters(c.state, c.chance));
         c.sum.Add(threats::FactionThatTried(c.state));
     }},
    {"attempt",
     [](Case& c) {
         threats::BeginAttempt(c.state, c.Of(1, 7));
         c.sum.Add(threats::AttemptKills(c.state, c.chance));
     }},
    {"plotters executed",
     [](Case& c) { c.sum.Add(threats::ExecutePlotters(c.state, c.chance, c.Of(1, 7))); }},
    {"plotters spared",
     [](Case& c) {
         threats::SparePlotters(c.state, c.Of(1, 7));
         threats::ForgetAttempts(c.state);
     }},
    {"sounds", [](Case& c) { c.sum.Add(threats::NextSound(c.state, c.chance)); }},
    {"allies paid", [](Case& c) { threats::PayAlly(c.state, c.Of(1, 7)); }},
    {"battle", [](Case& c) { c.sum.Add(threats::BattleIsWon(c.state, c.chance)); }},
    {"rebels punished", [](Case& c) { threats::PunishRebels(c.state, c.chance); }},
    {"guards buried", [](Case& c) { threats::BuryGuards(c.state, c.chance); }},
    {"forecast", TellForecast},
    {"guerrillas",
     [](Case& c) {
         c.sum.Add(threats::UnrestBonus(c.state));
         c.sum.Add(threats::GuerrillasAreReady(c.state));
         c.sum.Add(threats::RaiseGuerrillas(c.state));
     }},
    {"prisoners",
     [](Case& c) {
         c.sum.Add(threats::PrisonersAreReady(c.state));
         c.sum.Add(threats::RaisePrisoners(c.state));
     }},
    {"revolution",
     [](Case& c) {
         threats::DrawRevolution(c.state, c.chance);
         c.sum.Add(threats::RevolutionMessage(c.state));
         threats::MeasureRevolution(c.state);
     }},
    {"flight",
     [](Case& c) {
         c.sum.Add(threats::ThrowsThatEscape(c.state));
         c.sum.Add(threats::HelicopterEscapes(c.state, c.chance));
         c.sum.Add(threats::WalkEscapes(c.chance));
     }},
    {"war", [](Case& c) { c.sum.Add(threats::WarIsWon(c.state, c.chance)); }},
    {"victory", [](Case& c) { threats::TakeVictory(c.state); }},
    {"defeat", [](Case& c) { threats::TakeDefeat(c.state); }},
    {"margin", TellMargin},
    {"slip", TellSlip},
    {"strip", TellStrip},
    {"chronicle", TellChronicle},
    {"farewell", TellFarewell},
    {"hall", TellHall},
    {"saved", [](Case& c) { c.sum.Add(persist::WriteSavedGame(c.state)); }},
    {"numbers",
     [](Case& c) {
         // as a player types them, and as broken
         constexpr std::string_view kKeys = "0123456789,.,.$- 00";
         std::string typed;
         for (std::int64_t i = c.chance.Between(1, 9); i > 0; --i) {
             typed += kKeys[static_cast<std::size_t>(c.chance.Between(0, kKeys.size() - 1))];
         }
         for (const core::NumberFormat& format :
              {core::NumberFormat{}, core::NumberFormat{".", ","}, core::NumberFormat{" ", ","}}) {
             const std::optional<double> amount = format.ParseAmount(typed);
             c.sum.Add(amount.has_value());
             const double value = amount.value_or(core::Real(c.state.Money) / 7);
             c.sum.Add(format.Amount(value));
             c.sum.Add(format.OneDecimal(value));
             c.sum.Add(format.Amount(core::RoundHalfEven(value / 2)));
             c.sum.Add(core::ChangedByPercent(c.state.Money, core::Real(c.Of(-30, 30)) / 2));
         }
         c.sum.Add(text::Shortened(c.state.PlayerName, static_cast<std::size_t>(c.Of(0, 45))));
     }},
};

std::uint64_t Total(const GameState& state, Sum& sum)
{
    for (const core::Element& each : core::AllElements()) {
        const core::Value value = each.Get(state);
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            sum.Add(*number);
        } else if (const auto* share = std::get_if<float>(&value)) {
            constexpr float kPrecise = 1000;
            sum.Add(static_cast<std::int64_t>(std::lround(*share * kPrecise)));
        } else if (const auto* text = std::get_if<std::string>(&value)) {
            sum.Add(*text);
        }
    }
    return sum.Take();
}

TEST(Golden, RulesDoAsTheyDid)
{
    std::map<std::string, std::string> before;
    std::ifstream file("rules.txt");
    for (std::string line; std::getline(file, line);) {
        before[line.substr(0, line.find(':'))] = line;
    }
    std::vector<std::string> names(core::kNamesNeeded + 1);
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = "N" + std::to_string(i);
    }
    Chance chance;
    chance.Seed(1);
    Writer writer(chance);
    std::vector<GameState> records;
    std::generate_n(std::back_inserter(records), kRecords, [&] { return writer.Write(names); });
    std::vector<std::int64_t> picks;
    std::generate_n(std::back_inserter(picks), kRecords, [&] { return chance.Between(0, 999); });
    std::ostringstream now;
    for (const Rule& rule : kRules) {
        Sum sum;
        Sum all;
        for (std::size_t i = 0; i < records.size(); ++i) {
            Case c{records[i], Chance(), picks[i], sum, names};
            c.chance.Seed(i);
            rule.apply(c);
            all.Add(static_cast<std::int64_t>(Total(c.state, sum)));
        }
        std::ostringstream line;
        line << rule.name << ": " << std::hex << all.Take();
        EXPECT_EQ(line.str(), before[rule.name]) << " | does something else |";
        now << line.str() << '\n';
    }
    if (std::getenv("QUENVALE_RENEW_GOLDEN") != nullptr) {
        std::ofstream("rules.txt") << now.str();
    }
}

}  // namespace
