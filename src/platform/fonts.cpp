#include "platform/fonts.h"

#include <filesystem>
#include <iostream>
#include <utility>

namespace platform {

namespace {

struct FaceFile {
    const char* family;
    const char* style;
    const char* file;  // in the family's Debian package
};

// In the order of ui::Face.
constexpr FaceFile kFaceFiles[] = {
    {"Bebas Neue", "Bold", "opentype/bebas-neue/BebasNeue-Bold.otf"},
    {"Cabin", "SemiBold", "opentype/cabin/Cabin-SemiBold.otf"},
    {"Cabin", "Bold", "opentype/cabin/Cabin-Bold.otf"},
    {"Cabin", "Medium", "opentype/cabin/Cabin-Medium.otf"},
    {"Courier Prime", "Bold", "opentype/courier-prime/Courier Prime Bold.otf"},
    {"Courier Prime", "Regular", "opentype/courier-prime/Courier Prime.otf"},
    {"Old Standard TT", "Bold", "truetype/fonts-oldstandard/OldStandard-Bold.ttf"},
    {"Old Standard TT", "Regular", "truetype/fonts-oldstandard/OldStandard-Regular.ttf"},
    {"Old Standard TT", "Italic", "truetype/fonts-oldstandard/OldStandard-Italic.ttf"},
};
static_assert(std::size(kFaceFiles) == static_cast<std::size_t>(ui::Face::PrintItalic) + 1);

constexpr const char* kFontFolder = "/usr/share/fonts/";
constexpr const char* kFallback = "truetype/dejavu/DejaVuSans.ttf";

}  // namespace

Fonts::Fonts(std::filesystem::path ownFolder) : ownFolder_(std::move(ownFolder))
{
    TTF_Init();
}

Fonts::~Fonts()
{
    open_.clear();
    TTF_Quit();
}

const FontSearch& Fonts::Search()
{
    if (!search_) {
        search_.emplace();
    }
    return *search_;
}

// The file where its package puts it, else where a portable copy has it; empty when it is nowhere.
std::string Fonts::Packaged(const char* file) const
{
    std::error_code ignored;
    for (const std::filesystem::path& folder : {std::filesystem::path(kFontFolder), ownFolder_}) {
        if (!folder.empty() && std::filesystem::exists(folder / file, ignored)) {
            return folder / file;
        }
    }
    return {};
}

// The place in the package if it is there: to ask fontconfig costs a start several milliseconds.
const std::string& Fonts::FileOf(ui::Face face)
{
    auto [it, isNew] = files_.try_emplace(face);
    if (isNew) {
        const FaceFile& known = kFaceFiles[static_cast<std::size_t>(face)];
        it->second = Packaged(known.file);
        if (it->second.empty()) {
            it->second = Search().File(known.family, known.style);
        }
    }
    return it->second;
}

const std::string& Fonts::FileFor(char32_t character)
{
    auto [it, isNew] = filesFor_.try_emplace(character);
    if (isNew) {
        it->second = Search().FileWith(character);
    }
    return it->second;
}

TTF_Font* Fonts::OpenFile(const std::string& file, const FontSize& size)
{
    auto [it, isNew] = open_.try_emplace(Key{file, size.points, size.across, size.down});
    if (isNew && !file.empty()) {
        it->second.reset(TTF_OpenFontDPI(file.c_str(), size.points, size.across, size.down));
        if (it->second) {
            TTF_SetFontHinting(it->second.get(), TTF_HINTING_LIGHT_SUBPIXEL);
            TTF_SetFontKerning(it->second.get(), 1);
        }
    }
    return it->second.get();
}

TTF_Font* Fonts::Open(const FontSize& size)
{
    TTF_Font* font = OpenFile(FileOf(size.face), size);
    if (font == nullptr) {
        font = OpenFile(FileFor(U'A'), size);
    }
    if (font == nullptr && !told_) {
        told_ = true;
        std::cerr << "quenvale: no font found: " << FileOf(size.face) << ": " << TTF_GetError() << '\n';
    }
    return font;
}

TTF_Font* Fonts::OpenFor(char32_t character, const FontSize& size)
{
    TTF_Font* own = Open(size);
    if (own == nullptr || TTF_GlyphIsProvided32(own, character) != 0) {
        return own;
    }
    TTF_Font* other = OpenFile(Packaged(kFallback), size);
    if (other == nullptr || TTF_GlyphIsProvided32(other, character) == 0) {
        other = OpenFile(FileFor(character), size);
    }
    return other != nullptr && TTF_GlyphIsProvided32(other, character) != 0 ? other : own;
}

void Fonts::KeepOnly(unsigned down)
{
    std::erase_if(open_, [down](const auto& entry) {
        const unsigned own = std::get<3>(entry.first);
        return own != kPlainDpi && own != down;
    });
}

}  // namespace platform
