// The manual: handed to the system's viewer, and its place told on the banner in case there is none.
#pragma once

#include "files/program_folder.h"
#include "media/host.h"
#include "ui/screens/frm_month_banner.h"

namespace shell {

class Manual {
public:
    Manual(const files::ProgramFolder& folder, media::Host& host, screens::FrmMonthBanner& banner)
        : folder_(folder), host_(host), banner_(banner)
    {}

    void Open();

private:
    const files::ProgramFolder& folder_;
    media::Host& host_;
    screens::FrmMonthBanner& banner_;
};

}  // namespace shell
