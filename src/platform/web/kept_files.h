// Files in a page's memory, which the page copies into the browser's own store whenever one has been replaced or removed.
//
//     KeptFiles files;
//     files.Rename("Save/Save1.new", "Save/Save1");      // the page begins to write
//     files.WhenKept([](int reason) { ... });            // once it has, or could not
//     files.Answered(0);                                 // by the page
#pragma once

#include "files/system_calls.h"

#include <functional>
#include <vector>

namespace platform {

class KeptFiles final : public files::SystemCalls {
public:
    int Rename(const char* from, const char* to) override;
    int Remove(const char* path) override;
    void WhenKept(const std::function<void(int reason)>& then) override;

    // What was written by others is to be kept too.
    void Keep();
    // The store holds all that was written, or why it does not.
    void Answered(int reason);

private:
    bool writing_ = false;
    int reason_ = 0;  // the last answer
    std::vector<std::function<void(int)>> waiting_;
};

}  // namespace platform
