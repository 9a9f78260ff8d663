// The parts of the data pack that are drawn from the icon set. Each function throws PackError when something is wrong.
#pragma once

#include "data/pack/icon_set.h"

#include <QString>
#include <QStringList>

namespace cserko {

/// What a part is made from and where it goes.
struct BuildPaths {
  QString icons;  ///< the icon set's JSON file
  QString table;  ///< the part's table
  QString output; ///< the folder to write, or the file
};

/// The records and their pictures: 0.wms, 0.wmf, 1.wms …
void build_words(const BuildPaths& paths);

/// The pictures of the congratulation panel.
void build_praise_pictures(const BuildPaths& paths);

/// The direction pictures with their questions.
void build_directions(const BuildPaths& paths);

/// The colouring pages: 0.kif, 1.kif …
void build_colouring(const BuildPaths& paths);

/// The window icon and the paper behind the windows; needs no icons and no table.
void build_look(const BuildPaths& paths);

/// The program's icon in all sizes, into a folder that is laid out as an icon theme; needs no icons and no table. It is
/// no part of the pack.
void build_program_icons(const BuildPaths& paths);

/// The pictures on the buttons of the drawing board, into a folder; part of the look.
void build_tool_pictures(const QString& folder);

/// The landscape of the graphic main window, its highlight and the pictures of the exercises; needs no table.
void build_scene(const BuildPaths& paths);

/// One sheet of all pictures of a folder (`table`) with their names, for the eye.
void build_contact_sheet(const BuildPaths& paths);

/// Columns of the word table.
QStringList word_table_columns();

/// Removes files of the folder that match one of the patterns and are not named in `kept`: what a shorter table leaves
/// over would be read as data.
void remove_others(const QString& folder, const QStringList& patterns, const QStringList& kept);

} // namespace cserko
