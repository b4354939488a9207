#include "instruments/police_report.h"

#include "core/officers.h"
#include "instruments/report_rules.h"
#include "month/banner.h"
#include "ui/look/look.h"

#include <algorithm>
#include <limits>

namespace instruments {

namespace {

using core::Digits;
using screens::kReportCountry;
using screens::kReportGroups;
using screens::kReportYourArmy;
using ui::Mark;

// By ReportRefusal, None first.
constexpr std::string_view kRefusals[] = {
    "",
    "Police chief : 'I am sorry Mr.President, but I didn't manage to collect any information this month!'",
    "We refuse to give these information! You are not so popular to us!",
    "No data available. We are not strong enough to collect these information!",
};

// How a cell says it, by Danger; the legend explains colours and marks.
struct Warning {
    ui::Color color;
    Mark mark;
};
constexpr Warning kWarnings[] = {
    {look::kWhite, Mark::None},
    {look::kYellow, Mark::Disc},
    {look::kRed, Mark::Triangle},
    {look::kMagenta, Mark::Diamond},
};

// The country's cell by its opposition (100 - Popularity, not bounded): the last row that is reached.
struct CountryWarning {
    std::int64_t from;  // percent
    ui::Color color;
    bool opaque;
    ui::Color ground;
    Mark mark;
};
// clang-format off
constexpr CountryWarning kCountryWarnings[] = {
    {std::numeric_limits<std::int64_t>::min(), look::kWhite, false, look::kBlack, Mark::None},
    { 80, look::kYellow, false, look::kBlack,  Mark::Disc},
    {100, look::kRed,    false, look::kBlack,  Mark::Triangle},
    {120, look::kRed,    true,  look::kWhite,  Mark::Triangle},
    {140, look::kRed,    true,  look::kYellow, Mark::Triangle},
    {160, look::kBlack,  true,  look::kRed,    Mark::Triangle},
};
// clang-format on

std::string Percent(std::int64_t value)
{
    return Digits(value) + "%";
}

// Only the text keeps within 0..100; the record may hold less or more.
std::string BoundedPercent(std::int64_t value)
{
    return Percent(std::clamp<std::int64_t>(value, 0, 100));
}

void Warn(ui::Label& cell, Danger danger)
{
    const Warning& warning = kWarnings[static_cast<std::size_t>(danger)];
    cell.SetFore(warning.color);
    cell.SetMark(warning.mark);
}

}  // namespace

void PoliceReport::Open()
{
    if (const ReportRefusal refusal = WhyNoReport(state_); refusal != ReportRefusal::None) {
        month::Say(banner_, kRefusals[static_cast<std::size_t>(refusal)]);
        return;
    }
    police_.Show();
    police_.Label10.SetText("POLICE CHIEF IS " + core::ChiefInOffice(state_.PoliceChiefs));
    Ref();
    Colour();
}

void PoliceReport::Ref()
{
    CountTheCountry(state_);
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        ShowGroup(static_cast<core::Group>(g));
    }
    police_.lblAF.SetText(Percent(std::min<std::int64_t>(100 - state_.AmericanHostility, 100)));
    ShowYourArmy();
    ShowCountry();
}

void PoliceReport::ShowGroup(core::Group group)
{
    const screens::ReportRow& row = kReportGroups[group];
    const float share = state_.StrengthPct[group];
    police_.lblPER[row.share].SetText(
        group == core::Prisoners && share == 0 ? "0%" : format_.OneDecimal(share) + "%");
    police_.lblPER[row.strength].SetText(Digits(state_.Strength[group]));
    police_.lblPER[row.population].SetText(format_.Amount(state_.Population[group]));
    police_.lblPER[row.opposition].SetText(BoundedPercent(state_.Opposition[group]));
}

// Nobody in it dares to oppose the president: that cell stays as it is printed.
void PoliceReport::ShowYourArmy()
{
    police_.lblPER[kReportYourArmy.strength].SetText(Digits(state_.Strength[core::PersonalArmy]));
    police_.lblPER[kReportYourArmy.share].SetText(Percent(state_.StrengthPctPersonalArmy));
    police_.lblPER[kReportYourArmy.population].SetText(Digits(state_.Population[core::PersonalArmy]));
}

void PoliceReport::ShowCountry()
{
    police_.lblPER[kReportCountry.strength].SetText(Digits(state_.TotalStrength));
    police_.lblPER[kReportCountry.opposition].SetText(BoundedPercent(100 - state_.Popularity));
    police_.lblPER[kReportCountry.population].SetText(format_.Amount(state_.TotalPopulation));
    police_.lblPER[kReportCountry.share].SetText("100%");
}

void PoliceReport::Colour()
{
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        Warn(police_.lblPER[kReportGroups[f].opposition], OppositionDanger(state_.Opposition[f]));
    }
    for (const core::Group outsider : {core::Guerrillas, core::Prisoners}) {
        Warn(police_.lblPER[kReportGroups[outsider].strength], OutsiderDanger(state_.Strength[outsider]));
    }
    const bool dangerous = AmericansAreDangerous(state_);
    police_.lblAF.SetFore(dangerous ? look::kRed : look::kGreen);
    police_.lblAF.SetMark(dangerous ? Mark::Triangle : Mark::None);
    ColourCountry();
}

void PoliceReport::ColourCountry()
{
    const std::int64_t opposition = 100 - state_.Popularity;
    const auto last =
        std::find_if(std::rbegin(kCountryWarnings), std::rend(kCountryWarnings),
                     [opposition](const CountryWarning& each) { return opposition >= each.from; });
    ui::Label& cell = police_.lblPER[kReportCountry.opposition];
    cell.SetFore(last->color);
    cell.SetOpaque(last->opaque);
    cell.SetBack(last->ground);
    cell.SetMark(last->mark);
}

}  // namespace instruments
