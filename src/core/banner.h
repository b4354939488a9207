// The message banner: the one line through which every routine speaks to the player.
#pragma once

#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <string_view>

namespace core {

// A picture belongs to the message that it came with, and goes with the next one.
inline void Say(screens::FrmMonthBanner& banner, std::string_view text, std::string_view picture = {})
{
    const bool pictured = !picture.empty();
    banner.Label1.SetText(text);
    banner.Label1.SetFolded(false);
    banner.SetShade(0);
    banner.Label1.SetRect(pictured ? screens::kBannerCaption : screens::kBannerText);
    banner.Image1.SetPicture(picture);
    banner.Image1.SetVisible(pictured);
    banner.Shape1.SetVisible(pictured);
}

// He lies in state, and the office is dark around him.
inline void SayDead(screens::FrmMonthBanner& banner, std::string_view text)
{
    constexpr int kDark = 80;  // percent
    Say(banner, text, "images/dead.png");
    banner.SetShade(kDark);
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
