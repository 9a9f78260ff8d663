#include "exercises/shared/letter_row.h"

#include "core/frame.h"
#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace cserko {

namespace {

// Written short inside a word and doubled when a syllable ends in them: "asszony" is "asz-szony".
constexpr std::array<TextView, 7> long_double_consonants{u"ccs", u"ggy", u"lly", u"nny", u"ssz", u"tty", u"zzs"};

bool inside(const Label& letter, const MouseEvent& event) {
  return event.x >= 0 && event.x < letter.Width && event.y >= 0 && event.y < letter.Height;
}

} // namespace

int hosszú_kettős_helye(const kszöveg& word) {
  for (int i = 1; i <= word.MAGYARBETŰKSZÁMA(); ++i) {
    const Text letter = word.szóbetűje(int(i));
    if (std::find(long_double_consonants.begin(), long_double_consonants.end(), letter) != long_double_consonants.end())
      return i;
  }
  return 0;
}

LetterRow::LetterRow(ElementArray<Label>& letters) : letters_(letters) {
  letters_[0].WordWrap = false;
  letters_[0].Choosable = true;
  letters_.MouseDown = [this](int letter, const MouseEvent& event) { letter_pressed(letter, event); };
  letters_.MouseMove = [this](int letter, const MouseEvent& event) { letter_moved(letter, event); };
  letters_.MouseUp = [this](int letter, const MouseEvent& event) { letter_released(letter, event); };
  letters_.Click = [this](int letter) { letter_clicked(letter); };
  letters_.KeyDown = [this](int letter, KeyEvent& event) { letter_key(letter, event); };
}

void LetterRow::clear() {
  const Element* focus = letters_[0].window().focus();
  focused_ = focus != nullptr && focus->Name == letters_[0].Name ? focus->Index : -1;
  gesture_ = {};
  by_mouse_ = false;
  letters_.unload_from(1);
  letters_[0].Caption.clear();
  letters_[0].Tag = ordinary;
  letters_[0].Visible = false;
}

void LetterRow::show(const kszöveg& word) {
  for (int i = 0; i < word.MAGYARBETŰKSZÁMA(); ++i) {
    Label& letter = letters_.loaded(i) ? letters_[i] : letters_.load(i);
    letter.Caption = word.szóbetűje(i + 1);
    letter.Tag = ordinary;
    letter.Visible = true;
  }
  if (focused_ >= 0) letters_[0].window().set_focus(&letters_[std::min(focused_, last())]);
  focused_ = -1;
}

Label& LetterRow::insert(int index) {
  letters_.load(last() + 1).Visible = true;
  for (int i = last(); i > index; --i) {
    letters_[i].Caption = letters_[i - 1].Caption;
    letters_[i].Tag = letters_[i - 1].Tag;
  }
  letters_[index].Tag = ordinary;
  return letters_[index];
}

void LetterRow::split(int position) {
  Label& first = insert(position - 1);
  Label& second = letters_[position];
  first.Caption = second.Caption.substr(0, 1);
  second.Caption = second.Caption.substr(second.Caption.size() - 2);
  second.Tag = second_half;
}

void LetterRow::remove(int index) {
  for (int i = index; i < last(); ++i) {
    letters_[i].Caption = letters_[i + 1].Caption;
    letters_[i].Tag = letters_[i + 1].Tag;
  }
  // The focus stays in the row.
  Window& window = letters_[0].window();
  if (window.focus() == &letters_[last()]) window.set_focus(&letters_[last() - 1]);
  letters_.unload(last());
}

Text LetterRow::text() const {
  Text joined;
  letters_.each([&](const Label& letter) { joined += letter.Caption; });
  return joined;
}

void LetterRow::fit(TextView text, Size limits) {
  Font font = letters_[0].Font;
  font.size = 8;
  letters_[0].Font.size = first_overfilling_size(platform(), font, text, limits) - 1;
}

double LetterRow::text_width() const { return platform().measure(letters_[0].Font, text()).width; }

void LetterRow::lay_out(Point corner) {
  letters_.each([&](Label& letter) {
    letter.Font = letters_[0].Font;
    const Size extent = platform().measure(letter.Font, letter.Caption);
    letter.Width = letter_width ? letter_width(letter) : extent.width;
    letter.Height = extent.height;
    letter.move_to(corner.x, corner.y);
    letter.Visible = true;
    corner.x += letter.Width;
  });
}

void LetterRow::letter_pressed(int letter, const MouseEvent& event) {
  gesture_.begin({event.x, event.y});
  by_mouse_ = true;
  húzás_kezdete_ = rounded(event.x);
  if (Pressed) Pressed(letter, event);
}

void LetterRow::letter_moved(int letter, const MouseEvent& event) {
  if (!gesture_.held() || igazítás_alatt_) return;
  gesture_.follow({event.x, event.y});
  if (Moved) Moved(letter, event);
  if (!Pull || letter == 0) return;
  const double far = pull_distance ? pull_distance(letter) : letters_[letter].Width / 4;
  if (std::abs(húzás_kezdete_ - event.x) < far) return;
  gesture_.mark_moved();
  pull(letter, event.x < húzás_kezdete_ ? Way::Left : Way::Right);
}

void LetterRow::letter_released(int letter, const MouseEvent& event) {
  gesture_.end();
  if (!letters_.loaded(letter)) return; // another word has come meanwhile
  // Only a left release inside the letter is a click as well. No other one may be remembered, or it would keep the next
  // space bar from its effect.
  if (event.button != MouseButton::Left || !inside(letters_[letter], event)) by_mouse_ = false;
  if (Released) Released(letter, event);
}

void LetterRow::letter_clicked(int letter) {
  if (!std::exchange(by_mouse_, false)) {
    // The space bar or a screen reader: there was no press.
    const MouseEvent middle{MouseButton::Left, shift::none, letters_[letter].Width / 2, letters_[letter].Height / 2};
    if (Pressed) Pressed(letter, middle);
    if (Released) Released(letter, middle);
  } else if (gesture_.moved()) {
    return; // the end of a pull, or of one that was thought better of
  }
  if (!letters_.loaded(letter)) return;
  if (Clicked) {
    Clicked(letter);
  } else {
    choose(letter);
  }
}

void LetterRow::letter_key(int letter, KeyEvent& event) {
  if (event.shift != shift::control || (event.code != key::left && event.code != key::right)) return;
  pull(letter, event.code == key::left ? Way::Left : Way::Right);
  event.code = 0;
}

bool LetterRow::pull(int letter, Way way) {
  if (!Pull || letter == 0 || igazítás_alatt_) return false;
  igazítás_alatt_ = true;
  struct Done {
    bool& running;
    ~Done() { running = false; }
  } done{igazítás_alatt_};
  return Pull(letter, way);
}

void LetterRow::choose(int letter) {
  if (!pull(letter, Way::Right)) pull(letter, Way::Left);
}

} // namespace cserko
