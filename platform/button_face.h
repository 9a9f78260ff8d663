// How a button divides its face between its picture and its caption, twips, in its own coordinates.
#pragma once

#include "platform/elements.h"

#include <algorithm>

namespace cserko {

struct ButtonFace {
  Rect picture; ///< Empty for a button without one.
  Rect caption;
};

/// A picture alone fills the button, less a margin. With a caption it stands to its left, no higher than the button and
/// no wider than a fifth of it.
inline ButtonFace face_of(const Button& button) {
  constexpr double margin = 90;
  const Rect whole{0, 0, button.Width, button.Height};
  if (!button.Picture) return {{}, whole};
  if (button.Caption.empty()) {
    return {{margin, margin, std::max(0.0, button.Width - 2 * margin), std::max(0.0, button.Height - 2 * margin)}, {}};
  }
  const double side = std::max(0.0, std::min(button.Height - 2 * margin, button.Width / 5));
  const double left = margin + side;
  return {{margin, (button.Height - side) / 2, side, side}, {left, 0, button.Width - left, button.Height}};
}

} // namespace cserko
