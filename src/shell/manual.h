// The manual: handed to the system's viewer, and its place told in case there is none.
//
// It is told on the start screen, or on the banner while it is the player's turn. In the middle of a story and
// behind a question the banner keeps its line.
#pragma once

#include "files/program_folder.h"
#include "media/host.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_start.h"
#include "ui/toolkit/desktop.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace shell {

class Manual {
public:
    struct Screens {
        screens::FrmStart& frmStart;
        screens::FrmMain& frmMain;
        screens::FrmMonthBanner& frmMonthBanner;
    };
    Manual(const files::ProgramFolder& folder, media::Host& host, const ui::Desktop& desktop, Screens screens)
        : folder_(folder), host_(host), desktop_(desktop), screens_(screens)
    {}

    std::string Open();  // what was told
    // Asked for once more, with nothing done since: no viewer has come up.
    std::function<void(const std::filesystem::path& file, std::string_view chapter)> readHere;

private:
    std::string Tell(std::string text);

    const files::ProgramFolder& folder_;
    media::Host& host_;
    const ui::Desktop& desktop_;
    Screens screens_;
    std::optional<std::uint64_t> openedAt_{};  // Desktop::Uses when it was opened
};

}  // namespace shell
