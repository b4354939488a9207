// One line of text as pixels: how wide it is, where its characters stand, and the mask that paints it.
//
//     const Mask& mask = letters.Render("Ada", {ui::Face::Typed, 17, 1.6});
//     const double x = letters.XOf("Ada", 2, type);      // of the second character's right edge
//
// Widths are pixels of the surface (scale 1: of the picture space). Rendered texts are kept up to a fixed
// amount of memory, the longest unused going first; a reference lives until the next call of Render.
#pragma once

#include "platform/canvas.h"
#include "platform/fonts.h"

#include <cstddef>
#include <filesystem>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace platform {

struct Type {
    ui::Face face = ui::Face::Caption;
    int size = 16;
    double scale = 1.0;

    unsigned Dpi() const;
};

class Letters {
public:
    static constexpr std::size_t kKeptBytes = std::size_t{512} * 1024;

    // A portable copy of the game has its typefaces in a folder of its own.
    explicit Letters(std::filesystem::path ownFonts = {}) : fonts_(std::move(ownFonts)) {}

    double Width(std::string_view text, const Type& type);
    const Mask& Render(std::string_view text, const Type& type);

    // Between byte offsets of a text and distances from its left edge.
    double XOf(std::string_view text, std::size_t offset, const Type& type);
    std::size_t OffsetAt(std::string_view text, double x, const Type& type);

    // Forgets what belongs to another scale.
    void KeepOnly(double scale);
    std::size_t Kept() const { return kept_; }

private:
    // A part of a text that one font sets in one go.
    struct Run {
        TTF_Font* font = nullptr;
        std::string text;
        int left = 0;  // in dots
    };
    struct Runs {
        std::vector<Run> runs;
        int width = 0;  // in dots
        int fine = 1;   // dots a pixel
    };
    struct Entry {
        std::string key;
        Mask mask;
    };

    Runs Split(std::string_view text, const Type& type);
    static Mask Draw(const Runs& runs);

    Fonts fonts_;
    std::list<Entry> recent_;  // the last used first
    std::unordered_map<std::string_view, std::list<Entry>::iterator> byKey_;
    std::size_t kept_ = 0;
    std::unordered_map<std::string, double> widths_;
};

}  // namespace platform
