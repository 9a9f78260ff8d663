// The twenty exercises: the caption of their button in the text main window and the window that the button starts.
#pragma once

#include "platform/text.h"

#include <array>

namespace cserko {

struct ExerciseEntry {
  TextView caption;
  TextView window;
};

inline constexpr auto exercise_table = std::to_array<ExerciseEntry>({
    {u"&Cserkó", u"frm_cserkó"},
    {u"&Tekergő", u"frmverem"},
    {u"&Betűválogató", u"frm_betűválogatás"},
    {u"&Képmemória", u"frm_képmemória"},
    {u"Betű&felesleg", u"frm_betűfelesleg"},
    {u"Betű&nézegető", u"frm_betűnézegető"},
    {u"&Szólánc", u"frm_szólánc"},
    {u"&Lóugrás", u"frm_lóugrás"},
    {u"&Szótagoló", u"frm_szótagoló"},
    {u"&Betűhiány", u"frm_betűhiány"},
    {u"&Rövid-hosszú", u"frm_hosszrövid"},
    {u"&Betűkeverő", u"frm_betűkeverő"},
    {u"&Hol van?", u"frm_holvan"},
    {u"&Szótagkereső", u"frm_szótagkereső"},
    {u"&Merre mutat?", u"frm_merremutat"},
    {u"&Képhatározó", u"frm_képhatározó"},
    {u"&Mondat-kép", u"frm_mondatkép"},
    {u"&Igaz-hamis", u"frm_igazhamis"},
    {u"&Mondatpárosító", u"frm_párosító"},
    {u"Szó&Villám", u"frm_szóvillám"},
});

} // namespace cserko
