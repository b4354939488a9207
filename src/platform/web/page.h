// What the game asks of the page it plays in. The other half of each is in tools/web/page/page.js, under the same
// name in small letters.
#pragma once

#include <string_view>

namespace page {

// The canvas in the device's pixels; it follows the window.
int Width();
int Height();
// A part of a surface of 32 bits a pixel (blue lowest) onto the canvas.
void Put(const void* pixels, int pitch, int left, int top, int width, int height);
void ToggleFullScreen();
// Browsers allow it only while the player is pressing something; else nothing happens.
void EnterFullScreen();
void LeaveFullScreen();

// Plays a wave file of the game's folder from the start, in place of what sounds.
void Play(std::string_view path);
void SetVolume(int percent);

// The browser's own voice. False: it has none. The rate is from -100 to 100.
bool Say(std::string_view line, bool interrupt, int rate);
void Silence();
// Opens a document of the site in a tab of its own; the chapter is a mark in it.
void Open(std::string_view file, std::string_view chapter);

// Runs the game's next step in so many milliseconds; never for less than 0. One step is due at a time.
void WakeIn(int milliseconds);

// A file of the site that is not here yet; the game is told when it has come. False: there is no such file.
bool Fetch(std::string_view path);

// The twin of the canvas for who reads instead: all that is shown, as JSON.
void Tell(std::string_view twin);
// A text box has the focus: a touch screen shows its keyboard.
void Typing(bool typing);
// The game's files were written: they go to the browser's own store, which answers to quenvale_kept later.
void Keep();
void Ended();

}  // namespace page
