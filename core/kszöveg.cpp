#include "core/kszöveg.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace cserko {

namespace {

// The letters of several characters. Their order breaks ties: the longer ones come first.
constexpr std::array<TextView, 17> toldalék{u"dzs", u"ccs", u"ddz", u"ggy", u"lly", u"nny", u"ssz", u"tty", u"zzs",
                                            u"cs",  u"dz",  u"gy",  u"ly",  u"ny",  u"sz",  u"ty",  u"zs"};

constexpr std::array<char16_t, 14> vowels{u'a', u'á', u'e', u'é', u'i', u'í', u'o',
                                          u'ó', u'ö', u'ő', u'u', u'ú', u'ü', u'ű'};

// In these compounds letters of two words meet at the seam and would be read as one. Two of them keep the case of the
// text and two are always written in lower case, which is intended.
struct Exception {
  TextView word;
  std::array<std::uint8_t, 12> lengths; ///< Characters of each letter, 0 behind the last.
  bool keeps_case;
};
constexpr std::array<Exception, 4> exceptions{{{u"rajzszög", {1, 1, 1, 1, 2, 1, 1}, true},
                                               {u"karosszék", {1, 1, 1, 1, 1, 2, 1, 1}, false},
                                               {u"magánnyomozó", {1, 1, 1, 1, 1, 2, 1, 1, 1, 1, 1}, false},
                                               {u"rajzszeg", {1, 1, 1, 1, 2, 1, 1}, true}}};

const Exception* exception_for(TextView text) {
  const auto found = std::find_if(exceptions.begin(), exceptions.end(), [text](const Exception& exception) {
    return exception.word.size() == text.size() && equal_ignoring_case(exception.word, text);
  });
  return found == exceptions.end() ? nullptr : &*found;
}

// Whether a letter of several characters begins so; most characters need no closer look.
constexpr bool begins_long_letter(char16_t character) {
  std::uint32_t beginnings = 0;
  for (const TextView letter : toldalék) beginnings |= 1U << (letter.front() - u'a');
  return character >= u'a' && character <= u'z' && (beginnings >> (character - u'a') & 1U) != 0;
}

// Length of the letter at the start of a text that is not empty.
std::size_t letter_length(TextView text) {
  const char16_t first = lower_case(text.front());
  if (!begins_long_letter(first)) return 1;
  for (const TextView letter : toldalék) {
    if (letter.front() == first && letter.size() <= text.size() &&
        equal_ignoring_case(letter, text.substr(0, letter.size())))
      return letter.size();
  }
  return 1;
}

// Gives each Hungarian letter of the text to the function, without making texts of them.
template<class Take> void each_letter(TextView text, Take take) {
  if (const Exception* exception = exception_for(text); exception != nullptr) {
    TextView rest = exception->keeps_case ? text : exception->word;
    for (auto length = exception->lengths.begin(); !rest.empty(); ++length) {
      take(rest.substr(0, *length));
      rest.remove_prefix(*length);
    }
    return;
  }
  while (!text.empty()) {
    const std::size_t length = letter_length(text);
    take(text.substr(0, length));
    text.remove_prefix(length);
  }
}

int limited(int n, int length) { return n > 0 && n > length ? length : n; }

} // namespace

void kszöveg::value(TextView text) {
  szöveg_ = text;
  felbontás();
}

void kszöveg::felbontás() {
  betűk_.assign(szöveg_.size(), Text());
  betűszám_ = 0;
  if (nyelv_ != magyar) {
    for (const char16_t character : szöveg_) betűk_[static_cast<std::size_t>(betűszám_++)] = character;
    return;
  }
  each_letter(szöveg_, [this](TextView letter) { betűk_[static_cast<std::size_t>(betűszám_++)] = letter; });
}

int kszöveg::letter_count(TextView text) {
  int letters = 0;
  each_letter(text, [&letters](TextView) { ++letters; });
  return letters;
}

Text kszöveg::letter_list(TextView text) {
  Text list = u",";
  list.reserve(2 * text.size() + 1);
  each_letter(text, [&list](TextView letter) { list.append(letter).push_back(u','); });
  return list;
}

bool kszöveg::in_list(TextView list, TextView letter) {
  Text sought = u",";
  sought.append(letter).push_back(u',');
  return list.find(sought) != TextView::npos;
}

Text kszöveg::jobbrólvágott(int& n) const {
  n = std::max(0, limited(n, lenght()));
  return szöveg_.substr(0, szöveg_.size() - static_cast<std::size_t>(n));
}

Text kszöveg::balrólvágott(int& n) const {
  n = std::max(0, limited(n, lenght()));
  return szöveg_.substr(static_cast<std::size_t>(n));
}

void kszöveg::levág_jobbról(int& n) {
  n = limited(n, lenght());
  if (n > 0) szöveg_ = jobbrólvágott(n);
}

void kszöveg::levág_balról(int& n) {
  n = limited(n, lenght());
  if (n > 0) szöveg_ = balrólvágott(n);
}

void kszöveg::beszúr(int& position, TextView text) { szöveg_ = beszúr_nem_változik(position, text); }

Text kszöveg::beszúr_nem_változik(int& position, TextView text) const {
  position = std::clamp(position, 1, lenght() + 1);
  Text result = szöveg_;
  return result.insert(static_cast<std::size_t>(position - 1), text);
}

void kszöveg::lenght(int n) { szöveg_.resize(static_cast<std::size_t>(std::max(0, n)), töltelékkarakter_); }

void kszöveg::töltelékkarakter(TextView text) {
  if (!text.empty()) töltelékkarakter_ = text.front();
}

void kszöveg::csere(TextView sought, TextView replacement) {
  Text result;
  TextView rest = szöveg_;
  while (!sought.empty()) {
    const std::size_t found = rest.find(sought);
    if (found == TextView::npos) break;
    result.append(rest.substr(0, found)).append(replacement);
    rest.remove_prefix(found + sought.size());
  }
  result.append(rest);
  value(result);
}

void kszöveg::szövegnyelv(int code) {
  if (code == magyar || code == angol) nyelv_ = code;
}

void kszöveg::szövegnyelv(TextView word) {
  if (equal_ignoring_case(word, u"magyar")) nyelv_ = magyar;
  if (equal_ignoring_case(word, u"english") || equal_ignoring_case(word, u"angol")) nyelv_ = angol;
}

Text kszöveg::szóbetűje(int& n) const {
  n = std::min(n, betűszám_);
  return n > 0 ? letter(n) : Text();
}

bool kszöveg::EzabetűMagánhangzóE(int n) const {
  const Text& sought = letter(n);
  return sought.size() == 1 && std::find(vowels.begin(), vowels.end(), sought.front()) != vowels.end();
}

const Text& kszöveg::letter(int n) const {
  if (n < 1 || n > static_cast<int>(betűk_.size())) throw std::out_of_range("kszöveg: the word has no such letter");
  return betűk_[static_cast<std::size_t>(n - 1)];
}

Text kszöveg::joined(int first, int last) const {
  Text result;
  for (int n = first; n <= last; ++n) result += letter(n);
  return result;
}

Text kszöveg::magyarright(int n) const {
  if (n < 0) return {};
  if (n == 0 && betűk_.empty()) throw std::out_of_range("kszöveg: there are no letters");
  if (n > betűszám_) throw std::out_of_range("kszöveg: the word has fewer letters");
  return joined(betűszám_ - n + 1, betűszám_);
}

Text kszöveg::magyarleft(int n) const {
  if (n == 0 && betűk_.empty()) throw std::out_of_range("kszöveg: there are no letters");
  if (n > static_cast<int>(betűk_.size())) throw std::out_of_range("kszöveg: the word has fewer letters");
  return joined(1, n);
}

Text kszöveg::VesszősSzöveg() const {
  Text list = u",";
  for (int n = 1; n <= betűszám_; ++n) list += letter(n) + u",";
  return list;
}

bool kszöveg::vanebenne(TextView sought) const { return in_list(VesszősSzöveg(), sought); }

Text kszöveg::Névelővel(bool capital) const {
  const bool vowel = EzabetűMagánhangzóE(1);
  return (capital ? u"A" : u"a") + Text(vowel ? u"z " : u" ") + szöveg_;
}

} // namespace cserko
