// Files that are replaced whole, whatever happens while they are written.
#include "files/written_files.h"

#include "files/checksum.h"
#include "support/faulty_system.h"
#include "support/in_child.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
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
    EXPECT_THAT(system.calls, ElementsAre("look", "look", "make folder", "open", "flush",
                                          "close",  // the new folder's own entry
                                          "open", "lock", "remove", "open", "write", "flush", "close",
                                          "rename", "flush", "close"));
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
    test::FaultySystem system({.reason = ENOLCK, .call = "lock"});
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

// What cannot be looked at or read is neither absent nor broken: nobody knows.
TEST_F(WrittenFiles, AreAbsentOnlyWhenTheSystemSaysSo)
{
    folder_.Write(kFile, "1\r\n");
    for (const char* call : {"look", "open", "describe", "read"}) {
        for (const int reason : {EIO, EACCES, EMFILE, ENFILE, ELOOP, ENOMEM, ESTALE, ENOTDIR}) {
            SCOPED_TRACE(std::string(call) + ": " + std::generic_category().message(reason));
            test::FaultySystem system({.reason = reason, .call = call});
            const files::WrittenFiles written(programFolder_, system);
            const auto there = written.Has(kFile);
            EXPECT_TRUE(there ? *there && std::string(call) != "look" : std::string(call) == "look");
            const auto items = written.Read(kFile);
            ASSERT_FALSE(items);
            EXPECT_EQ(items.Error().fault, files::FileError::Fault::System);
            EXPECT_THAT(items.Error().Message(), HasSubstr(std::generic_category().message(reason)));
        }
    }
}

TEST_F(WrittenFiles, AreRegularFilesOrRefusedAtOnce)
{
    files::SystemCalls system;
    const files::WrittenFiles written(programFolder_, system);
    folder_.Write("Save/folder/x", "");
    ASSERT_EQ(mkfifo(folder_.Path("Save/pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder_.Path("Save/device"));
    const int bound = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    folder_.Path("Save/socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(bound, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    for (const char* file : {"Save/folder", "Save/pipe", "Save/device", "Save/socket"}) {
        SCOPED_TRACE(file);
        EXPECT_FALSE(files::IsRegularFile(folder_.Path(file)));
        const auto items = written.Read(file);
        ASSERT_FALSE(items);
        EXPECT_THAT(items.Error().Message(), HasSubstr("expected a file, found a "));
        EXPECT_EQ(items.Error().fault, files::FileError::Fault::System);
    }
    close(bound);
}

TEST_F(WrittenFiles, LeaveNothingBesideThemAfterTheNextStart)
{
    const std::string names[] = {kFile};
    files::SystemCalls system;
    const files::WrittenFiles written(programFolder_, system);
    folder_.Write("Save/Save1.new", "half");
    folder_.Write("Save/mine.new", "the player's own");
    {
        const auto lock = written.Lock(kFile);
        test::StartChild([&] { written.Tidy(names); });
        wait(nullptr);
        EXPECT_TRUE(folder_.Has("Save/Save1.new")) << "another game is just writing it";
    }
    written.Tidy(names);
    EXPECT_FALSE(folder_.Has("Save/Save1.new"));
    EXPECT_TRUE(folder_.Has("Save/mine.new"));
}

TEST_F(WrittenFiles, DoNotMakeAVanishedProgramFolderAnew)
{
    std::filesystem::rename(folder_.Path(), folder_.Path().string() + ".moved");
    files::SystemCalls system;
    EXPECT_THAT(Write(system, new_),
                HasSubstr("the game's own folder " + folder_.Path().string() + " is gone"));
    EXPECT_FALSE(std::filesystem::exists(folder_.Path()));
    std::filesystem::rename(folder_.Path().string() + ".moved", folder_.Path());
}

// Damage must be seen, a good file must not be doubted, and no kill between the two files may mix them up.
TEST_F(WrittenFiles, AreToldFromWhatSomebodyElseWrote)
{
    const auto replace = [this](files::SystemCalls& system, const std::string& content) {
        const files::WrittenFiles written(programFolder_, system);
        const auto lock = written.Lock(kFile);
        return lock ? files::ReplaceChecked(written, *lock, kFile, content) : lock.Error();
    };
    files::SystemCalls system;
    const files::WrittenFiles written(programFolder_, system);
    const std::string good = "1\r\n22\r\n\"Ada\"\r\n";
    folder_.Write(kFile, "0\r\n");
    EXPECT_TRUE(files::Agrees(written, kFile, "0\r\n")) << "from elsewhere";
    ASSERT_FALSE(replace(system, good));
    EXPECT_TRUE(files::Agrees(written, kFile, good));
    for (std::size_t at = 0; at < good.size(); ++at) {
        for (int change = 1; change < 256; ++change) {
            std::string bad = good;
            bad[at] = static_cast<char>(static_cast<unsigned char>(bad[at]) ^ static_cast<unsigned>(change));
            EXPECT_FALSE(files::Agrees(written, kFile, bad)) << at << ", " << change;
        }
    }
    EXPECT_FALSE(files::Agrees(written, kFile, "22\r\n1\r\n\"Ada\"\r\n")) << "swapped lines";

    bool killed = true;
    for (int at = 1; killed; ++at) {
        SCOPED_TRACE("killed in call " + std::to_string(at));
        ASSERT_FALSE(replace(system, good));
        killed = !test::Ended(test::StartChild([&] {
            test::FaultySystem dying({.at = at, .kill = true});
            replace(dying, new_);
        }));
        EXPECT_TRUE(files::Agrees(written, kFile, folder_.Read(kFile)));
    }
    folder_.Write(kFile, "damaged");
    test::FaultySystem failing({.reason = EIO, .call = "rename"});
    EXPECT_TRUE(replace(failing, new_));
    EXPECT_FALSE(files::Agrees(written, kFile, "damaged")) << "a failed save made damage good";
}

}  // namespace
