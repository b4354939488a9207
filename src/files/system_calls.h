// The few calls to the system with which the game reads and writes its files, so that a test can let any of them
// fail.
//
//     files::SystemCalls system;
//     const int file = system.Open("Save/Save1.new", O_WRONLY | O_CREAT, 0666);
//
// As in the system itself, -1 is a failure and errno its reason. An interrupted call is begun again here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

struct stat;

namespace files {

class SystemCalls {
public:
    virtual ~SystemCalls() = default;

    virtual int Open(const char* path, int flags, unsigned mode);
    virtual int Look(const char* path, struct stat& found);  // at a link, not through it
    virtual int Describe(int file, struct stat& found);
    virtual std::int64_t Read(int file, char* data, std::size_t size);         // may read less; 0 at the end
    virtual std::int64_t Write(int file, const char* data, std::size_t size);  // may write less
    virtual int Flush(int file);  // to the disk itself; also of an opened folder
    virtual int Close(int file);
    virtual int Rename(const char* from, const char* to);
    virtual int RenameToNew(const char* from, const char* to);  // EEXIST when that name is taken
    virtual int Remove(const char* path);
    virtual int MakeFolder(const char* path, unsigned mode);
    virtual int Lock(int file);  // at once, or EWOULDBLOCK; closing the file gives the lock back
    virtual void Pause(int milliseconds);

    // Calls `then` with 0 as soon as everything written so far is where it stays, or with the reason why it will not
    // be. A disk has it by now, so this is at once; who hands it to a store that takes its time calls later.
    virtual void WhenKept(const std::function<void(int reason)>& then);
};

}  // namespace files
