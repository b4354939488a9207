#include "ui/reading/page.h"

#include "ui/look/look.h"
#include "ui/screens/frm_ain.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace reading {

namespace {

using ui::Control;
using ui::Decor;
using Kind = ui::Control::Kind;

constexpr std::string_view kSilent = "-";
constexpr int kTallest = 60;   // of what can share a row with others, in pixels
constexpr int kLarge = 200;    // a picture from this height on is said before what is printed on it
constexpr int kTableGap = 15;  // a gap of so many tenths of the distance between rows ends a table

// The length of a bar of the intelligence report.
std::string SaidBar(std::int64_t twips)
{
    const std::int64_t points = (twips - screens::kBarTwips) / screens::kBarPointTwips;
    return points <= 0 ? "not expected"
                       : std::to_string(points) + (points == 1 ? " point" : " points") + " above the limit";
}

std::string Worded(const Control& control, std::string_view pattern, Sums sums)
{
    if (pattern.find("{+}") != std::string_view::npos) {
        return Filled(pattern, "{+}", SaidChange(control.Text()));
    }
    if (pattern.find("{%}") != std::string_view::npos) {
        const std::string& text = control.Text();
        const std::string percent = Said(text.ends_with('%') ? text : text + "%");
        return Filled(pattern, "{%}", text == "?" ? "not reported" : percent);
    }
    if (pattern.find("{/}") != std::string_view::npos) {
        return Filled(pattern, "{/}", SaidChief(control.Text()));
    }
    if (pattern.find("{bar}") != std::string_view::npos) {
        return Filled(pattern, "{bar}", SaidBar(control.Now().twips));
    }
    std::string said = Said(control.Text(), sums);
    if (said.empty() && control.GetKind() == Kind::TextBox) {
        said = "empty";
    }
    return Filled(pattern, "{}", said);
}

// A picture is said by what it shows; its printed caption is for the case that the file is missing.
std::string SaidPicture(const Control& control, const Spoken* row)
{
    const Spoken* picture = FindSpoken(std::string_view(control.Now().picture));
    if (picture != nullptr && picture->said == kSilent) {
        return {};
    }
    std::string said = row != nullptr || picture == nullptr
                           ? Worded(control, row != nullptr ? row->said : "{}", Sums::Rounded)
                           : std::string();
    if (picture != nullptr) {
        said = (said.empty() ? "" : Sentence(std::move(said)) + " ") + std::string(picture->said);
    }
    return said;
}

// What the player can do with it; empty for what is only read.
std::string_view KindOf(const Control& control)
{
    switch (control.GetKind()) {
    case Kind::CommandButton:
        return ", button";
    case Kind::TextBox:
        return ", edit";
    case Kind::OptionButton:
        return control.Now().chosen ? ", chosen" : ", not chosen";
    case Kind::Picture:
        return control.Now().tabStop ? ", menu item" : "";
    default:
        return control.Now().tabStop ? ", can be chosen" : "";
    }
}

std::string WithState(const Control& control, std::string said)
{
    if (said.empty()) {
        return said;
    }
    if (const Spoken* mark = FindMark(control)) {
        said += ", " + std::string(mark->said);
    }
    if (control.Style().ornament == ui::Ornament::Pips) {
        said += " of 10";
    }
    if (control.Now().fore == look::kUsedRow && control.Style().fore != look::kUsedRow) {
        said += ", used";
    }
    said += KindOf(control);
    if (!control.Now().enabled) {
        said += ", not available";
    }
    return said;
}

bool IsHeading(const Control& control)
{
    const ui::TextStyle* style = &control.Style();
    return control.GetKind() == Kind::Label &&
           (style == &look::kColumn || style == &look::kColumnCenter || style == &look::kColumnRight);
}

bool IsRateButton(const Control& control)
{
    return control.Style().ornament == ui::Ornament::RateButton;
}

// What may stand in a row with others. Buttons, pictures and plates on a map speak for themselves.
bool Joins(const Control& control)
{
    switch (control.GetKind()) {
    case Kind::CommandButton:
        return IsRateButton(control);
    case Kind::Picture:
    case Kind::Graph:
        return false;
    default:
        return control.Style().ornament != ui::Ornament::Plate &&
               control.Style().ornament != ui::Ornament::YellowKey && control.Place().height <= kTallest;
    }
}

// A thing on its way into a row: where it stands and what it says.
struct Piece {
    ui::Rect place;
    Cell cell;
    bool joins = false;
    bool heading = false;

    int Middle() const { return place.top + place.height / 2; }
    int Order() const
    {
        const bool large =
            cell.control != nullptr && cell.control->GetKind() == Kind::Picture && place.height >= kLarge;
        return large ? place.top : Middle();
    }
    bool Spans(int y) const { return y >= place.top && y < place.Bottom(); }
};
using Pieces = std::vector<Piece>;

std::string SaidDecor(const Decor& decor)
{
    switch (decor.kind) {
    case Decor::Kind::Stamp:
    case Decor::Kind::SecretStamp:
        return "Stamped: " + Lowered(Said(decor.text));
    case Decor::Kind::Caption:
        return Said(decor.text);
    default:
        return {};
    }
}

Pieces PiecesOf(const ui::Form& form)
{
    Pieces pieces;
    for (const Control* control : form.Controls()) {
        std::string said = control->Now().visible ? SaidControl(*control) : std::string();
        if (!said.empty() && control->Place().Overlaps(ui::kSpace)) {
            pieces.push_back(
                {control->Place(), {control, {}, std::move(said)}, Joins(*control), IsHeading(*control)});
        }
    }
    for (const Decor& decor : form.GetDesign().decor) {
        std::string said = decor.text.empty() ? std::string() : SaidDecor(decor);
        const bool covered = std::any_of(pieces.begin(), pieces.end(), [&decor](const Piece& piece) {
            return piece.cell.control != nullptr && piece.cell.control->GetKind() == Kind::OptionButton &&
                   piece.place.Overlaps(decor.rect);
        });
        if (!said.empty() && !covered) {
            pieces.push_back({decor.rect, {nullptr, {}, std::move(said)}, false, false});
        }
    }
    return pieces;
}

// By the parts of the form; what lies in none comes last.
std::size_t PartOf(const ui::Form& form, const Piece& piece)
{
    const ui::Point middle{piece.place.left + piece.place.width / 2, piece.Middle()};
    const std::span<const Part> parts = Parts();
    const auto part = std::find_if(parts.begin(), parts.end(), [&](const Part& each) {
        return each.form == form.Name() && each.place.Contains(middle);
    });
    return static_cast<std::size_t>(part - parts.begin());
}

// Pieces of one part, by height, then those of one height together from left to right.
std::vector<Pieces> Gathered(Pieces pieces)
{
    std::stable_sort(pieces.begin(), pieces.end(), [](const Piece& a, const Piece& b) {
        return std::pair(a.Order(), a.place.left) < std::pair(b.Order(), b.place.left);
    });
    std::vector<Pieces> rows;
    std::optional<Piece> tallest;
    for (Piece& piece : pieces) {
        const bool same = tallest && piece.joins && tallest->joins &&
                          (tallest->Spans(piece.Middle()) || piece.Spans(tallest->Middle()));
        if (!same) {
            rows.emplace_back();
        }
        if (!same || piece.place.height > tallest->place.height) {
            tallest = piece;
        }
        rows.back().push_back(std::move(piece));
    }
    for (Pieces& row : rows) {
        std::stable_sort(row.begin(), row.end(),
                         [](const Piece& a, const Piece& b) { return a.place.left < b.place.left; });
    }
    return rows;
}

// The table that is being read: its columns or its title, and the distance between its rows.
struct Table {
    bool open = false;
    Pieces columns;
    std::string title;
    std::size_t first = 0;  // of its rows on the page
    int last = 0;           // middle of the row before
    int distance = 0;
};

std::string HeadingOver(const Pieces& columns, const Piece& piece)
{
    const Piece* best = nullptr;
    int most = 0;
    for (const Piece& column : columns) {
        const int overlap = std::min(column.place.Right(), piece.place.Right()) -
                            std::max(column.place.left, piece.place.left);
        if (overlap > most) {
            most = overlap;
            best = &column;
        }
    }
    return best == nullptr ? std::string() : Lowered(best->cell.said);
}

class PageWriter {
public:
    explicit PageWriter(Page& page) : page_(page) {}

    void Write(Pieces pieces)
    {
        const bool headings =
            std::all_of(pieces.begin(), pieces.end(), [](const Piece& piece) { return piece.heading; });
        Row row;
        if (headings) {
            Begin(pieces);
            row.cells = CellsOf(pieces);
            if (pieces.size() > 1) {
                row.cells.front().said = "Columns: " + row.cells.front().said;
            }
        } else {
            if (table_.open && !GoesOn(pieces)) {
                End();
            }
            if (table_.open) {
                AddToTable(pieces, row);
            }
            row.cells = CellsOf(pieces);
        }
        page_.rows.push_back(std::move(row));
        if (headings) {
            table_.first = page_.rows.size();
        }
    }

    void End()
    {
        if (!table_.open) {
            return;
        }
        const int count = static_cast<int>(page_.rows.size() - table_.first);
        for (std::size_t at = table_.first; at < page_.rows.size(); ++at) {
            page_.rows[at].count = count;
        }
        table_ = {};
    }

private:
    void Begin(const Pieces& headings)
    {
        End();
        table_.open = true;
        if (headings.size() > 1) {
            table_.columns = headings;
        } else {
            table_.title = headings.front().cell.said;
        }
    }

    bool GoesOn(const Pieces& pieces) const
    {
        const int gap = pieces.front().Middle() - table_.last;
        return pieces.size() > 1 && (table_.distance == 0 || gap * 10 <= table_.distance * kTableGap);
    }

    void AddToTable(Pieces& pieces, Row& row)
    {
        const int middle = pieces.front().Middle();
        if (table_.last != 0) {
            table_.distance = middle - table_.last;
        }
        table_.last = middle;
        row.title = table_.title;
        row.number = static_cast<int>(page_.rows.size() - table_.first) + 1;
        const bool named = pieces.front().cell.said.ends_with(':');  // a total says itself what it is
        for (std::size_t i = 1; i < pieces.size() && !named; ++i) {
            std::string heading = HeadingOver(table_.columns, pieces[i]);
            pieces[i].cell.heading = heading == kSilent ? "" : heading;
        }
    }

    static std::vector<Cell> CellsOf(Pieces& pieces)
    {
        std::vector<Cell> cells;
        for (Piece& piece : pieces) {
            cells.push_back(std::move(piece.cell));
        }
        return cells;
    }

    Page& page_;
    Table table_;
};

std::string SheetTitle(const ui::Form& form)
{
    for (const Decor& decor : form.GetDesign().decor) {
        const bool sheet = decor.kind == Decor::Kind::PaperSheet || decor.kind == Decor::Kind::SecretSheet ||
                           decor.kind == Decor::Kind::Band || decor.kind == Decor::Kind::SecretBand;
        if (sheet && !decor.text.empty()) {
            return Said(decor.text);
        }
    }
    return Said(form.GetDesign().caption);
}

}  // namespace

std::string SaidControl(const ui::Control& control, Sums sums)
{
    const Spoken* row = FindSpoken(control);
    if (row != nullptr && row->said == kSilent) {
        return {};
    }
    if (control.GetKind() == Kind::Picture) {
        return WithState(control, SaidPicture(control, row));
    }
    if (IsRateButton(control) && row == nullptr) {
        return WithState(control, control.Text() == "+" ? "raise" : "lower");
    }
    const bool fixed = row != nullptr && row->said.find('{') == std::string_view::npos;
    if (!fixed && control.GetKind() != Kind::TextBox && control.Now().twips == 0 &&
        Said(control.Text()).empty()) {
        return {};  // nothing is printed
    }
    return WithState(control, Worded(control, row != nullptr ? row->said : "{}", sums));
}

Page Read(const ui::Form& form)
{
    Page page;
    page.form = &form;
    const Spoken* row = FindSpoken(std::string_view(form.Name()));
    page.title = row != nullptr ? std::string(row->said) : SheetTitle(form);
    page.purpose = row != nullptr ? row->more : "";
    page.opening = row != nullptr ? row->opening : Opening::Summary;
    page.things =
        static_cast<int>(std::count_if(form.Controls().begin(), form.Controls().end(),
                                       [](const Control* control) { return control->Focusable(); }));

    std::vector<Pieces> parts(Parts().size() + 1);
    for (Piece& piece : PiecesOf(form)) {
        parts[PartOf(form, piece)].push_back(std::move(piece));
    }
    for (Pieces& part : parts) {
        PageWriter writer(page);
        for (Pieces& pieces : Gathered(std::move(part))) {
            writer.Write(std::move(pieces));
        }
        writer.End();
    }
    return page;
}

const Row* Page::Find(const ui::Control& control) const
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&control](const Row& row) {
        return std::any_of(row.cells.begin(), row.cells.end(),
                           [&control](const Cell& cell) { return cell.control == &control; });
    });
    return found == rows.end() ? nullptr : &*found;
}

std::string Line(const Row& row)
{
    std::string line;
    for (const Cell& cell : row.cells) {
        if (cell.control != nullptr && IsRateButton(*cell.control)) {
            continue;
        }
        const std::string said = cell.heading.empty() ? cell.said : cell.heading + " " + cell.said;
        if (line.empty()) {
            line = said;
        } else if (line.back() == ':' || line.back() == '?') {
            line += " " + said;
        } else {
            line += ", " + said;
        }
    }
    return Sentence(Capital(std::move(line)));
}

std::string PlaceOf(const Row& row)
{
    return row.number == 0 ? std::string()
                           : "Row " + std::to_string(row.number) + " of " + std::to_string(row.count);
}

std::string SaidCell(const Row& row, const Cell& cell)
{
    std::string said = cell.control != nullptr ? SaidControl(*cell.control, Sums::Exact) : cell.said;
    if (!cell.heading.empty()) {
        said = cell.heading + " " + said;
    }
    said = Sentence(Capital(std::move(said)));
    return &cell == &row.cells.front() ? said : said + " " + Sentence(Capital(row.cells.front().said));
}

bool OnlyNoughts(const Row& row)
{
    return row.number != 0 && row.cells.size() > 1 &&
           std::all_of(row.cells.begin() + 1, row.cells.end(), [](const Cell& cell) {
               return cell.control != nullptr && cell.control->Text() == "0";
           });
}

}  // namespace reading
