#include "platform/platform.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace cserko {

namespace {

std::uint64_t next_serial() {
  static std::atomic<std::uint64_t> last{0};
  return ++last;
}

// Position of the mnemonic mark, npos if there is none. A doubled mark stands for the character itself.
std::size_t mnemonic_mark(TextView caption) {
  for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != u'&') continue;
    if (caption[at + 1] != u'&') return at;
    ++at;
  }
  return TextView::npos;
}

TextView role(ElementKind kind) {
  switch (kind) {
  case ElementKind::Label:
    return u"felirat";
  case ElementKind::PictureBox:
    return u"kép";
  case ElementKind::Button:
    return u"gomb";
  case ElementKind::CheckBox:
    return u"jelölőnégyzet";
  case ElementKind::OptionButton:
    return u"választógomb";
  case ElementKind::Frame:
    return u"csoport";
  case ElementKind::TextBox:
    return u"szövegmező";
  case ElementKind::UpDown:
    return u"léptető";
  case ElementKind::ListBox:
  case ElementKind::FileListBox:
    return u"lista";
  case ElementKind::ScrollBar:
    return u"görgetősáv";
  case ElementKind::ProgressBar:
    return u"folyamatjelző";
  case ElementKind::Line:
    return u"vonal";
  case ElementKind::Shape:
    return u"keret";
  case ElementKind::Timer:
    return u"időzítő";
  case ElementKind::MenuItem:
    return u"menü";
  }
  return u"";
}

// The time of the frames that come nearest to a time, ms; rounded up, so that the last of them is over by then.
int whole_frames(int ms, double frame) {
  constexpr double below_any_clock = 1e-6;
  const double frames = std::max(1.0, std::round(ms / frame));
  return static_cast<int>(std::ceil(frames * frame - below_any_clock));
}

// The number that a text is, none if it is not a whole number of at most six digits.
bool whole_number(TextView text, int& number) {
  if (text.empty() || text.size() > 6) return false;
  number = 0;
  for (const char16_t digit : text) {
    if (digit < u'0' || digit > u'9') return false;
    number = number * 10 + (digit - u'0');
  }
  return true;
}

} // namespace

Parent::Parent(Element& container) : window_(&container.window()), container_(&container) {}

Element::Element(ElementKind kind, Parent parent, TextView name, Rect place, TextView caption)
    : Name(name),
      Left(place.left),
      Top(place.top),
      Width(place.width),
      Height(place.height),
      Caption(caption),
      kind_(kind),
      window_(&parent.window()),
      container_(parent.container()),
      serial_(next_serial()),
      layer_(serial_) {
  window_->register_element(*this);
}

Element::~Element() { window_->unregister_element(*this); }

void Element::bring_to_front() { layer_ = next_serial(); }

bool Element::shown() const { return Visible && (container_ == nullptr || container_->shown()); }

bool Element::usable() const { return Enabled && (container_ == nullptr || container_->usable()); }

bool Element::focusable() const {
  switch (kind_) {
  case ElementKind::Label:
    return static_cast<const Label*>(this)->Choosable;
  case ElementKind::UpDown:
    return static_cast<const UpDown*>(this)->Display != nullptr;
  case ElementKind::PictureBox:
  case ElementKind::Button:
  case ElementKind::CheckBox:
  case ElementKind::OptionButton:
  case ElementKind::TextBox:
  case ElementKind::ListBox:
  case ElementKind::FileListBox:
  case ElementKind::ScrollBar:
    return true;
  default:
    return false;
  }
}

Point Element::position_in_window() const {
  const Point outer = container_ != nullptr ? container_->position_in_window() : Point{};
  return {outer.x + Left, outer.y + Top};
}

void Element::move_to(double left, double top) {
  Left = left;
  Top = top;
}

void Element::copy_design(const Element& design) {
  Caption = design.Caption;
  Tag = design.Tag;
  Font = design.Font;
  ForeColor = design.ForeColor;
  BackColor = design.BackColor;
  Opaque = design.Opaque;
  Border = design.Border;
  Enabled = design.Enabled;
  TabStop = design.TabStop;
  DragAutomatic = design.DragAutomatic;
}

Label::Label(Parent parent, TextView name, Rect place, TextView caption)
    : Element(ElementKind::Label, parent, name, place, caption) {}

void Label::set_caption(TextView caption) {
  if (Caption == caption) return;
  Caption = caption;
  if (Change) Change();
}

void Label::copy_design(const Label& design) {
  Element::copy_design(design);
  Choosable = design.Choosable;
  WordWrap = design.WordWrap;
  Centered = design.Centered;
}

PictureBox::PictureBox(Parent parent, TextView name, Rect place)
    : Element(ElementKind::PictureBox, parent, name, place, {}) {}

PictureBox::~PictureBox() = default;

Canvas& PictureBox::canvas() {
  // A box that was resized since its last drawing starts with an empty drawing of its present size.
  if (!canvas_ || canvas_->size() != Size{Width, Height}) canvas_ = window().platform().make_canvas({Width, Height});
  return *canvas_;
}

Button::Button(Parent parent, TextView name, Rect place, TextView caption)
    : Element(ElementKind::Button, parent, name, place, caption) {}

CheckBox::CheckBox(Parent parent, TextView name, Rect place, TextView caption, int value)
    : Element(ElementKind::CheckBox, parent, name, place, caption), value_(value) {}

void CheckBox::set_value(int value) {
  if (value < 0 || value > 2) throw InvalidValue("check box: the value is not 0, 1 or 2");
  if (value_ == value) return;
  value_ = value;
  if (Click) Click();
}

OptionButton::OptionButton(Parent parent, TextView name, Rect place, TextView caption, bool value)
    : Element(ElementKind::OptionButton, parent, name, place, caption), value_(value) {}

void OptionButton::set_value(bool value) {
  if (value_ == value) return;
  value_ = value;
  if (!value) return;
  for (Element* other : window().elements()) {
    if (other == this || other->kind() != ElementKind::OptionButton || other->container() != container()) continue;
    static_cast<OptionButton*>(other)->value_ = false;
  }
  if (Click) Click();
}

Frame::Frame(Parent parent, TextView name, Rect place, TextView caption)
    : Element(ElementKind::Frame, parent, name, place, caption) {}

TextBox::TextBox(Parent parent, TextView name, Rect place, TextView text)
    : Element(ElementKind::TextBox, parent, name, place, {}), text_(text) {}

void TextBox::set_text(TextView text) {
  if (text_ == text) return;
  text_ = text;
  all_selected_ = false;
  if (Change) Change();
}

void TextBox::select_all() {
  all_selected_ = true;
  ++selections_;
}

UpDown::UpDown(Parent parent, TextView name, Rect place, TextBox& buddy, Range range, int value)
    : Element(ElementKind::UpDown, parent, name, place, {}),
      Min(range.minimum),
      Max(range.maximum),
      Increment(range.increment),
      Buddy(&buddy),
      value_(value) {
  buddy.Stepper = this;
  show_value();
}

UpDown::UpDown(Parent parent, TextView name, Rect place, Label& display, Range range, int value)
    : Element(ElementKind::UpDown, parent, name, place, {}),
      Min(range.minimum),
      Max(range.maximum),
      Increment(range.increment),
      Display(&display),
      value_(value) {
  show_value();
}

int UpDown::clamped(int value) const { return std::max(Min, std::min(Max, value)); }

void UpDown::show_value() {
  const Text text = Format ? Format(value_) : to_text(value_);
  if (Buddy != nullptr) Buddy->set_text(text);
  if (Display != nullptr) Display->set_caption(text);
}

void UpDown::set_value(int value) {
  if (value < Min || value > Max) throw InvalidValue("up-down: the value is outside its range");
  const bool changed = value_ != value;
  value_ = value;
  show_value();
  if (changed && Change) Change();
}

void UpDown::take_typed() {
  int number = 0;
  if (Buddy != nullptr && whole_number(Buddy->text(), number) && clamped(number) == number) set_value(number);
}

void UpDown::finish_typing() {
  if (Buddy == nullptr || Buddy->Locked) return;
  int number = 0;
  if (!TextLimits) {
    set_value(whole_number(Buddy->text(), number) ? clamped(number) : value());
    return;
  }
  const int limited = std::max(TextLimits->minimum, std::min(TextLimits->maximum, leading_number(Buddy->text())));
  set_value(clamped(limited));
  Buddy->set_text(to_text(limited));
}

ListBox::ListBox(Parent parent, TextView name, Rect place) : ListBox(ElementKind::ListBox, parent, name, place) {}

ListBox::ListBox(ElementKind kind, Parent parent, TextView name, Rect place) : Element(kind, parent, name, place, {}) {}

void ListBox::set_list_index(int index) {
  if (index < -1 || index >= count()) throw InvalidValue("list box: no entry has this index");
  list_index_ = index;
  if (index >= 0 && !MultiSelect && Click) Click();
}

Text ListBox::selected() const { return list_index() < 0 ? Text() : Items[static_cast<std::size_t>(list_index())]; }

int ListBox::find(TextView text) const {
  const auto found = std::find(Items.begin(), Items.end(), text);
  return found == Items.end() ? -1 : static_cast<int>(found - Items.begin());
}

void ListBox::remove(int index) {
  if (index < 0 || index >= count()) throw InvalidValue("list box: no entry has this index");
  Items.erase(Items.begin() + index);
  if (list_index_ == index) list_index_ = -1;
  if (list_index_ > index) --list_index_;
  if (static_cast<std::size_t>(index) < several_.size()) several_.erase(several_.begin() + index);
}

void ListBox::clear() {
  Items.clear();
  list_index_ = -1;
  several_.clear();
}

bool ListBox::is_selected(int index) const {
  if (index < 0 || index >= count()) return false;
  if (!MultiSelect) return index == list_index_;
  return static_cast<std::size_t>(index) < several_.size() && several_[static_cast<std::size_t>(index)];
}

void ListBox::set_selected(int index, bool selected) {
  if (index < 0 || index >= count()) throw InvalidValue("list box: no entry has this index");
  std::vector<bool> wanted = selection();
  wanted[static_cast<std::size_t>(index)] = selected;
  set_selection(wanted);
}

std::vector<bool> ListBox::selection() const {
  std::vector<bool> found = several_;
  found.resize(Items.size(), false);
  return found;
}

void ListBox::set_selection(const std::vector<bool>& selection) {
  std::vector<bool> wanted = selection;
  wanted.resize(Items.size(), false);
  if (wanted == this->selection()) return;
  several_ = std::move(wanted);
  if (Click) Click();
}

int ListBox::selected_count() const {
  if (!MultiSelect) return list_index() >= 0 ? 1 : 0;
  const std::vector<bool> all = selection();
  return static_cast<int>(std::count(all.begin(), all.end(), true));
}

FileListBox::FileListBox(Parent parent, TextView name, Rect place, TextView pattern)
    : ListBox(ElementKind::FileListBox, parent, name, place), Pattern(pattern) {}

void FileListBox::set_path(TextView path) {
  path_ = path;
  if (!path_.empty() && path_.back() == u'\\') path_.pop_back();
  refresh();
}

void FileListBox::refresh() {
  const Text before = selected();
  Items = window().platform().files().list(path_ + u"\\" + Pattern);
  std::sort(Items.begin(), Items.end());
  // The selection is put back without a click: nobody has chosen anything.
  const auto handler = std::move(Click);
  set_list_index(before.empty() ? -1 : find(before));
  Click = handler;
}

ScrollBar::ScrollBar(Parent parent, TextView name, Rect place, int minimum, int maximum)
    : Element(ElementKind::ScrollBar, parent, name, place, {}), Min(minimum), Max(maximum), value_(minimum) {}

void ScrollBar::set_value(int value) {
  if (value < Min || value > Max) throw InvalidValue("scroll bar: the value is outside its range");
  if (value_ == value) return;
  value_ = value;
  if (Change) Change();
}

ProgressBar::ProgressBar(Parent parent, TextView name, Rect place)
    : Element(ElementKind::ProgressBar, parent, name, place, {}) {}

Line::Line(Parent parent, TextView name, Rect place) : Element(ElementKind::Line, parent, name, place, {}) {}

Shape::Shape(Parent parent, TextView name, Rect place) : Element(ElementKind::Shape, parent, name, place, {}) {}

Timer::Timer(Parent parent, TextView name, int interval, bool enabled)
    : Element(ElementKind::Timer, parent, name, {}, {}), Interval(interval) {
  Enabled = enabled;
}

void Timer::restart() {
  Enabled = true;
  ++restarts_;
}

int Timer::period() const {
  if (Interval < 10) return idle_pace;
  return WholeFrames ? whole_frames(Interval, window().platform().display_frame()) : Interval;
}

MenuItem::MenuItem(Parent parent, TextView name, TextView caption, int shortcut_key, int shortcut_shift)
    : Element(ElementKind::MenuItem, parent, name, {}, caption),
      ShortcutKey(shortcut_key),
      ShortcutShift(shortcut_shift) {}

Text shortcut_text(const MenuItem& item) {
  const int code = item.ShortcutKey;
  if (code == 0) return {};
  Text text;
  if ((item.ShortcutShift & shift::control) != 0) text += u"Ctrl+";
  if ((item.ShortcutShift & shift::alt) != 0) text += u"Alt+";
  if ((item.ShortcutShift & shift::shift) != 0) text += u"Shift+";
  if (code >= key::f1) return text + u"F" + to_text(code - key::f1 + 1);
  if (code == key::delete_) return text + u"Del";
  if (code == key::insert) return text + u"Ins";
  return text + static_cast<char16_t>(code);
}

Text without_mnemonic(TextView caption) {
  Text plain;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == u'&' && at + 1 < caption.size()) ++at;
    plain.push_back(caption[at]);
  }
  return plain;
}

char16_t mnemonic(TextView caption) {
  const std::size_t mark = mnemonic_mark(caption);
  return mark == TextView::npos ? u'\0' : lower_case(caption[mark + 1]);
}

Text accessible_name(const Element& element) {
  if (!element.AccessibleName.empty()) return element.AccessibleName;
  if (Text plain = without_mnemonic(element.Caption); !plain.empty()) return plain;
  return Text(role(element.kind()));
}

} // namespace cserko
