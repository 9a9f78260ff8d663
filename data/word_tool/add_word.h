// Adds a user's own word to a folder of records, in the form the program reads.
#pragma once

#include "data/pack/record.h"

#include <QStringList>

namespace cserko {

/// What became of the wish to add a word.
struct AddedWord {
  QStringList faults; ///< why nothing was written, as Hungarian sentences; empty when the word is in
  QString text_file;  ///< the new text file's path
  QString picture;    ///< the new picture's path
};

/// Writes the record and its picture under the first free number of the folder. The picture may be an SVG, PNG, JPEG or
/// WMF file: an SVG of solid fills becomes a metafile, any other SVG a PNG picture, a large photo is made smaller.
/// Nothing is written when the record has faults, its name or definition stands in the folder already, or the picture
/// cannot be drawn. Files that exist are never overwritten.
AddedWord add_word(const QString& folder, const WordRecord& record, const QString& picture);

} // namespace cserko
