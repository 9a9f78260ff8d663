// A window: its place, its look, its elements in order of creation, and the events that belong to it as a whole.
#pragma once

#include "platform/elements.h"

namespace cserko {

enum class WindowBorder : std::uint8_t {
  None,   ///< No title bar, as the backdrop behind an exercise.
  Fixed,  ///< Title bar and close control.
  Sizable ///< The user may also resize and maximise it.
};

enum class MousePointer : std::uint8_t { Arrow = 0, Hourglass = 11 };

class Window {
 public:
  /// A window with an inner (client) area of the design size, twips. Its own size follows when it is loaded.
  Window(Platform& platform, TextView name, Size design, TextView caption);
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  Platform& platform() const { return platform_; }

  Text Name;
  Text Caption;
  double Left = 0;
  double Top = 0;
  double Width = 0;  ///< With the frame, twips.
  double Height = 0; ///< With title bar and menu bar, twips.
  bool Enabled = true;
  bool KeyPreview = false; ///< The window's key handlers see keys before the focused element does.
  /// Space and Enter press nothing here before the window has been in view, and both keys have been let be, for so long
  /// (ms): who hammers on them does not close a message unread.
  int KeyPause = 0;
  WindowBorder Border = WindowBorder::Fixed;
  MousePointer Pointer = MousePointer::Arrow;
  Color BackColor = white;
  PicturePtr Picture; ///< Tiled behind the elements.
  cserko::Font Font;  ///< What `measure` and printing on the window use.

  /// Size of the client area, twips: the window less frame, title bar and menu bar.
  double inner_width() const;
  double inner_height() const;
  /// Sets the size so that the client area has the given one, twips.
  void set_inner_size(Size inner);
  Size design_size() const { return design_; }

  /// The persistent drawing under the elements, made at the client area's size when first asked for.
  Canvas& canvas();
  const Canvas* drawn_canvas() const { return canvas_.get(); }

  // The window's own events. Load comes once before anything is shown, Activate whenever the window comes to the front.
  virtual void Load() {}
  virtual void Activate() {}
  virtual void KeyDown(KeyEvent&) {}
  virtual void KeyUp(KeyEvent&) {}
  virtual void MouseDown(const MouseEvent&) {}
  virtual void MouseMove(const MouseEvent&) {}
  virtual void MouseUp(const MouseEvent&) {}
  /// The user has given the window another size. What the window does to its size itself runs nothing.
  virtual void Resize() {}
  /// Asked before unloading; setting the flag keeps the window.
  virtual void QueryUnload(bool& /*cancel*/) {}
  /// The last event of the window.
  virtual void Unload() {}

  /// All elements in order of creation; grows and shrinks as element arrays load and unload.
  const std::vector<Element*>& elements() const { return elements_; }
  /// All elements from the back to the front as they lie on each other: each before what contains it.
  std::vector<Element*> stacking() const;
  /// The element of that name (and index), null if there is none.
  Element* find(TextView name, int index = -1) const;

  /// The element that has the keyboard focus, null if none.
  Element* focus() const { return focus_; }
  /// Moves the focus if the element can take it: runs `LostFocus` of the old and `GotFocus` of the new one.
  void set_focus(Element* element);

  bool visible() const { return visible_; }

  // For machines and sessions.
  void register_element(Element& element);
  void unregister_element(Element& element);
  /// Takes an element out of the window but keeps it alive until no event of the window is running.
  void retire(std::unique_ptr<Element> element);
  void set_visible(bool visible);
  /// When Space and Enter are heard, on the machine's clock; see `KeyPause`.
  std::int64_t keys_heard_from() const { return last_unheard_ + KeyPause; }
  /// A press of Space or Enter that came too early.
  void put_off_keys();
  void enter_event() { ++events_running_; }
  void leave_event();

 private:
  Platform& platform_;
  Size design_;
  std::vector<Element*> elements_;
  std::vector<std::unique_ptr<Element>> retired_;
  Element* focus_ = nullptr;
  std::unique_ptr<Canvas> canvas_;
  int events_running_ = 0;
  std::int64_t last_unheard_ = 0;
  bool visible_ = false;
};

} // namespace cserko
