// The program on a page: the page's script calls Start once the game's first files are there, and later the functions
// that the loop's steps are made of. Nothing here is ever destroyed; the page takes all of it along.
#pragma once

#include "platform/web/page_host.h"
#include "ui/toolkit/desktop.h"

namespace platform {

// Both must live as long as the page.
void Start(ui::Desktop& desktop, PageHost& host, const files::ProgramFolder& folder);

}  // namespace platform
