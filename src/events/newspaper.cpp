#include "events/newspaper.h"

#include "events/event_rules.h"

namespace events {

Newspaper::Newspaper(core::GameState& state, month::Month& month, screens::FrmNewspaper& page,
                     media::Sound& sound)
    : state_(state), month_(month), page_(page), sound_(sound)
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
    const auto close = [this] { month_.CloseUnlessAsked(); };
    switch (state_.NewsKind) {
    case kArmyChiefGone:
        newArmyChief(close);
        break;
    case kPoliceChiefGone:
        newPoliceChief(close);
        break;
    default:
        close();
    }
}

}  // namespace events
