// A word as a row of letters, one label each: fitted, laid out, with long double consonants in two pieces, read back as
// a text; letters that are pressed, clicked, pulled and pushed by mouse, finger and keyboard.
//
// How an exercise uses it:
//
//     ElementArray<Label> betű{*this, u"betű", {120, 7475, 495, 495}};   // in the header
//     LetterRow row_{betű};                                             // after it
//
//     row_.Pull = [this](int letter, LetterRow::Way way) { ... return whether it changed anything; };
//     row_.pull_distance = [this](int letter) { return 0.4 * width; };   // where a quarter of the letter is not meant
//
//     // a new word:
//     row_.clear();
//     row_.fit(widest_form, {kép.Width, 0.9 * gap});
//     row_.show(kszöveg(word));
//     if (const int position = hosszú_kettős_helye(word); position >= 2) row_.split(position);
//     row_.lay_out({center - row_.text_width() / 2, top});
//
// Which handlers to set:
//   - Pull: letters are pulled and pushed (missing letter, syllables). A click on a letter, the space bar and, where no
//     button is the default one, Enter then do what a pull would: they try to pull and, where that changes nothing, to
//     push. Ctrl with the right and left arrow pulls and pushes.
//   - Clicked: a click or key on a letter means something of its own (letter viewer). Replaces the above.
//   - Pressed, Moved, Released: the mouse as it is, any button (surplus letter colours its letter at the press and
//     judges at the release; short-long slides it). The space bar presses and releases.
// The arrow keys move from letter to letter; that is the exercise window's own. The element array's handlers belong to
// the row; set none of them.
#pragma once

#include "core/kszöveg.h"
#include "exercises/shared/gesture.h"
#include "platform/element_array.h"

namespace cserko {

/// Number, from 1, of the first letter of the word that is a long double consonant ("ssz" and so on), 0 if none is.
int hosszú_kettős_helye(const kszöveg& word);

class LetterRow {
 public:
  /// Pulling is to the right, pushing to the left.
  enum class Way : std::uint8_t { Left, Right };

  /// Tags of the letters: an ordinary one, and the second piece of a long double consonant.
  static constexpr TextView ordinary = u"0";
  static constexpr TextView second_half = u"3";

  /// Takes the array's handlers. Letter 0 gives the font and the look of all.
  explicit LetterRow(ElementArray<Label>& letters);
  LetterRow(const LetterRow&) = delete;
  LetterRow& operator=(const LetterRow&) = delete;

  // The word.

  /// Takes all letters away but letter 0, which becomes empty, hidden and ordinary.
  void clear();
  /// One label for each letter of the word, all ordinary. Where a letter had the focus before the row was cleared, the
  /// one in its place has it again.
  void show(const kszöveg& word);
  /// Parts the long double consonant at that position, from 1, into its first character and its last two; the second
  /// piece becomes a letter of its own with the tag `second_half`. Taking a letter away later does not join them.
  void split(int position);
  /// Makes room for one more letter at that index: the letters from there on move up with text and tag. Returns the
  /// new letter, which still holds what stood there, as an ordinary one.
  Label& insert(int index);
  /// Takes the letter of that index out: those behind it move down with text and tag.
  void remove(int index);
  /// The texts of all letters in order, joined.
  Text text() const;

  // Size and place.

  /// Gives letter 0 the largest size, from 8 up, at which the text keeps to the limits (twips).
  void fit(TextView text, Size limits);
  /// Width of the joined text in the letters' font, twips.
  double text_width() const;
  /// Puts the letters side by side from that left top corner on, visible, all in the font of letter 0 and in the size
  /// of their texts.
  void lay_out(Point corner);
  /// Width of a letter in the row, where it is not that of its text.
  std::function<double(const Label& letter)> letter_width;

  // The child's hand.

  /// Letter i is pulled or pushed against the one before it; never letter 0. Returns whether that changed anything. No
  /// other letter event comes while it runs.
  std::function<bool(int letter, Way way)> Pull;
  /// How far the pointer moves until that is a pull, twips; a quarter of the letter's width where it is not set.
  std::function<double(int letter)> pull_distance;
  std::function<void(int letter)> Clicked;
  std::function<void(int letter, const MouseEvent& event)> Pressed;
  std::function<void(int letter, const MouseEvent& event)> Moved;
  std::function<void(int letter, const MouseEvent& event)> Released;

 private:
  void letter_pressed(int letter, const MouseEvent& event);
  void letter_moved(int letter, const MouseEvent& event);
  void letter_released(int letter, const MouseEvent& event);
  void letter_clicked(int letter);
  void letter_key(int letter, KeyEvent& event);
  bool pull(int letter, Way way);
  void choose(int letter);
  int last() const { return letters_.count() - 1; }
  const Platform& platform() const { return letters_[0].window().platform(); }

  ElementArray<Label>& letters_;
  Gesture gesture_;
  int húzás_kezdete_ = 0;       ///< Where the pressed letter was pressed, in its own twips.
  bool igazítás_alatt_ = false; ///< A change is not laid out yet.
  bool by_mouse_ = false;       ///< The click that comes next is the end of a press.
  int focused_ = -1;            ///< The letter that had the focus when the row was cleared.
};

} // namespace cserko
