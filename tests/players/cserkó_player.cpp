#include "tests/players/cserkó_player.h"

#include "core/frm_főablak.h"
#include "core/kszöveg.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "tests/players/played_exercise.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

// A hand that moves whole pixels of any screen does not hit the twip.
constexpr double near_enough = 60;

// The letters in the order of the alphabet, with a mark between them.
Text letters_key(std::vector<Text> letters) {
  std::sort(letters.begin(), letters.end());
  Text key;
  for (const Text& letter : letters) key += letter + u",";
  return key;
}

Text letters_key(const Text& word) {
  const kszöveg text(word);
  std::vector<Text> letters;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) letters.push_back(text.szóbetűje(int{i}));
  return letters_key(letters);
}

std::vector<Label*> letters_of(frm_cserkó& window) {
  std::vector<Label*> letters;
  window.betű.each([&](Label& letter) { letters.push_back(&letter); });
  return letters;
}

std::vector<double> lefts(frm_cserkó& window) {
  std::vector<double> all;
  for (const Label* letter : letters_of(window)) all.push_back(letter->Left);
  return all;
}

Text reading(frm_cserkó& window) {
  std::vector<Label*> letters = letters_of(window);
  std::stable_sort(letters.begin(), letters.end(), [](auto* a, auto* b) { return a->Left < b->Left; });
  Text word;
  for (const Label* letter : letters) word += letter->Caption;
  return word;
}

bool overlap(const Label& a, double left, double top, const Label& b) {
  return left < b.Left + b.Width && b.Left < left + a.Width && top < b.Top + b.Height && b.Top < top + a.Height;
}

// The letter that lies over the middle of another one and would be caught instead, null if none does.
Label* cover_of(frm_cserkó& window, const Label& letter) {
  const double x = letter.Left + letter.Width / 2;
  const double y = letter.Top + letter.Height / 2;
  Label* cover = nullptr;
  for (Label* other : letters_of(window)) {
    const bool over = other->Index > letter.Index && x >= other->Left && x < other->Left + other->Width &&
                      y >= other->Top && y < other->Top + other->Height;
    if (over) cover = other;
  }
  return cover;
}

double row_top(const frm_cserkó& window) { return (window.kép.Height - window.betű[0].Height) / 2; }

// A place where a letter lies over no other one, in the lower left corner if there is none.
Point free_place(frm_cserkó& window, const Label& letter) {
  const double lowest = window.kép.Height - letter.Height;
  for (double top = lowest; top >= 0; top -= letter.Height / 2) {
    for (double left = 0; left < window.kép.Width - letter.Width - 200; left += letter.Width / 2) {
      const std::vector<Label*> letters = letters_of(window);
      const bool taken = std::any_of(letters.begin(), letters.end(), [&](const Label* other) {
        return other != &letter && overlap(letter, left, top, *other);
      });
      const bool in_row = std::abs(top - row_top(window)) < letter.Height;
      if (!taken && !in_row) return {left, top};
    }
  }
  return {0, lowest};
}

void drag_to(Label& letter, Point place, Hand& hand) { hand.drag(letter, place.x - letter.Left, place.y - letter.Top); }

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
  return mode_ == Mode::Mouse ? drag_letter(window, hand) : move_letter(window, hand);
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

// The word in a row across the frame. Of equal letters the one that was made first comes first.
std::vector<CserkóPlayer::Piece> CserkóPlayer::places(frm_cserkó& window, const Text& word) const {
  std::vector<Label*> free = letters_of(window);
  std::vector<Piece> pieces;
  const kszöveg text(word);
  double widest = 0;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) {
    const Text letter = text.szóbetűje(int{i});
    const auto found = std::find_if(free.begin(), free.end(), [&](Label* label) { return label->Caption == letter; });
    if (found == free.end()) return {};
    widest = std::max(widest, (*found)->Width);
    pieces.push_back({*found, 0});
    free.erase(found);
  }
  // The mouse cannot put letters at the very edge.
  const double room = window.kép.Width - widest - 2 * near_enough - 100;
  const double pitch = pieces.size() > 1 ? room / static_cast<double>(pieces.size() - 1) : 0;
  for (std::size_t i = 0; i < pieces.size(); ++i) pieces[i].left = near_enough + pitch * static_cast<double>(i);
  return pieces;
}

bool CserkóPlayer::drag_letter(frm_cserkó& window, Hand& hand) const {
  const Text* word = word_for(window);
  if (word == nullptr) return false;
  std::vector<Piece> pieces = places(window, *word);
  const double top = row_top(window);
  const auto in_place = [&](const Piece& piece) {
    return std::abs(piece.letter->Left - piece.left) <= near_enough && std::abs(piece.letter->Top - top) <= near_enough;
  };
  std::erase_if(pieces, in_place);
  if (pieces.empty()) return press(window, window.cmd_kész, hand);
  // Letters made earlier lie lower and go first; what lies over them all is moved aside.
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.letter->Index < b.letter->Index; });
  const auto reachable = std::find_if(pieces.begin(), pieces.end(),
                                      [&](const Piece& piece) { return cover_of(window, *piece.letter) == nullptr; });
  if (reachable != pieces.end()) {
    drag_to(*reachable->letter, {reachable->left, top}, hand);
  } else {
    Label& cover = *cover_of(window, *pieces.front().letter);
    drag_to(cover, free_place(window, cover), hand);
  }
  return true;
}

bool CserkóPlayer::move_letter(frm_cserkó& window, Hand& hand) const {
  const Text* word = word_for(window);
  if (word == nullptr) return false;
  const std::vector<Piece> pieces = places(window, *word);
  const double step = window.kép.Width * 0.02;
  const auto in_place = [&](const Piece& piece) { return std::abs(piece.letter->Left - piece.left) <= 0.6 * step; };
  if (std::all_of(pieces.begin(), pieces.end(), in_place)) return press(window, window.cmd_kész, hand);
  // The space bar would press a button that has the focus.
  if (window.focus() != &window.kép) {
    hand.key(key::tab, shift::none);
    return true;
  }
  const auto selected =
      std::find_if(pieces.begin(), pieces.end(), [](const Piece& piece) { return piece.letter->Border; });
  if (selected == pieces.end() || in_place(*selected)) {
    hand.key(key::space, shift::none);
  } else {
    hand.key(selected->left < selected->letter->Left ? key::left : key::right, shift::none);
  }
  return true;
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
