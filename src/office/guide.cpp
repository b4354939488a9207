#include "office/guide.h"

#include <algorithm>
#include <array>

namespace office {

namespace {

constexpr std::int64_t kFirstMonths = 3;

constexpr std::string_view kGoesOn =
    "The country is speaking. A click on the ground, Return or Space goes on.";
constexpr std::string_view kWaitsForYou =
    "The secretary waits for you: a click on the ground, Return or Space.";

}  // namespace

bool Guide::KnowsTheWay() const
{
    const std::array<unsigned, 4> looks{screens_.frmPolice.Showings(), screens_.frmTaxes.Showings(),
                                        screens_.frmArmy.Showings(), screens_.frmActions.Showings()};
    return std::count(looks.begin(), looks.end(), 0U) <= 2;
}

std::string_view Guide::Line() const
{
    if (desktop_.PauseEnd()) {
        return desktop_.pauses == ui::Pauses::ByClick ? kWaitsForYou : kGoesOn;
    }
    if (!firstSteps || state_.MonthsInPower > kFirstMonths || KnowsTheWay()) {
        return {};
    }
    if (screens_.frmPolice.Showings() == 0) {
        return "Where to look first: the police report, key 3. It says who is against you.";
    }
    return screens_.frmTaxes.Showings() == 0
               ? "Where to look next: taxes, key 2. It says how long you can pay."
               : "Where to look next: actions, key 1. It says what can be done.";
}

std::string Guide::WhyNot() const
{
    return "One thing at a time, Mr.President. " +
           (!month_.WhoWaits().empty() ? std::string(month_.WhoWaits())
            : desktop_.PauseEnd()      ? std::string("The country is still speaking.")
                                       : std::string("Somebody waits for your answer."));
}

}  // namespace office
