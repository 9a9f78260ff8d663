// A word with its Hungarian letters: digraphs and doubled digraphs count as one letter. All that the suite knows of
// such letters is here.
#pragma once

#include "platform/text.h"

#include <string>
#include <vector>

namespace cserko {

/// A text and, beside it, the letters into which it was cut when it was last set.
///
/// Operations that edit the text in place (`levág_jobbról`, `levág_balról`, `beszúr`, setting `lenght`) do not cut it
/// again: the letters stay those of the text before, which is intended. Set `value` anew for fresh ones.
///
/// Positions and letter numbers count from 1. A number that comes by reference is corrected in the caller's variable
/// where it does not fit. A getter and its setter share one name: without an argument it gets, with one it sets.
class kszöveg {
 public:
  /// Codes of `szövegnyelv`.
  static constexpr int magyar = 2;
  static constexpr int angol = 4;

  kszöveg() = default;
  explicit kszöveg(TextView text) { value(text); }

  const Text& value() const { return szöveg_; }
  /// Stores the text and cuts it into letters by the language that is set at this moment.
  void value(TextView text);

  /// The text less n characters on the right or left. More than there are cut all; a number not above 0 becomes 0.
  Text jobbrólvágott(int& n) const;
  Text balrólvágott(int& n) const;
  Text jobbrólvágott(int&& n) const { return jobbrólvágott(n); }
  Text balrólvágott(int&& n) const { return balrólvágott(n); }

  /// Cuts n characters off the text. More than there are cut all; a number not above 0 does nothing and stays.
  void levág_jobbról(int& n);
  void levág_balról(int& n);
  void levág_jobbról(int&& n) { levág_jobbról(n); }
  void levág_balról(int&& n) { levág_balról(n); }

  /// Inserts a text before a position; below 1 it becomes 1, behind the text the place after the last character.
  void beszúr(int& position, TextView text);
  void beszúr(int&& position, TextView text) { beszúr(position, text); }
  /// The same as a result; the text stays as it is.
  Text beszúr_nem_változik(int& position, TextView text) const;
  Text beszúr_nem_változik(int&& position, TextView text) const { return beszúr_nem_változik(position, text); }

  /// Number of characters. The name is misspelt in all its uses and stays so.
  int lenght() const { return static_cast<int>(szöveg_.size()); }
  /// Cuts the text on the right or lengthens it by the filler; below 0 counts as 0.
  void lenght(int n);

  /// The one character by which `lenght` lengthens.
  Text töltelékkarakter() const { return Text(1, töltelékkarakter_); }
  /// Takes the first character; an empty text is ignored.
  void töltelékkarakter(TextView text);

  /// Replaces every occurrence, case-sensitive, and cuts the result into letters. A replacement is not searched again;
  /// an empty text is never found.
  void csere(TextView sought, TextView replacement);

  /// Code of the language: 2 Hungarian, 4 English.
  int szövegnyelv() const { return nyelv_; }
  /// Takes 2 or 4, or "magyar", "english" or "angol" in any case; anything else changes nothing. The letters stay as
  /// they are until the text is set again, which is intended.
  void szövegnyelv(int code);
  void szövegnyelv(TextView word);

  /// The n-th letter; behind the last one the last, and n says so; empty for n not above 0.
  Text szóbetűje(int& n) const;
  Text szóbetűje(int&& n) const { return szóbetűje(n); }

  /// Whether letter n is a vowel. A capital is none, which is intended. Throws std::out_of_range where the letters have
  /// no such place.
  bool EzabetűMagánhangzóE(int n) const;

  /// The last or first n letters joined, nothing for n not above 0. Throws std::out_of_range for letters that are not
  /// there, and for 0 of an empty text. The letters have as many places as the text had characters, so `magyarleft`
  /// takes numbers up to that.
  Text magyarright(int n) const;
  Text magyarleft(int n) const;

  /// Number of letters. Setting it does nothing.
  int MAGYARBETŰKSZÁMA() const { return betűszám_; }
  void MAGYARBETŰKSZÁMA(int) {}

  /// The letters between commas, as ",a,sz,ó,", so that a search for a letter never finds a part of another.
  Text VesszősSzöveg() const;

  /// Whether that letter is among the letters.
  bool vanebenne(TextView letter) const;

  // The same of a text that nobody keeps, quick enough for all records at once; always by the Hungarian rules. What
  // they say of a record's word the records keep, see `Records::MAGYARBETŰKSZÁMA` and `Records::vanebenne`.

  /// Number of letters of a text.
  static int letter_count(TextView text);
  /// The letters of a text between commas, as `VesszősSzöveg`.
  static Text letter_list(TextView text);
  /// Whether such a list holds that letter.
  static bool in_list(TextView list, TextView letter);

  /// The word behind its definite article. A capital vowel gets "a " and not "az ", which is intended. Throws
  /// std::out_of_range if there are no letters.
  Text Névelővel(bool capital) const;

 private:
  void felbontás();
  const Text& letter(int n) const;
  Text joined(int first, int last) const;

  Text szöveg_;
  char16_t töltelékkarakter_ = u' ';
  int nyelv_ = magyar;
  int betűszám_ = 0;
  std::vector<Text> betűk_; // as many places as the text had characters; those behind `betűszám_` are empty
};

} // namespace cserko
