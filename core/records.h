// The picture-word records that all exercises draw on: read once at the start, then only looked at.
#pragma once

#include "core/draw.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <typeindex>

namespace cserko {

/// One picture with its words. A field that the file does not supply is empty.
struct KépAdat {
  Text wmf;          ///< Full path of the picture.
  Text wms;          ///< Full path of the text file.
  Text név;          ///< Hungarian name.
  Text angol;        ///< English name.
  Text szótagolt;    ///< Hungarian name with "-" between its syllables.
  Text meghatározás; ///< A definition.
  Text igaz;         ///< A true statement.
  Text hamis;        ///< A false statement.
};

/// Which word of a record an exercise shows.
enum class WordForm : std::uint8_t { Név, Szótagolt, Angol };

/// The form for an exercise with a choice of language and of syllables: in English there are none.
constexpr WordForm word_form(bool english, bool syllables) {
  if (english) return WordForm::Angol;
  return syllables ? WordForm::Szótagolt : WordForm::Név;
}

/// All records and their words.
///
/// What an exercise asks of words while it draws, it asks here and not of a `kszöveg` of its own: a draw may look at
/// many thousand words. Letters are counted when they are first asked for and kept. A draw of a word reads, for
/// example,
///
///     const int most = settings().udbetszám.value();
///     képek().draw(platform(), [&](int index) { return képek().MAGYARBETŰKSZÁMA(index) <= most; }, advice);
class Records {
 public:
  /// How a draw makes an index of a random number.
  enum class Reach : std::uint8_t {
    WithoutLast, ///< The whole part of (random × `képszám`): the last record is never drawn.
    WithLast,    ///< (random × `képszám`) rounded: it is, and both ends have half the chance.
    All          ///< The whole part of (random × (`képszám` + 1)): all have the same chance.
  };

  /// A field of a file is cut off behind so many characters; no sentence that fits a screen is as long.
  static constexpr std::size_t longest_field = 4096;

  /// Index of the last record, not their number: the records have the indexes 0 to `képszám`.
  std::int16_t képszám = 0;

  /// Reads the records of the folder `kepek` under the application folder (with its trailing backslash) in the order in
  /// which the file system lists them. `progress` is called with each index before that file is opened; `képszám` is
  /// known by then. What fails leaves its fields empty; an empty folder yields one empty record.
  void load(const Files& files, const Text& application_folder, const std::function<void(int index)>& progress = {});

  /// Number of files that the index was too small to name and that were therefore not read.
  int left_out() const { return left_out_; }

  /// Throws std::out_of_range for an index of no record.
  const KépAdat& operator[](int index) const;

  /// Number of syllables of a record: the hyphens of `szótagolt` and one more. Throws std::out_of_range for an index of
  /// no record.
  int szótagszám(int index) const;

  /// The record's word in that form. Throws std::out_of_range for an index of no record, as all of these do.
  const Text& word(int index, WordForm form) const;
  /// Number of Hungarian letters of that word; the hyphens between syllables count.
  int MAGYARBETŰKSZÁMA(int index, WordForm form = WordForm::Név) const;
  /// Whether that word has the letter; "s" is not found in a word that only has "sz".
  bool vanebenne(int index, TextView letter, WordForm form = WordForm::Név) const;
  /// The length that limits in settings speak of: the letters of the Hungarian name, the characters of the English one.
  int word_length(int index, bool english) const;

  /// Draws indexes until one passes: each draw takes one random number, and the last record is not drawn unless asked
  /// for, which is intended. Throws NothingFits with the advice (a Hungarian sentence) if no record can pass.
  int draw(Platform& platform, const Passes& passes, TextView advice = general_advice,
           Reach reach = Reach::WithoutLast) const;

  /// What somebody has worked out over all records: made as `Derived(records)` when it is first asked for and kept as
  /// long as the records are.
  template<class Derived> const Derived& derived() const {
    std::shared_ptr<const void>& kept = derived_[typeid(Derived)];
    if (!kept) kept = std::make_shared<const Derived>(*this);
    return *static_cast<const Derived*>(kept.get());
  }

  static constexpr TextView general_advice =
      u"A mostani beállításokhoz egyetlen szó sem illik. Kérlek, engedj a beállításokon!";

 private:
  void read_fields(const Files& files, KépAdat& record) const;

  /// What has been found out about the letters of a word.
  struct Cut {
    std::int16_t count = -1; ///< -1: not counted yet.
    Text list;               ///< The letters between commas, empty until asked for.
  };
  Cut& cut(int index, WordForm form) const;

  std::vector<KépAdat> records_{1};
  mutable std::array<std::vector<Cut>, 3> cuts_; ///< By form; as many as records once one of them is asked for.
  mutable std::map<std::type_index, std::shared_ptr<const void>> derived_;
  int left_out_ = 0;
};

} // namespace cserko
