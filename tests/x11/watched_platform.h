// The real machine under the eyes of a test: it knows where a window stands on the screen, and lets the test choose
// what chance brings.
#pragma once

#include "platform/qt/qt_platform.h"

#include <QPoint>
#include <QPointer>
#include <deque>
#include <functional>
#include <set>

namespace cserko {

/// A place in a window of the screen: pixels from the corner of its client area.
struct Spot {
  QPointer<QWidget> window;
  QPoint place;
};

class WatchedPlatform : public QtPlatform {
 public:
  /// What `random` gives next; then the machine's own numbers follow.
  std::deque<double> chance;
  /// Pictures that count as missing, by their path.
  std::set<Text> missing_pictures;
  /// Called for each window that is loaded, before its `Load`.
  std::function<void(Window&)> attached;
  /// Called behind each redraw that the suite asks for, and each frame of an animation.
  std::function<void(Window&)> redrawn;

  /// Whether the window is on the screen, at the front, and has the keyboard.
  bool settled(const Window& window) const;
  /// Where the client area of a shown window begins on the screen, pixels.
  QPoint client_corner(const Window& window) const;
  /// Where a point of an element (twips, its own coordinates) is shown; of a menu entry, where its middle is.
  Spot spot_of(const Element& element, Point point) const;

  double random() override;
  PicturePtr load_picture(const Text& path) override;
  void attach(Window& window) override;
  void redraw(Window& window) override;
  void next_frame(Window& window) override;
};

} // namespace cserko
