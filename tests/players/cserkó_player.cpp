#include "tests/players/cserkó_player.h"

#include "core/frm_főablak.h"
#include "core/kszöveg.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "tests/players/piece_mover.h"
#include "tests/players/played_exercise.h"

#include <algorithm>

namespace cserko {

namespace {

// The letters in the order of the alphabet, with a mark between them.
Text letters_key(std::vector<Text> letters) {
  std::sort(letters.begin(), letters.end());
  Text key;
  for (const Text& letter : letters) key += letter + u",";
  return key;
}

std::vector<Text> letters_of(const Text& word) {
  const kszöveg text(word);
  std::vector<Text> letters;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) letters.push_back(text.szóbetűje(int{i}));
  return letters;
}

Text letters_key(const Text& word) { return letters_key(letters_of(word)); }

std::vector<double> lefts(const frm_cserkó& window) {
  std::vector<double> all;
  window.betű.each([&](const Label& letter) { all.push_back(letter.Left); });
  return all;
}

Text reading(frm_cserkó& window) {
  Text word;
  for (const Text& letter : PieceMover(window.kép, window.betű).reading()) word += letter;
  return word;
}

} // namespace

CserkóPlayer::CserkóPlayer(const Session& session, Mode mode, int mistakes) : mode_(mode), mistakes_(mistakes) {
  for (int i = 0; i <= session.képek.képszám; ++i) {
    const Text& name = session.képek[i].név;
    words_.emplace(letters_key(name), name);
    names_.insert(name);
  }
}

bool CserkóPlayer::step(Window& top, Hand& hand) {
  if (auto* main = dynamic_cast<frm_főablak*>(&top)) return press(top, main->cmd_játék[0], hand);
  if (auto* exercise = dynamic_cast<frm_cserkó*>(&top)) return play(*exercise, hand);
  if (auto* dialog = dynamic_cast<frm_cserkó_beáll*>(&top)) return press(top, dialog->CancelButton, hand);
  if (auto* panel = dynamic_cast<frm_gratuláció*>(&top)) {
    congratulations_.insert(panel->cmd_ok.serial());
    return press(top, panel->cmd_ok, hand);
  }
  return read_panel(top, hand);
}

bool CserkóPlayer::read_panel(Window& panel, Hand& hand) {
  auto* message = dynamic_cast<szövegüzenet*>(&panel);
  if (message == nullptr) return false;
  const Text& text = message->szöveg.Caption;
  if (text.starts_with(u"A szó kezdete")) {
    reveal_panels_.insert(message->szöveg.serial());
    wishes_.reveal = false;
  } else if (text.find(u"\r\r") != Text::npos) {
    wrong_panels_.insert(message->szöveg.serial());
    wishes_.wrong_answer = false;
  }
  return press(panel, message->Command1, hand);
}

// By keyboard the focus goes on from control to control until it is on the button.
bool CserkóPlayer::press(Window& window, Button& button, Hand& hand) const {
  if (!button.shown() || !button.usable()) return false;
  if (mode_ == Mode::Keyboard && !hears_keys(window)) return false;
  if (mode_ == Mode::Mouse) {
    hand.click(button);
  } else {
    hand.key(window.focus() == &button ? key::enter : key::tab, shift::none);
  }
  return true;
}

void CserkóPlayer::notice_puzzle(const frm_cserkó& window) {
  const std::uint64_t present = window.betű.loaded(1) ? window.betű[1].serial() : window.betű[0].serial();
  if (present == puzzle_) return;
  puzzle_ = present;
  ++puzzles_;
  wishes_ = {};
  if (mistakes_ == 0 || puzzles_ % mistakes_ != 0) return;
  wishes_.wrong_answer = true;
  const bool second = puzzles_ / mistakes_ % 2 == 0;
  wishes_.reveal = second;
  wishes_.sort_tries = second ? 0 : 2;
}

bool CserkóPlayer::play(frm_cserkó& window, Hand& hand) {
  // After a right answer the picture is shown for a while.
  if (window.lbl_megoldás.Visible) return false;
  notice_puzzle(window);
  if (fulfil_wish(window, hand)) return true;
  const Text* word = word_for(window);
  PieceMover letters(window.kép, window.betű);
  if (word == nullptr || !letters.want(letters_of(*word))) return false;
  const bool moved = mode_ == Mode::Mouse ? letters.drag_one(hand) : letters.move_one_by_key(hand);
  return moved || press(window, window.cmd_kész, hand);
}

bool CserkóPlayer::fulfil_wish(frm_cserkó& window, Hand& hand) {
  if (wishes_.reveal && press(window, window.cmd_egybetűtfelfed, hand)) return true;
  if (wishes_.sort_tries > 0) {
    if (wishes_.before_sort.empty()) wishes_.before_sort = lefts(window);
    const bool sorted = wishes_.before_sort != lefts(window);
    const bool about_to_press = mode_ == Mode::Mouse || window.focus() == &window.cmd_rendez;
    if (about_to_press) --wishes_.sort_tries;
    if (sorted) wishes_.sort_tries = 0;
    if (!sorted && press(window, window.cmd_rendez, hand)) return true;
  }
  // What lies there by chance may be right.
  if (names_.count(reading(window)) != 0) wishes_.wrong_answer = false;
  return wishes_.wrong_answer && press(window, window.cmd_kész, hand);
}

const Text* CserkóPlayer::word_for(const frm_cserkó& window) const {
  std::vector<Text> letters;
  window.betű.each([&](const Label& letter) { letters.push_back(letter.Caption); });
  const auto found = words_.find(letters_key(letters));
  return found == words_.end() ? nullptr : &found->second;
}

namespace {

const Played played{{.name = "scrambled_word",
                     .window = u"frm_cserkó",
                     .tasks = 1,
                     .make = make_player<CserkóPlayer>,
                     .gathered = [](Window& window, const Player&) {
                       return dynamic_cast<frm_cserkó&>(window).lbl_megoldás.Visible ? 1 : 0;
                     }}};

} // namespace

} // namespace cserko
