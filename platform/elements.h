// What a window shows, as plain data. The logic of the suite reads and writes these elements and knows no toolkit; a
// machine (platform/qt, platform/headless) shows them and turns what the user does into calls of their handlers.
//
// Places and sizes are in twips, 15 to a device-independent pixel; an element's place counts from the inner corner of
// its container. Nothing observes the data: after each event the machine compares it with what it last showed.
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

namespace cserko {

class Canvas;
class Element;
class FileListBox;
class Platform;
class TextBox;
class UpDown;
class Window;

inline constexpr double twips_per_pixel = 15;

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Color&) const = default;
};

inline constexpr Color black{0, 0, 0};
inline constexpr Color white{255, 255, 255};

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  double width = 0;
  double height = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  bool operator==(const Rect&) const = default;
};

/// A font by name, size in points and weight. Names of the Times New Roman family resolve to the suite's serif.
struct Font {
  Text name = u"Times New Roman";
  double size = 11;
  bool bold = false;
  bool operator==(const Font&) const = default;
};

/// A picture read from a file. It is drawn to fill a place, its aspect kept.
class Picture {
 public:
  virtual ~Picture() = default;
  /// The path it was read from, as the system writes it.
  virtual const Text& path() const = 0;
  /// Its own size in twips.
  virtual Size natural_size() const = 0;
};
using PicturePtr = std::shared_ptr<const Picture>;

enum class MouseButton : std::uint8_t { None = 0, Left = 1, Right = 2, Middle = 4 };

/// Bits of the shift mask that goes with mouse and key events.
namespace shift {
inline constexpr int none = 0;
inline constexpr int shift = 1;
inline constexpr int control = 2;
inline constexpr int alt = 4;
} // namespace shift

/// A mouse event in the coordinates of the element that it belongs to (twips), also outside the element while captured.
struct MouseEvent {
  MouseButton button = MouseButton::None;
  int shift = shift::none;
  double x = 0;
  double y = 0;
};

/// Key codes of the system, as key events carry them. Letters and digits have the code of their capital character.
namespace key {
inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
inline constexpr int shift = 16;
inline constexpr int control = 17;
inline constexpr int alt = 18;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int page_up = 33;
inline constexpr int page_down = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int insert = 45;
inline constexpr int delete_ = 46;
inline constexpr int f1 = 112;
inline constexpr int comma = 188;
inline constexpr int minus = 189;
inline constexpr int period = 190;
} // namespace key

/// A key going down or up. Letters, digits and the keys that have a name have a code, that of the key whatever it types
/// with Shift; a sign of another key has the code 0, goes into a text and reaches no handler. A handler that sets
/// `code` to 0 keeps the key from everybody after it.
struct KeyEvent {
  int code = 0;
  int shift = shift::none;
  char16_t character = 0; ///< What the key types, 0 if nothing.
  bool repeated = false;  ///< The key is held down and repeats itself.
};

enum class ElementKind : std::uint8_t {
  Label,
  PictureBox,
  Button,
  CheckBox,
  OptionButton,
  Frame,
  TextBox,
  UpDown,
  ListBox,
  FileListBox,
  ScrollBar,
  ProgressBar,
  Line,
  Shape,
  Timer,
  MenuItem
};

/// Setting a property to a value that it cannot take.
class InvalidValue : public std::out_of_range {
 public:
  using std::out_of_range::out_of_range;
};

/// What an element is created in: a window, or another element that contains it.
class Parent {
 public:
  Parent(Window& window) : window_(&window) {} // NOLINT: a window stands for itself as a parent
  Parent(Element& container);                  // NOLINT: so does a container

  Window& window() const { return *window_; }
  Element* container() const { return container_; }

 private:
  Window* window_;
  Element* container_ = nullptr;
};

/// Whatever a window shows or owns. It registers with its window on creation, in the order of creation, which is also
/// the order of drawing and of the Tab key.
class Element {
 public:
  Element(ElementKind kind, Parent parent, TextView name, Rect place, TextView caption);
  virtual ~Element();
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  ElementKind kind() const { return kind_; }
  Window& window() const { return *window_; }
  Element* container() const { return container_; }
  /// Differs for every element of the process, so that a machine never takes a new element for an old one.
  std::uint64_t serial() const { return serial_; }
  /// Higher for what lies further to the front among the elements of one container. An element lies before all that
  /// were created earlier until one of them is brought to the front.
  std::uint64_t layer() const { return layer_; }
  /// Brings it, with what it contains, before all other elements of its container. The order of Tab stays.
  void bring_to_front();

  Text Name;
  int Index = -1; ///< Number within an element array, -1 for a single element.
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
  Text Caption;
  Text Tag;
  Text ToolTipText;
  Text AccessibleName; ///< Overrides what `accessible_name` makes of the caption.
  bool Visible = true;
  bool Enabled = true;
  bool TabStop = true;   ///< Counts only for kinds that take the focus.
  int TabIndex = 0;      ///< The Tab key goes by this number, and among equals in order of creation.
  bool Selected = false; ///< Chosen for what comes next, as a letter that the arrows move: told to screen readers.
  bool Border = false;   ///< A thin line around a label, picture box or frame.
  bool Opaque = false;   ///< Labels are transparent unless this is set.
  Color BackColor = white;
  Color ForeColor{59, 36, 20};
  cserko::Font Font;

  std::function<void()> Click;
  std::function<void()> DblClick; ///< The second of two quick clicks; behind its `MouseDown`.
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  std::function<void(const MouseEvent&)> MouseDown;
  std::function<void(const MouseEvent&)> MouseMove;
  std::function<void(const MouseEvent&)> MouseUp;
  std::function<void(KeyEvent&)> KeyDown;

  bool DragAutomatic = false; ///< Pressing it starts a drag that ends in the `DragDrop` of what lies under the pointer.
  std::function<void(Element& source, double x, double y)> DragDrop;

  /// Whether it and all its containers are visible.
  bool shown() const;
  /// Whether it and all its containers are enabled.
  bool usable() const;
  /// Whether the kind takes the keyboard focus at all.
  bool focusable() const;
  /// Its inner corner in the coordinates of the window, twips.
  Point position_in_window() const;
  /// Moves it in one operation, twips.
  void move_to(double left, double top);
  /// Takes over what an element of an array has of its design: text, tag, look, ways of use, but not place and
  /// visibility.
  void copy_design(const Element& design);

 private:
  ElementKind kind_;
  Window* window_;
  Element* container_;
  std::uint64_t serial_;
  std::uint64_t layer_;
};

class Label : public Element {
 public:
  Label(Parent parent, TextView name, Rect place, TextView caption = {});

  bool Choosable = false; ///< Takes the keyboard focus; the space bar clicks it, as it does a picture box.
  bool WordWrap = true;
  bool Centered = true; ///< Horizontally; vertically a label is always centred on its place.
  std::function<void()> Change;

  /// Sets the caption and, where that changes it, runs `Change`.
  void set_caption(TextView caption);
  void copy_design(const Label& design);
};

class PictureBox : public Element {
 public:
  PictureBox(Parent parent, TextView name, Rect place);
  ~PictureBox() override;

  PicturePtr Picture; ///< Fills the box, under the drawing.
  int DrawWidth = 1;  ///< Width of the lines that a window draws on it, pixels.

  /// The persistent drawing, made at the box's size when first asked for.
  Canvas& canvas();
  const Canvas* drawn_canvas() const { return canvas_.get(); }

 private:
  std::unique_ptr<Canvas> canvas_;
};

class Button : public Element {
 public:
  Button(Parent parent, TextView name, Rect place, TextView caption = {});
  bool Default = false; ///< Enter presses it wherever the focus is.
  bool Cancel = false;  ///< Escape presses it wherever the focus is.
  PicturePtr Picture;
};

class CheckBox : public Element {
 public:
  CheckBox(Parent parent, TextView name, Rect place, TextView caption, int value = 0);
  /// 0 clear, 1 ticked, 2 greyed.
  int value() const { return value_; }
  bool ticked() const { return value_ == 1; }
  /// Runs `Click` where it changes the value. Throws InvalidValue outside 0 to 2.
  void set_value(int value);

 private:
  int value_;
};

class OptionButton : public Element {
 public:
  OptionButton(Parent parent, TextView name, Rect place, TextView caption, bool value = false);
  bool value() const { return value_; }
  /// Turning one on turns the others of its container off; runs `Click` of the one that is turned on.
  void set_value(bool value);

 private:
  bool value_;
};

class Frame : public Element {
 public:
  Frame(Parent parent, TextView name, Rect place, TextView caption = {});
};

class TextBox : public Element {
 public:
  TextBox(Parent parent, TextView name, Rect place, TextView text = {});
  const Text& text() const { return text_; }
  /// Runs `Change` where it changes the text.
  void set_text(TextView text);
  /// Selects the whole text, so that typing replaces it. Another text is not selected.
  void select_all();
  bool all_selected() const { return all_selected_; }
  /// Differs each time that the text has been selected.
  int selections() const { return selections_; }
  bool Locked = false;
  bool Multiline = false;
  int MaxLength = 0;         ///< 0: no limit.
  UpDown* Stepper = nullptr; ///< The up-down that this box is the buddy of.
  std::function<void()> Change;

 private:
  Text text_;
  bool all_selected_ = false;
  int selections_ = 0;
};

/// Steps a whole number up and down; the number stands in its buddy text box or, where nothing is typed, in a label.
/// With a label the up-down itself takes the keyboard focus.
class UpDown : public Element {
 public:
  struct Range {
    int minimum = 0;
    int maximum = 10;
    int increment = 1;
  };
  UpDown(Parent parent, TextView name, Rect place, TextBox& buddy, Range range, int value);
  UpDown(Parent parent, TextView name, Rect place, Label& display, Range range, int value);
  int value() const { return value_; }
  /// Writes the number into the buddy and runs `Change` where it changes. Throws InvalidValue outside Min to Max.
  void set_value(int value);
  /// The nearest value that the range allows.
  int clamped(int value) const;
  int Min;
  int Max;
  int Increment;
  TextBox* Buddy = nullptr;
  Label* Display = nullptr;
  std::function<void()> Change;
  std::function<Text(int)> Format; ///< How the number is shown; as decimal digits where it is not set.
  /// What may stand in the buddy once it is left, where that is not the range: a typed number goes to the nearest of
  /// these limits, a text that begins with no number counts as 0, and the up-down takes the nearest value of its range.
  struct Limits {
    int minimum = 0;
    int maximum = 0;
  };
  std::optional<Limits> TextLimits;
  /// Writes the number into the buddy or the label.
  void show_value();
  /// Takes the number that stands in the buddy if its range allows it: the user is still typing.
  void take_typed();
  /// The user leaves the buddy: its text becomes a number within the limits.
  void finish_typing();

 private:
  int value_;
};

/// A list of entries of which one is selected or, with `MultiSelect`, any number. There a click or a tap turns its
/// entry over, one with Shift gives all entries from the last one touched that one's state; the arrows move the place
/// of the keys, with Shift they select on their way, Space turns the entry there over and Ctrl+A selects all.
class ListBox : public Element {
 public:
  ListBox(Parent parent, TextView name, Rect place);
  std::vector<Text> Items;
  bool MultiSelect = false;
  /// Index of the selected entry, -1 for none; with `MultiSelect` of the entry where the keys are.
  int list_index() const { return list_index_ < count() ? list_index_ : -1; }
  /// Runs `Click` when an entry is selected, also the same one again; with `MultiSelect` it selects nothing and runs
  /// nothing. Throws InvalidValue for an index of no entry.
  void set_list_index(int index);
  int count() const { return static_cast<int>(Items.size()); }
  /// The selected entry, empty if none is.
  Text selected() const;
  /// Index of the entry that equals the text, -1 if none does.
  int find(TextView text) const;
  /// Takes an entry out; the selection is lost if it was the selected one and follows its entry otherwise.
  void remove(int index);
  /// Takes all entries out; nothing is selected then.
  void clear();

  /// Whether that entry is selected, with `MultiSelect` or without.
  bool is_selected(int index) const;
  /// With `MultiSelect`: selects one entry or takes its selection away; runs `Click` where that changes anything.
  /// Throws InvalidValue for an index of no entry.
  void set_selected(int index, bool selected);
  /// With `MultiSelect`: for each entry whether it is selected.
  std::vector<bool> selection() const;
  /// With `MultiSelect`: the whole selection at once; runs `Click` once where that changes anything. Entries that the
  /// selection does not reach are not selected.
  void set_selection(const std::vector<bool>& selection);
  /// How many entries are selected.
  int selected_count() const;

 protected:
  ListBox(ElementKind kind, Parent parent, TextView name, Rect place);

 private:
  int list_index_ = -1;
  std::vector<bool> several_; // as long as the last selection that was set; no entry behind it is selected
};

/// A list of the files of one folder that match a pattern.
class FileListBox : public ListBox {
 public:
  FileListBox(Parent parent, TextView name, Rect place, TextView pattern);
  Text Pattern;
  const Text& path() const { return path_; }
  /// Sets the folder (without or with a trailing backslash) and lists it.
  void set_path(TextView path);
  /// Lists the folder anew; a selected name stays selected if it is still there.
  void refresh();

 private:
  Text path_;
};

class ScrollBar : public Element {
 public:
  ScrollBar(Parent parent, TextView name, Rect place, int minimum, int maximum);
  int Min;
  int Max;
  int SmallChange = 1;
  int LargeChange = 10;
  std::function<void()> Change;
  int value() const { return value_; }
  /// Runs `Change` where it changes the value. Throws InvalidValue outside Min to Max.
  void set_value(int value);

 private:
  int value_;
};

class ProgressBar : public Element {
 public:
  ProgressBar(Parent parent, TextView name, Rect place);
  int Min = 0;
  int Max = 100;
  int Value = 0;
};

/// A straight line; its place is the box around it, from the left top to the right bottom corner.
class Line : public Element {
 public:
  Line(Parent parent, TextView name, Rect place);
  double BorderWidth = twips_per_pixel;
  bool Rising = false; ///< From the left bottom to the right top corner instead.
};

/// The outline of a rectangle, one pixel wide. Like a line it lets the mouse through.
class Shape : public Element {
 public:
  Shape(Parent parent, TextView name, Rect place);
};

/// An interval shorter than 10 ms means "as fast as the machine likes": machines then fire every `idle_pace` ms, at
/// each second frame of the display. At each frame the line drawing alone would take a tenth of a processor.
inline constexpr int idle_pace = 33;

/// Fires every `Interval` milliseconds while it is enabled; 0 stops it. It does not fire while its own handler runs.
class Timer : public Element {
 public:
  Timer(Parent parent, TextView name, int interval, bool enabled = true);
  int Interval;
  /// For what is on the screen until the tick: counted in frames of the display, the number of them that is nearest to
  /// the interval, but at least one. What shows a picture for less than a frame shows it by chance.
  bool WholeFrames = false;
  std::function<void()> Tick;
  bool InTick = false; ///< Kept by the machine: the handler is running.
  bool running() const { return Enabled && Interval > 0; }
  /// Starts it, or starts it over: its whole interval lies before the next tick. Turning `Enabled` off and on again
  /// within one event does not do that, since nobody looks in between.
  void restart();
  /// Differs each time that it has been started over.
  int restarts() const { return restarts_; }
  /// What lies between two ticks, ms.
  int period() const;

 private:
  int restarts_ = 0;
};

/// An entry of the menu bar or, inside another entry, of its menu. The caption "-" is a separator.
class MenuItem : public Element {
 public:
  MenuItem(Parent parent, TextView name, TextView caption, int shortcut_key = 0, int shortcut_shift = shift::none);
  int ShortcutKey;   ///< Key code that chooses it wherever the focus is, 0 for none.
  int ShortcutShift; ///< The shift mask that goes with the key.
  bool Checked = false;
};

/// The shortcut of an entry as the menu shows it: "Ctrl+U", "F1"; empty if it has none.
Text shortcut_text(const MenuItem& item);

/// The caption without its mnemonic marks: "&Fájl" gives "Fájl", "&&" gives "&".
Text without_mnemonic(TextView caption);

/// The character behind the mnemonic mark in lower case, 0 if there is none.
char16_t mnemonic(TextView caption);

/// What a screen reader says: the accessible name if it is set, else the caption, else the text, else the role in
/// Hungarian.
Text accessible_name(const Element& element);

} // namespace cserko
