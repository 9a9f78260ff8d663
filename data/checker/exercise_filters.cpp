#include "data/checker/exercise_filters.h"

#include "data/checker/knight_boards.h"
#include "data/checker/word_chain.h"
#include "exercises/boards/frm_hosszrövid.h"

#include <QSet>
#include <algorithm>
#include <cmath>
#include <memory>

namespace cserko {
namespace {

using Passes = std::function<bool(const WordFacts&, const Choice&)>;
using Count = std::function<int(const Choice&)>;

// --- Settings
// ---------------------------------------------------------------------------------------------------------

Setting range(const QString& name, int from, int to, int standard, int step = 1) {
  Setting setting{name, SettingKind::range, standard, {}, {}};
  for (int value = from; value <= to; value += step) setting.values.push_back(value);
  return setting;
}

Setting named(const QString& name, SettingKind kind, const QStringList& labels) {
  Setting setting{name, kind, 0, {}, [labels](int value) { return labels[value]; }};
  for (int value = 0; value < labels.size(); ++value) setting.values.push_back(value);
  return setting;
}

Setting choice(const QString& name, const QStringList& labels) { return named(name, SettingKind::choice, labels); }
Setting each(const QString& name, const QStringList& labels) { return named(name, SettingKind::each, labels); }
// A number that must be playable together with every other one.
Setting size(const QString& name, int from, int to, int standard) {
  Setting setting = range(name, from, to, standard);
  setting.kind = SettingKind::choice;
  return setting;
}
Setting language() { return choice("language", {"Hungarian", "English"}); }
Setting tick(const QString& name) { return choice(name, {"no", "yes"}); }

// A dialog's least and greatest number of letters: the least can rise to the greatest, but never above a fixed top.
auto in_order(int least, int most, int top) {
  return [=](const Choice& c) {
    const size_t low = static_cast<size_t>(least), high = static_cast<size_t>(most);
    return c[low] <= std::min(c[high], top);
  };
}

bool any(const Choice&) { return true; }

Count always(int count) {
  return [count](const Choice&) { return count; };
}

// --- Counting
// ---------------------------------------------------------------------------------------------------------

// Records that pass among those that are drawn; the last one never is.
Count drawn(const Pack& pack, const Passes& passes) {
  return [&pack, passes](const Choice& c) {
    return static_cast<int>(
        std::count_if(pack.words.begin(), pack.words.end() - 1, [&](const WordFacts& w) { return passes(w, c); }));
  };
}

// Different texts of the records that pass, where every record can be drawn.
Count different(const Pack& pack, const Passes& passes,
                const std::function<QString(const WordFacts&, const Choice&)>& text) {
  return [&pack, passes, text](const Choice& c) {
    QSet<QString> seen;
    for (const WordFacts& w : pack.words)
      if (passes(w, c)) seen.insert(text(w, c));
    return static_cast<int>(seen.size());
  };
}

// --- Letters
// ----------------------------------------------------------------------------------------------------------

// The scrambled letters are as large as lets an "m" fill its square; a word too wide for the frame is thrown away.
double widest_scrambled_word(const Pack& pack) {
  constexpr double tile = 1095, frame = 4695, fill = 0.9, twips_per_point = 20;
  int points = 6;
  while (points * twips_per_point * std::max(pack.m_width, pack.line_height) <= fill * tile) ++points;
  return fill * frame / (points * twips_per_point);
}

// Words that can lie on the winder's board together: none is part of another, which would be refused beside it.
int words_side_by_side(const Pack& pack, const Choice& c) {
  QStringList words;
  for (const WordFacts& w : pack.words) {
    const QString text = (c[1] == 0 ? w.record.name : w.record.english).toLower();
    if (!text.isEmpty() && text.size() <= c[0]) words << text;
  }
  words.removeDuplicates();
  return static_cast<int>(std::count_if(words.begin(), words.end(), [&](const QString& word) {
    return std::none_of(words.begin(), words.end(),
                        [&](const QString& other) { return other != word && other.contains(word); });
  }));
}

// The letter sorter's pairs, each of its two letters for itself. English takes plain single letters only.
struct SortedLetters {
  explicit SortedLetters(const Pack& pack) {
    const auto plain = [](const QString& letter) { return letter.size() == 1 && letter[0] >= 'a' && letter[0] <= 'z'; };
    for (const auto& pair : pack.pairs)
      for (size_t side : {0u, 1u}) {
        labels << QString("%1 of %2-%3").arg(pair[side], pair[0], pair[1]);
        wanted << pair[side];
        other << pair[1 - side];
        english.push_back(plain(pair[0]) && plain(pair[1]));
      }
  }
  QStringList labels, wanted, other;
  std::vector<bool> english;
};

const LetterFacts& sorter_text(const WordFacts& w, const Choice& c) {
  return c[1] == 1 ? w.english : c[2] == 1 ? w.syllabified : w.name;
}

ExerciseFilter letter_sorter(const Pack& pack) {
  const auto letters = std::make_shared<SortedLetters>(pack);
  const Passes passes = [letters](const WordFacts& w, const Choice& c) {
    const LetterFacts& text = sorter_text(w, c);
    return text.count() <= c[3] && text.holds(letters->wanted[c[0]]) && !text.holds(letters->other[c[0]]);
  };
  return {
      "frm_betűválogatás",
      "Letter sorting",
      {each("letter", letters->labels), language(), tick("syllabified"), range("letters at most", 5, 14, 14)},
      [letters](const Choice& c) { return c[1] == 0 || (c[2] == 0 && letters->english[static_cast<size_t>(c[0])]); },
      always(6),
      different(pack, passes, [](const WordFacts& w, const Choice& c) { return sorter_text(w, c).text; })};
}

// The letter viewer draws from these letters by itself; the digraphs stand on the digit keys.
ExerciseFilter letter_viewer(const Pack& pack) {
  QStringList letters = QString("e,r,t,z,u,i,o,p,l,k,j,h,g,f,d,s,a,c,v,b,n,m").split(',');
  const qsizetype english_letters = letters.size();
  letters += QStringLiteral("ő,ú,ó,ü,ö,ű,á,é,í,cs,dz,dzs,gy,ly,ny,sz,ty,zs").split(',');
  const Passes passes = [letters](const WordFacts& w, const Choice& c) {
    const int most = c[3] == 13 ? 100 : c[3];
    if (w.name.count() > most) return false;
    const QString& letter = letters[c[0]];
    if (c[1] == 1)
      return w.record.english.size() <= most &&
             (c[2] == 0 ? w.record.english.contains(letter) : w.record.english.startsWith(letter));
    return c[2] == 0 ? w.name.holds(letter) : w.name.first(1) == letter;
  };
  return {"frm_betűnézegető",
          "Letter viewer",
          {each("letter", letters), language(), choice("place", {"anywhere", "first"}),
           range("letters at most", 3, 13, 12)},
          [english_letters](const Choice& c) { return c[1] == 0 || c[0] < english_letters; },
          always(1),
          different(pack, passes, [](const WordFacts& w, const Choice&) { return w.record.name; })};
}

std::vector<ExerciseFilter> letter_exercises(const Pack& pack) {
  const double widest = widest_scrambled_word(pack);
  return {
      {"frm_cserkó",
       "Scrambled word",
       {choice("rule", {"at most", "exactly", "at least"}), range("letters", 4, 12, 12)},
       any,
       always(1),
       drawn(pack,
             [widest](const WordFacts& w, const Choice& c) {
               const int n = w.name.count();
               return w.width <= widest && (c[0] == 0 ? n <= c[1] : c[0] == 1 ? n == c[1] : n >= c[1]);
             })},
      {"frmverem",
       "Winder",
       {range("characters at most", 4, 10, 8), language()},
       any,
       always(18),
       [&pack](const Choice& c) { return words_side_by_side(pack, c); }},
      letter_sorter(pack),
      letter_viewer(pack),
      {"frm_betűfelesleg",
       "Surplus letter",
       {range("letters at most", 4, 13, 12)},
       any,
       always(1),
       drawn(pack, [](const WordFacts& w, const Choice& c) { return w.name.count() <= c[0]; })},
      {"frm_betűhiány",
       "Missing letter",
       {language(), range("letters at least", 4, 12, 4), range("letters at most", 4, 16, 10)},
       in_order(1, 2, 12),
       always(2),
       drawn(pack,
             [](const WordFacts& w, const Choice& c) {
               const QString& text = c[0] == 0 ? w.record.name : w.record.english;
               const int n = c[0] == 0 ? w.name.count() : static_cast<int>(text.size());
               return n >= c[1] && n <= c[2] && !text.contains('-') && (c[0] == 0 || !text.contains(' '));
             })},
  };
}

// --- Boards and pairs
// -------------------------------------------------------------------------------------------------

// The memory's dialog counts the words that fit its limit, up to the 18 pairs of the board, and lets no more be dealt.
int memory_guard(const Pack& pack, int most, bool english) {
  QSet<QString> seen;
  for (const WordFacts& w : pack.words) {
    const LetterFacts& text = english ? w.english : w.name;
    if (text.count() <= most) seen.insert(text.text);
  }
  return std::min(18, static_cast<int>(seen.size()));
}

ExerciseFilter picture_memory(const Pack& pack) {
  const auto text = [](const WordFacts& w, const Choice& c) -> const LetterFacts& {
    return c[2] == 1 ? w.english : c[3] == 1 ? w.syllabified : w.name;
  };
  return {"frm_képmemória",
          "Picture memory",
          {range("pairs", 5, 18, 17), range("letters at most", 2, 13, 12), language(), tick("syllabified")},
          [&pack](const Choice& c) { return memory_guard(pack, c[1], c[2] == 1) >= 5 && (c[2] == 0 || c[3] == 0); },
          [&pack](const Choice& c) { return std::min(c[0], memory_guard(pack, c[1], c[2] == 1)); },
          different(
              pack, [text](const WordFacts& w, const Choice& c) { return c[1] == 13 || text(w, c).count() <= c[1]; },
              [text](const WordFacts& w, const Choice& c) { return text(w, c).text; })};
}

// Different spellings that a swap of two inner letters can give.
int wrong_spellings(const QStringList& letters) {
  QSet<QString> spellings;
  for (int a = 1; a + 1 < letters.size(); ++a)
    for (int b = a + 1; b + 1 < letters.size(); ++b) {
      if (letters[a] == letters[b]) continue;
      QStringList swapped = letters;
      swapped.swapItemsAt(a, b);
      spellings.insert(swapped.join(QString()));
    }
  spellings.remove(letters.join(QString()));
  return static_cast<int>(spellings.size());
}

ExerciseFilter letter_mix_up(const Pack& pack) {
  return {
      "frm_betűkeverő",
      "Letter mix-up",
      {language(), range("choices", 3, 6, 4), range("letters at least", 5, 12, 5), range("letters at most", 5, 16, 10)},
      in_order(2, 3, 12),
      always(2),
      drawn(pack, [](const WordFacts& w, const Choice& c) {
        const QStringList letters = c[0] == 0 ? w.name.letters : w.record.english.split(QString(), Qt::SkipEmptyParts);
        QSet<QChar> inner;
        for (int i = 1; i + 1 < letters.size(); ++i) inner.insert(letters[i].front());
        return letters.size() >= c[2] && letters.size() <= c[3] && inner.size() >= 3 &&
               wrong_spellings(letters) >= c[1] - 1;
      })};
}

ExerciseFilter short_long(const Pack& pack) {
  QStringList labels, letters;
  for (const TextView entry : short_long_pairs) {
    const QString pair = QString::fromUtf16(entry.data(), static_cast<qsizetype>(entry.size()));
    for (int side : {0, 1}) {
      letters << pair.section('-', side, side);
      labels << QString("%1 of %2").arg(letters.back(), pair);
    }
  }
  return {"frm_hosszrövid",
          "Short-long",
          {each("letter", labels), range("letters at least", 4, 12, 4), range("letters at most", 4, 16, 10)},
          in_order(1, 2, 12),
          always(2),
          drawn(pack, [letters](const WordFacts& w, const Choice& c) {
            const int n = w.name.count();
            // With syllables shown the letter must be one there too.
            return n >= c[1] && n <= c[2] && !w.record.name.contains('-') && w.name.holds(letters[c[0]]) &&
                   w.syllabified.holds(letters[c[0]]);
          })};
}

std::vector<ExerciseFilter> board_exercises(const Pack& pack) {
  const Passes distractor = [](const WordFacts& w, const Choice& c) {
    return w.name.count() >= 3 && w.name.count() <= c[1];
  };
  const Count pool = drawn(pack, distractor);
  return {
      {"frm_lóugrás",
       "Knight's jump",
       {size("rows", 6, 8, 8), size("columns", 6, 12, 8), range("letters at most", 4, 12, 12),
        range("pictures", 1, 4, 4), language(), choice("rule", {"knight", "neighbours"})},
       any,
       [](const Choice& c) { return c[3]; },
       [&pack](const Choice& c) {
         return knight_words(pack, {c[0], c[1], c[2], c[3], c[4] == 1, c[5] == 1});
       }},
      picture_memory(pack),
      {"frm_szólánc",
       "Word chain",
       {choice("type", {"syllable", "two letters", "one letter"}), range("letters at most", 4, 17, 12),
        range("pictures", 7, 28, 28, 7)},
       any,
       always(1),
       [&pack, pool](const Choice& c) {
         return pool(c) < c[2] ? 0 : chain_starts(pack, static_cast<ChainType>(c[0]), c[1]);
       }},
      letter_mix_up(pack),
      short_long(pack),
  };
}

// --- Syllables, directions, sentences
// ---------------------------------------------------------------------------------

std::vector<ExerciseFilter> syllable_exercises(const Pack& pack) {
  return {
      {"frm_szótagoló",
       "Syllabifier",
       {range("syllables at most", 2, 7, 2), tick("no single syllables")},
       any,
       always(1),
       drawn(pack, [](const WordFacts& w, const Choice& c) { return w.syllables <= c[0] && w.syllables >= 1 + c[1]; })},
      {"frm_szótagkereső",
       "Syllable search",
       {range("syllables at least", 3, 7, 3), range("syllables at most", 3, 7, 7)},
       in_order(0, 1, 7),
       always(2),
       drawn(pack, [](const WordFacts& w, const Choice& c) { return w.syllables >= c[0] && w.syllables <= c[1]; })},
      {"frm_holvan",
       "Where is it",
       {choice("directions", {"all", "right and left", "up and down"}), range("letters at least", 4, 12, 4),
        range("letters at most", 4, 16, 10)},
       // Four new words, while a place not yet filled anew still holds its old one.
       in_order(1, 2, 12),
       always(5),
       drawn(pack,
             [](const WordFacts& w, const Choice& c) { return w.name.count() >= c[1] && w.name.count() <= c[2]; })},
      {"frm_merremutat",
       "Which way",
       {each("direction", {"left", "up", "right", "down"})},
       any,
       always(1),
       [&pack](const Choice& c) { return pack.direction_pictures[static_cast<size_t>(c[0])]; }},
  };
}

std::vector<ExerciseFilter> sentence_exercises(const Pack& pack) {
  const Count defined = different(
      pack, [](const WordFacts& w, const Choice&) { return !w.record.definition.isEmpty(); },
      [](const WordFacts& w, const Choice&) { return w.record.definition; });
  return {
      {"frm_képhatározó",
       "Picture definition",
       {range("definitions", 2, 6, 2)},
       any,
       [](const Choice& c) { return c[0] + 1; },
       defined},
      {"frm_mondatkép", "Sentence to picture", {}, any, always(7), defined},
      {"frm_igazhamis",
       "True or false",
       {},
       any,
       always(2),
       drawn(pack, [](const WordFacts& w,
                      const Choice&) { return !w.record.truth.isEmpty() && !w.record.falsehood.isEmpty(); })},
      {"frm_párosító", "Sentence pairing", {}, any, always(6), defined},
      {"frm_szóvillám",
       "Word flash",
       {language(), range("letters at least", 3, 10, 3), range("letters at most", 3, 17, 10)},
       in_order(1, 2, 10),
       always(6),
       drawn(pack,
             [](const WordFacts& w, const Choice& c) {
               const int n = c[0] == 0 ? w.name.count() : static_cast<int>(w.record.english.size());
               return n >= c[1] && n <= c[2];
             })},
  };
}

} // namespace

std::vector<ExerciseFilter> exercise_filters(const Pack& pack) {
  std::vector<ExerciseFilter> all;
  for (auto part : {letter_exercises, board_exercises, syllable_exercises, sentence_exercises}) {
    std::vector<ExerciseFilter> filters = part(pack);
    std::move(filters.begin(), filters.end(), std::back_inserter(all));
  }
  return all;
}

} // namespace cserko
