// One walk over the tables of all screens.
#include "ui/screens/screens.h"

#include "support/temporary_folder.h"
#include "ui/toolkit/desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <utility>

namespace {

using ui::Control;

// Controls that may lie where they like: they are never seen, or are moved before they are.
const std::set<std::string> kAnywhere{
    "frmActions.Command1(0)", "frmActions.Command1(23)", "frmChoose.Command1(1)", "frmChoose.Command1(2)",
    "frmChoose.Command1(3)",  "frmChoose.Command1(4)",   "frmChoose.Command1(5)", "frmChoose.Command1(6)",
    "frmChoose.Command2",     "frmAIN.Rpro(0)",          "frmAIN.APro(0)",
};

// Pairs of buttons that may share a place, because never both of them are visible.
const std::set<std::pair<std::string, std::string>> kInTurn{};

bool TakesClicks(const Control& control)
{
    return control.Now().tabStop;
}

bool Paints(const Control& control)
{
    return !control.Place().Empty();
}

class AllScreens : public testing::Test {
protected:
    ui::Desktop desktop_;
    screens::Screens screens_{desktop_};
};

TEST_F(AllScreens, HaveNamesOfTheirOwn)
{
    std::set<std::string> forms;
    for (const ui::Form* form : desktop_.Forms()) {
        EXPECT_TRUE(form->Name().starts_with("frm")) << form->Name();
        EXPECT_TRUE(forms.insert(form->Name()).second) << form->Name();
        EXPECT_EQ(desktop_.FindForm(form->Name()), form);
        std::set<std::string> names;
        for (const Control* control : form->Controls()) {
            const std::string whole = form->Name() + "." + control->Name();
            EXPECT_TRUE(names.insert(control->Name()).second) << whole;
            EXPECT_EQ(desktop_.FindControl(whole), control);
        }
        for (const ui::Timer* timer : form->Timers()) {
            EXPECT_TRUE(names.insert(timer->Name()).second) << form->Name() << "." << timer->Name();
        }
    }
}

TEST_F(AllScreens, LieWithinThePictureSpace)
{
    for (const ui::Form* form : desktop_.Forms()) {
        EXPECT_TRUE(ui::kSpace.Contains(form->Place())) << form->Name();
        for (const Control* control : form->Controls()) {
            const std::string whole = form->Name() + "." + control->Name();
            EXPECT_TRUE(Paints(*control)) << whole;
            EXPECT_TRUE(kAnywhere.contains(whole) || form->Place().Contains(control->Place())) << whole;
            EXPECT_TRUE(control->Row().Empty() || form->Place().Contains(control->Row())) << whole;
        }
        for (const ui::Decor& decor : form->GetDesign().decor) {
            EXPECT_TRUE(decor.rect == ui::Rect{} || form->Place().Contains(decor.rect))
                << form->Name() << ": a decoration at " << decor.rect.left;
        }
    }
}

TEST_F(AllScreens, KeepTheirButtonsApart)
{
    for (const ui::Form* form : desktop_.Forms()) {
        const auto& controls = form->Controls();
        for (auto a = controls.begin(); a != controls.end(); ++a) {
            for (auto b = std::next(a); b != controls.end(); ++b) {
                const bool both = TakesClicks(**a) && TakesClicks(**b);
                const std::pair pair{form->Name() + "." + (*a)->Name(), form->Name() + "." + (*b)->Name()};
                EXPECT_FALSE(both && (*a)->Place().Overlaps((*b)->Place()) && !kInTurn.contains(pair))
                    << pair.first << " and " << pair.second;
            }
        }
    }
}

TEST_F(AllScreens, NameButtonsOfTheirOwnForTheKeyboard)
{
    for (const ui::Form* form : desktop_.Forms()) {
        for (const Control* named : {form->initialFocus, form->defaultButton, form->cancelButton}) {
            if (named != nullptr) {
                EXPECT_EQ(&named->GetForm(), form) << form->Name();
                EXPECT_TRUE(TakesClicks(*named)) << form->Name() << "." << named->Name();
            }
        }
        const auto& controls = form->Controls();
        const auto buttons = std::count_if(controls.begin(), controls.end(), [](const Control* control) {
            return control->GetKind() == Control::Kind::CommandButton;
        });
        if (form->cancelButton != nullptr && buttons > 1) {
            EXPECT_NE(form->cancelButton, form->defaultButton) << form->Name();
        }
        if (buttons == 1 && form->defaultButton != nullptr) {
            EXPECT_TRUE(form->cancelButton != nullptr || form->Modal() || form->Find("Text1") != nullptr)
                << form->Name() << " says one thing, and Escape has read it";
        }
    }
}

TEST_F(AllScreens, NamePicturesThatExist)
{
    for (const ui::Form* form : desktop_.Forms()) {
        for (const Control* control : form->Controls()) {
            const std::string& file = control->Now().picture;
            EXPECT_TRUE(file.empty() || std::filesystem::is_regular_file(test::Assets() / file))
                << form->Name() << "." << control->Name() << ": " << file;
        }
        for (const ui::Decor& decor : form->GetDesign().decor) {
            if (decor.kind == ui::Decor::Kind::Picture) {
                EXPECT_TRUE(std::filesystem::is_regular_file(test::Assets() / decor.text)) << decor.text;
            }
        }
    }
}

// 13 pixels is the smallest type that can be read, and a button is large enough to be hit.
TEST_F(AllScreens, CanBeReadAndHit)
{
    for (const ui::Form* form : desktop_.Forms()) {
        for (const Control* control : form->Controls()) {
            const std::string whole = form->Name() + "." + control->Name();
            for (const ui::TextSize& size : control->Style().sizes) {
                EXPECT_TRUE(size.size == 0 || (size.size >= 13 && size.line >= size.size)) << whole;
            }
            const bool button = control->GetKind() == Control::Kind::CommandButton;
            EXPECT_TRUE(!button || (control->Place().width >= 24 && control->Place().height >= 24)) << whole;
        }
    }
}

}  // namespace
