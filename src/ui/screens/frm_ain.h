// frmAIN: the intelligence report. A paragraph, and for each faction two bars: revolution, assassination.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr int kForecastRows = 7;
inline constexpr int kForecastTop = 250;
inline constexpr int kForecastRow = 34;
inline constexpr int kBarLeft = 220;
inline constexpr int kBarRoom = 514;    // a longer bar is cut here, and a sign says so
inline constexpr int kBarPixels = 13;   // of a bar without a threat, and of each point of one
inline constexpr int kBarTwips = 195;   // the former's exact length
inline constexpr int kBarPointTwips = 300;  // the latter's

constexpr int ForecastTop(int faction)
{
    return kForecastTop + kForecastRow * (faction - 1);
}

constexpr std::array<ui::Decor, 20> ReportDecor()
{
    using Kind = ui::Decor::Kind;
    std::array<ui::Decor, 20> decor{
        ui::Decor{Kind::SecretSheet, {30, 58, 740, 530}},
        ui::Decor{Kind::SecretBand, {30, 58, 740, 38}},
        ui::Decor{Kind::Rule, {46, 236, 708, 2}},
        ui::Decor{Kind::Rule, {46, 488, 708, 2}},
        ui::Decor{Kind::SecretStamp, {560, 513, 160, 34}, "BURN AFTER USE", 6},
    };
    std::size_t next = 5;
    for (int k = 0; k <= 7; ++k) {
        decor[next++] = {Kind::Hairline, {kBarLeft + k * kBarRoom / 7, 246, 1, 238}};
    }
    for (int faction = 2; faction <= kForecastRows; ++faction) {
        decor[next++] = {Kind::Hairline, {46, ForecastTop(faction) - 3, 708, 1}};
    }
    decor[next] = {Kind::Hairline, {46, ForecastTop(kForecastRows + 1) - 3, 708, 1}};
    return decor;
}
inline constexpr std::array kReportDecor = ReportDecor();

struct BarKind {
    int below;  // the row's top
    ui::Color color;
};
inline constexpr BarKind kRevolutionBar{2, look::kRed};
inline constexpr BarKind kAssassinBar{17, look::kYellow};

// By faction number. Element 0 belongs to none and lies outside the report.
constexpr std::array<ui::ElementRow, kForecastRows + 1> BarRows(const BarKind& kind)
{
    std::array<ui::ElementRow, kForecastRows + 1> rows{};
    rows[0] = {0, {-2 * kBarPixels, 0, kBarPixels, 13}, "", &look::kShape, {.visible = false, .back = kind.color, .twips = kBarTwips}};
    for (int faction = 1; faction <= kForecastRows; ++faction) {
        const ui::Rect place{kBarLeft, ForecastTop(faction) + kind.below, kBarPixels, 13};
        rows[static_cast<std::size_t>(faction)] =
            {faction, place, "", &look::kShape, {.back = kind.color, .twips = kBarTwips}};
    }
    return rows;
}

// The sign behind a bar that is longer than its room.
constexpr std::array<ui::ElementRow, kForecastRows> GoesOnRows(const BarKind& kind)
{
    std::array<ui::ElementRow, kForecastRows> rows{};
    for (int faction = 1; faction <= kForecastRows; ++faction) {
        const ui::Rect place{kBarLeft + kBarRoom + 4, ForecastTop(faction) + kind.below - 3, 16, 18};
        rows[static_cast<std::size_t>(faction - 1)] =
            {faction, place, "»", &look::kBarGoesOn, {.visible = false, .fore = kind.color}};
    }
    return rows;
}

inline constexpr std::array kRproRows = BarRows(kRevolutionBar);
inline constexpr std::array kAProRows = BarRows(kAssassinBar);
inline constexpr std::array kRproGoesOnRows = GoesOnRows(kRevolutionBar);
inline constexpr std::array kAProGoesOnRows = GoesOnRows(kAssassinBar);

constexpr ui::Rect ForecastName(int faction)
{
    return {56, ForecastTop(faction) + 2, 150, 27};
}

// A draw of 1 .. 10 below a tenth of the opposition lets a faction join; its strength does not matter.
inline constexpr std::string_view kMightJoin =
    "Might join: when others have begun, they come along five times in ten at 56 % opposition, eight times in "
    "ten at 90 %, however weak they are.";

struct FrmAIN : ui::Form {
    explicit FrmAIN(ui::Stage& stage)
        : Form(stage, {.name = "frmAIN", .rect = {30, 58, 740, 530}, .decor = kReportDecor})
    {}

    ui::Label Label6{*this, "Label6", {46, 62, 660, 32}, "Intelligence Service Report", look::kBandTitle};
    ui::Label Label4{*this, "Label4", {54, 108, 692, 124}, "", look::kReport};

    ui::Label Label2{*this, "Label2", ForecastName(1), "Workers", look::kCaptionSecret};
    ui::Label Label5{*this, "Label5", ForecastName(2), "Peasants", look::kCaptionSecret};
    ui::Label Label7{*this, "Label7", ForecastName(3), "Businessmen", look::kCaptionSecret};
    ui::Label Label9{*this, "Label9", ForecastName(4), "Industrialists", look::kCaptionSecret};
    ui::Label Label11{*this, "Label11", ForecastName(5), "Landowners", look::kCaptionSecret};
    ui::Label Label1{*this, "Label1", ForecastName(6), "Army", look::kCaptionSecret};
    ui::Label Label3{*this, "Label3", ForecastName(7), "Police", look::kCaptionSecret};
    ui::ControlArray<ui::Shape> Rpro{*this, "Rpro", kRproRows};
    ui::ControlArray<ui::Shape> APro{*this, "APro", kAProRows};
    ui::ControlArray<ui::Label> RproGoesOn{*this, "RproGoesOn", kRproGoesOnRows};
    ui::ControlArray<ui::Label> AProGoesOn{*this, "AProGoesOn", kAProGoesOnRows};

    ui::Shape Shape1{*this, "Shape1", {56, 498, 15, 15}, "", look::kShape, {.back = look::kRed}};
    ui::Label Label14{*this, "Label14", {82, 492, 330, 26}, "Possibility to start a Revolution ", look::kCaptionSecret};
    ui::Shape Shape3{*this, "Shape3", {56, 522, 15, 15}, "", look::kShape, {.back = look::kYellow}};
    ui::Label Label16{*this, "Label16", {82, 516, 330, 26}, "Possibility to make an assasination attempt",
        look::kCaptionSecret};
    // Only where the paragraph speaks of it.
    ui::Label lblJoin{*this, "lblJoin", {56, 545, 490, 35}, kMightJoin, look::kSmallPrintSecret, {.visible = false}};
};

}  // namespace screens
