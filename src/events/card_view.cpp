#include "events/card_view.h"

#include "month/banner.h"

#include "ui/look/look.h"

#include <string>

namespace events {

namespace {

// What more of it is to the president. Who is strong may be strong for him or against him: that is no news yet.
enum class More { Worse, OpenQuestion };

More MoreStrength(std::size_t group)
{
    return group == core::Guerrillas || group == core::Prisoners ? More::Worse : More::OpenQuestion;
}

void ShowFigure(ui::Label& label, std::string_view text, double value, More more)
{
    label.SetText(text);
    label.SetMark(value > 0 ? ui::Mark::Up : value < 0 ? ui::Mark::Down : ui::Mark::None);
    label.SetFore(value == 0 || more == More::OpenQuestion ? look::kInk
                  : value > 0                              ? look::kNegative
                                                           : look::kBetter);
}

}  // namespace

void FillCard(screens::CardForm& form, const core::Card& card)
{
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        const int row = static_cast<int>(g);
        ShowFigure(form.lblPER[screens::kCardFirstStrength + row], card.figures[g], card.effects.strength[g],
                   MoreStrength(g));
        ShowFigure(form.lblPER[screens::kCardFirstOpposition + row], card.figures[core::kGroups + g],
                   card.effects.opposition[g], More::Worse);
    }
    ShowFigure(form.lblPER[screens::kCardAmericansOpposition], card.figures.back(),
               card.effects.americanHostility, More::Worse);
    form.Label13.SetText(card.sideEffects);
}

void TellBadCard(screens::FrmMonthBanner& banner, std::string_view what, const files::FileError& error)
{
    month::Say(banner, "Mr.President, " + std::string(what) + " cannot be read. " + error.Message() +
                           ". Nothing was done, which is not always the worst.");
}

}  // namespace events
