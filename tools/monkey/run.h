// A console session in a folder of its own that carries out lines and looks, after each, whether the promises hold.
//
//     Run run(folder.Path());
//     run.Carry("start");                          // in that folder
//     run.Carry("# damage Save/Save1 12345");      // the one remark that means something here
//     if (const auto broken = run.Carry("click frmlogo")) { ... *broken ... }
#pragma once

#include "console/session.h"
#include "monkey/promises.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace monkey {

class Run {
public:
    explicit Run(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // What does not hold any more, as "promise: what is the case".
    std::optional<std::string> Carry(const std::string& line);
    Game* Running() { return session_.Running(); }
    bool Ended() const { return session_.Ended(); }

private:
    std::filesystem::path folder_;
    console::Session session_;
    Promises promises_;
};

}  // namespace monkey
