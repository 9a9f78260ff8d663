// What all windows of the suite share: place and scale on the screen, texts fitted into controls, pictures with their
// names, help, and the common pause.
#pragma once

#include "core/session.h"

namespace cserko {

/// Centres the window on the screen and gives it and its controls the look of `frm_referencia`.
void ablak_középre(Session& session, Window& window);

/// Scales the window and its controls so that it fills a share of the screen's height, or of its width where that is
/// less. `factor` is the share, above 0 to 1.
void ablak_méretezés(Window& window, double factor);

/// Fits a text into a control and shows it: printed and centred in a picture box, as the caption of anything else. The
/// font grows until the text is too large and stays at that size. An empty text keeps the caption; in a picture box it
/// becomes "Kéne írni ide valamit!", also for the caller.
void szöveg_illesztés(Element& control, Text& text);
void szöveg_illesztés(Element& control, Text&& text = {});

/// The size of font, from a smallest one up, at which the measured text first exceeds the limits (twips). Growth ends
/// at 2000 points, so that a text without any extent ends too.
double first_overfilling_size(const Platform& platform, Font font, TextView text, Size limits);

/// Fits the captions of all command buttons, three points smaller than would fill them.
void gombok_illesztése(Window& window);

/// How `kép_rajzolás` writes the name.
struct Caption {
  bool körvonalas = false; ///< With a white halo instead of a plate.
  bool szótagolt = false;  ///< With its syllable breaks.
  bool angol = false;      ///< In English; wins over the syllables.
};

/// Draws a record into a picture box with its name at the bottom edge and leaves the index in the box's `Tag`. Index -1
/// clears the box. Throws std::out_of_range for an index of no record.
void kép_rajzolás(Session& session, PictureBox& box, int index, const Caption& caption = {});

/// Shows a record's picture in a box; where it has none that can be drawn, a neutral placeholder with the name.
void show_record_picture(Session& session, PictureBox& box, int index);

/// Shows the picture of a file in a box; where there is none that can be drawn, the placeholder with that name.
void show_picture_file(PictureBox& box, const Text& path, TextView name);

/// Shows in a box the picture that another one shows, without what is drawn over it; where that is none, the
/// placeholder with that name.
void show_picture_of(PictureBox& box, const PictureBox& shown, TextView name);

/// Takes picture and drawing out of a box.
void clear_picture(PictureBox& box);

/// Shows a text in a label, wrapped, in the largest size up to the label's height at which it fits its place.
void fit_wrapped(Label& label, TextView text);

/// Prints a text into a picture box as `szöveg_illesztés` does; where that would be smaller than `smallest_line`
/// points, on several lines, as large as fits. Leaves the text in the box's `Tag`.
void fit_printed(PictureBox& box, const Text& text, double smallest_line);

/// Prints a text in the middle of a box, in the box's font.
void print_centered(PictureBox& box, TextView text);

/// The same on several lines, broken at blanks where a line would take more than nine tenths of the box's width.
void print_broken(PictureBox& box, TextView text);

/// The largest size, points, at which a text that is so broken takes at most nine tenths of the box; 0 if none does.
double largest_broken_size(const PictureBox& box, TextView text);

/// Opens a page of the help in the viewer, maximised. Throws std::runtime_error where the viewer cannot be started.
void súgó_megnyitás(Session& session, TextView page);

/// Gives a label the height that its wrapped text takes at its width, twips.
void resize_to_text(Label& label);

} // namespace cserko
