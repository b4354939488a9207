#include "persist/hall_file.h"

#include "files/checksum.h"

namespace persist {

namespace {

constexpr std::string_view kFile = "Data/Top";

std::string NotWritten(const files::FileError& error)
{
    return "Mr.President, the list cannot be kept. " + error.Message() +
           ". Nothing older was harmed. This one we shall have to remember.";
}

}  // namespace

files::Result<HallList> HallFile::Read() const
{
    const files::Result<bool> there = files_.Has(kFile);
    if (!there) {
        return there.Error();
    }
    if (!*there) {
        return FreshHall();
    }
    const files::Result<std::vector<files::Item>> items = files_.Read(kFile);
    if (!items) {
        return items.Error();
    }
    return ReadHall(*items, kFile);
}

bool HallFile::Altered() const
{
    const files::Result<std::string> content = files_.ReadWhole(kFile);
    return content && !files::Agrees(files_, kFile, *content);
}

std::vector<std::string> HallFile::Files()
{
    return {std::string(kFile), files::SumFile(kFile)};
}

// The list, or a fresh one when it could not be read and was put aside. Where that fails too, the unreadable
// file stays as it is and nothing may be written.
HallList HallFile::ReadOrBegin(const files::FolderLock& lock, std::string& trouble, bool& mayWrite) const
{
    mayWrite = true;
    const files::Result<HallList> hall = Read();
    if (hall) {
        return *hall;
    }
    trouble = "Mr.President, the old list cannot be read. " + hall.Error().Message() + ". ";
    if (hall.Error().fault == files::FileError::Fault::System) {
        mayWrite = false;
        trouble += "It may well be in order, so nothing was written.";
        return FreshHall();
    }
    const files::Result<std::string> aside = files_.KeepAside(lock, kFile);
    mayWrite = static_cast<bool>(aside);
    if (!aside) {
        trouble += aside.Error().Message() + ", so it lies where it lay and nothing was written.";
        return FreshHall();
    }
    trouble +=
        aside->empty() ? "A fresh one was begun." : "It is kept as " + *aside + " and a fresh one begun.";
    const files::Result<HallList> shipped = Read();  // what the game came with, where that is another file
    return shipped ? *shipped : FreshHall();
}

HallReport HallFile::Enter(const HallEntry& entry, bool dead) const
{
    HallReport report;
    const files::Result<files::FolderLock> lock = files_.Lock(kFile);
    if (!lock) {
        const files::Result<HallList> hall = Read();
        report.hall = hall ? *hall : FreshHall();
        report.trouble = NotWritten(lock.Error());
        persist::Enter(report.hall, entry, dead);
        return report;
    }
    bool mayWrite = false;
    report.hall = ReadOrBegin(*lock, report.trouble, mayWrite);
    persist::Enter(report.hall, entry, dead);
    if (mayWrite) {
        if (const files::Failure failure =
                files::ReplaceChecked(files_, *lock, kFile, WriteHall(report.hall))) {
            report.trouble = NotWritten(*failure);
        }
    }
    return report;
}

}  // namespace persist
