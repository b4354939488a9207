#include "office/strip.h"

#include "core/names.h"
#include "office/strip_rules.h"
#include "ui/look/look.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace office {

namespace {

using screens::kStripWarningCell;
using screens::kStripWarnings;

// By Alarm.
constexpr std::array kMarks{ui::Mark::Triangle, ui::Mark::Disc, ui::Mark::Diamond, ui::Mark::Question};

std::string_view WordOf(const Warning& warning)
{
    return warning.alarm == Alarm::NoReport ? "No report" : core::kGroupNames[warning.group];
}

// Where each of the words stands: a cell is as wide as its word, and all of them are narrower when three long ones
// would not fit otherwise. In pixels a letter, at the larger and the smaller size of the style. Where even that is
// too long the least grave gives way, but for the missing report.
std::vector<ui::Rect> WarningPlaces(std::vector<Warning>& warnings)
{
    constexpr int kMarkWidth = 26;
    constexpr int kGap = 6;
    constexpr int kSizes = 2;
    constexpr std::array<int, kSizes> kTenLetters{88, 78};
    std::vector<ui::Rect> places;
    for (const int tenLetters : kTenLetters) {
        places.clear();
        int x = kStripWarningCell.left;
        for (const Warning& each : warnings) {
            const int width = kMarkWidth + (static_cast<int>(WordOf(each).size()) * tenLetters + 9) / 10;
            places.push_back({x, kStripWarningCell.top + 6, width, 20});
            x += width + kGap;
        }
        if (x - kGap <= kStripWarningCell.Right()) {
            return places;
        }
    }
    warnings.erase(warnings.end() - (warnings.back().alarm == Alarm::NoReport ? 2 : 1));
    return WarningPlaces(warnings);
}

}  // namespace

void StatusStrip::Say(std::string_view line)
{
    said_ = line;
    saidAt_ = desktop_.Uses();
    waited_ = !desktop_.TakesInput(screens_.frmMain);
    screens_.frmStrip.lblLine.SetText(line);
}

// Not at the start, in the hall or in an uprising, and not under a dialog that reaches so far down.
bool StatusStrip::HasThePlace() const
{
    const bool governs = screens_.frmMain.Visible() && !screens_.frmName.Visible() && state_.Dead == 0 &&
                         screens_.frmMonthBanner.Back() != look::kRed;
    const auto& shown = desktop_.Shown();
    return governs && std::none_of(shown.begin(), shown.end(), [](const ui::Form* form) {
               const ui::Form::Design& design = form->GetDesign();
               return !design.backdrop && !design.fixture && form->Place().Overlaps(screens::kStripPlace);
           });
}

void StatusStrip::Refresh()
{
    screens::FrmStrip& strip = screens_.frmStrip;
    if (!HasThePlace()) {
        strip.Hide();
        return;
    }
    if (!strip.Visible()) {
        strip.Show();
    }
    if (desktop_.Uses() != saidAt_ || (waited_ && desktop_.TakesInput(screens_.frmMain))) {
        said_.clear();
    }
    strip.lblLine.SetText(!said_.empty() ? said_ : guide ? guide() : std::string_view());
    const Strip facts = StripOf(state_);
    ShowFigures(facts);
    ShowFavour(facts);
    ShowWarnings(facts);
}

void StatusStrip::ShowFigures(const Strip& facts)
{
    screens::FrmStrip& strip = screens_.frmStrip;
    const auto show = [this](ui::Label& label, std::int64_t dollars) {
        label.SetText(format_.Amount(dollars));
        label.SetFore(dollars < 0 ? look::kStripLoss : look::kSecretText);
    };
    strip.lblMonth.SetText(core::Digits(facts.month));
    show(strip.lblMoney, facts.treasury);
    show(strip.lblBalance, facts.balance);
    strip.lblBalance.SetMark(facts.balance < 0   ? ui::Mark::Down
                             : facts.balance > 0 ? ui::Mark::Up
                                                 : ui::Mark::None);
}

void StatusStrip::ShowFavour(const Strip& facts)
{
    screens::FrmStrip& strip = screens_.frmStrip;
    strip.lblFavour.SetText(facts.favour ? core::Digits(*facts.favour) + "%" : "?");
    constexpr std::int64_t kWhole = std::int64_t{screens::kFavourParts} * screens::kFavourPart;
    std::int64_t pixels = std::clamp<std::int64_t>(facts.favour.value_or(0), 0, 100) * kWhole / 100;
    for (int part = 0; part < screens::kFavourParts; ++part) {
        ui::Rect place = screens::FavourPart(part);
        place.width = static_cast<int>(std::min<std::int64_t>(pixels, screens::kFavourPart));
        pixels -= place.width;
        strip.shpFavour[part].SetRect(place);
        strip.shpFavour[part].SetVisible(place.width > 0);
    }
}

void StatusStrip::ShowWarnings(Strip facts)
{
    screens::FrmStrip& strip = screens_.frmStrip;
    const bool quiet = strip.lblLine.Text().empty();
    if (quiet && facts.warnings.empty()) {
        strip.lblLine.SetText(kCalm);
    }
    const std::vector<ui::Rect> places = WarningPlaces(facts.warnings);
    for (int i = 0; i < kStripWarnings; ++i) {
        const auto at = static_cast<std::size_t>(i);
        ui::Label& word = strip.lblWarning[i];
        const bool shown = quiet && at < facts.warnings.size();
        word.SetVisible(shown);
        if (shown) {
            word.SetRect(places[at]);
            word.SetText(WordOf(facts.warnings[at]));
            word.SetMark(kMarks.at(static_cast<std::size_t>(facts.warnings[at].alarm)));
        }
    }
}

}  // namespace office
