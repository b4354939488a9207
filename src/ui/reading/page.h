// A screen as rows of words, in reading order.
//
//     const Page page = Read(screens.frmTaxes);
//     Line(page.rows[2])          // "Workers, tax rate 2, tax income 6.18 million dollars."
//     PlaceOf(page.rows[2])       // "Row 1 of 6"
//
// Controls at the same height are one row; below a row of column headings rows are counted, and what stands under a
// heading is said with it. Pictures, figures and marks are worded by the table in spoken_table.h.
#pragma once

#include "ui/reading/spoken_table.h"
#include "ui/reading/wording.h"
#include "ui/toolkit/form.h"

#include <string>
#include <vector>

namespace reading {

struct Cell {
    const ui::Control* control = nullptr;  // null for what is printed on the sheet
    std::string heading;                   // of its column, as it is said; empty without one
    std::string said;
};

struct Row {
    std::vector<Cell> cells;  // from left to right
    std::string title;        // of the table
    int number = 0;           // in its table, from 1; 0 outside
    int count = 0;
};

struct Page {
    const ui::Form* form = nullptr;
    std::string title;
    std::string purpose;
    Opening opening = Opening::Summary;
    std::vector<Row> rows;
    int things = 0;  // that can be pressed, chosen or typed into

    const Row* Find(const ui::Control& control) const;
};

Page Read(const ui::Form& form);

// What the control shows, in words: name, value, mark. Empty when there is nothing to say.
std::string SaidControl(const ui::Control& control, Sums sums = Sums::Rounded);
std::string Line(const Row& row);
std::string PlaceOf(const Row& row);
// One figure exactly: "opposition 66 per cent, may revolt. Workers".
std::string SaidCell(const Row& row, const Cell& cell);
// A row of a table that says nothing but nought.
bool OnlyNoughts(const Row& row);

}  // namespace reading
