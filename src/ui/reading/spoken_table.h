// What is spoken where the printed text is not enough: one table for screens, controls, pictures and marks.
//
//     const Spoken* row = FindSpoken("frmTaxes.TaxIncomeC");      // pattern "{} dollars"
//
// A control without a row is spoken as it is printed. A new screen needs a row for its title, one for each picture,
// and one for each figure whose unit is not printed beside it; a test walks all screens and names what is missing.
#pragma once

#include "ui/toolkit/control.h"
#include "ui/toolkit/form.h"

#include <span>
#include <string_view>

namespace reading {

// How much of a screen is said when it opens.
enum class Opening { Summary, Whole };

struct Spoken {
    // "frmTaxes" (a screen), "frmTaxes.Label22" (a control), "frmTaxes.TaxIncome*" (all that begin so),
    // "*.OLE1" (on any screen), "images/map.bmp" (a picture), "mark:disc", "frmPolice.lblAF mark:triangle".
    std::string_view what;
    // {} stands for the printed text as it is said, {+} for it as a change, {%} for it in
    // percent or as not reported, {/} for a chief with his two figures,
    // {bar} for a bar's length. Nothing but a dash: silent. For a screen its title.
    std::string_view said;
    // What the screen is for; what a picture shows, when everything is read.
    std::string_view more{};
    Opening opening = Opening::Summary;
};

std::span<const Spoken> SpokenTable();
const Spoken* FindSpoken(std::string_view what);  // the exact row, or null
const Spoken* FindSpoken(const ui::Control& control);
const Spoken* FindMark(const ui::Control& control);

// Where a screen is read in parts, one after the other: all of the first, then all of the second.
struct Part {
    std::string_view form;
    ui::Rect place;  // what has its middle here
};
std::span<const Part> Parts();

}  // namespace reading
