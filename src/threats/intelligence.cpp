#include "threats/intelligence.h"

#include "threats/intelligence_rules.h"

#include <algorithm>

namespace threats {

namespace {

constexpr std::int64_t kHarmless = 64;  // the highest Opposition without a bar
constexpr std::int64_t kPixelsAPoint = screens::kBarPixels;

// Its exact length is kept in twips; drawn it is cut where the room ends, and a sign says so.
void Draw(ui::Shape& bar, ui::Label& goesOn, std::int64_t opposition)
{
    const std::int64_t points = opposition - kHarmless;
    bar.SetTwips(bar.Now().twips + points * screens::kBarPointTwips);
    const std::int64_t width = screens::kBarPixels + points * kPixelsAPoint;
    ui::Rect place = bar.Place();
    place.width = static_cast<int>(std::min<std::int64_t>(width, screens::kBarRoom));
    bar.SetRect(place);
    goesOn.SetVisible(width > screens::kBarRoom);
}

}  // namespace

void Intelligence::ArmyIn()
{
    army_.Hide();
    report_.Unload();  // each report starts from bare bars
    report_.Show();
    const Forecast forecast = Foresee(state_);
    for (int faction = 1; faction <= screens::kForecastRows; ++faction) {
        const auto n = static_cast<std::size_t>(faction);
        const std::int64_t opposition = state_.Opposition[n - 1];
        if (forecast.starters[n]) {
            Draw(report_.Rpro[faction], report_.RproGoesOn[faction], opposition);
        }
        if (forecast.assassins[n]) {
            Draw(report_.APro[faction], report_.AProGoesOn[faction], opposition);
        }
    }
    report_.Label4.SetText(ReportOn(forecast));
}

}  // namespace threats
