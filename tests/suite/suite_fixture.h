// The whole suite on the headless machine, with a data pack that is written down in the test: records, sounds and
// pictures in memory, a person at the screen who is the test itself.
#pragma once

#include "core/frame.h"
#include "core/session.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "platform/headless/hand.h"
#include "platform/headless/headless_platform.h"
#include "tests/suite/memory_pack.h"

#include <gtest/gtest.h>

namespace cserko {

/// What a window of the test itself looks like: an empty one with a button, for places where the suite opens a window
/// that it is offered by name.
class PlainWindow : public Window {
 public:
  PlainWindow(Session& session, TextView name, Size design = {3000, 2000})
      : Window(session.platform(), name, design, name) {}
};

/// The drawing reward as the suite knows it: by name alone.
struct DrawingWindow : PlainWindow {
  explicit DrawingWindow(Session& session) : PlainWindow(session, u"frm_rajz") {}
  Timer Timer2{*this, u"Timer2", 120000};
};

/// A window whose load handler fails.
struct UnloadableWindow : PlainWindow {
  explicit UnloadableWindow(Session& session) : PlainWindow(session, u"unloadable") {}
  void Load() override { throw std::runtime_error("the window does not load"); }
};

/// Offers an empty window under the name of each exercise.
void offer_stand_ins(Session& session);

/// The headless machine with a diary of what the suite does, in order: windows, media commands, seedings, programs.
class DiaryPlatform : public HeadlessPlatform {
 public:
  DiaryPlatform();
  /// Entries such as "load frm_cserkó", "modal frm_cserkó", "play hang ", "seed", "write c:\\…", "remove c:\\…", "end".
  const std::vector<std::string>& diary();
  /// The entries that begin with one of the given words, in order.
  std::vector<std::string> diary(std::initializer_list<std::string_view> beginnings);
  int count(std::string_view entry);

  /// Asking for the whole screen fails, and with it the loading of the backdrop.
  bool screen_fails = false;

  Rect whole_screen() const override;
  void seed_random() override;
  void attach(Window& window) override;
  void detach(Window& window) override;
  void show(Window& window) override;
  void show_modal(Window& window) override;
  void hide(Window& window) override;
  void start_process(const Text& command_line, ProcessWindow window) override;
  void end_process() override;

 private:
  void note(const std::string& entry);

  std::vector<std::string> diary_;
  std::size_t heard_ = 0;
};

class SuiteTest : public ::testing::Test {
 protected:
  SuiteTest();
  ~SuiteTest() override;
  /// Everything that was told to happen must have happened, and nothing else must have failed.
  void TearDown() override;
  /// How many error reports the test expects by its end.
  std::size_t expected_errors = 0;

  // The pack.

  /// Puts a record with its picture into the pack; the first one has the index 0.
  void put_word(const Word& word);
  void put_words(std::initializer_list<TextView> names);
  /// Puts sounds of that name into the folder of the event sounds.
  void put_sounds(std::initializer_list<TextView> names);
  void put_app_file(TextView path, TextView content = u"x");
  /// A settings file of the user, its lines given with CR LF behind each.
  void put_settings(TextView name, std::initializer_list<TextView> lines);
  /// The bytes of a file, "(none)" if there is no such file.
  std::string file(TextView path) const;
  std::string settings(TextView name) const { return file(Text(user_folder) + Text(name)); }

  // The suite.

  /// Puts the suite together and loads the records that were put so far. Not part of `Main`.
  Session& start();
  /// Puts the suite together without loading anything.
  Session& assemble();
  Session& session() { return *session_; }
  void end_session() { session_.reset(); }

  template<class W> W& load() { return session().window<W>(); }
  /// Loads a window and shows it to the person, who may then touch it.
  template<class W> W& open() {
    W& window = load<W>();
    machine.show(window);
    return window;
  }

  /// The person chooses whatever is `wanted` in the menus of a window, which is asked for anew each time.
  static void choose_in_menus(const std::function<Window&()>& window,
                              const std::function<bool(const Element& entry)>& wanted);

  /// What the person does when the next window is shown modally. Several calls are for several windows in turn.
  void then(const std::function<void(Window& shown)>& deed) { machine.script.push_back(deed); }
  /// The same for a window of a known class.
  template<class W> void then_in(const std::function<void(W& shown)>& deed) {
    then([deed](Window& shown) {
      auto* window = dynamic_cast<W*>(&shown);
      if (window == nullptr) throw std::logic_error("another window than expected: " + to_utf8(shown.Name));
      deed(*window);
    });
  }
  /// Presses the button of the next message panel and keeps what it said.
  void then_close_message();
  /// What the last closed message panel said, in UTF-8.
  std::string message;
  int messages_shown = 0;

  // What was heard.

  /// All media commands since the last call, in UTF-8, one a line.
  std::string commands();
  void forget_commands() { heard_ = machine.media().commands.size(); }

  /// A random number that makes the whole part of (random × n) the given number.
  static double drawing(double number, double n) { return (number + 0.5) / n; }
  /// A random number by which the draw of a record hits the index.
  double record(int index) { return drawing(index, session().képek.képszám); }

  // What it looks like.

  /// Expects a loaded window to be as large as its design that was scaled to that share of the screen.
  template<class W> void expect_share_of_screen(const W& window, double share) {
    W model(session());
    model.set_inner_size(model.design_size());
    ablak_méretezés(model, share);
    EXPECT_DOUBLE_EQ(window.Width, model.Width) << to_utf8(window.Name);
    EXPECT_DOUBLE_EQ(window.Height, model.Height) << to_utf8(window.Name);
  }
  /// Expects a caption at the size at which it first takes more than nine tenths of its place, `points` less.
  void expect_fitted(const Element& element, double points = 0);

  DiaryPlatform machine;

 private:
  std::optional<Session> session_;
  int records_ = 0;
  std::size_t heard_ = 0;
};

/// Texts in UTF-8, so that a failing test prints them.
inline std::string utf8(TextView text) { return to_utf8(text); }

/// Place and size of an element, for comparisons.
inline Rect place_of(const Element& element) { return {element.Left, element.Top, element.Width, element.Height}; }

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.left << ", " << rect.top << ", " << rect.width << " x " << rect.height;
}
inline void PrintTo(const Point& point, std::ostream* out) { *out << point.x << ", " << point.y; }
inline void PrintTo(const Size& size, std::ostream* out) { *out << size.width << " x " << size.height; }

/// What a canvas of the headless machine was told to draw.
const RecordedCanvas& drawn(PictureBox& box);

} // namespace cserko
