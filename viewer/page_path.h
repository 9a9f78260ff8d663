// Which page a command line names.
#pragma once

#include <QStringList>

namespace cserko {

/// The path that the words of a command line make up, with the blanks between them. What starts a program may squeeze
/// several blanks into one; a file whose name differs in that alone is the one meant.
QString page_path(const QStringList& words);

} // namespace cserko
