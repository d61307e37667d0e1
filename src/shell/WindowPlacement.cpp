#include "shell/WindowPlacement.h"

#include <cmath>

namespace nomra::shell {

namespace {

constexpr double kTwipsPerInch = 1440.0;
constexpr double kFallbackDpi = 96.0;

constexpr long kNormal = 0;
constexpr long kMaximised = 2;
constexpr long kSmallestWidth = 10000;
constexpr long kSmallestHeight = 7000;
constexpr long kKeptOnScreenLeadingEdge = 1000;
constexpr long kKeptOnScreenTrailingEdge = 500;

// The stored edge when enough of the window stays on the screen, else 0.
int EdgeOnScreen(long stored, int windowExtent, int screenExtent) {
  const bool onScreen = stored != -1 && stored > kKeptOnScreenLeadingEdge - windowExtent &&
                        stored < screenExtent - kKeptOnScreenTrailingEdge;
  return onScreen ? static_cast<int>(stored) : 0;
}

double UsableDpi(double dpi) { return dpi > 0 ? dpi : kFallbackDpi; }

}  // namespace

WindowPlacement PlaceWindow(long ws, long x, long y, long w, long h, TwipsSize window, TwipsSize screen) {
  WindowPlacement placement;
  placement.applyState = ws == kNormal || ws == kMaximised;
  placement.state = placement.applyState ? static_cast<int>(ws) : 0;
  placement.width = window.width;
  placement.height = window.height;
  if (ws == kNormal) {
    placement.applyWidth = w > kSmallestWidth;
    placement.applyHeight = h > kSmallestHeight;
    if (placement.applyWidth) placement.width = static_cast<int>(w);
    if (placement.applyHeight) placement.height = static_cast<int>(h);
  }
  placement.left = EdgeOnScreen(x, placement.width, screen.width);
  placement.top = EdgeOnScreen(y, placement.height, screen.height);
  return placement;
}

WindowPlacement PlaceWindow(const MainWindowSettings& settings, TwipsSize window, TwipsSize screen) {
  return PlaceWindow(settings.ws, settings.x, settings.y, settings.w, settings.h, window, screen);
}

int TwipsToPixels(int twips, double dpi) {
  return static_cast<int>(std::lround(twips * UsableDpi(dpi) / kTwipsPerInch));
}

int PixelsToTwips(int pixels, double dpi) {
  return static_cast<int>(std::lround(pixels * kTwipsPerInch / UsableDpi(dpi)));
}

}  // namespace nomra::shell
