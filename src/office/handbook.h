// The state handbook inside the game, page by page, for who has no browser.
//
//     handbook.Open(path, "murder");    // at that chapter
#pragma once

#include "media/cues.h"
#include "office/handbook_text.h"
#include "ui/screens/frm_handbook.h"

#include <filesystem>
#include <string_view>

namespace office {

class HandbookSheet {
public:
    HandbookSheet(screens::FrmHandbook& form, media::Sound& sound);

    // What cannot be read is told on the page.
    void Open(const std::filesystem::path& file, std::string_view chapter);

private:
    void Turn(int pages);
    void ShowPage();

    screens::FrmHandbook& form_;
    media::Sound& sound_;
    Handbook book_;
    std::size_t top_ = 0;  // the first line that is shown
};

}  // namespace office
