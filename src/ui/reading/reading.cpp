#include "ui/reading/reading.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace reading {

namespace {

void Append(std::vector<std::string>& lines, const std::string& said)
{
    std::vector<std::string> more = Lines(said);
    std::move(more.begin(), more.end(), std::back_inserter(lines));
}

// What a picture shows beyond its line.
std::string_view More(const Row& row)
{
    const ui::Control* control = row.cells.empty() ? nullptr : row.cells.front().control;
    const Spoken* picture =
        control == nullptr ? nullptr : FindSpoken(std::string_view(control->Now().picture));
    return picture == nullptr ? std::string_view() : picture->more;
}

const ui::Control* First(const Row& row)
{
    return row.cells.empty() ? nullptr : row.cells.front().control;
}

std::string Heading(const Page& page)
{
    return page.purpose.empty() ? Sentence(page.title) : Sentence(page.title) + " " + Sentence(page.purpose);
}

// Its place among its like on the screen: "3 of 24".
std::string PlaceAmong(const ui::Control& control)
{
    int place = 0;
    int count = 0;
    for (const ui::Control* other : control.GetForm().Controls()) {
        if (other->Focusable() && other->GetKind() == control.GetKind()) {
            ++count;
            place = other == &control ? count : place;
        }
    }
    return count < 2 ? std::string() : " " + std::to_string(place) + " of " + std::to_string(count) + ".";
}

}  // namespace

std::vector<std::string> ReadScreen(const Page& page)
{
    std::vector<std::string> lines;
    if (!page.form->GetDesign().backdrop) {
        Append(lines, Heading(page));
    }
    for (const Row& row : page.rows) {
        Append(lines, Line(row));
        Append(lines, std::string(More(row)));
    }
    return lines;
}

std::vector<std::string> ReadAll(const ui::Desktop& desktop)
{
    std::vector<std::string> lines;
    for (auto form = desktop.Shown().rbegin(); form != desktop.Shown().rend(); ++form) {
        std::vector<std::string> screen = ReadScreen(Read(**form));
        std::move(screen.begin(), screen.end(), std::back_inserter(lines));
    }
    return lines;
}

std::vector<std::string> Summary(const Page& page)
{
    std::vector<std::string> lines;
    const bool backdrop = page.form->GetDesign().backdrop;
    if (!backdrop) {
        Append(lines, Heading(page));
    }
    if (backdrop || page.opening == Opening::Whole) {
        for (const Row& row : page.rows) {
            if (!OnlyNoughts(row)) {
                Append(lines, Line(row));
            }
        }
    } else if (page.things > 0) {
        Append(lines,
               std::to_string(page.things) + (page.things == 1 ? " thing" : " things") + " can be done.");
    }
    return lines;
}

std::string FocusLine(const ui::Control& control)
{
    const Page page = Read(control.GetForm());
    const std::string own = Sentence(Capital(SaidControl(control)));
    const Row* row = page.Find(control);
    if (row == nullptr || row->cells.size() < 2) {
        return own + PlaceAmong(control);
    }
    const std::string line = Line(*row);
    const std::string place = PlaceOf(*row);
    return (First(*row) == &control ? "" : own + " ") + line + (place.empty() ? "" : " " + place + ".");
}

Memory::Memory(const Page& page)
{
    for (const Row& row : page.rows) {
        rows_.push_back({First(row), Line(row)});
    }
}

std::vector<std::string> Memory::News(const Page& page) const
{
    std::vector<std::string> news;
    for (const Row& row : page.rows) {
        const std::string line = Line(row);
        const bool known = std::any_of(rows_.begin(), rows_.end(), [&](const Kept& kept) {
            return kept.first == First(row) && kept.line == line;
        });
        if (!known) {
            Append(news, line);
        }
    }
    return news;
}

}  // namespace reading
