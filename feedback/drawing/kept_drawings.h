// Drawings that are kept without being asked, so that none is lost: by a closed window, a crash or a power cut.
#pragma once

#include "core/session.h"

namespace cserko {

/// One drawing window's share of the kept drawings. Each window keeps its drawing in a file of its own under the user's
/// folder and leaves those of earlier windows alone; the oldest go when there are too many.
class KeptDrawings {
 public:
  static constexpr std::size_t most = 10;

  explicit KeptDrawings(Platform& platform);

  /// Keeps the present state. A failure is ignored: it is tried again with the next state.
  void keep(const PixelImage& image);
  /// Whether an earlier window has left a drawing.
  bool any_earlier() const { return !earlier_.empty(); }
  /// An earlier drawing, the latest first, with each call the one before it, then the latest again. None if there is
  /// none that can be read.
  std::optional<PixelImage> next_earlier();

 private:
  void make_folder();
  void drop_oldest();

  Platform& platform_;
  std::vector<int> earlier_; // numbers of their files, rising
  std::size_t offered_ = 0;  // how many of them were given out since the latest
  int own_ = 0;              // number of this window's file
};

} // namespace cserko
