// What the tour finds wrong with a window, seen from its elements: texts that do not fit their places, elements on top
// of each other, elements outside their window, windows larger than the screen.
#pragma once

#include "platform/platform.h"

namespace cserko::tour {

/// Elements that may lie on top of each other: every element of one name on every element of the other. Where the lower
/// one is the container of the upper one, that may reach out of it.
struct Overlap {
  TextView window;
  TextView upper;
  TextView lower;
};

struct Expectation {
  /// The window stays at its design size and must be usable on the lowest screen.
  bool dialog = false;
  std::vector<Overlap> overlaps;
};

/// The height that no dialog may exceed, twips: 600 pixels.
inline constexpr double tallest_dialog = 600 * twips_per_pixel;

/// What is wrong with the window as it stands, one line for each fault.
std::vector<std::string> faults(const Window& window, const Expectation& expectation = {});

/// The name of an element with its index, as the lines name it.
std::string name_of(const Element& element);

} // namespace cserko::tour
