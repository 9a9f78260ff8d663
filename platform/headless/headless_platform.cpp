#include "platform/headless/headless_platform.h"

#include "platform/bitmap.h"
#include "platform/headless/text_metrics.h"
#include "platform/input.h"

#include <algorithm>
#include <array>
#include <limits>

namespace cserko {

namespace {

constexpr std::array<TextView, 6> picture_endings{u".wmf", u".bmp", u".png", u".jpg", u".jpeg", u".ico"};

// What an operation counts as, in steps.
constexpr int measuring = 20;
constexpr int drawing = 100;

bool is_picture_name(const Text& path) {
  const Text name = MemoryFiles::folded(path);
  return std::any_of(picture_endings.begin(), picture_endings.end(),
                     [&name](TextView ending) { return name.ends_with(ending); });
}

} // namespace

HeadlessPlatform::HeadlessPlatform() : media_(files_, [this] { return clock_; }) { files_.put_folder(Text(folder)); }

TimeOfDay HeadlessPlatform::time_of_day() const {
  constexpr int minutes_a_day = 24 * 60;
  const auto minutes = static_cast<int>((minutes_at_start_ + clock_ / 60000) % minutes_a_day);
  return {minutes / 60, minutes % 60};
}

void HeadlessPlatform::set_time_of_day(TimeOfDay time) {
  constexpr int minutes_a_day = 24 * 60;
  const auto passed = static_cast<int>(clock_ / 60000 % minutes_a_day);
  minutes_at_start_ = (time.hour * 60 + time.minute - passed + minutes_a_day) % minutes_a_day;
}

std::int64_t HeadlessPlatform::now() const {
  step(1);
  return clock_;
}

void HeadlessPlatform::seed_random() {
  step(1);
  ++seedings;
}

void HeadlessPlatform::step(int weight) const {
  steps_ += weight;
  if (steps_ <= step_limit) return;
  steps_ = 0; // what still happens on the way out is not the loop
  fail("an event takes more steps than any needs");
}

double HeadlessPlatform::random() {
  step(1);
  if (scripted_random_.empty()) return static_cast<double>(generator_() >> 11) * 0x1p-53;
  const double number = scripted_random_.front();
  scripted_random_.pop_front();
  return number;
}

void HeadlessPlatform::script_random(std::initializer_list<double> numbers) {
  script_random(std::vector<double>(numbers));
}

void HeadlessPlatform::script_random(const std::vector<double>& numbers) {
  for (const double number : numbers) {
    if (!(number >= 0 && number < 1)) throw InvalidValue("a random number is at least 0 and below 1");
    scripted_random_.push_back(number);
  }
}

void HeadlessPlatform::set_screen(int width_pixels, int height_pixels) {
  screen_ = {width_pixels * twips_per_pixel, height_pixels * twips_per_pixel};
}

Rect HeadlessPlatform::whole_screen() const {
  return {-panels.left, -panels.top, panels.left + screen_.width + panels.right,
          panels.top + screen_.height + panels.bottom};
}

Size HeadlessPlatform::chrome(const Window& window) const {
  if (window.Border == WindowBorder::None) return {};
  const auto& elements = window.elements();
  const bool menu = std::any_of(elements.begin(), elements.end(),
                                [](const Element* element) { return element->kind() == ElementKind::MenuItem; });
  return {frame_width, title_height + (menu ? menu_height : 0)};
}

Size HeadlessPlatform::measure(const Font& font, TextView text) const {
  step(measuring);
  return text_metrics::measure(font, text);
}

Size HeadlessPlatform::measure_wrapped(const Font& font, TextView text, double width) const {
  step(measuring);
  return text_metrics::measure_wrapped(font, text, width);
}

PicturePtr HeadlessPlatform::load_picture(const Text& path) {
  ++picture_loads;
  const Text key = MemoryFiles::folded(path);
  if (!is_picture_name(path) || !files_.exists(path) || broken_pictures_.count(key) != 0) return nullptr;
  const auto image = picture_images_.find(key);
  if (image == picture_images_.end()) return std::make_shared<HeadlessPicture>(path, Size{1500, 1500}, nullptr);
  const Size size{image->second->width * twips_per_pixel, image->second->height * twips_per_pixel};
  return std::make_shared<HeadlessPicture>(path, size, image->second);
}

void HeadlessPlatform::set_picture(const Text& path, const PixelImage& image) {
  if (!files_.exists(path)) files_.put(path, "picture");
  picture_images_[MemoryFiles::folded(path)] = std::make_shared<PixelImage>(image);
}

std::optional<PixelImage> HeadlessPlatform::decode_picture(std::string_view bytes) const { return read_bitmap(bytes); }

std::unique_ptr<Canvas> HeadlessPlatform::make_canvas(Size size) { return std::make_unique<RecordedCanvas>(size); }

void HeadlessPlatform::start_process(const Text& command_line, ProcessWindow window) {
  if (processes_fail) throw std::runtime_error(to_utf8(u"A program nem indítható: " + command_line));
  processes.push_back({command_line, window});
}

std::optional<Text> HeadlessPlatform::registry_value(const Text& key, const Text& name) const {
  const auto found = registry.find({key, name});
  return found == registry.end() ? std::nullopt : std::optional(found->second);
}

void HeadlessPlatform::report_error(const Text& text) {
  // What went wrong in the test itself must not end at the event boundary that has caught it here.
  if (failure_) std::rethrow_exception(failure_);
  errors.push_back(text);
}

void HeadlessPlatform::attach(Window& window) { timers_.attach(window); }

void HeadlessPlatform::detach(Window& window) {
  hide(window);
  timers_.detach(window);
}

bool HeadlessPlatform::is_shown(const Window& window) const {
  return std::find(shown_.begin(), shown_.end(), &window) != shown_.end();
}

bool HeadlessPlatform::is_modal(const Window& window) const {
  return std::find(modal_.begin(), modal_.end(), &window) != modal_.end();
}

void HeadlessPlatform::put_to_front(Window& window) {
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &window), shown_.end());
  shown_.push_back(&window);
  window.set_visible(true);
}

void HeadlessPlatform::activate_front() {
  Window* front = active_window();
  if (front == active_ || ended_) return;
  active_ = front;
  if (front == nullptr) return;
  // A window that comes up for the first time has its focus on the first control.
  if (front->focus() == nullptr) {
    if (Element* first = input::next_focus(*front, false); first != nullptr) input::focus(*first);
  }
  if (active_ == front && is_shown(*front)) input::activate(*front);
}

void HeadlessPlatform::show(Window& window) {
  if (ended_) return;
  if (is_shown(window)) {
    bring_to_front(window);
  } else {
    put_to_front(window);
  }
  activate_front();
}

void HeadlessPlatform::hide(Window& window) {
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &window), shown_.end());
  window.set_visible(false);
  // The one behind it becomes active when the present event is over.
  if (active_ == &window) active_ = nullptr;
}

void HeadlessPlatform::bring_to_front(Window& window) {
  const auto here = std::find(shown_.begin(), shown_.end(), &window);
  if (here == shown_.end()) return;
  // No further than under a modal window that lies over it.
  const auto modal = std::find_if(here + 1, shown_.end(), [this](const Window* other) { return is_modal(*other); });
  std::rotate(here, here + 1, modal);
}

void HeadlessPlatform::redraw(Window&) {
  step(drawing);
  ++redraws;
}

void HeadlessPlatform::next_frame(Window& window) {
  redraw(window);
  ++frames;
  timers_.compare(clock_);
  clock_ += frame_time;
  if (during_frame) let_person(during_frame);
}

void HeadlessPlatform::live_frame(Window& window, const std::function<bool()>& until) {
  redraw(window);
  ++frames;
  timers_.compare(clock_);
  const std::int64_t end = clock_ + frame_time;
  if (during_frame) let_person(during_frame);
  while (!ended_ && !until() && fire_until(end)) activate_front();
  if (!until()) clock_ = std::max(clock_, end);
}

void HeadlessPlatform::show_modal(Window& window) {
  if (ended_) return;
  if (is_shown(window)) throw std::logic_error("a window that is shown already cannot be shown modally");
  modal_.push_back(&window);
  struct Leave {
    std::vector<Window*>& modal;
    ~Leave() { modal.pop_back(); }
  };
  {
    const Leave leave{modal_};
    put_to_front(window);
    last_deed_ = clock_;
    activate_front();
    if (!script.empty() && is_shown(window) && !ended_) {
      const auto first = script.front();
      script.pop_front();
      let_person([&] { first(window); });
    }
    // The window may be gone when it is no longer shown: only its address is looked at.
    while (is_shown(window) && !ended_) turn(window);
  }
  activate_front();
}

void HeadlessPlatform::turn(Window& modal) {
  activate_front();
  if (!is_shown(modal) || ended_) return;
  timers_.compare(clock_);
  if (person_acts()) return;
  if (is_shown(modal) && !ended_) wait_for_timer();
}

bool HeadlessPlatform::person_acts() {
  Window* front = active_window();
  bool acted = false;
  if (user && front != nullptr) let_person([&] { acted = user(*front); });
  if (!acted) return false;
  if (deed_time > 0) advance(deed_time);
  deeds_without_time_ = clock_ == last_deed_ ? deeds_without_time_ + 1 : 0;
  last_deed_ = clock_;
  if (deeds_without_time_ > deed_limit) fail("the person acts without end and no time passes");
  return true;
}

void HeadlessPlatform::wait_for_timer() {
  if (clock_ - last_deed_ > patience) fail("nobody does anything and the timers go on for ever");
  // A person who waits until a panel hears the keys does something later.
  const Window* front = active_window();
  const std::int64_t heard_from = front != nullptr && front->KeyPause > 0 ? front->keys_heard_from() : clock_;
  if (heard_from > clock_) {
    advance(static_cast<int>(heard_from - clock_));
    return;
  }
  if (!fire_until(std::numeric_limits<std::int64_t>::max())) fail("nobody does anything and no timer runs");
}

// Moves the clock on to the timer that is due first and fires it. Returns false if none is due by that time.
bool HeadlessPlatform::fire_until(std::int64_t limit) {
  timers_.compare(clock_);
  const auto due = timers_.first();
  if (!due || due->at > limit) return false;
  clock_ = std::max(clock_, due->at);
  event_begins();
  timers_.fire_first([this] { return clock_; });
  return true;
}

void HeadlessPlatform::advance(int ms) {
  const std::int64_t target = clock_ + ms;
  while (!ended_ && fire_until(target)) activate_front();
  clock_ = std::max(clock_, target);
}

void HeadlessPlatform::pump_events(const std::function<bool()>& until) {
  const std::int64_t start = clock_;
  while (!ended_ && !until()) {
    activate_front();
    if (during_wait) let_person(during_wait);
    if (ended_ || until()) return;
    if (clock_ - start > patience) fail("a wait does not end");
    if (!fire_until(std::numeric_limits<std::int64_t>::max())) fail("a wait does not end and no timer runs");
  }
}

std::string HeadlessPlatform::where() const {
  std::string text = "; shown, from the back:";
  for (const Window* window : shown_) text += " " + to_utf8(window->Name);
  for (const Text& error : errors) text += "; reported: " + to_utf8(error);
  return text;
}

void HeadlessPlatform::let_person(const std::function<void()>& deed) {
  event_begins();
  try {
    deed();
  } catch (...) {
    failure_ = std::current_exception();
    ended_ = true;
    throw;
  }
}

void HeadlessPlatform::fail(const std::string& what) const {
  failure_ = std::make_exception_ptr(Stuck(what + where()));
  ended_ = true;
  std::rethrow_exception(failure_);
}

} // namespace cserko
