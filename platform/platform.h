// What the suite needs of a machine. Everything that a test must control goes through here.
#pragma once

#include "platform/canvas.h"
#include "platform/dialogs.h"
#include "platform/media.h"
#include "platform/printing.h"
#include "platform/window.h"

#include <optional>
#include <string>

namespace cserko {

/// A file operation that failed; the text names the operation and the path.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Files by the system's own paths: backslashes, the fixed root `c:\pomzu\`, names compared without case.
class Files {
 public:
  virtual ~Files() = default;
  /// Bare names of the files of a folder that match a pattern such as `c:\…\kepek\*.wms`, in the order in which the
  /// file system lists them. A folder that is not there has none.
  virtual std::vector<Text> list(const Text& pattern) const = 0;
  virtual bool exists(const Text& path) const = 0;
  /// The whole content, none if the file cannot be read.
  virtual std::optional<std::string> read(const Text& path) const = 0;
  /// Replaces the file in one step: a reader sees the old content or the new one. Throws FileError, the old file whole.
  virtual void write(const Text& path, std::string_view bytes) = 0;
  /// Makes one folder; it is fine if it exists. Throws FileError.
  virtual void make_folder(const Text& path) = 0;
  /// Deletes a file. Throws FileError.
  virtual void remove(const Text& path) = 0;
};

struct TimeOfDay {
  int hour = 0;
  int minute = 0;
};

enum class ProcessWindow : std::uint8_t { Normal, Maximized, MinimizedWithFocus };

/// What a machine tells the suite. The session is the host; every event enters through it.
class Host {
 public:
  virtual ~Host() = default;
  /// Runs a handler as one event of the window: what it throws ends that handler and no more.
  virtual void run_event(Window& window, const std::function<void()>& handler) = 0;
  /// The user asks to close a window.
  virtual void close_request(Window& window) = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;

  /// Set once, by the session, before any window exists; null again when it ends.
  Host* host = nullptr;

  /// Told by the host that an event of the suite begins; a machine may watch over how much each of them does.
  virtual void event_begins() {}

  // Time and chance.
  /// Milliseconds since a fixed moment; never goes back.
  virtual std::int64_t now() const = 0;
  virtual TimeOfDay time_of_day() const = 0;
  /// How long the display shows one frame, ms.
  virtual double display_frame() const { return 1000.0 / 60; }
  /// Seeds the generator from the clock.
  virtual void seed_random() = 0;
  /// The next random number in [0, 1).
  virtual double random() = 0;

  // Windows. A machine fires the timers of all attached windows, shown or not.
  virtual void attach(Window& window) = 0;
  virtual void detach(Window& window) = 0;
  /// Shows a window and returns when it is hidden or unloaded; other windows get no input meanwhile.
  virtual void show_modal(Window& window) = 0;
  virtual void show(Window& window) = 0;
  virtual void hide(Window& window) = 0;
  virtual void bring_to_front(Window& window) = 0;
  /// Whether a window has the user's attention: it is at the front, and no dialog of the system stands before it.
  virtual bool is_active(const Window& window) const = 0;
  /// Shows what has changed at once.
  virtual void redraw(Window& window) = 0;
  /// Redraws and waits for the next display frame: the step of an animation.
  virtual void next_frame(Window& window) = 0;
  /// The same, and lets events happen meanwhile; returns before the frame is over once the condition holds.
  virtual void live_frame(Window& window, const std::function<bool()>& until) = 0;
  /// Lets events happen until the condition holds.
  virtual void pump_events(const std::function<bool()>& until) = 0;
  /// The usable screen, twips.
  virtual Size screen_size() const = 0;
  /// The whole screen, panels and bars of the desktop included, twips; its corner counts from that of the usable one.
  virtual Rect whole_screen() const = 0;
  /// What frame, title bar and menu bar add to the client area of a window, twips.
  virtual Size chrome(const Window& window) const = 0;

  // Text and pictures.
  /// Extent of a text, twips; carriage returns break lines.
  virtual Size measure(const Font& font, TextView text) const = 0;
  /// Extent of a text that is wrapped at a width, twips.
  virtual Size measure_wrapped(const Font& font, TextView text, double width) const = 0;
  /// The picture of a file, null if there is none that can be drawn.
  virtual PicturePtr load_picture(const Text& path) = 0;
  /// The picture that a file's content holds, in its own size; none if it is none.
  virtual std::optional<PixelImage> decode_picture(std::string_view bytes) const = 0;
  virtual std::unique_ptr<Canvas> make_canvas(Size size) = 0;
  /// The picture on the clipboard, none if there is none.
  virtual std::optional<PixelImage> clipboard_image() const = 0;

  // The system's own dialogs and the printer.
  virtual Dialogs& dialogs() = 0;
  virtual Printing& printing() = 0;

  // Sound, files, other programs.
  virtual Media& media() = 0;
  virtual Files& files() = 0;
  /// The application folder with a trailing backslash.
  virtual Text application_folder() const = 0;
  /// Starts a program by its command line and does not wait. Throws std::runtime_error if it cannot be started.
  virtual void start_process(const Text& command_line, ProcessWindow window) = 0;
  /// Whether a program lies at a path of the machine itself.
  virtual bool program_exists(const Text& /*path*/) const { return false; }
  /// A text or number of the local machine's registry as text; none where there is no such value, or no registry.
  virtual std::optional<Text> registry_value(const Text& /*key*/, const Text& /*name*/) const { return std::nullopt; }
  /// The platform's own message box with one button.
  virtual void message_box(const Text& text) = 0;
  /// Tells of a failure that no panel of the suite is meant for; the program goes on.
  virtual void report_error(const Text& text) = 0;
  /// Ends the program: no more events, all modal shows return, `ended` holds.
  virtual void end_process() = 0;
  virtual bool ended() const = 0;
};

} // namespace cserko
