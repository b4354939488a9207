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

void TemporaryFolder::Write(std::string_view file, std::string_view content) const
{
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
    fs::remove_all(Path(file));
}

void TemporaryFolder::FillWithAssets() const
{
    for (const fs::directory_entry& entry : fs::directory_iterator(Assets())) {
        const fs::path target = path_ / entry.path().filename();
        if (entry.path().filename() == "images" || entry.path().filename() == "sound") {
            fs::create_directory_symlink(entry.path(), target);
        } else {
            fs::copy(entry.path(), target, fs::copy_options::recursive);
        }
    }
}

}  // namespace test
