#include "shell/manual.h"

#include "month/banner.h"

#include <system_error>

namespace shell {

namespace {

constexpr std::string_view kManual = "Data/Manual.htm";

}  // namespace

std::string Manual::Open()
{
    const std::filesystem::path path = folder_.Path(kManual);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return Tell("Mr.President, the manual was expected at " + path.string() +
                    " and is not there. Nobody had read it, so nobody is missing anything.");
    }
    host_.OpenDocument(kManual);
    return Tell("Mr.President, your manual lies at " + path.string());
}

std::string Manual::Tell(std::string text)
{
    if (screens_.frmStart.Visible()) {
        screens_.frmStart.Label3.SetText(text);
    } else if (screens_.frmMain.Visible() && screens_.frmMain.Enabled() && desktop_.ModalForm() == nullptr) {
        month::Say(screens_.frmMonthBanner, text);
    }
    return text;
}

}  // namespace shell
