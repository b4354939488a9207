#include "shell/manual.h"

#include "core/banner.h"

#include <system_error>

namespace shell {

namespace {

constexpr std::string_view kManual = "Data/Manual.htm";

}  // namespace

void Manual::Open()
{
    const std::filesystem::path path = folder_.Path(kManual);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        core::Say(banner_, "Mr.President, the manual was expected at " + path.string() +
                               " and is not there. Nobody had read it, so nobody is missing anything.");
        return;
    }
    host_.OpenDocument(kManual);
    core::Say(banner_, "Mr.President, your manual lies at " + path.string());
}

}  // namespace shell
