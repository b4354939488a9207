#include "month/banner.h"

namespace month {

void Say(screens::FrmMonthBanner& banner, std::string_view text, std::string_view picture)
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

void SayDead(screens::FrmMonthBanner& banner, std::string_view text)
{
    constexpr int kDark = 80;  // percent
    Say(banner, text, "images/dead.png");
    banner.SetShade(kDark);
}

void ClearBanner(screens::FrmMonthBanner& banner)
{
    Say(banner, " ");
}

}  // namespace month
