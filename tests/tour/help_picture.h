// Makes a picture of the help out of what the tour sees of a window.
#pragma once

#include <QImage>
#include <QString>
#include <string>

namespace cserko::tour {

/// A picture of the help: its name without ending, and the width in pixels that it is brought to, its border included;
/// a window that is narrower keeps its size.
struct HelpPicture {
  std::string name;
  int width = 0;
};

/// Writes the picture of a window, without the frame of the window manager, as a PNG with a border into the folder.
/// Returns false if it cannot be written or does not become small enough for a help page.
bool write_help_picture(const QImage& window, const HelpPicture& picture, const QString& folder);

} // namespace cserko::tour
