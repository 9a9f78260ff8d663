// Adds a user's own word to a folder of records, in the form the program reads.
#pragma once

#include "data/pack/record.h"
#include "data/pack/record_checks.h"

#include <QStringList>

namespace cserko {

/// How a new word is looked at.
struct WordRules {
  QByteArray word_list; ///< the pack's list of words (`ms.skt`) that the name is looked up in; empty: it is not
  bool strict = false;  ///< whether remarks are obeyed, so that nothing is written where there is one
};

/// What became of the wish to add a word.
struct AddedWord {
  Review review;     ///< what is to be said of it; with a fault nothing was written
  QString text_file; ///< the new text file's path, empty when nothing was written
  QString picture;   ///< the new picture's path
};

/// Writes the record and its picture to the first of the folders, which are read as one (see RecordFolders), under the
/// first number that is free in all of them. The picture may be an SVG, PNG, JPEG or WMF file: an SVG of solid fills
/// becomes a metafile, any other SVG a PNG picture, a large photo is made smaller. Nothing is written when the record
/// has faults, its name stands in a folder already, or the picture cannot be drawn. Files that exist are never
/// overwritten.
AddedWord add_word(const QStringList& folders, const WordRecord& record, const QString& picture,
                   const WordRules& rules = {});

} // namespace cserko
