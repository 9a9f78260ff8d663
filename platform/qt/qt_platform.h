// The real machine: Qt windows, SDL sound, files on the disk.
#pragma once

#include "platform/platform.h"
#include "platform/qt/files.h"
#include "platform/qt/fonts.h"
#include "platform/qt/picture_loader.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_printing.h"
#include "platform/qt/window_view.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <random>
#include <unordered_map>
#include <unordered_set>

namespace cserko {

class SdlMedia;

class QtPlatform : public QObject, public Platform {
 public:
  /// Needs a QApplication.
  QtPlatform();
  ~QtPlatform() override;

  /// Whether a data pack was found.
  bool has_pack() const { return !files_.pack().isEmpty(); }
  void set_window_icon(const Text& path);

  /// The view of a shown window, null if it has none.
  WindowView* view_of(const Window& window) const;
  /// The window at the front that takes input, null if none is shown.
  Window* active_window() const;
  /// All visible windows, from the back to the front.
  const std::vector<Window*>& shown_windows() const { return stack_; }
  const Fonts& fonts() const { return fonts_; }
  QtFiles& qt_files() { return files_; }
  /// Shows what has changed in all visible windows.
  void sync_all();
  /// Runs something the user did, then shows what it changed; modal shows whose window it has closed return.
  void act(const std::function<void()>& deed);
  /// Lets a dialog of the system stand before a window, which is activated again when it is gone.
  void stand_before(Window& owner, const std::function<void()>& dialog);

  std::int64_t now() const override { return clock_.elapsed(); }
  TimeOfDay time_of_day() const override;
  double display_frame() const override;
  void seed_random() override;
  double random() override;

  void attach(Window& window) override;
  void detach(Window& window) override;
  void show_modal(Window& window) override;
  void show(Window& window) override;
  void hide(Window& window) override;
  void bring_to_front(Window& window) override;
  bool is_active(const Window& window) const override { return active_window() == &window && dialogs_standing_ == 0; }
  void redraw(Window& window) override;
  void next_frame(Window& window) override;
  void live_frame(Window& window, const std::function<bool()>& until) override;
  void pump_events(const std::function<bool()>& until) override;
  Size screen_size() const override;
  Rect whole_screen() const override;
  Size chrome(const Window& window) const override;

  Size measure(const Font& font, TextView text) const override { return fonts_.measure(font, text); }
  Size measure_wrapped(const Font& font, TextView text, double width) const override {
    return fonts_.measure_wrapped(font, text, width);
  }
  PicturePtr load_picture(const Text& path) override;
  /// Gives back the pictures that are kept so that they are shown at once the next time; there are never more than
  /// `PictureCache::kDefaultLimit` bytes of them.
  void forget_pictures() { pictures_.clear(); }
  std::optional<PixelImage> decode_picture(std::string_view bytes) const override;
  std::unique_ptr<Canvas> make_canvas(Size size) override;
  std::optional<PixelImage> clipboard_image() const override;
  Dialogs& dialogs() override { return dialogs_; }
  Printing& printing() override { return printing_; }

  Media& media() override;
  Files& files() override { return files_; }
  Text application_folder() const override { return Text(logical_application_folder); }
  void start_process(const Text& command_line, ProcessWindow window) override;
  bool program_exists(const Text& path) const override;
  std::optional<Text> registry_value(const Text& key, const Text& name) const override;
  void message_box(const Text& text) override;
  void report_error(const Text& text) override;
  void end_process() override;
  bool ended() const override { return ended_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// A timer may be stopped for good by its own tick: it goes when that is over.
  struct DeleteLater {
    void operator()(QTimer* timer) const;
  };
  struct RunningTimer {
    std::unique_ptr<QTimer, DeleteLater> timer;
    Timer* model = nullptr;
    int period = 0;
    int restarts = 0;
  };
  /// An event loop that runs until its condition holds, which is looked at after every deed.
  struct RunningLoop {
    QEventLoop* loop;
    const std::function<bool()>* done;
  };

  void run_loop(const std::function<bool()>& done);
  void leave_finished_loops();
  void sync_timers();
  void tick(Timer& timer);
  void make_up_for_ticks();
  /// Lets the events of the window system happen that are not for the suite.
  void let_paint(QEventLoop::ProcessEventsFlags events);
  static bool may_come_to_front(const WindowView& view);
  WindowView* live_view(const QObject* object) const;
  WindowView* view_that_hears(const QObject* object) const;
  bool key_press(WindowView& view, QKeyEvent& event);
  void key_release(WindowView& view, const QKeyEvent& event);
  bool native_key(const WindowView& view, const QKeyEvent& event) const;
  void note_keyboard(bool used);
  void open_view(Window& window, bool modal);
  void first_focus(Window& window);
  void activate(Window& window);
  void tell_activated(Window& window);
  bool show_changes(Window& window);
  void paint_now(WindowView& view);
  void drop_queued_input();
  QString program_path(const QString& named) const;

  QtFiles files_;
  Fonts fonts_;
  ViewContext context_;
  PictureCache pictures_;
  QtDialogs dialogs_{*this};
  QtPrinting printing_{*this};
  int dialogs_standing_ = 0;
  std::unique_ptr<SdlMedia> media_;
  std::mt19937_64 random_;
  QElapsedTimer clock_;
  QElapsedTimer frame_;
  const Window* redrawn_ = nullptr; ///< The window of the last redraw that showed anything, while it is shown.
  QElapsedTimer since_redraw_;
  std::vector<Window*> attached_;
  std::vector<Window*> stack_;
  const Window* active_ = nullptr; ///< The window whose `Activate` ran last, until another one comes over it.
  std::vector<RunningLoop> loops_;
  std::unordered_map<const Window*, std::unique_ptr<WindowView>> views_;
  std::unordered_map<std::uint64_t, RunningTimer> timers_;
  std::unordered_set<std::uint64_t> missed_ticks_; ///< Timers that ran out while the machine was quiet.
  bool quiet_ = false;    ///< Events are let through for painting alone: nothing reaches the suite.
  bool was_deaf_ = false; ///< An animation ran while its window took no input.
  bool reporting_ = false;
  bool ended_ = false;
};

} // namespace cserko
