// Calls to the system of which one goes wrong, or during which the program is killed.
//
//     test::FaultySystem system({.at = 3, .reason = ENOSPC});     // the third call fails
//     test::FaultySystem system({.at = 3, .kill = true});         // the program dies in it
#pragma once

#include "files/system_calls.h"

#include <csignal>

#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <vector>

namespace test {

struct Fault {
    int at = 0;  // number of the call, 1 being the first; 0: none
    int reason = EIO;
    bool kill = false;
    std::string call{};  // instead of a number: every call of this name
};

class FaultySystem : public files::SystemCalls {
public:
    FaultySystem() = default;
    explicit FaultySystem(const Fault& fault) : fault_(fault) {}

    // The next calls are counted from 1 again.
    void Plan(const Fault& fault)
    {
        fault_ = fault;
        calls.clear();
    }
    bool Happened() const { return fault_.at > 0 && static_cast<int>(calls.size()) >= fault_.at; }

    int Open(const char* path, int flags, unsigned mode) override
    {
        return Fails("open") ? -1 : SystemCalls::Open(path, flags, mode);
    }
    int Look(const char* path, struct stat& found) override
    {
        return Fails("look") ? -1 : SystemCalls::Look(path, found);
    }
    int Describe(int file, struct stat& found) override
    {
        return Fails("describe") ? -1 : SystemCalls::Describe(file, found);
    }
    std::int64_t Read(int file, char* data, std::size_t size) override
    {
        return Fails("read") ? -1 : SystemCalls::Read(file, data, size);
    }
    // Half of it is written, as when the disk fills up in the middle.
    std::int64_t Write(int file, const char* data, std::size_t size) override
    {
        if (static_cast<int>(calls.size()) + 1 == fault_.at) {
            SystemCalls::Write(file, data, size / 2);
        }
        return Fails("write") ? -1 : SystemCalls::Write(file, data, size);
    }
    int Flush(int file) override { return Fails("flush") ? -1 : SystemCalls::Flush(file); }
    int Close(int file) override
    {
        const bool fails = Fails("close");
        SystemCalls::Close(file);
        return fails ? -1 : 0;
    }
    int Rename(const char* from, const char* to) override
    {
        return Fails("rename") ? -1 : SystemCalls::Rename(from, to);
    }
    int RenameToNew(const char* from, const char* to) override
    {
        return Fails("rename to new") ? -1 : SystemCalls::RenameToNew(from, to);
    }
    int Remove(const char* path) override { return Fails("remove") ? -1 : SystemCalls::Remove(path); }
    int MakeFolder(const char* path, unsigned mode) override
    {
        return Fails("make folder") ? -1 : SystemCalls::MakeFolder(path, mode);
    }
    int Lock(int file) override { return Fails("lock") ? -1 : SystemCalls::Lock(file); }
    void Pause(int /*milliseconds*/) override {}

    std::vector<std::string> calls;  // what was asked of the system, oldest first

private:
    bool Fails(const char* call)
    {
        calls.emplace_back(call);
        if (fault_.call.empty() ? static_cast<int>(calls.size()) != fault_.at : fault_.call != call) {
            return false;
        }
        if (fault_.kill) {
            std::raise(SIGKILL);
        }
        errno = fault_.reason;
        return true;
    }

    Fault fault_;
};

}  // namespace test
