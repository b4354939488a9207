#include "events/newspaper.h"

#include "core/banner.h"

namespace events {

Newspaper::Newspaper(core::GameState& state, screens::FrmNewspaper& page, screens::FrmMain& main,
                     media::Sound& sound)
    : state_(state), page_(page), main_(main), sound_(sound)
{
    page.Command1.onClick = [this] { Close(); };
}

void Newspaper::Print(const Story& story)
{
    page_.Image1.SetPicture(story.picture);
    page_.Image1.SetText(story.words);
    page_.Show();
}

void Newspaper::Close()
{
    sound_.SoundClick();
    page_.Unload();
    const auto giveBack = [this] { core::GiveBack(main_); };
    switch (state_.NewsKind) {
    case kArmyChiefGone:
        newArmyChief(giveBack);
        break;
    case kPoliceChiefGone:
        newPoliceChief(giveBack);
        break;
    default:
        giveBack();
    }
}

}  // namespace events
