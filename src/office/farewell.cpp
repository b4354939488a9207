#include "office/farewell.h"

#include <algorithm>
#include <array>
#include <string>

namespace office {

namespace {

// By End.
constexpr std::array<std::string_view, 4> kPictures{
    "images/farewell-executed.png", "images/farewell-basement.png", "images/farewell-assassinated.png",
    "images/farewell-escaped.png"};

// The headline's width in pixels at its largest size, where it is not squeezed. Its letters are capitals of nearly
// one width.
int HeadlineWidth(std::string_view headline)
{
    int width = 0;
    for (const char letter : headline) {
        const auto isOneOf = [letter](std::string_view letters) {
            return letters.find(letter) != letters.npos;
        };
        width += isOneOf("I! ") ? 25 : isOneOf("EFL") ? 48 : isOneOf("MW") ? 78 : 53;
    }
    return std::min(width, screens::kHeadlineRoom);
}

// What stands beside the headline begins where that ends.
void PrintHeadline(screens::FrmFarewell& form, const FarewellPage& page, const Obituary& of)
{
    constexpr int kGap = 14;
    const int left = screens::kHeadlineLeft + HeadlineWidth(page.headline) + kGap;
    form.lblHeadline.SetText(page.headline);
    form.lblDeck.SetText(Filled(page.deck, of));
    form.lblBelow.SetText(page.below);
    for (ui::Label* label : {&form.lblDeck, &form.lblBelow}) {
        ui::Rect place = label->Place();
        place.left = left;
        place.width = screens::kPageRight - left;
        label->SetRect(place);
    }
}

}  // namespace

Farewell::Farewell(const core::GameState& state, core::Journal& journal, screens::FrmFarewell& page,
                   media::Sound& sound, const core::NumberFormat& format)
    : state_(state), page_(page), format_(format)
{
    // The hall comes seconds later, when the notes of the last month may be gone.
    journal.Listen([this, &journal](const core::Note& note) {
        if (note.kind == core::Kind::End) {
            ended_ = ObituaryOf(state_, journal.Notes());
        }
    });
    page.onClick = [this] { page_.Hide(); };
    page.Command1.onClick = [this, &sound] {
        sound.SoundClick();
        page_.Hide();
    };
}

void PrintPage(screens::FrmFarewell& form, const FarewellPage& page, const Obituary& of,
               const core::NumberFormat& format)
{
    form.Image1.SetPicture(kPictures.at(static_cast<std::size_t>(of.end)));
    PrintHeadline(form, page, of);
    form.lblCaption.SetText(page.caption);
    form.lblLeftTitle.SetText(Filled(page.left.title, of));
    form.lblLeft.SetText(Filled(page.left.text, of));
    form.lblRightTitle.SetText(Filled(page.right.title, of));
    form.lblRight.SetText(Filled(page.right.text, of));
    form.lblName.SetText(of.name);
    form.lblNotice[0].SetText(Term(of.months));
    form.lblNotice[1].SetText("$" + format.Amount(of.fortune));
    form.lblNotice[2].SetText(Filled(page.theEnd, of));
}

void Farewell::Print(int place, std::string_view points)
{
    const Obituary of = ended_.value_or(ObituaryOf(state_, {}));
    ended_.reset();
    PrintPage(page_, PageFor(of), of, format_);
    page_.lblNotice[3].SetText(RankLine(place, points));
    page_.Show();
}

}  // namespace office
