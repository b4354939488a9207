#include "support/temporary_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

namespace test {

namespace fs = std::filesystem;

fs::path Assets()
{
    return QUENVALE_ASSETS;
}

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = (fs::temp_directory_path() / "quenvale-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary folder can be made at " + pattern);
    }
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

// A folder of the game's own files is a link until a test changes something in it.
void TemporaryFolder::OwnFolderOf(std::string_view file) const
{
    fs::path folder = path_;
    for (const fs::path& part : fs::path(file)) {
        folder /= part;
        if (fs::is_symlink(folder)) {
            const fs::path original = fs::read_symlink(folder);
            fs::remove(folder);
            fs::copy(original, folder, fs::copy_options::recursive);
        }
    }
}

void TemporaryFolder::Write(std::string_view file, std::string_view content) const
{
    OwnFolderOf(file);
    fs::create_directories(Path(file).parent_path());
    std::ofstream out(Path(file), std::ios::binary);
    out << content;
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + Path(file).string());
    }
}

std::string TemporaryFolder::Read(std::string_view file) const
{
    std::ifstream in(Path(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

bool TemporaryFolder::Has(std::string_view file) const
{
    return fs::exists(Path(file));
}

void TemporaryFolder::Remove(std::string_view file) const
{
    OwnFolderOf(file);
    fs::remove_all(Path(file));
}

void TemporaryFolder::FillWithAssets() const
{
    for (const fs::directory_entry& entry : fs::directory_iterator(Assets())) {
        if (entry.is_directory() && entry.path().filename() != "Data") {
            fs::create_directory_symlink(entry.path(), path_ / entry.path().filename());
        }
    }
    fs::create_directory(Path("Data"));
    for (const char* file : {"Data/Manual.htm", "Data/Top"}) {
        fs::copy(Assets() / file, Path(file));
    }
    fs::create_directory_symlink(Assets() / "Data/variants", Path("Data/variants"));
}

}  // namespace test
