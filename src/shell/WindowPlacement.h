#pragma once

#include "shell/MainWindowSettings.h"

namespace nomra::shell {

// A size in twips (1440 to the inch), the unit the settings keep places in.
struct TwipsSize {
  int width = 0;
  int height = 0;
};

// Where the main window goes at load, all in twips. What isn't applied stays
// as the window is; left and top are always applied.
struct WindowPlacement {
  bool applyState = false;
  int state = 0;  // 0 normal, 2 maximised
  bool applyWidth = false;
  bool applyHeight = false;
  int width = 0;  // the window's width after the load, applied or not
  int height = 0;
  int left = 0;
  int top = 0;
};

// The stored state is applied when it is normal (0) or maximised (2); a
// window never starts minimised. A normal window takes the stored width when
// above 10000 and the stored height when above 7000, so it never comes back
// too small to use. The stored left edge is taken when it isn't -1 and keeps
// at least 1000 twips of the window on the screen at the left and 500 at the
// right, else the window goes to the left edge; the top likewise. The window
// size those tests use is the normal one, also for a maximised window.
WindowPlacement PlaceWindow(long ws, long x, long y, long w, long h, TwipsSize window, TwipsSize screen);
WindowPlacement PlaceWindow(const MainWindowSettings& settings, TwipsSize window, TwipsSize screen);

// Conversions at the screen's resolution, rounded to the nearest unit. A
// resolution of 0 or less (a screen that reports none) counts as 96 dots to
// the inch, the common desktop default.
int TwipsToPixels(int twips, double dpi);
int PixelsToTwips(int pixels, double dpi);

}  // namespace nomra::shell
