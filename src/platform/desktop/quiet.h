// Keeps libraries from writing to standard error while one of these lives.
//
// Looking for a display or a sound device, SDL tries one system library after another, and some of them
// complain in many lines about what is simply not there.
#pragma once

namespace platform {

class Quiet {
public:
    Quiet();
    ~Quiet();
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

private:
    int kept_ = -1;
};

}  // namespace platform
