// The message banner: the one line through which every routine speaks to the player.
#pragma once

#include "ui/screens/frm_month_banner.h"

#include <string_view>

namespace month {

// A picture belongs to the message that it came with, and goes with the next one.
void Say(screens::FrmMonthBanner& banner, std::string_view text, std::string_view picture = {});
// He lies in state, and the office is dark around him.
void SayDead(screens::FrmMonthBanner& banner, std::string_view text);
void ClearBanner(screens::FrmMonthBanner& banner);

}  // namespace month
