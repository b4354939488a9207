#include "console/play_folder.h"

#include "files/program_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace console {

namespace fs = std::filesystem;

PlayFolder::PlayFolder()
{
    std::string path = (fs::temp_directory_path() / "quenvale-play-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) {
        throw std::runtime_error("no temporary folder can be made at " + path);
    }
    path_ = path;
    for (const fs::directory_entry& entry : fs::directory_iterator(files::ProgramFolder::Find().Root())) {
        const fs::path target = path_ / entry.path().filename();
        if (entry.path().filename() == "images" || entry.path().filename() == "sound") {
            fs::create_directory_symlink(entry.path(), target);
        } else {
            fs::copy(entry.path(), target, fs::copy_options::recursive);
        }
    }
}

PlayFolder::~PlayFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace console
