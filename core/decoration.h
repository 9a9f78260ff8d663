// The line drawing that entertains in the main window while nobody plays: nine figures, drawn a few lines a tick in a
// grey that changes pass by pass.
#pragma once

#include "platform/platform.h"

namespace cserko {

class LineDrawing {
 public:
  explicit LineDrawing(Platform& platform) : platform_(platform) {}

  /// Starts anew with a random figure.
  void start();
  /// Draws one step into the box. After the white pass the drawing may change its figure by itself.
  void tick(PictureBox& dísz);
  /// Takes a random figure and clears the box.
  void choose_figure(PictureBox& dísz);

  int lépés = 0;             ///< The running parameter t of the figures.
  std::int16_t alak = 0;     ///< The figure, 0 to 8.
  std::int16_t szürke = 0;   ///< Grey level; above 255 counts as 255.
  double szürke_lépés = 128; ///< Change of the grey level at each pass.
  int szélesség = 0;         ///< Width of the box at the last tick, twips.
  double görbe_szög = 0;     ///< State of the curves, figures 7 and 8.
  double görbe_lépés = 0;
  double görbe_arány = 0;

  static constexpr int figures = 9;

 private:
  void draw(PictureBox& dísz);
  void string_art(Canvas& canvas) const;
  void ellipses(Canvas& canvas) const;
  void narrowing_frame(Canvas& canvas) const;
  void rosette(Canvas& canvas);
  void wandering_curve(PictureBox& dísz);
  Color color() const;

  Platform& platform_;
  Point last_point_;
};

} // namespace cserko
