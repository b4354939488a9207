#include "platform/text_layout.h"

#include "ui/toolkit/text_edit.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

// The middle of the letters lies this part of the size above the baseline.
constexpr double kMiddle = 0.34;
constexpr double kMiddleOfCapitals = 0.36;  // headings have no others
// What a line needs from its highest to its lowest letter, as a part of the size.
constexpr double kLetterHeight = 1.2;
constexpr double kCapitalHeight = 0.8;

// The most of a word that fits a line; at least one character.
std::size_t PartThatFits(Letters& letters, std::string_view word, const Type& type, double measure)
{
    ui::TextEdit edit;
    edit.SetText(word);
    std::size_t end = edit.Next(0);
    while (end < word.size()) {
        const std::size_t next = edit.Next(end);
        if (letters.Width(word.substr(0, next), type) > measure) {
            break;
        }
        end = next;
    }
    return end;
}

// Fills lines of one paragraph from the first word to the last.
void WrapParagraph(Letters& letters, std::string_view text, const Type& type, double measure,
                   std::vector<std::string>& lines)
{
    while (!text.empty()) {
        // The end of the last word that still fits; blanks at the break are dropped, others are kept.
        std::size_t fits = 0;
        std::size_t end = 0;
        while (end < text.size()) {
            const std::size_t word = text.find_first_not_of(' ', end);
            end = word == std::string_view::npos ? text.size() : std::min(text.find(' ', word), text.size());
            if (letters.Width(text.substr(0, end), type) > measure) {
                break;
            }
            fits = end;
        }
        if (fits == 0) {
            fits = PartThatFits(letters, text.substr(0, end), type, measure);
        }
        lines.emplace_back(text.substr(0, fits));
        const std::size_t rest = text.find_first_not_of(' ', fits);
        text = rest == std::string_view::npos ? std::string_view() : text.substr(rest);
    }
}

std::vector<std::string> WrapTo(Letters& letters, std::string_view text, const Type& type, double measure)
{
    std::vector<std::string> lines;
    while (true) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::size_t before = lines.size();
        WrapParagraph(letters, text.substr(0, end), type, measure, lines);
        if (lines.size() == before) {
            lines.emplace_back();
        }
        if (end == text.size()) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

double WidestWord(Letters& letters, std::string_view text, const Type& type)
{
    double widest = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" \n", at), text.size());
        widest = std::max(widest, letters.Width(text.substr(at, end - at), type));
        at = end + 1;
    }
    return widest;
}

void Place(Letters& letters, const Type& type, int line, const ui::TextStyle& style, const BoxF& box,
           TextLayout& layout)
{
    const double height = static_cast<double>(line) * static_cast<double>(layout.lines.size());
    double middle = (style.top ? box.top : box.MiddleY() - height / 2) + line / 2.0;
    for (TextLine& each : layout.lines) {
        each.width = letters.Width(each.text, type);
        const double room = box.width - each.width;
        each.left = box.left + (style.align == ui::Align::Left     ? 0
                                : style.align == ui::Align::Center ? room / 2
                                                                   : room);
        each.baseline = middle + (style.face == ui::Face::Heading ? kMiddleOfCapitals : kMiddle) * type.size;
        middle += line;
    }
}

// Takes characters from a line's end until it fits with three dots behind it.
void CutLine(Letters& letters, const Type& type, double measure, std::string& line)
{
    constexpr std::string_view kDots = "...";
    while (!line.empty() && letters.Width(line + std::string(kDots), type) > measure) {
        ui::TextEdit edit;
        edit.SetText(line);
        line.resize(edit.Previous(line.size()));
    }
    line += kDots;
}

// Of a text that is too long for its place at every size, what there is room for.
void CutToFit(Letters& letters, const Type& type, const BoxF& box, double rows, std::vector<TextLine>& lines)
{
    const auto room = static_cast<std::size_t>(std::max(1.0, rows));
    if (lines.size() > room) {
        lines.resize(room);
        CutLine(letters, type, box.width, lines.back().text);
    }
    for (TextLine& line : lines) {
        if (letters.Width(line.text, type) > box.width) {
            CutLine(letters, type, box.width, line.text);
        }
    }
}

}  // namespace

BoxF TextLayout::Bounds() const
{
    if (lines.empty()) {
        return {};
    }
    double left = lines.front().left;
    double right = left;
    for (const TextLine& line : lines) {
        left = std::min(left, line.left);
        right = std::max(right, line.left + line.width);
    }
    const double top = lines.front().baseline - 0.76 * size;
    const double bottom = lines.back().baseline + 0.24 * size;
    return {left, top, right - left, bottom - top};
}

std::vector<std::string> Wrap(Letters& letters, std::string_view text, const Type& type, double measure,
                              bool balanced)
{
    std::vector<std::string> lines = WrapTo(letters, text, type, measure);
    if (!balanced || lines.size() < 2) {
        return lines;
    }
    // The narrowest measure that needs no more lines and breaks no word makes them about equally long.
    double narrow = std::min(WidestWord(letters, text, type), measure);
    double wide = measure;
    while (wide - narrow > 2) {
        const double middle = (narrow + wide) / 2;
        (WrapTo(letters, text, type, middle).size() > lines.size() ? narrow : wide) = middle;
    }
    return WrapTo(letters, text, type, wide);
}

TextLayout LayOut(Letters& letters, std::string_view text, const ui::TextStyle& style, const BoxF& box)
{
    const double needed = style.face == ui::Face::Heading ? kCapitalHeight : kLetterHeight;
    TextLayout layout;
    int step = 1;  // from line to line
    for (const ui::TextSize& each : style.sizes) {
        if (each.size == 0 || text.empty()) {
            break;
        }
        const Type type{style.face, each.size, 1.0};
        layout.size = each.size;
        step = each.line;
        layout.lines.clear();
        if (style.wrap) {
            for (std::string& line : Wrap(letters, text, type, box.width, style.balanced)) {
                layout.lines.push_back({std::move(line)});
            }
        } else {
            layout.lines.push_back({std::string(text)});
        }
        Place(letters, type, each.line, style, box, layout);
        const auto tooWide = [&box](const TextLine& line) { return line.width > box.width; };
        const double height = each.line * (static_cast<double>(layout.lines.size()) - 1) + needed * each.size;
        layout.fits = height <= box.height && std::none_of(layout.lines.begin(), layout.lines.end(), tooWide);
        if (layout.fits) {
            break;
        }
    }
    layout.fits = layout.fits || text.empty();
    if (!layout.fits && !layout.lines.empty()) {
        const Type type{style.face, layout.size, 1.0};
        const double rows = 1 + std::floor((box.height - needed * layout.size) / step);
        CutToFit(letters, type, box, rows, layout.lines);
        Place(letters, type, step, style, box, layout);
    }
    return layout;
}

}  // namespace platform
