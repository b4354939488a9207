// Nothing on a screen hides a text, keys go through it as the eye does, and it looks alike in a larger window.
#include "platform/painter.h"
#include "support/surface.h"
#include "ui/screens/walk.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

using platform::BoxF;
using ui::Control;

class Looks : public test::ScreenWalk {
protected:
    // A text that is written later may fill its whole place.
    BoxF Printed(const Control& control)
    {
        return control.Text().empty() ? BoxF(control.Place()) : InkBox(LayOut(control), control);
    }
};

// Texts that share a place by design.
const std::map<std::pair<std::string, std::string>, const char*> kShared{
    {{"frmTop102.Label6", "frmTop102.Label3"}, "a trouble is pasted over the title"},
    {{"frmTop102.Label1(9)", "frmTop102.Label5"}, "the rows move up when the foot speaks"},
    {{"frmTop102.Label1(9)", "frmTop102.lblStamp"}, "the same"},
    {{"frmTop102.Label5", "frmTop102.lblStamp"}, "what a president with few points reads is short"},
    {{"frmStrip.Label1", "frmStrip.lblMonth"},
     "a value stands close under its caption: the lines meet, the ink does not"},
    {{"frmStrip.Label2", "frmStrip.lblMoney"}, "the same"},
    {{"frmStrip.Label3", "frmStrip.lblBalance"}, "the same"},
    {{"frmStrip.Label4", "frmStrip.lblFavour"}, "the same"},
    {{"frmStrip.lblWarning(0)", "frmStrip.lblLine"}, "the line and the warnings take turns"},
    {{"frmStrip.lblWarning(1)", "frmStrip.lblLine"}, "the same"},
    {{"frmStrip.lblWarning(2)", "frmStrip.lblLine"}, "the same"},
};

// Screens whose keys do not go row by row.
const std::map<std::string, const char*> kOwnOrder{
    {"frmActions", "two columns, each read downwards; the keys follow the numbers of the actions"},
};

bool Meet(const BoxF& a, const BoxF& b)
{
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

bool Aside(const Control& control)  // never seen, or moved before it is
{
    return !control.GetForm().Place().Contains(control.Place());
}

TEST_F(Looks, NoTextLiesOnAnotherOrUnderAButton)
{
    ForEachAlone([this](const ui::Form& form) {
        for (const Control* a : form.Controls()) {
            if (!test::PaintsText(*a) || Aside(*a)) {
                continue;
            }
            const BoxF text = Printed(*a);
            for (const Control* b : form.Controls()) {
                if (a == b || !test::PaintsText(*b) || Aside(*b) ||
                    kShared.contains({test::Whole(*a), test::Whole(*b)}) ||
                    kShared.contains({test::Whole(*b), test::Whole(*a)})) {
                    continue;
                }
                const bool button = b->GetKind() != Control::Kind::Label;
                const BoxF other = button ? BoxF(b->Place()) : Printed(*b);
                EXPECT_FALSE(Meet(text, other)) << test::Whole(*a) << " and " << test::Whole(*b);
            }
        }
    });
}

// Pictures are painted in their turn: one that comes later would cover the text.
TEST_F(Looks, NoPictureCoversAText)
{
    ForEachAlone([this](const ui::Form& form) {
        const auto& controls = form.Controls();
        for (auto text = controls.begin(); text != controls.end(); ++text) {
            if (!test::PaintsText(**text) || Aside(**text)) {
                continue;
            }
            const BoxF box = Printed(**text);
            for (auto later = std::next(text); later != controls.end(); ++later) {
                const bool covers = (*later)->GetKind() == Control::Kind::Picture &&
                                    (*later)->Place() != form.Place() && Meet(box, (*later)->Place());
                EXPECT_FALSE(covers) << test::Whole(**later) << " over " << test::Whole(**text);
            }
        }
    });
}

// Whether the eye comes to a first: it stands higher, or in the same row further left.
bool ReadBefore(const Control& a, const Control& b)
{
    const int middleA = a.Place().top + a.Place().height / 2;
    const int middleB = b.Place().top + b.Place().height / 2;
    const bool row = std::abs(middleA - middleB) * 2 < std::min(a.Place().height, b.Place().height);
    return row ? a.Place().left < b.Place().left : middleA < middleB;
}

TEST_F(Looks, TabReachesEverythingOnceInReadingOrder)
{
    ForEachAlone([this](const ui::Form& form) {
        std::vector<const Control*> stops;
        for (Control* control : form.Controls()) {
            control->SetEnabled(true);
            if (control->Style().ornament == ui::Ornament::Row) {
                control->SetTabStop(true);  // as the owner of the table does
            }
            if (control->Focusable()) {
                stops.push_back(control);
            }
        }
        if (stops.empty()) {
            return;
        }
        std::vector<const Control*> reached;
        for (std::size_t i = 0; i < stops.size(); ++i) {
            desktop_.Press(ui::Key::Tab);
            reached.push_back(desktop_.Focused());
        }
        EXPECT_EQ(std::set(reached.begin(), reached.end()), std::set(stops.begin(), stops.end()))
            << form.Name();
        desktop_.Press(ui::Key::Tab);
        EXPECT_EQ(desktop_.Focused(), reached.front()) << form.Name() << " does not come round";
        if (kOwnOrder.contains(form.Name())) {
            return;
        }
        const auto first =
            std::min_element(reached.begin(), reached.end(),
                             [](const Control* a, const Control* b) { return ReadBefore(*a, *b); });
        std::rotate(reached.begin(), first, reached.end());
        for (std::size_t i = 1; i < reached.size(); ++i) {
            EXPECT_TRUE(ReadBefore(*reached[i - 1], *reached[i]))
                << test::Whole(*reached[i]) << " comes after " << test::Whole(*reached[i - 1]);
        }
    });
}

// Lines are broken for the picture space; hinting must not make them wider than their place in another window.
TEST_F(Looks, TextsKeepToTheirPlacesWhenEnlarged)
{
    const auto viewport = platform::Viewport::Fit(1280, 1024);
    const test::Surface surface = test::MakeSurface(1280, 1024);
    platform::Painter painter{files::ProgramFolder(test::Assets())};
    ForEachAlone([&](const ui::Form& form) {
        painter.Paint(desktop_, *surface, viewport, ui::kSpace);
        const auto bar = test::PixelAt(*surface, 640, viewport.place.y - 1);
        EXPECT_EQ(bar, 0U) << form.Name() << " reaches into the bar";
        for (const Control* control : form.Controls()) {
            if (!test::PaintsText(*control)) {
                continue;
            }
            const platform::TextLayout layout = LayOut(*control);
            EXPECT_TRUE(layout.fits) << test::Whole(*control);
            for (const platform::TextLine& line : layout.lines) {
                const platform::Type type{control->Style().face, layout.size, viewport.scale};
                EXPECT_LE(letters_.Width(line.text, type),
                          platform::TextPlace(*control).width * viewport.scale + 2)
                    << test::Whole(*control) << ": " << line.text;
            }
        }
    });
}

}  // namespace
