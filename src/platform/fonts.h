// The game's typefaces: where they are, and open fonts of a face, a size and a scale.
//
//     TTF_Font* font = fonts.Open({ui::Face::Caption, 16, 72, 72});
//
// A face is taken from its Debian package's place; when it is not there, from the same place below a folder of
// the game's own, which a portable copy brings along; when it is not there either, fontconfig is asked for the
// family and gives what comes nearest. Characters that a face lacks come from DejaVu Sans or from whatever font
// fontconfig knows to have them. Nothing is opened, and fontconfig is not even started, before it is needed.
#pragma once

#include "platform/font_search.h"
#include "ui/toolkit/style.h"

#include <SDL2/SDL_ttf.h>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>

namespace platform {

// At 72 dots per inch a point is a pixel of the picture space; at a scale s it is s pixels of the surface.
inline constexpr unsigned kPlainDpi = 72;

struct FontSize {
    ui::Face face = ui::Face::Caption;
    int points = 16;
    unsigned across = kPlainDpi;  // dots per inch
    unsigned down = kPlainDpi;
};

class Fonts {
public:
    explicit Fonts(std::filesystem::path ownFolder = {});
    ~Fonts();
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;

    // Null when there is no usable font at all; that is told once on standard error.
    TTF_Font* Open(const FontSize& size);
    // The font that has the character: the face's own, else another; the face's own when none has it.
    TTF_Font* OpenFor(char32_t character, const FontSize& size);

    // Closes every font of a scale that is neither the plain one nor this one.
    void KeepOnly(unsigned down);

private:
    struct Closer {
        void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
    };
    using Key = std::tuple<std::string, int, unsigned, unsigned>;

    TTF_Font* OpenFile(const std::string& file, const FontSize& size);
    std::string Packaged(const char* file) const;
    const FontSearch& Search();
    const std::string& FileOf(ui::Face face);
    const std::string& FileFor(char32_t character);

    std::filesystem::path ownFolder_;
    std::optional<FontSearch> search_;
    std::map<ui::Face, std::string> files_;
    std::map<char32_t, std::string> filesFor_;
    std::map<Key, std::unique_ptr<TTF_Font, Closer>> open_;
    bool told_ = false;
};

}  // namespace platform
