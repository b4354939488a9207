#include "persist/chronicle.h"

#include "core/numbers.h"
#include "persist/record_errors.h"

#include <optional>

namespace persist {

namespace {

constexpr std::size_t kNoteItems = 3;

// The numbers of a row in their order.
template <class Row> auto NumbersOf(Row& row)
{
    std::vector<decltype(&row.month)> numbers{&row.month,      &row.treasury, &row.swiss,   &row.balance,
                                              &row.popularity, &row.favour,   &row.reported};
    for (std::size_t group = 0; group < core::kGroups; ++group) {
        numbers.push_back(&row.opposition[group]);
    }
    for (std::size_t group = 0; group < core::kGroups; ++group) {
        numbers.push_back(&row.strength[group]);
    }
    return numbers;
}

template <class Named> std::optional<Named> Find(std::string_view name, Named last)
{
    for (int each = 0; each <= static_cast<int>(last); ++each) {
        if (core::NameOf(static_cast<Named>(each)) == name) {
            return static_cast<Named>(each);
        }
    }
    return std::nullopt;
}

// Walks through the items of one file.
class Reader {
public:
    Reader(const std::vector<files::Item>& items, std::string_view file) : items_(items), file_(file) {}

    files::Result<Chronicle> Read()
    {
        while (at_ < items_.size()) {
            if (auto wrong = items_[at_].quoted ? TakeNote() : TakeRow()) {
                return *wrong;
            }
        }
        return std::move(chronicle_);
    }

private:
    using Wrong = std::optional<files::FileError>;

    Wrong TakeRow()
    {
        ChronicleRow& row = chronicle_.emplace_back();
        for (std::int64_t* number : NumbersOf(row)) {
            if (Wrong wrong = TakeNumber(*number, "a month's row")) {
                return wrong;
            }
        }
        return std::nullopt;
    }

    Wrong TakeNote()
    {
        if (chronicle_.empty() || at_ + kNoteItems > items_.size()) {
            return Unexpected(file_, items_[at_], "a note", "a kind, a name and a number behind a month");
        }
        const auto kind = Find(items_[at_].text, core::Kind::End);
        const auto who = Find(items_[at_ + 1].text, core::Who::Americans);
        if (!kind || !who) {
            return Unexpected(file_, items_[kind ? at_ + 1 : at_], "a note", "a word of the journal");
        }
        at_ += 2;
        core::Note note{*kind, *who, 0, chronicle_.back().month};
        if (Wrong wrong = TakeNumber(note.amount, "a note")) {
            return wrong;
        }
        chronicle_.back().notes.push_back(note);
        return std::nullopt;
    }

    Wrong TakeNumber(std::int64_t& number, std::string_view of)
    {
        if (at_ == items_.size()) {
            return files::FileError{std::string(file_), items_.back().line,
                                    "expected more numbers, found the end"};
        }
        const auto value = files::AsInteger(items_[at_]);
        if (!value) {
            return Unexpected(file_, items_[at_], of, "a whole number");
        }
        number = *value;
        ++at_;
        return std::nullopt;
    }

    const std::vector<files::Item>& items_;
    std::string_view file_;
    std::size_t at_ = 0;
    Chronicle chronicle_;
};

}  // namespace

std::string PrintChronicle(const Chronicle& chronicle)
{
    std::string text;
    for (const ChronicleRow& row : chronicle) {
        std::string line;
        for (const std::int64_t* number : NumbersOf(row)) {
            line.append(line.empty() ? "" : ",").append(core::Digits(*number));
        }
        text += line;
        text += files::kLineEnd;
        for (const core::Note& note : row.notes) {
            text.append(files::Text(core::NameOf(note.kind))).append(",");
            text.append(files::Text(core::NameOf(note.who))).append(",").append(core::Digits(note.amount));
            text += files::kLineEnd;
        }
    }
    return text;
}

files::Result<Chronicle> ParseChronicle(const std::vector<files::Item>& items, std::string_view file)
{
    return Reader(items, file).Read();
}

std::string ChronicleFile(std::string_view savedGame)
{
    return std::string(savedGame) + ".chronicle";
}

}  // namespace persist
