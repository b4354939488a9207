// Files that are replaced whole, whatever happens while they are written.
#include "files/written_files.h"

#include "support/faulty_system.h"
#include "support/in_child.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kFile = "Save/Save1";

class WrittenFiles : public testing::Test {
protected:
    std::string Write(files::SystemCalls& system, const std::string& content) const
    {
        const files::WrittenFiles written(programFolder_, system);
        const auto lock = written.Lock(kFile);
        const files::Failure failure = lock ? written.Replace(*lock, kFile, content) : lock.Error();
        return failure ? failure->Message() : "";
    }

    test::TemporaryFolder folder_;
    files::ProgramFolder programFolder_{folder_.Path()};
    const std::string old_ = std::string(5000, 'o');
    const std::string new_ = std::string(9000, 'n');
};

TEST_F(WrittenFiles, AreOldOrNewAfterAFaultAtAnyStep)
{
    for (const bool folderThere : {true, false}) {
        for (const int reason : {ENOSPC, EIO}) {
            bool happened = true;
            int at = 1;
            for (; happened; ++at) {
                SCOPED_TRACE("call " + std::to_string(at) + " fails with " + std::to_string(reason));
                folder_.Remove("Save");
                if (folderThere) {
                    folder_.Write(kFile, old_);
                }
                test::FaultySystem system({.at = at, .reason = reason});
                const std::string told = Write(system, new_);
                happened = system.Happened();

                const std::string found = folder_.Read(kFile);
                EXPECT_TRUE(found == new_ || found == (folderThere ? old_ : "")) << found.size();
                if (told.empty()) {
                    EXPECT_EQ(found, new_) << "nobody was told that it failed";
                } else {
                    EXPECT_THAT(told, HasSubstr(std::generic_category().message(reason)));
                }
                system.Plan({});
                EXPECT_EQ(Write(system, new_), "");
                EXPECT_EQ(folder_.Read(kFile), new_);
            }
            EXPECT_GT(at, 9) << "fewer steps than a safe replacement has";
        }
    }
}

TEST_F(WrittenFiles, AreOldOrNewAfterAKillAtAnyStep)
{
    bool killed = true;
    int at = 1;
    for (; killed; ++at) {
        SCOPED_TRACE("killed in call " + std::to_string(at));
        folder_.Write(kFile, old_);
        killed = !test::Ended(test::StartChild([&] {
            test::FaultySystem system({.at = at, .kill = true});
            Write(system, new_);
        }));
        const std::string found = folder_.Read(kFile);
        EXPECT_TRUE(found == new_ || (killed && found == old_)) << found.size();
        files::SystemCalls system;
        EXPECT_EQ(Write(system, new_), "") << "what the dead left behind is in the way";
    }
    EXPECT_GT(at, 9);
}

// A kill tells nothing about a power cut, for the system remembers what the disk does not have yet.
TEST_F(WrittenFiles, AreFlushedBeforeTheyTakeTheirPlaceAndTheirFolderAfterwards)
{
    test::FaultySystem system;
    EXPECT_EQ(Write(system, new_), "");
    EXPECT_THAT(system.calls,
                ElementsAre("make folder", "open", "flush", "close",  // the new folder's own entry
                            "open", "lock", "remove", "open", "write", "flush", "close", "rename", "flush",
                            "close"));
}

TEST_F(WrittenFiles, WaitForTheLockAndGiveUpInTheEnd)
{
    folder_.Write(kFile, old_);
    const int other = open(folder_.Path("Save").c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    test::FaultySystem system;  // its pauses take no time
    EXPECT_EQ(Write(system, new_), "Save/Save1: another game has kept its folder locked for too long");
    EXPECT_EQ(folder_.Read(kFile), old_);
    close(other);
    EXPECT_EQ(Write(system, new_), "");
}

// A disk without locks still takes files.
TEST_F(WrittenFiles, DoWithoutALockWhereThereAreNone)
{
    folder_.Write(kFile, old_);
    test::FaultySystem system({.at = 2, .reason = ENOLCK});
    EXPECT_EQ(Write(system, new_), "");
    EXPECT_EQ(folder_.Read(kFile), new_);
}

TEST_F(WrittenFiles, KeepUnreadableFilesUnderNewNames)
{
    files::SystemCalls system;
    const files::WrittenFiles written(programFolder_, system);
    for (const char* name : {"Save/Save1.unreadable", "Save/Save1.unreadable-2", "Save/Save1.unreadable-3"}) {
        folder_.Write(kFile, name);
        const auto lock = written.Lock(kFile);
        ASSERT_TRUE(lock);
        EXPECT_EQ(*written.KeepAside(*lock, kFile), name);
        EXPECT_FALSE(folder_.Has(kFile));
    }
    EXPECT_EQ(folder_.Read("Save/Save1.unreadable"), "Save/Save1.unreadable");
    EXPECT_EQ(folder_.Read("Save/Save1.unreadable-3"), "Save/Save1.unreadable-3");
}

}  // namespace
