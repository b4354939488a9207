#include "office/chronicle.h"

#include <algorithm>
#include <string>

namespace office {

namespace {

// Longer than any presidency; a game that is played on by a machine keeps its latest months.
constexpr std::size_t kMostRows = 1200;

// Of the key's samples.
constexpr double kHalf = 50;
constexpr double kWhole = 100;

constexpr std::string_view kNothingYet = "No month is over yet, Mr.President. History is being written.";

}  // namespace

ChronicleSheet::ChronicleSheet(const core::GameState& state, screens::FrmChronicle& form, media::Sound& sound,
                               const files::WrittenFiles& files, const core::NumberFormat& format)
    : state_(state), form_(form), files_(files), format_(format)
{
    const auto press = [&sound](auto deed) {
        return [&sound, deed] {
            sound.SoundClick();
            deed();
        };
    };
    form.cmdNewer.onClick = press([this] { Scroll(-screens::kChronicleLines); });
    form.cmdOlder.onClick = press([this] { Scroll(screens::kChronicleLines); });
    form.cmdClose.onClick = press([this] { form_.Hide(); });
}

void ChronicleSheet::Begin()
{
    rows_.clear();
    trouble_.clear();
}

void ChronicleSheet::MonthClosed(const std::vector<core::Note>& notes)
{
    if (rows_.size() == kMostRows) {
        rows_.pop_front();
    }
    rows_.push_back(RowOf(state_, notes));
}

void ChronicleSheet::Keep(std::string_view savedGame, const std::vector<core::Note>& sinceThen)
{
    persist::Chronicle rows = rows_;
    if (!sinceThen.empty() && rows.empty()) {
        rows.push_back(RowOf(state_, {}));
    }
    if (!sinceThen.empty()) {
        rows.back().notes.insert(rows.back().notes.end(), sinceThen.begin(), sinceThen.end());
    }
    const std::string file = persist::ChronicleFile(savedGame);
    const files::Result<files::FolderLock> lock = files_.Lock(file);
    const files::Failure failure =
        lock ? files_.Replace(*lock, file, persist::PrintChronicle(rows)) : lock.Error();
    trouble_ = failure ? failure->Message() : std::string();
}

// The last row is the month in which the game was saved, or the file belongs to another one.
void ChronicleSheet::Take(std::string_view savedGame)
{
    Begin();
    const std::string file = persist::ChronicleFile(savedGame);
    const files::Result<bool> there = files_.Has(file);
    if (there && !*there) {
        return;
    }
    const auto items = files_.Read(file);
    const auto rows = items ? persist::ParseChronicle(*items, file) : items.Error();
    if (!rows) {
        trouble_ = rows.Error().Message();
    } else if (!rows->empty() && rows->back().month == state_.MonthsInPower) {
        rows_ = *rows;
    }
}

void ChronicleSheet::Open()
{
    log_ = LogOf(rows_, format_);
    top_ = 0;
    ShowMoney();
    ShowGroups();
    ShowLog();
    form_.lblTrouble.SetText(!trouble_.empty() ? trouble_ : rows_.empty() ? kNothingYet : std::string_view());
    form_.Show();
}

void ChronicleSheet::ShowMoney()
{
    const ui::Chart chart = MoneyOf(rows_);
    form_.grfMoney.Draw(chart);
    form_.grfMoney.SetText(SaidOfMoney(rows_));
    form_.lblHigh.SetText(format_.Amount(chart.high));
    form_.lblLow.SetText(format_.Amount(chart.low));
    const bool any = !rows_.empty();
    form_.lblFirst.SetText(any ? core::Digits(rows_.front().month) : "");
    form_.lblLast.SetText(rows_.size() > 1 ? core::Digits(rows_.back().month) : "");
    form_.lblSwiss.SetText(any ? format_.Amount(rows_.back().swiss) : "");
    form_.lblTreasury.SetText(any ? format_.Amount(rows_.back().treasury) : "");
}

void ChronicleSheet::ShowGroups()
{
    form_.grfKey[0].Draw({.limits = {{kHalf, false}}});
    form_.grfKey[1].Draw({.limits = {{kHalf, true}}});
    form_.grfKey[2].Draw(
        {.curves = {{.values = {kWhole, kWhole}, .color = look::kInk}}, .limits = {{0, false}}});
    for (int i = 0; i < screens::kChronicleGraphs; ++i) {
        const auto series = static_cast<Series>(i);
        const std::optional<std::int64_t> last = LastOf(series, rows_);
        form_.lblName[i].SetText(NameOf(series));
        form_.lblValue[i].SetText(last ? core::Digits(*last) + (series == Series::Popularity ? "%" : "")
                                       : "?");
        form_.lblName[i].SetFore(last && IsOverLimit(series, *last) ? look::kNegative : look::kInk);
        form_.grfGroup[i].SetText(SaidOf(series, rows_));
        form_.grfGroup[i].Draw(ChartOf(series, rows_));
    }
}

void ChronicleSheet::Scroll(int lines)
{
    const auto wanted = static_cast<std::ptrdiff_t>(top_) + lines;
    const std::ptrdiff_t most = static_cast<std::ptrdiff_t>(log_.size()) - screens::kChronicleLines;
    top_ = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, std::min(wanted, most)));
    ShowLog();
}

void ChronicleSheet::ShowLog()
{
    for (int i = 0; i < screens::kChronicleLines; ++i) {
        const std::size_t at = top_ + static_cast<std::size_t>(i);
        const LogLine line = at < log_.size() ? log_[at] : LogLine{};
        form_.lblMonth[i].SetText(line.text.empty() ? "" : core::Digits(line.month));
        form_.lblLine[i].SetText(line.text);
        form_.lblLine[i].SetMark(line.mark == ui::Mark::None ? ui::Mark::Blank : line.mark);
    }
}

}  // namespace office
