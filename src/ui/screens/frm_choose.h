// frmChoose: whom the president asks for help. It grows by a step for each button that it shows.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr int kChooseStep = 55;   // 830 twips
inline constexpr int kChooseRoom = 534;  // for the tallest, with all buttons and the way out
inline constexpr ui::Rect kChooseSheet{150, 58, 495, 147};
inline constexpr std::array kChooseDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, {}, "Request for assistance"},  // as tall as the form is
};

// Places on the tallest dialog; the button behind the last one stands for the way out.
inline constexpr ui::Rect kChooseText{176, 103, 443, 82};
constexpr ui::Rect ChoosePlace(int button)
{
    return {247, 137 + kChooseStep * button, 300, 42};
}

constexpr std::array<ui::ElementRow, 6> ChooseRows()
{
    std::array<ui::ElementRow, 6> rows{};
    for (int button = 1; button <= 6; ++button) {
        rows[static_cast<std::size_t>(button - 1)] =
            {button, ChoosePlace(button), "", &look::kButton, {.visible = false}};
    }
    return rows;
}
inline constexpr std::array kChooseRows = ChooseRows();

struct FrmChoose : ui::Form {
    explicit FrmChoose(ui::Stage& stage)
        : Form(stage, {.name = "frmChoose", .rect = kChooseSheet, .decor = kChooseDecor, .asks = true})
    {}

    ui::Label Label1{*this, "Label1", kChooseText, "", look::kMessage};
    ui::ControlArray<ui::CommandButton> Command1{*this, "Command1", kChooseRows};
    // Only when nobody is left to ask.
    ui::CommandButton Command2{*this, "Command2", ChoosePlace(7), "Flee the country!", look::kButton,
        {.visible = false}};
};

}  // namespace screens
