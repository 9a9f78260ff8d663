// The twenty places of the graphic main window: what stands on them and where. The program shows them, and the builder
// of the data pack draws the landscape around them.
#pragma once

#include "platform/elements.h"

#include <array>

namespace cserko {

/// A place of the graphic main window. Its index is the one of the three arrays of the window.
struct GraphicPlace {
  TextView caption;
  TextView window; ///< The exercise that starts here; its picture in the pack has the same name.
  Point picture{}; ///< Left top corner of the picture, twips.
};

/// Side of the square picture of a place, twips.
inline constexpr double graphic_picture_side = 1220;
/// How far the highlight reaches beyond the picture on each side, twips.
inline constexpr double graphic_glow = 150;
/// The ground on which a label stands, under the picture and centred; twips.
inline constexpr Size graphic_label_size{2280, 400};
/// From the upper edge of the picture to that of the label, twips.
inline constexpr double graphic_label_drop = 1375;
/// What the landscape covers, twips; a little more than the window shows at its design size.
inline constexpr Size graphic_landscape_size{13700, 8450};

/// The folder of the pictures under the application folder, and those that belong to no exercise.
inline constexpr TextView graphic_folder = u"cserko\\grafikus\\";
inline constexpr TextView graphic_landscape = u"táj.wmf";
inline constexpr TextView graphic_highlight = u"kiemelés.wmf";

// Five columns and four rows. They are straight, so that an arrow key at the edge leads nowhere else.
inline constexpr auto graphic_places = std::to_array<GraphicPlace>({
    {u"Betűnézegető", u"frm_betűnézegető", {680, 330}},
    {u"Betűfelesleg", u"frm_betűfelesleg", {3380, 330}},
    {u"Betűhiány", u"frm_betűhiány", {6080, 330}},
    {u"Betűválogató", u"frm_betűválogatás", {8780, 330}},
    {u"Betűkeverő", u"frm_betűkeverő", {11480, 330}},
    {u"Rövid-hosszú", u"frm_hosszrövid", {680, 2290}},
    {u"Hol van?", u"frm_holvan", {3380, 2290}},
    {u"Merre mutat?", u"frm_merremutat", {6080, 2290}},
    {u"Mondat-kép", u"frm_mondatkép", {8780, 2290}},
    {u"Képhatározó", u"frm_képhatározó", {11480, 2290}},
    {u"Igaz-hamis", u"frm_igazhamis", {680, 4250}},
    {u"Szótagoló", u"frm_szótagoló", {3380, 4250}},
    {u"SzóVillám", u"frm_szóvillám", {6080, 4250}},
    {u"Szólánc", u"frm_szólánc", {8780, 4250}},
    {u"Cserkó", u"frm_cserkó", {11480, 4250}},
    {u"Lóugrás", u"frm_lóugrás", {680, 6210}},
    {u"Tekergő", u"frmverem", {3380, 6210}},
    {u"Szótagkereső", u"frm_szótagkereső", {6080, 6210}},
    {u"Képmemória", u"frm_képmemória", {8780, 6210}},
    {u"Mondatpárosító", u"frm_párosító", {11480, 6210}},
});

inline constexpr int graphic_place_count = static_cast<int>(graphic_places.size());

/// The place of an index, 0 to `graphic_place_count` - 1.
constexpr const GraphicPlace& graphic_place(int index) { return graphic_places[static_cast<std::size_t>(index)]; }

/// Where the parts of a place stand in the design of the window, twips.
constexpr Rect picture_rect(const GraphicPlace& place) {
  return {place.picture.x, place.picture.y, graphic_picture_side, graphic_picture_side};
}
constexpr Rect highlight_rect(const GraphicPlace& place) {
  constexpr double side = graphic_picture_side + 2 * graphic_glow;
  return {place.picture.x - graphic_glow, place.picture.y - graphic_glow, side, side};
}
constexpr Rect label_rect(const GraphicPlace& place) {
  return {place.picture.x + (graphic_picture_side - graphic_label_size.width) / 2, place.picture.y + graphic_label_drop,
          graphic_label_size.width, graphic_label_size.height};
}

} // namespace cserko
