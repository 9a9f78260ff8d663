#include "tests/players/lóugrás_player.h"

#include "feedback/message_panels.h"
#include "tests/players/played_exercise.h"

#include <algorithm>
#include <optional>

namespace cserko {

namespace {

// How the child's way compares with the hidden path, counted in letters.
struct Progress {
  int walked = 0;
  int right = 0; ///< Of these, from the first on, those that lie on the path.
};

Progress progress(const frm_lóugrás& game) {
  const std::vector<Square>& way = game.út();
  const std::vector<Square>& path = game.megoldás();
  // The way begins behind its first entry and the start field, unless the game has not entered that.
  const std::size_t first = way.size() > 1 && way[1] == path[0] ? 2 : 1;
  Progress found;
  for (std::size_t i = first; i < way.size(); ++i) {
    ++found.walked;
    const std::size_t letter = i - first + 1;
    if (found.right == found.walked - 1 && letter < path.size() && way[i] == path[letter]) ++found.right;
  }
  return found;
}

// Fields that can be entered from that one.
std::vector<Square> ways_on(const frm_lóugrás& game, Square from) {
  std::vector<Square> found;
  game.betű.each([&](const Label& label) {
    const Square to{label.Index % frm_lóugrás::columns, label.Index / frm_lóugrás::columns};
    if (label.shown() && label.Enabled && to != from && game.is_move(from, to)) found.push_back(to);
  });
  return found;
}

// A field with another letter than the right one, from which most fields can be entered.
std::optional<Square> wrong_way(const frm_lóugrás& game, const Text& right_letter) {
  std::optional<Square> best;
  std::size_t most = 0;
  for (const Square to : ways_on(game, game.út().back())) {
    const std::size_t onward = ways_on(game, to).size();
    if (game.field(to).Caption == right_letter || (best && onward <= most)) continue;
    best = to;
    most = onward;
  }
  return best;
}

int complete_names(const frm_lóugrás& game) {
  int complete = 0;
  game.képnév.each([&](const Label& name) { complete += !name.Tag.empty() && name.Caption == name.Tag ? 1 : 0; });
  return complete;
}

} // namespace

bool LóugrásPlayer::play(Window& window, Hand& hand) {
  auto& game = dynamic_cast<frm_lóugrás&>(window);
  if (!game.has_puzzle()) return false;
  const auto [walked, right] = progress(game);
  const bool starts = walked == 0 && boards_astray_ > 0 && sets() % boards_astray_ == 0 && board_astray_ != sets();
  // What is entered where the start was not cannot be taken back.
  if (starts && game.lépésszám() == 1) {
    board_astray_ = sets();
    astray_ = true;
  }
  const Square next = game.megoldás()[static_cast<std::size_t>(std::min(walked + 1, int(game.megoldás().size()) - 1))];
  if (astray_) {
    const auto to = wrong_way(game, walked == 0 ? game.field(next).Caption : Text());
    if (to) {
      step_onto(game, *to, hand);
      return true;
    }
    astray_ = false;
  }
  if (walked > right) {
    if (take_back(game, hand)) mistake_made();
    return true;
  }
  if (mistake_due(sets() * frm_lóugrás::columns * frm_lóugrás::rows + walked)) {
    if (ask(game, hand)) return true;
    const auto to = wrong_way(game, game.field(next).Caption);
    if (to && game.lépésszám() > 0) {
      step_onto(game, *to, hand);
      return true;
    }
    forgo_mistake();
  }
  step_onto(game, next, hand);
  return true;
}

bool LóugrásPlayer::play_beside(Window& top, Hand&) {
  if (dynamic_cast<szövegüzenet*>(&top) == nullptr) return false;
  if (astray_) ++messages_;
  astray_ = false;
  return false; // it is closed as any other panel
}

// By keyboard the cursor comes nearer, until it is there and the field is entered.
bool LóugrásPlayer::step_onto(frm_lóugrás& game, Square square, Hand& hand) const {
  if (by_mouse()) {
    hand.click(game.field(square));
    return true;
  }
  const Square here = game.kurzor();
  if (here == square) {
    hand.key(square.row % 2 == 0 ? key::space : key::enter, shift::none);
    return true;
  }
  if (here.column != square.column) {
    hand.key(here.column < square.column ? key::right : key::left, shift::none);
  } else {
    hand.key(here.row < square.row ? key::down : key::up, shift::none);
  }
  return false;
}

// In turn by the button or its key, and by a click on the field on which it stands.
bool LóugrásPlayer::take_back(frm_lóugrás& game, Hand& hand) {
  if (game.lépésszám() % 2 != 0) return step_onto(game, game.út().back(), hand);
  if (by_mouse()) {
    hand.click(game.Command1);
  } else {
    hand.key(key::backspace, shift::none);
  }
  return true;
}

// Once on each board the hint, where it is allowed, and the first picture.
bool LóugrásPlayer::ask(frm_lóugrás& game, Hand& hand) {
  if (board_asked_ != sets()) {
    board_asked_ = sets();
    asked_ = 0;
  }
  ++asked_;
  if (asked_ == 1 && game.cmd_súgó.Enabled) {
    ++hints_;
    if (by_mouse()) {
      hand.click(game.cmd_súgó);
    } else {
      hand.key('S', shift::none);
    }
    return true;
  }
  if (asked_ > 2) return false;
  asked_ = 2;
  ++helps_;
  if (by_mouse()) {
    hand.click(game.kép[0]);
  } else {
    hand.key('1', shift::none);
  }
  return true;
}

namespace {

constexpr int pictures = 2;

// A board of six rows and columns, the hint allowed.
void prepare(Files& files) {
  write_user_settings(files, u"lóugrás.ini",
                      " 6 \r\n 6 \r\n 12 \r\n " + std::to_string(pictures) +
                          " \r\n 2 \r\n 0 \r\n 1 \r\n\".\"\r\n 0 \r\n 1 \r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\n");
}

// Every step that was wrong was taken back.
int heard_wrong(const Ears& ears) { return ears.heard(u"branch.wav"); }

const Played played{
    {.name = "knights_jump",
     .window = u"frm_lóugrás",
     .tasks = pictures,
     .make = make_player<LóugrásPlayer>,
     .gathered = [](Window& window, const Player&) { return complete_names(dynamic_cast<frm_lóugrás&>(window)); },
     .heard_wrong = heard_wrong,
     .prepare = prepare}};

} // namespace

} // namespace cserko
