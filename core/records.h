// The picture-word records that all exercises draw on: read once at the start, then only looked at.
#pragma once

#include "platform/platform.h"

#include <cstdint>

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

class Records {
 public:
  /// How a draw makes an index of a random number: cut off, so that the last record is never drawn, or rounded, so that
  /// it is, and both ends have half the chance.
  enum class Reach : std::uint8_t { WithoutLast, WithLast };

  /// What `draw` asks of a record, by its index.
  using Filter = std::function<bool(int index)>;

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

  /// Draws indexes until one passes: each draw takes one random number, and the last record is not drawn unless asked
  /// for, which is intended. Throws NothingFits with the advice (a Hungarian sentence) if no record can pass. The
  /// filter must give the same answer for the same index as long as the draw lasts.
  int draw(Platform& platform, const Filter& passes, TextView advice = general_advice,
           Reach reach = Reach::WithoutLast) const;

  static constexpr TextView general_advice =
      u"A mostani beállításokhoz egyetlen szó sem illik. Kérlek, engedj a beállításokon!";

 private:
  void read_fields(const Files& files, KépAdat& record) const;

  std::vector<KépAdat> records_{1};
  int left_out_ = 0;
};

} // namespace cserko
