// The hall of fame in its file, Data/Top.
//
//     const persist::HallFile hall(files);
//     const persist::HallReport report = hall.Enter(persist::EntryOf(state), state.Dead == 1);
//     ... show report.hall; tell report.trouble when it is not empty ...
//
// An entry is read, placed and written under one lock, so two games that end at the same moment both get in.
// A list that cannot be read is never written over: it is kept under another name and a fresh one begun.
#pragma once

#include "files/written_files.h"
#include "persist/hall_of_fame.h"

#include <string>
#include <vector>

namespace persist {

struct HallReport {
    HallList hall{};
    std::string trouble{};  // in words for the player; empty when all went well
};

class HallFile {
public:
    explicit HallFile(const files::WrittenFiles& files) : files_(files) {}

    // The list as it is; where there is no file yet, a fresh one.
    files::Result<HallList> Read() const;
    // Whether somebody else has written in the list. It is shown and kept all the same.
    bool Altered() const;
    // The list with the entry in its place, written.
    HallReport Enter(const HallEntry& entry, bool dead) const;

    // Every file that the hall writes.
    static std::vector<std::string> Files();

private:
    HallList ReadOrBegin(const files::FolderLock& lock, std::string& trouble, bool& mayWrite) const;

    const files::WrittenFiles& files_;
};

}  // namespace persist
