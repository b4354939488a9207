// The band across the screen in which a message stands over the scene.
//
// A message that has been read is folded into a line under the menu: the same words, and the scene is seen.
#pragma once

#include "platform/brush.h"
#include "ui/toolkit/control.h"

namespace platform {

// Where the message stands with its band; empty while there is nothing to say.
BoxF MessagePlace(Letters& letters, const ui::Control& message);

// By how many percent the scene around the message is darkened: a long one wants to be read.
int MessageDims(Letters& letters, const ui::Control& message);

void PaintMessage(Brush& brush, const ui::Control& message);

}  // namespace platform
