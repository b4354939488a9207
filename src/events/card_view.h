// A card on its screen, and what the player is told when it cannot be read.
#pragma once

#include "core/cards.h"
#include "files/result.h"
#include "ui/screens/card_grid.h"
#include "ui/screens/frm_month_banner.h"

#include <string_view>

namespace events {

// The figures as the card has them, with a mark beside each that changes something and in the colour of what it
// means for the president, and the side effects.
void FillCard(screens::CardForm& form, const core::Card& card);

// "Mr.President, <what> cannot be read. <file, line, item, what was expected>. ..."
void TellBadCard(screens::FrmMonthBanner& banner, std::string_view what, const files::FileError& error);

}  // namespace events
