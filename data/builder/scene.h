// The scene of the graphic main window, piece by piece.
#pragma once

#include "data/pack/icon_set.h"
#include "platform/text.h"

#include <QByteArray>

namespace cserko {

/// The picture of an exercise, by the name of its window, as a metafile. Throws PackError for one that has none.
QByteArray scene_picture(const IconSet& icons, TextView window);

} // namespace cserko
