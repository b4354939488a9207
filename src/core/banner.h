// The message banner: the one line through which every routine speaks to the player.
#pragma once

#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <string_view>

namespace core {

inline void Say(screens::FrmMonthBanner& banner, std::string_view text)
{
    banner.Label1.SetText(text);
}

inline void ClearBanner(screens::FrmMonthBanner& banner)
{
    Say(banner, " ");
}

// The end of every month's story: the player may use the menu again.
inline void GiveBack(screens::FrmMain& main)
{
    main.SetEnabled(true);
    main.Show();
}

}  // namespace core
