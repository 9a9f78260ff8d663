#include "tests/players/verem_player.h"

#include "tests/players/played_exercise.h"

#include <algorithm>
#include <cstdlib>

namespace cserko {

namespace {

constexpr int columns = frmverem::columns;
constexpr int middle = frmverem::middle;
constexpr int shortest_stray = 3; // moves
constexpr int most_doublings = 7;

// The way round that is shorter, towards the right above 0.
int shorter_turn(int from, int to) {
  const int right = (to - from + columns) % columns;
  return right <= columns / 2 ? right : right - columns;
}

const Text& in_row(const frmverem& game, int place) { return game.cell((place + columns) % columns, middle).Caption; }

// Whether the whole column stays on the board when the row comes into the middle.
bool can_come(const frmverem& game, int column, int row) {
  int top = middle;
  while (top > 0 && !game.empty(column, top - 1)) --top;
  int bottom = middle;
  while (bottom < frmverem::rows - 1 && !game.empty(column, bottom + 1)) ++bottom;
  return row >= top && row <= bottom && top + middle - row >= 0 && bottom + middle - row < frmverem::rows;
}

} // namespace

bool VeremPlayer::play(Window& window, Hand& hand) {
  auto& game = dynamic_cast<frmverem&>(window);
  // The game that was lost went with its window.
  if (const std::uint64_t serial = game.betű[0].serial(); serial != game_serial_) {
    if (waits_) ++losses_;
    game_serial_ = serial;
    sets_before_ = sets();
    waits_ = false;
  }
  waits_ = games_until_loss_ > 0 && sets() - sets_before_ >= games_until_loss_;
  // What slides is not yet where it will stand: a move that is chosen now is chosen for another board.
  if (waits_ || !game.at_rest()) return false;
  if (mistake_due(sets())) {
    mistake_made();
    do_move(game, {.turn = 1}, hand);
    return true;
  }
  if (been_here(game)) astray_ = shortest_stray << std::min(++strays_, most_doublings);
  const bool strays = astray_ > 0;
  if (strays) --astray_;
  const std::optional<Move> move = strays ? any_move() : next_move(game);
  do_move(game, move ? *move : Move{.turn = 1}, hand);
  return true;
}

// What looks best here may lead there and back again for ever. A board that was seen before is left by chance, the
// farther the more often that happens before a picture goes.
bool VeremPlayer::been_here(const frmverem& game) {
  if (const int letters = game.letters_on_board(); letters != letters_) {
    letters_ = letters;
    strays_ = 0;
    boards_.clear();
  }
  Text board = to_text(game.kurzor());
  game.betű.each([&](const Label& letter) { board += letter.Caption + u","; });
  return !boards_.insert(board).second;
}

VeremPlayer::Move VeremPlayer::any_move() {
  const int way = chance_() % 2 == 0 ? 1 : -1;
  if (chance_() % 2 == 0) return {.turn = way};
  return {.column = static_cast<int>(chance_() % columns), .push = way};
}

void VeremPlayer::do_move(frmverem& game, const Move& move, Hand& hand) {
  const Label& cell = game.cell(0, 0);
  if (by_mouse()) {
    if (move.turn != 0) {
      hand.drag(game.cell(move.turn > 0 ? 4 : 5, middle), move.turn * cell.Width, 0);
    } else {
      hand.drag(game.cell(move.column, middle), 0, move.push * cell.Height);
    }
  } else if (move.turn != 0) {
    hand.key(move.turn > 0 ? 'X' : 'Y', shift::none);
  } else if (game.kurzor() != move.column) {
    hand.key(shorter_turn(game.kurzor(), move.column) > 0 ? key::right : key::left, shift::none);
  } else {
    hand.key(move.push > 0 ? key::down : key::up, shift::none);
  }
}

// For the first picture that can be solved, or for a later one after each time that this has led nowhere.
std::optional<VeremPlayer::Move> VeremPlayer::next_move(const frmverem& game) const {
  std::vector<Move> moves;
  game.kép.each([&](const PictureBox& slot) {
    if (static_cast<int>(moves.size()) > strays_ || !slot.Visible) return;
    kszöveg word;
    word.szövegnyelv(game.nyelv());
    word.value(slot.Tag);
    Letters letters;
    for (int i = 1; i <= word.MAGYARBETŰKSZÁMA(); ++i) letters.push_back(word.szóbetűje(int(i)));
    if (letters.size() > columns) return;
    if (const auto move = move_for(game, letters)) moves.push_back(*move);
  });
  if (moves.empty()) return std::nullopt;
  return moves[static_cast<std::size_t>(strays_) % moves.size()];
}

std::optional<VeremPlayer::Move> VeremPlayer::move_for(const frmverem& game, const Letters& word) {
  const auto length = static_cast<int>(word.size());
  std::optional<Move> best;
  int best_begun = -1;
  for (int begin = 0; begin < columns; ++begin) {
    int begun = 0;
    while (begun < length && in_row(game, begin + begun) == word[static_cast<std::size_t>(begun)]) ++begun;
    if (begun < best_begun) continue;
    std::optional<Move> move;
    if (begun == length) {
      move = Move{.turn = 1}; // it lies across the ends of the row
    } else {
      const Text& letter = word[static_cast<std::size_t>(begun)];
      move = fetch(game, letter, (begin + begun) % columns, begin, begun);
    }
    if (!move || (begun == best_begun && best && best->cost <= move->cost)) continue;
    best = move;
    best_begun = begun;
  }
  return best;
}

// Brings a letter to a place of the row, where the letters from `begin` on are to stay side by side.
std::optional<VeremPlayer::Move> VeremPlayer::fetch(const frmverem& game, const Text& letter, int place, int begin,
                                                    int length) {
  std::optional<Move> best;
  for (int column = 0; column < columns; ++column) {
    const auto move = fetch_from_column(game, letter, place, column);
    if (move && (!best || move->cost < best->cost)) best = move;
  }
  return best ? best : bury(game, letter, begin, length);
}

std::optional<VeremPlayer::Move> VeremPlayer::fetch_from_column(const frmverem& game, const Text& letter, int place,
                                                                int column) {
  std::optional<Move> best;
  const int turn = shorter_turn(place, column);
  for (int row = 0; row < frmverem::rows; ++row) {
    if (row == middle || game.cell(column, row).Caption != letter || !can_come(game, column, row)) continue;
    const int way = middle - row;
    const int cost = std::abs(turn) + std::abs(way);
    if (best && best->cost <= cost) continue;
    best = Move{
        .turn = turn == 0 ? 0 : turn / std::abs(turn), .column = column, .push = way / std::abs(way), .cost = cost};
  }
  return best;
}

// A letter that lies elsewhere in the row is put into a column first.
std::optional<VeremPlayer::Move> VeremPlayer::bury(const frmverem& game, const Text& letter, int begin, int length) {
  constexpr int detour = 50;
  for (int from = 0; from < columns; ++from) {
    const bool kept = (from - begin + columns) % columns < length;
    if (kept || in_row(game, from) != letter) continue;
    for (const int push : {1, -1}) {
      if (!game.empty(from, middle - push) && game.empty(from, push > 0 ? frmverem::rows - 1 : 0))
        return Move{.column = from, .push = push, .cost = detour};
    }
    return Move{.turn = 1, .cost = detour};
  }
  return std::nullopt;
}

namespace {

// Five pictures, a second to look at a solved word, and time enough between two new pictures.
void prepare(Files& files) {
  write_user_settings(files, u"verem.ini", " 8 \r\n 5 \r\n 5 \r\n 1 \r\n 2 \r\n 0 \r\n 0 \r\n");
}

// A game is one task: it is well begun when a picture is gone.
int gathered(Window& window, const Player&) {
  int pictures = 0;
  dynamic_cast<frmverem&>(window).kép.each([&](const PictureBox& slot) { pictures += slot.Visible ? 1 : 0; });
  return pictures < 5 ? 1 : 0;
}

const Played played{{.name = "winder",
                     .window = u"frmverem",
                     .tasks = 1,
                     .make = make_player<VeremPlayer>,
                     .gathered = gathered,
                     .prepare = prepare}};

} // namespace

} // namespace cserko
