#include "tests/tour/checks.h"

#include "platform/button_face.h"

#include <algorithm>
#include <cmath>

namespace cserko::tour {

namespace {

// Places are rounded to pixels when they are shown: a pixel more or less is no fault.
constexpr double tolerance = twips_per_pixel;
// What the mark of a check box or option and the rim of a list take away from the text, twips.
constexpr double mark_width = 24 * twips_per_pixel;
constexpr double rim = 4 * twips_per_pixel;

bool has_place(const Element& element) {
  return element.kind() != ElementKind::Timer && element.kind() != ElementKind::MenuItem;
}

// A label without text, frame and ground shows nothing and hides nothing.
bool seen(const Element& element) {
  if (!has_place(element) || !element.shown()) return false;
  return element.kind() != ElementKind::Label || !element.Caption.empty() || element.Border || element.Opaque;
}

std::string pixels(double twips) { return std::to_string(std::lround(twips / twips_per_pixel)); }

std::string pixels(Size size) { return pixels(size.width) + "x" + pixels(size.height); }

class Inspector {
 public:
  Inspector(const Window& window, const Expectation& expectation) : window_(window), expectation_(expectation) {}

  std::vector<std::string> all() {
    inspect_window();
    for (const Element* element : window_.elements()) {
      if (!seen(*element)) continue;
      inspect_place(*element);
      inspect_text(*element);
    }
    inspect_overlaps();
    return std::move(faults_);
  }

 private:
  void fault(const std::string& what) { faults_.push_back(to_utf8(window_.Name) + ": " + what); }

  void inspect_window() {
    const Size screen = window_.platform().screen_size();
    if (window_.Width > screen.width + tolerance || window_.Height > screen.height + tolerance)
      fault("is larger than the screen: " + pixels({window_.Width, window_.Height}) + " on " + pixels(screen));
    if (window_.Left < -tolerance || window_.Top < -tolerance ||
        window_.Left + window_.Width > screen.width + tolerance ||
        window_.Top + window_.Height > screen.height + tolerance)
      fault("stands partly outside the screen");
    if (expectation_.dialog && window_.Height > tallest_dialog)
      fault("is a dialog of " + pixels(window_.Height) + " pixels height");
  }

  Size room_of(const Element& element) const {
    if (const Element* container = element.container()) return {container->Width, container->Height};
    return {window_.inner_width(), window_.inner_height()};
  }

  void inspect_place(const Element& element) {
    if (element.container() != nullptr && intended(element, *element.container())) return;
    const Size room = room_of(element);
    const bool outside = element.Left < -tolerance || element.Top < -tolerance ||
                         element.Left + element.Width > room.width + tolerance ||
                         element.Top + element.Height > room.height + tolerance;
    if (outside) fault(name_of(element) + " reaches outside its container");
    // A straight line may be as thin as it likes, and one that is not drawn yet has no place at all.
    const bool flat = element.Width < tolerance || element.Height < tolerance;
    if (flat && element.kind() != ElementKind::Line) fault(name_of(element) + " has no extent");
  }

  void require_room(const Element& element, Size text, Size room) {
    if (text.width > room.width + tolerance || text.height > room.height + tolerance)
      fault(name_of(element) + " clips its text: " + pixels(text) + " in " + pixels(room));
  }

  void inspect_wrapped(const Element& element, double width) {
    const Text text = element.kind() == ElementKind::Label ? element.Caption : without_mnemonic(element.Caption);
    require_room(element, window_.platform().measure_wrapped(element.Font, text, width), {width, element.Height});
  }

  void inspect_line(const Element& element, TextView text, Size room) {
    require_room(element, window_.platform().measure(element.Font, text), room);
  }

  void inspect_list(const ListBox& list) {
    for (const Text& item : list.Items) inspect_line(list, item, {list.Width - 2 * rim, list.Height});
  }

  void inspect_text(const Element& element) {
    const Size whole{element.Width, element.Height};
    switch (element.kind()) {
    case ElementKind::Label:
      if (static_cast<const Label&>(element).WordWrap) {
        inspect_wrapped(element, element.Width);
      } else {
        inspect_line(element, element.Caption, whole);
      }
      break;
    case ElementKind::Button:
      if (!element.Caption.empty())
        inspect_wrapped(element, face_of(static_cast<const Button&>(element)).caption.width);
      break;
    case ElementKind::CheckBox:
    case ElementKind::OptionButton:
      inspect_wrapped(element, element.Width - mark_width);
      break;
    case ElementKind::Frame:
      inspect_line(element, without_mnemonic(element.Caption), whole);
      break;
    case ElementKind::TextBox:
      if (!static_cast<const TextBox&>(element).Multiline)
        inspect_line(element, static_cast<const TextBox&>(element).text(), {element.Width - 2 * rim, element.Height});
      break;
    case ElementKind::ListBox:
    case ElementKind::FileListBox:
      inspect_list(static_cast<const ListBox&>(element));
      break;
    default:
      break;
    }
  }

  bool intended(const Element& upper, const Element& lower) const {
    return std::any_of(expectation_.overlaps.begin(), expectation_.overlaps.end(), [&](const Overlap& overlap) {
      return overlap.window == window_.Name && overlap.upper == upper.Name && overlap.lower == lower.Name;
    });
  }

  void inspect_overlaps() {
    const auto& elements = window_.elements();
    for (auto upper = elements.begin(); upper != elements.end(); ++upper) {
      for (auto lower = elements.begin(); lower != upper; ++lower) inspect_pair(**upper, **lower);
    }
  }

  void inspect_pair(const Element& upper, const Element& lower) {
    if (upper.container() != lower.container() || !seen(upper) || !seen(lower) || intended(upper, lower)) return;
    const double across =
        std::min(upper.Left + upper.Width, lower.Left + lower.Width) - std::max(upper.Left, lower.Left);
    const double down = std::min(upper.Top + upper.Height, lower.Top + lower.Height) - std::max(upper.Top, lower.Top);
    if (across > tolerance && down > tolerance)
      fault(name_of(upper) + " lies on " + name_of(lower) + " by " + pixels({across, down}));
  }

  const Window& window_;
  const Expectation& expectation_;
  std::vector<std::string> faults_;
};

} // namespace

std::string name_of(const Element& element) {
  return to_utf8(element.Name) + (element.Index < 0 ? "" : "(" + std::to_string(element.Index) + ")");
}

std::vector<std::string> faults(const Window& window, const Expectation& expectation) {
  return Inspector(window, expectation).all();
}

} // namespace cserko::tour
