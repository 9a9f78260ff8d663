#include "core/frm_főablak.h"
#include "feedback/frm_rajz.h"
#include "feedback/frm_színezőmegnyitás.h"
#include "feedback/message_panels.h"
#include "platform/input.h"
#include "tests/tour/tour_hand.h"
#include "tests/tour/window_stops.h"

namespace cserko::tour {

namespace {

constexpr TextView drawing = u"frm_rajz";
constexpr TextView pages = u"frm_színezőmegnyitás";

class Sitting {
 public:
  explicit Sitting(Guide& guide) : guide_(guide) {}

  void act(std::function<void(frm_rajz&)> deed) {
    guide_.act(drawing, [deed = std::move(deed)](Window& window) { deed(static_cast<frm_rajz&>(window)); });
  }
  void look(const std::string& name) { guide_.picture(drawing, name); }
  void choose(int tool, int swatch) {
    act([tool, swatch](frm_rajz& board) {
      input::click(board.cmd_művelet[tool]);
      board.szín.Click(swatch);
    });
  }

  /// Presses at the first place and moves along the others, parts of the paper's sides; lets go unless `held`.
  void draw(const std::vector<Point>& path, bool held = false) {
    act([path, held](frm_rajz& board) {
      const auto event = [&](Point part) {
        return MouseEvent{MouseButton::Left, shift::none, part.x * board.kép.Width, part.y * board.kép.Height};
      };
      input::mouse_down(board.kép, event(path.front()));
      for (const Point part : path) input::mouse_move(board.kép, event(part));
      if (!held) input::mouse_up(board.kép, event(path.back()));
    });
  }

 private:
  Guide& guide_;
};

void draw_with_tools(Sitting& visit) {
  visit.look("drawing-empty");
  visit.choose(frm_rajz::pen, 13);
  visit.draw({{0.05, 0.5}, {0.1, 0.3}, {0.15, 0.6}, {0.2, 0.3}, {0.25, 0.6}, {0.3, 0.2}});
  visit.choose(frm_rajz::rectangle, 4);
  visit.draw({{0.4, 0.2}, {0.9, 0.9}});
  visit.draw({{0.45, 0.3}, {0.8, 0.7}}, true);
  visit.look("drawing-rectangle-stretched");
  visit.draw({{0.8, 0.7}});
  visit.choose(frm_rajz::straight_line, 10);
  visit.draw({{0.1, 0.9}, {0.35, 0.6}}, true);
  visit.look("drawing-line-stretched");
  visit.choose(frm_rajz::fill, 25);
  visit.draw({{0.6, 0.85}});
  visit.look("drawing-filled");
  visit.choose(frm_rajz::eraser, 25);
  visit.act([](frm_rajz& board) {
    board.vonalvastagság.Click(4);
    input::mouse_move(board.kép,
                      MouseEvent{MouseButton::None, shift::none, 0.7 * board.kép.Width, 0.85 * board.kép.Height});
  });
  visit.look("drawing-eraser");
}

void draw_by_keyboard(Sitting& visit) {
  visit.act([](frm_rajz&) {
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_Right, Qt::Key_Space, Qt::Key_Right, Qt::Key_Down}) press_key(key);
  });
  visit.look("drawing-by-keyboard");
  visit.act([](frm_rajz& board) { input::focus(board.szín[25]); });
  visit.look("drawing-focus-on-colour");
  visit.act([](frm_rajz&) { touch_mouse(); });
}

void colour_a_page(Guide& guide, Sitting& visit) {
  visit.act([](frm_rajz& board) { input::click(board.cmd_színező); });
  guide.picture(pages, "colouring-pages");
  guide.act(pages, [](Window& window) { input::select(static_cast<frm_színezőmegnyitás&>(window).File1, 3); });
  guide.picture(pages, "colouring-page-chosen");
  guide.act(pages, [](Window& window) { input::click(static_cast<frm_színezőmegnyitás&>(window).cmd_ok); });
  visit.look("colouring-page");
  visit.choose(frm_rajz::fill, 29);
  visit.draw({{0.03, 0.03}});
  visit.choose(frm_rajz::fill, 21);
  visit.draw({{0.5, 0.5}});
  visit.choose(frm_rajz::fill, 24);
  visit.draw({{0.5, 0.3}});
  visit.look("colouring-page-coloured");
}

// A later visit: the drawing of the first one is there to be taken up, and a step may be taken again.
void take_up_earlier(Sitting& visit) {
  visit.look("drawing-earlier-offered");
  visit.choose(frm_rajz::rectangle, 4);
  visit.draw({{0.2, 0.2}, {0.7, 0.7}});
  visit.act([](frm_rajz& board) { input::click(board.cmd_undo); });
  visit.look("drawing-step-taken-back");
  visit.act([](frm_rajz& board) { input::click(board.cmd_redo); });
  visit.act([](frm_rajz& board) { input::click(board.cmd_earlier); });
  visit.look("drawing-earlier-taken");
}

void make_own_page(Guide& guide, Sitting& visit) {
  visit.act([](frm_rajz& board) {
    input::click(board.Command1);
    input::click(board.cmd_színező);
  });
  guide.act(pages, [](Window& window) {
    auto& dialog = static_cast<frm_színezőmegnyitás&>(window);
    input::select(dialog.File1, dialog.File1.count() - 1);
  });
  guide.picture(pages, "colouring-page-of-ones-own");
  guide.act(pages, [](Window& window) { input::click(static_cast<frm_színezőmegnyitás&>(window).CancelButton); });
}

// The two minutes of a reward are over: the board goes with the message.
void let_time_run_out(Guide& guide, Sitting& visit) {
  visit.act([](frm_rajz& board) {
    board.percek = 1;
    board.Timer2.Tick();
  });
  guide.picture(u"frm_szövegüzenet", "drawing-time-is-over");
  guide.act(u"frm_szövegüzenet", [](Window& window) { input::click(static_cast<frm_szövegüzenet&>(window).cmd_ok); });
}

void lay_out(Guide& guide, Session& /*session*/, WatchedPlatform& /*platform*/) {
  guide.for_help("drawing-filled", "drawing");
  Sitting visit(guide);
  const auto open = [&guide] {
    guide.act(main_window, [](Window& window) { input::click(static_cast<frm_főablak&>(window).mnu_jutalom_rajz); });
  };
  open();
  draw_with_tools(visit);
  draw_by_keyboard(visit);
  colour_a_page(guide, visit);
  guide.act(drawing, [](Window& window) { input::close(window); });
  open();
  take_up_earlier(visit);
  make_own_page(guide, visit);
  let_time_run_out(guide, visit);
}

const Stops stops{drawing, lay_out};

} // namespace

} // namespace cserko::tour
