// How large the viewer's window is drawn.
#pragma once

namespace cserko {

/// Draws everything larger on a large screen, letters, buttons and pictures alike, as the suite itself does. To be
/// called before the application object is made.
void scale_to_screen(int argc, char** argv);

} // namespace cserko
