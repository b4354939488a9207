// A folder of a test's own, gone when the test is over.
//
//     test::TemporaryFolder folder;
//     folder.Write("data/names", "ADA,BERTA");
//     ... files::ProgramFolder(folder.Path()) ...
//
// FillWithAssets puts the game's own files into it: real copies of what the game may write, links to
// the rest until a test writes or removes something there.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace test {

class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path Path(std::string_view file) const { return path_ / file; }

    // Folders on the way are made.
    void Write(std::string_view file, std::string_view content) const;
    std::string Read(std::string_view file) const;  // empty when there is none
    bool Has(std::string_view file) const;
    void Remove(std::string_view file) const;

    void FillWithAssets() const;

private:
    void OwnFolderOf(std::string_view file) const;

    std::filesystem::path path_;
};

// The folder of the game's own files in the source tree. Only for reading.
std::filesystem::path Assets();

}  // namespace test
