// Where the game writes: beside the program where it may, else in the user's data folder.
#include "files/program_folder.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace {

constexpr uid_t kNobody = 65534;

// Folders that others may not write, seen by somebody who is not allowed everything.
class AsNobody {
public:
    AsNobody() { wasRoot_ = geteuid() == 0 && seteuid(kNobody) == 0; }
    ~AsNobody()
    {
        if (wasRoot_) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }

private:
    bool wasRoot_ = false;
};

TEST(ProgramFolder, WritesWhereItMay)
{
    using Place = files::ProgramFolder::Place;
    struct Case {
        const char* why;
        Place place;
        mode_t root, data;
        const char *xdg, *home;
        const char* written;  // empty: the program folder itself
    };
    const Case cases[] = {
        {"a folder of one's own", Place::Portable, 0777, 0777, "/x", "/h", ""},
        {"what is everybody's stays clean", Place::Shared, 0777, 0777, "/x", "/h", "/x/quenvale"},
        {"a portable folder on a closed disk", Place::Portable, 0555, 0555, "/x", "/h", "/x/quenvale"},
        {"no folder for saved games can be made", Place::Portable, 0555, 0777, "/x", "/h", "/x/quenvale"},
        {"the hall's folder is closed", Place::Portable, 0777, 0555, "/x", "/h", "/x/quenvale"},
        {"no data folder is named", Place::Portable, 0555, 0555, "", "/h", "/h/.local/share/quenvale"},
        {"a relative one is not meant", Place::Portable, 0555, 0555, "x", "/h", "/h/.local/share/quenvale"},
        {"a user without a home", Place::Shared, 0777, 0777, "", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const test::TemporaryFolder folder;
        folder.Write("Data/Top", "shipped");
        chmod(folder.Path("Data").c_str(), c.data);
        chmod(folder.Path().c_str(), c.root);
        setenv("XDG_DATA_HOME", c.xdg, 1);
        setenv("HOME", c.home, 1);
        {
            const AsNobody nobody;
            const auto program = files::ProgramFolder::At(folder.Path(), c.place);
            const std::filesystem::path written = *c.written == '\0' ? folder.Path() : c.written;
            EXPECT_EQ(program.WritePath("Data/Top"), written / "Data/Top");
            EXPECT_EQ(program.Path("Data/Top"), folder.Path("Data/Top"));
            EXPECT_EQ(program.ReadPath("Data/Top"), folder.Path("Data/Top")) << "the user has none yet";
        }
        chmod(folder.Path().c_str(), 0777);
        chmod(folder.Path("Data").c_str(), 0777);
    }
}

TEST(ProgramFolder, ReadsTheUsersFileBeforeTheShippedOne)
{
    const test::TemporaryFolder shipped;
    const test::TemporaryFolder user;
    shipped.Write("Data/Top", "shipped");
    const files::ProgramFolder folder(shipped.Path(), user.Path());
    EXPECT_EQ(folder.ReadPath("Data/Top"), shipped.Path("Data/Top"));
    user.Write("Data/Top", "mine");
    EXPECT_EQ(folder.ReadPath("Data/Top"), user.Path("Data/Top"));
}

}  // namespace
