#include "platform/font_search.h"

#include <fontconfig/fontconfig.h>

#include <memory>

namespace platform {

namespace {

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct CharSetDeleter {
    void operator()(FcCharSet* set) const { FcCharSetDestroy(set); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;
using CharSet = std::unique_ptr<FcCharSet, CharSetDeleter>;

const FcChar8* Text(const char* text)
{
    return reinterpret_cast<const FcChar8*>(text);
}

Pattern Match(FcPattern* wanted)
{
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultNoMatch;
    return Pattern(FcFontMatch(nullptr, wanted, &result));
}

std::string FileOf(const Pattern& match)
{
    FcChar8* file = nullptr;
    const bool found = match && FcPatternGetString(match.get(), FC_FILE, 0, &file) == FcResultMatch;
    return found ? std::string(reinterpret_cast<const char*>(file)) : std::string();
}

// Outlines only: a picture font cannot be set in the colour of the text.
Pattern Outlines(const char* family)
{
    Pattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, Text(family));
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    FcPatternAddBool(wanted.get(), FC_COLOR, FcFalse);
    return wanted;
}

}  // namespace

FontSearch::FontSearch()
{
    FcInit();
}

FontSearch::~FontSearch()
{
    FcFini();
}

std::string FontSearch::File(const char* family, const char* style) const
{
    const Pattern wanted = Outlines(family);
    FcPatternAddString(wanted.get(), FC_STYLE, Text(style));
    return FileOf(Match(wanted.get()));
}

std::string FontSearch::FileWith(char32_t character) const
{
    const CharSet characters(FcCharSetCreate());
    FcCharSetAddChar(characters.get(), character);
    const Pattern wanted = Outlines("DejaVu Sans");
    FcPatternAddCharSet(wanted.get(), FC_CHARSET, characters.get());
    return FileOf(Match(wanted.get()));
}

}  // namespace platform
