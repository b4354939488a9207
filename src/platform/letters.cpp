#include "platform/letters.h"

#include "ui/toolkit/text_edit.h"

#include <utf8.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace platform {

namespace {

// Headings are set a little wide. Their letters are placed one by one, to a quarter of a pixel.
constexpr double kTracking = 0.031;
constexpr int kFineDots = 4;
// A line longer than any screen could show is not worth the memory.
constexpr std::size_t kLongestText = 2000;
constexpr std::size_t kKeptWidths = 2000;

struct SurfaceDeleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using Surface = std::unique_ptr<SDL_Surface, SurfaceDeleter>;

int WidthOf(TTF_Font* font, const std::string& text)
{
    int width = 0;
    if (font != nullptr) {
        TTF_SizeUTF8(font, text.c_str(), &width, nullptr);
    }
    return width;
}

// From the top of a rendered text to its baseline: the font's ascent, or the highest letter where that is higher.
int BaselineOf(TTF_Font* font, const std::string& text)
{
    int above = TTF_FontAscent(font);
    for (auto it = text.begin(); it != text.end();) {
        int top = 0;
        if (TTF_GlyphMetrics32(font, utf8::unchecked::next(it), nullptr, nullptr, nullptr, &top, nullptr) ==
            0) {
            above = std::max(above, top);
        }
    }
    return above;
}

bool Plain(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// One text in one type, as a key.
std::string Key(std::string_view text, const Type& type)
{
    std::string key = std::to_string(static_cast<int>(type.face)) + ' ' + std::to_string(type.size) + ' ' +
                      std::to_string(type.Dpi()) + ' ';
    key += text;
    return key;
}

// Takes over the surface's coverage, several dots making one pixel.
void Add(Mask& mask, const SDL_Surface& surface, int left, int top, int fine)
{
    for (int y = 0; y < surface.h; ++y) {
        const int line = top + y;
        if (line < 0 || line >= mask.height) {
            continue;
        }
        const auto* bytes =
            static_cast<const std::uint8_t*>(surface.pixels) + static_cast<std::ptrdiff_t>(y) * surface.pitch;
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(bytes);
        std::uint8_t* row = mask.cover.data() + static_cast<std::ptrdiff_t>(line) * mask.width;
        for (int x = 0; x < surface.w; ++x) {
            const int column = (left + x) / fine;
            if (column < mask.width) {
                const std::uint32_t part = (pixels[x] >> 24U) + static_cast<unsigned>(fine) / 2;
                row[column] = static_cast<std::uint8_t>(
                    std::min(255U, row[column] + part / static_cast<unsigned>(fine)));
            }
        }
    }
}

}  // namespace

unsigned Type::Dpi() const
{
    return static_cast<unsigned>(std::lround(kPlainDpi * scale));
}

Letters::Runs Letters::Split(std::string_view text, const Type& type)
{
    const bool tracked = type.face == ui::Face::Heading;
    const unsigned dpi = type.Dpi();
    Runs result;
    result.fine = tracked ? kFineDots : 1;
    const FontSize size{type.face, type.size, dpi * static_cast<unsigned>(result.fine), dpi};
    const double space = tracked ? kTracking * type.size * type.scale * result.fine : 0;

    ui::TextEdit line;  // makes the text valid and knows what a character is
    line.SetText(text.substr(0, kLongestText));
    const std::string& valid = line.Text();
    if (!tracked && Plain(valid)) {
        TTF_Font* font = fonts_.Open(size);
        result.width = WidthOf(font, valid);
        result.runs.push_back({font, valid, 0});
        return result;
    }
    double left = 0;
    for (std::size_t at = 0; at < valid.size();) {
        const std::size_t next = line.Next(at);
        const std::string character = valid.substr(at, next - at);
        auto it = valid.begin() + static_cast<std::ptrdiff_t>(at);
        TTF_Font* font = fonts_.OpenFor(utf8::unchecked::next(it), size);
        at = next;
        if (!result.runs.empty()) {
            const Run& last = result.runs.back();
            const bool same = last.font == font;
            if (same && !tracked) {
                result.runs.back().text += character;
                continue;
            }
            // Within a font the distance of two letters is the pair's, with its kerning.
            left += space + (same ? WidthOf(font, last.text + character) - WidthOf(font, character)
                                  : WidthOf(last.font, last.text));
        }
        result.runs.push_back({font, character, static_cast<int>(std::lround(left))});
    }
    if (!result.runs.empty()) {
        const Run& last = result.runs.back();
        result.width = last.left + WidthOf(last.font, last.text);
    }
    return result;
}

// A letter may reach higher or lower than its font says; each is there whole.
Mask Letters::Draw(const Runs& runs)
{
    struct Part {
        Surface surface;
        int left = 0;
        int baseline = 0;
    };
    std::vector<Part> parts;
    Mask mask;
    int below = 0;
    for (const Run& run : runs.runs) {
        if (run.font == nullptr) {
            continue;
        }
        Part part{Surface(TTF_RenderUTF8_Blended(run.font, run.text.c_str(), {255, 255, 255, 255})), run.left,
                  BaselineOf(run.font, run.text)};
        if (part.surface) {
            mask.baseline = std::max(mask.baseline, part.baseline);
            below = std::max(below, part.surface->h - part.baseline);
            parts.push_back(std::move(part));
        }
    }
    mask.width = (runs.width + runs.fine - 1) / runs.fine + 1;
    mask.height = mask.baseline + below;
    mask.cover.assign(static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height), 0);
    for (const Part& part : parts) {
        Add(mask, *part.surface, part.left, mask.baseline - part.baseline, runs.fine);
    }
    return mask;
}

double Letters::Width(std::string_view text, const Type& type)
{
    std::string key = Key(text, type);
    if (const auto known = widths_.find(key); known != widths_.end()) {
        return known->second;
    }
    const Runs runs = Split(text, type);
    const double width = static_cast<double>(runs.width) / runs.fine;
    if (widths_.size() >= kKeptWidths) {
        widths_.clear();
    }
    widths_.emplace(std::move(key), width);
    return width;
}

const Mask& Letters::Render(std::string_view text, const Type& type)
{
    std::string key = Key(text, type);
    if (const auto known = byKey_.find(key); known != byKey_.end()) {
        recent_.splice(recent_.begin(), recent_, known->second);
        return recent_.front().mask;
    }
    Mask mask = Draw(Split(text, type));
    kept_ += mask.cover.size();
    recent_.push_front({std::move(key), std::move(mask)});
    byKey_.emplace(recent_.front().key, recent_.begin());
    while (kept_ > kKeptBytes && recent_.size() > 1) {
        kept_ -= recent_.back().mask.cover.size();
        byKey_.erase(recent_.back().key);
        recent_.pop_back();
    }
    return recent_.front().mask;
}

double Letters::XOf(std::string_view text, std::size_t offset, const Type& type)
{
    return Width(text.substr(0, offset), type);
}

std::size_t Letters::OffsetAt(std::string_view text, double x, const Type& type)
{
    ui::TextEdit line;
    line.SetText(text);
    std::size_t at = 0;
    double left = 0;
    while (at < text.size()) {
        const std::size_t next = line.Next(at);
        const double right = XOf(text, next, type);
        if (x < (left + right) / 2) {
            break;
        }
        left = right;
        at = next;
    }
    return at;
}

void Letters::KeepOnly(double scale)
{
    const unsigned dpi = Type{.scale = scale}.Dpi();
    fonts_.KeepOnly(dpi);
    recent_.clear();
    byKey_.clear();
    widths_.clear();
    kept_ = 0;
}

}  // namespace platform
