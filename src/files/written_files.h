// The files that the game writes: saved games, their names, the hall of fame. Named below the program folder.
//
//     files::Result<files::FolderLock> lock = written.Lock("Data/Top");
//     if (!lock) { Tell(lock.Error().Message()); return; }
//     ... written.Read("Data/Top") ...
//     if (files::Failure failure = written.Replace(*lock, "Data/Top", content)) { Tell(failure->Message()); }
//
// A file is never changed in place. Its new content is written beside it, flushed to the disk and renamed, so
// after a kill, a full disk or a broken one the old file or the new one is there, whole. Whoever reads and
// then writes keeps the folder's lock in between; who only reads needs none.
#pragma once

#include "files/program_folder.h"
#include "files/result.h"
#include "files/system_calls.h"
#include "files/text_records.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace files {

// Empty when it was done.
using Failure = std::optional<FileError>;

// Keeps every other game out of a folder's files until it is gone.
class FolderLock {
public:
    FolderLock(SystemCalls& system, int folder) : system_(&system), folder_(folder) {}
    ~FolderLock()
    {
        if (folder_ != kNone) {
            system_->Close(folder_);
        }
    }
    FolderLock(FolderLock&& other) noexcept
        : system_(other.system_), folder_(std::exchange(other.folder_, kNone))
    {}
    FolderLock& operator=(FolderLock&&) = delete;

    int Folder() const { return folder_; }

private:
    static constexpr int kNone = -1;

    SystemCalls* system_;
    int folder_;
};

class WrittenFiles {
public:
    WrittenFiles(const ProgramFolder& folder, SystemCalls& system) : folder_(folder), system_(system) {}

    // Absent is what the system says is absent. Every other reason why it cannot be found is an error, and then
    // nothing may be written in its place.
    Result<bool> Has(std::string_view file) const;
    Result<std::vector<Item>> Read(std::string_view file) const;
    Result<std::string> ReadWhole(std::string_view file) const;
    // "2026-11-23", by the clock on the wall; empty where nobody knows.
    std::string WrittenOn(std::string_view file) const;

    // Of the folder in which the file is written; it is made where it is missing. The program folder itself is
    // not: one that has vanished was moved or unplugged, and its files with it.
    Result<FolderLock> Lock(std::string_view file) const;
    Failure Replace(const FolderLock& lock, std::string_view file, std::string_view content) const;
    // Gives a file whose content is wrong another name, for whoever can read it; returns that name. Only a file
    // that the game would write over is kept so: a shipped one that lies elsewhere gives the empty name.
    Result<std::string> KeepAside(const FolderLock& lock, std::string_view file) const;
    Failure Remove(const FolderLock& lock, std::string_view file) const;  // also when there is none

    // Calls `then` when what was written so far is where it stays: at once on a disk, later where a store answers
    // later. A failure names this file; it is read here as it was written all the same.
    void WhenKept(std::string_view file, std::function<void(const Failure&)> then) const;

    // At the program's start: removes what a killed game left beside these files, unless another game is just
    // writing. Tells nobody, for nothing is lost.
    void Tidy(std::span<const std::string> files) const;

private:
    Result<bool> Exists(const std::filesystem::path& path, std::string_view file) const;
    Result<std::filesystem::path> Place(std::string_view file) const;
    Failure MakeFolders(const std::filesystem::path& folder, std::string_view file) const;
    Failure WriteBeside(const std::filesystem::path& path, std::string_view file,
                        std::string_view content) const;

    const ProgramFolder& folder_;
    SystemCalls& system_;
};

}  // namespace files
