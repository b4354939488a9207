// frmPolice: what the secret police know about everybody, if they say anything at all.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kPoliceSheet{20, 58, 760, 534};

// The cells of one row, as indices of lblPER.
struct ReportRow {
    int population, strength, share, opposition;
};
inline constexpr std::array<ReportRow, 9> kReportGroups{{
    // population  strength  share  opposition    by group
    {19, 10, 1, 30},
    {20, 11, 2, 31},
    {21, 12, 3, 32},
    {22, 13, 4, 33},
    {23, 14, 5, 34},
    {24, 15, 6, 35},
    {25, 16, 7, 36},
    {26, 17, 8, 37},
    {27, 18, 9, 38},
}};
inline constexpr ReportRow kReportHeading{29, 28, 0, 39};
inline constexpr int kReportParty = 44;
inline constexpr ReportRow kReportYourArmy{48, 46, 49, 47};
inline constexpr ReportRow kReportCountry{41, 43, 40, 42};

// Rows 0 .. 8 are the groups, then the president's army and the country.
inline constexpr int kReportTop = 134;
inline constexpr int kReportYourArmyRow = 9;
inline constexpr int kReportCountryRow = 10;
constexpr int ReportLine(int row) { return kReportTop + (262 * row + 5) / 10 + (row >= kReportCountryRow ? 1 : 0); }
constexpr ui::Rect ReportCell(int row, int left, int right) { return {left, ReportLine(row), right - left, 26}; }

inline constexpr std::array kPoliceDecor{
    ui::Decor{ui::Decor::Kind::SecretSheet, kPoliceSheet},
    ui::Decor{ui::Decor::Kind::SecretBand, {20, 58, 760, 38}},
    ui::Decor{ui::Decor::Kind::Rule, {36, 131, 728, 2}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(1), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(2), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(3), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(4), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(5), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(6), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(7), 728, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(8), 728, 1}},
    ui::Decor{ui::Decor::Kind::Rule, {36, ReportLine(kReportYourArmyRow), 728, 2}},
    ui::Decor{ui::Decor::Kind::Hairline, {36, ReportLine(kReportCountryRow), 728, 1}},
    ui::Decor{ui::Decor::Kind::Rule, {36, 426, 728, 2}},
    ui::Decor{.kind = ui::Decor::Kind::SecretStamp, .rect = {580, 456, 160, 27}, .text = "EYES ONLY", .angle = 7},
};

// Columns end at these places; a cell's mark stands right of its number.
constexpr std::array<ui::ElementRow, 49> ReportElements()
{
    std::array<ui::ElementRow, 49> rows{};
    std::size_t next = 0;
    const ui::Extras heading{.fore = look::kSun};
    rows[next++] = {kReportParty, {42, 107, 150, 23}, "Party", &look::kColumn, heading};
    rows[next++] = {kReportHeading.population, {240, 107, 120, 23}, "Population", &look::kColumnRight, heading};
    rows[next++] = {kReportHeading.strength, {382, 107, 100, 23}, "Strength", &look::kColumnRight, heading};
    rows[next++] = {kReportHeading.share, {508, 107, 100, 23}, "Strength %", &look::kColumnRight, heading};
    rows[next++] = {kReportHeading.opposition, {624, 107, 100, 23}, "Opposition", &look::kColumnRight, heading};
    const auto line = [&rows, &next](const ReportRow& cells, int row, const ui::TextStyle& last) {
        rows[next++] = {cells.population, ReportCell(row, 200, 360), "0", &look::kValueSecret};
        rows[next++] = {cells.strength, ReportCell(row, 382, 482), "0", &look::kValueSecret};
        rows[next++] = {cells.share, ReportCell(row, 508, 608), "0%", &look::kValueSecret};
        rows[next++] = {cells.opposition, ReportCell(row, 634, 724), "0%", &last};
    };
    for (std::size_t group = 0; group < kReportGroups.size(); ++group) {
        line(kReportGroups[group], static_cast<int>(group), look::kValueSecret);
    }
    line(kReportYourArmy, kReportYourArmyRow, look::kValueSecret);
    line(kReportCountry, kReportCountryRow, look::kTotalSecret);
    return rows;
}
inline constexpr std::array kReportCells = ReportElements();

struct FrmPolice : ui::Form {
    explicit FrmPolice(ui::Stage& stage)
        : Form(stage, {.name = "frmPolice", .rect = kPoliceSheet, .decor = kPoliceDecor})
    {}

    ui::Label Label10{*this, "Label10", {36, 63, 512, 30}, "POLICE CHIEF IS", look::kBandTitle};
    ui::Label lblChief{*this, "lblChief", {552, 63, 174, 30}, "", look::kBandNoteRight};

    ui::Label Label2{*this, "Label2", ReportCell(0, 42, 200), "Workers", look::kCaptionSecret};
    ui::Label Label5{*this, "Label5", ReportCell(1, 42, 200), "Peasants", look::kCaptionSecret};
    ui::Label Label7{*this, "Label7", ReportCell(2, 42, 200), "Businessmen", look::kCaptionSecret};
    ui::Label Label9{*this, "Label9", ReportCell(3, 42, 200), "Industrialists", look::kCaptionSecret};
    ui::Label Label11{*this, "Label11", ReportCell(4, 42, 200), "Landowners", look::kCaptionSecret};
    ui::Label Label1{*this, "Label1", ReportCell(5, 42, 200), "Army", look::kCaptionSecret};
    ui::Label Label3{*this, "Label3", ReportCell(6, 42, 200), "Police", look::kCaptionSecret};
    ui::Label Label4{*this, "Label4", ReportCell(7, 42, 200), "Guerrillas", look::kCaptionSecret};
    ui::Label Label6{*this, "Label6", ReportCell(8, 42, 200), "Prisoners", look::kCaptionSecret};
    ui::Label Label13{*this, "Label13", ReportCell(9, 42, 200), "Your Army", look::kTotalCaption,
        {.fore = look::kSun}};
    ui::Label Label8{*this, "Label8", ReportCell(10, 42, 200), "Country", look::kTotalCaption,
        {.fore = look::kSun}};
    ui::ControlArray<ui::Label> lblPER{*this, "lblPER", kReportCells};

    ui::Label Label12{*this, "Label12", {42, 440, 132, 28}, "Americans favor is:", look::kCaptionSecret};
    ui::Label lblAF{*this, "lblAF", {174, 440, 64, 28}, "0%", look::kTotalSecret};

    // The legend: each shape is the mark that stands beside a cell of its colour.
    ui::Shape Shape1{*this, "Shape1", {42, 475, 16, 16}, "", look::kShape,
        {.fore = look::kRed, .back = look::kRed, .mark = ui::Mark::Triangle}};
    ui::Label Label14{*this, "Label14", {68, 471, 490, 24},
        "Possibility to start a Revolution or make an Assasination attempt", look::kLegend};
    ui::Shape Shape3{*this, "Shape3", {42, 500, 16, 16}, "", look::kShape,
        {.fore = look::kYellow, .back = look::kYellow, .mark = ui::Mark::Disc}};
    ui::Label Label16{*this, "Label16", {68, 496, 480, 24},
        "Possibility to join other parties in a Revolution ", look::kLegend};
    ui::Shape Shape2{*this, "Shape2", {42, 525, 16, 16}, "", look::kShape,
        {.fore = look::kMagenta, .back = look::kMagenta, .mark = ui::Mark::Diamond}};
    ui::Label Label15{*this, "Label15", {68, 521, 480, 24}, "Strong enough to cause problems", look::kLegend};

    ui::CommandButton Command3{*this, "Command3", {556, 538, 200, 38}, "View Police Chiefs", look::kButton};
};

}  // namespace screens
