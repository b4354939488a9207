// The program on a page: the page's script calls Start once the game's first files are there, and later the functions
// that the loop's steps are made of. Nothing here is ever destroyed; the page takes all of it along.
#pragma once

#include "files/program_folder.h"
#include "platform/web/page_loop.h"

namespace platform {

void Start(const Played& played, const files::ProgramFolder& folder);

}  // namespace platform
