// cserko-x11-hands: what fingers, a mouse and a keyboard do to windows of the real machine, by events of the X server
// and among the frames of a window manager. Exit status 1 and a line that says what did not happen.
#include "feedback/feedback.h"
#include "feedback/frm_dobszerkó.h"
#include "tests/x11/watched_platform.h"
#include "tests/x11/x_hand.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace {

using namespace cserko;

constexpr int patience = 15000; // ms for each thing that is waited for

void wait_for(const std::string& what, const std::function<bool()>& condition) {
  const QDeadlineTimer deadline(patience);
  while (!condition()) {
    if (deadline.hasExpired()) throw std::runtime_error("waited in vain: " + what);
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }
}

void expect(bool holds, const std::string& what) {
  if (!holds) throw std::runtime_error("does not hold: " + what);
}

/// Runs handlers as the session does, and closes what is to be closed.
class PlainHost : public Host {
 public:
  void run_event(Window&, const std::function<void()>& handler) override { handler(); }
  void close_request(Window& window) override { window.platform().hide(window); }
};

/// A drawing board, a list and a frame that can be moved and resized.
class Desk : public Window {
 public:
  explicit Desk(Platform& platform) : Window(platform, u"desk", {7500, 6000}, u"Asztal") {
    Border = WindowBorder::Sizable;
    Left = 3000;
    Top = 2250;
    set_inner_size(design_size());
    list.MultiSelect = true;
    list.Items = {u"a-á", u"b-d", u"c-cs", u"f-v"};
    board.MouseDown = board.MouseMove = board.MouseUp = [this](const MouseEvent& event) {
      if (event.button == MouseButton::None) {
        ++hovers;
      } else {
        events.push_back(event);
      }
    };
    platform.attach(*this);
  }
  ~Desk() override { platform().detach(*this); }
  void Resize() override { ++resizes; }

  PictureBox board{*this, u"board", {300, 300, 3600, 3600}};
  ListBox list{*this, u"list", {4200, 300, 3000, 3000}};
  std::vector<MouseEvent> events; ///< With a button held, or pressed, or let go.
  int hovers = 0;
  int resizes = 0;
};

class Hands {
 public:
  explicit Hands(WatchedPlatform& platform)
      : platform_(platform),
        hand_([&platform](const Element& element, Point point) { return platform.spot_of(element, point); }) {}

  void play_drum() {
    Session session(platform_);
    install_feedback(session);
    auto& drum = session.window<frm_dobszerkó>();
    drum.Timer_ablakbezárás.Enabled = false;
    platform_.show(drum);
    settle(drum);
    press('K', shift::none);
    expect(drum.Label1.Caption == u"K", "a letter strikes its drum");
    press(key::comma, shift::none);
    expect(drum.Label1.Caption == u",", "the comma strikes the drum");
    press('B', shift::shift);
    expect(drum.Label1.Caption == u"B", "a letter with Shift strikes its drum");
    press(key::comma, shift::shift);
    expect(drum.Label1.Caption == u",", "the comma with Shift strikes the drum");
    press('A', shift::none);
    for (const int digit : {'1', '5', '7', '9'}) press(digit, shift::shift);
    press(key::period, shift::shift);
    expect(drum.Label1.Caption == u"A", "no sign strikes a drum");
    session.unload(drum);
  }

  void at_the_desk() {
    PlainHost host;
    platform_.host = &host;
    Desk desk(platform_);
    platform_.show(desk);
    settle(desk);
    draw(desk);
    draw_quickly(desk);
    choose(desk);
    move(desk);
    resize(desk);
    platform_.hide(desk);
    platform_.host = nullptr;
  }

 private:
  void settle(Window& window) {
    wait_for(to_utf8(window.Name) + " is at the front", [&] { return platform_.settled(window); });
    wait_for(to_utf8(window.Name) + " stands", [&] { return platform_.view_of(window)->settled(); });
  }

  void finish() {
    wait_for("the hand is done", [&] { return hand_.idle(); });
    expect(hand_.lost() == 0, "every press reaches a window");
  }

  void press(int code, int shift) {
    hand_.key(code, shift);
    finish();
  }

  void draw(Desk& desk) {
    desk.events.clear();
    hand_.draw(desk.board, {{300, 300}, {900, 1500}, {1500, 600}}, MouseButton::Right);
    finish();
    expect(desk.events.size() >= 4 && desk.events.front().button == MouseButton::Right, "the right button draws");
    expect(desk.events.back().button == MouseButton::Right, "and is let go");
    const auto is_at = [](const MouseEvent& event, double x, double y) {
      return std::abs(event.x - x) < 2 * twips_per_pixel && std::abs(event.y - y) < 2 * twips_per_pixel;
    };
    expect(is_at(desk.events.front(), 300, 300) && is_at(desk.events.back(), 1500, 600), "from end to end");
  }

  // All of it happens while the program is busy with something else.
  void draw_quickly(Desk& desk) {
    constexpr int points = 200;
    desk.hovers = 0;
    const Spot spot = platform_.spot_of(desk.board, {150, 150});
    const QPoint start = spot.window->mapToGlobal(spot.place);
    input_.move(start);
    wait_for("the pointer is on the board", [&] { return desk.hovers > 0; });
    desk.events.clear();
    input_.button(1, true);
    wait_for("the press is heard", [&] { return !desk.events.empty(); });
    for (int i = 1; i <= points; ++i) input_.move(start + QPoint(i, i % 2 == 0 ? 0 : 40));
    input_.button(1, false);
    wait_for("the release is heard",
             [&] { return desk.events.back().button == MouseButton::Left && desk.events.size() > 2 && released(); });
    int turns = 0;
    for (std::size_t i = 2; i < desk.events.size(); ++i) turns += desk.events[i].y != desk.events[i - 1].y ? 1 : 0;
    expect(turns >= points - 2, "each of " + std::to_string(points) + " points arrives: " + std::to_string(turns));
  }

  static bool released() { return QGuiApplication::mouseButtons() == Qt::NoButton; }

  void choose(Desk& desk) {
    const double line = platform_.measure(desk.list.Font, u"Á").height;
    const auto tap = [&](int row) {
      hand_.draw(desk.list, {{300, line * (row + 0.6)}}, MouseButton::Left);
      finish();
    };
    tap(0);
    tap(2);
    expect(desk.list.selection() == std::vector<bool>({true, false, true, false}), "two taps select two entries");
    tap(0);
    expect(desk.list.selection() == std::vector<bool>({false, false, true, false}), "a tap takes a selection back");
    press(key::end, shift::shift);
    expect(desk.list.selected_count() == 0, "Shift takes the selection of all on the way");
    press(key::up, shift::none);
    press(key::space, shift::none);
    press('A', shift::none);
    expect(desk.list.selection() == std::vector<bool>({false, false, true, false}), "keys select");
  }

  // A window manager looks at the mouse now and then: what it is to take for a pull must be as slow as one.
  void pull(QPoint from, QPoint way) {
    constexpr int steps = 8;
    constexpr int pace = 15; // ms
    const auto rest = [] {
      for (const QDeadlineTimer end(pace); !end.hasExpired();) QCoreApplication::processEvents();
    };
    input_.move(from);
    rest();
    input_.button(1, true);
    for (int step = 1; step <= steps; ++step) {
      rest();
      input_.move(from + way * step / steps);
    }
    rest();
    input_.button(1, false);
  }

  double twips(int pixels) const { return pixels / platform_.fonts().scale(); }

  void move(Desk& desk) {
    const WindowView& view = *platform_.view_of(desk);
    const double left = desk.Left;
    expect(left == 3000 && desk.Top == 2250, "being shown is no move");
    const QRect frame = view.frameGeometry();
    expect(frame.height() > view.height(), "the window has a title bar");
    pull(frame.topLeft() + QPoint(frame.width() / 2, (frame.height() - view.height()) / 2), {80, 40});
    wait_for("the move reaches the window", [&] { return std::abs(desk.Left - left - twips(80)) < twips(3); });
    expect(std::abs(desk.Top - 2250 - twips(40)) < twips(3), "in both directions");
    expect(desk.resizes == 0, "a move is no other size");
    // Shown again it stands where it was left and creeps nowhere.
    const QPoint place = view.pos();
    const double kept = desk.Left;
    for (int time = 0; time < 3; ++time) {
      platform_.hide(desk);
      platform_.show(desk);
      // A window manager may leave the keyboard where it was: nobody has asked this program for a window.
      wait_for("the window stands again", [&] { return platform_.view_of(desk)->settled(); });
      expect(desk.Left == kept && (view.pos() - place).manhattanLength() <= 1,
             "a window shown again stays in its place");
    }
  }

  void resize(Desk& desk) {
    const WindowView& view = *platform_.view_of(desk);
    const double width = desk.Width;
    const double height = desk.Height;
    pull(view.frameGeometry().bottomRight(), {60, 50});
    wait_for("the new size reaches the window",
             [&] { return desk.Width > width + twips(40) && desk.Height > height + twips(30); });
    expect(desk.resizes > 0, "another size is told");
    expect(std::abs(desk.inner_width() - twips(view.width())) < twips(2), "as large as it is on the screen");
  }

  WatchedPlatform& platform_;
  XHand hand_;
  XInput input_;
};

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  try {
    WatchedPlatform platform;
    Hands hands(platform);
    hands.at_the_desk();
    hands.play_drum();
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
