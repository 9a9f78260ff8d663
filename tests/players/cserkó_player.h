// Plays Scrambled word: from the main window into the exercise, through puzzle after puzzle.
#pragma once

#include "exercises/letters/frm_cserkó.h"
#include "tests/players/player.h"

#include <map>
#include <set>

namespace cserko {

class CserkóPlayer : public Player {
 public:
  /// Of every `mistakes` puzzles one gets a wrong answer first and has its helps tried; 0 for none. The records of the
  /// session must be loaded.
  CserkóPlayer(const Session& session, Mode mode, int mistakes = 0);

  bool step(Window& top, Hand& hand) override;

  /// Words that were solved: each of them is praised.
  int sets() const override { return static_cast<int>(congratulations_.size()); }
  /// Panels seen that told of a wrong answer, or of a right one that has no picture.
  int wrong_answers() const override { return static_cast<int>(wrong_panels_.size()); }
  /// Panels seen that revealed the beginning of the word.
  int revelations() const { return static_cast<int>(reveal_panels_.size()); }

 private:
  /// What is to happen to a puzzle before it is solved. Each wish ends when its effect is seen.
  struct Wishes {
    bool reveal = false;
    int sort_tries = 0;
    bool wrong_answer = false;
    std::vector<double> before_sort;
  };

  bool play(frm_cserkó& window, Hand& hand);
  bool fulfil_wish(frm_cserkó& window, Hand& hand);
  bool read_panel(Window& panel, Hand& hand);
  bool press(Window& window, Button& button, Hand& hand) const;
  void notice_puzzle(const frm_cserkó& window);
  const Text* word_for(const frm_cserkó& window) const;

  Mode mode_;
  int mistakes_;
  std::map<Text, Text> words_; ///< One word of the records for each set of letters.
  std::set<Text> names_;       ///< All words of the records.
  std::set<std::uint64_t> congratulations_;
  std::set<std::uint64_t> wrong_panels_;
  std::set<std::uint64_t> reveal_panels_;
  std::uint64_t puzzle_ = 0; ///< The puzzle on the board, by an element that each puzzle has anew.
  int puzzles_ = 0;
  Wishes wishes_;
};

} // namespace cserko
