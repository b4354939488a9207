// Files in a page's memory, which the page copies into the browser's own store whenever one has been replaced or removed.
#pragma once

#include "files/system_calls.h"

namespace platform {

class KeptFiles final : public files::SystemCalls {
public:
    int Rename(const char* from, const char* to) override;
    int Remove(const char* path) override;
};

}  // namespace platform
