// The look of the suite on the real machine: calm and warm, one accent colour, large serif letters.
#pragma once

#include <QColor>

namespace cserko::theme {

inline constexpr QColor paper(255, 248, 231);
inline constexpr QColor text(59, 36, 20);
inline constexpr QColor faded_text(120, 100, 80);
inline constexpr QColor line(170, 145, 115);
inline constexpr QColor button(250, 236, 205);
inline constexpr QColor button_hover(255, 244, 220);
inline constexpr QColor button_pressed(238, 220, 184);
inline constexpr QColor button_disabled(246, 240, 226);
inline constexpr QColor scroll_handle(217, 190, 146);
inline constexpr QColor field(255, 253, 247);
inline constexpr QColor accent(24, 98, 94);

/// Height of a menu bar, in pixels of a small screen.
inline constexpr double menu_bar_height = 27;

/// Gives the application its style, colours, and the fonts of the folder `fonts` beside the program.
void apply();

/// How much larger than a small screen the screen is, in quarter steps: unscaled dialogs are not tiny on a large one.
/// `CSERKO_ZOOM` overrides it.
double screen_zoom();

/// How well two colours can be told apart by their brightness alone: 1, not at all, to 21, black from white.
double contrast(const QColor& a, const QColor& b);
/// The contrast at which large letters can be read.
inline constexpr double readable_contrast = 3;

} // namespace cserko::theme
