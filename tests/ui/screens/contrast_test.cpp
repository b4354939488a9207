// Every text stands out from the ground that is really painted under it.
#include "platform/button_look.h"
#include "platform/painter.h"
#include "support/surface.h"
#include "ui/screens/walk.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using ui::Color;
using ui::Control;

double Linear(double channel)
{
    const double c = channel / 255;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(const Color& c)
{
    return 0.2126 * Linear(c.red) + 0.7152 * Linear(c.green) + 0.0722 * Linear(c.blue);
}

// From 1 (alike) to 21 (black on white).
double ContrastOf(const Color& a, const Color& b)
{
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

// Large type is read more easily: from 24 px, bold type from 19 px.
double Needed(const ui::TextStyle& style, int size)
{
    const bool bold = style.face == ui::Face::Heading || style.face == ui::Face::CaptionBold;
    return size >= (bold ? 19 : 24) ? 3.0 : 4.5;
}

class Contrast : public test::ScreenWalk {
protected:
    struct Printed {
        Control* control;
        platform::BoxF box;
        double needed;
    };

    // Paints what is shown without its texts and compares each with the rows of pixels that it would stand on.
    void Measure(ui::Form& form)
    {
        std::vector<Printed> texts;
        for (Control* control : form.Controls()) {
            if (!test::PaintsText(*control) || !form.Place().Contains(control->Place()) ||
                control->GetKind() == Control::Kind::TextBox) {
                continue;
            }
            if (control->Text().empty() && control->GetKind() == Control::Kind::OptionButton) {
                continue;  // its caption is printed on the form
            }
            if (control->Text().empty()) {
                control->SetText("0");
            }
            const platform::TextLayout layout = LayOut(*control);
            texts.push_back({control, InkBox(layout, *control), Needed(control->Style(), layout.size)});
        }
        for (const Printed& each : texts) {
            each.control->SetText("");
        }
        painter_.Paint(desktop_, *surface_, {}, ui::kSpace);
        for (const Printed& each : texts) {
            const Control::State& now = each.control->Now();
            const bool own = now.opaque && each.control->Style().ornament == ui::Ornament::None;
            const double worst = own ? ContrastOf(now.fore, now.back) : Worst(now.fore, each.box);
            EXPECT_GE(worst, each.needed) << test::Whole(*each.control);
        }
    }

    double Worst(const Color& fore, const platform::BoxF& box) const
    {
        double worst = 21;
        const int left = std::max(0, static_cast<int>(box.left));
        const int right = std::min(ui::kSpaceWidth, static_cast<int>(std::ceil(box.Right())));
        for (int y = static_cast<int>(box.top) + 1; y < static_cast<int>(box.Bottom()); ++y) {
            worst = std::min(worst, ContrastOf(fore, RowColor(left, right, y)));
        }
        return worst;
    }

    Color RowColor(int left, int right, int y) const
    {
        std::uint32_t red = 0;
        std::uint32_t green = 0;
        std::uint32_t blue = 0;
        for (int x = left; x < right; ++x) {
            const std::uint32_t pixel = test::PixelAt(*surface_, x, y);
            red += pixel >> 16U;
            green += pixel >> 8U & 0xFFU;
            blue += pixel & 0xFFU;
        }
        const auto count = static_cast<std::uint32_t>(std::max(1, right - left));
        return ui::Rgb((red / count) << 16U | (green / count) << 8U | blue / count);
    }

    test::Surface surface_ = test::MakeSurface(ui::kSpaceWidth, ui::kSpaceHeight);
    platform::Painter painter_{files::ProgramFolder(test::Assets())};
};

TEST_F(Contrast, OfEveryTextAsItIsWrittenDown)
{
    ForEachAlone([this](ui::Form& form) { Measure(form); });
}

struct Recolored {
    const char* why;
    const char* form;
    const char* controls;  // those whose names begin so
    Color fore;
    std::optional<Color> back{};
};

TEST_F(Contrast, OfTextsThatChangeTheirColour)
{
    const Recolored cases[] = {
        {"a loss on a card", "frmShow", "lblPER", look::kNegative},
        {"a gain on a card", "frmShow", "lblPER", look::kBetter},
        {"a loss on a request", "frmShow2", "lblPER", look::kNegative},
        {"a budget that does not add up", "frmTaxes", "lbl", look::kNegative},
        {"an empty treasury", "frmTaxes", "Label22", look::kNegative},
        {"an officer who was in office", "frmPolc", "Label1(", look::kUsedRow},
        {"an officer who was in office", "frmArmyC", "Label1(", look::kUsedRow},
        {"an action that cannot be had", "frmActions", "Command1(", look::kDoneText},
        {"the second warning of the report", "frmPolice", "lblPER", look::kYellow},
        {"the third warning of the report", "frmPolice", "lblPER", look::kMagenta},
        {"friendly Americans", "frmPolice", "lblAF", look::kGreen},
        {"the key under the pointer", "frmOptions", "Label5(", look::kWhite, look::kBlack},
    };
    for (const Recolored& each : cases) {
        SCOPED_TRACE(each.why);
        ui::Form& form = *desktop_.FindForm(each.form);
        form.Show();
        for (Control* control : form.Controls()) {
            if (control->Name().starts_with(each.controls)) {
                control->SetFore(each.fore);
                control->SetBack(each.back.value_or(control->Now().back));
            }
        }
        Measure(form);
        form.Unload();
    }
}

TEST(ContrastOfButtons, HoldsInEveryState)
{
    const struct {
        const char* state;
        const platform::ButtonLook& look;
    } cases[] = {
        {"normal", platform::button::kNormal},
        {"danger", platform::button::kDanger},
        {"hover", platform::button::kHover},
        {"pressed", platform::button::kPressed},
        {"disabled", platform::button::kDisabled},
        {"disabled on a dark sheet", platform::button::kDisabledSecret},
    };
    for (const auto& each : cases) {
        const double worst =
            std::min(ContrastOf(each.look.text, each.look.top), ContrastOf(each.look.text, each.look.bottom));
        EXPECT_GE(worst, 4.5) << each.state;
    }
}

// Grounds that only a state of the game brings. White on pure red just misses 4.5; there the shadow behind
// the letters helps.
TEST(ContrastOfGrounds, HoldsInEveryState)
{
    const struct {
        const char* what;
        Color fore, back;
        double needed;
    } cases[] = {
        {"banner and aside over an uprising", look::kWhite, look::kRed, 3.9},
        {"the report's first warning", look::kRed, look::kSecret, 4.5},
        {"a row under the pointer", look::kInk, look::kSun, 4.5},
        {"a used row under the pointer", look::kUsedRow, look::kSun, 4.5},
        {"what the player types", look::kInk, look::kField, 4.5},
        {"a text box that takes no text", look::kUsedRow, look::kFieldOff, 4.5},
        {"a restless country", look::kYellow, look::kSecret, 4.5},
        {"a rebellious country, in large type", look::kRed, look::kWhite, 3},
        {"a country in flames, in large type", look::kRed, look::kYellow, 3},
        {"a country lost", look::kBlack, look::kRed, 4.5},
        {"a stamp", look::kStampRed, look::kStripe, 3},
        {"a stamp on a secret sheet", look::kSecretStamp, look::kSecret, 3},
        {"a heading on paper", look::kHeading, look::kPaper, 4.5},
        {"a heading on a secret sheet", look::kSun, look::kSecret, 4.5},
        {"the title of a red band", look::kBandText, look::kStampRed, 4.5},
        {"the ring around the focus, on paper", look::kInk, look::kPaper, 3},
        {"the ring around the focus, on the dark", look::kSun, look::kBlack, 3},
    };
    for (const auto& each : cases) {
        EXPECT_GE(ContrastOf(each.fore, each.back), each.needed) << each.what;
    }
}

}  // namespace
