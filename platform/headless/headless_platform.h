// The machine of the tests: the suite's logic on a virtual clock, with scripted random numbers, a person at the screen
// who is a function, and everything else written down.
#pragma once

#include "platform/headless/memory_files.h"
#include "platform/headless/recorded_canvas.h"
#include "platform/headless/recorded_media.h"
#include "platform/headless/scripted_dialogs.h"
#include "platform/headless/timer_queue.h"

#include <deque>
#include <exception>
#include <random>

namespace cserko {

/// A modal show, a wait or a loop that never ends: the person does nothing and no timer will change that, or one event
/// takes more steps than any needs. It passes every event boundary and reaches the test.
class Stuck : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class HeadlessPlatform : public Platform {
 public:
  HeadlessPlatform();

  // The person at the screen.

  /// Does something in the window at the front and says whether it did. Asked whenever a modal show waits; while it
  /// does nothing, the clock moves from timer to timer.
  std::function<bool(Window& active)> user;
  /// Each modal show takes the next entry and runs it first, once, with the window that is shown.
  std::deque<std::function<void(Window& shown)>> script;
  /// What happens in a wait of the suite, before each timer: the person does nothing then unless this is set.
  std::function<void()> during_wait;
  /// What happens behind each frame of an animation: nobody does anything unless this is set.
  std::function<void()> during_frame;
  /// Virtual time that each deed of `user` takes, ms.
  int deed_time = 0;
  /// A modal show is stuck when this much virtual time has passed without a deed (ms), or after so many deeds for which
  /// the clock stood still.
  std::int64_t patience = 600000;
  int deed_limit = 1000000;
  /// Far above what any event needs: random numbers, looks at the clock, texts measured (20 each), redraws and frames
  /// (100 each). An event with more is taken for a loop without an end.
  std::int64_t step_limit = 10000000;

  // What was written down.

  struct StartedProcess {
    Text command_line;
    ProcessWindow window = ProcessWindow::Normal;
  };
  std::vector<StartedProcess> processes;
  std::vector<Text> messages; ///< Texts of the platform's own message box.
  std::vector<Text> errors;   ///< Error reports.
  int seedings = 0;
  int redraws = 0;
  int frames = 0;
  bool processes_fail = false; ///< No program can be started.
  std::set<Text> programs;     ///< Paths at which a program lies.
  std::optional<PixelImage> clipboard;
  /// What the registry holds, by key and name.
  std::map<std::pair<Text, Text>, Text> registry;

  // The clock.

  /// Lets time pass and fires what becomes due, in order; the person does nothing.
  void advance(int ms);
  /// The time of day at the present moment; it goes on with the clock.
  void set_time_of_day(TimeOfDay time);

  // Chance.

  /// The next random numbers, each in [0, 1). Behind them a generator goes on that no seeding from the clock touches.
  void script_random(std::initializer_list<double> numbers);
  void script_random(const std::vector<double>& numbers);
  /// Scripted numbers that have not been drawn.
  std::size_t scripted_random_left() const { return scripted_random_.size(); }
  /// Starts that generator anew.
  void set_seed(std::uint64_t seed) { generator_.seed(seed); }

  // The screen.

  void set_screen(int width_pixels, int height_pixels);
  /// Panels of the desktop that take from the whole screen what is not usable, twips at each edge.
  struct Panels {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
  } panels;
  /// The window at the front that takes input, null if none is shown.
  Window* active_window() const { return shown_.empty() ? nullptr : shown_.back(); }
  /// All shown windows, from the back to the front.
  const std::vector<Window*>& shown_windows() const { return shown_; }
  /// Whether the machine knows the window (it is loaded).
  bool attached(const Window& window) const { return timers_.attached(window); }
  /// Number of modal shows that are running inside each other.
  std::size_t modal_depth() const { return modal_.size(); }

  /// A picture file that is there and cannot be drawn.
  void break_picture(const Text& path) { broken_pictures_.insert(MemoryFiles::folded(path)); }
  /// What a picture file holds; it is put there if it is not.
  void set_picture(const Text& path, const PixelImage& image);
  /// Number of pictures that were asked for.
  int picture_loads = 0;

  static constexpr TextView folder = u"c:\\cserko\\"; ///< The application folder.
  static constexpr double frame_width = 90;           ///< Twips that the frame adds to the width.
  static constexpr double title_height = 450;         ///< Twips that frame and title bar add to the height.
  static constexpr double menu_height = 375;          ///< Twips that a menu bar adds.
  static constexpr int frame_time = 16;               ///< Milliseconds of a display frame.

  std::int64_t now() const override;
  TimeOfDay time_of_day() const override;
  void seed_random() override;
  double random() override;

  void attach(Window& window) override;
  void detach(Window& window) override;
  void show_modal(Window& window) override;
  void show(Window& window) override;
  void hide(Window& window) override;
  void bring_to_front(Window& window) override;
  bool is_active(const Window& window) const override { return active_window() == &window && !dialogs_.standing(); }
  void redraw(Window& window) override;
  void next_frame(Window& window) override;
  void live_frame(Window& window, const std::function<bool()>& until) override;
  void pump_events(const std::function<bool()>& until) override;
  Size screen_size() const override { return screen_; }
  Rect whole_screen() const override;
  Size chrome(const Window& window) const override;

  Size measure(const Font& font, TextView text) const override;
  Size measure_wrapped(const Font& font, TextView text, double width) const override;
  PicturePtr load_picture(const Text& path) override;
  /// Bitmaps alone.
  std::optional<PixelImage> decode_picture(std::string_view bytes) const override;
  std::unique_ptr<Canvas> make_canvas(Size size) override;
  std::optional<PixelImage> clipboard_image() const override { return clipboard; }

  ScriptedDialogs& dialogs() override { return dialogs_; }
  RecordedPrinting& printing() override { return printing_; }

  RecordedMedia& media() override { return media_; }
  MemoryFiles& files() override { return files_; }
  const MemoryFiles& files() const { return files_; }
  Text application_folder() const override { return Text(folder); }
  void start_process(const Text& command_line, ProcessWindow window) override;
  bool program_exists(const Text& path) const override { return programs.count(path) != 0; }
  std::optional<Text> registry_value(const Text& key, const Text& name) const override;
  void message_box(const Text& text) override { messages.push_back(text); }
  void report_error(const Text& text) override;
  void end_process() override { ended_ = true; }
  bool ended() const override { return ended_; }
  void event_begins() override { steps_ = 0; }

 private:
  void step(int weight) const;
  bool is_shown(const Window& window) const;
  void put_to_front(Window& window);
  void activate_front();
  bool is_modal(const Window& window) const;
  void turn(Window& modal);
  bool person_acts();
  void wait_for_timer();
  bool fire_until(std::int64_t limit);
  void let_person(const std::function<void()>& deed);
  [[noreturn]] void fail(const std::string& what) const;
  std::string where() const;

  std::int64_t clock_ = 0;
  std::int64_t last_deed_ = 0;
  int deeds_without_time_ = 0;
  int minutes_at_start_ = 12 * 60;
  std::deque<double> scripted_random_;
  std::mt19937_64 generator_{1};
  Size screen_{1280 * twips_per_pixel, 1024 * twips_per_pixel};
  TimerQueue timers_;
  std::vector<Window*> shown_;
  std::vector<Window*> modal_;
  const Window* active_ = nullptr;
  std::set<Text> broken_pictures_;
  std::map<Text, std::shared_ptr<const PixelImage>> picture_images_;
  MemoryFiles files_;
  RecordedMedia media_;
  ScriptedDialogs dialogs_{files_};
  RecordedPrinting printing_{dialogs_};
  mutable std::int64_t steps_ = 0;
  mutable std::exception_ptr failure_;
  mutable bool ended_ = false;
};

} // namespace cserko
