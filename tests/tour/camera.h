// What the X server shows of a window, as a picture to look at and to judge.
#pragma once

#include "platform/window.h"

#include <QImage>
#include <QWidget>

namespace cserko::tour {

/// The window with its frame, cut out of the screen.
QImage take_picture(const QWidget& widget);

/// A place of the screen, as it is seen.
QImage take_picture(QScreen& screen, QRect place);

/// The client area of the same picture: the place of an element of the window in its pixels.
class Photograph {
 public:
  /// The corner of the area in which the elements stand, in pixels of the image; `zoom` is pixels a twip.
  Photograph(QImage image, QPoint client_corner, double zoom);

  const QImage& image() const { return image_; }

  /// What is wrong with what is seen: a window with nothing in it, an element whose text cannot be seen.
  std::vector<std::string> faults(const Window& window) const;

 private:
  QRect place_of(const Element& element) const;

  QImage image_;
  QPoint corner_;
  double zoom_;
};

/// The difference between the lightest and the darkest of all but a few pixels of a place, 0 to 255.
int contrast(const QImage& image, QRect place);

/// Whether nothing has been painted at a place: nearly all of it is of one shade.
bool is_blank(const QImage& image, QRect place);

} // namespace cserko::tour
