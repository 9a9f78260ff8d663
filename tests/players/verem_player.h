// Plays Tekergő: puts the letters of a picture side by side in the middle row, one after the other. What it wants is
// read from the board anew before each move.
#pragma once

#include "exercises/letters/frmverem.h"
#include "tests/players/exercise_player.h"

#include <optional>
#include <random>
#include <set>

namespace cserko {

class VeremPlayer : public ExercisePlayer {
 public:
  /// Of every `mistakes` games one begins with a turn that is not needed, 0 for none. After so many games won it waits
  /// until one is lost, 0 for never.
  VeremPlayer(const Session& session, Mode mode, int mistakes = 0, int games_until_loss = 0)
      : ExercisePlayer(session, u"frmverem", mode, mistakes), games_until_loss_(games_until_loss) {}

  /// Games that were given up and are over.
  int losses() const { return losses_; }

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  /// What to do next: turn the row or push a column, towards the right or down for +1.
  struct Move {
    int turn = 0;
    int column = 0;
    int push = 0;
    int cost = 0; ///< How far the next letter is from its place.
  };
  using Letters = std::vector<Text>;

  std::optional<Move> next_move(const frmverem& game) const;
  static std::optional<Move> move_for(const frmverem& game, const Letters& word);
  static std::optional<Move> fetch(const frmverem& game, const Text& letter, int place, int begin, int length);
  static std::optional<Move> fetch_from_column(const frmverem& game, const Text& letter, int place, int column);
  static std::optional<Move> bury(const frmverem& game, const Text& letter, int begin, int length);
  bool been_here(const frmverem& game);
  Move any_move();
  void do_move(frmverem& game, const Move& move, Hand& hand);

  int games_until_loss_;
  std::uint64_t game_serial_ = 0;
  int sets_before_ = 0;
  bool waits_ = false;
  int losses_ = 0;
  std::set<Text> boards_; ///< Since a picture came or went.
  int letters_ = 0;       ///< On the board then.
  int strays_ = 0;        ///< How often it was left by chance since.
  std::minstd_rand chance_;
  int astray_ = 0; ///< Moves that are still left to chance.
};

} // namespace cserko
