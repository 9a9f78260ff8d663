// What the whole suite shares: the records, the counters, the machine, and the windows that are loaded.
#pragma once

#include "core/records.h"
#include "platform/platform.h"

#include <typeindex>

namespace cserko {

/// Where the settings of a user lie, whatever the application folder is.
inline constexpr TextView fixed_root = u"c:\\pomzu\\cserko\\";

/// What the core asks of the feedback layer above it; filled when the suite is put together.
struct Feedback {
  /// Plays a wave file; an empty text stops the sound, "*" plays the silent file.
  std::function<void(const Text&)> hang_lejátszás;
  /// Plays a title; an empty text stops the music.
  std::function<void(const Text&)> zene_lejátszás;
  /// Shows a text in the suite's own message panel and returns when it is closed.
  std::function<void(const Text&)> tell;
};

class Session : public Host {
 public:
  explicit Session(Platform& platform);
  ~Session() override;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Platform& platform() const { return platform_; }

  Text alapkönyvtár;              ///< The application folder with a trailing backslash.
  Records képek;                  ///< All records; read-only once loaded.
  std::int16_t játékszámláló = 5; ///< Panels left until the next reward.
  struct {
    bool hang = false; ///< The alias "hang" is open.
    bool midi = false; ///< The alias "midi" is open.
  } hangállapot;
  bool zene_nyitva = false; ///< A title is open and can be paused.
  Feedback feedback;
  Text first_exercise; ///< What the main window starts as soon as it is seen; empty for nothing.

  /// Runs the suite from start to end: sound path, settings, records, main windows until the user leaves.
  void Main();
  /// Reads all records behind the progress window.
  void képadatok_betöltése();

  /// The window of a class; created, and its load handler run, on first touch. A window whose load handler throws is
  /// not loaded.
  template<class W> W& window() {
    if (Window* found = loaded_window(typeid(W))) return static_cast<W&>(*found);
    return make_window<W>();
  }
  /// A new window of a class that may be loaded several times at once.
  template<class W> W& make_window() { return static_cast<W&>(adopt(typeid(W), std::make_unique<W>(*this))); }
  template<class W> bool loaded() const { return loaded_window(typeid(W)) != nullptr; }

  /// Makes a window known by its name, so that lower layers can open it.
  template<class W> void offer(TextView name) {
    offers_[Text(name)] = [](Session& session) -> Window& { return session.window<W>(); };
  }
  bool offers(TextView name) const { return offers_.count(Text(name)) != 0; }
  /// The names of all windows that are offered, in order of their codes.
  std::vector<Text> offered() const;
  /// The offered window of that name, loaded on first touch. Throws std::out_of_range if none is offered.
  Window& window(TextView name) { return offers_.at(Text(name))(*this); }
  /// Whether a check box of an offered window is ticked; False where the window is not offered.
  bool ticked(TextView window_name, TextView check_box);

  /// Asks the window whether it may go, runs its last handlers and takes it away. A call for a window that is on its
  /// way out already, or gone, does nothing.
  void unload(Window& window);
  bool is_loaded(const Window& window) const;

  void run_event(Window& window, const std::function<void()>& handler) override;
  void close_request(Window& window) override;

 private:
  struct Loaded {
    std::type_index type;
    std::unique_ptr<Window> window;
    int event_depth;
    bool unloading = false;
  };

  Window* loaded_window(std::type_index type) const;
  Window& adopt(std::type_index type, std::unique_ptr<Window> window);
  void take_away(Window& window);
  void run_guarded(const std::function<Text()>& place, const std::function<void()>& deed);
  void run_start_step(const std::function<void()>& step);
  Window* load_main_window(bool with_pictures);
  void prepare();
  void run_main_windows();
  void close_down();
  void bury_the_dead(int event_depth);

  Platform& platform_;
  std::map<Text, std::function<Window&(Session&)>> offers_;
  std::vector<std::unique_ptr<Loaded>> loaded_;
  std::vector<std::unique_ptr<Loaded>> unloaded_;
  int event_depth_ = 0;
};

/// Deletes the drawing reward's work file if there is one; a failure is ignored.
void delete_work_file(Platform& platform);

} // namespace cserko
