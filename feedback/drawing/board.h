// The drawing area as a drawing: points, the picture that was loaded into it, and the way back.
#pragma once

#include "feedback/drawing/fills.h"
#include "feedback/drawing/undo_store.h"
#include "platform/canvas.h"

namespace cserko {

class DrawingBoard {
 public:
  /// Works on the canvas of a picture box, which must have its final size.
  explicit DrawingBoard(PictureBox& box) : box_(box) {}

  // One step that can be taken back lies between `begin` and `end`. What is drawn outside stays.
  void begin() { undo_.begin(grid(), picture_); }
  void end();
  bool drawing() const { return undo_.open(); }

  /// A straight line, `width` in pixels.
  void line(Point from, Point to, int width, Color color);
  /// The outline between two corners.
  void rectangle(Point corner, Point opposite, int width, Color color);
  /// White, as far as a place reaches (twips).
  void erase(const Rect& place);
  /// Takes drawing and picture away.
  void clear();
  /// Shows a picture on an empty drawing. It is fitted into the area unless it has the area's size; a picture that is
  /// larger than the area is kept at the size at which it is shown.
  void load(const PixelImage& picture);

  /// What stands at a place (twips), white outside.
  Color color_at(Point place);
  bool contains(Point place);
  /// Floods from a place, depth first, or like a blot. `redraw` runs at every 1000th point.
  void flood(Point place, Color color, bool like_a_blot, const std::function<void()>& redraw);

  bool can_undo() const { return undo_.can_undo(); }
  bool can_redo() const { return undo_.can_redo(); }
  void undo();
  void redo();
  const UndoStore& steps() const { return undo_; }

  /// The loaded picture without the strokes on it, null if there is none.
  const SharedImage& picture() const { return picture_; }
  /// All that is seen.
  PixelImage image();
  /// Grows with every change.
  std::uint64_t revision() { return box_.canvas().revision(); }

 private:
  PixelGrid& grid() { return box_.canvas().grid(); }

  PictureBox& box_;
  UndoStore undo_;
  SharedImage picture_;
};

/// Whether an image is nothing but white paper.
bool is_blank(const PixelImage& image);

} // namespace cserko
