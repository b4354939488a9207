#include "office/handbook.h"

#include "core/numbers.h"
#include "files/whole_file.h"

#include <algorithm>
#include <string>

namespace office {

namespace {

constexpr std::size_t kLines = screens::kHandbookLines;

}  // namespace

HandbookSheet::HandbookSheet(screens::FrmHandbook& form, media::Sound& sound) : form_(form), sound_(sound)
{
    form.cmdBack.onClick = [this] { Turn(-1); };
    form.cmdOn.onClick = [this] { Turn(1); };
    form.cmdClose.onClick = [this] {
        sound_.SoundClick();
        form_.Hide();
    };
}

void HandbookSheet::Open(const std::filesystem::path& file, std::string_view chapter)
{
    if (book_.lines.empty()) {
        const files::Result<std::string> html = files::ReadWhole(file, file.string());
        book_ = html ? ReadHandbook(*html) : Handbook{.lines = {html.Error().Message()}};
    }
    top_ = book_.ChapterAt(chapter);
    ShowPage();
    form_.Show();
}

void HandbookSheet::Turn(int pages)
{
    sound_.SoundClick();
    const auto wanted = static_cast<std::ptrdiff_t>(top_) + pages * static_cast<std::ptrdiff_t>(kLines);
    const auto last = static_cast<std::ptrdiff_t>((book_.lines.size() - 1) / kLines * kLines);
    top_ = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(wanted, 0, std::max<std::ptrdiff_t>(last, 0)));
    ShowPage();
}

void HandbookSheet::ShowPage()
{
    for (std::size_t i = 0; i < kLines; ++i) {
        const std::size_t at = top_ + i;
        form_.lblLine[static_cast<int>(i)].SetText(at < book_.lines.size() ? book_.lines[at] : "");
    }
    form_.lblPage.SetText(
        "Page " + core::Digits(static_cast<std::int64_t>(top_ / kLines) + 1) + " of " +
        core::Digits(static_cast<std::int64_t>((book_.lines.size() + kLines - 1) / kLines)));
}

}  // namespace office
