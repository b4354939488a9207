#include "shell/manual.h"

#include "month/banner.h"

#include <algorithm>
#include <iterator>
#include <system_error>
#include <utility>

namespace shell {

namespace {

constexpr std::string_view kManual = "Data/Manual.htm";

// Where the manual speaks of a screen. Any other is in the chapter with every screen.
struct ChapterRow {
    std::string_view form, chapter;
};
constexpr ChapterRow kChapters[] = {
    {"frmStart", "office"},   {"frmName", "months"}, {"frmActions", "prices"}, {"frmShow", "prices"},
    {"frmRev", "rising"},     {"frmGRev", "rising"}, {"frmPrRev", "rising"},   {"frmMes3", "rising"},
    {"frmChoose", "fight"},   {"frmMes2", "fight"},  {"frmMes", "murder"},     {"frmAFailed", "murder"},
    {"frmMes1", "murder"},    {"frmUSA", "world"},   {"frmRandom2", "world"},  {"frmWAR", "world"},
    {"frmNewspaper", "news"}, {"frmShow2", "news"},  {"frmTop102", "score"},   {"frmHistory", "score"},
    {"frmPolice", "people"},  {"frmSave", "keys"},   {"frmLoad", "keys"},      {"frmOptions", "keys"},
};

std::string_view ChapterOf(const ui::Desktop& desktop)
{
    if (desktop.Shown().empty()) {
        return {};
    }
    const std::string& front = desktop.Shown().back()->Name();
    const auto* const row = std::find_if(std::begin(kChapters), std::end(kChapters),
                                         [&front](const ChapterRow& each) { return each.form == front; });
    return row == std::end(kChapters) ? "screens" : row->chapter;
}

}  // namespace

std::string Manual::Open()
{
    const std::filesystem::path path = folder_.Path(kManual);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return Tell("Mr.President, the manual was expected at " + path.string() +
                    " and is not there. Nobody had read it, so nobody is missing anything.");
    }
    const std::string_view chapter = ChapterOf(desktop_);
    host_.OpenDocument(kManual, chapter);
    if (std::exchange(openedAt_, desktop_.Uses()) == desktop_.Uses() && readHere) {
        readHere(path, chapter);
    }
    return Tell("Mr.President, your manual lies at " + path.string());
}

std::string Manual::Tell(std::string text)
{
    if (screens_.frmStart.Visible()) {
        screens_.frmStart.Label3.SetText(text);
    } else if (screens_.frmMain.Visible() && screens_.frmMain.Enabled() && desktop_.ModalForm() == nullptr) {
        month::Say(screens_.frmMonthBanner, text);
    }
    return text;
}

}  // namespace shell
